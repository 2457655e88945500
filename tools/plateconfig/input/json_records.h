#pragma once

// Reads a JSON input whose every object is a record of known fields.

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "analysis/text/similar_name.h"
#include "plateconfig/input/field.h"
#include "plateconfig/input/json_stream.h"

namespace plateconfig {

template <typename Record>
void ReadMember(const std::string& name, const JsonNode& node, const RecordKind<Record>& kind,
                JsonValues& values, Record& record) {
  const auto field = std::find_if(kind.fields.begin(), kind.fields.end(), [&](const Field<Record>& each) {
    return !each.names.member.empty() && each.names.member == name;
  });
  if (field != kind.fields.end()) return field->fromJson(node, values, record);
  values.Warn(node, {.code = "input-member-unknown",
                     .text = name,
                     .fix = MostSimilarName(name, Names(kind.fields, &FieldNames::member))});
}

/// Reads one object; every mistake is reported, and any of them makes the record unusable. Members that are
/// unknown or stand there twice are warned of.
template <typename Record>
void ReadObject(const JsonNode& object, const RecordKind<Record>& kind, JsonValues& values, Record& record) {
  values.ForEachMember(object, [&](const std::string& name, const JsonNode& node) {
    ReadMember(name, node, kind, values, record);
  });
  for (const Field<Record>& field : kind.fields) {
    if (field.names.member.empty() || field.need != Need::kRequired) continue;
    if (object.Find(field.names.member) != nullptr) continue;
    values.Refuse(object, {.code = kind.missingMember, .text = std::string(field.names.member)});
  }
}

template <typename Record>
class JsonRecords : public RecordReader<Record> {
 public:
  JsonRecords(std::istream& in, const std::string& file, RecordKind<Record> kind, Reporter& reporter)
      : objects_(in, file, reporter), file_(file), kind_(std::move(kind)), reporter_(reporter) {}

  std::optional<Record> Next() override {
    while (const std::optional<JsonNode> object = objects_.Next()) {
      std::optional<Record> record(std::in_place);
      record->position = object->position;
      JsonValues values(file_, reporter_);
      ReadObject(*object, kind_, values, *record);
      if (values.AreGood()) return record;
    }
    return std::nullopt;
  }

 private:
  JsonStream objects_;
  std::string file_;
  RecordKind<Record> kind_;
  Reporter& reporter_;
};

}  // namespace plateconfig
