#include "platform/exif_orientation.h"

#include <algorithm>
#include <array>
#include <optional>

namespace lad::platform {

namespace {

constexpr std::array<std::uint8_t, 6> kExifHeader = {'E', 'x', 'i', 'f', 0, 0};
constexpr std::uint32_t kTiffMagic = 42;
constexpr std::uint32_t kOrientationTag = 0x0112;
constexpr std::uint32_t kShortType = 3;
constexpr std::size_t kEntrySize = 12;

// A TIFF block in either byte order, read with bounds checks.
struct Tiff {
  std::span<const std::uint8_t> bytes;
  bool littleEndian;

  std::optional<std::uint32_t> number(std::size_t at, std::size_t size) const {
    if (at > bytes.size() || size > bytes.size() - at) return std::nullopt;
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
      value = value << 8 | bytes[at + (littleEndian ? size - 1 - i : i)];
    }
    return value;
  }
};

std::optional<Tiff> tiffOf(std::span<const std::uint8_t> app1) {
  if (app1.size() < kExifHeader.size() + 8) return std::nullopt;
  if (!std::equal(kExifHeader.begin(), kExifHeader.end(), app1.begin())) return std::nullopt;
  const auto bytes = app1.subspan(kExifHeader.size());
  if (bytes[0] != bytes[1] || (bytes[0] != 'I' && bytes[0] != 'M')) return std::nullopt;
  Tiff tiff{bytes, bytes[0] == 'I'};
  if (tiff.number(2, 2) != kTiffMagic) return std::nullopt;
  return tiff;
}

}  // namespace

int exifOrientation(std::span<const std::uint8_t> app1) {
  const auto tiff = tiffOf(app1);
  if (!tiff) return 1;
  const auto directory = tiff->number(4, 4);
  const auto count = directory ? tiff->number(*directory, 2) : std::nullopt;
  if (!count) return 1;
  for (std::size_t i = 0; i < *count; ++i) {
    const std::size_t entry = std::size_t{*directory} + 2 + i * kEntrySize;
    const auto tag = tiff->number(entry, 2);
    if (!tag) return 1;
    if (*tag != kOrientationTag) continue;
    const auto value = tiff->number(entry + 8, 2);
    const bool valid =
        tiff->number(entry + 2, 2) == kShortType && value && *value >= 1 && *value <= 8;
    return valid ? static_cast<int>(*value) : 1;
  }
  return 1;
}

}  // namespace lad::platform
