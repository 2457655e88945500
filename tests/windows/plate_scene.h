#pragma once

#include <NXOpen/Body.hxx>
#include <string>
#include <vector>

#include "host/body_info.h"
#include "rules/process_rule_library.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {

/// A rule table of one row, one plate that it fits, and the one process that applies to the plate.
class PlateScene {
 public:
  PlateScene() { rules_[0].SetValue(true); }

  std::string ProcessText() { return library_.GetProcessInfo(&plate_, 1.5, rules_); }

  static constexpr const char* kProcessText = "摇臂钻钻孔";
  static constexpr const char* kTrace =
      "dbBodyLength:100\r\n"
      "dbBodyWidth:50\r\n"
      "dbBodyHeight:20.5\r\n"
      "dbBodyWeight:1.5\r\n"
      "nBodyLayer:3\r\n"
      "nBodyColor:12\r\n"
      "======================FaceColor===================\r\n"
      "FaceColor:36\r\n"
      "FaceColor:186\r\n"
      "======================FaceColor===================\r\n"
      "======================型面颜色===================\r\n"
      "======================型面颜色===================\r\n"
      "======================线割颜色===================\r\n"
      "======================线割颜色===================\r\n"
      "当前行号:2\r\n"
      "bHaveProfileColor :0\r\n"
      "bInclude:0\r\n"
      "bHaveWireCuttingColor :0\r\n"
      "bInclude:0\r\n"
      "vecRuleInfos[i].dbMinLength；10\r\n"
      "vecRuleInfos[i].dbMaxLength；200\r\n"
      "vecRuleInfos[i].dbMinWidth；0\r\n"
      "vecRuleInfos[i].dbMaxWidth；999999\r\n"
      "vecRuleInfos[i].dbMinHeight；0\r\n"
      "vecRuleInfos[i].dbMaxHeight；999999\r\n"
      "摇臂钻钻孔\r\n";

 private:
  TemporaryFolder folder_;
  ProcessRuleLibrary library_{
      folder_.WriteTable("工艺规则.csv",
                         "通用要求,通用参数,排工艺顺序,排顺序工艺类型,模板所在图层,长度范围,材质要求,钻孔\n"
                         "软料（体颜色）,12,钻孔,有无圆孔,3,10_200,软料（体颜色）,摇臂钻钻孔\n"),
      folder_.WriteTable("工艺设置.csv", "连接符号\n，\n")};
  NXOpen::Body solid_{{186, 36, 36}};
  BodyInfo plate_{&solid_, 100, 50, 20.5, 3, 12};
  std::vector<ProcessRule> rules_ = library_.GetProcessRules();
};

}  // namespace plateconfig::test
