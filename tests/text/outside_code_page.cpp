// Must not compile: code page 936 lacks this character, and the compiler is to say so by naming
// CharacterIsNotInCodePage936.
#include "text/gbk.h"

using namespace plateconfig::literals;

std::string_view OutsideCodePage() {
  return "图😀"_gbk;
}
