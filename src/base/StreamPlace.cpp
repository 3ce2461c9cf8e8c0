#include "base/StreamPlace.h"

#include <cerrno>
#include <charconv>
#include <cstring>
#include <iostream>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace talvesk {
namespace {

/// The open stream that a path names; -1 when it names none. Opening it by its name would start
/// another one, which overwrites what a redirected output holds.
int descriptorOf(std::string_view path) {
  if (path == "/dev/stdin") return STDIN_FILENO;
  if (path == "/dev/stdout") return STDOUT_FILENO;
  if (path == "/dev/stderr") return STDERR_FILENO;
  for (const std::string_view folder : {"/dev/fd/", "/proc/self/fd/"}) {
    if (path.substr(0, folder.size()) != folder) continue;
    const std::string_view number = path.substr(folder.size());
    const char* const end = number.data() + number.size();
    int descriptor = -1;
    const auto read = std::from_chars(number.data(), end, descriptor);
    if (read.ec == std::errc() && read.ptr == end && descriptor >= 0) return descriptor;
  }
  return -1;
}

/// What a path leads to, 0 for nothing.
mode_t kindOf(const std::string& path) {
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 ? info.st_mode & S_IFMT : 0;
}

/// A descriptor to write to and to close; -1 and errno.
int openStream(const std::string& path) {
  const int own = descriptorOf(path);
  if (own == STDOUT_FILENO) std::cout.flush();  // what was printed before comes before
  if (own >= 0) return ::fcntl(own, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  const int opened = ::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (opened >= 0) ::fcntl(opened, F_SETFL, ::fcntl(opened, F_GETFL) & ~O_NONBLOCK);
  return opened;
}

bool writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace

bool isStreamPlace(const std::string& path) {
  if (descriptorOf(path) >= 0) return true;
  const mode_t kind = kindOf(path);
  return kind == S_IFIFO || kind == S_IFCHR;
}

bool isStandardOutput(const std::string& path) {
  return descriptorOf(path) == STDOUT_FILENO;
}

bool isDevice(const std::string& path) {
  return descriptorOf(path) < 0 && kindOf(path) == S_IFCHR;
}

bool isNamedPipe(const std::string& path) {
  return descriptorOf(path) < 0 && kindOf(path) == S_IFIFO;
}

Status holdPipeOpen(const std::string& path) {
  if (::open(path.c_str(), O_WRONLY | O_CLOEXEC) >= 0) return {};
  return Status::failure(
      Message::tr("Cannot write %1: %2").arg(path).arg(Message(std::strerror(errno))));
}

Status writeStream(const std::string& path, std::string_view bytes) {
  const int descriptor = openStream(path);
  const bool done = descriptor >= 0 && writeAll(descriptor, bytes);
  const int reason = errno;
  if (descriptor >= 0) ::close(descriptor);
  if (done) return {};
  const bool unread = reason == ENXIO || reason == EPIPE;
  return Status::failure(
      Message::tr("Cannot write %1: %2")
          .arg(path)
          .arg(unread ? Message::tr("nobody reads from it") : Message(std::strerror(reason))));
}

}  // namespace talvesk
