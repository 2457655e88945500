#pragma once

// The objects of a long JSON text, one at a time: an array of objects, or objects one after another (JSON
// Lines). Only one object is held in memory, and an object with a mistake does not spoil the ones behind it,
// not even one that is never closed, if they begin on lines of their own.

#include <cstddef>
#include <istream>
#include <optional>
#include <string>

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
  /// A line within an object that begins like a next object: no further right than the object itself.
  struct Restart {
    std::size_t offset;
    Place place;
  };

  int Peek();
  int Take();
  std::optional<std::string> TakeObject();
  void GiveUp(const Place& start, const std::string& text, const std::optional<Restart>& restart);
  void SkipStray(char first);

  std::istream& in_;
  std::string pending_;  ///< Was read ahead; comes before what `in_` has.
  std::size_t pendingAt_ = 0;
  Place at_;
  Reporter& reporter_;
  /// One object was never closed. From then on a line that begins like a next object ends the one before, so
  /// that many such mistakes do not make every object be searched to the end of the file.
  bool isRecovering_ = false;
  bool isAtEnd_ = false;
};

}  // namespace plateconfig
