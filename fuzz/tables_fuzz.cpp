// Any bytes as every table of a configuration at once.
#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>

#include "analysis/schema/role.h"
#include "fuzz/companion_run.h"

namespace {

constexpr const char* kPlate =
    R"({"name": "a", "length": 300, "width": 200, "thickness": 50, "weight": 20, "color": 12})";

/// A configuration whose tables are all the same file.
class OneTable {
 public:
  OneTable() {
    nlohmann::json roles;
    for (const plateconfig::RoleRow& role : plateconfig::ManifestRoles())
      roles[std::string(role.name)] = "table.csv";
    folder_.WriteBytes("tables.json", roles.dump());
  }

  std::string Path() const { return plateconfig::test::ArgumentPath(folder_, ""); }
  void Write(std::string_view bytes) const { folder_.WriteBytes("table.csv", bytes); }

 private:
  plateconfig::test::TemporaryFolder folder_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const OneTable configuration;
  configuration.Write({reinterpret_cast<const char*>(data), size});
  using plateconfig::fuzz::RunInEachForm;
  RunInEachForm({"show", "--config", configuration.Path()}, "");
  RunInEachForm({"explain", "--config", configuration.Path(), "-"}, kPlate);
  return 0;
}
