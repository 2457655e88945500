#pragma once

// The objects of a long JSON text, one at a time: an array of objects, or objects one after another (JSON
// Lines). Only one object is held in memory, and an object with a mistake does not spoil the ones behind it.

#include <cstddef>
#include <istream>
#include <optional>
#include <string>

#include "plateconfig/json_node.h"
#include "plateconfig/reporter.h"

namespace plateconfig {

class JsonStream {
 public:
  /// `file` is the name for messages.
  JsonStream(std::istream& in, const std::string& file, Reporter& reporter);

  /// The next object that is well-formed; mistakes on the way are reported. Nothing at the end.
  std::optional<JsonNode> Next();

 private:
  int Take();
  std::optional<std::string> TakeObject(const Place& start);
  void SkipStray(char first);

  std::istream& in_;
  Place at_;
  Reporter& reporter_;
};

}  // namespace plateconfig
