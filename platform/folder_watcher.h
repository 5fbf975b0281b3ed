// Tells when files in a folder change: the kernel's notices where the file system gives them,
// so that a change from a sync tool is seen at once. A folder on a network mount may give none;
// its owner polls as well.
#pragma once

#include <filesystem>
#include <functional>
#include <thread>

namespace lad::platform {

class FolderWatcher {
 public:
  // Calls `changed` from the watcher's own thread after files were written, moved in, or
  // removed in the folder. A folder that cannot be watched gives no calls.
  FolderWatcher(const std::filesystem::path& folder, std::function<void()> changed);
  ~FolderWatcher();
  FolderWatcher(const FolderWatcher&) = delete;
  FolderWatcher& operator=(const FolderWatcher&) = delete;

  bool watching() const { return notify_ >= 0 && watch_ >= 0; }
  const std::filesystem::path& folder() const { return folder_; }

 private:
  void run();

  std::filesystem::path folder_;
  std::function<void()> changed_;
  int notify_ = -1;
  int watch_ = -1;
  int stop_ = -1;  // an event descriptor that ends the thread
  std::thread thread_;
};

}  // namespace lad::platform
