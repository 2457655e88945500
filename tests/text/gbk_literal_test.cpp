#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "text/gbk.h"

using namespace plateconfig::literals;

namespace {

static_assert("图"_gbk == "\xCD\xBC");
static_assert("图"_gbk.size() == 2);
static_assert("图层间距"_gbk == "\xCD\xBC\xB2\xE3\xBC\xE4\xBE\xE0");
static_assert(""_gbk.empty());
static_assert("M8x1.25,\t\"\\"_gbk == "M8x1.25,\t\"\\");

// The first and the last ideograph of the dense run, and neighbours that lie outside it.
static_assert("一龥"_gbk == "\xD2\xBB\xFD\x9B");
static_assert("、。"_gbk == "\xA1\xA2\xA1\xA3");
static_assert("Φ°±×"_gbk == "\xA6\xB5\xA1\xE3\xA1\xC0\xA1\xC1");

// The first and the last of the remaining characters.
static_assert("¤￥"_gbk == "\xA1\xE8\xA3\xA4");

static_assert("€"_gbk == "\x80");
static_assert("a\0b"_gbk == std::string_view("a\0b", 3));

constexpr std::string_view kKeys[] = {"图层"_gbk, "字高"_gbk, ""_gbk};
static_assert(kKeys[1] == "\xD7\xD6\xB8\xDF");
static_assert(std::size("间距"_gbk) == 4);

struct Defaults {
  std::string font{"宋体"_gbk};
  std::string_view layer = "图层"_gbk;
};

std::string_view ReturnedLiteral() {
  return "默认值"_gbk;
}

TEST(GbkLiteral, IsReadAtRunTimeAsItWasWhileCompiling) {
  EXPECT_EQ(kKeys[0], "\xCD\xBC\xB2\xE3");
  EXPECT_EQ(plateconfig::GbkToUtf8("图层间距"_gbk), "图层间距");
}

TEST(GbkLiteral, OutlivesTheExpressionThatHoldsIt) {
  EXPECT_EQ(ReturnedLiteral(), "\xC4\xAC\xC8\xCF\xD6\xB5");
  EXPECT_EQ(ReturnedLiteral().data(), ReturnedLiteral().data());
}

TEST(GbkLiteral, IsFollowedByAZero) {
  const std::string_view literal = "图层"_gbk;
  EXPECT_EQ(std::string(literal.data()), literal);
}

TEST(GbkLiteral, ServesAsTheDefaultOfADataMember) {
  const Defaults defaults;
  EXPECT_EQ(defaults.font, "\xCB\xCE\xCC\xE5");
  EXPECT_EQ(defaults.layer, "\xCD\xBC\xB2\xE3");
}

TEST(GbkLiteral, FillsConstantsThatAreNoPlainVariables) {
  const std::vector<std::string> texts{std::string("图"_gbk), std::string("层"_gbk) + "-"};
  EXPECT_EQ(texts, (std::vector<std::string>{"\xCD\xBC", "\xB2\xE3-"}));
}

TEST(GbkLiteral, JoinsWithAStringOnEitherSide) {
  const std::string name = "T1";
  EXPECT_EQ(name + "图"_gbk, "T1\xCD\xBC");
  EXPECT_EQ("图"_gbk + name, "\xCD\xBCT1");
  EXPECT_EQ("(" + name + "图"_gbk + ')' + "层"_gbk + name, "(T1\xCD\xBC)\xB2\xE3T1");
  EXPECT_EQ(name, "T1");
}

TEST(GbkLiteral, AppendsToAStringAndComparesWithOne) {
  std::string text = "a";
  text += "图"_gbk;
  EXPECT_TRUE(text == "a图"_gbk);
  EXPECT_TRUE(text.ends_with("图"_gbk));
}

}  // namespace
