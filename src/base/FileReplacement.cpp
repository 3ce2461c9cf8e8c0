#include "base/FileReplacement.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <random>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace talvesk {
namespace {

namespace fs = std::filesystem;

/// One name for all, so that what one program left behind the next one finds.
constexpr const char* kPrefix = ".talvesk-saving-";

std::string folderOf(const std::string& path) {
  const std::string folder = fs::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

std::string freshName() {
  static thread_local std::mt19937 random{std::random_device{}()};
  char digits[9];
  std::snprintf(digits, sizeof digits, "%08x", static_cast<unsigned>(random()));
  return kPrefix + std::string(digits);
}

/// Access lists and the marks of the user's desktop. Not every file system has them, and some may
/// be set by the system only.
void copyAttributes(const std::string& from, int to) {
  const ssize_t size = ::listxattr(from.c_str(), nullptr, 0);
  if (size <= 0) return;
  std::vector<char> names(static_cast<std::size_t>(size) + 1, '\0');
  if (::listxattr(from.c_str(), names.data(), names.size() - 1) != size) return;
  for (const char* name = names.data(); *name != '\0'; name += std::string(name).size() + 1) {
    const ssize_t length = ::getxattr(from.c_str(), name, nullptr, 0);
    if (length < 0) continue;
    std::vector<char> value(static_cast<std::size_t>(length));
    if (::getxattr(from.c_str(), name, value.data(), value.size()) != length) continue;
    static_cast<void>(::fsetxattr(to, name, value.data(), value.size(), 0));
  }
}

/// Permissions last: a change of the owner takes some of them away.
bool takeAfter(const std::string& old, int descriptor) {
  struct stat info = {};
  if (::stat(old.c_str(), &info) != 0) return errno == ENOENT;
  mode_t mode = info.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
  if (::fchown(descriptor, info.st_uid, info.st_gid) != 0 &&
      ::fchown(descriptor, static_cast<uid_t>(-1), info.st_gid) != 0) {
    // What the old group was allowed is not meant for another one.
    mode = (mode & ~static_cast<mode_t>(S_IRWXG)) | ((mode & S_IRWXO) << 3);
  }
  if (::fchmod(descriptor, mode) != 0) return false;
  copyAttributes(old, descriptor);
  return true;
}

/// A new name outlasts a power cut when its folder is on the disk. Some file systems see to that
/// themselves and refuse.
void syncFolder(const std::string& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  static_cast<void>(::fsync(descriptor));
  ::close(descriptor);
}

}  // namespace

void outliveSizeLimits() {
  std::signal(SIGXFSZ, SIG_IGN);
}

std::string placeOf(const std::string& path) {
  constexpr int kMostLinks = 40;  // as many as the system itself follows
  fs::path place = path;
  std::error_code error;
  for (int i = 0; i < kMostLinks && fs::is_symlink(fs::symlink_status(place, error)); ++i) {
    const fs::path target = fs::read_symlink(place, error);
    if (error) break;
    place = place.parent_path() / target;
  }
  return place.string();
}

Status checkReplaceable(const std::string& path) {
  const auto refuse = [&](Message why) {
    return Status::failure(
        Message::tr("The file %1 cannot be replaced: it is %2; choose another place.")
            .arg(path)
            .arg(std::move(why)));
  };
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) return {};
  if (fs::is_directory(status)) return refuse(Message::tr("a folder"));
  if (!fs::is_regular_file(status)) return refuse(Message::tr("not a regular file"));
  if (::access(path.c_str(), W_OK) != 0) return refuse(Message::tr("protected against writing"));
  return {};
}

FileReplacement::~FileReplacement() {
  if (mWriting) mWriting->remove();
}

Status FileReplacement::failed(Message text) const {
  const std::string reason = std::system_category().message(errno);
  return Status::failure(std::move(text).arg(mPath).arg(reason));
}

Status FileReplacement::begin(const std::string& path) {
  if (Status status = checkReplaceable(path); !status.ok()) return status;
  mPath = placeOf(path);
  const std::string folder = folderOf(mPath);
  clearReplacements(mPath);
  std::error_code ignored;
  // Nobody may read more of the new file than of the old one, not even while it is written.
  const mode_t mode = fs::exists(mPath, ignored) ? S_IRUSR | S_IWUSR : 0666;
  do {
    mWriting = LockedFile::create(folder + "/" + freshName(), mode);
  } while (!mWriting && errno == EEXIST);
  return mWriting ? Status() : failed(Message::tr("The file %1 cannot be created: %2."));
}

bool FileReplacement::write(const void* bytes, std::size_t count) {
  const char* next = static_cast<const char*>(bytes);
  while (count > 0) {
    const ssize_t written = ::write(mWriting->descriptor(), next, count);
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    next += written;
    count -= static_cast<std::size_t>(written);
  }
  return true;
}

bool FileReplacement::seek(std::int64_t offset) {
  return ::lseek(mWriting->descriptor(), offset, SEEK_SET) == offset;
}

std::int64_t FileReplacement::position() const {
  return ::lseek(mWriting->descriptor(), 0, SEEK_CUR);
}

std::uint64_t FileReplacement::size() const {
  struct stat facts = {};
  return ::fstat(mWriting->descriptor(), &facts) == 0 ? static_cast<std::uint64_t>(facts.st_size)
                                                      : 0;
}

Status FileReplacement::commit() {
  if (!takeAfter(mPath, mWriting->descriptor())) {
    return failed(Message::tr("The file %1 cannot be given its permissions: %2."));
  }
  if (::fsync(mWriting->descriptor()) != 0) {
    return failed(Message::tr("The file %1 cannot be written: %2."));
  }
  if (!mWriting->rename(mPath)) return failed(Message::tr("The file %1 cannot be replaced: %2."));
  mWriting.reset();
  syncFolder(folderOf(mPath));
  return {};
}

void clearReplacements(const std::string& path) {
  std::error_code error;
  for (fs::directory_iterator entry(folderOf(placeOf(path)), error), end; !error && entry != end;
       entry.increment(error)) {
    if (entry->path().filename().string().rfind(kPrefix, 0) != 0) continue;
    if (const auto left = LockedFile::takeOver(entry->path().string())) left->remove();
  }
}

}  // namespace talvesk
