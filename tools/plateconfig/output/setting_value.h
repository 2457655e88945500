#pragma once

// Values of settings, for programs and for people.

#include <nlohmann/json.hpp>
#include <string>

#include "analysis/schema/settings.h"

namespace plateconfig {

/// A number, a flag or a text, or an array of these for a column of many values. A number that JSON lacks,
/// such as inf, stays a text.
nlohmann::ordered_json SettingToJson(const ColumnSchema& column, const Cells& value);

/// For programs.
const char* NameOf(Source source);

/// All values on one line.
std::string SettingText(const Cells& value);

/// A cell (GBK) on one line, whatever it holds.
std::string OneLine(const std::string& gbk);

}  // namespace plateconfig
