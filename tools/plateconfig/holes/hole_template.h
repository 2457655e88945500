#pragma once

#include <string>

namespace plateconfig {

/// A file of combined holes (CSV in GBK, CR LF) with every column and one hole of two segments.
std::string HoleTemplate();

/// A file of hole types with every column and the type that this hole belongs to.
std::string HoleTypeTemplate();

}  // namespace plateconfig
