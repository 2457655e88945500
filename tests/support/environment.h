#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace plateconfig::test {

/// Sets an environment variable (nothing unsets it) until the end of the test.
class ScopedVariable {
 public:
  ScopedVariable(std::string name, std::optional<std::string> value) : name_(std::move(name)) {
    if (const char* before = std::getenv(name_.c_str())) before_ = before;
    Set(value);
  }
  ~ScopedVariable() { Set(before_); }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  void Set(const std::optional<std::string>& value) const {
#ifdef _WIN32
    _putenv_s(name_.c_str(), value.value_or("").c_str());
#else
    if (value) {
      setenv(name_.c_str(), value->c_str(), 1);
    } else {
      unsetenv(name_.c_str());
    }
#endif
  }

  std::string name_;
  std::optional<std::string> before_;
};

}  // namespace plateconfig::test
