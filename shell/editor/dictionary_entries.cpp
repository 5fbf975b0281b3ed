#include "shell/editor/dictionary_entries.h"

#include "shell/editor/field_check.h"
#include "store/dictionary.h"

namespace lad::shell {

void fillListEntries(FieldEditor& editor, Store& store, std::string_view field, int listid) {
  const Map* row = editor.row(field);
  if (!row || listid <= 0) return;
  List entries;
  for (const Value& entry : loadConstList(store, listid, tickedText((*row)["source"]))) {
    Map e;
    e.set("id", entry["index"].text());
    e.set("caption", entry["cap"].text());
    e.set("checked", entry["checked"].boolValue());
    entries.push_back(std::move(e));
  }
  editor.setRowKey(field, "listdata", Value(std::move(entries)));
}

}  // namespace lad::shell
