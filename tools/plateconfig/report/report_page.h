#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "plateconfig/report/report_data.h"

namespace plateconfig {

/// The bytes as base64.
std::string Base64Of(std::string_view bytes);

/// The page with the data inside, which it shows as soon as it is opened. Nothing when the text is not the
/// page: the place for the data is not there, or twice.
std::optional<std::string> PageWithData(std::string page, const ReportData& data);

}  // namespace plateconfig
