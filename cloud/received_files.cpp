#include "cloud/received_files.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>

#include "core/atomic_file.h"
#include "core/context.h"
#include "platform/images.h"

namespace lad::cloud {

namespace {

constexpr int kSmallSide = 160;
constexpr int kBestQuality = 100;

std::optional<std::filesystem::path> folderOfType(const Context& context, const std::string& type) {
  if (type == "analiz") return context.documentsDir() / "analizy";
  if (type == "documents") return context.documentsDir() / "documents";
  if (type == "photo") return context.documentsDir() / "picture";
  return std::nullopt;
}

bool writeBytes(const std::filesystem::path& file, const Bytes& bytes, std::string* error) {
  std::error_code made;
  std::filesystem::create_directories(file.parent_path(), made);
  return writeFileAtomically(file, {reinterpret_cast<const char*>(bytes.data()), bytes.size()},
                             error);
}

// The small copy: the longer side shrunk to 160; a smaller photo is kept at its size.
platform::Image smallCopy(const platform::Image& photo) {
  const int longer = std::max(photo.width, photo.height);
  if (longer <= kSmallSide) return photo;
  return platform::scaledToFit(photo, kSmallSide);
}

void writeOne(const Context& context, const Map& entry, std::vector<std::string>& notes) {
  const std::string type = entry["type"].text(), name = entry["name"].text();
  const auto folder = folderOfType(context, type);
  if (!folder) return notes.push_back("a file of the unknown kind \"" + type + "\" is left out");
  const Bytes& bytes = *entry["data"].asBytes();
  std::optional<platform::Image> picture;
  if (type == "photo") {
    std::string why;
    picture = platform::decodeImage(bytes, &why);
    if (!picture) return notes.push_back("the photo " + name + " is not a picture: " + why);
  }
  std::string error;
  if (!writeBytes(*folder / name, bytes, &error)) return notes.push_back(error);
  const Value& small = entry["names"];
  if (!picture || !small.asText()) return;
  const Bytes jpeg = platform::encodeJpeg(smallCopy(*picture), kBestQuality);
  if (!writeBytes(context.documentsDir() / "picture-s" / *small.asText(), jpeg, &error))
    notes.push_back(error);
}

}  // namespace

void writeReceivedFiles(const Context& context, const List& images,
                        std::vector<std::string>& notes) {
  for (const Value& entry : images) writeOne(context, *entry.asMap(), notes);
}

}  // namespace lad::cloud
