#pragma once

#include <string>
#include <string_view>

#include "text/gbk.h"

namespace plateconfig::test {

/// Test input is written in readable UTF-8 and handed to the library in GBK.
inline std::string Gbk(std::string_view utf8) {
  return Utf8ToGbk(utf8);
}

}  // namespace plateconfig::test
