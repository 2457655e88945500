#include "plateconfig/output/csv_output.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/gbk_text.h"

namespace plateconfig {
namespace {

TEST(CsvOutput, WritesAMarkCrLfAndQuotesWhereTheyMustBe) {
  std::ostringstream out;
  CsvOutput csv(out, {"名称", "a,b"});
  csv.Row({"甲\n乙", "say \"hi\""});
  csv.Row({""});
  EXPECT_EQ(out.str(), "\xEF\xBB\xBF名称,\"a,b\"\r\n\"甲\n乙\",\"say \"\"hi\"\"\"\r\n\"\"\r\n");
}

TEST(GbkBuffer, TurnsUtf8IntoGbkWithoutTheMark) {
  std::ostringstream bytes;
  GbkBuffer buffer(bytes);
  std::ostream out(&buffer);
  out << "\xEF\xBB\xBF图层\xE5" << std::flush << "\x9B\xBE\n" << std::flush;
  EXPECT_EQ(bytes.str(), test::Gbk("图层图\n"));
  EXPECT_FALSE(buffer.FirstLost().has_value());
}

TEST(GbkBuffer, TheFirstCharacterThatGbkLacksIsRememberedWithItsLine) {
  std::ostringstream bytes;
  GbkBuffer buffer(bytes);
  std::ostream out(&buffer);
  out << "图\n" << std::flush << "a\nb\u0E01\u0E02" << std::flush;
  ASSERT_TRUE(buffer.FirstLost().has_value());
  EXPECT_EQ(buffer.FirstLost()->character, "\u0E01");
  EXPECT_EQ(buffer.FirstLost()->line, 3u);
}

}  // namespace
}  // namespace plateconfig
