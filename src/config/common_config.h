#pragma once

// Finds the folder that holds the active configuration's tables.
//
//   std::string folder = CommonConfig().GetConfigFolderPath();   // e.g. the root, then \config\ and the
//   active folder

#include <string>

#include "plateconfig_export.h"

class PLATECONFIG_API CommonConfig {
 public:
  /// The active configuration folder as a host path (GBK), never with a trailing backslash. The host variable
  /// `TQConfig` names the root; below it lies the folder config, whose index table standard.csv marks the
  /// active sub-folders with Y or y. Each active row appends its folder, in row order. Without a usable index
  /// or an active row the answer is the folder config itself; an unset variable gives an empty text. Nothing
  /// is cached: each call looks everything up.
  std::string GetConfigFolderPath() const;
};
