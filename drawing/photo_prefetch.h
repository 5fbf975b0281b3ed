// Photos of a document read ahead on threads of their own: decoding a large photo takes far
// longer than drawing its page, so the next photos are read on both cores while the pages
// before them are drawn.
#pragma once

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/images.h"

namespace lad::drawing {

// The quality at which a document keeps its photos.
inline constexpr int kPrintJpegQuality = 88;

struct PrefetchedPhoto {
  platform::Image image;           // shrunk to fit the side
  std::vector<std::uint8_t> jpeg;  // the same pixels as the document keeps them
};

class PhotoPrefetch {
 public:
  // The files in the order the document draws them, each shrunk to fit side pixels; at most
  // `ahead` of them wait decoded at a time.
  PhotoPrefetch(std::vector<std::string> files, int side, std::size_t ahead = 3);
  ~PhotoPrefetch();
  PhotoPrefetch(const PhotoPrefetch&) = delete;
  PhotoPrefetch& operator=(const PhotoPrefetch&) = delete;

  // The photo of the file, waiting for it when it is being read; null for a file or side not
  // asked for or a file that cannot be read, which the caller then reads itself. Photos before
  // it that were never taken are dropped.
  std::unique_ptr<PrefetchedPhoto> take(const std::string& file, int side);

 private:
  void run();

  const std::vector<std::string> files_;
  const int side_;
  const std::size_t ahead_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::map<std::size_t, std::unique_ptr<PrefetchedPhoto>> ready_;  // by index in files_
  std::size_t taken_ = 0;                                          // files the document is past
  bool stopping_ = false;
  std::vector<bool> finished_;  // by index: read, or passed by
  std::size_t next_ = 0;        // the first file no worker has begun
  std::size_t reading_ = 0;     // files being read now
  std::vector<std::thread> workers_;
  static constexpr unsigned kMostWorkers = 2;
};

}  // namespace lad::drawing
