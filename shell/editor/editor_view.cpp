#include "shell/editor/editor_view.h"

#include <functional>

#include "core/base64.h"
#include "platform/images.h"
#include "shell/editor/detail_rows.h"
#include "shell/views/editors.h"

namespace lad::shell {

namespace {

constexpr std::string_view kFieldPrefix = "field:";
constexpr int kPreviewSide = 320;
constexpr int kPreviewQuality = 85;

ButtonView button(const Context& context, std::string_view id, std::string_view caption) {
  return {std::string(id), context.translate(caption), std::nullopt};
}

std::optional<int> optionalInt(const Value& v) {
  if (v.isNull()) return std::nullopt;
  return static_cast<int>(v.intValue());
}

// The named keys of a model row; its photo goes as a small preview instead of its bytes.
EditorRowView rowView(const Value& row, PhotoPreviews& previews) {
  EditorRowView v;
  v.tp = static_cast<int>(row["tp"].intValue());
  v.field = row["field"].text();
  if (!v.field.empty()) v.id = fieldTarget(v.field);
  v.caption = row["caption"].text();
  v.source = row["source"];
  v.required = row["required"].boolValue();
  v.editcap = row["editcap"].text();
  v.pic = row["pic"].text();
  v.shown = row["shown"].text();
  if (const Bytes* picture = row["source"].asBytes()) {
    v.preview = previews.of(*picture);
    v.source = Value();
  }
  v.scalemin = row["scalemin"].text();
  v.scalemax = row["scalemax"].text();
  v.scaletype = optionalInt(row["scaletype"]);
  v.listtype = optionalInt(row["listtype"]);
  v.listdata = row["listdata"];
  return v;
}

}  // namespace

std::string fieldTarget(std::string_view field) {
  return std::string(kFieldPrefix) + std::string(field);
}

std::string_view targetField(std::string_view target) {
  return target.starts_with(kFieldPrefix) ? target.substr(kFieldPrefix.size()) : "";
}

const std::string& PhotoPreviews::of(const Bytes& picture) {
  const std::size_t key = std::hash<std::string_view>()(
      {reinterpret_cast<const char*>(picture.data()), picture.size()});
  if (key == key_ && !url_.empty()) return url_;
  key_ = key;
  url_.clear();
  if (auto image = platform::decodeImage(picture, nullptr)) {
    const auto jpeg =
        platform::encodeJpeg(platform::scaledToFit(*image, kPreviewSide), kPreviewQuality);
    url_ = "data:image/jpeg;base64," + base64Encode(Bytes(jpeg.begin(), jpeg.end()));
  }
  return url_;
}

Value editorView(const Context& context, const std::string& caption, const List& rows,
                 PhotoPreviews& previews) {
  EditorView view{caption,
                  {},
                  button(context, kEditorOk, "Готово"),
                  button(context, kEditorCancel, "Отменить")};
  for (const Value& row : rows) view.rows.push_back(rowView(row, previews));
  return view.toValue();
}

std::optional<Bytes> pictureFromDataUrl(std::string_view url, std::string* why) {
  const auto comma = url.find(',');
  if (!url.starts_with("data:image/") || comma == std::string_view::npos ||
      url.substr(0, comma).find(";base64") == std::string_view::npos) {
    *why = "a picture must come as a base64 data URL of an image";
    return std::nullopt;
  }
  auto bytes = base64Decode(url.substr(comma + 1));
  if (!bytes) {
    *why = "the picture's base64 text is damaged";
    return std::nullopt;
  }
  if (!platform::decodeImage(*bytes, why)) return std::nullopt;
  return bytes;
}

}  // namespace lad::shell
