#pragma once

// What is wrong with a cell of an input, and how to write it.

#include <string>

namespace plateconfig {

std::string NotANumber(const std::string& text);
std::string NotAnInteger(const std::string& text);
std::string NotIntegers(const std::string& text);
std::string NotNumbers(const std::string& text);
std::string NotYesNo(const std::string& text);

}  // namespace plateconfig
