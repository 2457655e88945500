#pragma once

// Hole types from JSON (UTF-8: an array of objects, or one object after another) or CSV (GBK or UTF-8, one
// type a row; the lists of a cell are separated by ";", the values of a list by "_"). Mistakes are reported
// with their place, and the type is passed over. docs/holes.md describes both forms.

#include <istream>
#include <string>
#include <vector>

#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/messages/reporter.h"

namespace plateconfig {

/// Every type without a mistake. A type that can not accept any hole is warned of.
std::vector<HoleTypeInput> ReadHoleTypes(std::istream& in, const std::string& file, Reporter& reporter);

/// How many segments of each group a structure such as "1_0_2" means; empty when it is no structure that a
/// hole can have.
std::vector<std::size_t> SegmentCounts(const std::string& structure);

}  // namespace plateconfig
