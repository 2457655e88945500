#pragma once

// One entry of the ordered process list of a rule table: a named process step and the condition under which
// it applies. Whoever knows the plate's features feeds them in; the rule then says whether its process
// applies.
//
//   ProcessRule rule(0, ProcessRule::RoundHoleDiameter, name, "6_8.5");
//   rule.SetValue(diameters);
//   if (rule.IsValid()) ...

#include <string>
#include <vector>

#include "plateconfig_export.h"

class PLATECONFIG_API ProcessRule {
 public:
  /// The condition. In brackets: the call that feeds it.
  enum RuleType {
    CustomProcess = 0,           ///< Applies when the caller says so [bool].
    HasRoundHole = 1,            ///< Round holes present [bool].
    HasIrregularSlot = 2,        ///< Irregular slots present [bool].
    HasThroughSlot = 3,          ///< Through slots present [bool].
    HasThroughVerticalSlot = 4,  ///< Through slot and vertical slot (kind 1) present [bool].
    HasThroughSpecialSlot = 5,   ///< Through slot and special slot (kind 2) present [bool].
    HasBlindSlot = 6,            ///< Blind slots present [bool].
    HasBlindNormalSlot = 7,      ///< Blind slot and normal slot (kind 3) present [bool].
    HasBlindSpecialSlot4 = 8,    ///< Blind slot and special slot (kind 4) present [bool].
    HasBlindSpecialSlot5 = 9,    ///< Blind slot and special slot (kind 5) present [bool].
    MachiningColor = 10,     ///< Profile finishing, profile roughing or special machining colour [colours].
    RoundHoleColor = 11,     ///< Round hole colour [colours].
    RoundHoleDiameter = 12,  ///< Round hole diameter [diameters].
    HoleCountAtLeast = 13,   ///< Hole count at least the parameter [count].
    HoleCountBelow = 14,     ///< Hole count positive and below the parameter [count].
    ThroughSlotColor = 15,   ///< Through slot colour [colours].
    ThroughVerticalSlotColor = 16,  ///< Through slot and vertical slot colour (kind 1) [colours].
    ThroughSpecialSlotColor = 17,   ///< Through slot and special slot colour (kind 2) [colours].
    BlindSlotColor = 18,            ///< Blind slot colour [colours].
    BlindNormalSlotColor = 19,      ///< Blind slot and normal slot colour (kind 3) [colours].
    BlindSpecialSlotColor4 = 20,    ///< Blind slot and special slot colour (kind 4) [colours].
    BlindSpecialSlotColor5 = 21,    ///< Blind slot and special slot colour (kind 5) [colours].
  };

  /// `number` is the position in the process list, the sort key. `name` (GBK) is the process and a column of
  /// the rule table, `value` the parameter: numbers joined by "_". The rule is not valid until it is fed.
  ProcessRule(int number, RuleType type, const std::string& name, const std::string& value);

  /// NX colour indices found on the plate: valid when one of them is among the parameter's numbers. Appends
  /// the trace of the rule to the diagnostic file of the rules.
  void SetValue(const std::vector<int>& values);

  /// Diameters found on the plate, mm: valid when one differs from one of the parameter's numbers by less
  /// than 0.0001.
  void SetValue(const std::vector<double>& values);

  /// Valid exactly when the feature is present.
  void SetValue(bool present);

  /// The plate's number of holes: `HoleCountAtLeast` is valid from the parameter on, `HoleCountBelow` for 1
  /// and more below the parameter. Every other type stays as it is.
  void SetHoleCount(int count);

  bool IsValid() const { return valid_; }
  std::string GetRuleName() const { return name_; }
  RuleType GetRuleType() const { return type_; }

  /// By number alone.
  bool operator<(const ProcessRule& other) const { return number_ < other.number_; }

 private:
  int number_;
  std::string name_;
  std::string value_;
  RuleType type_;
  bool valid_ = false;
};
