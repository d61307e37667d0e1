#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

#include "base/DateText.h"

namespace nomra::base {
namespace {

// Sets TZ for one test and puts the earlier value back afterwards.
class ScopedTimeZone {
 public:
  explicit ScopedTimeZone(const char* zone) {
    if (const char* old = std::getenv("TZ")) saved_ = old;
    setenv("TZ", zone, 1);
    tzset();
  }
  ~ScopedTimeZone() {
    if (saved_) {
      setenv("TZ", saved_->c_str(), 1);
    } else {
      unsetenv("TZ");
    }
    tzset();
  }
  ScopedTimeZone(const ScopedTimeZone&) = delete;
  ScopedTimeZone& operator=(const ScopedTimeZone&) = delete;

 private:
  std::optional<std::string> saved_;
};

TEST(BaseDateText, FormatsTheEpochInUtc) {
  ScopedTimeZone zone("UTC");
  EXPECT_EQ(FormatListDate(0), "1970-01-01 00:00:00");
}

TEST(BaseDateText, FormatsAKnownMomentInUtc) {
  ScopedTimeZone zone("UTC");
  EXPECT_EQ(FormatListDate(1700000000), "2023-11-14 22:13:20");
  EXPECT_EQ(FormatListDate(951782400), "2000-02-29 00:00:00");
}

TEST(BaseDateText, UsesLocalTime) {
  // A fixed offset two hours east of UTC (POSIX writes the sign the other way).
  ScopedTimeZone zone("XXT-2");
  EXPECT_EQ(FormatListDate(1700000000), "2023-11-15 00:13:20");
}

TEST(BaseDateText, DefaultListDateHasTheListForm) {
  ScopedTimeZone zone("UTC");
  EXPECT_EQ(FormatListDate(315532800), kDefaultListDate);  // 1980-01-01 00:00:00 UTC
}

TEST(BaseDateText, TimeStampIsFourteenDigitsWithLeadingZeros) {
  std::tm when{};
  when.tm_year = 1999 - 1900;
  when.tm_mon = 0;
  when.tm_mday = 2;
  when.tm_hour = 3;
  when.tm_min = 4;
  when.tm_sec = 5;
  EXPECT_EQ(FormatTimeStamp(when), "19990102030405");
}

}  // namespace
}  // namespace nomra::base
