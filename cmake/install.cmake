# cmake --install: libraries, headers, a pkg-config file and a CMake package.
set(version_script ${CMAKE_CURRENT_BINARY_DIR}/ork.map)
file(CONFIGURE OUTPUT ${version_script} CONTENT "ORK_@PROJECT_VERSION_MAJOR@ { global: *; };\n" @ONLY)
foreach(library ork_zem_p4m ork_outer ork_front)  # as pkg-config tells its users
  target_compile_options(${library} INTERFACE -m32)
  target_link_options(${library} INTERFACE -m32)
  # A program that was linked with another major number is refused when it starts, by file name and
  # by symbol version. Own definitions of ork_serv_* and the dense layer still come first.
  set_target_properties(${library} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  target_link_options(${library} PRIVATE -Wl,--version-script=${version_script})
  set_property(TARGET ${library} APPEND PROPERTY LINK_DEPENDS ${version_script})
endforeach()
install(TARGETS ork_zem_p4m ork_outer ork_front EXPORT ork_targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ork DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  COMPONENT development)

file(RELATIVE_PATH up_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/ork.pc.in ork.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ork.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)

include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ork)
install(EXPORT ork_targets NAMESPACE ork:: FILE ork-targets.cmake DESTINATION ${package_dir}
  COMPONENT development)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ork-config-version.cmake
  COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
configure_package_config_file(cmake/ork-config.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/ork-config.cmake
  INSTALL_DESTINATION ${package_dir})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ork-config.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/ork-config-version.cmake DESTINATION ${package_dir}
  COMPONENT development)
