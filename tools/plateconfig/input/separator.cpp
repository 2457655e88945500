#include "plateconfig/input/separator.h"

#include "analysis/text/separator.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {

std::string OtherSeparator(const std::string& onlyCell) {
  const auto separator = FindOtherSeparator(onlyCell);
  if (!separator) return {};
  return Say(
      "the columns are separated by {}, not by commas, so none of them is found; save the file as CSV with "
      "commas",
      "各列以{}而不是逗号分隔，因此找不到任何列；请存为以逗号分隔的 CSV", separator->In(CurrentLanguage()));
}

}  // namespace plateconfig
