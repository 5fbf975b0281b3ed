#include "shell/editor/detail_rows.h"

namespace lad::shell {

Value detailRow(const Context& context, int kind, std::string_view caption, std::string_view field,
                bool required, std::string_view editcap) {
  Map m;
  m.set("tp", kind);
  m.set("caption", context.translate(caption));
  m.set("field", std::string(field));
  m.set("required", required);
  if (!editcap.empty()) m.set("editcap", context.translate(editcap));
  m.set("source", Value());
  return Value(std::move(m));
}

Value scaleRow(const Context& context, std::string_view field, std::string_view caption, int min,
               int max, ScaleType type, bool required) {
  Value row = detailRow(context, kScale, caption, field, required, caption);
  Map& m = *row.asMap();
  m.set("scalemin", std::to_string(min));
  m.set("scalemax", std::to_string(max));
  m.set("scaletype", static_cast<int>(type));
  m.set("startactive", false);
  return row;
}

Value listRow(const Context& context, std::string_view field, std::string_view caption,
              int listtype, int listedittype, bool required) {
  Value row = detailRow(context, kList, caption, field, required, caption);
  Map& m = *row.asMap();
  m.set("listtype", listtype);
  m.set("listedittype", listedittype);
  return row;
}

bool emptySource(const Value& row) {
  const Value& source = row["source"];
  if (const auto* list = source.asList()) return list->empty();
  if (const auto* bytes = source.asBytes()) return bytes->empty();
  return source.isNull() || source.text().empty();
}

}  // namespace lad::shell
