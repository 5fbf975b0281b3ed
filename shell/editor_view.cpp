#include "shell/editor_view.h"

#include <functional>

#include "core/base64.h"
#include "platform/images.h"
#include "shell/detail_rows.h"

namespace lad::shell {

namespace {

constexpr std::string_view kFieldPrefix = "field:";
constexpr int kPreviewSide = 320;
constexpr int kPreviewQuality = 85;

Value button(const Context& context, std::string_view id, std::string_view caption) {
  Map m;
  m.set("id", std::string(id));
  m.set("caption", context.translate(caption));
  return Value(std::move(m));
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
  if (auto image = decodeImage(picture, nullptr)) {
    const auto jpeg = encodeJpeg(scaledToFit(*image, kPreviewSide), kPreviewQuality);
    url_ = "data:image/jpeg;base64," + base64Encode(Bytes(jpeg.begin(), jpeg.end()));
  }
  return url_;
}

Value editorView(const Context& context, const std::string& caption, const List& rows,
                 PhotoPreviews& previews) {
  List shown;
  for (const Value& row : rows) {
    Map m = *row.asMap();
    if (const std::string field = row["field"].text(); !field.empty())
      m.set("id", fieldTarget(field));
    if (const Bytes* picture = row["source"].asBytes()) {
      m.set("preview", previews.of(*picture));
      m.set("source", Value());
    }
    m.erase("image");
    shown.push_back(Value(std::move(m)));
  }
  Map m;
  m.set("kind", "editor");
  m.set("caption", caption);
  m.set("rows", std::move(shown));
  m.set("ok", button(context, kEditorOk, "Готово"));
  m.set("cancel", button(context, kEditorCancel, "Отменить"));
  return Value(std::move(m));
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
  if (!decodeImage(*bytes, why)) return std::nullopt;
  return bytes;
}

}  // namespace lad::shell
