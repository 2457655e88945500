#include "plateconfig/input/json_values.h"

#include <limits>

#include "analysis/text/shown_text.h"
#include "plateconfig/input/cell_texts.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

/// What stands there instead, as a message names it.
std::string Shown(const JsonNode& node) {
  switch (node.kind) {
    case JsonNode::Kind::kNull:
      return Say("null", " null");
    case JsonNode::Kind::kBool:
      return Say("{}", " {}", node.flag);
    case JsonNode::Kind::kNumber:
      return Say("{}", " {}", node.number);
    case JsonNode::Kind::kString:
      return Say("\"{}\"", "“{}”", ShownText(node.text));
    case JsonNode::Kind::kArray:
      return Say("a list", "列表");
    case JsonNode::Kind::kObject:
      break;
  }
  return Say("an object", "对象");
}

}  // namespace

void JsonValues::Refuse(const JsonNode& node, const std::string& text) {
  areGood_ = false;
  reporter_.Error(node.place, text + Say(" (this object is passed over)", "（此对象被跳过）"));
}

bool JsonValues::Expect(const JsonNode& node, JsonNode::Kind kind, const std::string& what) {
  if (node.kind == kind) return true;
  RefuseAs(node, what);
  return false;
}

void JsonValues::RefuseAs(const JsonNode& node, const std::string& what) {
  Refuse(node, Say("this should be {}, not {}", "这里应当是{}，而不是{}", what, Shown(node)));
}

bool JsonValues::IsArray(const JsonNode& node) {
  return Expect(node, JsonNode::Kind::kArray, Say("a list [ … ]", "列表 [ … ]"));
}

bool JsonValues::IsObject(const JsonNode& node) {
  return Expect(node, JsonNode::Kind::kObject, Say("an object {{ … }}", "对象 {{ … }}"));
}

void JsonValues::Read(const JsonNode& node, bool& value) {
  if (Expect(node, JsonNode::Kind::kBool, Say("true or false", " true 或 false"))) value = node.flag;
}

void JsonValues::Read(const JsonNode& node, double& value) {
  if (Expect(node, JsonNode::Kind::kNumber, Say("a number", "数字"))) value = node.number;
}

void JsonValues::Read(const JsonNode& node, int& value) {
  const std::string what = Say("a whole number", "整数");
  if (!Expect(node, JsonNode::Kind::kNumber, what)) return;
  if (!node.isInteger) return RefuseAs(node, what);
  const bool fits =
      node.number >= std::numeric_limits<int>::min() && node.number <= std::numeric_limits<int>::max();
  if (!fits) return Refuse(node, IntegerOutOfRange(Say("{}", "{} ", node.number)));
  value = static_cast<int>(node.number);
}

void JsonValues::Read(const JsonNode& node, std::string& value) {
  if (Expect(node, JsonNode::Kind::kString, Say("a text in quotes", "带引号的文本"))) value = node.text;
}

void JsonValues::ReadFilled(const JsonNode& node, std::string& value, const std::string& whenEmpty) {
  Read(node, value);
  if (node.kind == JsonNode::Kind::kString && node.text.empty()) Refuse(node, whenEmpty);
}

}  // namespace plateconfig
