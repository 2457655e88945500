#include "config/table.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

#include "config/quotes.h"
#include "config/separators.h"

namespace plateconfig {
namespace {

constexpr std::uint64_t kAllBits = ~std::uint64_t{0};

std::size_t FirstBit(std::uint64_t bits) {
  return static_cast<std::size_t>(std::countr_zero(bits));
}

/// Bits 0 to `last`.
std::uint64_t BitsUpTo(std::size_t last) {
  return kAllBits >> (kBlock - 1 - last);
}

/// What `EndOfQuotes` gives for a cell whose opening quote stands at `begin`; `quotes` are those of the block
/// at `at`. Most quoted cells end in the block in which they begin.
std::size_t EndOfQuotesFrom(std::size_t begin, std::string_view bytes, std::size_t at, std::uint64_t quotes) {
  std::uint64_t left = begin + 1 - at < kBlock ? quotes & kAllBits << (begin + 1 - at) : 0;
  while (left != 0) {
    const std::size_t quote = FirstBit(left);
    if (quote == kBlock - 1) break;  // Whether it is doubled shows in the next block.
    const std::uint64_t next = std::uint64_t{2} << quote;
    if ((left & next) == 0) return at + quote + 1;
    left &= ~BitsUpTo(quote + 1);
  }
  return EndOfQuotes(bytes, begin);
}

/// Spreads names over the slots. Names are short, and the standard's hash of them is a call into its library.
std::size_t HashOf(std::string_view name) {
  constexpr std::uint64_t kFactor = 0x9E37'79B9'7F4A'7C15;
  std::uint64_t hash = name.size();
  while (!name.empty()) {
    std::uint64_t piece = 0;
    const std::size_t length = std::min(name.size(), sizeof piece);
    std::memcpy(&piece, name.data(), length);
    hash = (hash ^ piece) * kFactor;
    hash ^= hash >> 32;
    name.remove_prefix(length);
  }
  return static_cast<std::size_t>(hash);
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
    while ((separators & beforeQuotes) != 0) {
      const std::size_t last = FirstBit(separators & beforeQuotes);
      AddLines(at, separators & BitsUpTo(last), bits.lineFeeds);
      const std::size_t end = EndOfQuotesFrom(at + last + 1, bytes_, at, bits.quotes);
      if (end >= next) return end;
      separators &= kAllBits << (end - at);
    }
    AddLines(at, separators, bits.lineFeeds);
    return next;
  }

  /// Notes the cells that begin behind these separators, and the lines.
  void AddLines(std::size_t at, std::uint64_t separators, std::uint64_t lineFeeds) {
    while ((separators & lineFeeds) != 0) {
      const std::uint64_t line = separators & BitsUpTo(FirstBit(separators & lineFeeds));
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
      *end++ = static_cast<std::uint32_t>(at + FirstBit(separators) + 1);
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
  DropBlankLinesAtTheEnd();
  HashColumnNames();
}

void Table::FindCells() {
  constexpr std::size_t kUsualBytesOfACell = 8;
  cellBegins_ = Places(kBlock + Bytes().size() / kUsualBytesOfACell);
  rowBegins_ = Places(kBlock);
  CellFinder(Bytes(), cellBegins_, rowBegins_).FindAll();
}

void Table::DropBlankLinesAtTheEnd() {
  while (LineCount() > 0 && CellCount(LineCount() - 1) == 1 && RawCell(LineCount() - 1, 0).empty()) {
    rowBegins_.RemoveLast();
  }
}

void Table::HashColumnNames() {
  if (ColumnCount() == 0) return;
  // At least half of the slots stay empty, so that a search soon meets an empty one.
  columnSlots_.assign(std::bit_ceil(2 * ColumnCount()), kNoColumn);
  for (std::size_t column = 0; column < ColumnCount(); ++column) {
    const std::string_view raw = RawCell(0, column);
    const std::size_t at = raw.starts_with(kQuote) ? SlotOfColumn(Unquoted(raw)) : SlotOfColumn(raw);
    if (columnSlots_[at] == kNoColumn) columnSlots_[at] = static_cast<std::uint32_t>(column);
  }
}

std::size_t Table::SlotOfColumn(std::string_view name) const {
  const std::size_t mask = columnSlots_.size() - 1;
  std::size_t slot = HashOf(name) & mask;
  while (columnSlots_[slot] != kNoColumn && !CellEquals(0, columnSlots_[slot], name))
    slot = (slot + 1) & mask;
  return slot;
}

std::optional<std::size_t> Table::FindColumn(std::string_view name) const {
  if (columnSlots_.empty()) return std::nullopt;
  const std::uint32_t column = columnSlots_[SlotOfColumn(name)];
  return column == kNoColumn ? std::nullopt : std::optional<std::size_t>(column);
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
  return raw.starts_with(kQuote) ? Unquoted(raw) : std::string(raw);
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
  for (std::size_t row = 1; row < LineCount(); ++row) {
    if (CellEquals(row, column, text)) return row;
  }
  return 0;
}

bool Table::CellEquals(std::size_t row, std::size_t column, std::string_view text) const {
  const std::string_view raw = RawCell(row, column);
  if (raw.size() < text.size()) return false;  // Quotes only ever make a cell longer.
  return raw.starts_with(kQuote) ? Unquoted(raw) == text : raw == text;
}

}  // namespace plateconfig
