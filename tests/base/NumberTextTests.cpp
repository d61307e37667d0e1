#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>
#include <string>

#include "base/NumberText.h"
#include "support/ScopedEnvironment.h"

namespace nomra::base {

using nomra::testing::ScopedEnvironment;
namespace {

// Sets LC_NUMERIC for one test and puts the earlier one back afterwards.
class ScopedNumericLocale {
 public:
  ScopedNumericLocale() {
    const char* current = std::setlocale(LC_NUMERIC, nullptr);
    saved_ = current != nullptr ? current : "C";
  }
  ~ScopedNumericLocale() { std::setlocale(LC_NUMERIC, saved_.c_str()); }
  ScopedNumericLocale(const ScopedNumericLocale&) = delete;
  ScopedNumericLocale& operator=(const ScopedNumericLocale&) = delete;

  bool Use(const char* name) { return std::setlocale(LC_NUMERIC, name) != nullptr; }

 private:
  std::string saved_;
};

TEST(BaseNumberText, GroupsByThreesWithACommaInTheCLocale) {
  ScopedNumericLocale locale;
  ASSERT_TRUE(locale.Use("C"));
  EXPECT_EQ(FormatGrouped(0), "0");
  EXPECT_EQ(FormatGrouped(7), "7");
  EXPECT_EQ(FormatGrouped(999), "999");
  EXPECT_EQ(FormatGrouped(1000), "1,000");
  EXPECT_EQ(FormatGrouped(12345), "12,345");
  EXPECT_EQ(FormatGrouped(100000), "100,000");
  EXPECT_EQ(FormatGrouped(1234567), "1,234,567");
  EXPECT_EQ(FormatGrouped(UINT64_MAX), "18,446,744,073,709,551,615");
}

TEST(BaseNumberText, GroupsWithTheLocalesCharacter) {
  // The build compiles a German locale of its own where the system's
  // locale sources are installed, so the test doesn't hang on which
  // locales the machine has generated.
  const ScopedEnvironment builtLocales("LOCPATH", NOMRA_TEST_LOCALES);
  ScopedNumericLocale locale;
  const char* const candidates[] = {"de_DE.UTF-8", "de_DE.utf8",  "de_AT.UTF-8", "de_DE",
                                    "nl_NL.UTF-8", "it_IT.UTF-8", "es_ES.UTF-8"};
  const char* used = nullptr;
  for (const char* name : candidates) {
    if (locale.Use(name)) {
      used = name;
      break;
    }
  }
  if (used == nullptr)
    GTEST_SKIP() << "no locale that groups with \".\" is installed, and the locales package is missing to build one";
  ASSERT_STREQ(std::localeconv()->thousands_sep, ".") << used;
  EXPECT_EQ(FormatGrouped(999), "999");
  EXPECT_EQ(FormatGrouped(1000), "1.000");
  EXPECT_EQ(FormatGrouped(1234567), "1.234.567");
}

TEST(BaseNumberText, PadsWithZerosToTheWidth) {
  EXPECT_EQ(FormatPadded(5, 12), "000000000005");
  EXPECT_EQ(FormatPadded(0, 3), "000");
  EXPECT_EQ(FormatPadded(42, 2), "42");
}

TEST(BaseNumberText, PaddingNeverCutsALongerNumber) {
  EXPECT_EQ(FormatPadded(123456, 3), "123456");
  EXPECT_EQ(FormatPadded(9, 0), "9");
}

}  // namespace
}  // namespace nomra::base
