#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "plateconfig/messages/reporter.h"

namespace plateconfig {

enum class IfPresent {
  kReplace,
  kKeep,          ///< An error, which --force would help.
  kMustNotExist,  ///< An error whatever the user says.
};

/// A file that is written piece by piece under a temporary name beside it and renamed at the end, so that
/// nobody ever meets half a file. A symbolic link stays one, its file is replaced; a device or a pipe is
/// written into.
///
///   if (auto file = OutputFile::Open(path, IfPresent::kKeep, reporter)) {
///     file->Stream() << "text\n";
///     file->Finish(reporter);
///   }
class OutputFile {
 public:
  /// `path` is UTF-8. Null, with an error reported, when it can not be written or is to be kept.
  static std::unique_ptr<OutputFile> Open(const std::string& path, IfPresent ifPresent, Reporter& reporter);
  /// Without `Finish` nothing was written.
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  std::ostream& Stream();
  /// Puts the file where it belongs; false, with an error reported, when that does not work.
  bool Finish(Reporter& reporter);

 private:
  struct Place;

  OutputFile(std::string path, std::unique_ptr<Place> place);

  std::string path_;
  std::unique_ptr<Place> place_;
};

/// Writes a whole file in one go. False, with an error reported, when that does not work or a file that is to
/// be kept is there.
bool WriteOutputFile(const std::string& path, std::string_view bytes, IfPresent ifPresent,
                     Reporter& reporter);

}  // namespace plateconfig
