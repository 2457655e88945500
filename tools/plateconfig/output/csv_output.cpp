#include "plateconfig/output/csv_output.h"

#include <algorithm>

#include "analysis/text/table_text.h"
#include "text/byte_order_mark.h"
#include "text/gbk.h"
#include "text/utf8_decode.h"

namespace plateconfig {

CsvOutput::CsvOutput(std::ostream& out, const std::vector<std::string>& header) : out_(out) {
  out_ << kByteOrderMark;
  Row(header);
}

void CsvOutput::Row(const std::vector<std::string>& cells) {
  out_ << CsvLine(cells);
}

GbkBuffer::GbkBuffer(std::ostream& out)
    : Utf8StreamBuffer([this](std::string_view utf8) { Take(utf8); }), out_(out) {}

void GbkBuffer::Take(std::string_view utf8) {
  if (const auto gbk = TryUtf8ToGbk(utf8)) {
    line_ += static_cast<std::size_t>(std::count(utf8.begin(), utf8.end(), '\n'));
    out_ << *gbk;
    return;
  }
  for (std::size_t at = 0; at < utf8.size();) {
    const std::size_t length = std::max<std::size_t>(DecodeUtf8At(utf8, at).length, 1);
    TakeCharacter(utf8.substr(at, length));
    at += length;
  }
}

void GbkBuffer::TakeCharacter(std::string_view utf8) {
  if (utf8 == "\n") ++line_;
  const auto gbk = TryUtf8ToGbk(utf8);
  if (gbk) out_ << *gbk;
  if (!gbk && !lost_) lost_ = Lost{std::string(utf8), line_};
}

}  // namespace plateconfig
