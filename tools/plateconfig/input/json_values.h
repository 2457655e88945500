#pragma once

// Takes typed values out of one object of an input file. What is of the wrong kind is reported at its place,
// and the object is then no longer good.

#include <string>
#include <vector>

#include "plateconfig/input/json_node.h"
#include "plateconfig/messages/reporter.h"

namespace plateconfig {

class JsonValues {
 public:
  explicit JsonValues(Reporter& reporter) : reporter_(reporter) {}

  bool AreGood() const { return areGood_; }

  void Read(const JsonNode& node, bool& value);
  void Read(const JsonNode& node, double& value);
  void Read(const JsonNode& node, int& value);
  void Read(const JsonNode& node, std::string& value);
  /// A text that has to hold something; `whenEmpty` is what is said otherwise.
  void ReadFilled(const JsonNode& node, std::string& value, const std::string& whenEmpty);

  template <typename Item>
  void Read(const JsonNode& node, std::vector<Item>& values) {
    if (!IsArray(node)) return;
    for (const JsonNode& item : node.items) {
      Item value{};
      Read(item, value);
      values.push_back(value);
    }
  }

  /// Checks that report what else the value is.
  bool IsArray(const JsonNode& node);
  bool IsObject(const JsonNode& node);

  /// Reports a mistake at the node's place.
  void Refuse(const JsonNode& node, const std::string& text);

 private:
  bool Expect(const JsonNode& node, JsonNode::Kind kind, const std::string& what);
  void RefuseAs(const JsonNode& node, const std::string& what);

  Reporter& reporter_;
  bool areGood_ = true;
};

}  // namespace plateconfig
