#include <string>

#include "platform/diagnostic_file.h"

namespace plateconfig {

std::FILE* OpenPlatformDiagnosticFile(Diagnostic which) {
  return std::fopen((std::string("D:\\") + DiagnosticFileName(which)).c_str(), "a");
}

}  // namespace plateconfig
