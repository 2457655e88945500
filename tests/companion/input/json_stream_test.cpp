#include "plateconfig/input/json_stream.h"

#include <gmock/gmock.h>

#include <chrono>

#include "support/companion.h"

namespace plateconfig {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

struct JsonFile {
  explicit JsonFile(const std::string& bytes) : in(bytes) {}

  /// The member "n" of every object, as text.
  std::vector<std::string> All() {
    std::vector<std::string> all;
    while (const auto object = objects.Next()) {
      const JsonNode* n = object->Find("n");
      all.push_back(n == nullptr ? "none" : n->text);
      places.push_back(ToString(object->place));
    }
    return all;
  }

  test::Messages messages;
  std::istringstream in;
  JsonStream objects{in, "f.json", messages.reporter};
  std::vector<std::string> places;
};

TEST(JsonStream, GivesTheObjectsOfAnArray) {
  JsonFile file("[\n  {\"n\": \"甲\"},\n  {\"n\": \"乙\"}\n]\n");
  EXPECT_THAT(file.All(), ElementsAre("甲", "乙"));
  EXPECT_THAT(file.places, ElementsAre("f.json:2:3", "f.json:3:3"));
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(JsonStream, GivesObjectsThatFollowOneAnother) {
  JsonFile file("{\"n\": \"甲\"}\r\n{\"n\": \"乙\"}{\"n\": \"丙\"}");
  EXPECT_THAT(file.All(), ElementsAre("甲", "乙", "丙"));
  EXPECT_THAT(file.places, ElementsAre("f.json:1:1", "f.json:2:1", "f.json:2:11"));
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(JsonStream, ASingleObjectIsAStreamOfOne) {
  EXPECT_THAT(JsonFile("{\"n\": \"甲\"}").All(), ElementsAre("甲"));
}

TEST(JsonStream, AnEmptyFileOrArrayHoldsNone) {
  for (const char* bytes : {"", "[]", " \n", "\xEF\xBB\xBF[]"}) {
    JsonFile file(bytes);
    EXPECT_THAT(file.All(), IsEmpty());
    EXPECT_THAT(file.messages.Text(), IsEmpty());
  }
}

TEST(JsonStream, AByteOrderMarkIsPassedOverAndCountsNoColumn) {
  JsonFile file("\xEF\xBB\xBF{\"n\": \"甲\"}");
  EXPECT_THAT(file.All(), ElementsAre("甲"));
  EXPECT_THAT(file.places, ElementsAre("f.json:1:1"));
}

TEST(JsonStream, BracesInStringsDoNotCount) {
  JsonFile file(R"({"n": "}{\"]["} {"n": "b"})");
  EXPECT_THAT(file.All(), ElementsAre("}{\"][", "b"));
}

TEST(JsonStream, AMistakeInOneObjectDoesNotSpoilTheNext) {
  JsonFile file("[{\"n\": \"a\"},\n {\"n\" \"b\"},\n {\"n\": \"c\"}]");
  EXPECT_THAT(file.All(), ElementsAre("a", "c"));
  EXPECT_THAT(file.messages.Text(), StartsWith("f.json:2:7: error: this is not JSON here:"));
}

TEST(JsonStream, StrayTextIsReportedOnceAndPassedOver) {
  JsonFile file("[{\"n\": \"a\"}, 12, 板,\n {\"n\": \"b\"}] end");
  EXPECT_THAT(file.All(), ElementsAre("a", "b"));
  EXPECT_EQ(file.messages.Text(),
            "f.json:1:14: error: an object {…} is expected here, not \"1\"\n"
            "f.json:2:14: error: an object {…} is expected here, not \"e\"\n");
}

TEST(JsonStream, StrayChineseTextHasItsColumnToo) {
  JsonFile file("[板{\"n\": \"a\"}]");
  EXPECT_THAT(file.All(), ElementsAre("a"));
  EXPECT_EQ(file.messages.Text(), "f.json:1:2: error: an object {…} is expected here, not \"…\"\n");
}

TEST(JsonStream, AnObjectThatIsNotUtf8IsPassedOver) {
  JsonFile file(test::Gbk("{\"n\": \"甲\"}\n") + "{\"n\": \"b\"}");
  EXPECT_THAT(file.All(), ElementsAre("b"));
  EXPECT_EQ(file.messages.Text(), "f.json:1:1: error: this object is not UTF-8; save the file as UTF-8\n");
}

TEST(JsonStream, AnObjectThatIsNeverClosedIsReportedAtItsBrace) {
  JsonFile file("[{\"n\": \"a\"},\n {\"n\": \"b\"");
  EXPECT_THAT(file.All(), ElementsAre("a"));
  EXPECT_THAT(file.messages.Text(), StartsWith("f.json:2:2: error: this object is never closed"));
}

TEST(JsonStream, ObjectsOnLinesBehindOneThatIsNeverClosedAreStillRead) {
  JsonFile lines("{\"n\": \"a\"\n{\"n\": \"b\"}\n{\"n\": \"c\"}\n");
  EXPECT_THAT(lines.All(), ElementsAre("b", "c"));
  EXPECT_THAT(lines.places, ElementsAre("f.json:2:1", "f.json:3:1"));
  EXPECT_THAT(lines.messages.Text(), StartsWith("f.json:1:1: error: this object is never closed"));

  JsonFile array(
      "[\n  {\n    \"n\": \"a\",\n    \"f\": {\n  },\n  {\n    \"n\": \"b\"\n  },\n  {\"n\": \"c\"}\n]\n");
  EXPECT_THAT(array.All(), ElementsAre("b", "c"));
  EXPECT_THAT(array.messages.Text(), StartsWith("f.json:2:3: error: this object is never closed"));
}

TEST(JsonStream, AStringThatIsNeverClosedCostsItsObjectAlone) {
  JsonFile file("{\"n\": \"a, \"m\": 1}\n{\"n\": \"b\"}\n{\"n\": \"c\"}\n");
  EXPECT_THAT(file.All(), ElementsAre("b", "c"));
  EXPECT_THAT(file.messages.Text(), StartsWith("f.json:1:"));
}

TEST(JsonStream, AListThatIsNeverClosedCostsItsObjectAlone) {
  JsonFile file("[{\"n\": \"a\", \"l\": [1, 2},\n {\"n\": \"b\"}]");
  EXPECT_THAT(file.All(), ElementsAre("b"));
  EXPECT_THAT(file.messages.Text(), StartsWith("f.json:1:22: error: this is not JSON here: \"2}\""));
}

TEST(JsonStream, ManyObjectsThatAreNeverClosedTakeNoLongTime) {
  std::string bytes;
  constexpr int kObjects = 20000;
  for (int i = 0; i < kObjects; ++i) bytes += "{\"n\": \"" + std::string(100, 'x') + "\"\n";
  JsonFile file(bytes + "{\"n\": \"last\"}\n");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_THAT(file.All(), ElementsAre("last"));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

TEST(JsonStream, NestedObjectsAtTheStartOfALineBelongToTheirObject) {
  JsonFile file("{\"n\": \"a\", \"f\":\n{\"n\": \"x\"}}\n{\"n\": \"b\"}\n");
  EXPECT_THAT(file.All(), ElementsAre("a", "b"));
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(JsonStream, AMillionBracketsAreJustAMistake) {
  const std::string deep = std::string(1000000, '[') + std::string(1000000, ']');
  JsonFile file("{\"n\": " + deep + "}\n{\"n\": \"b\"}");
  EXPECT_THAT(file.All(), ElementsAre("b"));
  EXPECT_EQ(file.messages.Text(), "f.json:1:106: error: the values are nested too deeply\n");

  JsonFile outside(deep + "{\"n\": \"b\"}");
  EXPECT_THAT(outside.All(), ElementsAre("b"));
}

TEST(JsonStream, AMillionOpenBracesAreJustAMistake) {
  std::string braces;
  for (int i = 0; i < 1000000; ++i) braces += "{\"a\":";
  JsonFile file(braces);
  EXPECT_THAT(file.All(), IsEmpty());
  EXPECT_THAT(file.messages.Text(), HasSubstr("f.json:1:1: error: this object is never closed"));
}

TEST(JsonStream, BytesOfJunkDoNotStopIt) {
  std::string junk;
  for (int i = 0; i < 256; ++i) junk += static_cast<char>(i);
  JsonFile file(junk + "\n{\"n\": \"b\"}");
  EXPECT_THAT(file.All(), SizeIs(1));
}

TEST(JsonStream, AFirstByteOfAMarkAloneIsNoMark) {
  JsonFile file("\xEF {\"n\": \"b\"}");
  EXPECT_THAT(file.All(), ElementsAre("b"));
  EXPECT_THAT(file.messages.Text(), StartsWith("f.json:1:1: error: an object"));
}

}  // namespace
}  // namespace plateconfig
