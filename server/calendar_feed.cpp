#include "server/calendar_feed.h"

#include <cstdint>
#include <ctime>

namespace lad::server {

namespace {

constexpr std::size_t kLineOctets = 75;
constexpr std::string_view kBreak = "\r\n";

// A moment in UTC, as "20261125T080000Z".
std::string utc(Date at) {
  const std::time_t seconds =
      std::chrono::floor<std::chrono::seconds>(at).time_since_epoch().count();
  std::tm parts{};
  gmtime_r(&seconds, &parts);
  char text[20];
  std::strftime(text, sizeof text, "%Y%m%dT%H%M%SZ", &parts);
  return text;
}

// Backslash, semicolon, comma and line breaks are written as the format escapes them.
std::string escaped(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (c == '\\' || c == ';' || c == ',') out += '\\';
    if (c == '\n') {
      out += "\\n";
      continue;
    }
    if (c != '\r') out += c;
  }
  return out;
}

bool continuesCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// A content line folded into lines of at most 75 octets, never inside a character; each
// continuation starts with a space.
void appendLine(std::string& out, std::string_view line) {
  std::size_t room = kLineOctets;
  while (line.size() > room) {
    std::size_t cut = room;
    while (cut > 0 && continuesCharacter(line[cut])) --cut;
    out.append(line.substr(0, cut)).append(kBreak).append(" ");
    line.remove_prefix(cut);
    room = kLineOctets - 1;
  }
  out.append(line).append(kBreak);
}

// The same reminder keeps its identity from one fetch to the next, so that the calendar app
// updates it instead of adding it again.
std::string uid(const health::PlannedReminder& r, int repeat) {
  std::uint64_t hash = 14695981039346656037ull;
  for (const char c : r.body + '\n' + r.gid) {
    hash ^= static_cast<unsigned char>(c);
    hash *= 1099511628211ull;
  }
  return utc(r.at) + "-" + std::to_string(hash) + "-" + std::to_string(repeat) + "@ladaneya";
}

}  // namespace

std::string calendarFeed(const std::vector<health::PlannedReminder>& plan, Date stamp,
                         std::string_view name) {
  std::string out;
  const auto line = [&out](std::string_view text) { appendLine(out, text); };
  line("BEGIN:VCALENDAR");
  line("VERSION:2.0");
  line("PRODID:-//Ladaneya//Reminders//RU");
  line("CALSCALE:GREGORIAN");
  line("METHOD:PUBLISH");
  line("X-WR-CALNAME:" + escaped(name));
  const std::string now = utc(stamp);
  for (std::size_t i = 0; i < plan.size(); ++i) {
    const health::PlannedReminder& r = plan[i];
    int repeat = 0;
    for (std::size_t j = 0; j < i; ++j) repeat += plan[j] == r;
    const std::string text = escaped(r.body);
    line("BEGIN:VEVENT");
    line("UID:" + uid(r, repeat));
    line("DTSTAMP:" + now);
    line("DTSTART:" + utc(r.at));
    line("DURATION:PT5M");
    line("SUMMARY:" + text);
    line("BEGIN:VALARM");
    line("ACTION:DISPLAY");
    line("DESCRIPTION:" + text);
    line("TRIGGER:PT0M");
    line("END:VALARM");
    line("END:VEVENT");
  }
  line("END:VCALENDAR");
  return out;
}

}  // namespace lad::server
