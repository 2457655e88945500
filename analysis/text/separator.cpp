#include "analysis/text/separator.h"

namespace plateconfig {

std::optional<Words> FindOtherSeparator(std::string_view onlyCell) {
  if (onlyCell.find(';') != std::string_view::npos) return Words{"semicolons", "分号"};
  if (onlyCell.find('\t') != std::string_view::npos) return Words{"tabs", "制表符"};
  if (onlyCell.find("，") != std::string_view::npos) return Words{"full-width commas", "全角逗号"};
  return std::nullopt;
}

}  // namespace plateconfig
