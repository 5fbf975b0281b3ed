// How the field editor's rows reach the browser: each row with its input's target, the
// photograph as a small preview instead of its bytes, and the two buttons that close it.
#pragma once

#include <cstddef>
#include <string>

#include "core/context.h"

namespace lad::shell {

// The buttons of an editor, and the target of a row's input ("field:rost").
inline constexpr std::string_view kEditorOk = "editor:ok";
inline constexpr std::string_view kEditorCancel = "editor:cancel";
std::string fieldTarget(std::string_view field);
// The field a target names, or "" for a target that is not a field's.
std::string_view targetField(std::string_view target);

// The last photograph's preview, so that a view does not decode the whole picture again.
class PhotoPreviews {
 public:
  // A JPEG data URL of the picture shrunk to a preview, or "" when it cannot be read.
  const std::string& of(const Bytes& picture);

 private:
  std::size_t key_ = 0;
  std::string url_;
};

Value editorView(const Context& context, const std::string& caption, const List& rows,
                 PhotoPreviews& previews);

// A picture sent by the browser as a data URL ("data:image/jpeg;base64,…"): its bytes once
// they read as a picture, else nullopt and why.
std::optional<Bytes> pictureFromDataUrl(std::string_view url, std::string* why);

}  // namespace lad::shell
