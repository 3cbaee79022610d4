# libork_zem_p4m.so: every source below zem/, rua/ and df/ is part of it.
file(GLOB_RECURSE kernel_sources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/zem/*.cpp ${PROJECT_SOURCE_DIR}/zem/*.S
  ${PROJECT_SOURCE_DIR}/rua/*.cpp ${PROJECT_SOURCE_DIR}/df/*.cpp)

add_library(ork_zem_p4m SHARED ${kernel_sources})
target_link_libraries(ork_zem_p4m PRIVATE ork_kernel_flags ork_outer m)
target_include_directories(ork_zem_p4m PRIVATE
  ${PROJECT_SOURCE_DIR}
  ${PROJECT_SOURCE_DIR}/zem/zem_core
  ${PROJECT_SOURCE_DIR}/rua
  ${PROJECT_SOURCE_DIR}/df/df_kernel)
# The C driver links, so that the C++ library cannot slip in; calls inside the
# library bind to the library, calls of ork_serv_* and the dense layer do not.
set_target_properties(ork_zem_p4m PROPERTIES
  LINKER_LANGUAGE C
  BUILD_RPATH "$ORIGIN" INSTALL_RPATH "$ORIGIN" BUILD_WITH_INSTALL_RPATH ON)
target_link_options(ork_zem_p4m PRIVATE
  $<$<CONFIG:Release>:-nostartfiles>  # the start files' only content is a constructor section
  $<$<CONFIG:Release>:-Wl,-z,defs>   # a sanitizer's functions come with the program
  -Wl,-Bsymbolic -Wl,--as-needed -Wl,--gc-sections -Wl,--enable-new-dtags)
