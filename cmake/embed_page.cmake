# Writes the C++ source that holds the page:
#
#   cmake -DPAGE=plateconfig.html -DOUTPUT=embedded_page.cpp -P embed_page.cmake
#
# Without PAGE it holds none. A page is ASCII, so that it may be cut anywhere; the pieces are as long as every compiler takes
# them.
set(pieces "")
if(PAGE)
  file(READ "${PAGE}" page)
  string(LENGTH "${page}" length)
  set(at 0)
  while(at LESS length)
    string(SUBSTRING "${page}" ${at} 12000 piece)
    string(REPLACE "\\" "\\\\" piece "${piece}")
    string(REPLACE "\"" "\\\"" piece "${piece}")
    string(REPLACE "\n" "\\n" piece "${piece}")
    string(REPLACE "?" "\\?" piece "${piece}")
    string(APPEND pieces "    \"${piece}\",\n")
    math(EXPR at "${at} + 12000")
  endwhile()
endif()
file(WRITE "${OUTPUT}" "// Written by embed_page.cmake.
#include \"plateconfig/report/embedded_page.h\"

namespace plateconfig {

std::string EmbeddedPage() {
  static constexpr const char* kPieces[] = {
    \"\",
${pieces}  };
  std::string page;
  for (const char* const piece : kPieces) page += piece;
  return page;
}

}  // namespace plateconfig
")
