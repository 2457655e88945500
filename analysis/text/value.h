#pragma once

// A value as programs exchange it (what JSON can say), for whoever hands the results of an analysis on.
//
//   Value box = Object{{"row", 17}, {"blockers", List{3, 5}}, {"condition", nullptr}};

#include <cstddef>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace plateconfig {

class Value;

using List = std::vector<Value>;
/// Members in the order in which they are written.
using Object = std::vector<std::pair<std::string, Value>>;

class Value {
 public:
  using Content = std::variant<std::nullptr_t, bool, int, double, std::string, List, Object>;

  Value(std::nullptr_t) : content_(nullptr) {}
  Value(bool flag) : content_(flag) {}
  Value(int number) : content_(number) {}
  Value(double number) : content_(number) {}
  Value(std::string text) : content_(std::move(text)) {}
  Value(const char* text) : content_(std::string(text)) {}
  Value(List list) : content_(std::move(list)) {}
  Value(Object object) : content_(std::move(object)) {}

  const Content& Get() const { return content_; }

 private:
  Content content_;
};

}  // namespace plateconfig
