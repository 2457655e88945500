#pragma once

// A table of a configuration as it was given: what a check looks at. Whoever reads files makes these.

#include <memory>
#include <string>

#include "analysis/schema/role.h"
#include "config/read_config_file.h"
#include "config/table.h"

namespace plateconfig {

struct GivenTable {
  Role role;
  std::string name;                    ///< The file as the configuration names it, UTF-8.
  bool exists = true;                  ///< False for a file that is not there.
  std::shared_ptr<const Table> table;  ///< Null for a file that is missing, or can not be read.
};

/// The table as the library's classes read it; an empty reader for one that can not be read.
inline ReadConfigFile ReaderOf(const GivenTable& given) {
  return given.table ? ReaderOf(given.table) : ReadConfigFile();
}

}  // namespace plateconfig
