#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

#include "support/comma_locale.h"

namespace plateconfig::test {

/// A number cut behind so many decimals, step by step: printed with nine, its text cut, and read again.
inline double NaiveCut(double value, int decimals) {
  const ClassicNumbers classic;
  char text[400];
  std::snprintf(text, sizeof text, "%.9f", value);
  std::string kept = text;
  const std::size_t point = kept.find('.');
  if (point != std::string::npos) kept = kept.substr(0, point + 1 + static_cast<std::size_t>(decimals));
  return std::strtod(kept.c_str(), nullptr);  // As atof should read; on Windows it knows no "nan".
}

}  // namespace plateconfig::test
