#include "rules/process_rule_library.h"

#include <NXOpen/Body.hxx>
#include <NXOpen/Face.hxx>
#include <algorithm>

#include "host/body_info.h"
#include "rules/evaluation.h"
#include "rules/rule_tables.h"
#include "rules/trace_sink.h"

using plateconfig::DiagnosticFile;
using plateconfig::Plate;

namespace {

/// The host's getters are not const everywhere.
Plate MeasureBody(BodyInfo& body, double weight) {
  return {body.GetBodyLength(),
          body.GetBodyWide(),
          body.GetBodyHeight(),
          weight,
          body.GetBodyLayer(),
          body.GetBodyColor(),
          {}};
}

/// The colours of all faces, ascending and without duplicates.
std::vector<int> FaceColors(NXOpen::Body* body) {
  std::vector<int> colors;
  if (body == nullptr) return colors;
  const std::vector<NXOpen::Face*> faces = body->GetFaces();
  colors.reserve(faces.size());
  for (NXOpen::Face* face : faces) colors.push_back(face->Color());
  std::sort(colors.begin(), colors.end());
  colors.erase(std::unique(colors.begin(), colors.end()), colors.end());
  return colors;
}

}  // namespace

ProcessRuleLibrary::ProcessRuleLibrary(const std::string& ruleTablePath, const std::string& settingsPath)
    : tables_(std::make_shared<const plateconfig::RuleTables>(
          plateconfig::LoadRuleTables(ruleTablePath, settingsPath))) {}

bool ProcessRuleLibrary::IsSingleLine() const {
  return tables_->singleLine;
}
bool ProcessRuleLibrary::IsAppendAttribute() const {
  return tables_->appendAttribute;
}
std::string ProcessRuleLibrary::GetConnectText() const {
  return tables_->connectText;
}
double ProcessRuleLibrary::GetLeftMargin() const {
  return tables_->leftMargin;
}
double ProcessRuleLibrary::GetTopMargin() const {
  return tables_->topMargin;
}
int ProcessRuleLibrary::GetTextLayer() const {
  return tables_->textLayer;
}
std::string ProcessRuleLibrary::GetTextFont() const {
  return tables_->textFont;
}
std::vector<ProcessRule> ProcessRuleLibrary::GetProcessRules() const {
  return tables_->processRules;
}

std::string ProcessRuleLibrary::GetProcessInfo(BodyInfo* body, double weight,
                                               const std::vector<ProcessRule>& rules) const {
  if (body == nullptr) return {};
  DiagnosticFile log(plateconfig::Diagnostic::kRules);
  const auto trace = plateconfig::MakeTraceSink(log);
  Plate plate = MeasureBody(*body, weight);
  trace->OnBody(plate);
  plate.faceColors = FaceColors(body->GetBody());
  return plateconfig::EvaluatePlate(*tables_, plate, rules, *trace);
}
