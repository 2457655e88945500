#include "plateconfig/unit_text.h"

#include <algorithm>
#include <iterator>

#include "plateconfig/language.h"

namespace plateconfig {
namespace {

struct Unit {
  std::string_view english;
  std::string_view chinese;
};

constexpr Unit kUnits[] = {
    {"ratio", "比例"}, {"NX layer", "NX 图层"}, {"colour index", "颜色号"},
    {"degrees", "度"}, {"decimals", "位小数"},  {"count", "个"},
    {"rows", "行"},    {"seconds", "秒"},
};

}  // namespace

std::string UnitText(std::string_view unit) {
  const auto found = std::find_if(std::begin(kUnits), std::end(kUnits),
                                  [&](const Unit& each) { return each.english == unit; });
  return found == std::end(kUnits) ? std::string(unit) : Say(unit, found->chinese);
}

}  // namespace plateconfig
