#pragma once

// The table of codes: everything that is ever said to be wrong, in both languages. To add one: add its row
// here and raise it where it is found.

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "analysis/findings/code.h"

namespace plateconfig {

// Advice that several codes share. {0} is what becomes of the record that the value stands in; tables have
// none.
inline constexpr Words kNoAdvice = {};
inline constexpr Words kNoPage = {};
inline constexpr Words kWriteNumber = {"write it like 450 or 12.5{0}", "请写成 450 或 12.5 这样的数字{0}"};
inline constexpr Words kWriteInteger = {"write it like 12{0}", "请写成 12 这样的整数{0}"};
inline constexpr Words kWriteIntegers = {"write it like 36_186{0}", "请写成 36_186 这样的形式{0}"};
inline constexpr Words kWriteNumbers = {"write it like 6_8.5{0}", "请写成 6_8.5 这样的形式{0}"};
inline constexpr Words kWriteRange = {"write it like 10_200", "请写成 10_200 这样的形式"};
inline constexpr Words kIntegersGo = {"whole numbers go from -2147483648 to 2147483647{0}",
                                      "整数须在 -2147483648 到 2147483647 之间{0}"};

// clang-format off
inline constexpr CodeRow kCodes[] = {
    // Inputs: plates, holes, hole types. {0} is what becomes of the record, in brackets.
    {"input-not-number", Severity::kError, {"{offending} is not a number", "{offending}不是数字"}, kWriteNumber, kNoPage},
    {"input-not-integer", Severity::kError, {"{offending} is not a whole number", "{offending}不是整数"}, kWriteInteger, kNoPage},
    {"input-not-integers", Severity::kError, {"{offending} is not a list of whole numbers", "{offending}不是整数列表"}, kWriteIntegers, kNoPage},
    {"input-not-numbers", Severity::kError, {"{offending} is not a list of numbers", "{offending}不是数字列表"}, kWriteNumbers, kNoPage},
    {"input-not-yes-no", Severity::kError, {"{offending} is neither Y nor N{0}", "{offending}既不是 Y 也不是 N{0}"}, kNoAdvice, kNoPage},
    {"input-number-range", Severity::kError, {"{offending} is out of range{0}", "{offending}超出范围{0}"}, kNoAdvice, kNoPage},
    {"input-integer-range", Severity::kError, {"{offending} is out of range", "{offending}超出范围"}, kIntegersGo, kNoPage},
    {"input-not-positive", Severity::kError, {"{text} is too small", "{text} 太小"}, {"write a number above 0{0}", "请写大于 0 的数字{0}"}, kNoPage},
    {"input-negative", Severity::kError, {"{text} is too small", "{text} 太小"}, {"write 0 or more{0}", "请写 0 或更大的数字{0}"}, kNoPage},
    // Inputs in CSV.
    {"input-header-encoding", Severity::kError, {"the header is neither UTF-8 nor GBK", "表头既不是 UTF-8 也不是 GBK"}, {"save the file as CSV in one of them", "请将文件存为其中一种编码的 CSV"}, kNoPage},
    {"input-row-encoding", Severity::kError, {"this row is not {0} as the header is; it is passed over. Save the file as {0}", "本行与表头的编码 {0} 不一致，被跳过。请将文件存为 {0}"}, kNoAdvice, kNoPage},
    {"input-separator", Severity::kError, {"the columns are separated by {0}, not by commas, so none of them is found", "各列以{0}而不是逗号分隔，因此找不到任何列"}, {"save the file as CSV with commas", "请存为以逗号分隔的 CSV"}, kNoPage},
    {"input-quote-open", Severity::kError, {"a quote opens here and is never closed", "此处的引号没有结束"}, {"this row is passed over", "本行被跳过"}, kNoPage},
    {"input-column-missing", Severity::kError, {"the column {column} is missing; {0} can be read without it", "缺少列 {column}，无法读取{0}"}, kNoAdvice, kNoPage},
    {"input-column-unknown", Severity::kWarning, {"the column \"{column}\" is not known and is ignored", "未知的列“{column}”，已忽略"}, kNoAdvice, kNoPage},
    {"input-column-twice", Severity::kWarning, {"a second column \"{column}\"", "重复的列“{column}”"}, {"the first one counts", "以第一列为准"}, kNoPage},
    // Inputs in JSON.
    {"input-json-syntax", Severity::kError, {"this is not JSON here: \"{text}\"", "这里不符合 JSON 语法：“{text}”"}, kNoAdvice, kNoPage},
    {"input-json-number", Severity::kError, {"this number is too large: {text}", "数字过大：{text}"}, kNoAdvice, kNoPage},
    {"input-json-depth", Severity::kError, {"the values are nested too deeply", "嵌套层数过多"}, kNoAdvice, kNoPage},
    {"input-json-end", Severity::kError, {"the JSON ends here too early", "JSON 在此处过早结束"}, kNoAdvice, kNoPage},
    {"input-json-open-object", Severity::kError, {"this object is never closed; what follows it can not be read", "这个对象没有结束，后面的内容无法读取"}, kNoAdvice, kNoPage},
    {"input-json-stray", Severity::kError, {"an object {0} is expected here, not \"{text}\"", "这里应当是一个对象 {0}，而不是“{text}”"}, kNoAdvice, kNoPage},
    {"input-json-encoding", Severity::kError, {"this object is not UTF-8", "这个对象不是 UTF-8"}, {"save the file as UTF-8", "请将文件存为 UTF-8"}, kNoPage},
    {"input-json-kind", Severity::kError, {"this should be {1}, not {2}{0}", "这里应当是{1}，而不是{2}{0}"}, kNoAdvice, kNoPage},
    {"input-json-integer-range", Severity::kError, {"{text} is out of range", "{text} 超出范围"}, kIntegersGo, kNoPage},
    {"input-member-unknown", Severity::kWarning, {"the member \"{text}\" is not known and is ignored", "未知的成员“{text}”，已忽略"}, kNoAdvice, kNoPage},
    {"input-member-twice", Severity::kWarning, {"a second member \"{text}\"", "重复的成员“{text}”"}, {"the first one counts", "以第一个为准"}, kNoPage},
    // Plates, holes and hole types.
    {"plate-no-name", Severity::kError, {"the plate has no name{0}", "板没有名称{0}"}, kNoAdvice, kNoPage},
    {"plate-member-missing", Severity::kError, {"the plate has no \"{text}\"{0}", "此板缺少“{text}”{0}"}, kNoAdvice, kNoPage},
    {"plate-feature-unknown", Severity::kWarning, {"\"{text}\" is no feature and is ignored", "“{text}”不是特征，已忽略"}, kNoAdvice, kNoPage},
    {"plate-feature-misplaced", Severity::kWarning, {"\"{text}\" belongs into \"{0}\" and is ignored here", "“{text}”应写在“{0}”中，此处已忽略"}, kNoAdvice, kNoPage},
    {"hole-no-name", Severity::kError, {"the hole has no name{0}", "孔没有名称{0}"}, kNoAdvice, kNoPage},
    {"hole-not-group", Severity::kError, {"{offending} is none of 顶 (top), 通 (through) and 底 (bottom)", "{offending}不是 顶、通、底 之一"}, kNoAdvice, kNoPage},
    {"hole-member-missing", Severity::kError, {"\"{text}\" is missing here{0}", "这里缺少“{text}”{0}"}, kNoAdvice, kNoPage},
    {"hole-origin", Severity::kError, {"an origin has three coordinates: [x, y, z]{0}", "原点应有三个坐标：[x, y, z]{0}"}, kNoAdvice, kNoPage},
    {"hole-incomplete", Severity::kError, {"the hole \"{text}\" is passed over because not all of its rows can be used", "孔“{text}”有无法使用的行，被跳过"}, kNoAdvice, kNoPage},
    {"hole-apart", Severity::kError, {"a hole \"{text}\" stood further up and is passed over whole", "前面已有孔“{text}”，该孔被整个跳过"}, {"the rows of one hole must stand together", "同一个孔的各行必须连在一起"}, kNoPage},
    {"hole-type-no-name", Severity::kError, {"the type has no name{0}", "类型没有名称{0}"}, kNoAdvice, kNoPage},
    {"hole-type-member-missing", Severity::kError, {"the type has no \"{text}\"{0}", "此类型缺少“{text}”{0}"}, kNoAdvice, kNoPage},
    {"hole-type-structure", Severity::kWarning, {"no hole has the structure \"{text}\" of the type {0}", "类型 {0} 的结构“{text}”不对应任何孔"}, {"write the numbers of top, through and bottom segments like 1_1_0", "请将顶、通、底的段数写成 1_1_0 这样的形式"}, kNoPage},
    {"hole-type-refuses-all", Severity::kWarning, {"the type {0} refuses every hole: {1} ({2}) has {3} lists for {4} segments", "类型 {0} 不接受任何孔：{1}（{2}）只有 {3} 个列表，而有 {4} 段"}, {"write 0 for any colour", "任意颜色请写 0"}, kNoPage},
};
// clang-format on

namespace codes {

/// The place that opens at `text[at]`, without its braces; empty when it is none that a sentence knows.
constexpr std::string_view PlaceAt(std::string_view text, std::size_t at) {
  constexpr std::string_view kPlaces[] = {"offending", "text", "column", "usedAs", "fix", "0",
                                          "1",         "2",    "3",      "4",      "5"};
  const std::string_view inside = text.substr(at + 1, text.find('}', at) - at - 1);
  return std::find(std::begin(kPlaces), std::end(kPlaces), inside) == std::end(kPlaces) ? std::string_view()
                                                                                        : inside;
}

/// True when every place of `text` is one that a sentence knows, and `other` has it too.
constexpr bool PlacesMatch(std::string_view text, std::string_view other) {
  for (std::size_t at = text.find('{'); at != std::string_view::npos; at = text.find('{', at + 1)) {
    const std::string_view place = PlaceAt(text, at);
    if (place.empty()) return false;
    const std::string_view braced = text.substr(at, place.size() + 2);
    if (other.find(braced) == std::string_view::npos) return false;
  }
  return true;
}

consteval bool AreWellFormed() {
  const auto match = [](const Words& words) {
    return PlacesMatch(words.english, words.chinese) && PlacesMatch(words.chinese, words.english);
  };
  return std::all_of(std::begin(kCodes), std::end(kCodes),
                     [&](const CodeRow& row) { return match(row.message) && match(row.advice); });
}

consteval bool AreUnique() {
  std::array<std::string_view, std::size(kCodes)> names;
  std::transform(std::begin(kCodes), std::end(kCodes), names.begin(),
                 [](const CodeRow& row) { return row.name; });
  std::sort(names.begin(), names.end());
  return std::adjacent_find(names.begin(), names.end()) == names.end();
}

}  // namespace codes

static_assert(codes::AreWellFormed(),
              "A sentence has a place that does not exist, or one that the other language lacks.");
static_assert(codes::AreUnique(), "Two rows have one name.");

}  // namespace plateconfig
