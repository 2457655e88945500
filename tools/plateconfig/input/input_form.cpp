#include "plateconfig/input/input_form.h"

#include <algorithm>
#include <string>

namespace plateconfig {
namespace {

std::string LowerCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return result;
}

}  // namespace

bool IsJson(std::istream& in, std::string_view file) {
  const std::string name = LowerCase(file);
  if (name.ends_with(".csv")) return false;
  if (name.ends_with(".json") || name.ends_with(".jsonl") || name.ends_with(".ndjson")) return true;
  const int first = in.peek();
  return first == '{' || first == '[';
}

}  // namespace plateconfig
