#pragma once

// Takes typed values out of one object of an input file. What is of the wrong kind is reported at its place,
// and the object is then no longer good.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "plateconfig/input/json_node.h"
#include "plateconfig/messages/reporter.h"

namespace plateconfig {

/// A number or a text as a message repeats it.
std::string TextOf(const JsonNode& node);

class JsonValues {
 public:
  /// Both are referred to, not copied.
  JsonValues(const std::string& file, Reporter& reporter) : file_(file), reporter_(reporter) {}

  bool AreGood() const { return areGood_; }

  /// False when the value, or one inside it, is of another kind.
  bool Read(const JsonNode& node, bool& value);
  bool Read(const JsonNode& node, double& value);
  bool Read(const JsonNode& node, int& value);
  bool Read(const JsonNode& node, std::string& value);
  template <typename Item>
  bool Read(const JsonNode& node, std::vector<Item>& values) {
    if (!IsArray(node)) return false;
    bool areAllRead = true;
    for (const JsonNode& item : node.items) {
      Item value{};
      areAllRead = Read(item, value) && areAllRead;
      values.push_back(std::move(value));
    }
    return areAllRead;
  }

  /// Checks that report what else the value is.
  bool IsArray(const JsonNode& node);
  bool IsObject(const JsonNode& node);

  /// Hands every member of an object to `read`; of two members of one name the first, the other is warned of.
  void ForEachMember(const JsonNode& object,
                     const std::function<void(const std::string& name, const JsonNode& node)>& read);

  /// Reports a mistake at the node's place; the finding's first word says what becomes of the object.
  void Refuse(const JsonNode& node, Finding finding);
  /// Reports something at the node's place that leaves the object good.
  void Warn(const JsonNode& node, Finding finding);

 private:
  bool Expect(const JsonNode& node, JsonNode::Kind kind, const Words& what);
  void RefuseAs(const JsonNode& node, const Words& what);

  const std::string& file_;
  Reporter& reporter_;
  bool areGood_ = true;
};

}  // namespace plateconfig
