# cmake --install: libraries, headers, a pkg-config file and a CMake package.
foreach(library ork_zem_p4m ork_outer ork_front)  # as pkg-config tells its users
  target_compile_options(${library} INTERFACE -m32)
  target_link_options(${library} INTERFACE -m32)
endforeach()
install(TARGETS ork_zem_p4m ork_outer ork_front EXPORT ork_targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ork DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

configure_file(cmake/ork.pc.in ork.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ork.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ork)
install(EXPORT ork_targets NAMESPACE ork:: FILE ork-targets.cmake DESTINATION ${package_dir})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ork-config-version.cmake
  COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
configure_package_config_file(cmake/ork-config.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/ork-config.cmake
  INSTALL_DESTINATION ${package_dir})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ork-config.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/ork-config-version.cmake DESTINATION ${package_dir})
