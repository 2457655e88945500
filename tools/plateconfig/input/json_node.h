#pragma once

// A JSON value that knows where it stands, so that a message can point at it.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "plateconfig/messages/reporter.h"

namespace plateconfig {

struct JsonNode {
  enum class Kind { kNull, kBool, kNumber, kString, kArray, kObject };

  // Defined where the type is complete: a node holds nodes, in pairs.
  JsonNode();
  JsonNode(const JsonNode&);
  JsonNode(JsonNode&&) noexcept;
  JsonNode& operator=(const JsonNode&);
  JsonNode& operator=(JsonNode&&) noexcept;
  ~JsonNode();

  Kind kind = Kind::kNull;
  Position position;
  bool flag = false;
  double number = 0;
  std::string text;  ///< UTF-8.
  std::vector<JsonNode> items;
  std::vector<std::pair<std::string, JsonNode>> members;  ///< In the order of the file.

  /// The first member of this name; null when there is none.
  const JsonNode* Find(std::string_view name) const;
};

/// Parses one JSON text (UTF-8) whose first character stands at `start`. A syntax error is reported at its
/// place and gives false.
bool ParseJson(std::string_view text, const Place& start, Reporter& reporter, JsonNode& node);

}  // namespace plateconfig
