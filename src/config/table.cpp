#include "config/table.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <functional>
#include <limits>
#include <new>
#include <utility>

#include "config/quotes.h"

namespace plateconfig {
namespace {

bool IsSeparator(char byte) {
  return byte == ',' || byte == '\n';
}

/// About how many cells there are, as far as the begin of the file tells. Growing would touch more than twice
/// the memory, counting exactly would look at every byte once more.
std::size_t EstimateCells(std::string_view bytes) {
  constexpr std::size_t kSample = 4096;
  std::size_t separators = 2;
  for (const char byte : bytes.substr(0, kSample)) separators += IsSeparator(byte);
  return bytes.size() <= kSample ? separators : bytes.size() / kSample * (separators + separators / 8);
}

constexpr std::size_t kBlock = 64;

/// Bit i tells whether byte i of a whole block is a separator.
std::uint64_t SeparatorsOfBlock(const char* block) {
  std::array<unsigned char, kBlock> isSeparator;
  // No branch and a fixed count: compilers compare 16 bytes or more at once.
  for (std::size_t i = 0; i < kBlock; ++i) isSeparator[i] = IsSeparator(block[i]) ? 1 : 0;
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < kBlock; i += 8) {
    // Eight bytes of value 0 or 1 become eight bits: the factor shifts byte number n to bit 56 + n, and no
    // two of the shifted bytes meet in one bit.
    static_assert(std::endian::native == std::endian::little, "byte number n is taken for bits 8n to 8n+7");
    std::uint64_t eight;
    std::memcpy(&eight, isSeparator.data() + i, sizeof eight);
    bits |= (eight * 0x0102'0408'1020'4080u) >> 56 << i;
  }
  return bits;
}

/// The same for the first block of `bytes`, which may end earlier.
std::uint64_t Separators(std::string_view bytes) {
  if (bytes.size() >= kBlock) return SeparatorsOfBlock(bytes.data());
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) bits |= std::uint64_t{IsSeparator(bytes[i])} << i;
  return bits;
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
  const std::string_view bytes = Bytes();
  cellBegins_.reserve(EstimateCells(bytes));
  cellBegins_.push_back(0);
  rowBegins_.push_back(0);
  // Separators are looked for a block at a time, which is much faster than byte by byte. From `at` on nothing
  // is in quotes, unless a cell begins there.
  for (std::size_t at = EndOfQuotes(bytes, 0); at < bytes.size();) at = FindCellsOfBlock(at);
  // The end of the file ends the last cell and the last line as a separator would.
  cellBegins_.push_back(static_cast<std::uint32_t>(bytes.size() + 1));
  rowBegins_.push_back(static_cast<std::uint32_t>(cellBegins_.size() - 1));
}

std::size_t Table::FindCellsOfBlock(std::size_t at) {
  const std::string_view bytes = Bytes();
  std::size_t next = at + kBlock;
  std::array<std::uint32_t, kBlock> begins;
  std::size_t count = 0;
  for (std::uint64_t separators = Separators(bytes.substr(at)); separators != 0;) {
    const std::size_t begin = at + static_cast<std::size_t>(std::countr_zero(separators)) + 1;
    if (bytes[begin - 1] == '\n')
      rowBegins_.push_back(static_cast<std::uint32_t>(cellBegins_.size() + count));
    begins[count++] = static_cast<std::uint32_t>(begin);
    separators &= separators - 1;
    if (begin == bytes.size() || bytes[begin] != kQuote) continue;
    const std::size_t endOfQuotes = EndOfQuotes(bytes, begin);
    const std::size_t passed = endOfQuotes - at;
    separators &= passed < kBlock ? ~std::uint64_t{0} << passed : 0;
    next = std::max(next, endOfQuotes);
  }
  cellBegins_.insert(cellBegins_.end(), begins.data(), begins.data() + count);
  return next;
}

void Table::DropBlankLinesAtTheEnd() {
  while (LineCount() > 0 && CellCount(LineCount() - 1) == 1 && RawCell(LineCount() - 1, 0).empty()) {
    rowBegins_.pop_back();
  }
}

void Table::HashColumnNames() {
  if (ColumnCount() == 0) return;
  // At least half of the slots stay empty, so that a search soon meets an empty one.
  columnSlots_.assign(std::bit_ceil(2 * ColumnCount()), kNoColumn);
  for (std::size_t column = 0; column < ColumnCount(); ++column) {
    std::uint32_t& slot = columnSlots_[SlotOfColumn(Cell(0, column))];
    if (slot == kNoColumn) slot = static_cast<std::uint32_t>(column);
  }
}

std::size_t Table::SlotOfColumn(std::string_view name) const {
  const std::size_t mask = columnSlots_.size() - 1;
  std::size_t slot = std::hash<std::string_view>()(name) & mask;
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
  const std::string_view raw = bytes.substr(begin, end - begin);
  const bool beforeLineFeed = end < bytes.size() && bytes[end] == '\n';
  return beforeLineFeed && raw.ends_with('\r') ? raw.substr(0, raw.size() - 1) : raw;
}

std::string Table::Cell(std::size_t row, std::size_t column) const {
  const std::string_view raw = RawCell(row, column);
  return raw.starts_with(kQuote) ? Unquoted(raw) : std::string(raw);
}

bool Table::CellEquals(std::size_t row, std::size_t column, std::string_view text) const {
  const std::string_view raw = RawCell(row, column);
  return raw.starts_with(kQuote) ? Unquoted(raw) == text : raw == text;
}

}  // namespace plateconfig
