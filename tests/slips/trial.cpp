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

/// The members of each element of a JSON array, one element a line; the text as it stands where it is no such
/// thing.
std::string Members(const std::string& text, const std::vector<const char*>& names) {
  const Json array = Json::parse(text, nullptr, false);
  if (!array.is_array()) return text;
  std::string lines;
  for (const Json& element : array) {
    for (const char* name : names) lines += element.value(name, Json()).dump() + " ";
    lines += "\n";
  }
  return lines;
}

std::string Settings(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), {"show", "--format", "json"});
  return Members(RunPlateconfig(arguments).out, {"role", "column", "value"});
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
    return Members(processed.out, {"name", "text"}) + Settings({"--config", folder});
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
