#include "base/FileStamp.h"

#include <filesystem>
#include <system_error>

namespace talvesk {

std::optional<FileStamp> stampOf(const std::string& path) {
  std::error_code error;
  FileStamp stamp;
  stamp.bytes = std::filesystem::file_size(path, error);
  if (error) return std::nullopt;
  stamp.changed = std::filesystem::last_write_time(path, error).time_since_epoch().count();
  if (error) return std::nullopt;
  return stamp;
}

}  // namespace talvesk
