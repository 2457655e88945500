#include "plateconfig/tables/schema_words.h"

#include <algorithm>
#include <span>

#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

struct Word {
  std::string_view english;
  std::string_view chinese;
};

constexpr Word kUnits[] = {
    {"ratio", "比例"}, {"NX layer", "NX 图层"}, {"colour index", "颜色号"},
    {"degrees", "度"}, {"decimals", "位小数"},  {"count", "个"},
    {"rows", "行"},    {"seconds", "秒"},
};

constexpr Word kKinds[] = {
    {"number", "数字"},
    {"integer", "整数"},
    {"integer; empty = no column", "整数；空单元格等于没有此列"},
    {"text", "文本"},
    {"text; empty = no column", "文本；空单元格等于没有此列"},
    {"style", "样式"},
    {"flag: yes for Y only", "仅 Y 为是"},
    {"flag: yes for Y or y only", "仅 Y 或 y 为是"},
    {"flag: no for N only", "仅 N 为否"},
    {"flag: no for N or n only", "仅 N 或 n 为否"},
    {"list of texts", "文本列表"},
    {"list of integers", "整数列表"},
    {"list of integers other than 0", "非 0 整数的列表"},
    {"list of integers from 1 to 256", "1 到 256 的整数列表"},
    {"list of integers in one cell (12_6)", "一个单元格内的整数列表（12_6）"},
    {"list of numbers in one cell (6_8.5)", "一个单元格内的数字列表（6_8.5）"},
    {"range (10_200)", "范围（10_200）"},
    {"condition text", "工艺类型"},
    {"exactly the parameter's name, or anything else", "与通用要求的名称完全相同，或其他内容"},
    {"exactly the soft parameter's name, or anything else", "与软料的名称完全相同，或其他内容"},
};

std::string Translated(std::span<const Word> words, std::string_view english) {
  const auto found =
      std::find_if(words.begin(), words.end(), [&](const Word& word) { return word.english == english; });
  return found == words.end() ? std::string(english) : SayPlain(english, found->chinese);
}

}  // namespace

std::string UnitText(std::string_view unit) {
  return Translated(kUnits, unit);
}

std::string KindText(std::string_view kind) {
  return Translated(kKinds, kind);
}

}  // namespace plateconfig
