#include "analysis/text/file_form.h"

#include <algorithm>
#include <cstddef>

#include "analysis/text/separator.h"
#include "text/byte_order_mark.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

bool IsWorkbook(std::string_view bytes) {
  constexpr std::string_view kZip = "PK\x03\x04";
  constexpr std::string_view kCompoundFile = "\xD0\xCF\x11\xE0";
  return bytes.starts_with(kZip) || bytes.starts_with(kCompoundFile);
}

/// By its byte order mark, or by the zeros that half of the bytes of ASCII characters are.
bool IsUtf16(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) return true;
  constexpr std::size_t kLooked = 512;
  const std::string_view begin = bytes.substr(0, kLooked);
  const auto zeros = static_cast<std::size_t>(std::count(begin.begin(), begin.end(), '\0'));
  return zeros > 0 && zeros >= begin.size() / 8;
}

/// Text with Chinese in UTF-8, also where the same bytes happen to be GBK of other characters: hardly any GBK
/// text has the form of characters of three bytes throughout.
bool IsUtf8(std::string_view bytes) {
  constexpr unsigned char kFirstOfThree = 0xE0;
  const auto beginsThree = [](char c) { return static_cast<unsigned char>(c) >= kFirstOfThree; };
  return bytes.starts_with(kByteOrderMark) ||
         (std::any_of(bytes.begin(), bytes.end(), beginsThree) && IsValidUtf8(bytes));
}

bool HasOnlyCarriageReturns(std::string_view bytes) {
  return bytes.find('\n') == std::string_view::npos && bytes.find('\r') < bytes.size() - 1;
}

bool IsSeparatorLine(std::string_view header) {
  return (header.starts_with("sep=") || header.starts_with("SEP=")) && header.size() <= 5;
}

std::string_view HeaderOf(std::string_view bytes) {
  return bytes.substr(0, std::min(bytes.find_first_of("\r\n"), bytes.size()));
}

}  // namespace

FileForm FormOf(std::string_view bytes) {
  if (bytes.empty()) return FileForm::kTable;
  if (IsWorkbook(bytes)) return FileForm::kWorkbook;
  if (IsUtf16(bytes)) return FileForm::kUtf16;
  if (IsUtf8(bytes)) return FileForm::kUtf8;
  if (HasOnlyCarriageReturns(bytes)) return FileForm::kCarriageReturns;
  const std::string_view header = HeaderOf(bytes);
  if (IsSeparatorLine(header)) return FileForm::kSeparatorLine;
  const bool hasComma = header.find(',') != std::string_view::npos;
  const bool isSeparated = hasComma || !FindOtherSeparator(GbkToUtf8(header));
  return isSeparated ? FileForm::kTable : FileForm::kWrongSeparator;
}

}  // namespace plateconfig
