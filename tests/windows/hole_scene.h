#pragma once

#include "holes/hole_type_info.h"
#include "windows/system_text.h"

namespace plateconfig::test {

/// A hole without segments, and a type for such holes.
struct HoleScene {
  HoleScene() {
    type.name = SystemGbk("圆孔");
    type.content = SystemGbk("无");
    type.countKey = "0_0_0";
  }

  bool IsOfTheType() const {
    double accuracy = -1;
    return type.IsCombHoleBelongNormal(CombHole(), accuracy) && accuracy == 0;
  }

  static constexpr const char* kTrace =
      "name:圆孔   content:无\r\n"
      "acc1:\t0.000000,acc2:\t0.000000,acc3:\t0.000000,acc4:\t0.000000,acc5:\t0.000000,acc6:\t0.000000\r\n"
      "topColorInclude\r\n"
      "throughColorInclude\r\n"
      "bottomColorInclude\r\n"
      "topDiaInclude\r\n"
      "throughDiaInclude\r\n"
      "bottomDiaInclude\r\n"
      "属于\r\n";

  HoleTypeInfo type;
};

}  // namespace plateconfig::test
