// A pregnancy of 294 days with a dozen records each and 60 photos of 12 megapixels, made once
// in a temporary installation for the benchmarks of what is drawn from a whole diary; and the
// peak memory of the process.
#pragma once

#include <sys/resource.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "core/context.h"
#include "core/launch.h"
#include "platform/images.h"
#include "store/day_photo.h"
#include "store/first_launch.h"
#include "tests/fixtures/diary_generator.h"

namespace lad::bench {

inline const std::string kGid = "BENCH-PROFILE";
inline constexpr int kDays = 294, kPhotos = 60, kPhotoWidth = 4000, kPhotoHeight = 3000;

// A photo-like picture: soft colour fields with grain, so that it compresses as a photo does.
inline std::vector<std::uint8_t> photoJpeg() {
  lad::platform::Image image{kPhotoWidth, kPhotoHeight, {}};
  image.rgb.resize(std::size_t(kPhotoWidth) * kPhotoHeight * 3);
  std::mt19937 grain(7);
  std::size_t i = 0;
  for (int y = 0; y < kPhotoHeight; ++y)
    for (int x = 0; x < kPhotoWidth; ++x) {
      const int noise = static_cast<int>(grain() % 24);
      image.rgb[i++] = static_cast<std::uint8_t>(120 + x / 40 + noise);
      image.rgb[i++] = static_cast<std::uint8_t>(90 + y / 30 + noise);
      image.rgb[i++] = static_cast<std::uint8_t>(140 + (x + y) / 80 % 60 + noise);
    }
  return lad::platform::encodeJpeg(image, 90);
}

struct PregnancyWithPhotos {
  std::filesystem::path dir;
  std::unique_ptr<lad::Context> context;
  std::unique_ptr<lad::Store> store;
  std::size_t photoBytes = 0;

  PregnancyWithPhotos()
      : dir(std::filesystem::temp_directory_path() /
            ("lad-diary-bench-" + std::to_string(std::random_device{}()))) {
    context = std::make_unique<lad::Context>(
        lad::ContextOptions{1, 1, dir, "1.0", nullptr, LADANEYA_RESOURCES_DIR});
    lad::launch(*context);
    store = std::make_unique<lad::Store>(*context);
    lad::fromOldVersion(*store);
    const lad::DateCodec& dates = context->dates();
    const lad::Date first = dates.addDays(context->clock().now(), -kDays);
    lad::testing::addPregnancy(*store, kGid, first, "60");
    lad::testing::generateDiary(*store, kGid, first, kDays, 0);
    const std::vector<std::uint8_t> jpeg = photoJpeg();
    photoBytes = jpeg.size();
    for (int k = 0; k < kPhotos; ++k) {
      const lad::DayPhotoFiles files =
          lad::dayPhotoFiles(*context, dates.addDays(first, k * 4), kGid);
      for (const auto& file : {files.full, files.small}) {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary)
            .write(reinterpret_cast<const char*>(jpeg.data()), std::streamsize(jpeg.size()));
      }
    }
  }
  ~PregnancyWithPhotos() {
    store.reset();
    context.reset();
    std::filesystem::remove_all(dir);
  }
};

inline double peakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

}  // namespace lad::bench
