#include "analysis/schema/words.h"

namespace plateconfig {

Words WordsOf(CellForm form) {
  switch (form) {
    case CellForm::kNumber:
      return {"number", "数字"};
    case CellForm::kInteger:
      return {"integer", "整数"};
    case CellForm::kIntegerOrAbsent:
      return {"integer; empty = no column", "整数；空单元格等于没有此列"};
    case CellForm::kText:
      return {"text", "文本"};
    case CellForm::kTextOrAbsent:
      return {"text; empty = no column", "文本；空单元格等于没有此列"};
    case CellForm::kStyle:
      return {"style", "样式"};
    case CellForm::kFlagYesIfUpperY:
      return {"flag: yes for Y only", "仅 Y 为是"};
    case CellForm::kFlagYesIfY:
      return {"flag: yes for Y or y only", "仅 Y 或 y 为是"};
    case CellForm::kFlagNoIfUpperN:
      return {"flag: no for N only", "仅 N 为否"};
    case CellForm::kFlagNoIfN:
      return {"flag: no for N or n only", "仅 N 或 n 为否"};
    case CellForm::kTexts:
      return {"list of texts", "文本列表"};
    case CellForm::kIntegers:
      return {"list of integers", "整数列表"};
    case CellForm::kNonZeroIntegers:
      return {"list of integers other than 0", "非 0 整数的列表"};
    case CellForm::kLayerNumbers:
      return {"list of integers from 1 to 256", "1 到 256 的整数列表"};
    case CellForm::kJoinedIntegers:
      return {"list of integers in one cell (12_6)", "一个单元格内的整数列表（12_6）"};
    case CellForm::kJoinedNumbers:
      return {"list of numbers in one cell (6_8.5)", "一个单元格内的数字列表（6_8.5）"};
    case CellForm::kRange:
      return {"range (10_200)", "范围（10_200）"};
    case CellForm::kConditionText:
      return {"condition text", "工艺类型"};
    case CellForm::kExactParameter:
      return {"exactly the parameter's name, or anything else", "与通用要求的名称完全相同，或其他内容"};
    case CellForm::kExactSoftParameter:
      break;
  }
  return {"exactly the soft parameter's name, or anything else", "与软料的名称完全相同，或其他内容"};
}

Words WordsOf(Unit unit) {
  switch (unit) {
    case Unit::kNone:
      return {};
    case Unit::kMm:
      return {"mm", "mm"};
    case Unit::kRatio:
      return {"ratio", "比例"};
    case Unit::kLayer:
      return {"NX layer", "NX 图层"};
    case Unit::kColor:
      return {"colour index", "颜色号"};
    case Unit::kDegrees:
      return {"degrees", "度"};
    case Unit::kDecimals:
      return {"decimals", "位小数"};
    case Unit::kCount:
      return {"count", "个"};
    case Unit::kRows:
      return {"rows", "行"};
    case Unit::kDensity:
      break;
  }
  return {"g/cm³", "g/cm³"};
}

}  // namespace plateconfig
