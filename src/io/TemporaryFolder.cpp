#include "io/TemporaryFolder.h"

#include "base/LockedFile.h"
#include "base/PrivateFolder.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

namespace talvesk {
namespace {

namespace fs = std::filesystem;

constexpr const char* kLockSuffix = ".lock";
constexpr unsigned kOfUserAlone = 0600;

bool isDecimal(const std::string& name) {
  const std::size_t first = !name.empty() && name.front() == '-' ? 1 : 0;
  return name.size() > first &&
         std::all_of(name.begin() + static_cast<std::ptrdiff_t>(first), name.end(),
                     [](char c) { return c >= '0' && c <= '9'; });
}

long long millisecondsNow() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
             std::chrono::system_clock::now().time_since_epoch())
      .count();
}

}  // namespace

/// The file beside a folder that tells that somebody works in it. The system drops its lock with
/// the process, also when that ends before it could write who it is.
struct TemporaryFolder::Lock {
  explicit Lock(LockedFile aFile) : file(std::move(aFile)) {}
  ~Lock() { file.remove(); }

  LockedFile file;
};

TemporaryFolder::TemporaryFolder(std::string path, std::unique_ptr<Lock> lock)
    : mPath(std::move(path)), mLock(std::move(lock)) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(mPath.substr(0, mPath.size() - 1), ignored);
}

std::unique_ptr<TemporaryFolder> TemporaryFolder::create(const std::string& workingFolder) {
  constexpr int kMostTries = 100;  // two saves within a millisecond take the next free names
  const long long now = millisecondsNow();
  for (int i = 0; i < kMostTries; ++i) {
    const std::string path = workingFolder + std::to_string(now + i);
    auto file = LockedFile::create(path + kLockSuffix, kOfUserAlone);
    if (!file) {
      if (errno == EEXIST) continue;  // somebody else's
      return nullptr;
    }
    auto lock = std::make_unique<Lock>(std::move(*file));
    if (createPrivateFolder(path)) {
      return std::unique_ptr<TemporaryFolder>(new TemporaryFolder(path + "/", std::move(lock)));
    }
    if (errno != EEXIST) return nullptr;
  }
  return nullptr;
}

void TemporaryFolder::clear(const std::string& workingFolder) {
  std::error_code error;
  std::vector<fs::path> folders;
  for (fs::directory_iterator entry(workingFolder, error), end; !error && entry != end;
       entry.increment(error)) {
    // A lock without its folder is left by a process that died in between. Other files have locks,
    // too.
    const bool isLock = entry->path().extension() == kLockSuffix;
    const fs::path folder = isLock ? fs::path(entry->path()).replace_extension() : entry->path();
    std::error_code gone;  // another process may be clearing up as well
    const bool isOurs = isLock ? isDecimal(folder.filename().string())
                               : fs::is_directory(entry->symlink_status(gone));
    if (isOurs) folders.push_back(folder);
  }
  for (const fs::path& folder : folders) {
    const std::string path = folder.string() + kLockSuffix;
    auto file = LockedFile::takeOver(path);
    if (!file) file = LockedFile::create(path, kOfUserAlone);  // there may be none
    if (!file) continue;
    const Lock lock(std::move(*file));
    std::error_code ignored;
    if (fs::is_directory(fs::symlink_status(folder, ignored))) fs::remove_all(folder, ignored);
  }
}

}  // namespace talvesk
