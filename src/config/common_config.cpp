#include "config/common_config.h"

#include "config/configuration_index.h"

std::string CommonConfig::GetConfigFolderPath() const {
  const auto root = plateconfig::ConfigurationRoot();
  return root ? plateconfig::ReadConfigurationIndex(*root).activeFolder : std::string();
}
