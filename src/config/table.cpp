#include "config/table.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <new>
#include <utility>

#include "config/quotes.h"
#include "config/separators.h"

namespace plateconfig {
namespace {

// Sets of bytes of a block, bit i for byte i. A single byte is the set that holds no other.

constexpr std::uint64_t FirstOf(std::uint64_t bytes) {
  return bytes & (0 - bytes);
}

constexpr std::uint64_t UpTo(std::uint64_t byte) {
  return (byte << 1) - 1;
}

/// Behind none, as behind the last one, there is none.
constexpr std::uint64_t Behind(std::uint64_t byte) {
  return 0 - (byte << 1);
}

constexpr std::size_t IndexOf(std::uint64_t byte) {
  return static_cast<std::size_t>(std::countr_zero(byte));
}

/// The first of these quotes that closes a cell; none when that is in a later block, or shows there.
std::uint64_t ClosingQuoteOf(std::uint64_t quotes) {
  while (true) {
    const std::uint64_t quote = FirstOf(quotes);
    const std::uint64_t next = quote << 1;
    if (next == 0) return 0;
    if ((quotes & next) == 0) return quote;
    quotes &= ~(quote | next);
  }
}

/// The bytes up to the end of the last line that is not blank, without its line feed. No quotes are open
/// where nothing but line ends follows: those that are never closed open nothing.
std::string_view WithoutBlankLinesAtTheEnd(std::string_view bytes) {
  while (bytes.ends_with('\n')) {
    bytes.remove_suffix(1);
    const std::string_view line = bytes.substr(bytes.size() - std::min<std::size_t>(bytes.size(), 2));
    if (line == "\r" || line == "\n\r") bytes.remove_suffix(1);
  }
  return bytes;
}

/// Notes where the cells and lines of a file begin. A class of its own for the compiler's sake: it puts all
/// of it into one loop.
class CellFinder {
 public:
  CellFinder(std::string_view bytes, Places& cellBegins, Places& rowBegins)
      : bytes_(bytes), cellBegins_(cellBegins), rowBegins_(rowBegins) {}

  void FindAll() {
    cellBegins_.Add(0);
    rowBegins_.Add(0);
    // Separators are looked for a block at a time, which is much faster than byte by byte. From `at` on
    // nothing is in quotes, unless a cell begins behind a separator there.
    for (std::size_t at = EndOfQuotes(bytes_, 0); at < bytes_.size();) at = FindInBlockAt(at);
    // The end of the file ends the last cell and the last line as a separator would.
    cellBegins_.Add(bytes_.size() + 1);
    rowBegins_.Add(cellBegins_.Size() - 1);
  }

 private:
  /// Notes the cells that begin behind the separators of the block; where to look on.
  std::size_t FindInBlockAt(std::size_t at) {
    const std::size_t next = at + kBlock;
    const BlockBits bits = FindInBlock(bytes_.substr(at));
    std::uint64_t beforeQuotes = bits.quotes >> 1;
    if (next < bytes_.size() && bytes_[next] == kQuote) beforeQuotes |= std::uint64_t{1} << (kBlock - 1);
    std::uint64_t separators = bits.separators;
    std::size_t end = next;
    for (std::uint64_t opening = separators & beforeQuotes; opening != 0;) {
      const std::uint64_t last = FirstOf(opening);
      const std::uint64_t closing = ClosingQuoteOf(bits.quotes & Behind(last << 1));
      std::uint64_t behind = Behind(closing);
      if (closing == 0) {  // One quoted cell in three goes on in the next block.
        end = EndOfQuotes(bytes_, at + IndexOf(last) + 1);
        behind = end < next ? ~std::uint64_t{0} << (end - at) : 0;
      }
      separators &= UpTo(last) | behind;
      opening = separators & beforeQuotes & behind;
    }
    AddLines(at, separators, bits.lineFeeds);
    return std::max(end, next);
  }

  /// Notes the cells that begin behind these separators, and the lines.
  void AddLines(std::size_t at, std::uint64_t separators, std::uint64_t lineFeeds) {
    while ((separators & lineFeeds) != 0) {
      const std::uint64_t line = separators & UpTo(FirstOf(separators & lineFeeds));
      AddCells(at, line);
      rowBegins_.Add(cellBegins_.Size() - 1);
      separators &= ~line;
    }
    AddCells(at, separators);
  }

  void AddCells(std::size_t at, std::uint64_t separators) {
    std::uint32_t* const room = cellBegins_.Room(kBlock);
    std::uint32_t* end = room;
    for (; separators != 0; separators &= separators - 1)
      *end++ = static_cast<std::uint32_t>(at + IndexOf(separators) + 1);
    cellBegins_.Keep(static_cast<std::size_t>(end - room));
  }

