#pragma once

// A record that is read, such as a plate, is described by one table of fields, which serves CSV and JSON:
//
//   std::vector<Field<PlateInput>> fields = {
//       FieldOf<double>({"长度", "length"}, Need::kRequired,
//                       [](PlateInput& plate, double value) { plate.plate.length = value; }, IsPositive),
//
// The type of the value says how it is written in either form:
//
//   double, int             12.5, 12           12.5, 12
//   bool                    Y, N               true, false
//   std::string             as it is           "a text"
//   std::vector<int>        36_186             [36, 186]
//   a vector of vectors     36_186;0           [[36, 186], [0]]

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/findings/finding.h"
#include "plateconfig/input/json_values.h"

namespace plateconfig {

/// UTF-8; a field that has no name in a form can not be given in it.
struct FieldNames {
  std::string_view column;
  std::string_view member;
};

/// Whether a field may be missing. A column that may be missing may have empty cells too; that an expected
/// one is missing is told.
enum class Need { kOptional, kExpected, kRequired };

/// What is wrong with a text of a cell.
struct CellMistake {
  Code code;
  std::string text;  ///< The offending one, which may be a piece of the cell.
};
using CellVerdict = std::optional<CellMistake>;

template <typename Record>
struct Field {
  FieldNames names;
  Need need;
  std::function<CellVerdict(std::string_view text, Record& record)> fromCell = {};
  std::function<void(const JsonNode& node, JsonValues& values, Record& record)> fromJson = {};
};

/// The values of cells.
CellVerdict ReadCell(std::string_view text, bool& value);
CellVerdict ReadCell(std::string_view text, double& value);
CellVerdict ReadCell(std::string_view text, int& value);
CellVerdict ReadCell(std::string_view text, std::string& value);
CellVerdict ReadCell(std::string_view text, std::vector<int>& values);
CellVerdict ReadCell(std::string_view text, std::vector<double>& values);
CellVerdict ReadCell(std::string_view text, std::vector<std::vector<int>>& lists);
CellVerdict ReadCell(std::string_view text, std::vector<std::vector<double>>& lists);

/// Says what is wrong with a value of the right type; nothing when it may be used.
template <typename Value>
using Check = std::optional<Code> (*)(const Value& value);

std::optional<Code> IsPositive(const double& value);
std::optional<Code> IsNotNegative(const double& value);

/// A field of one value, which `put(record, value)` stores.
template <typename Value, typename Record, typename Put>
Field<Record> FieldOf(FieldNames names, Need need, Put put, Check<Value> check = nullptr) {
  const auto fromCell = [put, check](std::string_view text, Record& record) -> CellVerdict {
    Value value{};
    if (CellVerdict mistake = ReadCell(text, value)) return mistake;
    if (const auto code = check ? check(value) : std::nullopt) return CellMistake{*code, std::string(text)};
    put(record, std::move(value));
    return std::nullopt;
  };
  const auto fromJson = [put, check](const JsonNode& node, JsonValues& values, Record& record) {
    Value value{};
    if (!values.Read(node, value)) return;
    if (const auto code = check ? check(value) : std::nullopt) {
      values.Refuse(node, {.code = *code, .text = TextOf(node)});
    } else {
      put(record, std::move(value));
    }
  };
  return {names, need, fromCell, fromJson};
}

/// One kind of record. A record has a `Position position`, where it begins in its file.
template <typename Record>
struct RecordKind {
  std::vector<Field<Record>> fields;
  Words nothing;            ///< What can be read without a column: "no plate".
  Words whenCellIsRefused;  ///< What becomes of the record, in brackets; may be empty.
  Code missingMember;
};

template <typename Record>
class RecordReader {
 public:
  virtual ~RecordReader() = default;

  /// The next record without a mistake; nothing at the end. Mistakes are reported with their place.
  virtual std::optional<Record> Next() = 0;
};

/// The names that the fields have in one form.
template <typename Record>
std::vector<std::string_view> Names(const std::vector<Field<Record>>& fields,
                                    std::string_view FieldNames::*form) {
  std::vector<std::string_view> names;
  for (const Field<Record>& field : fields) {
    if (!(field.names.*form).empty()) names.push_back(field.names.*form);
  }
  return names;
}

}  // namespace plateconfig
