# One set of flags for every target: the arithmetic of the kernels depends on them.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS ON)
set(CMAKE_C_STANDARD 11)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(ork_flags INTERFACE)
target_compile_options(ork_flags INTERFACE
  -m32 -msse2 -msse3 -mfpmath=sse
  $<$<COMPILE_LANGUAGE:C,CXX>:-ffp-contract=off -frounding-math -fno-math-errno -Wall -Wextra>
  $<$<AND:$<BOOL:${ORK_WERROR}>,$<COMPILE_LANGUAGE:C,CXX>>:-Werror>)
target_link_options(ork_flags INTERFACE -m32)
target_include_directories(ork_flags INTERFACE
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>)

# Kernels: nothing of the C++ run time, nothing visible that is not marked.
add_library(ork_kernel_flags INTERFACE)
target_link_libraries(ork_kernel_flags INTERFACE ork_flags)
target_compile_options(ork_kernel_flags INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-fno-exceptions -fno-rtti -fno-threadsafe-statics
    -fno-asynchronous-unwind-tables -fvisibility=hidden -fvisibility-inlines-hidden
    -ftls-model=initial-exec>)
