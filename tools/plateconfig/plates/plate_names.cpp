#include "plateconfig/plates/plate_names.h"

namespace plateconfig {

void PlateNames::Check(const PlateInput& plate, const std::string& file) {
  constexpr std::size_t kMostNames = 10000;
  const auto known = first_.find(plate.name);
  if (known == first_.end()) {
    if (first_.size() < kMostNames) first_[plate.name] = {file, plate.position.line};
    return;
  }
  Finding finding{"plate-name-twice", PlaceIn(file, plate.position)};
  finding.text = plate.name;
  finding.words = {ToString(known->second)};
  reporter_.Report(finding);
}

}  // namespace plateconfig
