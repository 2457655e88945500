#include "plateconfig/plates/plate_vocabulary.h"

#include <gmock/gmock.h>

#include "support/gbk_text.h"

namespace plateconfig {
namespace {

using test::Gbk;

/// Two processes that are ordered by hand and one that is not.
std::vector<ProcessRule> ProcessList() {
  return {{0, ProcessRule::CustomProcess, Gbk("氮化"), ""},
          {1, ProcessRule::RoundHoleColor, Gbk("钻孔"), "36"},
          {2, ProcessRule::CustomProcess, Gbk("去应力"), ""}};
}

struct Expected {
  const char* name;
  FedBy feeding;
  ProcessRule::RuleType type;
};

TEST(PlateVocabulary, EveryConditionTextBesideTheCountsAndTheCustomOneIsAFeature) {
  const PlateVocabulary vocabulary({});
  constexpr Expected kFeatures[] = {
      {"有无圆孔", FedBy::kPresence, ProcessRule::HasRoundHole},
      {"有无异型槽", FedBy::kPresence, ProcessRule::HasIrregularSlot},
      {"有无通槽", FedBy::kPresence, ProcessRule::HasThroughSlot},
      {"有无通槽&垂直槽（类型1）", FedBy::kPresence, ProcessRule::HasThroughVerticalSlot},
      {"有无通槽&特殊槽（类型2）", FedBy::kPresence, ProcessRule::HasThroughSpecialSlot},
      {"有无不通槽", FedBy::kPresence, ProcessRule::HasBlindSlot},
      {"有无不通槽&正常槽（类型3）", FedBy::kPresence, ProcessRule::HasBlindNormalSlot},
      {"有无不通槽&特殊槽（类型4）", FedBy::kPresence, ProcessRule::HasBlindSpecialSlot4},
      {"有无不通槽&特殊槽（类型5）", FedBy::kPresence, ProcessRule::HasBlindSpecialSlot5},
      {"型面精加工色", FedBy::kColors, ProcessRule::MachiningColor},
      {"型面粗加工色", FedBy::kColors, ProcessRule::MachiningColor},
      {"特殊加工颜色", FedBy::kColors, ProcessRule::MachiningColor},
      {"圆孔颜色", FedBy::kColors, ProcessRule::RoundHoleColor},
      {"圆孔直径", FedBy::kDiameters, ProcessRule::RoundHoleDiameter},
      {"通槽颜色", FedBy::kColors, ProcessRule::ThroughSlotColor},
      {"通槽&垂直槽颜色（类型1）", FedBy::kColors, ProcessRule::ThroughVerticalSlotColor},
      {"通槽&特殊槽颜色（类型2）", FedBy::kColors, ProcessRule::ThroughSpecialSlotColor},
      {"不通槽颜色", FedBy::kColors, ProcessRule::BlindSlotColor},
      {"不通槽&正常槽颜色（类型3）", FedBy::kColors, ProcessRule::BlindNormalSlotColor},
      {"不通槽&特殊槽颜色（类型4）", FedBy::kColors, ProcessRule::BlindSpecialSlotColor4},
      {"不通槽&特殊槽颜色（类型5）", FedBy::kColors, ProcessRule::BlindSpecialSlotColor5},
  };
  for (const Expected& expected : kFeatures) {
    const Feature* feature = vocabulary.Find(expected.name);
    ASSERT_NE(feature, nullptr) << expected.name;
    EXPECT_EQ(feature->Feeding(), expected.feeding) << expected.name;
    EXPECT_EQ(feature->type, expected.type) << expected.name;
  }
}

TEST(PlateVocabulary, OneHoleCountServesBothCountConditions) {
  const PlateVocabulary vocabulary({});
  ASSERT_NE(vocabulary.Find("孔数量"), nullptr);
  EXPECT_EQ(vocabulary.Find("孔数量")->Feeding(), FedBy::kCount);
  EXPECT_EQ(vocabulary.Find("孔数量大于参数值"), nullptr);
  EXPECT_EQ(vocabulary.Find("孔数量小于参数值"), nullptr);
}

TEST(PlateVocabulary, OnlyProcessesThatAreOrderedByHandAreWords) {
  const PlateVocabulary vocabulary(ProcessList());
  const Feature* custom = vocabulary.Find("氮化");
  ASSERT_NE(custom, nullptr);
  EXPECT_EQ(custom->Feeding(), FedBy::kByHand);
  EXPECT_EQ(custom->processName, Gbk("氮化"));
  EXPECT_EQ(vocabulary.Find("钻孔"), nullptr);
  EXPECT_EQ(vocabulary.Find("自定义追加工艺"), nullptr);
}

TEST(PlateVocabulary, AProcessDoesNotTakeTheNameOfAFeature) {
  const PlateVocabulary vocabulary({{0, ProcessRule::CustomProcess, Gbk("圆孔直径"), ""}});
  EXPECT_EQ(vocabulary.Find("圆孔直径")->Feeding(), FedBy::kDiameters);
}

TEST(PlateVocabulary, NamesAreComparedExactly) {
  const PlateVocabulary vocabulary(ProcessList());
  for (const char* name : {"有无圆孔 ", "有无通槽&垂直槽(类型1)", "有无通槽＆垂直槽（类型1）", ""})
    EXPECT_EQ(vocabulary.Find(name), nullptr) << name;
}

TEST(PlateVocabulary, SuggestsFeaturesProcessesAndTheNamesItIsGiven) {
  const PlateVocabulary vocabulary(ProcessList());
  EXPECT_EQ(vocabulary.Suggest("有无通槽&垂直槽(类型1)", {}), "有无通槽&垂直槽（类型1）");
  EXPECT_EQ(vocabulary.Suggest("除应力", {}), "去应力");
  EXPECT_EQ(vocabulary.Suggest("去应力退火", {}), "");
  EXPECT_EQ(vocabulary.Suggest("圆孔直経", {}), "圆孔直径");
  EXPECT_EQ(vocabulary.Suggest("体颜包.", {"体颜色"}), "");
  EXPECT_EQ(vocabulary.Suggest("面的颜色", {"面颜色"}), "面颜色");
}

}  // namespace
}  // namespace plateconfig
