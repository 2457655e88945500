#include "analysis/text/place.h"

namespace plateconfig {

std::string ToString(const Place& place) {
  if (place.line == 0) return place.file;
  std::string text = place.file + ":" + std::to_string(place.line);
  if (place.column != 0) text += ":" + std::to_string(place.column);
  return text;
}

std::string CellName(std::size_t column, std::size_t row) {
  constexpr std::size_t kLetters = 26;
  std::string letters;
  for (std::size_t rest = column + 1; rest > 0; rest = (rest - 1) / kLetters) {
    letters.insert(letters.begin(), static_cast<char>('A' + (rest - 1) % kLetters));
  }
  return letters + std::to_string(row);
}

}  // namespace plateconfig
