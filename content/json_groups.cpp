// The JSON form: an array of {"groupid", "Content": [items]} objects, and the merge of a second
// array into the first.
#include <algorithm>
#include <limits>

#include "content/record.h"
#include "core/value.h"

namespace lad::content {

namespace {

std::string textOf(const Value& v) {
  return v.isNull() ? std::string() : v.text();
}

int intOf(const Value& v) {
  return static_cast<int>(std::clamp<std::int64_t>(v.intValue(), std::numeric_limits<int>::min(),
                                                   std::numeric_limits<int>::max()));
}

Record readItem(const Map& item, int groupid) {
  Record r;
  r.tp = intOf(item["tp"]);
  r.text = textOf(item["text"]);
  r.format = textOf(item["format"]);
  r.pic = textOf(item["pic"]);
  r.bigpic = textOf(item["bigpic"]);
  r.weblink = textOf(item["weblink"]);
  r.linkid = intOf(item["linkid"]);
  if (const Value* check = item.find("checkid"); check && !check->isNull())
    r.checkid = check->text();
  r.groupid = groupid;
  r.hiddentext = textOf(item["hiddentext"]);
  return r;
}

}  // namespace

std::vector<Group> parseJsonGroups(std::string_view text) {
  std::vector<Group> groups;
  const auto tree = Value::fromJson(text);
  const List* list = tree ? tree->asList() : nullptr;
  if (!list) return groups;
  for (const Value& entry : *list) {
    const Map* object = entry.asMap();
    if (!object) continue;
    Group g{intOf((*object)["groupid"]), {}};
    if (const List* content = (*object)["Content"].asList())
      for (const Value& item : *content)
        if (const Map* fields = item.asMap()) g.items.push_back(readItem(*fields, g.groupid));
    groups.push_back(std::move(g));
  }
  return groups;
}

void mergeGroups(std::vector<Group>& base, std::vector<Group> extra) {
  auto head = extra.begin();
  for (Group& g : base) {
    if (head == extra.end() || head->groupid != g.groupid) continue;
    g.items.insert(g.items.end(), std::make_move_iterator(head->items.begin()),
                   std::make_move_iterator(head->items.end()));
    ++head;
  }
  for (; head != extra.end(); ++head) {
    const auto larger = std::find_if(base.begin(), base.end(),
                                     [&](const Group& g) { return g.groupid > head->groupid; });
    base.insert(larger, std::move(*head));
  }
}

}  // namespace lad::content
