#include "plateconfig/input/json_values.h"

#include <fmt/format.h>

#include <cmath>
#include <limits>
#include <set>
#include <string_view>

#include "analysis/text/shown_text.h"

namespace plateconfig {
namespace {

constexpr Words kPassedOver = {" (this object is passed over)", "（此对象被跳过）"};

/// What stands there instead, as a message names it.
Word Shown(const JsonNode& node) {
  switch (node.kind) {
    case JsonNode::Kind::kNull:
      return {"null", " null"};
    case JsonNode::Kind::kBool:
      return {fmt::format("{}", node.flag), fmt::format(" {}", node.flag)};
    case JsonNode::Kind::kNumber:
      return {TextOf(node), " " + TextOf(node)};
    case JsonNode::Kind::kString:
      return {fmt::format("\"{}\"", ShownText(node.text)), fmt::format("“{}”", ShownText(node.text))};
    case JsonNode::Kind::kArray:
      return {"a list", "列表"};
    case JsonNode::Kind::kObject:
      break;
  }
  return {"an object", "对象"};
}

}  // namespace

std::string TextOf(const JsonNode& node) {
  return node.kind == JsonNode::Kind::kNumber ? fmt::format("{}", node.number) : node.text;
}

void JsonValues::Refuse(const JsonNode& node, Finding finding) {
  areGood_ = false;
  finding.words.insert(finding.words.begin(), kPassedOver);
  Warn(node, std::move(finding));
}

void JsonValues::Warn(const JsonNode& node, Finding finding) {
  finding.place = PlaceIn(file_, node.position);
  if (finding.fix && finding.fix->empty()) finding.fix.reset();  // No known name was near.
  reporter_.Report(finding);
}

bool JsonValues::Expect(const JsonNode& node, JsonNode::Kind kind, const Words& what) {
  if (node.kind == kind) return true;
  RefuseAs(node, what);
  return false;
}

void JsonValues::RefuseAs(const JsonNode& node, const Words& what) {
  Refuse(node, {.code = "input-json-kind", .words = {what, Shown(node)}});
}

bool JsonValues::IsArray(const JsonNode& node) {
  return Expect(node, JsonNode::Kind::kArray, {"a list [ … ]", "列表 [ … ]"});
}

bool JsonValues::IsObject(const JsonNode& node) {
  return Expect(node, JsonNode::Kind::kObject, {"an object { … }", "对象 { … }"});
}

bool JsonValues::Read(const JsonNode& node, bool& value) {
  value = node.flag;
  return Expect(node, JsonNode::Kind::kBool, {"true or false", " true 或 false"});
}

bool JsonValues::Read(const JsonNode& node, double& value) {
  value = node.number;
  return Expect(node, JsonNode::Kind::kNumber, {"a number", "数字"});
}

bool JsonValues::Read(const JsonNode& node, int& value) {
  constexpr Words kWhat = {"a whole number", "整数"};
  if (!Expect(node, JsonNode::Kind::kNumber, kWhat)) return false;
  if (node.number != std::floor(node.number)) {
    RefuseAs(node, kWhat);
    return false;
  }
  const bool fits =
      node.number >= std::numeric_limits<int>::min() && node.number <= std::numeric_limits<int>::max();
  if (fits) {
    value = static_cast<int>(node.number);
  } else {
    Refuse(node, {.code = "input-json-integer-range", .text = TextOf(node)});
  }
  return fits;
}

bool JsonValues::Read(const JsonNode& node, std::string& value) {
  value = node.text;
  return Expect(node, JsonNode::Kind::kString, {"a text in quotes", "带引号的文本"});
}

void JsonValues::ForEachMember(
    const JsonNode& object, const std::function<void(const std::string& name, const JsonNode& node)>& read) {
  std::set<std::string_view> names;
  for (const auto& [name, node] : object.members) {
    if (names.insert(name).second) {
      read(name, node);
    } else {
      Warn(node, {.code = "input-member-twice", .text = name});
    }
  }
}

}  // namespace plateconfig