  const std::string_view bytes_;
  Places& cellBegins_;
  Places& rowBegins_;
};

/// The text of a cell as it stands in the file, its quotes apart; nothing for one that has to be put
/// together.
std::optional<std::string_view> TextInPlace(std::string_view raw) {
  if (!raw.starts_with(kQuote)) return raw;
  if (raw.find(kQuote, 1) != raw.size() - 1) return std::nullopt;
  return raw.substr(1, raw.size() - 2);
}

/// Appends the text. `end` is where the bytes end that it is a part of.
void AppendText(std::vector<std::string>& texts, std::string_view text, const char* end) {
  // As long as a string may be that needs no memory of its own. Copying always as many bytes takes no call.
  constexpr std::size_t kShort = 15;
  if (text.empty())
    texts.emplace_back();
  else if (text.size() <= kShort && end - text.data() >= static_cast<std::ptrdiff_t>(kShort))
    texts.emplace_back(text.data(), kShort).resize(text.size());
  else
    texts.emplace_back(text);
}

}  // namespace

std::optional<Table> Table::Read(const std::string& path) {
  static_assert(kMostFileBytes < std::numeric_limits<std::uint32_t>::max(), "places are kept in 32 bits");
  try {
    std::optional<FileBytes> bytes = ReadWholeFile(path);
    if (bytes) return Table(std::move(*bytes));
  } catch (const std::bad_alloc&) {
    // A file larger than the memory is a file that can not be read: the caller keeps its defaults.
    CountFailedRead();
  }
  return std::nullopt;
}

Table::Table(FileBytes bytes) : bytes_(std::move(bytes)) {
  FindCells();
  columnNames_ = CellIndex(ColumnCount(), HeaderCells());
}

void Table::FindCells() {
  constexpr std::size_t kUsualBytesOfACell = 8;
  const std::string_view bytes = WithoutBlankLinesAtTheEnd(Bytes());
  if (bytes.empty()) return;
  cellBegins_ = Places(kBlock + bytes.size() / kUsualBytesOfACell);
  rowBegins_ = Places(kBlock);
  CellFinder(bytes, cellBegins_, rowBegins_).FindAll();
}

std::optional<std::size_t> Table::FindColumn(std::string_view name) const {
  return columnNames_.Find(name, HeaderCells());
}

std::string_view Table::RawCell(std::size_t row, std::size_t column) const {
  if (row >= LineCount() || column >= CellCount(row)) return {};
  const std::size_t cell = rowBegins_[row] + column;
  const std::string_view bytes = Bytes();
  const std::size_t begin = cellBegins_[cell];
  const std::size_t end = cellBegins_[cell + 1] - std::size_t{1};
  const std::string_view raw(bytes.data() + begin, end - begin);
  const bool beforeLineFeed = cell + 1 == rowBegins_[row + 1] && end < bytes.size();
  return beforeLineFeed && raw.ends_with('\r') ? raw.substr(0, raw.size() - 1) : raw;
}

std::string Table::Cell(std::size_t row, std::size_t column) const {
  const std::string_view raw = RawCell(row, column);
  const std::optional<std::string_view> text = TextInPlace(raw);
  return text ? std::string(*text) : Unquoted(raw);
}

std::string_view Table::CellText(std::size_t row, std::size_t column, std::string& memory) const {
  const std::string_view raw = RawCell(row, column);
  if (const std::optional<std::string_view> text = TextInPlace(raw)) return *text;
  return memory = Unquoted(raw);
}

std::vector<std::string> Table::Column(std::size_t column) const {
  std::vector<std::string> texts;
  texts.reserve(RowCount());
  const char* const end = Bytes().data() + Bytes().size();
  for (std::size_t row = 1; row < LineCount(); ++row) {
    const std::string_view raw = RawCell(row, column);
    if (const std::optional<std::string_view> text = TextInPlace(raw))
      AppendText(texts, *text, end);
    else
      texts.push_back(Unquoted(raw));
  }
  return texts;
}

std::size_t Table::FindInColumn(std::size_t column, std::string_view text) const {
  const auto cells = [&](std::size_t at) { return RawCell(at + 1, column); };
  const auto makeIndex = [&] { return CellIndex(RowCount(), cells); };
  if (const CellIndex* const index = searchedColumns_.IndexOf(column, makeIndex)) {
    const std::optional<std::size_t> at = index->Find(text, cells);
    return at ? *at + 1 : 0;
  }
  for (std::size_t row = 1; row <= RowCount(); ++row) {
    if (CellEquals(row, column, text)) return row;
  }
  return 0;
}

bool Table::CellEquals(std::size_t row, std::size_t column, std::string_view text) const {
  return RawCellEquals(RawCell(row, column), text);
}

}  // namespace plateconfig
