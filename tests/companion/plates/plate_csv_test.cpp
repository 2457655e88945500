#include <gmock/gmock.h>

#include "plateconfig/plates/plate_reader.h"
#include "support/companion.h"

namespace plateconfig {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kHeader = "名称,长度,宽度,厚度,重量,体颜色";

struct CsvPlates {
  explicit CsvPlates(const std::string& bytes) : in(bytes) {}

  std::vector<PlateInput> All() {
    std::vector<PlateInput> plates;
    const auto reader = ReadPlates(in, "板.csv", vocabulary, messages.reporter);
    while (auto plate = reader->Next()) plates.push_back(*plate);
    return plates;
  }

  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const PlateInput& plate : All()) names.push_back(plate.name);
    return names;
  }

  test::Messages messages;
  PlateVocabulary vocabulary{{{0, ProcessRule::CustomProcess, test::Gbk("氮化"), ""}}};
  std::istringstream in;
};

/// The message about a single cell: the plate is otherwise right.
std::string MessageAbout(const std::string& column, const std::string& cell) {
  CsvPlates file(std::string(kHeader) + "," + column + "\n板,450,400,90,127.2,12," + cell + "\n");
  EXPECT_THAT(file.All(), IsEmpty());
  return file.messages.Text();
}

TEST(PlateCsv, ReadsEveryField) {
  CsvPlates file("名称,长度,宽度,厚度,重量,图层,体颜色,面颜色\nA板,450,400.5,90,127.2,12,87,36_12_36\n");
  const auto plates = file.All();
  ASSERT_EQ(plates.size(), 1u);
  const Plate& plate = plates[0].plate;
  EXPECT_EQ(plates[0].name, "A板");
  EXPECT_EQ(plates[0].position, (Position{2, 1}));
  EXPECT_EQ(plate.length, 450);
  EXPECT_EQ(plate.width, 400.5);
  EXPECT_EQ(plate.height, 90);
  EXPECT_EQ(plate.weight, 127.2);
  EXPECT_EQ(plate.layer, 12);
  EXPECT_EQ(plate.color, 87);
  EXPECT_THAT(plate.faceColors, ElementsAre(12, 36));
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(PlateCsv, ReadsEveryKindOfFeature) {
  CsvPlates file(std::string(kHeader) +
                 ",有无圆孔,有无通槽,圆孔颜色,型面精加工色,特殊加工颜色,圆孔直径,孔数量,氮化\n"
                 "板,450,400,90,127.2,12,Y,N,36_186,190,92,6_8.5,12,Y\n");
  const auto plates = file.All();
  ASSERT_EQ(plates.size(), 1u) << file.messages.Text();
  PlateFeatures features = plates[0].features;
  EXPECT_THAT(features.present, ElementsAre(ProcessRule::HasRoundHole));
  EXPECT_THAT(features.colors[ProcessRule::RoundHoleColor], ElementsAre(36, 186));
  EXPECT_THAT(features.colors[ProcessRule::MachiningColor], ElementsAre(190, 92));
  EXPECT_THAT(features.diameters, ElementsAre(6, 8.5));
  EXPECT_EQ(features.holeCount, 12);
  EXPECT_THAT(features.customProcesses, ElementsAre(test::Gbk("氮化")));
}

TEST(PlateCsv, AWholeNumberMayHaveNoughtsBehindAPoint) {
  CsvPlates file(std::string(kHeader) + ",孔数量\n板,450,400,90,127.2,12.0,9.00\n");
  const auto plates = file.All();
  ASSERT_EQ(plates.size(), 1u) << file.messages.Text();
  EXPECT_EQ(plates[0].plate.color, 12);
  EXPECT_THAT(MessageAbout("孔数量", "9.5"), HasSubstr("\"9.5\" is not a whole number"));
  EXPECT_THAT(MessageAbout("孔数量", "9."), HasSubstr("\"9.\" is not a whole number"));
}

TEST(PlateCsv, AnEmptyCellIsAFeatureThatThePlateHasNot) {
  CsvPlates file(std::string(kHeader) +
                 ",图层,面颜色,有无圆孔,圆孔颜色,圆孔直径,孔数量,氮化\n"
                 "板,450,400,90,127.2,12,,,,,,,\n");
  const auto plates = file.All();
  ASSERT_EQ(plates.size(), 1u) << file.messages.Text();
  EXPECT_EQ(plates[0].plate.layer, 0);
  EXPECT_THAT(plates[0].plate.faceColors, IsEmpty());
  EXPECT_THAT(plates[0].features.present, IsEmpty());
  EXPECT_THAT(plates[0].features.diameters, IsEmpty());
  EXPECT_EQ(plates[0].features.holeCount, std::nullopt);
  EXPECT_THAT(plates[0].features.customProcesses, IsEmpty());
}

TEST(PlateCsv, TheColumnsMayStandInAnyOrder) {
  CsvPlates file("体颜色,重量,厚度,宽度,长度,名称\n12,127,90,400,450,板\n");
  const auto plates = file.All();
  ASSERT_EQ(plates.size(), 1u);
  EXPECT_EQ(plates[0].plate.length, 450);
  EXPECT_EQ(plates[0].plate.color, 12);
}

TEST(PlateCsv, AMistakeIsReportedWithItsCell) {
  EXPECT_EQ(MessageAbout("图层", "一"),
            "板.csv:2:23: error: G2: \"一\" is not a whole number; write it like 12 "
            "(this plate is passed over)\n");
  EXPECT_THAT(MessageAbout("面颜色", "36-186"), HasSubstr("G2: \"36-186\" is not a list of whole numbers"));
  EXPECT_THAT(MessageAbout("圆孔颜色", "36_"), HasSubstr("G2: \"36_\" is not a list of whole numbers"));
  EXPECT_THAT(MessageAbout("圆孔直径", "6 8"),
              HasSubstr("G2: \"6 8\" (with a blank) is not a list of numbers"));
  EXPECT_THAT(MessageAbout("有无圆孔", "有"), HasSubstr("G2: \"有\" is neither Y nor N"));
  EXPECT_THAT(MessageAbout("氮化", "1"), HasSubstr("G2: \"1\" is neither Y nor N"));
  EXPECT_THAT(MessageAbout("孔数量", "1.5"), HasSubstr("G2: \"1.5\" is not a whole number"));
  EXPECT_THAT(MessageAbout("孔数量", "99999999999"), HasSubstr("G2: \"99999999999\" is out of range"));
}

TEST(PlateCsv, WhatIsEasilyOverlookedInACellIsSaid) {
  EXPECT_THAT(MessageAbout("图层", "１２"),
              HasSubstr("G2: \"１２\" (with full-width characters) is not a whole number"));
  EXPECT_THAT(MessageAbout("图层", "12　"), HasSubstr("G2: \"12　\" (with full-width characters) is not"));
  EXPECT_THAT(MessageAbout("图层", "12 "), HasSubstr("G2: \"12 \" (with a blank) is not a whole number"));
  EXPECT_THAT(MessageAbout("有无圆孔", "Ｙ"),
              HasSubstr("G2: \"Ｙ\" (with full-width characters) is neither"));
}

TEST(PlateCsv, SizesArePositiveAndAWeightMayBeZero) {
  CsvPlates file(std::string(kHeader) +
                 "\na,0,1,1,1,1\nb,1,-1,1,1,1\nc,1,1,0,1,1\nd,1,1,1,-0.1,1\ne,1,1,1,0,1\n");
  EXPECT_THAT(file.Names(), ElementsAre("e"));
  EXPECT_EQ(file.messages.Text(),
            "板.csv:2:3: error: B2: 0 is too small; write a number above 0 (this plate is passed over)\n"
            "板.csv:3:5: error: C3: -1 is too small; write a number above 0 (this plate is passed over)\n"
            "板.csv:4:7: error: D4: 0 is too small; write a number above 0 (this plate is passed over)\n"
            "板.csv:5:9: error: E5: -0.1 is too small; write 0 or more (this plate is passed over)\n");
}

TEST(PlateCsv, NumbersOutOfRangeAreRefused) {
  CsvPlates file(std::string(kHeader) + "\na,1e999,1,1,1,1\nb,1,1,1,1,99999999999\nc,1,1,1,nan,1\n");
  EXPECT_THAT(file.Names(), IsEmpty());
  EXPECT_THAT(file.messages.Text(),
              HasSubstr("板.csv:2:3: error: B2: \"1e999\" is out of range (this plate"));
  EXPECT_THAT(file.messages.Text(), HasSubstr("板.csv:3:11: error: F3: \"99999999999\" is out of range; "
                                              "whole numbers go from -2147483648 to 2147483647"));
  EXPECT_THAT(file.messages.Text(), HasSubstr("板.csv:4:9: error: E4: \"nan\" is not a number"));
}

TEST(PlateCsv, EveryMistakeOfARowIsReportedAndTheOtherRowsAreRead) {
  CsvPlates file(std::string(kHeader) + "\n甲,1,1,1,1,1\n,x,1,1,1,y\n乙,1,1,1,1,1\n");
  EXPECT_THAT(file.Names(), ElementsAre("甲", "乙"));
  EXPECT_EQ(file.messages.Text(),
            "板.csv:3:1: error: A3: the plate has no name (this plate is passed over)\n"
            "板.csv:3:2: error: B3: \"x\" is not a number; write it like 450 or 12.5 "
            "(this plate is passed over)\n"
            "板.csv:3:10: error: F3: \"y\" is not a whole number; write it like 12 "
            "(this plate is passed over)\n");
}

TEST(PlateCsv, AShortRowLacksItsLastCells) {
  CsvPlates file(std::string(kHeader) + ",孔数量\n甲,1,1,1,1,1\n乙,1,1,1,1\n");
  EXPECT_THAT(file.Names(), ElementsAre("甲"));
  EXPECT_THAT(file.messages.Text(), HasSubstr("板.csv:3:9: error: F3: an empty cell is not a whole number"));
}

TEST(PlateCsv, CellsBeyondTheHeaderAreIgnored) {
  CsvPlates file(std::string(kHeader) + "\n甲,1,1,1,1,1,x,y\n");
  EXPECT_THAT(file.Names(), ElementsAre("甲"));
}

TEST(PlateCsv, BlankLinesAreNoPlatesButCountAsRows) {
  CsvPlates file(std::string(kHeader) + "\n\n,,,,,\n甲,1,1,1,1,1\n\n乙,x,1,1,1,1\n\n");
  EXPECT_THAT(file.Names(), ElementsAre("甲"));
  EXPECT_EQ(file.messages.Text(),
            "板.csv:6:3: error: B6: \"x\" is not a number; write it like 450 or 12.5 "
            "(this plate is passed over)\n");
}

TEST(PlateCsv, AColumnThatLooksLikeAKnownOneIsIgnoredWithAWarning) {
  CsvPlates file(std::string(kHeader) + ",备注,圆孔颜包,长度\n甲,1,1,1,1,1,随便,36,9\n");
  const auto plates = file.All();
  ASSERT_EQ(plates.size(), 1u);
  EXPECT_EQ(plates[0].plate.length, 1);
  EXPECT_EQ(file.messages.Text(),
            "板.csv:1:23: warning: H1: the column \"圆孔颜包\" is not known and is ignored; did you mean "
            "\"圆孔颜色\"?\n"
            "板.csv:1:28: warning: I1: a second column \"长度\"; the first one counts\n");
}

TEST(PlateCsv, OtherColumnsAreTheUsersOwnRemarks) {
  CsvPlates file(std::string(kHeader) + ",备注,图号,数量,备注\n甲,1,1,1,1,1,随便,A-1,2,\n");
  EXPECT_THAT(file.Names(), ElementsAre("甲"));
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(PlateCsv, ABlankBehindAColumnsNameIsSeen) {
  CsvPlates file(std::string(kHeader) + ",圆孔颜色 \n甲,1,1,1,1,1,36\n");
  EXPECT_THAT(file.Names(), ElementsAre("甲"));
  EXPECT_EQ(file.messages.Text(),
            "板.csv:1:20: warning: G1: the column \"圆孔颜色 \" (with a blank) is not known and is "
            "ignored; did you mean \"圆孔颜色\"?\n");
}

TEST(PlateCsv, ANoBreakSpaceBehindAColumnsNameIsNamed) {
  CsvPlates file(std::string(kHeader) + ",圆孔颜色\u00A0\n甲,1,1,1,1,1,36\n");
  EXPECT_THAT(file.Names(), ElementsAre("甲"));
  EXPECT_THAT(file.messages.Text(), ::testing::HasSubstr("(with a no-break space) is not known"));
}

TEST(PlateCsv, ATitleLineAboveTheHeaderIsOneMessage) {
  CsvPlates file("板材清单,,,,,\n,,,,,\n" + std::string(kHeader) + "\n甲,1,1,1,1,1\n");
  EXPECT_THAT(file.Names(), IsEmpty());
  EXPECT_EQ(
      file.messages.Text(),
      "板.csv:1:1: error: the first line is no header; the column names stand on line 3; delete the lines "
      "above the column names\n");
}

TEST(PlateCsv, AHeaderOfOtherNamesIsNoTitleLine) {
  CsvPlates file("甲,乙\n1,2\n");
  EXPECT_THAT(file.Names(), IsEmpty());
  EXPECT_THAT(file.messages.Text(), ::testing::HasSubstr("the column 名称 is missing"));
}

TEST(PlateCsv, ARowOfBlanksIsABlankRow) {
  CsvPlates file(std::string(kHeader) + "\n , ,\t,\u00A0,\u3000,\n甲,1,1,1,1,1\n");
  EXPECT_THAT(file.Names(), ElementsAre("甲"));
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(PlateCsv, AColumnWithoutNameIsIgnoredInSilence) {
  CsvPlates file(std::string(kHeader) + ",,\n甲,1,1,1,1,1,x,y\n");
  EXPECT_THAT(file.Names(), ElementsAre("甲"));
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(PlateCsv, EveryMissingColumnIsNamedAndNoPlateIsRead) {
  CsvPlates file("名称,长度,厚度,重量\n甲,1,1,1\n");
  EXPECT_THAT(file.Names(), IsEmpty());
  EXPECT_EQ(file.messages.Text(),
            "板.csv:1:1: error: the column 宽度 is missing; no plate can be read without it\n"
            "板.csv:1:1: error: the column 体颜色 is missing; no plate can be read without it\n");
}

TEST(PlateCsv, ABlankHeaderMissesEveryColumn) {
  CsvPlates file("\n甲,1,1,1,1,1\n");
  EXPECT_THAT(file.Names(), IsEmpty());
  EXPECT_THAT(file.messages.Text(), HasSubstr("板.csv:1:1: error: the column 名称 is missing"));
}

TEST(PlateCsv, AHundredThousandUnknownColumnsAreRemarks) {
  std::string header = kHeader;
  for (int i = 0; i < 100000; ++i) header += ",备注" + std::to_string(i);
  CsvPlates file(header + "\n甲,1,1,1,1,1\n");
  EXPECT_THAT(file.Names(), ElementsAre("甲"));
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(PlateCsv, AColumnNameOfAMegabyteIsNoName) {
  CsvPlates file(std::string(kHeader) + "," + std::string(std::size_t{1} << 20, 'x') + "\n甲,1,1,1,1,1\n");
  EXPECT_THAT(file.Names(), ElementsAre("甲"));
}

TEST(PlateCsv, ACellOfAMegabyteMayBeAName) {
  const std::string large(std::size_t{1} << 20, 'x');
  CsvPlates file(std::string(kHeader) + "\n" + large + ",1,1,1,1,1\n");
  EXPECT_THAT(file.Names(), ElementsAre(large));
}

TEST(PlateCsv, TheCellOfAMistakeIsNotRepeatedInFull) {
  CsvPlates file(std::string(kHeader) + "\n甲," + std::string(std::size_t{1} << 20, 'x') + ",1,1,1,1\n");
  EXPECT_THAT(file.Names(), IsEmpty());
  EXPECT_LT(file.messages.Text().size(), 500u);
}

}  // namespace
}  // namespace plateconfig
