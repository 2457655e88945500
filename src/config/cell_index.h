#pragma once

// Finds the first of some cells that holds a text: of the header's cells the column of a name, of a column's
// cells the row of a value.
//
//   const CellIndex index(count, [&](std::size_t i) { return table.RawCell(i + 1, column); });
//
// It holds places alone and asks for the cells again, because their texts would be as large as the table.

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "config/quotes.h"

namespace plateconfig {

/// Spreads texts over all numbers, over the high bits of them best. They are short, and the standard's hash
/// is a call into its library.
inline std::uint64_t HashOf(std::string_view text) {
  constexpr std::uint64_t kFactor = 0x9E37'79B9'7F4A'7C15;
  std::uint64_t hash = text.size();
  std::uint64_t piece = 0;
  if (text.size() < sizeof piece) {
    for (const char byte : text) piece = piece << 8 | static_cast<unsigned char>(byte);
    return (hash ^ piece) * kFactor;
  }
  for (std::size_t at = 0; at + sizeof piece < text.size(); at += sizeof piece) {
    std::memcpy(&piece, text.data() + at, sizeof piece);
    hash = (hash ^ piece) * kFactor;
    hash ^= hash >> 32;
  }
  // The last bytes at once, those that had their turn among them, instead of what is left one by one.
  std::memcpy(&piece, text.data() + text.size() - sizeof piece, sizeof piece);
  return (hash ^ piece) * kFactor;
}

/// True when the text of a cell, as the file has it, equals `text`.
inline bool RawCellEquals(std::string_view raw, std::string_view text) {
  if (raw.size() < text.size()) return false;  // Quotes only ever make a cell longer.
  return raw.starts_with(kQuote) ? Unquoted(raw) == text : raw == text;
}

class CellIndex {
 public:
  /// Finds nothing.
  CellIndex() = default;

  /// Of the cells 0 to `count` - 1; `rawAt` gives them as the file has them.
  template <typename RawAt>
  CellIndex(std::size_t count, const RawAt& rawAt) {
    if (count == 0) return;
    Resize(std::bit_ceil(2 * std::min(count, kUsualCount)));
    for (std::size_t at = 0; at < count; ++at) {
      Add(static_cast<std::uint32_t>(at), rawAt);
      if (2 * used_ > slots_.size()) Grow(rawAt);
    }
  }

  /// The first cell that holds the text, given the same cells as before.
  template <typename RawAt>
  std::optional<std::size_t> Find(std::string_view text, const RawAt& rawAt) const {
    if (slots_.empty()) return std::nullopt;
    const std::uint32_t at = slots_[SlotOf(text, rawAt)];
    return at == kFree ? std::nullopt : std::optional<std::size_t>(at);
  }

 private:
  static constexpr std::uint32_t kFree = 0xFFFF'FFFF;
  /// Room for as many different texts is made at once, and for more when there are more: of a million cells
  /// most may be empty.
  static constexpr std::size_t kUsualCount = 1024;

  void Resize(std::size_t count) {
    slots_.assign(count, kFree);
    shift_ = 64 - std::countr_zero(count);
    used_ = 0;
  }

  template <typename RawAt>
  void Add(std::uint32_t at, const RawAt& rawAt) {
    const std::string_view raw = rawAt(at);
    std::uint32_t& slot = slots_[raw.starts_with(kQuote) ? SlotOf(Unquoted(raw), rawAt) : SlotOf(raw, rawAt)];
    if (slot != kFree) return;
    slot = at;
    ++used_;
  }

  template <typename RawAt>
  void Grow(const RawAt& rawAt) {
    const std::vector<std::uint32_t> before = std::exchange(slots_, {});
    Resize(2 * before.size());
    for (const std::uint32_t at : before) {
      if (at != kFree) Add(at, rawAt);
    }
  }

  /// The slot that holds the first cell of this text, or the free one where it belongs.
  template <typename RawAt>
  std::size_t SlotOf(std::string_view text, const RawAt& rawAt) const {
    auto slot = static_cast<std::size_t>(HashOf(text) >> shift_);
    while (slots_[slot] != kFree && !RawCellEquals(rawAt(slots_[slot]), text))
      slot = (slot + 1) & (slots_.size() - 1);
    return slot;
  }

  // Open addressing: a power of two long, at most half full, so that a search soon meets a free slot.
  std::vector<std::uint32_t> slots_;
  int shift_ = 0;
  std::size_t used_ = 0;
};

/// The columns that were searched, and an index of each from its second search on: most are searched once,
/// and an index takes as long as a few searches without. Several threads may ask at once: what is here is
/// never changed, and when two make the same index, either serves.
class SearchedColumns {
 public:
  SearchedColumns() = default;
  SearchedColumns(SearchedColumns&& other) noexcept : newest_(other.newest_.exchange(nullptr)) {}
  SearchedColumns& operator=(SearchedColumns&& other) noexcept {
    Clear();
    newest_ = other.newest_.exchange(nullptr);
    return *this;
  }
  ~SearchedColumns() { Clear(); }

  /// The index of a column, as `make` makes it; null when the column is searched for the first time.
  template <typename Make>
  const CellIndex* IndexOf(std::size_t column, const Make& make) {
    const Entry* const known = Find(column);
    if (known == nullptr) return Add(column, nullptr);
    if (known->index == nullptr) return Add(column, std::make_unique<const CellIndex>(make()));
    return known->index.get();
  }

 private:
  struct Entry {
    std::size_t column;
    std::unique_ptr<const CellIndex> index;  // Null after the first search.
    Entry* older;
  };

  const Entry* Find(std::size_t column) const {
    const Entry* entry = newest_.load(std::memory_order_acquire);
    while (entry != nullptr && entry->column != column) entry = entry->older;
    return entry;
  }

  const CellIndex* Add(std::size_t column, std::unique_ptr<const CellIndex> index) {
    auto* const entry = new Entry{column, std::move(index), newest_.load(std::memory_order_relaxed)};
    while (!newest_.compare_exchange_weak(entry->older, entry, std::memory_order_acq_rel,
                                          std::memory_order_relaxed)) {
    }
    return entry->index.get();
  }

  void Clear() {
    for (Entry* entry = newest_.exchange(nullptr); entry != nullptr;) {
      const std::unique_ptr<Entry> gone(entry);
      entry = gone->older;
    }
  }

  std::atomic<Entry*> newest_ = nullptr;
};

}  // namespace plateconfig
