#pragma once

#include <csignal>

#include <sys/resource.h>

namespace talvesk::testing {

/// Lets no file of the process grow beyond a size while it lives, as a disk does that is nearly
/// full.
class FileLimit {
 public:
  explicit FileLimit(rlim_t bytes) : mHandler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &mBefore);
    const rlimit limit{bytes, mBefore.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileLimit() {
    setrlimit(RLIMIT_FSIZE, &mBefore);
    std::signal(SIGXFSZ, mHandler);
  }
  FileLimit(const FileLimit&) = delete;
  FileLimit& operator=(const FileLimit&) = delete;

 private:
  rlimit mBefore{};
  void (*mHandler)(int);
};

}  // namespace talvesk::testing
