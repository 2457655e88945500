#include "plateconfig/input/json_node.h"

#include <gmock/gmock.h>

#include "support/companion.h"

namespace plateconfig {
namespace {

using ::testing::IsEmpty;
using ::testing::StartsWith;

struct Parsed {
  explicit Parsed(std::string_view text, const Place& start = {"f.json", 1, 1}) {
    isParsed = ParseJson(text, start, messages.reporter, root);
  }

  test::Messages messages;
  JsonNode root;
  bool isParsed = false;
};

std::string PlaceOf(const JsonNode& node, std::string_view member) {
  const JsonNode* found = node.Find(member);
  return found == nullptr ? "missing" : ToString(PlaceIn("f.json", found->position));
}

TEST(JsonNode, HoldsEveryKindOfValue) {
  const Parsed json(R"({"a": null, "b": true, "c": -2.5, "d": "板", "e": [1, 2], "f": {"g": 7}})");
  ASSERT_TRUE(json.isParsed);
  const JsonNode& root = json.root;
  EXPECT_EQ(root.kind, JsonNode::Kind::kObject);
  EXPECT_EQ(root.Find("a")->kind, JsonNode::Kind::kNull);
  EXPECT_TRUE(root.Find("b")->flag);
  EXPECT_EQ(root.Find("c")->number, -2.5);
  EXPECT_EQ(root.Find("d")->text, "板");
  EXPECT_EQ(root.Find("e")->items.at(1).number, 2);
  EXPECT_EQ(root.Find("f")->Find("g")->number, 7);
  EXPECT_EQ(root.Find("x"), nullptr);
}

TEST(JsonNode, EachValueKnowsWhereItBegins) {
  const Parsed json("{ \"a\": 12,\n  \"名称\": \"上模\", \"b\" :true,\n\n  \"c\":[5, -6 ] }");
  ASSERT_TRUE(json.isParsed);
  EXPECT_EQ(ToString(PlaceIn("f.json", json.root.position)), "f.json:1:1");
  EXPECT_EQ(PlaceOf(json.root, "a"), "f.json:1:8");
  EXPECT_EQ(PlaceOf(json.root, "名称"), "f.json:2:9");
  EXPECT_EQ(PlaceOf(json.root, "b"), "f.json:2:20");
  EXPECT_EQ(PlaceOf(json.root, "c"), "f.json:4:7");
  EXPECT_EQ(ToString(PlaceIn("f.json", json.root.Find("c")->items.at(0).position)), "f.json:4:8");
  EXPECT_EQ(ToString(PlaceIn("f.json", json.root.Find("c")->items.at(1).position)), "f.json:4:11");
}

TEST(JsonNode, PlacesCountFromTheTextsOwnStart) {
  const Parsed json("{\"a\": 1,\n\"b\": 2}", {"f.json", 10, 5});
  ASSERT_TRUE(json.isParsed);
  EXPECT_EQ(PlaceOf(json.root, "a"), "f.json:10:11");
  EXPECT_EQ(PlaceOf(json.root, "b"), "f.json:11:6");
}

TEST(JsonNode, QuotesAndBackslashesInAStringDoNotDisturbThePlaces) {
  const Parsed json(R"({"a": "x\"[{\\", "b": 1})");
  ASSERT_TRUE(json.isParsed);
  EXPECT_EQ(json.root.Find("a")->text, "x\"[{\\");
  EXPECT_EQ(PlaceOf(json.root, "b"), "f.json:1:23");
}

TEST(JsonNode, ASyntaxErrorIsReportedWhereItStands) {
  const Parsed json("{\"名称\": \"甲\",\n \"a\" 1}");
  EXPECT_FALSE(json.isParsed);
  EXPECT_THAT(json.messages.Text(), StartsWith("f.json:2:6: error: this is not JSON here:"));
}

TEST(JsonNode, AWordThatIsNoneIsReportedAtItsBeginning) {
  const Parsed json("{\"a\": ja, \"b\": 1}");
  EXPECT_FALSE(json.isParsed);
  EXPECT_THAT(json.messages.Text(), StartsWith("f.json:1:7: error: this is not JSON here:"));
}

TEST(JsonNode, TextBehindTheValueIsASyntaxError) {
  const Parsed json("{} x");
  EXPECT_FALSE(json.isParsed);
  EXPECT_THAT(json.messages.Text(), StartsWith("f.json:1:4: error"));
}

TEST(JsonNode, AnEmptyTextIsASyntaxError) {
  const Parsed json("");
  EXPECT_FALSE(json.isParsed);
  EXPECT_THAT(json.messages.Text(), StartsWith("f.json:1:1: error"));
}

TEST(JsonNode, ANumberThatNoDoubleHoldsIsCalledTooLarge) {
  const Parsed json("{\"a\": 1e999}");
  EXPECT_FALSE(json.isParsed);
  EXPECT_EQ(json.messages.Text(), "f.json:1:7: error: this number is too large: 1e999\n");
}

TEST(JsonNode, ALongMistakeIsNotRepeatedInFull) {
  const Parsed json("{\"a\": \"" + std::string(100000, 'x') + "\n\"}");
  EXPECT_FALSE(json.isParsed);
  EXPECT_LT(json.messages.Text().size(), 300u);
}

TEST(JsonNode, AHundredLevelsAreRead) {
  const Parsed json(std::string(100, '[') + std::string(100, ']'));
  EXPECT_TRUE(json.isParsed);
}

TEST(JsonNode, DeeperNestingIsRefusedHoweverDeepItIs) {
  for (const std::size_t depth : {std::size_t{101}, std::size_t{1000000}}) {
    const Parsed json(std::string(depth, '[') + std::string(depth, ']'));
    EXPECT_FALSE(json.isParsed);
    EXPECT_EQ(json.messages.Text(), "f.json:1:101: error: the values are nested too deeply\n");
  }
}

TEST(JsonNode, TheFirstOfTwoMembersOfOneNameIsFound) {
  const Parsed json(R"({"a": 1, "a": 2})");
  ASSERT_TRUE(json.isParsed);
  EXPECT_EQ(json.root.Find("a")->number, 1);
  EXPECT_EQ(json.root.members.size(), 2u);
}

TEST(JsonNode, WithoutMistakeNothingIsReported) {
  EXPECT_THAT(Parsed("[]").messages.Text(), IsEmpty());
}

}  // namespace
}  // namespace plateconfig
