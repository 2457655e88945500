#pragma once

// Files of holes and of hole types that the user names (UTF-8; "-" is standard input).

#include <functional>
#include <string>
#include <vector>

#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/system/streams.h"

namespace plateconfig {

/// The types of all files, in their order; what is wrong is reported.
std::vector<HoleTypeInput> ReadTypeFiles(const std::vector<std::string>& files, const Streams& streams,
                                         Reporter& reporter);

/// Visits every hole of every file; mistakes are reported and passed over.
void VisitHoleFiles(const std::vector<std::string>& files, const Streams& streams, Reporter& reporter,
                    const std::function<void(const HoleInput& hole)>& visit);

}  // namespace plateconfig
