#include "drawing/photo_prefetch.h"

#include <algorithm>

#include "core/atomic_file.h"

namespace lad::drawing {

namespace {

std::unique_ptr<PrefetchedPhoto> readPhoto(const std::string& file, int side) {
  const auto bytes = readWholeFile(file);
  if (!bytes) return nullptr;
  const std::span<const std::uint8_t> data(reinterpret_cast<const std::uint8_t*>(bytes->data()),
                                           bytes->size());
  auto image = platform::decodeImageToFit(data, side, nullptr);
  if (!image || image->width <= 0 || image->height <= 0) return nullptr;
  std::vector<std::uint8_t> jpeg = platform::encodeJpeg(*image, kPrintJpegQuality);
  return std::make_unique<PrefetchedPhoto>(PrefetchedPhoto{std::move(*image), std::move(jpeg)});
}

}  // namespace

PhotoPrefetch::PhotoPrefetch(std::vector<std::string> files, int side, std::size_t ahead)
    : files_(std::move(files)),
      side_(side),
      ahead_(std::max<std::size_t>(ahead, 1)),
      finished_(files_.size(), false) {
  const unsigned cores = std::max(1u, std::thread::hardware_concurrency());
  for (unsigned k = 0; k < std::min<unsigned>(cores, kMostWorkers); ++k)
    workers_.emplace_back([this] { run(); });
}

PhotoPrefetch::~PhotoPrefetch() {
  {
    std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  changed_.notify_all();
  for (std::thread& worker : workers_) worker.join();
}

// Each worker takes the next file not yet begun, while fewer than `ahead` photos wait or are
// being read; photos the document is already past are not read.
void PhotoPrefetch::run() {
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [&] {
      return stopping_ || next_ >= files_.size() || ready_.size() + reading_ < ahead_;
    });
    if (stopping_ || next_ >= files_.size()) return;
    const std::size_t i = next_++;
    if (i >= taken_) {
      ++reading_;
      lock.unlock();
      auto photo = readPhoto(files_[i], side_);
      lock.lock();
      --reading_;
      if (i >= taken_) ready_.emplace(i, std::move(photo));
    }
    finished_[i] = true;
    changed_.notify_all();
  }
}

std::unique_ptr<PrefetchedPhoto> PhotoPrefetch::take(const std::string& file, int side) {
  if (side != side_) return nullptr;
  std::unique_lock lock(mutex_);
  const auto at = std::find(files_.begin() + std::min(taken_, files_.size()), files_.end(), file);
  if (at == files_.end()) return nullptr;
  const std::size_t index = static_cast<std::size_t>(at - files_.begin());
  taken_ = index;
  ready_.erase(ready_.begin(), ready_.lower_bound(index));
  changed_.notify_all();
  changed_.wait(lock, [&] { return finished_[index]; });
  std::unique_ptr<PrefetchedPhoto> photo;
  if (auto found = ready_.find(index); found != ready_.end()) {
    photo = std::move(found->second);
    ready_.erase(found);
  }
  taken_ = index + 1;
  changed_.notify_all();
  return photo;
}

}  // namespace lad::drawing
