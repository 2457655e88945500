#include "rules/trace_sink.h"

#include <algorithm>
#include <iterator>

#include "config/numbers.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using namespace literals;

/// True when there is one row of texts for each condition, in the same order.
template <typename Texts, typename Conditions>
constexpr bool CorrespondTo(const Texts& texts, const Conditions& conditions) {
  return std::equal(std::begin(texts), std::end(texts), std::begin(conditions), std::end(conditions),
                    [](const auto& text, const auto& row) { return text.condition == row.condition; });
}

struct SizeTexts {
  Condition condition;
  std::string_view refusal;
  std::string_view minimum;
  std::string_view maximum;
};

constexpr SizeTexts kSizeTexts[] = {
    {Condition::kLength, "长度不符合此规则！"_gbk, "最小长度："_gbk, "最大长度："_gbk},
    {Condition::kWidth, "宽度不符合此规则！"_gbk, "最小宽度："_gbk, "最大宽度："_gbk},
    {Condition::kHeight, "高度不符合此规则！"_gbk, "最小高度："_gbk, "最大高度："_gbk},
    {Condition::kWeight, "重量不符合此规则！"_gbk, "最小重量："_gbk, "最大重量："_gbk},
};
static_assert(CorrespondTo(kSizeTexts, kSizeConditions));

struct FaceTexts {
  Condition condition;
  std::string_view wanted;
  std::string_view presentButNotWanted;
  std::string_view wantedButNotPresent;
};

// The blank in front of the first colon belongs to the label.
constexpr FaceTexts kFaceTexts[] = {
    {Condition::kProfile, "bHaveProfileColor :"_gbk, "bInclude && !bHaveProfileColor！"_gbk,
     "!bInclude && bHaveProfileColor！"_gbk},
    {Condition::kWireCutting, "bHaveWireCuttingColor :"_gbk, "bInclude && !bHaveWireCuttingColor！"_gbk,
     "!bInclude && bHaveWireCuttingColor！"_gbk},
};
static_assert(CorrespondTo(kFaceTexts, kFaceConditions));

/// The texts of a condition. There is one row for each, as the compiler has checked.
template <typename Texts, std::size_t count>
const Texts& TextsOf(const Texts (&texts)[count], Condition condition) {
  return *std::find_if(std::begin(texts), std::end(texts),
                       [condition](const Texts& row) { return row.condition == condition; });
}

/// Characters that a line takes at most, beside those of its text or label.
constexpr std::size_t kLineRoom = kNumberRoom + 1;

// Each writes a line at `to` and tells where it ends.

char* EndLine(char* to) {
  *to = '\n';
  return to + 1;
}

char* PutLine(char* to, std::string_view text) {
  return EndLine(Put(to, text));
}

char* PutLine(char* to, std::string_view label, double value) {
  return EndLine(PutStreamNumber(Put(to, label), value));
}

char* PutLine(char* to, std::string_view label, int value) {
  return EndLine(PutInt(Put(to, label), value));
}

}  // namespace

void TraceSink::Line(std::string_view text) {
  text_.KeepUpTo(PutLine(text_.Room(text.size() + kLineRoom), text));
}

void TraceSink::Line(std::string_view label, double value) {
  text_.KeepUpTo(PutLine(text_.Room(label.size() + kLineRoom), label, value));
}

void TraceSink::Line(std::string_view label, int value) {
  text_.KeepUpTo(PutLine(text_.Room(label.size() + kLineRoom), label, value));
}

void TraceSink::OnBody(const Plate& plate) {
  Line("dbBodyLength:", plate.length);
  Line("dbBodyWidth:", plate.width);
  Line("dbBodyHeight:", plate.height);
  Line("dbBodyWeight:", plate.weight);
  Line("nBodyLayer:", plate.layer);
  Line("nBodyColor:", plate.color);
}

void TraceSink::ColorBlock(std::string_view title, std::string_view label, const std::vector<int>& colors) {
  constexpr std::string_view kRule = "======================";
  const std::string banner = std::string(kRule).append(title).append("===================");
  Line(banner);
  for (const int color : colors) Line(label, color);
  Line(banner);
}

void TraceSink::OnColors(const Plate& plate, const std::vector<int>& profile,
                         const std::vector<int>& wireCutting) {
  ColorBlock("FaceColor", "FaceColor:", plate.faceColors);
  ColorBlock("型面颜色"_gbk, "型面颜色:"_gbk, profile);
  ColorBlock("线割颜色"_gbk, "线割颜色:"_gbk, wireCutting);
}

void TraceSink::OnRow(const RuleRow& row) {
  Line("当前行号:"_gbk, row.lineNumber);
}

void TraceSink::OnSize(const SizeCondition& size, const RuleRow& row, const Plate&, bool) {
  const SizeTexts& texts = TextsOf(kSizeTexts, size.condition);
  const SizeRange& range = row.*size.range;
  // The lines that a trace has most of, in one go.
  char* to = text_.Room(texts.refusal.size() + texts.minimum.size() + texts.maximum.size() + 3 * kLineRoom);
  to = PutLine(to, texts.refusal);
  to = PutLine(to, texts.minimum, range.minimum);
  text_.KeepUpTo(PutLine(to, texts.maximum, range.maximum));
}

void TraceSink::OnMaterial(const std::vector<int>& accepted, const Plate& plate, bool) {
  Line("材料颜色不符合此规则！"_gbk);
  Line("材料颜色:"_gbk, plate.color);
  for (const int color : accepted) Line("材料颜色配置:"_gbk, color);
}

void TraceSink::OnFaces(Condition condition, const std::vector<int>&, bool wanted, bool present) {
  const FaceTexts& texts = TextsOf(kFaceTexts, condition);
  Line(texts.wanted, wanted ? 1 : 0);
  Line("bInclude:", present ? 1 : 0);
  if (present && !wanted) Line(texts.presentButNotWanted);
  if (!present && wanted) Line(texts.wantedButNotPresent);
}

void TraceSink::OnMatch(const RuleRow& row, const std::string& text) {
  Line("vecRuleInfos[i].dbMinLength；"_gbk, row.length.minimum);
  Line("vecRuleInfos[i].dbMaxLength；"_gbk, row.length.maximum);
  Line("vecRuleInfos[i].dbMinWidth；"_gbk, row.width.minimum);
  Line("vecRuleInfos[i].dbMaxWidth；"_gbk, row.width.maximum);
  Line("vecRuleInfos[i].dbMinHeight；"_gbk, row.height.minimum);
  Line("vecRuleInfos[i].dbMaxHeight；"_gbk, row.height.maximum);
  Line(text);
}

std::unique_ptr<EvaluationSink> MakeTraceSink(DiagnosticFile& file) {
  if (!file.IsOpen()) return std::make_unique<SilentSink>();
  return std::make_unique<TraceSink>(file);
}

}  // namespace plateconfig
