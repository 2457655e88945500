#pragma once

// What a report holds: the files themselves, as the page would have read them from a disk.

#include <optional>
#include <string>
#include <vector>

#include "plateconfig/messages/reporter.h"
#include "plateconfig/tables/configuration.h"

namespace plateconfig {

/// What `report` is asked to put in; UTF-8.
struct ReportInputs {
  ConfigurationOptions configuration;
  std::vector<std::string> plates;
  std::vector<std::string> holes;
  std::vector<std::string> holeTypes;
};

struct ReportFile {
  /// As if the configuration folder and the other files lay in one folder; UTF-8, with slashes.
  std::string path;
  std::string bytes;
  std::string use;  ///< "plates", "holes" or "hole-types"; empty for what belongs to the configuration.
};

struct ReportData {
  std::string name;     ///< The configuration folder's own, UTF-8.
  std::string written;  ///< When: 2026-01-31T08:30:00Z.
  std::vector<ReportFile> files;
};

/// Reads everything. A table that lies outside of the folder keeps the path by which the manifest leads to
/// it. Nothing, with an error reported, when a file that the command line names can not be
/// read; of tables that are missing the page itself will tell.
std::optional<ReportData> ReadReportData(const ReportInputs& inputs, Reporter& reporter);

}  // namespace plateconfig
