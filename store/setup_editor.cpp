#include "store/setup_editor.h"

#include "core/context.h"
#include "store/portrait.h"
#include "store/store.h"

namespace lad {

namespace {

void savePortrait(const Context& context, const Map& row, const std::string& gid,
                  std::string* photoError) {
  switch (row["save"].intValue()) {
    case kWritePhoto: {
      const Value* image = row.find("image");
      const Bytes* bytes = image ? image->asBytes() : nullptr;
      std::string why = "the photo holds no picture";
      if ((!bytes || !writePortrait(context, gid, *bytes, &why)) && photoError) *photoError = why;
      return;
    }
    case kRemovePhoto:
      removePortrait(context, gid);
      return;
  }
}

}  // namespace

Map setupArrayToDic(Store& store, const List& rows, const std::string& gid,
                    std::string* photoError) {
  const Context& context = store.context();
  const DateCodec& dates = context.dates();
  Map setup;
  if (rows.empty()) {
    setup.set("active", false);
    return setup;
  }
  for (const Value& value : rows) {
    const Map* row = value.asMap();
    if (!row || !row->find("field")) continue;
    const std::string field = row->find("field")->text();
    const Value* source = row->find("source");
    const std::string text = source ? source->text() : "";
    if (field == "sdat1" || field == "sdat2" || field == "sbirthdate") {
      if (auto day = dates.dateFromStringFormat(text, "dd.MM.yyyy"))
        setup.set(field, dates.dateToString(*day, "yyyy-MM-dd"));
    } else if (field == "sex" || field == "bodytype") {
      setup.set(field, std::to_string(source ? source->intValue() : 0));
    } else if (field == "name" || field == "rost" || field == "ves") {
      setup.set(field, text);
    } else if (field == "photo") {
      savePortrait(context, *row, gid, photoError);
    }
  }
  setup.set("active", true);
  return setup;
}

}  // namespace lad
