// A program of somebody else's that uses the installed library: each class, over the library's border and
// back.
#include <plateconfig.h>

#include <NXOpen/Body.hxx>
#include <cstdio>
#include <exception>
#include <fstream>
#include <string>
#include <vector>

namespace {

int failures = 0;

void Expect(bool isTrue, const char* what) {
  if (isTrue) return;
  std::printf("not so: %s\n", what);
  ++failures;
}

std::string WriteTable(const std::string& name, const std::string& text) {
  std::ofstream(name, std::ios::binary) << text;
  return name;
}

void ReadsTables() {
  const std::string path = WriteTable("consumer_table.csv", "name,width\r\na,70\r\nb,80\r\n");
  ReadConfigFile table;
  Expect(table.OpenConfigFile(path), "the table opens");
  const ReadConfigFile copy = table;
  Expect(copy.GetColumnNames() == std::vector<std::string>{"name", "width"}, "the header has two columns");
  Expect(VectorToInt(copy.GetColumnValue("width")) == std::vector<int>{70, 80}, "the widths are numbers");
  Expect(ColumnWidthManager(path).GetColumnWidth("width") == 70, "the first row gives the width");
  Expect(SplitString("1_2", "_").size() == 2, "the list has two items");
  Expect(IntToString(7) + DoubleToString(1.5, 2) == "71.50", "numbers become text");
  std::remove(path.c_str());
}

void EvaluatesPlates() {
  ProcessRuleLibrary library("no rules.csv", "no settings.csv");
  std::vector<ProcessRule> rules = library.GetProcessRules();
  rules.emplace_back(0, ProcessRule::HoleCountAtLeast, "drill", "3");
  rules[0].SetHoleCount(3);
  Expect(rules[0].IsValid(), "three holes are enough");
  NXOpen::Body solid({36, 186});
  BodyInfo plate(&solid, 100, 50, 20, 3, 12);
  Expect(library.GetProcessInfo(&plate, 1, rules).empty(), "a library without rows has no text");
}

void LoadsSettings() {
  const DefaultManager layout;
  const CustomDefault custom("no settings.csv", "no frame.csv");
  SystemDefault system("no settings.csv", "no layers.csv");
  Expect(layout.GetMaxRow() == DefaultManager(layout).GetMaxRow(), "settings are copied");
  Expect(custom.StringToNoteStyle("a|1|2|3|4|5").fontName == "a", "a style is read");
  bool wasCaught = false;
  try {
    system.InitialConnectString("no connectors.csv");
  } catch (const std::exception& error) {
    wasCaught = std::string(error.what()).find("no connectors.csv") != std::string::npos;
  }
  Expect(wasCaught, "the library's exception arrives here");
}

void ClassifiesHoles() {
  Expect(HoleTypeInfo::SubDecal({1.23456}, 2) == std::vector<double>{1.23}, "decimals are cut");
}

}  // namespace

int main() {
  ReadsTables();
  EvaluatesPlates();
  LoadsSettings();
  ClassifiesHoles();
  Expect(CommonConfig().GetConfigFolderPath() == "consumer root\\config", "the root leads to its folder");
  if (failures == 0) std::printf("the consumer is content\n");
  return failures;
}
