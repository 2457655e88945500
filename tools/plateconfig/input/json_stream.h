#pragma once

// The objects of a long JSON text, one at a time: a list of objects, or objects one after another (JSON
// Lines). Every character is read once and only one object is held in memory. A mistake inside an object
// costs that object alone, because its braces tell where the next one begins; behind an object that is never
// closed nothing can be told, and nothing is read.

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

#include "analysis/text/position_counter.h"
#include "plateconfig/input/json_node.h"
#include "plateconfig/messages/reporter.h"

namespace plateconfig {

class JsonStream {
 public:
  /// `file` is the name for messages.
  JsonStream(std::istream& in, const std::string& file, Reporter& reporter);

  /// The next object that is well-formed; mistakes on the way are reported. Nothing at the end.
  std::optional<JsonNode> Next();

 private:
  /// What stands before the next character, blanks apart.
  enum class Before { kOpening, kValue, kComma };

  int Peek() { return in_.peek(); }
  char Take();
  void SkipByteOrderMark();
  void TakeSeparator(char c);
  std::optional<JsonNode> ReadObject();
  bool TakeObject(std::string& text);
  bool Parse(const std::string& text, const Place& start, JsonNode& node);
  std::string TakeCharacter();
  bool BeginsUtf16(char c, Position position);
  void GiveUp(Code code, Position position);
  void SkipStray();
  void CheckEnd();
  void Report(Finding finding, Position position);

  std::istream& in_;
  std::string file_;
  Reporter& reporter_;
  PositionCounter counter_;
  std::size_t openLists_ = 0;
  Before before_ = Before::kOpening;
  bool isLost_ = false;  ///< An object was never closed.
};

}  // namespace plateconfig
