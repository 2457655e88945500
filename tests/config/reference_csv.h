#pragma once

// A second reader of comma-separated text, written for comparison: slow, one byte after the other, every cell
// copied.

#include <string>
#include <string_view>
#include <vector>

namespace plateconfig::test {

class ReferenceCsv {
 public:
  using Lines = std::vector<std::vector<std::string>>;

  static Lines Parse(std::string_view text) { return ReferenceCsv(text).ParseLines(); }

 private:
  explicit ReferenceCsv(std::string_view text) : text_(text) {}

  Lines ParseLines() {
    Lines lines;
    std::size_t linesUpToTheLastOneWithText = 0;
    bool more = true;
    while (more) {
      const std::size_t begin = at_;
      lines.push_back(ParseLine(more));
      const std::string_view bytes = text_.substr(begin, at_ - begin);
      const bool isBlank = bytes.empty() || bytes == "\n" || bytes == "\r\n";
      if (!isBlank) linesUpToTheLastOneWithText = lines.size();
    }
    lines.resize(linesUpToTheLastOneWithText);
    return lines;
  }

  std::vector<std::string> ParseLine(bool& more) {
    std::vector<std::string> cells;
    while (true) {
      cells.push_back(ParseCell());
      if (at_ == text_.size()) {
        more = false;
        return cells;
      }
      if (text_[at_++] == ',') continue;
      if (text_[at_ - 1] == '\r') ++at_;
      return cells;
    }
  }

  // Leaves `at_` at the comma, the line end or the end of the text that ends the cell.
  std::string ParseCell() {
    std::string cell;
    if (at_ < text_.size() && text_[at_] == '"') TakeQuoted(cell);
    while (at_ < text_.size() && text_[at_] != ',' && !IsLineEnd()) cell += text_[at_++];
    return cell;
  }

  bool IsLineEnd() const { return text_[at_] == '\n' || text_.substr(at_, 2) == "\r\n"; }

  // Takes the quoted text; nothing at all when the quote is never closed.
  void TakeQuoted(std::string& cell) {
    std::string inside;
    for (std::size_t i = at_ + 1; i < text_.size(); ++i) {
      if (text_[i] != '"') {
        inside += text_[i];
      } else if (i + 1 < text_.size() && text_[i + 1] == '"') {
        inside += text_[i++];
      } else {
        cell = inside;
        at_ = i + 1;
        return;
      }
    }
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace plateconfig::test
