#pragma once

#include <map>
#include <string>

#include "plateconfig/messages/reporter.h"
#include "plateconfig/plates/plate_fields.h"

namespace plateconfig {

/// Warns of plates that have one name: results are told apart by it. Names are kept of the first ten thousand
/// plates only, so that a long file needs no memory.
class PlateNames {
 public:
  explicit PlateNames(Reporter& reporter) : reporter_(reporter) {}

  void Check(const PlateInput& plate, const std::string& file);

 private:
  Reporter& reporter_;
  std::map<std::string, Place> first_;  ///< Where each name stands first.
};

}  // namespace plateconfig
