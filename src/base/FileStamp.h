#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace talvesk {

/// By which a file is known again as it was. Not by what the file system calls it inside: some give
/// the same file another number every time.
struct FileStamp {
  std::uintmax_t bytes = 0;
  std::int64_t changed = 0;  ///< ticks of the file system's clock
};

inline bool operator==(const FileStamp& a, const FileStamp& b) {
  return a.bytes == b.bytes && a.changed == b.changed;
}
inline bool operator!=(const FileStamp& a, const FileStamp& b) {
  return !(a == b);
}

/// Of the file at a path (UTF-8), or what a link there points at. None where there is no file.
std::optional<FileStamp> stampOf(const std::string& path);

}  // namespace talvesk
