#include <gtest/gtest.h>
#include <uf.h>

#include <string>

#include "support/environment.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

constexpr const char* kVariable = "PLATECONFIG_TEST_VARIABLE";

std::string Translated(const std::string& environment) {
  const ScopedVariable variable(kVariable, environment);
  char* value = nullptr;
  UF_translate_variable(kVariable, &value);
  return value == nullptr ? "null" : value;
}

TEST(StandInVariable, InUtf8IsHandedOutInGbk) {
  EXPECT_EQ(Translated("/模具/标准"), Gbk("/模具/标准"));
}

TEST(StandInVariable, InGbkIsHandedOutAsItIs) {
  EXPECT_EQ(Translated(Gbk("/模具/标准")), Gbk("/模具/标准"));
}

TEST(StandInVariable, ThatGbkCanNotSpellIsHandedOutAsItIs) {
  EXPECT_EQ(Translated("/\xF0\x9F\x98\x80"), "/\xF0\x9F\x98\x80");
}

TEST(StandInVariable, MayBeEmpty) {
  EXPECT_EQ(Translated(""), "");
}

}  // namespace
}  // namespace plateconfig::test
