// The plain-text form: records split by <br>, fields by <tr>, key and value by <val>.
#include <cmath>
#include <limits>

#include "content/record.h"
#include "core/text_parts.h"
#include "core/value.h"

namespace lad::content {

int cutToInt(double d) {
  if (std::isnan(d)) return 0;
  if (d >= std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
  if (d <= std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
  return static_cast<int>(d);
}

std::string ContentFault::describe() const {
  return "record " + std::to_string(record) + ": field without <val>: \"" + field + "\"";
}

namespace {

int numberField(std::string_view value) {
  return cutToInt(leadingDouble(value));
}

void setField(Record& r, std::string_view key, std::string_view value, const Translate& translate) {
  if (key == "tp") {
    r.tp = numberField(value);
  } else if (key == "text") {
    r.text = translate ? translate(value) : std::string(value);
  } else if (key == "format") {
    r.format = value;
  } else if (key == "pic") {
    r.pic = value;
  } else if (key == "linkid") {
    r.linkid = numberField(value);
  } else if (key == "checkid") {
    r.checkid = std::string(value);
  } else if (key == "groupid") {
    r.groupid = numberField(value);
  } else if (key == "hiddentext") {
    r.hiddentext = value;
  }
}

}  // namespace

PlainText parsePlainText(std::string_view text, const Translate& translate) {
  PlainText out;
  if (text.empty()) return out;
  int group = 0;
  for (std::string_view piece : splitOn(text, "<br>")) {
    Record r;
    r.groupid = group;
    const int index = static_cast<int>(out.records.size());
    for (std::string_view field : splitOn(piece, "<tr>")) {
      const auto parts = splitOn(field, "<val>");
      if (parts.size() < 2)
        out.faults.push_back({index, std::string(field)});
      else
        setField(r, parts[0], parts[1], translate);
    }
    group = r.groupid;
    out.records.push_back(std::move(r));
  }
  return out;
}

}  // namespace lad::content
