#include <utility>

#include "analysis/text/strict_values.h"
#include "config/text_helpers.h"
#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/holes/hole_type_reader.h"
#include "plateconfig/input/cell_texts.h"
#include "plateconfig/input/csv_records.h"

namespace plateconfig {
namespace {

constexpr const char* kListSeparator = ";";

using TypeField = CsvField<HoleTypeInput>;

/// One list per segment; an empty cell holds none.
template <typename Item>
std::string StoreLists(const std::string& cell, std::vector<std::vector<Item>>& lists,
                       std::optional<std::vector<Item>> (*parse)(std::string_view),
                       std::string (*complain)(const std::string&)) {
  for (const std::string& text : SplitString(cell, kListSeparator)) {
    auto list = parse(text);
    if (!list) return complain(text);
    lists.push_back(std::move(*list));
  }
  return {};
}

std::vector<TypeField> TypeFields() {
  std::vector<TypeField> fields;
  fields.push_back({kTypeName.column, true, [](const std::string& text, HoleTypeInput& input) {
                      input.name = text;
                      return text.empty() ? Say("the type has no name", "类型没有名称") : "";
                    }});
  fields.push_back({kTypeStructure.column, true, [](const std::string& text, HoleTypeInput& input) {
                      input.type.countKey = text;
                      return std::string();
                    }});
  fields.push_back({kTypeContent.column, false, [](const std::string& text, HoleTypeInput& input) {
                      input.content = text;
                      return std::string();
                    }});
  for (std::size_t i = 0; i < kHoleGroupCount; ++i) {
    fields.push_back({kHoleGroupNames[i].colors.column, false,
                      [&group = kHoleGroups[i]](const std::string& text, HoleTypeInput& input) {
                        return StoreLists(text, input.type.*group.colors, StrictIntegers, NotIntegers);
                      }});
    fields.push_back({kHoleGroupNames[i].diameters.column, false,
                      [&group = kHoleGroups[i]](const std::string& text, HoleTypeInput& input) {
                        return StoreLists(text, input.type.*group.diameters, StrictNumbers, NotNumbers);
                      }});
  }
  return fields;
}

}  // namespace

std::vector<HoleTypeInput> ReadHoleTypesFromCsv(std::istream& in, const std::string& file,
                                                Reporter& reporter) {
  CsvRecords<HoleTypeInput> rows(in, file, TypeFields(), reporter);
  std::vector<HoleTypeInput> types;
  while (auto row = rows.Next()) {
    if (!row->isGood) continue;
    row->record.place = row->place;
    types.push_back(std::move(row->record));
  }
  return types;
}

}  // namespace plateconfig
