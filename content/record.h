// The records that reading matter is written in, and the two forms that hold them: a plain text
// of <br>-separated records of <tr>-separated key<val>value fields, and a JSON array of groups.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lad::content {

// One record: what a row of the text is made from.
struct Record {
  int tp = 0;  // kind of the row
  std::string text;
  std::string format;  // display template; shown instead of text when not empty
  std::string pic;
  std::string bigpic;   // JSON form only
  std::string weblink;  // JSON form only
  int linkid = 0;       // 0: no internal link
  std::optional<std::string> checkid;
  int groupid = 0;
  std::string hiddentext;
};

// A field without "<val>": the content is faulty there. `record` is the record's index in the
// text, counted from 0; the rest of the text is kept.
struct ContentFault {
  int record = 0;
  std::string field;
  std::string describe() const;
};

struct PlainText {
  std::vector<Record> records;
  std::vector<ContentFault> faults;
};

// Turns the visible text of a plain-text record into the reader's language; empty: kept as is.
using Translate = std::function<std::string(std::string_view)>;

// Parses the plain-text form. The group number is kept from the record before when a record has
// none; every other key starts from its default in each record. An empty text has no records.
PlainText parsePlainText(std::string_view text, const Translate& translate = {});

struct Group {
  int groupid = 0;
  std::vector<Record> items;
};

// Parses the JSON form; a text that is not a JSON array reads as no groups. Items take their
// group's number, not one of their own; their text is not translated.
std::vector<Group> parseJsonGroups(std::string_view text);

// Merges groups into base: the head of `extra` joins a base group of the same number as it is
// reached; the rest are inserted before the first base group with a larger number, or at the end.
void mergeGroups(std::vector<Group>& base, std::vector<Group> extra);

// A number read as a float and cut to an integer; out of range it stops at the int's limits.
int cutToInt(double d);

}  // namespace lad::content
