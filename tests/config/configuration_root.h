#pragma once

#include <string>
#include <string_view>

#include "config/configuration_index.h"
#include "support/environment.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {

/// A configuration root in a fresh folder, to which the host's variable leads.
class TemporaryRoot {
 public:
  TemporaryRoot() : variable_(kRootVariable, Path()) {}

  std::string Path() const { return folder_.Path().string(); }
  const TemporaryFolder& Folder() const { return folder_; }

  /// The folder config as the library spells it.
  std::string ConfigFolder() const { return Path() + "\\config"; }

  void WriteIndex(std::string_view utf8) const { folder_.WriteTable("config/standard.csv", utf8); }

 private:
  TemporaryFolder folder_;
  ScopedVariable variable_;
};

}  // namespace plateconfig::test
