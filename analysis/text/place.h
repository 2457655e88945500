#pragma once

// Places in the files that people write, as an editor counts them.

#include <cstddef>
#include <string>

namespace plateconfig {

/// A place inside a file; line and column count from 1, in characters. 0 is unknown: the whole file.
struct Position {
  std::size_t line = 0;
  std::size_t column = 0;

  bool operator==(const Position&) const = default;
};

/// A place with the name of its file (UTF-8, as its user names it). Made when something is said about it;
/// what is read in large numbers keeps positions.
struct Place {
  std::string file;
  std::size_t line = 0;
  std::size_t column = 0;
};

inline Place PlaceIn(const std::string& file, Position position) {
  return {file, position.line, position.column};
}

/// "file:line:column", without what is unknown.
std::string ToString(const Place& place);

/// The name of a cell as spreadsheets show it: (2, 17) is C17. Columns count from 0, rows from 1.
std::string CellName(std::size_t column, std::size_t row);

}  // namespace plateconfig
