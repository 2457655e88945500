// The drawing sheets: see analysis/pictures/drawing_sheets.h for what is told of them.

#include <nlohmann/json.hpp>

#include "analysis/pictures/drawing_sheets.h"
#include "analysis/pictures/sheet_words.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/output/setting_value.h"
#include "plateconfig/pictures/pictures.h"
#include "plateconfig/tables/reported_table.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

/// A text that is empty says nothing.
Json TextOrNull(const std::string& utf8) {
  return utf8.empty() ? Json(nullptr) : Json(utf8);
}

Json ToJson(const Words& words) {
  return {{"zh", words.chinese}, {"en", words.english}};
}

Json ToJson(const SheetKey& key) {
  return {{"role", NameOf(key.role)},     {"column", GbkToUtf8(key.column)}, {"file", TextOrNull(key.file)},
          {"cell", TextOrNull(key.cell)}, {"value", SettingText(key.value)}, {"source", NameOf(key.source)}};
}

Json ToJson(const std::vector<SheetKey>& keys) {
  Json list = Json::array();
  for (const SheetKey& key : keys) list.push_back(ToJson(key));
  return list;
}

void AddText(const SheetText& text, Json& json) {
  json["text"] = TextOrNull(GbkToUtf8(text.text));
  json["attribute"] = TextOrNull(GbkToUtf8(text.attribute));
  json["textHeight"] = text.height;
  json["font"] = TextOrNull(GbkToUtf8(text.font));
}

Json PlaceOf(const SheetPart& part) {
  Json json;
  switch (part.kind) {
    case PartKind::kRectangle:
      return {{"kind", "rectangle"},
              {"x", part.x},
              {"y", part.y},
              {"width", part.width},
              {"height", part.height}};
    case PartKind::kPoint:
      json = {{"kind", "point"}, {"x", part.x}, {"y", part.y}};
      break;
    case PartKind::kText:
      json = {{"kind", "text"}, {"x", part.x}, {"y", part.y}};
      AddText(part.text, json);
      break;
  }
  json["anchor"] = part.isTopLeft ? Json("top-left") : Json(nullptr);
  return json;
}

Json ToJson(const SheetPart& part) {
  Json json = PlaceOf(part);
  json["color"] = OrNull(part.color);
  json["layer"] = OrNull(part.layer);
  json["label"] = ToJson(part.label);
  json["assumes"] = Json::array();
  for (const Assumption assumption : part.assumes) json["assumes"].push_back(NameOf(assumption));
  json["keys"] = ToJson(part.keys);
  return json;
}

Json SizeOf(const Specimen& specimen) {
  Json json;
  switch (specimen.kind) {
    case SpecimenKind::kCircle:
      return {{"kind", "circle"}, {"diameter", specimen.size}};
    case SpecimenKind::kLength:
      return {{"kind", "length"}, {"length", specimen.size}};
    case SpecimenKind::kRectangle:
      return {{"kind", "rectangle"}, {"width", specimen.size}, {"height", specimen.height}};
    case SpecimenKind::kText:
      json = {{"kind", "text"}};
      AddText(specimen.text, json);
      return json;
    case SpecimenKind::kLine:
      break;
  }
  return {{"kind", "line"}};
}

Json ToJson(const std::optional<Specimen>& specimen) {
  if (!specimen) return nullptr;
  Json json = SizeOf(*specimen);
  json["color"] = OrNull(specimen->color);
  json["layer"] = OrNull(specimen->layer);
  return json;
}

Json ToJson(const UnknownPart& part) {
  return {{"what", ToJson(part.what)},
          {"why", ToJson(part.why)},
          {"specimen", ToJson(part.specimen)},
          {"keys", ToJson(part.keys)}};
}

Json ToJson(const Sheet& sheet, const PaperSize& paper) {
  Json parts = Json::array();
  for (const SheetPart& part : sheet.parts) parts.push_back(ToJson(part));
  Json unknown = Json::array();
  for (const UnknownPart& part : sheet.unknown) unknown.push_back(ToJson(part));
  return {{"name", sheet.name},   {"title", ToJson(sheet.title)},
          {"width", paper.width}, {"height", paper.height},
          {"parts", parts},       {"unknown", unknown}};
}

Json ToJson(const DrawingSheets& drawn, const SheetQuestion& question, bool isPaperGiven) {
  Json assumed = Json::array();
  for (const Assumption assumption : drawn.assumed)
    assumed.push_back({{"id", NameOf(assumption)}, {"text", ToJson(WordsOf(assumption))}});
  Json sheets = Json::array();
  for (const Sheet& sheet : drawn.sheets) sheets.push_back(ToJson(sheet, question.paper));
  return {{"paper",
           {{"width", question.paper.width}, {"height", question.paper.height}, {"given", isPaperGiven}}},
          {"size", question.size == SheetSize::kLarge ? sheet_sizes::kLarge : sheet_sizes::kSmall},
          {"assumed", assumed},
          {"sheets", sheets}};
}

/// Of a folder that can not be used there is nothing but defaults to draw.
bool IsFolderUsable(Configuration& configuration) {
  configuration.FolderName();
  return configuration.IsUsable();
}

/// What is wrong with a file as a whole is reported; its settings are then those of a table that is missing.
SheetTables TablesOf(Configuration& configuration, Reporter& reporter) {
  SheetTables tables;
  for (const Role role : kSheetRoles) {
    const auto file = configuration.FindOptional(role);
    if (!file) continue;
    ReportFile(GivenFrom(role, *file), reporter);
    tables[role] = {file->hostPath, file->shownAs};
  }
  return tables;
}

}  // namespace

void WriteSheet(const PictureJob& job, const Streams& streams, Reporter& reporter) {
  Configuration configuration(job.configuration, reporter);
  if (job.configuration.tables.empty() && !IsFolderUsable(configuration)) return;
  SheetQuestion question;
  const auto paper = PaperSizeOf(job.paper);
  question.paper = paper.value_or(question.paper);
  if (job.sheetSize == sheet_sizes::kSmall) question.size = SheetSize::kSmall;
  const DrawingSheets drawn = DrawSheets(TablesOf(configuration, reporter), question);
  streams.out << JsonArray::ToText(ToJson(drawn, question, paper.has_value())) << "\n";
}

}  // namespace plateconfig
