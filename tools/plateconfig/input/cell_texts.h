#pragma once

// What is wrong with a cell of a configuration table, and how to write it. All texts are UTF-8.

#include <string>

namespace plateconfig {

std::string NotANumber(const std::string& text);
std::string NotAnInteger(const std::string& text);
std::string NotIntegers(const std::string& text);
std::string NotNumbers(const std::string& text);
std::string NotARange(const std::string& text);
std::string NotYesNo(const std::string& text);

/// Of a header cell; `similar` is the known name that looks most like it, empty when there is none.
std::string UnknownColumn(const std::string& name, const std::string& similar);
std::string SecondColumn(const std::string& name);

}  // namespace plateconfig
