#include "text/text_buffer.h"

#include <gtest/gtest.h>

#include <string>

namespace plateconfig::test {
namespace {

void Append(TextBuffer& buffer, std::string_view text) {
  buffer.KeepUpTo(Put(buffer.Room(text.size()), text));
}

TEST(TextInABuffer, StaysWhenTheBufferGrows) {
  TextBuffer buffer;
  Append(buffer, "a");
  const std::string longText(10'000, 'b');
  Append(buffer, longText);
  Append(buffer, "");
  Append(buffer, "c");
  EXPECT_EQ(buffer.View(), "a" + longText + "c");
}

TEST(TextInABuffer, EndsWhereItWasKept) {
  TextBuffer buffer;
  char* const room = buffer.Room(100);
  buffer.KeepUpTo(Put(room, "kept"));
  EXPECT_EQ(buffer.View(), "kept");
}

}  // namespace
}  // namespace plateconfig::test
