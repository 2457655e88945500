#include <gtest/gtest.h>

#include <NXOpen/Body.hxx>

#include "embedding_example.h"
#include "host/body_info.h"
#include "rules/process_rule.h"
#include "support/environment.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

/// A configuration of two processes, as it lies on a disk, and a plate for it.
class Embedding : public ::testing::Test {
 protected:
  Embedding() {
    folder_.WriteTable("config/standard.csv", "文件夹名称,有效配置\r\n标准,Y\r\n");
    folder_.WriteTable("config/标准/工艺设置.csv",
                       "连接符号,制造流程左边距,制造流程顶边距,制造流程CAD图层,制造流程文字样式\r\n"
                       "→,12.5,8,201,仿宋\r\n");
    folder_.WriteTable(
        "config/标准/工艺规则.csv",
        "排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,钻孔,攻牙,铣通槽,检测\r\n"
        "钻孔,圆孔直径,6_8.5,1,10_200,钻孔到数,攻牙深2D,铣槽,检测外形\r\n"
        "攻牙,圆孔颜色,78,,,,,,\r\n"
        "铣通槽,有无通槽,,,,,,,\r\n"
        "检测,孔数量大于参数值,3,,,,,,\r\n");
  }

  std::optional<PlateNote> Note(const PlateFeatures& features, double length = 100) {
    NXOpen::Body solid({36});
    BodyInfo body(&solid, length, 50, 20, 3, 12);
    return WriteProcessNote(features, body, 1.5);
  }

  TemporaryFolder folder_;
  TemporaryFolder state_;
  ScopedVariable root_{"TQConfig", folder_.Path().string()};
  ScopedVariable stateHome_{"XDG_STATE_HOME", state_.Path().string()};
};

TEST_F(Embedding, TheProcessesThatApplyAreJoinedInTheTablesOrder) {
  const auto note = Note({{ProcessRule::HasThroughSlot}, {78}, {}, {8.5}, 3});
  ASSERT_TRUE(note);
  EXPECT_EQ(note->text, Gbk("钻孔到数→攻牙深2D→铣槽→检测外形"));
}

TEST_F(Embedding, WhatThePlateLacksIsLeftOut) {
  const auto note = Note({{}, {79}, {}, {6}, 2});
  ASSERT_TRUE(note);
  EXPECT_EQ(note->text, Gbk("钻孔到数"));
}

TEST_F(Embedding, TheTablesSayWhereTheTextGoes) {
  const auto note = Note({{}, {}, {}, {6}, 0});
  ASSERT_TRUE(note);
  EXPECT_EQ(note->layer, 201);
  EXPECT_EQ(note->leftMargin, 12.5);
  EXPECT_EQ(note->topMargin, 8);
  EXPECT_EQ(note->font, Gbk("仿宋"));
}

TEST_F(Embedding, APlateThatNoRowFitsGetsNoNote) {
  EXPECT_FALSE(Note({{}, {}, {}, {6}, 0}, 201));
}

TEST_F(Embedding, WithoutTheHostsVariableThereIsNoNote) {
  const ScopedVariable unset("TQConfig", std::nullopt);
  EXPECT_FALSE(Note({{}, {}, {}, {6}, 0}));
}

}  // namespace
}  // namespace plateconfig::test
