#include "core/dates.h"

#include <unicode/basictz.h>
#include <unicode/dtfmtsym.h>
#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <stdexcept>
#include <unordered_map>

#include "core/clock.h"
#include "core/date_pattern.h"
#include "core/text_hash.h"

namespace lad {

namespace {

// Calendars and formatters keep state between calls, so each thread has its own, built on first
// use. The bounds keep a thread that meets many codecs or patterns from growing without end.
constexpr std::size_t kCodecsPerThread = 8;
constexpr std::size_t kPatternsPerCodec = 32;

// A change to the Gregorian rules this far back makes the calendar proleptic, like the
// hand-written patterns.
constexpr UDate kProlepticCutover = -1e15;

std::atomic<std::uint64_t> nextSerial{1};

UDate toUDate(Date d) {
  return static_cast<UDate>(d.time_since_epoch().count());
}

Date fromUDate(UDate u) {
  return Date(std::chrono::milliseconds(static_cast<std::int64_t>(std::floor(u))));
}

icu::Locale localeFor(int langid) {
  switch (langid) {
    case 2:
      return icu::Locale("de", "DE");
    case 3:
      return icu::Locale("fr", "FR");
    default:
      return icu::Locale("ru", "RU");
  }
}

std::string toUtf8(const icu::UnicodeString& s) {
  std::string out;
  s.toUTF8String(out);
  return out;
}

std::size_t codePoints(std::string_view s) {
  return static_cast<std::size_t>(std::count_if(
      s.begin(), s.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

Date timeOf(const icu::Calendar& cal) {
  UErrorCode status = U_ZERO_ERROR;
  return fromUDate(cal.getTime(status));
}

struct ThreadObjects {
  std::unique_ptr<icu::Calendar> calendar;
  // nullptr for a pattern the formatter refuses.
  std::unordered_map<std::string, std::unique_ptr<icu::SimpleDateFormat>, TextHash, std::equal_to<>>
      formats;
};

using ThreadCache = std::unordered_map<std::uint64_t, ThreadObjects>;

// Whether this thread's cache is made, and whether it is gone with the thread: a codec that ends
// at the program's end, after the cache, has nothing left to take out of it.
enum class CacheState { None, Live, Gone };
thread_local CacheState cacheState = CacheState::None;

struct ThreadCacheHolder {
  ThreadCache objects;
  ThreadCacheHolder() { cacheState = CacheState::Live; }
  ~ThreadCacheHolder() { cacheState = CacheState::Gone; }
};

// This thread's objects of each codec it used, by the codec's serial.
ThreadCache& threadCache() {
  thread_local ThreadCacheHolder cache;
  return cache.objects;
}

}  // namespace

struct DateCodec::Impl {
  Impl(const std::string& zoneName, int langid);
  // The objects of the thread that ends the codec go with it, so that a program that makes
  // codec after codec on one thread (a launch of the installation each) does not keep them.
  ~Impl() {
    if (cacheState == CacheState::Live) threadCache().erase(serial);
  }
  Impl(const Impl&) = delete;
  Impl& operator=(const Impl&) = delete;

  std::unique_ptr<icu::Calendar> makeCalendar() const;
  ThreadObjects& threadObjects() const;
  icu::Calendar& calendarAt(Date d) const;
  const icu::SimpleDateFormat* formatter(std::string_view pattern) const;
  std::optional<Date> parse(std::string_view text, std::string_view pattern) const;
  Date add(Date d, UCalendarDateFields field, int amount) const;
  LocalMillis toLocal(Date d) const;
  // nullopt for a wall time that a change of the zone's offset skips.
  std::optional<Date> fromLocal(LocalMillis local) const;

  const std::uint64_t serial = nextSerial++;
  const icu::Locale locale;
  std::unique_ptr<const icu::BasicTimeZone> zone;
  MonthNames months;
};

DateCodec::Impl::Impl(const std::string& zoneName, int langid) : locale(localeFor(langid)) {
  std::unique_ptr<icu::TimeZone> tz = openTimeZone(zoneName);
  auto* basic = dynamic_cast<icu::BasicTimeZone*>(tz.get());
  if (!basic) throw std::invalid_argument("time zone without transition rules: " + zoneName);
  tz.release();
  zone.reset(basic);

  UErrorCode status = U_ZERO_ERROR;
  const icu::DateFormatSymbols symbols(locale, status);
  int32_t count = 0;
  const icu::UnicodeString* names =
      symbols.getMonths(count, icu::DateFormatSymbols::FORMAT, icu::DateFormatSymbols::WIDE);
  for (int32_t i = 0; i < count && i < 12; ++i)
    months[static_cast<std::size_t>(i)] = toUtf8(names[i]);
}

std::unique_ptr<icu::Calendar> DateCodec::Impl::makeCalendar() const {
  UErrorCode status = U_ZERO_ERROR;
  auto cal = std::make_unique<icu::GregorianCalendar>(*zone, locale, status);
  cal->setGregorianChange(kProlepticCutover, status);
  return cal;
}

ThreadObjects& DateCodec::Impl::threadObjects() const {
  auto& cache = threadCache();
  auto found = cache.find(serial);
  if (found != cache.end()) return found->second;
  if (cache.size() >= kCodecsPerThread) cache.clear();
  ThreadObjects& objects = cache[serial];
  objects.calendar = makeCalendar();
  return objects;
}

icu::Calendar& DateCodec::Impl::calendarAt(Date d) const {
  icu::Calendar& cal = *threadObjects().calendar;
  UErrorCode status = U_ZERO_ERROR;
  cal.setTime(toUDate(d), status);
  return cal;
}

const icu::SimpleDateFormat* DateCodec::Impl::formatter(std::string_view pattern) const {
  auto& formats = threadObjects().formats;
  auto found = formats.find(pattern);
  if (found != formats.end()) return found->second.get();
  if (formats.size() >= kPatternsPerCodec) formats.clear();
  UErrorCode status = U_ZERO_ERROR;
  auto f = std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString::fromUTF8(pattern), locale,
                                                   status);
  if (U_SUCCESS(status)) {
    f->adoptCalendar(makeCalendar().release());
    f->setLenient(false);
  } else {
    f.reset();
  }
  return formats.emplace(std::string(pattern), std::move(f)).first->second.get();
}

std::optional<Date> DateCodec::Impl::parse(std::string_view text, std::string_view pattern) const {
  const icu::SimpleDateFormat* f = formatter(pattern);
  if (!f) return std::nullopt;
  const icu::UnicodeString u = icu::UnicodeString::fromUTF8(text);
  icu::ParsePosition pos(0);
  const UDate t = f->parse(u, pos);
  if (pos.getErrorIndex() >= 0 || pos.getIndex() == 0 || pos.getIndex() != u.length())
    return std::nullopt;
  return fromUDate(t);
}

Date DateCodec::Impl::add(Date d, UCalendarDateFields field, int amount) const {
  icu::Calendar& cal = calendarAt(d);
  UErrorCode status = U_ZERO_ERROR;
  cal.add(field, amount, status);
  return timeOf(cal);
}

LocalMillis DateCodec::Impl::toLocal(Date d) const {
  int32_t raw = 0, dst = 0;
  UErrorCode status = U_ZERO_ERROR;
  zone->getOffset(toUDate(d), false, raw, dst, status);
  return d.time_since_epoch().count() + raw + dst;
}

std::optional<Date> DateCodec::Impl::fromLocal(LocalMillis local) const {
  int32_t raw = 0, dst = 0;
  UErrorCode status = U_ZERO_ERROR;
  // A wall time that comes twice is the later one, as the calendar takes it.
  zone->getOffsetFromLocal(static_cast<UDate>(local), UCAL_TZ_LOCAL_FORMER, UCAL_TZ_LOCAL_LATTER,
                           raw, dst, status);
  const Date d{std::chrono::milliseconds(local - raw - dst)};
  if (U_FAILURE(status) || toLocal(d) != local) return std::nullopt;
  return d;
}

DateCodec::DateCodec(std::string zone, int langid)
    : impl_(std::make_shared<const Impl>(zone, langid)) {}

std::string DateCodec::dateToString(Date d, std::string_view pattern) const {
  if (auto text = formatDatePattern(impl_->toLocal(d), pattern, impl_->months)) return *text;
  const icu::SimpleDateFormat* f = impl_->formatter(pattern);
  if (!f) return {};
  icu::UnicodeString out;
  f->format(toUDate(d), out);
  return toUtf8(out);
}

std::string DateCodec::dateToStringUTC(Date d, std::string_view pattern) {
  static const DateCodec utc("UTC", 1);
  return utc.dateToString(d, pattern);
}

std::optional<Date> DateCodec::dateFromStringFormat(std::string_view text,
                                                    std::string_view pattern) const {
  if (auto local = parseDatePattern(text, pattern)) {
    if (auto d = impl_->fromLocal(*local)) return d;
  }
  return impl_->parse(text, pattern);
}

std::optional<Date> DateCodec::dateFromString(std::string_view text) const {
  switch (codePoints(text)) {
    case 10:
      return dateFromStringFormat(text, "yyyy-MM-dd");
    case 16:
      return dateFromStringFormat(text, "yyyy-MM-dd HH:mm");
    case 19:
      return dateFromStringFormat(text, "yyyy-MM-dd HH:mm:ss");
    default:
      return std::nullopt;
  }
}

Date DateCodec::encodeDate(int day, int month, int year) const {
  icu::Calendar& cal = *impl_->threadObjects().calendar;
  cal.clear();
  cal.set(year, month - 1, day);
  return timeOf(cal);
}

DateParts DateCodec::decodeDate(Date d) const {
  icu::Calendar& cal = impl_->calendarAt(d);
  UErrorCode status = U_ZERO_ERROR;
  return {cal.get(UCAL_YEAR, status), cal.get(UCAL_MONTH, status) + 1, cal.get(UCAL_DATE, status),
          cal.get(UCAL_DAY_OF_WEEK, status), cal.get(UCAL_WEEK_OF_YEAR, status)};
}

Date DateCodec::noTime(Date d) const {
  icu::Calendar& cal = impl_->calendarAt(d);
  for (auto field : {UCAL_HOUR_OF_DAY, UCAL_MINUTE, UCAL_SECOND, UCAL_MILLISECOND})
    cal.set(field, 0);
  return timeOf(cal);
}

int DateCodec::getDays(Date from, Date to) const {
  // The wall-clock days of the two moments, whatever the length of the days between.
  using std::chrono::days, std::chrono::floor, std::chrono::milliseconds;
  const auto dayOf = [&](Date d) { return floor<days>(milliseconds(impl_->toLocal(d))).count(); };
  return static_cast<int>(dayOf(to) - dayOf(from));
}

int DateCodec::getMonths(Date from, Date to) const {
  const Date end = noTime(to);
  icu::Calendar& cal = impl_->calendarAt(noTime(from));
  UErrorCode status = U_ZERO_ERROR;
  return cal.fieldDifference(toUDate(end), UCAL_MONTH, status);
}

Date DateCodec::addDays(Date d, int days) const {
  return impl_->add(d, UCAL_DATE, days);
}

Date DateCodec::addMonths(Date d, int months) const {
  return impl_->add(d, UCAL_MONTH, months);
}

Date DateCodec::addYears(Date d, int years) const {
  return impl_->add(d, UCAL_YEAR, years);
}

int DateCodec::lastDateOfMonth(Date d) const {
  UErrorCode status = U_ZERO_ERROR;
  return impl_->calendarAt(d).getActualMaximum(UCAL_DATE, status);
}

}  // namespace lad
