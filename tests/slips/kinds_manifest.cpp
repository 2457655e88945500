// Slips in tables.json, which says what file plays which role. It is UTF-8.

#include "slips/kinds.h"
#include "text/gbk.h"

namespace plateconfig::slips {
namespace {

using Bytes = std::string;
using MaybeBytes = std::optional<std::string>;

/// The line of the file (from 0) with its end.
std::pair<std::size_t, std::size_t> LineSpan(const Bytes& bytes, std::size_t line) {
  std::size_t begin = 0;
  for (std::size_t i = 0; i < line; ++i) begin = bytes.find('\n', begin) + 1;
  return {begin, bytes.find('\n', begin) - begin};
}

/// One row of a list of slips in a line with a role, such as `  "bom": "材料清单.csv",`.
struct LineKind {
  const char* name;
  TextSlip slip;
};

std::optional<Change> MakeInLine(const LineKind& row, const Site& site, std::uint64_t seed) {
  const auto [begin, size] = LineSpan(site.file->bytes, site.row);
  const std::string before = site.file->bytes.substr(begin, size);
  const std::string after = row.slip(before, seed);
  if (after == before) return std::nullopt;
  // What is missing here is missed where the next line begins.
  Touched touched{{}, {}, {site.row + 1, site.row + 2}};
  return Change{Bytes(site.file->bytes).replace(begin, size, after), touched, before, after};
}

/// The slip in the role, which stands between the first two quotes, or in the file's name.
TextSlip InQuotes(int which, TextSlip slip) {
  return [which, slip = std::move(slip)](const std::string& text, std::uint64_t seed) {
    std::size_t begin = text.find('"') + 1;
    for (int i = 0; i < which; ++i) begin = text.find('"', text.find('"', begin) + 1) + 1;
    const std::size_t end = text.find('"', begin);
    return text.substr(0, begin) + slip(text.substr(begin, end - begin), seed) + text.substr(end);
  };
}

TextSlip InRole(TextSlip slip) {
  return InQuotes(0, std::move(slip));
}

TextSlip InFile(TextSlip slip) {
  return InQuotes(1, std::move(slip));
}

/// What stands behind the colon.
TextSlip Value(const std::string& value) {
  return [value](const std::string& text, std::uint64_t) {
    return text.substr(0, text.find(':') + 1) + " " + value + (text.ends_with(',') ? "," : "");
  };
}

TextSlip Twice() {
  return [](const std::string& text, std::uint64_t) {
    return text + (text.ends_with(',') ? "" : ",") + "\n  \"bom\": \"列宽.csv\"" +
           (text.ends_with(',') ? "," : "");
  };
}

const std::vector<LineKind> kLines = {
    {"manifest: role with a dropped character", InRole(DroppedCharacter())},
    {"manifest: role with a doubled character", InRole(DoubledCharacter())},
    {"manifest: role with swapped characters", InRole(SwappedCharacters())},
    {"manifest: role with _ for -", InRole(AllReplaced("-", "_"))},
    {"manifest: role with a blank for -", InRole(AllReplaced("-", " "))},
    {"manifest: role with － for -", InRole(AllReplaced("-", "－"))},
    {"manifest: role with a blank behind", InRole(Behind(" "))},
    {"manifest: role with a blank in front", InRole(Front(" "))},
    {"manifest: role of full width", InRole(AllFullWidth())},
    {"manifest: role in Chinese", InRole(Become("系统表"))},
    {"manifest: role emptied", InRole(Become(""))},
    {"manifest: another role's name",
     InRole(OneOf(
         {{"bom", "texts"}, {"texts", "layers"}, {"layers", "bom"}, {"process-rules", "process-settings"}}))},
    {"manifest: file with a dropped character", InFile(DroppedCharacter())},
    {"manifest: file with a doubled character", InFile(DoubledCharacter())},
    {"manifest: file with swapped characters", InFile(SwappedCharacters())},
    {"manifest: file with a traditional character", InFile(Traditional())},
    {"manifest: file with a blank in front", InFile(Front(" "))},
    {"manifest: file with a blank behind", InFile(Behind(" "))},
    {"manifest: file with a blank inside", InFile(Inside(" "))},
    {"manifest: file with a blank of full width behind", InFile(Behind("　"))},
    {"manifest: file with a no-break blank behind", InFile(Behind("\xC2\xA0"))},
    {"manifest: file with . of full width", InFile(Replaced(".", "．"))},
    {"manifest: file with 。", InFile(Replaced(".", "。"))},
    {"manifest: file with , for .", InFile(Replaced(".", ","))},
    {"manifest: file without .csv", InFile(Replaced(".csv", ""))},
    {"manifest: file with .csv twice", InFile(Behind(".csv"))},
    {"manifest: .xlsx for .csv", InFile(Replaced(".csv", ".xlsx"))},
    {"manifest: .xls for .csv", InFile(Replaced(".csv", ".xls"))},
    {"manifest: .cvs for .csv", InFile(Replaced(".csv", ".cvs"))},
    {"manifest: .txt for .csv", InFile(Replaced(".csv", ".txt"))},
    {"manifest: absolute path", InFile(Front("D:/配置/"))},
    {"manifest: path from the root", InFile(Front("/"))},
    {"manifest: path with \\", InFile(Front("标准\\"))},
    {"manifest: path with \\\\", InFile(Front("标准\\\\"))},
    {"manifest: path of another folder", InFile(Front("../旧/"))},
    {"manifest: file emptied", InFile(Become(""))},
    {"manifest: the file of another role", InFile(Become("列宽.csv"))},
    {"manifest: the file of the settings", InFile(Become("工艺设置.csv"))},
    {"manifest: file . ", InFile(Become("."))},
    {"manifest: null for the file", Value("null")},
    {"manifest: number for the file", Value("1")},
    {"manifest: list for the file", Value("[\"a.csv\"]")},
    {"manifest: file without quotes", Value("a.csv")},
    {"manifest: quotes “” in the line",
     [](const std::string& text, std::uint64_t seed) { return Replaced("\"", "“")(text, seed); }},
    {"manifest: quotes “” around the role",
     [](const std::string& text, std::uint64_t) {
       const std::size_t first = text.find('"');
       const std::size_t second = text.find('"', first + 1);
       if (first == std::string::npos) return text;
       return text.substr(0, first) + "“" + text.substr(first + 1, second - first - 1) + "”" +
              text.substr(second + 1);
     }},
    {"manifest: single quotes", AllReplaced("\"", "'")},
    {"manifest: a quote missing", Replaced("\"", "")},
    {"manifest: colon of full width", Replaced(":", "：")},
    {"manifest: = for the colon", Replaced(":", " =")},
    {"manifest: colon missing", Replaced(":", "")},
    {"manifest: comma of full width", Replaced("\",", "\"，")},
    {"manifest: comma missing", Replaced("\",", "\"")},
    {"manifest: two commas", Replaced("\",", "\",,")},
    {"manifest: semicolon for the comma", Replaced("\",", "\";")},
    {"manifest: line emptied", Become("")},
    {"manifest: line with // in front", Front("// ")},
    {"manifest: line with # in front", Front("# ")},
    {"manifest: a role named again", Twice()},
    {"manifest: a remark behind", Behind(" // 勿改")},
};

Bytes Replace(const Bytes& bytes, const Bytes& from, const Bytes& to) {
  return AllReplaced(from, to)(bytes, 0);
}

const std::vector<What> kManifests = {What::kManifestFile};

const std::vector<FileKind> kFiles = {
    {"manifest: saved in GBK", [](const Bytes& b) -> MaybeBytes { return Utf8ToGbk(b); }, kManifests},
    {"manifest: quotes of full width throughout",
     [](const Bytes& b) -> MaybeBytes { return Replace(b, "\"", "＂"); }, kManifests},
    {"manifest: commas of full width throughout",
     [](const Bytes& b) -> MaybeBytes { return Replace(b, ",", "，"); }, kManifests},
    {"manifest: comma behind the last line",
     [](const Bytes& b) -> MaybeBytes { return Replace(b, "\"\n}", "\",\n}"); }, kManifests},
    {"manifest: closing bracket missing", [](const Bytes& b) -> MaybeBytes { return Replace(b, "}", ""); },
     kManifests},
    {"manifest: opening bracket missing", [](const Bytes& b) -> MaybeBytes { return Replace(b, "{", ""); },
     kManifests},
    {"manifest: brackets of full width",
     [](const Bytes& b) -> MaybeBytes { return Replace(Replace(b, "{", "｛"), "}", "｝"); }, kManifests},
    {"manifest: a list around it", [](const Bytes& b) -> MaybeBytes { return "[" + b + "]"; }, kManifests},
    {"manifest: an object around it", [](const Bytes& b) -> MaybeBytes { return "{\"tables\": " + b + "}"; },
     kManifests},
    {"manifest: ? for all Chinese",
     [](const Bytes& b) -> MaybeBytes {
       Bytes plain;
       for (const char c : b) plain += static_cast<unsigned char>(c) < 0x80 ? c : '?';
       return plain;
     },
     kManifests},
    {"manifest: cut in the middle", [](const Bytes& b) -> MaybeBytes { return b.substr(0, b.size() / 2); },
     kManifests},
    {"manifest: twice in one", [](const Bytes& b) -> MaybeBytes { return b + b; }, kManifests},
    {"manifest: an empty object", [](const Bytes&) -> MaybeBytes { return "{}"; }, kManifests},
    {"manifest: empty", [](const Bytes&) -> MaybeBytes { return Bytes(); }, kManifests},
    {"manifest: gone", [](const Bytes&) -> MaybeBytes { return std::nullopt; }, kManifests},
};

}  // namespace

void AddManifestKinds(std::vector<Kind>& kinds) {
  for (const LineKind& row : kLines) {
    const auto make = [row](const Site& site, std::uint64_t seed) { return MakeInLine(row, site, seed); };
    kinds.push_back({Group::kManifest, row.name, {What::kManifestLine}, make, 4});
  }
  AddKinds(Group::kManifest, kFiles, kinds);
}

}  // namespace plateconfig::slips
