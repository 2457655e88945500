#include <algorithm>
#include <iterator>

#include "plateconfig/system/console.h"

namespace plateconfig {

bool IsGbkLocale(std::string_view name) {
  constexpr std::string_view kCharsets[] = {"gbk", "gb2312", "gb18030", "euccn", "cp936"};
  std::string charset;
  const std::size_t dot = name.find('.');
  if (dot == std::string_view::npos) return false;
  for (const char c : name.substr(dot + 1, name.find('@') - dot - 1)) {
    if (c != '-' && c != '_') charset += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return std::find(std::begin(kCharsets), std::end(kCharsets), charset) != std::end(kCharsets);
}

}  // namespace plateconfig
