// Compares the whole table, in both directions, with the system's own code page 936.
//
// PLATECONFIG_HAVE_ICONV=0 leaves these tests out where the system has no iconv(3).
#ifndef PLATECONFIG_HAVE_ICONV
#if __has_include(<iconv.h>) && !defined(_WIN32)
#define PLATECONFIG_HAVE_ICONV 1
#else
#define PLATECONFIG_HAVE_ICONV 0
#endif
#endif

#if PLATECONFIG_HAVE_ICONV

#include <gtest/gtest.h>
#include <iconv.h>

#include <bit>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "text/gbk.h"

namespace plateconfig {
namespace {

// A conversion of iconv(3) that refuses what it can not convert.
class Iconv {
 public:
  Iconv(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
  Iconv(const Iconv&) = delete;
  Iconv& operator=(const Iconv&) = delete;
  ~Iconv() {
    if (IsOpen()) iconv_close(handle_);
  }

  bool IsOpen() const { return handle_ != kNotOpen; }

  std::optional<std::string> Convert(std::string text) const {
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    std::string result(text.size() * 4, '\0');
    char* from = text.data();
    char* to = result.data();
    std::size_t fromLeft = text.size();
    std::size_t toLeft = result.size();
    const std::size_t status = iconv(handle_, &from, &fromLeft, &to, &toLeft);
    if (status == static_cast<std::size_t>(-1) || fromLeft != 0) return std::nullopt;
    result.resize(result.size() - toLeft);
    return result;
  }

 private:
  static inline const iconv_t kNotOpen = std::bit_cast<iconv_t>(std::intptr_t{-1});

  iconv_t handle_;
};

class GbkAgainstIconv : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(toUtf8_.IsOpen() && toGbk_.IsOpen()) << "this iconv(3) lacks CP936"; }

  // Both refuse `gbk`, or both give the same text. Counts what is convertible.
  void CompareDecoding(const std::string& gbk) {
    const std::optional<std::string> expected = toUtf8_.Convert(gbk);
    EXPECT_EQ(TryGbkToUtf8(gbk), expected) << ::testing::PrintToString(gbk);
    EXPECT_EQ(IsValidGbk(gbk), expected.has_value()) << ::testing::PrintToString(gbk);
    if (expected) ++convertible_;
  }

  void CompareEncoding(const std::string& utf8) {
    const std::optional<std::string> expected = toGbk_.Convert(utf8);
    EXPECT_EQ(TryUtf8ToGbk(utf8), expected) << utf8;
    if (expected) ++convertible_;
  }

  Iconv toUtf8_{"UTF-8", "CP936"};
  Iconv toGbk_{"CP936", "UTF-8"};
  int convertible_ = 0;
};

// Written out once more, independently of the code under test; surrogates give three bytes that both sides
// refuse.
std::string Utf8OfCodePoint(unsigned value) {
  if (value < 0x80) return {static_cast<char>(value)};
  const char last = static_cast<char>(0x80 | (value & 0x3F));
  if (value < 0x800) return {static_cast<char>(0xC0 | value >> 6), last};
  return {static_cast<char>(0xE0 | value >> 12), static_cast<char>(0x80 | (value >> 6 & 0x3F)), last};
}

TEST_F(GbkAgainstIconv, EverySingleByteDecodesAlike) {
  for (unsigned byte = 0; byte < 0x100; ++byte) CompareDecoding({static_cast<char>(byte)});
  EXPECT_EQ(convertible_, 0x80 + 1);  // ASCII and the euro sign
}

TEST_F(GbkAgainstIconv, EveryPairOfBytesDecodesAlike) {
  for (unsigned pair = 0; pair < 0x10000; ++pair) {
    CompareDecoding({static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF)});
  }
  EXPECT_EQ(convertible_, 0x81 * 0x81 + 21'791);  // two characters of one byte, or one of two
}

TEST_F(GbkAgainstIconv, EveryCharacterOfTheBasicMultilingualPlaneEncodesAlike) {
  for (unsigned value = 0; value < 0x10000; ++value) CompareEncoding(Utf8OfCodePoint(value));
  EXPECT_EQ(convertible_, 0x80 + 1 + 21'791);
}

}  // namespace
}  // namespace plateconfig

#endif  // PLATECONFIG_HAVE_ICONV
