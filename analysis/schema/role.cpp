#include "analysis/schema/role.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace plateconfig {
namespace {

using enum WhenUnreadable;

constexpr auto kRoles = std::to_array<RoleRow>({
    {Role::kIndex,
     "index",
     kCountsAsEmpty,
     true,
     {"Which configuration folder is active; config/standard.csv.",
      "哪个配置文件夹有效；config/standard.csv。"},
     "索引表"},
    {Role::kColumnWidths,
     "column-widths",
     kCountsAsEmpty,
     true,
     {"Widths of named table columns.", "各列的宽度。"},
     "列宽"},
    {Role::kProcessSettings,
     "process-settings",
     kCountsAsEmpty,
     true,
     {"How the process text is placed and joined.", "工艺文本的放置和连接方式。"},
     "工艺设置"},
    {Role::kProcessRules,
     "process-rules",
     kCountsAsEmpty,
     true,
     {"Processes, their conditions, and the text of each for every kind of plate.",
      "各工艺、其条件，以及各类板的工艺文本。"},
     "工艺规则"},
    {Role::kLayoutDefaults,
     "layout-defaults",
     kChangesNothing,
     false,
     {"Layout of sheets, views and notes; the bill of materials' header.",
      "图纸、视图和注释的布局；材料表的表头。"},
     "布局默认值"},
    {Role::kCustomSettings,
     "custom-settings",
     kCountsAsEmpty,
     true,
     {"Margins, layers and styles that a designer adjusts.", "由设计人员调整的边距、图层和样式。"},
     "自定义设置"},
    {Role::kFrameInfo,
     "frame-info",
     kCountsAsEmpty,
     true,
     {"Part attributes that the drawing frame shows.", "图框中显示的零件属性。"},
     "图框信息"},
    {Role::kThreadHoleChamfer,
     "thread-hole-chamfer",
     kCountsAsEmpty,
     false,
     {"Threading holes by diameter, notes of radii, chamfers.", "按直径分的穿线孔、R角标注和C角。"},
     "穿线孔与倒角"},
    {Role::kSystemSettings,
     "system-settings",
     kCountsAsEmpty,
     true,
     {"Layers, export to the CAD program, weight rules.", "图层、导出到 CAD 的设置、重量规则。"},
     "系统设置"},
    {Role::kLayers, "layers", kCountsAsEmpty, true, {"Lists of layers.", "图层列表。"}, "图层"},
    {Role::kTexts,
     "texts",
     kCountsAsEmpty,
     false,
     {"Texts and spacings of notes.", "注释的文字和间距。"},
     "文字"},
    {Role::kConnectString,
     "connect-string",
     kThrowsIfMissing,
     false,
     {"Text between codes.", "代号之间的连接字符。"},
     "连接字符"},
    {Role::kTriangleSymbol,
     "triangle-symbol",
     kCountsAsEmpty,
     false,
     {"The triangle symbol on faces of certain colours.", "特定颜色面上的三角符号。"},
     "三角符号"},
    {Role::kBom, "bom", kChangesNothing, false, {"Density of the material.", "材料密度。"}, "材料清单"},
    {Role::kDwgFolder,
     "dwg-folder",
     kCountsAsEmpty,
     false,
     {"Folder for exported drawings.", "出图的文件夹。"},
     "出图目录"},
    {Role::kReplaceContent,
     "replace-content",
     kCountsAsEmpty,
     false,
     {"Decimals by face colour, texts replaced by hole colour and diameter.",
      "按面颜色的小数位数，按孔颜色和直径替换的文字。"},
     "替换内容"},
});

constexpr bool RowsStandInTheirOrder() {
  for (std::size_t index = 0; index < kRoles.size(); ++index) {
    if (static_cast<std::size_t>(kRoles[index].role) != index) return false;
  }
  return true;
}
static_assert(RowsStandInTheirOrder());

}  // namespace

std::span<const RoleRow> Roles() {
  return kRoles;
}

std::span<const RoleRow> ManifestRoles() {
  return Roles().subspan(1);
}

const RoleRow& RowOf(Role role) {
  return kRoles[static_cast<std::size_t>(role)];
}

std::string_view NameOf(Role role) {
  return RowOf(role).name;
}

std::vector<std::string_view> NamesOf(std::span<const RoleRow> roles) {
  std::vector<std::string_view> names;
  std::transform(roles.begin(), roles.end(), std::back_inserter(names),
                 [](const RoleRow& row) { return row.name; });
  return names;
}

std::optional<Role> FindRole(std::string_view name, std::span<const RoleRow> roles) {
  const auto found =
      std::find_if(roles.begin(), roles.end(), [&](const RoleRow& row) { return row.name == name; });
  if (found == roles.end()) return std::nullopt;
  return found->role;
}

}  // namespace plateconfig
