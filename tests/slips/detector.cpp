#include "slips/detector.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "config/configuration_index.h"
#include "support/companion.h"

namespace plateconfig::slips {
namespace {

using Json = nlohmann::json;
using test::RunPlateconfig;

std::vector<Finding> FindingsInMessages(const std::string& err) {
  std::vector<Finding> findings;
  std::istringstream lines(err);
  for (std::string line; std::getline(lines, line);) {
    if (auto finding = FindingInMessage(line)) findings.push_back(std::move(*finding));
  }
  return findings;
}

/// The messages of the verbs that read the table.
class MessagesOfVerbs : public Detector {
 public:
  const char* Name() const override { return "the messages of show, process, folder and holes"; }

  std::vector<Finding> Look(const Trial& trial, const SampleFile& file) const override {
    const std::string folder = trial.ConfigurationPath(file.configuration);
    if (file.what == What::kHoleTypesFile)
      return Run({"holes", "--types", trial.Path(file.path), trial.Path("holes.csv")});
    if (file.what == What::kIndexFile) {
      const test::ScopedVariable root(kRootVariable, trial.Root());
      return Run({"folder"});
    }
    if (file.what != What::kManifestFile) return Run({"show", "--config", folder, file.role});
    std::vector<Finding> findings = Run({"process", "--config", folder, trial.Path("plates.csv")});
    const std::vector<Finding> further = Run({"show", "--config", folder});
    findings.insert(findings.end(), further.begin(), further.end());
    return findings;
  }

 private:
  static std::vector<Finding> Run(const std::vector<std::string>& arguments) {
    return FindingsInMessages(RunPlateconfig(arguments).err);
  }
};

/// The verb that is there for it.
class CheckVerb : public Detector {
 public:
  const char* Name() const override { return "check"; }

