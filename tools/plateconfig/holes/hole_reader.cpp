#include "plateconfig/holes/hole_reader.h"

#include "plateconfig/input/input_form.h"

namespace plateconfig {

std::unique_ptr<HoleReader> ReadHoles(std::istream& in, const std::string& file, Reporter& reporter) {
  return IsJson(in, file) ? ReadHolesFromJson(in, file, reporter) : ReadHolesFromCsv(in, file, reporter);
}

}  // namespace plateconfig
