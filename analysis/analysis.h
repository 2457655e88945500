#pragma once

// The public face of plateconfig::analysis: what can be said about tables, without the command's
// dependencies.
//
// Every mistake in the tables of a configuration:
//
//   CheckReport report = CheckConfiguration(tables, {});
//
// What a rule table covers, exactly:
//
//   RuleAnalysisEnd end = AnalyseRules(text, rules, {}, raise);
//
// Two configurations by what they mean:
//
//   ConfigurationDifference difference = Compare(before, after);

#include "analysis/checks/configuration_check.h"
#include "analysis/checks/rule_findings.h"
#include "analysis/differences/configuration_difference.h"
#include "analysis/findings/sentence.h"
