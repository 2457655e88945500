# What the companion and the tests need besides the library: the installed packages of this system, or, for another
# system, their headers and GoogleTest's sources. The library itself needs nothing.

# Where the header-only packages and GoogleTest's sources lie on the machine that compiles; for cross builds alone.
set(PLATECONFIG_HEADER_FOLDER /usr/include CACHE PATH "Folder that holds CLI, nlohmann and fmt")
set(PLATECONFIG_GOOGLETEST_FOLDER /usr/src/googletest CACHE PATH "Sources of GoogleTest")

# Target `name`: the headers of `folders`, reached through links in a folder of this build. The system's include
# folder itself would bring the headers of the wrong system along.
function(plateconfig_borrow_headers name)
  set(private ${PROJECT_BINARY_DIR}/borrowed_headers)
  file(MAKE_DIRECTORY ${private})
  foreach(folder IN LISTS ARGN)
    if(NOT IS_DIRECTORY ${PLATECONFIG_HEADER_FOLDER}/${folder})
      message(FATAL_ERROR "There is no ${PLATECONFIG_HEADER_FOLDER}/${folder}. Install the package that holds it "
                          "(Debian: libcli11-dev, nlohmann-json3-dev, libfmt-dev).")
    endif()
    file(CREATE_LINK ${PLATECONFIG_HEADER_FOLDER}/${folder} ${private}/${folder} COPY_ON_ERROR SYMBOLIC)
  endforeach()
  add_library(${name} INTERFACE)
  target_include_directories(${name} SYSTEM INTERFACE ${private})
endfunction()

function(plateconfig_find_companion_dependencies)
  add_library(plateconfig_companion_dependencies INTERFACE)
  if(CMAKE_CROSSCOMPILING)
    plateconfig_borrow_headers(plateconfig_borrowed_headers CLI nlohmann fmt)
    target_link_libraries(plateconfig_companion_dependencies INTERFACE plateconfig_borrowed_headers)
    target_compile_definitions(plateconfig_companion_dependencies INTERFACE FMT_HEADER_ONLY)
  else()
    find_package(CLI11 REQUIRED GLOBAL)
    find_package(nlohmann_json REQUIRED GLOBAL)
    find_package(fmt REQUIRED GLOBAL)
    target_link_libraries(plateconfig_companion_dependencies
      INTERFACE CLI11::CLI11 nlohmann_json::nlohmann_json fmt::fmt-header-only)
  endif()
endfunction()

# GTest::gmock, GTest::gmock_main and GTest::gtest_main, for the system that is built for.
macro(plateconfig_find_googletest)
  if(CMAKE_CROSSCOMPILING)
    set(INSTALL_GTEST OFF)
    add_subdirectory(${PLATECONFIG_GOOGLETEST_FOLDER} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  else()
    find_package(GTest REQUIRED)
  endif()
endmacro()
