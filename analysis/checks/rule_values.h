#pragma once

// What the analysis of rule tables finds, as values for programs.
//
//   finding.members = {{"box", BoxValue(gap.box)}, {"group", GroupValue(gap.group)},
//                      {"witness", WitnessValue(gap.witness)}};

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "analysis/rules/gaps.h"
#include "analysis/rules/rule_regions.h"
#include "analysis/text/value.h"
#include "analysis/text/words.h"

namespace plateconfig {

/// The feature that decides a condition of this type, as plate files call it (UTF-8): the text of the first
/// such condition, because those of one type are fed together.
std::string FeatureName(ProcessRule::RuleType type);

/// The name of a size, profile, wire-cutting or material condition: `length`, `wireCutting`.
const char* NameOf(Condition condition);
/// The same for people.
Words WordsOf(Condition condition);

/// The place in `kSizeConditions` of the size of this name; nothing when none has it.
std::optional<std::size_t> SizeNamed(std::string_view name);

/// `{"length": [low, high], …}`; an end that is infinite is null.
Value BoxValue(const Box& box);

/// `{"colors": …, "profile": …, "wireCutting": …}`.
Value GroupValue(const GroupName& group);
/// The same; of tables whose answers do not always agree it has those of each.
Value GroupValue(const RegionGroup& group, bool answersAgree);

/// A plate as plate files in JSON have it: what is 0, empty or unknown is left out where they may leave it
/// out. The name is UTF-8.
Object PlateValue(const std::string& name, const Plate& plate, const PlateFeatures& features);
/// A plate that shows what a finding says.
Value WitnessValue(const Plate& plate, const PlateFeatures& features = {});

/// Column and cell of each pair.
Value NewRowValue(const NewRow& row);

}  // namespace plateconfig
