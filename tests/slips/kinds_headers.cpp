// Slips in the header line of a table.

#include "slips/grid_slips.h"
#include "slips/kinds.h"

namespace plateconfig::slips {
namespace {

const std::vector<What> kHeaders = {What::kRuleHeader, What::kProcessHeader, What::kSettingHeader};

// A header that the keeper chose may be any name; these slips no one would choose.
const std::vector<What> kHeadersAndWidths = {What::kRuleHeader, What::kProcessHeader, What::kSettingHeader,
                                             What::kWidthHeader};

const std::map<std::string, std::string> kShortened = {
    {"通用要求", "要求"},
    {"通用参数", "参数"},
    {"排工艺顺序", "工艺顺序"},
    {"排顺序工艺类型", "工艺类型"},
    {"顺序工艺参数值", "参数值"},
    {"模板所在图层", "模板图层"},
    {"长度范围", "长度"},
    {"宽度范围", "宽度"},
    {"厚度范围", "厚度"},
    {"重量范围", "重量"},
    {"有无型面", "型面"},
    {"有无线割", "线割"},
    {"材质要求", "材质"},
    {"CNC粗加工", "粗加工"},
    {"CNC精加工", "精加工"},
    {"精铣通槽", "铣槽"},
    {"平面磨", "磨"},
    {"连接符号", "符号"},
    {"输入文字方式", "文字方式"},
    {"制造流程左边距", "左边距"},
    {"输出行号", "行号"},
    {"代号文字", "代号"},
    {"CAD路径", "路径"},
    {"连接字符", "连接"},
    {"分图间距", "间距"},
    {"三角符号-颜色", "颜色"},
    {"三角符号-图层", "图层"},
    {"密度(g/cm)", "密度"},
    {"出图的路径", "路径"},
    {"小数位数", "位数"},
    {"外形注解", "外形"},
    {"模板图层", "模板"},
};

const std::map<std::string, std::string> kOtherNames = {
    {"长度范围", "长范围"},
    {"宽度范围", "宽范围"},
    {"厚度范围", "高度范围"},
    {"重量范围", "质量范围"},
    {"材质要求", "材料要求"},
    {"模板所在图层", "所在图层"},
    {"有无线割", "有无线切割"},
    {"钻孔", "打孔"},
    {"下料", "开料"},
    {"CNC粗加工", "数控粗加工"},
    {"淬火", "热处理"},
    {"倒角", "C角"},
    {"爆炸图间距", "爆炸图距离"},
    {"图框的颜色", "图框的色号"},
    {"大穿丝孔直径", "大穿丝孔径"},
    {"代号文字", "编号文字"},
    {"CAD路径", "CAD程序路径"},
    {"出图的路径", "出图文件夹"},
    {"图层间距", "层间距"},
    {"孔数量", "孔数"},
};

const std::vector<TextKind> kTexts = {
    {"header: dropped character", DroppedCharacter(), kHeaders},
    {"header: doubled character", DoubledCharacter(), kHeaders},
    {"header: swapped characters", SwappedCharacters(), kHeaders},
    {"header: traditional character", Traditional(), kHeaders},
    {"header: similar character", SimilarCharacter(), kHeaders},
    {"header: one character of full width", OneFullWidth(), kHeaders},
    {"header: letters and signs of full width", AllFullWidth(), kHeaders},
    {"header: small letters", LowerCase(), kHeaders},
    {"header: － for -", AllReplaced("-", "－"), kHeaders},
    {"header: — for -", Replaced("-", "—"), kHeaders},
    {"header: _ for -", Replaced("-", "_"), kHeaders},
    {"header: no -", Replaced("-", ""), kHeaders},
    {"header: blank in front", Front(" "), kHeadersAndWidths},
    {"header: blank behind", Behind(" "), kHeadersAndWidths},
    {"header: blank inside", Inside(" "), kHeadersAndWidths},
    {"header: blank of full width behind", Behind("　"), kHeadersAndWidths},
    {"header: blank of full width inside", Inside("　"), kHeadersAndWidths},
    {"header: no-break blank, saved as ?", Behind("?"), kHeadersAndWidths},
    {"header: tab behind", Behind("\t"), kHeadersAndWidths},
    {"header: line break inside", Inside("\n"), kHeadersAndWidths},
    {"header: line break behind", Behind("\n"), kHeadersAndWidths},
    {"header: unit (mm)", Behind("(mm)"), kHeaders},
    {"header: unit （mm） of full width", Behind("（mm）"), kHeaders},
    {"header: unit mm", Behind("mm"), kHeaders},
    {"header: colon behind", Behind("："), kHeaders},
    {"header: star in front", Front("*"), kHeaders},
    {"header: number in front", Front("1."), kHeaders},
    {"header: remark behind", Behind("(必填)"), kHeaders},
    {"header: in quotation marks", [](const std::string& text, std::uint64_t) { return "“" + text + "”"; },
     kHeaders},
    {"header: apostrophe in front", Front("'"), kHeaders},
    {"header: first character missing", WithoutFirst(), kHeaders},
    {"header: last character missing", WithoutLast(), kHeaders},
    {"header: first two characters alone", FirstCharacters(2), kHeaders},
    {"header: shortened name", OneOf(kShortened), kHeaders},
    {"header: another word", OneOf(kOtherNames), kHeaders},
    {"header: emptied", Become(""), kHeadersAndWidths},
    {"header: 列1 in its place", Become("列1"), kHeaders},
    {"header: ? for its characters", Become("????"), kHeaders},
    {"width header: dropped character", DroppedCharacter(), {What::kWidthHeader}, Result::kMayBeFaultless},
    {"width header: doubled character", DoubledCharacter(), {What::kWidthHeader}, Result::kMayBeFaultless},
    {"width header: similar or other character",
     SimilarCharacter(),
     {What::kWidthHeader},
     Result::kMayBeFaultless},
};

std::optional<Touched> BecomesRemark(Grid& grid, const Site& at) {
  return RenameColumn(grid, at, "备注");
}

std::optional<Touched> RepeatsRight(Grid& grid, const Site& at) {
  if (at.column + 1 >= grid.ColumnCount()) return std::nullopt;
  return RenameColumn(grid, at, grid.Text(0, at.column + 1));
}

/// The column is gone, and at the end stands one that nobody knows.
std::optional<Touched> DeletedBesideUnknown(Grid& grid, const Site& at) {
  const std::optional<Touched> touched = DeleteColumn(grid, at);
  grid.SetText(0, grid.ColumnCount(), "新的一列");
  return touched;
}

const std::vector<GridKind> kGrids = {
    {"header: 备注 in its place", BecomesRemark, kHeaders},
    {"header: name of the next column", RepeatsRight, kHeaders},
    {"header: changes places with the next", SwapWithRight, kHeaders, Result::kAmongEquals},
    {"header: cell inserted, the rest moves right", InsertCellInRow, kHeadersAndWidths},
    {"header: cell deleted, the rest moves left", DeleteCellInRow, kHeadersAndWidths},
    {"header: column deleted", DeleteColumn, kHeaders},
    {"header: column deleted, an unknown one stands there", DeletedBesideUnknown, kHeaders},
    {"header: empty column of the same name in front", InsertEmptyTwin, kHeadersAndWidths},
    {"header: columns change places under it", SwapColumnWithNext, kHeaders, Result::kAmongEquals},
};

}  // namespace

void AddHeaderKinds(std::vector<Kind>& kinds) {
  AddKinds(Group::kHeaders, kTexts, kinds);
  AddKinds(Group::kHeaders, kGrids, kinds);
}

}  // namespace plateconfig::slips
