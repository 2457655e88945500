#pragma once

// The public face of plateconfig::analysis: what can be said about tables, without the command's
// dependencies.
//
//   CheckReport report = CheckConfiguration(tables, {});          // every mistake in the tables of a
//   configuration RuleAnalysisEnd end = AnalyseRules(text, rules, {}, raise);   // what a rule table covers,
//   exactly ConfigurationDifference difference = Compare(before, after, …);  // two configurations by what
//   they mean

#include "analysis/checks/configuration_check.h"
#include "analysis/checks/rule_findings.h"
#include "analysis/differences/configuration_difference.h"
#include "analysis/findings/sentence.h"
