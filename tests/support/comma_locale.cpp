#include "support/comma_locale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <memory>

namespace plateconfig::test {
namespace {

struct CommaNumbers : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

/// The names of one locale on the systems that the tests run on; a build outside Windows makes it
/// (tests/locales).
constexpr const char* kGerman[] = {"de_DE.UTF-8", "German_Germany.1252"};

bool HasCommaNow() {
  return *std::localeconv()->decimal_point == ',';
}

/// Sets the locale for every test of the program when the environment asks for it.
class EverythingInACommaLocale : public ::testing::Environment {
 public:
  void SetUp() override {
    if (std::getenv("PLATECONFIG_COMMA_LOCALE") == nullptr) return;
    locale_ = std::make_unique<CommaLocale>();
    ASSERT_TRUE(HasCommaNow()) << "the C library has no locale with a decimal comma";
  }
  void TearDown() override { locale_.reset(); }

 private:
  std::unique_ptr<CommaLocale> locale_;
};

[[maybe_unused]] const ::testing::Environment* const kEverything =
    ::testing::AddGlobalTestEnvironment(new EverythingInACommaLocale);

TEST(CommaLocale, HasADecimalCommaInTheCLibraryToo) {
#ifdef _WIN32
  GTEST_SKIP() << "the build makes the locale elsewhere";
#endif
  if (std::getenv("LOCPATH") == nullptr) GTEST_SKIP() << "the build did not make the locale";
  const CommaLocale comma;
  EXPECT_TRUE(HasCommaNow());
}

}  // namespace

CommaLocale::CommaLocale()
    : cBefore_(std::setlocale(LC_ALL, nullptr)),
      before_(std::locale::global(std::locale(std::locale::classic(), new CommaNumbers))) {
  for (const char* name : kGerman) {
    if (std::setlocale(LC_ALL, name) != nullptr) break;
  }
}

CommaLocale::~CommaLocale() {
  std::locale::global(before_);
  std::setlocale(LC_ALL, cBefore_.c_str());
}

}  // namespace plateconfig::test
