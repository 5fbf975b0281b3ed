#include "core/atomic_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>

namespace lad {

std::optional<std::string> readWholeFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

namespace {

bool fail(std::string* error, const std::string& what, const std::filesystem::path& p) {
  if (error) *error = what + " " + p.string() + ": " + std::strerror(errno);
  return false;
}

bool writeAll(int fd, std::string_view content) {
  while (!content.empty()) {
    ssize_t n = ::write(fd, content.data(), content.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    content.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

void syncDirectory(const std::filesystem::path& dir) {
  int fd = ::open(dir.empty() ? "." : dir.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

}  // namespace

std::filesystem::path atomicTempPath(const std::filesystem::path& target) {
  auto tmp = target;
  tmp += ".tmp";
  return tmp;
}

bool writeFileAtomically(const std::filesystem::path& target, std::string_view content,
                         std::string* error) {
  const auto tmp = atomicTempPath(target);
  int fd = ::open(tmp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (fd < 0) return fail(error, "cannot create", tmp);
  bool written = writeAll(fd, content) && ::fsync(fd) == 0;
  int savedErrno = errno;
  if (::close(fd) != 0 && written) {
    written = false;
    savedErrno = errno;
  }
  if (!written) {
    ::unlink(tmp.c_str());
    errno = savedErrno;
    return fail(error, "cannot write", tmp);
  }
  if (::rename(tmp.c_str(), target.c_str()) != 0) {
    savedErrno = errno;
    ::unlink(tmp.c_str());
    errno = savedErrno;
    return fail(error, "cannot replace", target);
  }
  syncDirectory(target.parent_path());
  return true;
}

bool copyFileAtomically(const std::filesystem::path& from, const std::filesystem::path& to) {
  const auto temp = atomicTempPath(to);
  std::error_code error;
  std::filesystem::copy_file(from, temp, std::filesystem::copy_options::overwrite_existing, error);
  if (!error) std::filesystem::rename(temp, to, error);
  if (!error) return true;
  std::filesystem::remove(temp, error);
  return false;
}

std::optional<std::filesystem::path> moveAside(const std::filesystem::path& from,
                                               const std::filesystem::path& to) {
  constexpr int kMostTries = 1000;
  std::filesystem::path target = to;
  for (int n = 2; n <= kMostTries; ++n) {
    // The kernel checks and renames in one step, so a file appearing meanwhile is not replaced.
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
      return target;
    if (errno != EEXIST) return std::nullopt;
    target =
        to.parent_path() / (to.stem().string() + "-" + std::to_string(n) + to.extension().string());
  }
  return std::nullopt;
}

}  // namespace lad
