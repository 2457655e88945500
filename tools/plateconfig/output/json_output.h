#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace plateconfig {

/// What is not there is null.
template <typename Value>
nlohmann::ordered_json OrNull(const std::optional<Value>& value) {
  return value ? nlohmann::ordered_json(*value) : nlohmann::ordered_json(nullptr);
}

/// Writes a JSON array element by element, one a line, so that a long one needs no memory.
class JsonArray {
 public:
  /// What is written when there is no element.
  static constexpr std::string_view kEmpty = "[]\n";

  explicit JsonArray(std::ostream& out) : out_(out) {}
  ~JsonArray() { out_ << (isEmpty_ ? kEmpty : "\n]\n"); }
  JsonArray(const JsonArray&) = delete;
  JsonArray& operator=(const JsonArray&) = delete;

  void Add(const nlohmann::ordered_json& element) {
    out_ << (isEmpty_ ? "[\n" : ",\n") << ToText(element);
    isEmpty_ = false;
  }

  /// One line of UTF-8.
  static std::string ToText(const nlohmann::ordered_json& value) {
    return value.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
  }

 private:
  std::ostream& out_;
  bool isEmpty_ = true;
};

}  // namespace plateconfig
