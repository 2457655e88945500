#pragma once

#include <clocale>
#include <locale>
#include <string>

namespace plateconfig::test {

/// Numbers as a host in Germany writes them, for the C library and for streams: a decimal comma, and points
/// between the thousands; until the end of the test. With PLATECONFIG_COMMA_LOCALE set the whole test program
/// runs so.
class CommaLocale {
 public:
  CommaLocale();
  ~CommaLocale();
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

 private:
  std::string cBefore_;
  std::locale before_;
};

/// Lets this thread's printf and strtod write and read numbers with points, whatever the program's locale;
/// for the naive references that ask the C library. On Windows, where the whole program is not run with
/// commas, it does nothing.
class ClassicNumbers {
#ifdef _WIN32
 public:
  ~ClassicNumbers() {}
#else
 public:
  ClassicNumbers() : before_(uselocale(Classic())) {}
  ~ClassicNumbers() {
    uselocale(before_);
  }
  ClassicNumbers(const ClassicNumbers&) = delete;
  ClassicNumbers& operator=(const ClassicNumbers&) = delete;

 private:
  static locale_t Classic() {
    static const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
    return classic;
  }

  locale_t before_;
#endif
};

}  // namespace plateconfig::test
