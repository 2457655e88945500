# The compile options of every target of this project, never of the projects that use it.
add_library(plateconfig_options INTERFACE)
target_compile_features(plateconfig_options INTERFACE cxx_std_20)

if(MSVC)
  # /utf-8 because the sources are UTF-8; the GBK literals need nothing more.
  target_compile_options(plateconfig_options INTERFACE /utf-8 /permissive- /W4)
  # windows.h must not turn std::min into a macro call, and std::fopen is no secret of another system.
  target_compile_definitions(plateconfig_options INTERFACE NOMINMAX _CRT_SECURE_NO_WARNINGS)
else()
  target_compile_options(plateconfig_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wformat=2 -Wimplicit-fallthrough)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # Optimising, it takes literals joined to a std::string for overlapping or overflowing memory (its bug 105651).
    target_compile_options(plateconfig_options INTERFACE -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow)
  endif()
  if(PLATECONFIG_WARNINGS_AS_ERRORS)
    target_compile_options(plateconfig_options INTERFACE -Werror)
  endif()
endif()
