#include "plateconfig/input/json_members.h"

#include <set>

#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

std::string UnknownMember(const std::string& name, const std::vector<std::string_view>& known) {
  return Say("the member \"{}\" is not known and is ignored", "未知的成员“{}”，已忽略", ShownText(name)) +
         DidYouMean(MostSimilarName(name, known));
}

}  // namespace

void ReadMembers(const JsonNode& object, const std::vector<std::string_view>& known, Reporter& reporter,
                 const std::function<bool(const std::string& name, const JsonNode& node)>& read) {
  std::set<std::string_view> names;
  for (const auto& [name, node] : object.members) {
    if (!names.insert(name).second) {
      reporter.Warning(node.place, Say("a second member \"{}\"; the first one counts",
                                       "重复的成员“{}”；以第一个为准", ShownText(name)));
    } else if (!read(name, node)) {
      reporter.Warning(node.place, UnknownMember(name, known));
    }
  }
}

}  // namespace plateconfig
