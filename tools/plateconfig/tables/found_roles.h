#pragma once

// Which table of a folder plays which role, found by the columns that it has.

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/schema/role.h"
#include "analysis/text/words.h"

namespace plateconfig {

/// A kind of file that may lie among the tables and is none of them, such as a file of plates.
struct OtherKind {
  std::string_view id;  ///< As programs know it.
  Words name;
  std::vector<std::string> columns;  ///< UTF-8; a file that has all of these is of the kind.
};

/// A file that plays no role for certain.
struct LeftOutFile {
  std::string name;         ///< UTF-8
  std::string why;          ///< In the current language.
  std::string_view kind;    ///< The id of another kind; empty for what is of none.
  bool isDoubtful = false;  ///< It may be a table; false for one of another kind.
};

struct FoundRoles {
  std::map<Role, std::string> certain;  ///< Names of files, UTF-8.
  std::vector<LeftOutFile> leftOut;     ///< By their names.
};

/// Looks at the tables and workbooks of the folder. A table plays a role when most of its columns are the
/// role's, when it has more than a stray one of them, and when no other table fits the role nearly as well.
FoundRoles FindRoles(const std::filesystem::path& folder, const std::vector<OtherKind>& others);

}  // namespace plateconfig
