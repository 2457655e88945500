#pragma once

// The place where operations on files can be made to fail. A full disk, a drive that goes away or a file that
// changes while it is read can not be had from every system on request, and everybody who reads or writes
// must cope with them. Whoever opens, reads, writes or renames a file here asks first.
//
//   struct NoWriting : FileFaults { bool Refuses(FileOperation operation) override { return operation ==
//   kWrite; } };

namespace plateconfig {

enum class FileOperation { kOpen, kRead, kWrite, kRename };

class FileFaults {
 public:
  virtual ~FileFaults() = default;

  /// True when this operation has to fail as if the system had refused it; a write then leaves a part at
  /// most.
  virtual bool Refuses(FileOperation operation) = 0;
};

/// From now on these are asked, until null is given: then nothing fails but what the system refuses.
void SetFileFaults(FileFaults* faults);

bool IsRefused(FileOperation operation);

}  // namespace plateconfig
