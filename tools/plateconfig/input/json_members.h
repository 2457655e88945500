#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "plateconfig/input/json_node.h"
#include "plateconfig/messages/reporter.h"

namespace plateconfig {

/// Hands every member of an object to `read`, which gives false for a name that it does not know. Such a name
/// is warned of (with the most similar one of `known`), and so is a second member of one name, which is
/// ignored.
void ReadMembers(const JsonNode& object, const std::vector<std::string_view>& known, Reporter& reporter,
                 const std::function<bool(const std::string& name, const JsonNode& node)>& read);

}  // namespace plateconfig
