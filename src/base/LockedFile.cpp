#include "base/LockedFile.h"

#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace talvesk {

LockedFile::LockedFile(std::string path, int descriptor)
    : mPath(std::move(path)), mDescriptor(descriptor) {}

LockedFile::LockedFile(LockedFile&& other) noexcept
    : mPath(std::move(other.mPath)), mDescriptor(std::exchange(other.mDescriptor, -1)) {}

LockedFile& LockedFile::operator=(LockedFile&& other) noexcept {
  std::swap(mPath, other.mPath);
  std::swap(mDescriptor, other.mDescriptor);
  return *this;
}

LockedFile::~LockedFile() {
  if (mDescriptor >= 0) ::close(mDescriptor);
}

std::optional<LockedFile> LockedFile::create(const std::string& path, unsigned mode) {
  for (;;) {
    const int descriptor = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (descriptor < 0) return std::nullopt;
    LockedFile file(path, descriptor);
    ::flock(descriptor, LOCK_EX | LOCK_NB);
    // Until it was locked it looked left behind, and somebody may have cleared it up.
    if (file.isNamed()) return file;
  }
}

std::optional<LockedFile> LockedFile::takeOver(const std::string& path) {
  // Opening a pipe that somebody has put there must not wait for its other end.
  constexpr int kCarefully = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  int descriptor = ::open(path.c_str(), O_RDWR | kCarefully);
  if (descriptor < 0) descriptor = ::open(path.c_str(), O_RDONLY | kCarefully);
  if (descriptor < 0) return std::nullopt;
  LockedFile file(path, descriptor);
  struct stat info = {};
  if (::fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode)) return std::nullopt;
  if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 || !file.isNamed()) return std::nullopt;
  return file;
}

bool LockedFile::write(std::string_view bytes) const {
  return ::write(mDescriptor, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
}

bool LockedFile::isNamed() const {
  struct stat named = {};
  struct stat open = {};
  return ::lstat(mPath.c_str(), &named) == 0 && ::fstat(mDescriptor, &open) == 0 &&
         named.st_dev == open.st_dev && named.st_ino == open.st_ino;
}

bool LockedFile::remove() const {
  return isNamed() && ::unlink(mPath.c_str()) == 0;
}

bool LockedFile::rename(const std::string& path) {
  if (std::rename(mPath.c_str(), path.c_str()) != 0) return false;
  mPath = path;
  return true;
}

}  // namespace talvesk
