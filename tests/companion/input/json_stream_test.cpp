#include "plateconfig/input/json_stream.h"

#include <gmock/gmock.h>

#include <streambuf>

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
      places.push_back(ToString(PlaceIn("f.json", object->position)));
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

TEST(JsonStream, BehindAnObjectThatIsNeverClosedNothingIsRead) {
  JsonFile file("{\"n\": \"a\"}\n{\"n\": \"b\"\n{\"n\": \"c\"}\n");
  EXPECT_THAT(file.All(), ElementsAre("a"));
  EXPECT_EQ(file.messages.Text(),
            "f.json:2:1: error: this object is never closed; what follows it can not be read\n");
}

TEST(JsonStream, AStringEndsWithItsLineAtTheLatest) {
  JsonFile file("{\"n\": \"a\n}\n{\"n\": \"b\"}\n");
  EXPECT_THAT(file.All(), ElementsAre("b"));
  EXPECT_THAT(file.messages.Text(), StartsWith("f.json:1:7: error: this is not JSON here:"));
}

TEST(JsonStream, AListThatIsNeverClosedIsReportedWhereTheParserMissesItsEnd) {
  JsonFile file("[{\"n\": \"a\"},\n {\"n\": \"b\", \"l\": [1, 2},\n {\"n\": \"c\"}]");
  EXPECT_THAT(file.All(), ElementsAre("a"));
  EXPECT_THAT(file.messages.Text(), StartsWith("f.json:2:22: error: this is not JSON here: \"2}\""));
}

TEST(JsonStream, ATextThatIsCutOffIsAMistakeAtItsEnd) {
  JsonFile list("[{\"n\": \"a\"}");
  EXPECT_THAT(list.All(), ElementsAre("a"));
  EXPECT_EQ(list.messages.Text(), "f.json:1:12: error: the JSON ends here too early\n");

  JsonFile comma("{\"n\": \"a\"},\n");
  EXPECT_THAT(comma.All(), ElementsAre("a"));
  EXPECT_EQ(comma.messages.Text(), "f.json:2:1: error: the JSON ends here too early\n");

  JsonFile brackets(std::string(5000, '['));
  EXPECT_THAT(brackets.All(), IsEmpty());
  EXPECT_EQ(brackets.messages.Text(), "f.json:1:5001: error: the JSON ends here too early\n");
}

TEST(JsonStream, ACommaBeforeTheEndOfAListIsAMistake) {
  JsonFile file("[{\"n\": \"a\"},]");
  EXPECT_THAT(file.All(), ElementsAre("a"));
  EXPECT_EQ(file.messages.Text(), "f.json:1:13: error: an object {…} is expected here, not \"]\"\n");
}

TEST(JsonStream, ACommaWithoutAnObjectAndABracketTooManyAreMistakes) {
  JsonFile comma("[,{\"n\": \"a\"}]");
  EXPECT_THAT(comma.All(), ElementsAre("a"));
  EXPECT_EQ(comma.messages.Text(), "f.json:1:2: error: an object {…} is expected here, not \",\"\n");

  JsonFile bracket("[{\"n\": \"a\"}]]");
  EXPECT_THAT(bracket.All(), ElementsAre("a"));
  EXPECT_EQ(bracket.messages.Text(), "f.json:1:13: error: an object {…} is expected here, not \"]\"\n");
}

/// Gives one text again and again, and counts the characters that were taken.
class EndlessText : public std::streambuf {
 public:
  explicit EndlessText(std::string text) : text_(std::move(text)) {}
  std::size_t Taken() const { return taken_; }

 protected:
  int_type underflow() override {
    taken_ += text_.size();
    setg(text_.data(), text_.data(), text_.data() + text_.size());
    return traits_type::to_int_type(text_.front());
  }

 private:
  std::string text_;
  std::size_t taken_ = 0;
};

TEST(JsonStream, TheEndOfAnObjectIsLookedForInNoMoreThanSixteenMegabytes) {
  EndlessText text("{\"n\": \"" + std::string(100, 'x') + "\"\n");
  std::istream in(&text);
  test::Messages messages;
  JsonStream objects(in, "f.json", messages.reporter);
  EXPECT_FALSE(objects.Next());
  EXPECT_FALSE(objects.Next());
  EXPECT_LE(text.Taken(), (std::size_t{16} << 20) + 200);
  EXPECT_EQ(messages.Text(),
            "f.json:1:1: error: this object is never closed; what follows it can not be read\n");
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

TEST(JsonStream, ASlipInsideAnObjectIsToldAsWhatItIsAndTheNextObjectIsRead) {
  JsonFile file("[{\"n\"：\"甲\"},\n {\"n\": \"乙\",},\n {\"n\": \"丙\" \"m\": 1},\n {\"n\": \"丁\"}]");
  EXPECT_THAT(file.All(), ElementsAre("丁"));
  EXPECT_EQ(
      file.messages.Text(),
      "f.json:1:6: error: ： is a full-width character, which JSON does not know; write the half-width colon "
      ":\n"
      "f.json:2:11: error: a comma stands behind the last entry; delete the comma\n"
      "f.json:3:11: error: a comma is missing here, behind \"丙\"; write a comma behind every entry but the "
      "last\n");
}

TEST(JsonStream, AFullWidthSignBetweenObjectsOrInsteadOfABraceIsNamed) {
  JsonFile comma("[{\"n\": \"甲\"}，{\"n\": \"乙\"}]");
  EXPECT_THAT(comma.All(), ElementsAre("甲", "乙"));
  EXPECT_THAT(comma.messages.Text(), StartsWith("f.json:1:12: error: ， is a full-width character"));
  JsonFile brace("[{\"n\": \"甲\"｝]");
  EXPECT_THAT(brace.All(), IsEmpty());
  EXPECT_THAT(brace.messages.Text(), StartsWith("f.json:1:11: error: ｝ is a full-width character"));
}

TEST(JsonStream, Utf16IsNamedOnceAndNothingIsRead) {
  const std::string plain = "[{\"n\": 1}]";
  std::string little;
  std::string big;
  for (const char c : plain) {
    little += {c, '\0'};
    big += {'\0', c};
  }
  for (const std::string& bytes : {"\xFF\xFE" + little, "\xFE\xFF" + big, little, big, little.substr(2)}) {
    JsonFile file(bytes);
    EXPECT_THAT(file.All(), IsEmpty());
    EXPECT_EQ(file.messages.Text(),
              "f.json: error: this file is UTF-16, but JSON is UTF-8; save it as UTF-8\n");
  }
}

}  // namespace
}  // namespace plateconfig
