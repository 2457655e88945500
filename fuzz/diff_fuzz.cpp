// Any bytes as the tables of a configuration, compared with a sound one, with themselves, and the other way
// round.
#include "fuzz/targets.h"

#include <string>

#include "fuzz/check_report.h"
#include "fuzz/one_table.h"

namespace {

constexpr const char* kSound =
    "通用要求,通用参数,排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,材质要求,有无型面,下料,"
    "钻孔\n"
    "软料（体颜色）,12_87,下料,自定义追加工艺,,12,100_500,软料（体颜色）,,锯床下料,钻孔到数\n"
    "有型面,190,钻孔,圆孔颜色,36_186,12,300_800,,有型面,锻打料下料,细孔放电\n";

plateconfig::fuzz::Json Compare(const std::string& before, const std::string& after) {
  using namespace plateconfig::fuzz;
  RunAndRequire({"diff", before, after, "--lang", "zh"}, "", false);
  Json difference = RequireJson({"diff", before, after, "--format", "json"}, 1);
  RequireMembers(difference, {"settings", "rows", "plates", "regions", "incomplete"});
  for (const Json& region : difference["regions"])
    RequireMembers(region, {"box", "group", "oldRow", "newRow", "witness"});
  return difference;
}

/// A workbook or a file of one line is no table: that is told, and nothing is compared.
bool IsRefused(const std::string& before, const std::string& after) {
  using namespace plateconfig::fuzz;
  const auto result = plateconfig::test::RunPlateconfig({"diff", before, after});
  if (result.exitCode < 2) return false;
  Require(result.out.empty() && !result.err.empty(), "what is refused is named, and nothing else is said");
  return true;
}

}  // namespace

void plateconfig::fuzz::FuzzDiff(std::string_view bytes) {
  static const OneTable sound;
  static const OneTable given;
  sound.Write(test::Gbk(kSound));
  given.Write(bytes);
  if (IsRefused(sound.Path(), given.Path())) return;
  const auto there = Compare(sound.Path(), given.Path());
  const auto back = Compare(given.Path(), sound.Path());
  Require(there["settings"].size() == back["settings"].size(), "a setting differs in both directions");
  const auto same = Compare(given.Path(), given.Path());
  for (const char* const part : {"settings", "rows", "plates", "regions"})
    Require(same[part].empty(), "a configuration is the same as itself");
}
