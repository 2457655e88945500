#include "plateconfig/output/difference_text.h"

#include <algorithm>

#include "analysis/checks/rule_values.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"
#include "plateconfig/messages/shown_numbers.h"
#include "plateconfig/output/setting_value.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

// ---- texts with what changed in them ----

/// The processes of a text (GBK), and which of them the other text has too, in the same order.
struct Pieces {
  Pieces(const std::string& text, const std::string& connectText) {
    std::size_t begin = 0;
    for (std::size_t end; !connectText.empty() && (end = text.find(connectText, begin)) != std::string::npos;
         begin = end + connectText.size()) {
      texts.push_back(text.substr(begin, end - begin));
    }
    texts.push_back(text.substr(begin));
    isCommon.resize(texts.size());
  }

  std::vector<std::string> texts;
  std::vector<bool> isCommon;
};

/// Notes the longest list of pieces that both have in the same order.
void NoteCommon(Pieces& a, Pieces& b) {
  const std::size_t width = b.texts.size() + 1;
  std::vector<int> longest((a.texts.size() + 1) * width);  // From a piece of each on.
  for (std::size_t i = a.texts.size(); i-- > 0;) {
    for (std::size_t j = b.texts.size(); j-- > 0;) {
      longest[i * width + j] = a.texts[i] == b.texts[j]
                                   ? longest[(i + 1) * width + j + 1] + 1
                                   : std::max(longest[(i + 1) * width + j], longest[i * width + j + 1]);
    }
  }
  for (std::size_t i = 0, j = 0; i < a.texts.size() && j < b.texts.size();) {
    if (a.texts[i] == b.texts[j]) {
      a.isCommon[i++] = true;
      b.isCommon[j++] = true;
    } else if (longest[(i + 1) * width + j] >= longest[i * width + j + 1]) {
      ++i;
    } else {
      ++j;
    }
  }
}

std::string Marked(const Pieces& pieces, const std::string& connectText) {
  std::string text;
  for (std::size_t i = 0; i < pieces.texts.size(); ++i) {
    if (i > 0) text += OneLine(connectText);
    const std::string piece = OneLine(pieces.texts[i]);
    text += pieces.isCommon[i] || piece.empty() ? piece : "【" + piece + "】";
  }
  return text.empty() ? Say("no process of this row is written", "此行没有写出工艺") : text;
}

std::string Line(const PlateText& text, const std::string& marked) {
  return text.row ? Say("line {}", "第 {} 行", *text.row) + "  " + marked
                  : Say("no rule row fits", "没有符合的规则行");
}

// ---- the parts ----

class Writer {
 public:
  Writer(const DifferenceReport& report, std::ostream& out)
      : report_(report), comparison_(report.before, report.after), out_(out) {}

  void Write() {
    WriteHead();
    WriteSettings();
    WriteRows();
    WritePlates();
    WriteRegions();
    for (const std::string& text : IncompleteTexts(report_.difference.regions)) out_ << text << "\n";
  }

 private:
  void WriteHead() {
    if (report_.plateCount) {
      out_ << Say("this edit changes {} of {}", "此修改影响 {1} 块板中的 {0} 块", report_.plates.size(),
                  Counted(*report_.plateCount, "plate"))
           << "\n";
    }
    const ConfigurationDifference& difference = report_.difference;
    out_ << (report_.IsEmpty()
                 ? Say("no difference", "没有差别")
                 : Say("different: {}, {}, {} of plates", "有差别：{} 项设置，{} 个规则行，{} 个板的区域",
                       Counted(difference.settings.size(), "setting"),
                       Counted(difference.rows.size(), "rule row"),
                       Counted(difference.regions.regions.size(), "region")))
         << "\n";
  }

  void BeginPart(const std::string& title) { out_ << "\n" << title << "\n"; }

  void WriteSettings() {
    const std::vector<SettingDifference>& settings = report_.difference.settings;
    if (settings.empty()) return;
    BeginPart(Say("settings", "设置"));
    for (const SettingDifference& setting : settings) {
      out_ << "  " << NameOf(setting.role) << "  " << OneLine(setting.schema.column) << "\n";
      WriteBoth(SettingText(setting.before), SettingText(setting.after));
    }
  }

  void WriteBoth(const std::string& before, const std::string& after, const char* indent = "    ") {
    out_ << indent << Say("old", "旧") << "  " << before << "\n"
         << indent << Say("new", "新") << "  " << after << "\n";
  }

  void WriteRows() {
    if (report_.difference.rows.empty()) return;
    BeginPart(Say("rule rows", "规则行"));
    for (const RowChange& change : report_.difference.rows) WriteRow(change);
  }

