#include "plateconfig/messages/shown_numbers.h"

namespace plateconfig {

std::string ShownNumber(double value) {
  return fmt::format("{:.10g}", value);
}

}  // namespace plateconfig
