#pragma once

// Findings as sentences, in the language that is asked for.
//
// The texts of codes.h may hold these places:
//
//   {offending}  the offending text in quotes, with a remark when it holds what is easily overlooked
//   {text}       the offending text as it is
//   {column}     the name of the column
//   {usedAs}     what the library takes it for
//   {fix}        what to write instead
//   {0} {1} …    the finding's further words
//   {0?} {1?} …  the same, put on where there is one: without it the sentence is whole too

#include <string>
#include <string_view>

#include "analysis/findings/finding.h"

namespace plateconfig {

/// What is wrong, one sentence.
std::string MessageOf(const Finding& finding, Language language);

/// What to write instead, one sentence; empty when nothing can be said.
std::string AdviceOf(const Finding& finding, Language language);

/// What the offending text counts as, to be put on behind the message: `; it is read as 45`. Empty when
/// nothing is known of it, or the message says it.
std::string UsedAsOf(const Finding& finding, Language language);

/// A text of codes.h for who reads about a code without having a finding: rows … and … write the same. What
/// is put on where there is one is left out.
std::string OutlineOf(std::string_view text);

/// All of it on one line, in front of it the cell: C3: "45o" is not a number; write it like 450 or 12.5; it
/// is read as 45
std::string LineOf(const Finding& finding, Language language);

/// A severity as programs know it.
std::string_view NameOf(Severity severity);

/// A severity for people.
Words WordsOf(Severity severity);

}  // namespace plateconfig
