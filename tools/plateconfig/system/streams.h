#pragma once

#include <istream>
#include <ostream>

namespace plateconfig {

/// Where the companion reads from and writes to; all text is UTF-8.
struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool showsProgress = false;  ///< Somebody watches `err`, and `out` goes elsewhere.
  bool isWatched = false;      ///< `out` is a terminal.
};

}  // namespace plateconfig
