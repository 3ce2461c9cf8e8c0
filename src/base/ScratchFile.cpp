#include "base/ScratchFile.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

// All that is the system's own about scratch files stands here.

namespace talvesk {
namespace {

Status failed(const std::string& folder, int error) {
  return Status::failure(Message::tr("no scratch file of samples can be made in %1: %2")
                             .arg(folder)
                             .arg(std::generic_category().message(error)));
}

/// Leaves a twentieth of what the disk can still take to everybody else.
bool hasRoom(const std::string& folder, std::size_t bytes) {
  std::error_code error;
  const auto space = std::filesystem::space(folder, error);
  return error || space.available - space.available / 20 >= bytes;
}

/// A file that nobody else can find, or -1.
int openNameless(const std::string& folder) {
  std::string path = folder + "/talvesk-samples-XXXXXX";
  const int descriptor = ::mkostemp(path.data(), O_CLOEXEC);
  if (descriptor >= 0) ::unlink(path.c_str());
  return descriptor;
}

bool writeAt(int descriptor, const char* bytes, std::size_t count, std::size_t at) {
  while (count > 0) {
    const ssize_t done = ::pwrite(descriptor, bytes, count, static_cast<off_t>(at));
    if (done < 0 && errno == EINTR) continue;
    if (done <= 0) return false;
    const auto step = static_cast<std::size_t>(done);
    bytes += step;
    count -= step;
    at += step;
  }
  return true;
}

}  // namespace

Status ScratchFile::create(const std::string& folder, std::size_t bytes,
                           std::shared_ptr<ScratchFile>& file) {
  if (!hasRoom(folder, bytes)) return failed(folder, ENOSPC);
  const int descriptor = openNameless(folder);
  if (descriptor < 0) return failed(folder, errno);
  int error = ::posix_fallocate(descriptor, 0, static_cast<off_t>(bytes));
  void* memory = MAP_FAILED;
  if (error == 0) {
    memory = ::mmap(nullptr, bytes, PROT_READ, MAP_SHARED, descriptor, 0);
    if (memory == MAP_FAILED) error = errno;
  }
  if (error != 0) {
    ::close(descriptor);
    return failed(folder, error);
  }
  file.reset(new ScratchFile(descriptor, memory, bytes));
  return {};
}

ScratchFile::~ScratchFile() {
  close();
  ::munmap(mMemory, mBytes);
}

const double* ScratchFile::append(Span<double> values) {
  const std::size_t bytes = values.size() * sizeof(double);
  if (bytes > room()) return nullptr;
  // Through the file and not through memory: a disk that fails says so here.
  if (!writeAt(mDescriptor, reinterpret_cast<const char*>(values.data()), bytes, mUsed)) {
    mUsed = mBytes;
    return nullptr;
  }
  const char* begin = static_cast<const char*>(mMemory) + mUsed;
  mUsed += bytes;
  return reinterpret_cast<const double*>(begin);
}

void ScratchFile::close() {
  if (mDescriptor >= 0) ::close(std::exchange(mDescriptor, -1));
  mUsed = mBytes;
}

void ScratchFile::giveBack() const {
  // Of a file that is shared and only read, the pages are dropped and nothing is lost.
  ::madvise(mMemory, mBytes, MADV_DONTNEED);
}

std::vector<std::string> scratchFolders() {
  std::vector<std::string> folders;
  const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
  for (const QString& folder :
       {cache + QStringLiteral("/talvesk"), QStringLiteral("/var/tmp"), QDir::tempPath()}) {
    if (folder.startsWith(cache) && !cache.isEmpty()) QDir().mkpath(folder);
    const QByteArray kind = QStorageInfo(folder).fileSystemType();
    if (!QFileInfo(folder).isDir() || kind == "tmpfs" || kind == "ramfs") continue;
    folders.push_back(folder.toStdString());
  }
  return folders;
}

std::size_t memoryOfProcess() {
  std::size_t bytes = static_cast<std::size_t>(std::max(::sysconf(_SC_PHYS_PAGES), 1L)) *
                      static_cast<std::size_t>(std::max(::sysconf(_SC_PAGESIZE), 1L));
  for (const auto what : {RLIMIT_DATA, RLIMIT_AS}) {
    struct rlimit limit = {};
    if (::getrlimit(what, &limit) == 0) bytes = std::min<std::size_t>(bytes, limit.rlim_cur);
  }
  return bytes;
}

}  // namespace talvesk
