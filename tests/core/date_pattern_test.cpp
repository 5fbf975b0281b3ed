// The hand-written patterns must give what the full formatter gives, written and read back, in
// every language and across changes of the zone's offset.
#include "core/date_pattern.h"

#include <gtest/gtest.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <limits>
#include <memory>
#include <optional>
#include <string>

#include "core/dates.h"

namespace lad {
namespace {

using namespace std::chrono_literals;

constexpr const char* kZone = "Europe/Berlin";

// The full formatter, strict, reading the whole text or nothing.
class Reference {
 public:
  Reference(const char* pattern, const char* locale) {
    UErrorCode status = U_ZERO_ERROR;
    format_ = std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString::fromUTF8(pattern),
                                                      icu::Locale(locale), status);
    format_->adoptTimeZone(icu::TimeZone::createTimeZone(kZone));
    format_->setLenient(false);
  }
  std::string write(Date d) const {
    icu::UnicodeString out;
    format_->format(static_cast<UDate>(d.time_since_epoch().count()), out);
    std::string text;
    return out.toUTF8String(text);
  }
  std::optional<Date> read(const std::string& text) const {
    const auto u = icu::UnicodeString::fromUTF8(text);
    icu::ParsePosition pos(0);
    const UDate t = format_->parse(u, pos);
    if (pos.getErrorIndex() >= 0 || pos.getIndex() == 0 || pos.getIndex() != u.length())
      return std::nullopt;
    return Date(std::chrono::milliseconds(static_cast<std::int64_t>(t)));
  }

 private:
  std::unique_ptr<icu::SimpleDateFormat> format_;
};

// Moments from 1890 to 2110 at an odd step, so that the times of day and the days of the month
// vary, and every quarter hour of the two days around each change of offset in 2026.
std::vector<Date> sampleMoments() {
  std::vector<Date> out;
  const Date first = *dateFromIso("1890-01-01T00:00:00Z");
  const Date last = *dateFromIso("2110-01-01T00:00:00Z");
  for (Date d = first; d < last; d += 991h + 7min + 13s + 1ms) out.push_back(d);
  for (const char* change : {"2026-03-28T12:00:00Z", "2026-10-24T12:00:00Z"}) {
    const Date start = *dateFromIso(change);
    for (Date d = start; d < start + 48h; d += 15min) out.push_back(d);
  }
  return out;
}

void expectAgreement(const DateCodec& codec, const char* locale, const char* pattern) {
  static const std::vector<Date> moments = sampleMoments();
  const Reference reference(pattern, locale);
  int mismatches = 0;
  for (Date d : moments) {
    const std::string expected = reference.write(d);
    const std::string text = codec.dateToString(d, pattern);
    const bool same =
        text == expected && codec.dateFromStringFormat(text, pattern) == reference.read(text);
    EXPECT_TRUE(same) << pattern << " " << locale << " " << dateToIso(d) << ": " << text << " vs "
                      << expected;
    if (!same && ++mismatches > 3) return;
  }
}

// Numbers in Russian only (they are the same in every language); month names in every language.
TEST(DatePattern, WritesAndReadsAsTheFullFormatter) {
  for (const char* pattern : {"yyyy-MM-dd", "yyyy-MM-dd HH:mm:ss", "yyyy-MM-dd HH:mm", "dd.MM.yyyy",
                              "dd.MM.yyyy HH:mm", "dd-MM-yyyy", "yyMMdd", "dd", "dd.MM", "dd.MM.yy",
                              "-MM-dd", "HH:mm", "'T'HH'h'''mm", "dd.MM 'в"})
    expectAgreement(DateCodec(kZone, 1), "ru_RU", pattern);
  for (const auto& [langid, locale] : {std::pair{1, "ru_RU"}, {2, "de_DE"}, {3, "fr_FR"}})
    for (const char* pattern : {"dd MMMM yyyy", "MMMM yyyy", "dd 'de' MMMM"})
      expectAgreement(DateCodec(kZone, langid), locale, pattern);
}

TEST(DatePattern, ReadsWhatTheFullFormatterReadsAndRefusesTheRest) {
  const DateCodec codec(kZone, 1);
  struct Case {
    const char* pattern;
    const char* text;
    bool reads;
  };
  const Case cases[] = {
      {"yyyy-MM-dd", "2024-02-29", true},
      {"yyyy-MM-dd", "2026-02-29", false},   // no such day
      {"yyyy-MM-dd", "2026-3-05", true},     // a short month still reads
      {"yyyy-MM-dd", "2026-03-5", false},    // a short day at the end does not
      {"yyyy-MM-dd", "2026-03-05x", false},  // more than the pattern
      {"yyyy-MM-dd", "0000-01-01", false},
      {"yyyy-MM-dd", "", false},
      {"yyyy-MM-dd HH:mm:ss", "2026-03-29 02:30:00", false},  // skipped by the spring change
      {"yyyy-MM-dd HH:mm:ss", "2026-10-25 02:30:00", true},   // twice on the autumn change
      {"yyyy-MM-dd HH:mm:ss", "2026-03-05 24:00:00", false},
      {"dd MMMM yyyy", "05 марта 2026", true},
      {"dd MMMM yyyy", "05 март 2026", false},
  };
  for (const Case& c : cases) {
    const auto expected = Reference(c.pattern, "ru_RU").read(c.text);
    EXPECT_EQ(codec.dateFromStringFormat(c.text, c.pattern), expected)
        << c.pattern << " " << c.text;
    EXPECT_EQ(expected.has_value(), c.reads) << c.pattern << " " << c.text;
  }
}

// Moments outside the years 1 to 9999 write nothing, however far out they are.
TEST(DatePattern, WritesOnlyTheYearsOneTo9999) {
  const MonthNames months{"января", "февраля", "марта",    "апреля",  "мая",    "июня",
                          "июля",   "августа", "сентября", "октября", "ноября", "декабря"};
  const std::pair<LocalMillis, const char*> cases[] = {
      {-62'135'596'800'000, "0001-01-01 00:00"},
      {-62'135'596'800'001, nullptr},
      {253'402'300'799'999, "9999-12-31 23:59"},
      {253'402'300'800'000, nullptr},
      {std::numeric_limits<LocalMillis>::min() + 1, nullptr},
      {std::numeric_limits<LocalMillis>::max(), nullptr},
  };
  for (const auto& [local, text] : cases) {
    const auto written = formatDatePattern(local, "yyyy-MM-dd HH:mm", months);
    EXPECT_EQ(written, text ? std::optional<std::string>(text) : std::nullopt) << local;
  }
}

}  // namespace
}  // namespace lad
