#pragma once

// Which file plays which role: what the command line names, else what the manifest tables.json of the
// configuration folder says. The folder is the one that the command line names, else the active one below
// TQConfig.

#include <map>
#include <optional>
#include <string>

#include "analysis/schema/role.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/tables/pipe_copies.h"

namespace plateconfig {

struct JsonNode;

/// What the command line says; UTF-8, empty when it says nothing.
struct ConfigurationOptions {
  std::string folder;
  std::map<Role, std::string> tables;
};

struct TableFile {
  std::string hostPath;  ///< As the library takes it; of a pipe, that of a copy.
  std::string shownAs;   ///< UTF-8, for messages.
};

/// The configuration root that the host's variable names; one that is empty counts as unset.
std::optional<std::string> RootThatIsSet();

/// The manifest of a folder (UTF-8).
std::string ManifestIn(const std::string& folder);

/// What is said of a file where a folder should be.
std::string FileInsteadOfFolder();

/// Lives as long as its tables are read.
class Configuration {
 public:
  /// Both are referred to, not copied.
  Configuration(const ConfigurationOptions& options, Reporter& reporter)
      : options_(options), reporter_(reporter) {}

  /// The table of a role; nothing when no file plays it or the copy of a pipe can not be written, which is
  /// reported as an error, here or when the manifest was looked for.
  std::optional<TableFile> Find(Role role);

  /// The same without an error for a role that the manifest does not name.
  std::optional<TableFile> FindOptional(Role role);

  /// The folder, UTF-8, with a separator at its end; empty when there is none.
  const std::string& FolderName();
  /// The folder whose manifest was looked for, UTF-8, without a separator at its end, whether it could be
  /// read or not; empty when none was.
  std::string FolderThatWasRead() const;
  /// Whether the manifest could be read.
  bool IsUsable() const { return isUsable_; }

 private:
  std::optional<TableFile> NamedTable(Role role);
  std::optional<TableFile> ReadableAgain(const TableFile& table);
  bool FindFolder();
  void ReadManifest();
  void ReportMissing(const TableFile& manifest);
  void ReadRole(const std::string& name, const JsonNode& file, const TableFile& manifest);
  void CheckName(const std::string& name, const Place& place);
  std::optional<TableFile> InFolder(const std::string& name) const;

  const ConfigurationOptions& options_;
  Reporter& reporter_;
  bool isRead_ = false;
  bool isUsable_ = false;  ///< The manifest was read; else what is wrong is reported already.
  TableFile folder_;       ///< Ends with a separator; empty when there is none.
  std::map<Role, std::string> manifest_;
  PipeCopies copies_;
};

}  // namespace plateconfig
