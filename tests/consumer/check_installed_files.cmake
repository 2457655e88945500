# What lies below PREFIX after an installation: all that is needed, and nothing of the library's inside.
function(expect_file path)
  if(NOT EXISTS ${PREFIX}/${path})
    message(SEND_ERROR "${path} was not installed")
  endif()
endfunction()

set(headers ${INCLUDE}/plateconfig)
foreach(header plateconfig.h plateconfig_export.h config/read_config_file.h rules/process_rule.h holes/hole_type_info.h
        settings/system_default.h host/standin/host/body_info.h host/standin/NXOpen/Body.hxx)
  expect_file(${headers}/${header})
endforeach()
expect_file(${LIB}/cmake/plateconfig/plateconfigConfig.cmake)
expect_file(${LIB}/cmake/plateconfig/plateconfigConfigVersion.cmake)
expect_file(${LIB}/pkgconfig/plateconfig.pc)
if(SYSTEM STREQUAL Windows)
  expect_file(${BIN}/plateconfig.dll)
  expect_file(${LIB}/libplateconfig.dll.a)
  expect_file(${BIN}/plateconfig.exe)
else()
  expect_file(${LIB}/libplateconfig.so)
  expect_file(${LIB}/libplateconfig.so.${SOVERSION})
  expect_file(${LIB}/libplateconfig.so.${VERSION})
  expect_file(${BIN}/plateconfig)
endif()

if(PAGE)
  expect_file(${BIN}/plateconfig.html)
endif()

file(GLOB_RECURSE inside RELATIVE ${PREFIX} ${PREFIX}/${headers}/text/* ${PREFIX}/${headers}/platform/*
     ${PREFIX}/${headers}/*.cpp ${PREFIX}/${headers}/uf.h ${PREFIX}/${headers}/rules/rule_*.h)
if(inside)
  message(SEND_ERROR "installed, but none of the interface's: ${inside}")
endif()

# A Chinese compiler reads a header without a mark as GBK. Two bytes of another encoding at the end of a comment would
# take the line's end, and with it the next line, into the comment.
file(GLOB_RECURSE public ${PREFIX}/${headers}/*.h)
foreach(header IN LISTS public)
  file(STRINGS ${header} foreign ENCODING UTF-8 REGEX "[^\t -~]")
  if(foreign)
    message(SEND_ERROR "${header} holds more than ASCII: ${foreign}")
  endif()
endforeach()
