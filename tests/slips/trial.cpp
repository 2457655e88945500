#include "slips/trial.h"

#include <NXOpen/Body.hxx>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "analysis/rules/feed_rules.h"
#include "config/configuration_index.h"
#include "host/body_info.h"
#include "plateconfig/plates/plate_vocabulary.h"
#include "rules/process_rule_library.h"
#include "support/companion.h"
#include "support/diagnostics_off.h"

namespace plateconfig::slips {
namespace {

using Json = nlohmann::json;
using test::RunPlateconfig;

std::string SampleBytes(const std::string& path) {
  const std::string full = PLATECONFIG_SAMPLES_DIR "/" + path;
  return test::ReadBytes(std::filesystem::path(std::u8string(full.begin(), full.end())));
}

std::string RulesPath(const std::string& configuration) {
  return "config/" + configuration + "/工艺规则.csv";
}

std::string SettingsPath(const std::string& configuration) {
  return "config/" + configuration + "/工艺设置.csv";
}

std::vector<PlateInput> ReadSamplePlates(const ProcessRuleLibrary& library) {
  test::Messages messages;
  const PlateVocabulary vocabulary(library.GetProcessRules());
  std::istringstream in(SampleBytes("plates.csv"));
  const auto reader = ReadPlates(in, "plates.csv", vocabulary, messages.reporter);
  std::vector<PlateInput> plates;
  while (auto plate = reader->Next()) plates.push_back(std::move(*plate));
  return plates;
}

std::string TextOf(const ProcessRuleLibrary& library, const PlateInput& input) {
  auto rules = library.GetProcessRules();
  FeedRules(rules, input.features);
  const Plate& plate = input.plate;
  NXOpen::Body solid(plate.faceColors);
  BodyInfo body(&solid, plate.length, plate.width, plate.height, plate.layer, plate.color);
  return library.GetProcessInfo(&body, plate.weight, rules);
}

/// What the library takes a cell for that has to be one exact text: whether it is that text.
Json Taken(const std::string& column, const Json& value) {
  static const std::map<std::string, std::string> exact = {
      {"有无型面", "有型面"}, {"有无线割", "有线割"}, {"材质要求", "软料（体颜色）"}};
  const auto text = exact.find(column);
  if (text == exact.end() || !value.is_array()) return value;
  Json taken = Json::array();
  for (const Json& cell : value) taken.push_back(cell == text->second);
  return taken;
}

/// One setting a line.
std::string Settings(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), {"show", "--format", "json"});
  const Json settings = Json::parse(RunPlateconfig(arguments).out, nullptr, false);
  std::string lines;
  for (const Json& setting : settings.is_array() ? settings : Json::array()) {
    const std::string column = setting.at("column");
    lines +=
        setting.at("role").dump() + " " + column + " " + Taken(column, setting.at("value")).dump() + "\n";
  }
  return lines;
}

/// The text of each plate a line; the output as it stands where it is no list.
std::string TextsIn(const std::string& output) {
  const Json plates = Json::parse(output, nullptr, false);
  if (!plates.is_array()) return output;
  std::string lines;
  for (const Json& plate : plates) lines += plate.at("text").dump() + "\n";
  return lines;
}

}  // namespace

Trial::Trial(const std::vector<SampleFile>& samples) {
  for (const SampleFile& file : samples) folder_.WriteBytes(file.path, file.bytes);
  for (const char* input : {"plates.csv", "holes.csv"}) folder_.WriteBytes(input, SampleBytes(input));
  for (const SampleFile& file : samples) {
    if (file.what != What::kRulesFile) continue;
    const ProcessRuleLibrary library(folder_.HostPath(file.path),
                                     folder_.HostPath(SettingsPath(file.configuration)));
    plates_[file.configuration] = ReadSamplePlates(library);
  }
}

std::string Trial::Outcome(const SampleFile& file) const {
  if (file.what == What::kHoleTypesFile)
    return RunPlateconfig({"holes", "--format", "json", "--types", Path(file.path), Path("holes.csv")}).out;
  if (file.what == What::kIndexFile) {
    const test::ScopedVariable root(kRootVariable, Root());
    return Json::parse(RunPlateconfig({"folder", "--format", "json"}).out).at("folder").get<std::string>();
  }
  const std::string folder = ConfigurationPath(file.configuration);
  if (file.what == What::kManifestFile) {
    const auto processed =
        RunPlateconfig({"process", "--format", "json", "--config", folder, Path("plates.csv")});
    return TextsIn(processed.out) + Settings({"--config", folder});
  }
  const bool isOfProcesses = file.what == What::kRulesFile || file.role == "process-settings";
  return Settings({"--config", folder, file.role}) + (isOfProcesses ? ProcessTexts(file.configuration) : "");
}

std::string Trial::ProcessTexts(const std::string& configuration) const {
  const test::DiagnosticsOff off;
  const ProcessRuleLibrary library(folder_.HostPath(RulesPath(configuration)),
                                   folder_.HostPath(SettingsPath(configuration)));
  std::string texts;
  for (const PlateInput& plate : plates_.at(configuration)) texts += TextOf(library, plate) + "\n";
  return texts;
}

void Trial::Make(const SampleFile& file, const Change& change) {
  rootSuffix_ = change.rootSuffix;
  if (change.bytes) {
    folder_.WriteBytes(file.path, *change.bytes);
  } else {
    std::filesystem::remove(folder_.Path() / std::u8string(file.path.begin(), file.path.end()));
  }
}

void Trial::Undo(const SampleFile& file) {
  rootSuffix_.clear();
  folder_.WriteBytes(file.path, file.bytes);
}

std::string Trial::ConfigurationPath(const std::string& configuration) const {
  return Path("config/" + configuration);
}

std::string Trial::Path(const std::string& file) const {
  return test::ArgumentPath(folder_, file);
}

std::string Trial::Root() const {
  return folder_.Path().string() + rootSuffix_;
}

}  // namespace plateconfig::slips
