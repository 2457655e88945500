# What `cmake --install` gives:
#
#   include/plateconfig/        plateconfig.h and everything that it includes
#   lib/, on Windows also bin/  the library; the DLL lies in bin, its import library in lib
#   lib/cmake/plateconfig/      find_package(plateconfig) gives the target plateconfig::plateconfig
#   lib/pkgconfig/              pkg-config plateconfig
#   bin/                        the companion, and the page beside it when PLATECONFIG_PAGE names it
include(CMakePackageConfigHelpers)

set(plateconfigIncludeDir ${CMAKE_INSTALL_INCLUDEDIR}/plateconfig)
set(plateconfigPackageDir ${CMAKE_INSTALL_LIBDIR}/cmake/plateconfig)

# The header `first` and all that it includes, seen from `folder`.
function(plateconfig_included_headers result folder first)
  set(found)
  set(pending ${first})
  while(pending)
    list(POP_FRONT pending header)
    if(header IN_LIST found OR NOT EXISTS ${folder}/${header})  # The host's headers lie elsewhere.
      continue()
    endif()
    list(APPEND found ${header})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${folder}/${header})
    file(STRINGS ${folder}/${header} includes REGEX "^#include \"")
    list(TRANSFORM includes REPLACE "^#include \"(.*)\".*" "\\1")
    list(APPEND pending ${includes})
  endwhile()
  set(${result} ${found} PARENT_SCOPE)
endfunction()

plateconfig_included_headers(headers ${PROJECT_SOURCE_DIR}/src plateconfig.h)
foreach(header IN LISTS headers)
  cmake_path(GET header PARENT_PATH folder)
  install(FILES src/${header} DESTINATION ${plateconfigIncludeDir}/${folder})
endforeach()

# The interface's headers use classes of the host. Its development kit brings them itself; the stand-in's come along.
# Its functions are the library's own business and are not exported, so that their header stays here.
target_include_directories(plateconfig INTERFACE $<INSTALL_INTERFACE:${plateconfigIncludeDir}>)
set(plateconfigExtraCflags "")
if(NOT PLATECONFIG_HOST_SDK)
  install(DIRECTORY src/host/standin/NXOpen src/host/standin/host DESTINATION ${plateconfigIncludeDir}/host/standin)
  target_include_directories(plateconfig INTERFACE $<INSTALL_INTERFACE:${plateconfigIncludeDir}/host/standin>)
  set(plateconfigExtraCflags " -I\${includedir}/plateconfig/host/standin")
endif()

install(TARGETS plateconfig EXPORT plateconfig
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
if(PLATECONFIG_BUILD_COMPANION)
  install(TARGETS plateconfig_command RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  if(PLATECONFIG_PAGE)
    install(FILES ${PLATECONFIG_PAGE} DESTINATION ${CMAKE_INSTALL_BINDIR} RENAME plateconfig.html)
  endif()
endif()

install(EXPORT plateconfig NAMESPACE plateconfig:: FILE plateconfigConfig.cmake DESTINATION ${plateconfigPackageDir})
write_basic_package_version_file(plateconfigConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/plateconfigConfigVersion.cmake DESTINATION ${plateconfigPackageDir})

# The prefix is found from where the file lies, so that the installed tree may be moved.
file(RELATIVE_PATH plateconfigPrefix
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/plateconfig.pc.in plateconfig.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/plateconfig.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
