#pragma once

// Finds the bytes that matter to a table, 64 at a time.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__SSE2__) || defined(_M_X64)
#define PLATECONFIG_HAS_SSE2
#include <emmintrin.h>
#endif

#include "config/quotes.h"

namespace plateconfig {

inline constexpr std::size_t kBlock = 64;

/// Bit i tells of byte i of a block.
struct BlockBits {
  std::uint64_t lineFeeds = 0;
  std::uint64_t separators = 0;  ///< Commas and line feeds.
  std::uint64_t quotes = 0;

  bool operator==(const BlockBits&) const = default;
};

/// The same for any processor, of at most 64 bytes.
inline BlockBits PlainBlockBits(std::string_view bytes) {
  BlockBits bits;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const std::uint64_t bit = std::uint64_t{1} << i;
    if (bytes[i] == '\n') bits.lineFeeds |= bit;
    if (bytes[i] == '\n' || bytes[i] == ',') bits.separators |= bit;
    if (bytes[i] == kQuote) bits.quotes |= bit;
  }
  return bits;
}

#ifdef PLATECONFIG_HAS_SSE2
/// The bytes of a block that equal one byte, 16 bytes at a time; every x86-64 compares them at once.
struct EqualBytes {
  __m128i parts[4];

  EqualBytes(const char* block, char byte) {
    for (std::size_t i = 0; i < 4; ++i) {
      __m128i part;
      std::memcpy(&part, block + i * sizeof part, sizeof part);
      parts[i] = _mm_cmpeq_epi8(part, _mm_set1_epi8(byte));
    }
  }

  std::uint64_t Bits() const {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < 4; ++i)
      bits |= std::uint64_t{static_cast<unsigned>(_mm_movemask_epi8(parts[i]))} << (16 * i);
    return bits;
  }
};

/// For a whole block.
inline BlockBits WholeBlockBits(const char* block) {
  const EqualBytes commas(block, ',');
  const EqualBytes lineFeeds(block, '\n');
  const EqualBytes quotes(block, kQuote);
  BlockBits bits;
  bits.lineFeeds = lineFeeds.Bits();
  bits.quotes = quotes.Bits();
  bits.separators = commas.Bits() | bits.lineFeeds;
  return bits;
}
#else
inline BlockBits WholeBlockBits(const char* block) {
  return PlainBlockBits({block, kBlock});
}
#endif

/// For the first block of `bytes`, which may end earlier.
inline BlockBits FindInBlock(std::string_view bytes) {
  if (bytes.size() >= kBlock) return WholeBlockBits(bytes.data());
  char last[kBlock] = {};  // What matters to nobody stands behind the end.
  bytes.copy(last, kBlock);
  return WholeBlockBits(last);
}

}  // namespace plateconfig
