#pragma once

// A copy of the samples in which one slip at a time is made, and what the library makes of it.

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "plateconfig/plates/plate_reader.h"
#include "slips/slip.h"
#include "support/temporary_folder.h"

namespace plateconfig::slips {

class Trial {
 public:
  explicit Trial(const std::vector<SampleFile>& samples);

  /// Everything that comes of this file, as one text: of a table its settings, of the process tables the
  /// process texts of all sample plates too, of a manifest all of its configuration, of the index the active
  /// folder, of hole types the types of all sample holes. Values only, no message and no place.
  std::string Outcome(const SampleFile& file) const;

  void Make(const SampleFile& file, const Change& change);
  /// Puts the file back as it was.
  void Undo(const SampleFile& file);

  /// Paths as a command line has them.
  std::string ConfigurationPath(const std::string& configuration) const;
  std::string Path(const std::string& file) const;
  /// The configuration root, with what a slip has put behind it.
  std::string Root() const;

 private:
  std::string ProcessTexts(const std::string& configuration) const;

  test::TemporaryFolder folder_;
  std::string rootSuffix_;
  std::map<std::string, std::vector<PlateInput>>
      plates_;  ///< By configuration: fed by the names of its processes.
};

}  // namespace plateconfig::slips
