#include "plateconfig/checking/gathered_tables.h"

#include <optional>
#include <utility>

#include "plateconfig/tables/reported_table.h"

namespace plateconfig {
namespace {

class Gathering {
 public:
  Gathering(Configuration& configuration, const ConfigurationOptions& options, Reporter& reporter)
      : configuration_(configuration), options_(options), reporter_(reporter) {}

  GatheredTables Run() {
    reporter_.CollectInto(&gathered_.wayThere);
    reporter_.LookAtFiles();
    for (const RoleRow& role : ManifestRoles()) {
      if (!IsWithoutFolder() || options_.tables.contains(role.role)) Gather(role);
    }
    if (!IsWithoutFolder()) gathered_.folder = configuration_.FolderName();
    reporter_.CollectInto(nullptr);
    return std::move(gathered_);
  }

 private:
  /// Only the tables of the command line, when it names some and no folder.
  bool IsWithoutFolder() const { return options_.folder.empty() && !options_.tables.empty(); }

  void Gather(const RoleRow& role) {
    if (const auto file = configuration_.FindOptional(role.role)) {
      gathered_.tables.push_back(GivenFrom(role.role, *file));
    } else if (reporter_.Result() != kUnusable && configuration_.IsUsable()) {
      NoteMissing(role);
    }
  }

  void NoteMissing(const RoleRow& role) {
    Finding finding{"role-without-file", {ManifestIn(configuration_.FolderName())}};
    finding.text = std::string(role.name);
    gathered_.wayThere.push_back(finding);
  }

  Configuration& configuration_;
  const ConfigurationOptions& options_;
  Reporter& reporter_;
  GatheredTables gathered_;
};

}  // namespace

GatheredTables GatherTables(Configuration& configuration, const ConfigurationOptions& options,
                            Reporter& reporter) {
  return Gathering(configuration, options, reporter).Run();
}

}  // namespace plateconfig
