#include "plateconfig/report/report_page.h"

#include <cstdint>
#include <nlohmann/json.hpp>

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

/// The element in which the page looks for data.
constexpr std::string_view kPlace = R"(<script type="application/json" id="plateconfig-data">)";

Json ToJson(const ReportData& data) {
  Json files = Json::array();
  for (const ReportFile& file : data.files) {
    Json& entry = files.emplace_back(Json{{"path", file.path}});
    if (!file.use.empty()) entry["use"] = file.use;
    entry["base64"] = Base64Of(file.bytes);
  }
  return {{"name", data.name}, {"written", data.written}, {"files", std::move(files)}};
}

/// JSON that can not end the element that it stands in, whatever a file is called.
std::string WithinElement(const Json& json) {
  std::string text;
  for (const char c : json.dump(-1, ' ', true, Json::error_handler_t::replace)) {
    if (c == '<') {
      text += "\\u003c";
    } else {
      text += c;
    }
  }
  return text;
}

}  // namespace

std::string Base64Of(std::string_view bytes) {
  constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  constexpr std::size_t kGroup = 3;  // Bytes, which give four digits.
  std::string text;
  text.reserve((bytes.size() + kGroup - 1) / kGroup * 4);
  for (std::size_t at = 0; at < bytes.size(); at += kGroup) {
    const std::string_view group = bytes.substr(at, kGroup);
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < kGroup; ++i) {
      bits = bits << 8 | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
    }
    for (std::size_t i = 0; i <= kGroup; ++i) {
      text += i <= group.size() ? kDigits[bits >> (18 - 6 * i) & 63U] : '=';
    }
  }
  return text;
}

std::optional<std::string> PageWithData(std::string page, const ReportData& data) {
  const std::size_t place = page.find(kPlace);
  if (place == std::string::npos || page.find(kPlace, place + 1) != std::string::npos) return std::nullopt;
  page.insert(place + kPlace.size(), WithinElement(ToJson(data)));
  return page;
}

}  // namespace plateconfig