  void WriteRow(const RowChange& change) {
    if (change.oldRow && change.newRow) {
      out_ << "  "
           << (*change.oldRow == *change.newRow
                   ? Say("line {} changed", "第 {} 行已修改", *change.newRow)
                   : Say("line {} (was {}) changed", "第 {} 行（原第 {} 行）已修改", *change.newRow,
                         *change.oldRow))
           << "\n";
      for (const std::string& column : change.columns) WriteCells(change, column);
      return;
    }
    out_ << "  "
         << (change.newRow ? Say("line {} added", "第 {} 行为新增", *change.newRow)
                           : Say("line {} removed", "原第 {} 行已删除", *change.oldRow))
         << "\n";
    for (const std::string& column : change.columns)
      out_ << "    " << OneLine(column) << ": " << OneLine(CellOf(change, column)) << "\n";
  }

  void WriteCells(const RowChange& change, const std::string& column) {
    out_ << "    " << OneLine(column) << "\n";
    WriteBoth(SettingText({report_.before.ruleTable.GetItemValue(column, *change.oldRow - 1)}),
              SettingText({report_.after.ruleTable.GetItemValue(column, *change.newRow - 1)}), "      ");
  }

  /// Of a row that only one table has.
  std::string CellOf(const RowChange& change, const std::string& column) const {
    return change.newRow ? report_.after.ruleTable.GetItemValue(column, *change.newRow - 1)
                         : report_.before.ruleTable.GetItemValue(column, *change.oldRow - 1);
  }

  void WritePlates() {
    if (report_.plates.empty()) return;
    BeginPart(Say("plates, with what changed in 【】", "板，【】中为有变化的工艺"));
    for (const ChangedPlate& plate : report_.plates) {
      out_ << "  " << OnOneLine(plate.name) << "\n";
      WriteTexts(plate.texts);
    }
  }

  void WriteTexts(const PlateTexts& texts) {
    Pieces before(texts.before.text, report_.before.connectText);
    Pieces after(texts.after.text, report_.after.connectText);
    NoteCommon(before, after);
    WriteBoth(Line(texts.before, Marked(before, report_.before.connectText)),
              Line(texts.after, Marked(after, report_.after.connectText)));
  }

  void WriteRegions() {
    const RuleRegions& found = report_.difference.regions;
    if (found.regions.empty()) return;
    BeginPart(Say("regions of plates, each with an example", "板的区域，各附一例"));
    for (const RuleRegion& region : found.regions) {
      out_ << "  " << SizesText(region.box) << Say("; ", "；") << GroupText(region.group, found.answersAgree)
           << "\n    " << ExampleText(region) << "\n";
      WriteTexts(comparison_.TextsOf(region.witness, region.features));
    }
  }

  /// The sizes in which the box does not hold all that an empty cell accepts.
  static std::string SizesText(const Box& box) {
    std::string text;
    for (std::size_t size = 0; size < kSizeCount; ++size) {
      if (box[size].low <= 0 && box[size].high >= kUnboundedMaximum) continue;
      const std::string name(WordsOf(kSizeConditions[size].condition).In(CurrentLanguage()));
      text += (text.empty() ? "" : Say(", ", "，")) + name + " " + RangeText(box[size]);
    }
    return text.empty() ? Say("all sizes", "任何尺寸") : text;
  }

  static std::string RangeText(const Interval& interval) {
    return interval.high >= kUnboundedMaximum
               ? Say("from {}", "{} 以上", ShownNumber(interval.low))
               : Say("{} to {}", "{} 到 {}", ShownNumber(interval.low), ShownNumber(interval.high));
  }

  static std::string ExampleText(const RuleRegion& region) {
    const Plate& plate = region.witness;
    const std::string features = FeaturesText(region.features);
    return Say("such as {} x {} x {} mm, weight {}, body colour {}",
               "例如 {} x {} x {} mm，重量 {}，体颜色 {}", ShownNumber(plate.length),
               ShownNumber(plate.width), ShownNumber(plate.height), ShownNumber(plate.weight), plate.color) +
           (plate.faceColors.empty() ? ""
                                     : Say(", face colours {}", "，面颜色 {}", ShownList(plate.faceColors))) +
           (features.empty() ? "" : Say(", with {}", "，有 {}", features));
  }

  static std::string FeaturesText(const PlateFeatures& features) {
    std::vector<std::string> texts;
    for (const std::string& process : features.customProcesses) texts.push_back(OneLine(process));
    for (const auto type : features.present) texts.push_back(FeatureName(type));
    for (const auto& [type, colors] : features.colors)
      texts.push_back(FeatureName(type) + " " + ShownList(colors));
    if (!features.diameters.empty())
      texts.push_back(FeatureName(ProcessRule::RoundHoleDiameter) + " " + ShownList(features.diameters));
    if (features.holeCount) texts.push_back(fmt::format("{} {}", kHoleCountName, *features.holeCount));
    return fmt::format("{}", fmt::join(texts, Say(", ", "、")));
  }

  const DifferenceReport& report_;
  PlateComparison comparison_;
  std::ostream& out_;
};

}  // namespace

void WriteDifference(const DifferenceReport& report, std::ostream& out) {
  Writer(report, out).Write();
}

}  // namespace plateconfig
