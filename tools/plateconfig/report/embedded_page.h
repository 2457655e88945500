#pragma once

#include <string>

namespace plateconfig {

/// The page that this program was built with (CMake's PLATECONFIG_PAGE); empty when it was built without one.
/// The build writes its source (cmake/embed_page.cmake).
std::string EmbeddedPage();

}  // namespace plateconfig
