#pragma once

// All kinds of slips, as data, one file for each part of the tables.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "slips/slip.h"
#include "slips/text_slips.h"

namespace plateconfig::slips {

/// What is made of a slip whose place may hold much: a number that is still a number.
enum class Result {
  kIsWrong,         ///< Always wrong.
  kMayBeFaultless,  ///< As plausible as before where the cell may well hold the new text.
  kAmongEquals,     ///< Two columns change places: as plausible as before where each may well hold what the
                    ///< other held.
};

/// One row of a list of slips in a text.
struct TextKind {
  const char* name;
  TextSlip slip;
  std::vector<What> whats;
  Result result = Result::kIsWrong;
};

/// One row of a list of slips that move cells or rows about. The function says what it touched, and nothing
/// where it can not be made; `at` is one of `whats`.
struct GridKind {
  const char* name;
  std::function<std::optional<Touched>(Grid& grid, const Site& at)> slip;
  std::vector<What> whats;
  Result result = Result::kIsWrong;  ///< Faultless: always, for nothing in the cells can tell.
};

/// One row of a list of slips with a file as a whole. Nothing: the file is gone.
struct FileKind {
  const char* name;
  std::function<std::optional<std::string>(const std::string& bytes)> slip;
  std::vector<What> whats;
};

void AddKinds(Group group, const std::vector<TextKind>& rows, std::vector<Kind>& kinds);
void AddKinds(Group group, const std::vector<GridKind>& rows, std::vector<Kind>& kinds);
void AddKinds(Group group, const std::vector<FileKind>& rows, std::vector<Kind>& kinds);

void AddHeaderKinds(std::vector<Kind>& kinds);
void AddRuleRowKinds(std::vector<Kind>& kinds);
void AddProcessListKinds(std::vector<Kind>& kinds);
void AddSettingKinds(std::vector<Kind>& kinds);
void AddFileKinds(std::vector<Kind>& kinds);
void AddManifestKinds(std::vector<Kind>& kinds);
void AddIndexKinds(std::vector<Kind>& kinds);
void AddHoleTypeKinds(std::vector<Kind>& kinds);

std::vector<Kind> AllKinds();

}  // namespace plateconfig::slips
