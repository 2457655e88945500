#pragma once

#include <istream>
#include <memory>
#include <string_view>
#include <utility>

#include "plateconfig/input/csv_records.h"
#include "plateconfig/input/json_records.h"

namespace plateconfig {

/// True when an input is JSON, not CSV: its name ends in .json, .jsonl or .ndjson; or in anything but .csv
/// and its first character opens an object or an array. Takes nothing from the stream.
bool IsJson(std::istream& in, std::string_view file);

/// The reader for an input of this name, which is for messages too. Stream and reporter are referred to, not
/// copied.
template <typename Record>
std::unique_ptr<RecordReader<Record>> ReadRecords(std::istream& in, const std::string& file,
                                                  RecordKind<Record> kind, Reporter& reporter) {
  if (IsJson(in, file)) return std::make_unique<JsonRecords<Record>>(in, file, std::move(kind), reporter);
  return std::make_unique<CsvRecords<Record>>(in, file, std::move(kind), reporter);
}

}  // namespace plateconfig
