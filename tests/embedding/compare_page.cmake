# The page holds each file as a block of code, letter for letter.
file(READ ${PAGE} page)
foreach(name embedding_example.h embedding_example.cpp)
  file(READ ${FOLDER}/${name} code)
  string(FIND "${page}" "```cpp\n${code}```\n" at)
  if(at EQUAL -1)
    message(SEND_ERROR "docs/embedding.md does not show tests/embedding/${name} as it stands; copy it there")
  endif()
endforeach()
