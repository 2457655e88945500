// Numbers as the C library reads them, lists that join to the text they were split from, and conversions that
// come back.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

#include "config/numbers.h"
#include "config/text_helpers.h"
#include "fuzz/require.h"
#include "text/gbk.h"

using namespace plateconfig;
using fuzz::Require;

namespace {

void ReadNumbers(const std::string& text) {
  const long nearest = std::clamp<long>(std::strtol(text.c_str(), nullptr, 10),
                                        std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
  const double expected = std::strtod(text.c_str(), nullptr);
  const double number = ParseDouble(text.c_str());
  Require(ParseInt(text.c_str()) == nearest, "an int is read as strtol reads it");
  Require(number == expected || (std::isnan(number) && std::isnan(expected)),
          "a double is read as strtod reads it");
}

void SplitAndJoin(const std::string& text, const std::string& separator) {
  std::string joined;
  for (const std::string& piece : SplitString(text, separator)) joined += piece + separator;
  if (!text.empty()) joined.resize(joined.size() - separator.size());
  Require(joined == text, "the pieces, joined again, are the text");
}

void ConvertAndComeBack(const std::string& text) {
  Require(IsValidUtf8(GbkToUtf8(text)), "any bytes convert to well-formed UTF-8");
  Require(IsValidGbk(Utf8ToGbk(text)), "any bytes convert to assigned GBK characters");
  if (const auto utf8 = TryGbkToUtf8(text)) Require(TryUtf8ToGbk(*utf8) == text, "GBK comes back from UTF-8");
  if (const auto gbk = TryUtf8ToGbk(text)) Require(TryGbkToUtf8(*gbk) == text, "UTF-8 comes back from GBK");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  ReadNumbers(text);
  SplitAndJoin(text, "_");
  SplitAndJoin(text, "|");
  ConvertAndComeBack(text);
  return 0;
}
