#include "cloud/change_images.h"

#include <filesystem>
#include <optional>

#include "core/atomic_file.h"
#include "core/context.h"
#include "core/edition.h"
#include "core/json_text.h"
#include "store/day_photo.h"

namespace lad::cloud {

namespace {

constexpr int kAnalysesKind = 26;

// Appends the file when it exists and reads.
void addFile(List& images, const std::string& type, const std::filesystem::path& file,
             const std::optional<std::string>& names = std::nullopt) {
  const auto bytes = readWholeFile(file);
  if (!bytes) return;
  Map entry;
  entry.set("type", type);
  entry.set("name", file.filename().string());
  entry.set("data", Bytes(bytes->begin(), bytes->end()));
  if (names) entry.set("names", *names);
  images.push_back(Value(std::move(entry)));
}

// The "file" of each entry of a JSON list, in order.
void addListedFiles(List& images, const std::string& type, const std::string& json,
                    const std::filesystem::path& folder) {
  const auto list = Value::fromJson(json);
  if (!list || !list->asList()) return;
  for (const Value& entry : *list->asList()) {
    const std::string file = entry["file"].text();
    if (isPlainFileName(file)) addFile(images, type, folder / file);
  }
}

}  // namespace

bool isPlainFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of("/\\") == std::string_view::npos &&
         name.find('\0') == std::string_view::npos;
}

List profileImages(const Context& context, const Map& setup, const std::string& gid) {
  List images;
  addFile(images, "photo", context.documentsDir() / "picture" / ("child-" + gid + ".jpg"));
  if (isChildEdition(context.values().appid))
    addListedFiles(images, "documents", setup["documents"].text(),
                   context.documentsDir() / "documents");
  return images;
}

List dayImages(const Context& context, Date day, const std::string& gid, const List& records) {
  List images;
  const DayPhotoFiles photo = dayPhotoFiles(context, day, gid);
  addFile(images, "photo", photo.full, photo.small.filename().string());
  for (const Value& record : records) {
    const std::string source = record["source"].text();
    if (record["tp"].intValue() == kAnalysesKind && jsonIs(source))
      addListedFiles(images, "analiz", source, context.documentsDir() / "analizy");
  }
  return images;
}

}  // namespace lad::cloud
