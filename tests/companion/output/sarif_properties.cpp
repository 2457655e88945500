#include "companion/output/sarif_properties.h"

#include <algorithm>
#include <map>
#include <set>

namespace plateconfig::test {
namespace {

using Json = nlohmann::json;

/// One property of an object: what it holds. "text", "whole" and the others of `IsPlain` are plain; every
/// other word names an object below; "[]" in front makes it a list.
using Properties = std::map<std::string, std::string>;

struct ObjectShape {
  std::set<std::string> required;  ///< All of these.
  std::set<std::string> oneOf;     ///< At least one of these, if there are any.
  Properties known;                ///< Of the properties that the schema allows, those that are written here.
};

const std::map<std::string, ObjectShape>& Shapes() {
  static const std::map<std::string, ObjectShape> shapes = {
      {"log", {{"version", "runs"}, {}, {{"$schema", "text"}, {"version", "version"}, {"runs", "[]run"}}}},
      {"run", {{"tool"}, {}, {{"tool", "tool"}, {"columnKind", "columnKind"}, {"results", "[]result"}}}},
      {"tool", {{"driver"}, {}, {{"driver", "toolComponent"}}}},
      {"toolComponent",
       {{"name"}, {}, {{"name", "text"}, {"version", "text"}, {"rules", "[]reportingDescriptor"}}}},
      {"reportingDescriptor",
       {{"id"},
        {},
        {{"id", "text"},
         {"defaultConfiguration", "reportingConfiguration"},
         {"shortDescription", "multiformatMessageString"},
         {"fullDescription", "multiformatMessageString"},
         {"help", "multiformatMessageString"}}}},
      {"reportingConfiguration", {{}, {}, {{"level", "level"}}}},
      {"multiformatMessageString", {{"text"}, {}, {{"text", "message text"}}}},
      {"result",
       {{"message"},
        {},
        {{"ruleId", "text"},
         {"ruleIndex", "index"},
         {"level", "level"},
         {"message", "message"},
         {"locations", "[]location"},
         {"partialFingerprints", "texts"}}}},
      {"message", {{}, {"text", "id"}, {{"text", "message text"}}}},
      {"location", {{}, {}, {{"physicalLocation", "physicalLocation"}}}},
      {"physicalLocation",
       {{},
        {"artifactLocation", "address"},
        {{"artifactLocation", "artifactLocation"}, {"region", "region"}}}},
      {"artifactLocation", {{}, {}, {{"uri", "uri"}}}},
      {"region",
       {{},
        {"startLine", "charOffset", "byteOffset"},
        {{"startLine", "from one"}, {"startColumn", "from one"}}}},
  };
  return shapes;
}

bool IsOneOf(const Json& value, const std::set<std::string>& texts) {
  return value.is_string() && texts.contains(value.get<std::string>());
}

/// A reference to a URI: nothing but the characters that RFC 3986 has, and no backslash.
bool IsUri(const Json& value) {
  const std::string text = value.is_string() ? value.get<std::string>() : "\\";
  return std::all_of(text.begin(), text.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("-._~/%").find(c) != std::string_view::npos;
  });
}

/// A message: a brace in it is doubled.
bool IsMessageText(const Json& value) {
  if (!value.is_string() || value.get<std::string>().empty()) return false;
  const std::string text = value;
  for (std::size_t at = 0; (at = text.find_first_of("{}", at)) != std::string::npos; at += 2) {
    if (text.compare(at, 2, std::string(2, text[at])) != 0) return false;
  }
  return true;
}

bool AreTexts(const Json& value) {
  return value.is_object() &&
         std::all_of(value.begin(), value.end(), [](const Json& each) { return each.is_string(); });
}

bool IsPlain(const std::string& kind, const Json& value) {
  if (kind == "text") return value.is_string();
  if (kind == "message text") return IsMessageText(value);
  if (kind == "version") return value == "2.1.0";
  if (kind == "columnKind") return IsOneOf(value, {"utf16CodeUnits", "unicodeCodePoints"});
  if (kind == "level") return IsOneOf(value, {"none", "note", "warning", "error"});
  if (kind == "index") return value.is_number_integer() && value >= -1;
  if (kind == "from one") return value.is_number_integer() && value >= 1;
  if (kind == "uri") return IsUri(value);
  return kind == "texts" && AreTexts(value);
}

class Walk {
 public:
  std::vector<std::string> Missing(const Json& log) {
    Object("log", log, "log");
    if (missing_.empty()) Indices(log);
    return missing_;
  }

 private:
  void Note(const std::string& place, const std::string& what) { missing_.push_back(place + ": " + what); }

  void Object(const std::string& kind, const Json& value, const std::string& place) {
    if (!value.is_object()) return Note(place, "should be an object");
    const ObjectShape& shape = Shapes().at(kind);
    for (const std::string& name : shape.required) {
      if (!value.contains(name)) Note(place, "lacks " + name);
    }
    const auto has = [&](const std::string& name) { return value.contains(name); };
    if (!shape.oneOf.empty() && std::none_of(shape.oneOf.begin(), shape.oneOf.end(), has))
      Note(place, "lacks one of its properties");
    for (const auto& [name, member] : value.items()) {
      const auto known = shape.known.find(name);
      if (known == shape.known.end()) {
        Note(place, "knows no " + name);
      } else {
        Property(known->second, member, place + "." + name);
      }
    }
  }

  void Property(const std::string& kind, const Json& value, const std::string& place) {
    if (kind.starts_with("[]")) {
      if (!value.is_array()) return Note(place, "should be a list");
      for (std::size_t i = 0; i < value.size(); ++i)
        Property(kind.substr(2), value[i], place + "[" + std::to_string(i) + "]");
    } else if (Shapes().contains(kind)) {
      Object(kind, value, place);
    } else if (!IsPlain(kind, value)) {
      Note(place, "is no " + kind + ": " + value.dump());
    }
  }

  /// Each result's rule stands where its index says.
  void Indices(const Json& log) {
    for (const Json& run : log["runs"]) {
      const Json& rules = run["tool"]["driver"]["rules"];
      for (const Json& result : run["results"]) {
        const std::size_t index = result["ruleIndex"];
        if (index >= rules.size() || rules[index]["id"] != result["ruleId"])
          Note(result["ruleId"], "stands elsewhere than its index says");
      }
    }
  }

  std::vector<std::string> missing_;
};

}  // namespace

std::vector<std::string> MissingInSarif(const Json& log) {
  return Walk().Missing(log);
}

}  // namespace plateconfig::test
