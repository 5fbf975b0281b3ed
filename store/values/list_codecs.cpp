#include "store/values/list_codecs.h"

#include "core/json_text.h"
#include "core/text_parts.h"
#include "store/keywords.h"
#include "store/values/pill_reading.h"
#include "store/values/reading_forms.h"

namespace lad {

namespace {

constexpr int kKindPressure = 30;
constexpr int kKindLiquid = 31;

// "<a><sep><b>", then " - <comment>" when the comment is not empty.
std::string measurementText(const Value& measurement, const char* first, const char* separator,
                            const char* second) {
  std::string text = measurement[first].text() + separator + measurement[second].text();
  const std::string comment = measurement["comment"].text();
  if (!comment.empty()) text += " - " + comment;
  return text;
}

std::string captionOf(const Value& object, int kind) {
  if (kind == kKindPressure) return pressureToString(object);
  if (kind == kKindLiquid) return zhidToString(object);
  return object["temp"].text();
}

Value line(std::string cap, std::string time, std::size_t index) {
  Map m;
  m.set("cap", std::move(cap));
  m.set("time", std::move(time));
  m.set("index", static_cast<std::int64_t>(index));
  return Value(std::move(m));
}

List linesOfJson(std::string_view value, int kind) {
  List lines;
  const Value tree = jsonToArray(value);
  if (const List* objects = tree.asList())
    for (const Value& object : *objects)
      lines.push_back(line(captionOf(object, kind), object["time"].text(), lines.size() + 1));
  return lines;
}

List linesOfOldText(std::string_view value) {
  List lines;
  for (std::string_view item : splitOn(value, "<tr>")) {
    const std::vector<std::string_view> fields = splitOn(item, "<td>");
    const std::string cap = fields.size() > 1 ? std::string(fields[1]) : "";
    lines.push_back(line(cap, std::string(fields[0]), lines.size() + 1));
  }
  return lines;
}

}  // namespace

std::string pressureToString(const Value& measurement) {
  return measurementText(measurement, "pressure1", "/", "pressure2");
}

std::string zhidToString(const Value& measurement) {
  return measurementText(measurement, "in", ">", "out");
}

List multiFromString(const std::optional<std::string>& value, int kind) {
  if (!value || value->empty()) return {};
  return jsonIs(*value) ? linesOfJson(*value, kind) : linesOfOldText(*value);
}

void multi2FromString(const Context& context, List& target, const std::optional<std::string>& value,
                      const List& listData, int kind, std::optional<Date> forDate) {
  if (!value || value->empty()) return;
  if (!jsonIs(*value)) {
    if (kind != kKindPills) return;
    Map m;
    m.set("text", *value);
    target.push_back(Value(std::move(m)));
    return;
  }
  const Value tree = jsonToArray(*value);
  const List* objects = tree.asList();
  if (!objects) return;
  for (const Value& object : *objects) {
    Map m;
    m.set("source", object.toJson());
    m.set("text", kind == kKindSpans ? intervalToRead2(object)
                                     : pillsToRead(context, object, listData, forDate));
    target.push_back(Value(std::move(m)));
  }
}

std::string multiToString(const List& lines) {
  List objects;
  for (const Value& each : lines) {
    Map object = each.asMap() ? *each.asMap() : Map();
    const Value cap = object["cap"];
    object.erase("cap");
    object.erase("index");
    object.set("temp", cap);
    objects.push_back(Value(std::move(object)));
  }
  return jsonFromObject(Value(std::move(objects)));
}

std::string multi2ToString(const List& lines) {
  return jsonFromObject(Value(lines));
}

}  // namespace lad
