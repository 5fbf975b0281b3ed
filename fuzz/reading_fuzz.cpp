// Fuzz target of the sentences that say what a stored value means: the rows of a day (every kind
// of field, through the one call the day editor makes), medicine courses in both forms, teeth,
// diets, body measures, check lists and analyses, the child's feedings and the clock texts of
// a sleep or a walk. Any stored bytes may arrive; a value that
// cannot be read gives "", and well-formed text gives well-formed text.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "core/clock.h"
#include "core/context.h"
#include "core/ids.h"
#include "core/json_text.h"
#include "core/launch.h"
#include "core/text_parts.h"
#include "fuzz/fuzz_input.h"
#include "health/child_feeding.h"
#include "health/child_intervals.h"
#include "health/child_teeth.h"
#include "store/values/list_codecs.h"
#include "store/values/pill_reading.h"
#include "store/values/reading_forms.h"
#include "store/values/today_note.h"
#include "tests/support/test_files.h"

namespace {

using lad::fuzz::check;
using lad::fuzz::FuzzInput;
using lad::fuzz::validUtf8;

// One installation in Russian and one in German, made once: the readings only translate.
struct Installations {
  lad::testing::TempDir dir;
  std::shared_ptr<lad::ManualClock> clock = std::make_shared<lad::ManualClock>(
      *lad::dateFromIso("2026-03-30T08:00:00Z"), "Europe/Berlin");
  std::array<std::unique_ptr<lad::Context>, 2> contexts;
  lad::List entries;

  Installations() {
    for (int langid : {1, 2}) {
      auto& context = contexts[static_cast<std::size_t>(langid - 1)];
      context = std::make_unique<lad::Context>(lad::ContextOptions{
          1, langid, dir.path() / std::to_string(langid), "1.0", clock, LADANEYA_RESOURCES_DIR});
      lad::launch(*context);
    }
    // Entries under an old index (2) and under a guid, one with a second line in its name.
    const std::pair<std::string, const char*> names[] = {
        {lad::newID2(2, 2), "Анализ крови"},
        {lad::newID2(2, 7), "Каша (г.)"},
        {"6F9619FF-8B86-D011-B42D-00C04FC964FF", "Общий анализ<tr>мочи"}};
    for (const auto& [index, cap] : names) {
      lad::Map entry;
      entry.set("index", index);
      entry.set("cap", cap);
      entries.push_back(lad::Value(std::move(entry)));
    }
  }
};

Installations& installations() {
  static Installations each;
  return each;
}

// The kinds of field rows: lists, texts, measures, teeth, day kinds, ultrasound, birth, courses,
// diets, analyses, spans, and the old course forms.
constexpr std::array<int, 22> kKinds{1,  2,  3,  4,  5,  6,  7,  8,  9,   13,  14,
                                     15, 16, 23, 25, 26, 29, 30, 31, 106, 107, 108};

void checkText(const lad::Value& text, bool wellFormed) {
  check(text.asText() != nullptr);
  if (wellFormed) check(validUtf8(text.text()));
}

// A row of each kind gets its text, or its lines; lines of times write back to as many lines.
void row(const lad::Context& context, int kind, std::string_view source) {
  const bool wellFormed = validUtf8(source);
  lad::Map row;
  row.set("tp", kind);
  row.set("source", source);
  lad::updateNoteToday(context, row, installations().entries, context.clock().now());
  checkText(row["text"], wellFormed);
  const lad::List* lines = row["multiarray"].asList();
  if (!lines) return;
  for (std::size_t i = 0; i < lines->size(); ++i) {
    const lad::Value& line = (*lines)[i];
    check(line.asMap() != nullptr);
    if (kind == 23 || kind == 29) {
      checkText(line["text"], wellFormed);
      continue;
    }
    check(line["index"].intValue() == static_cast<std::int64_t>(i + 1));
  }
  if (kind == 23 || kind == 29) return;
  const lad::List again = lad::multiFromString(lad::multiToString(*lines), kind);
  check(again.size() == lines->size());
}

// The readings of one course field in both forms, and the course's days.
void course(const lad::Context& context, std::string_view value) {
  const bool wellFormed = validUtf8(value);
  for (const std::string& text :
       {lad::intervalToRead3(context, value, true), lad::intervalToRead(context, value, false),
        lad::dozaToRead3(context, value), lad::dozaToRead(context, value),
        lad::periodToRead3(context, value), lad::periodToRead(context, value)})
    if (wellFormed) check(validUtf8(text));
  const int days = lad::pillLengthToDays(context, value, context.clock().now());
  if (value.find("<td>") == std::string_view::npos) check(days == 0);
}

// Teeth, diets and measures: a line per tooth, one diet name at most, a line per measure at most.
void forms(const lad::Context& context, std::string_view value) {
  const std::string text(value);
  const std::string teeth = lad::toothStringToRead(context, text);
  if (!value.empty()) {
    std::size_t lines = 1;
    for (char c : teeth) lines += c == '\n';
    check(lines == lad::splitOn(value, "<tr>").size());
  }
  check(lad::dietaStringToRead(context, text).find('\n') == std::string::npos);
  const std::string sizes = lad::biosizeStringToRead(context, text);
  // A measure is one line unless its own text holds an escaped line break.
  if (value.find('\\') == std::string_view::npos)
    check(std::count(sizes.begin(), sizes.end(), '\n') < 5);
  // The teeth a record leaves are named once each; any two clock texts make a span.
  const std::string present = lad::health::teethText(lad::health::applyTeeth({}, value));
  check(present.empty() ||
        lad::splitOn(present, "<tr>").size() == lad::health::applyTeeth({}, value).count());
  const auto span = lad::health::countInterval(text, text, std::nullopt);
  check(span && span->find(':') != std::string::npos);
  const std::string feeding = lad::health::kormToString(context, text, installations().entries);
  if (!lad::jsonIs(text)) check(feeding.empty());
  const std::string tests = lad::analizyStringToRead(text, installations().entries);
  const std::string checks = lad::checkStringToRead(text, installations().entries);
  if (validUtf8(value))
    check(validUtf8(teeth) && validUtf8(sizes) && validUtf8(tests) && validUtf8(checks) &&
          validUtf8(feeding));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput in(data, size);
  const std::uint8_t choice = in.byte();
  const lad::Context& context = *installations().contexts[choice & 1];
  const std::string_view value = in.rest();
  switch ((choice >> 1) % 3) {
    case 0:
      row(context, kKinds[(choice >> 3) % kKinds.size()], value);
      break;
    case 1:
      course(context, value);
      break;
    default:
      forms(context, value);
      break;
  }
  return 0;
}