  std::vector<Finding> Look(const Trial& trial, const SampleFile& file) const override {
    std::vector<std::string> arguments = {"check", "--format", "json", "--plates", trial.Path("plates.csv")};
    if (file.what == What::kIndexFile) {
      const test::ScopedVariable root(kRootVariable, trial.Root());
      return FindingsInJson(RunPlateconfig(arguments).out);
    }
    const bool isOfHoles = file.what == What::kHoleTypesFile;
    const std::string configuration = isOfHoles ? "标准" : file.configuration;
    arguments.insert(arguments.end(), {"--config", trial.ConfigurationPath(configuration)});
    if (isOfHoles) arguments.insert(arguments.end(), {"--types", trial.Path(file.path)});
    return FindingsInJson(RunPlateconfig(arguments).out);
  }
};

/// The text before the first of the separators, which is taken off with it.
std::string Cut(std::string& text, const std::string& separator) {
  const std::size_t at = text.find(separator);
  const std::string piece = text.substr(0, at);
  text = at == std::string::npos ? std::string() : text.substr(at + separator.size());
  return piece;
}

bool IsDigits(const std::string& text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// Takes ":12" off the end.
std::optional<std::size_t> CutNumber(std::string& place) {
  const std::size_t colon = place.rfind(':');
  if (colon == std::string::npos || !IsDigits(place.substr(colon + 1))) return std::nullopt;
  const std::size_t number = std::stoul(place.substr(colon + 1));
  place.resize(colon);
  return number;
}

/// A cell's name with which a message begins, such as C17.
std::string LeadingCell(const std::string& message) {
  const std::size_t end = message.find(": ");
  const std::size_t digits = message.find_first_of("0123456789");
  if (end == std::string::npos || digits == 0 || digits > end) return {};
  const auto isLetter = [](char c) { return c >= 'A' && c <= 'Z'; };
  const auto letters = static_cast<std::ptrdiff_t>(digits);
  const bool isCell = std::all_of(message.begin(), message.begin() + letters, isLetter) &&
                      IsDigits(message.substr(digits, end - digits));
  return isCell ? message.substr(0, end) : std::string();
}

std::string TextMember(const Json& object, const char* name) {
  const Json value = object.value(name, Json());
  return value.is_string() ? value.get<std::string>() : std::string();
}

std::set<std::size_t> RowsIn(const Json& finding) {
  std::set<std::size_t> rows;
  for (const char* name : {"row", "otherRow", "witnessRow", "blockers"}) {
    const Json value = finding.value(name, Json());
    for (const Json& each : value.is_array() ? value : Json::array({value})) {
      if (each.is_number_unsigned()) rows.insert(each.get<std::size_t>());
    }
  }
  return rows;
}

Finding FromJson(const Json& json) {
  Finding finding;
  finding.isHint = TextMember(json, "severity") == "hint";
  finding.file = TextMember(json, "file");
  if (const Json line = json.value("line", Json()); line.is_number_unsigned())
    finding.line = line.get<std::size_t>();
  finding.cell = TextMember(json, "cell");
  finding.columnName = TextMember(json, "columnName");
  finding.text = TextMember(json, "text");
  finding.rows = RowsIn(json);
  finding.message = TextMember(json, "message");
  finding.identity = json.dump(-1, ' ', false, Json::error_handler_t::replace);
  return finding;
}

std::string BaseName(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
  return path.substr(path.rfind('/') + 1);
}

bool Contains(const std::string& text, const std::string& part) {
  return !part.empty() && text.find(part) != std::string::npos;
}

/// Names that a finding may quote wherever it stands: a process is named in two places of the table.
bool IsName(What what) {
  return IsHeader(what) || what == What::kProcessName || what == What::kParameterName;
}

bool NamesText(const Finding& finding, const Slip& slip) {
  const std::string& before = slip.change.before;
  if (!IsName(slip.site.what) || before.empty()) return false;
  return finding.columnName == before || finding.text == before ||
         Contains(finding.message, "\"" + before + "\"");
}

bool NamesColumn(const Finding& finding, const Slip& slip) {
  const std::string letters = finding.cell.substr(0, finding.cell.find_first_of("0123456789"));
  const auto& columns = slip.change.touched.columns;
  const bool isNamed = std::any_of(columns.begin(), columns.end(),
                                   [&](std::size_t column) { return ColumnLetters(column) == letters; });
  if (isNamed || finding.columnName.empty()) return isNamed;
  return std::any_of(columns.begin(), columns.end(), [&](std::size_t column) {
    return slip.site.grid->Text(0, column) == finding.columnName;
  });
}

bool NamesRow(const Finding& finding, const Slip& slip) {
  const Touched& touched = slip.change.touched;
  const auto isTouched = [&](std::size_t spreadsheetRow) {
    return touched.rows.contains(spreadsheetRow - 1);
  };
  if (std::any_of(finding.rows.begin(), finding.rows.end(), isTouched)) return true;
  if (!finding.line || !touched.lines.contains(*finding.line)) return false;
  // All headers stand in one line: a finding at another one leads nowhere.
  const bool isHeaderLine = *finding.line == 1 && slip.site.file->IsTable();
  return !isHeaderLine || finding.cell.empty();
}

bool NamesFile(const Finding& finding, const Slip& slip) {
  const std::string name = BaseName(finding.file);
  if (name == BaseName(slip.site.file->path)) return true;
  // A folder that is not there, where the index or the root names it.
  if (slip.site.file->what == What::kIndexFile)
    return name == slip.change.after || !slip.change.rootSuffix.empty();
  if (slip.site.file->what != What::kManifestFile) return false;
  // A file that the changed line names, or a role that now nobody plays.
  return Contains(slip.change.before, name) || Contains(slip.change.after, name) ||
         Contains(finding.message, "tables.json");
}

/// A line of the manifest, the file that it names, or a role that is missing in the manifest as a whole.
bool LeadsIntoManifest(const Finding& finding, const Slip& slip) {
  const bool isInManifest = BaseName(finding.file) == BaseName(slip.site.file->path);
  return !isInManifest || !finding.line || slip.change.touched.lines.contains(*finding.line);
}

}  // namespace

std::unique_ptr<Detector> MakeDetector() {
  // An unknown verb's help is that of the command.
  if (Contains(RunPlateconfig({"check", "--help"}).out, "plateconfig check"))
    return std::make_unique<CheckVerb>();
  return std::make_unique<MessagesOfVerbs>();
}

std::optional<Finding> FindingInMessage(const std::string& line) {
  for (const char* severity : {": error: ", ": warning: ", ": hint: "}) {
    if (!Contains(line, severity)) continue;
    Finding finding;
    finding.identity = line;
    finding.isHint = std::string(severity) == ": hint: ";
    finding.message = line;
    finding.file = Cut(finding.message, severity);
    const auto last = CutNumber(finding.file);
    const auto beforeLast = CutNumber(finding.file);
    finding.line = beforeLast ? beforeLast : last;
    finding.cell = LeadingCell(finding.message);
    return finding;
  }
  return std::nullopt;
}

std::vector<Finding> FindingsInJson(const std::string& output) {
  const Json root = Json::parse(output, nullptr, false);
  std::vector<Finding> findings;
  if (!root.is_object()) return findings;
  for (const Json& finding : root.value("findings", Json::array())) findings.push_back(FromJson(finding));
  return findings;
}

bool LeadsTo(const Finding& finding, const Slip& slip) {
  if (!NamesFile(finding, slip)) return false;
  if (slip.site.file->what == What::kManifestFile) {
    return slip.change.touched.lines.empty() || LeadsIntoManifest(finding, slip);
  }
  const Touched& touched = slip.change.touched;
  const bool isFolder = BaseName(finding.file) != BaseName(slip.site.file->path);
  const bool isWholeFile = touched.rows.empty() && touched.columns.empty();
  return isFolder || isWholeFile || NamesColumn(finding, slip) || NamesRow(finding, slip) ||
         NamesText(finding, slip);
}

}  // namespace plateconfig::slips
