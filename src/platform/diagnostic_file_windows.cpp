#include <string>

#include "platform/diagnostic_file.h"

namespace plateconfig {

std::FILE* OpenPlatformDiagnosticFile(Diagnostic which) {
  // Text mode, whatever mode the host has set for the files of its process.
  return std::fopen((std::string("D:\\") + DiagnosticFileName(which)).c_str(), "at");
}

}  // namespace plateconfig
