#include "platform/folder_watcher.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>

namespace lad::platform {

namespace {

constexpr std::uint32_t kChanges =
    IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_CREATE | IN_ATTRIB;

}  // namespace

FolderWatcher::FolderWatcher(const std::filesystem::path& folder, std::function<void()> changed)
    : folder_(folder), changed_(std::move(changed)) {
  notify_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  if (notify_ < 0) return;
  watch_ = inotify_add_watch(notify_, folder.c_str(), kChanges);
  stop_ = eventfd(0, EFD_CLOEXEC);
  if (watch_ < 0 || stop_ < 0) return;
  thread_ = std::thread([this] { run(); });
}

FolderWatcher::~FolderWatcher() {
  if (thread_.joinable()) {
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = write(stop_, &one, sizeof one);
    thread_.join();
  }
  for (int fd : {notify_, stop_})
    if (fd >= 0) close(fd);
}

void FolderWatcher::run() {
  std::array<pollfd, 2> fds{{{notify_, POLLIN, 0}, {stop_, POLLIN, 0}}};
  alignas(inotify_event) std::array<char, 4096> buffer;
  while (poll(fds.data(), fds.size(), -1) >= 0 || errno == EINTR) {
    if (fds[1].revents) return;
    if (!fds[0].revents) continue;
    bool any = false;
    while (read(notify_, buffer.data(), buffer.size()) > 0) any = true;
    if (any) changed_();
  }
}

}  // namespace lad::platform
