#pragma once

#include "base/LockedFile.h"
#include "base/Status.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace talvesk {

/// Why the file at a path (UTF-8) should not be replaced: it is a folder, a device, or protected
/// against writing. Success for one that may be, and where there is none.
Status checkReplaceable(const std::string& path);

/// A new file that takes the name of another one in a single step, when all of it is on the disk.
/// Until then, and if it never comes to that, the old file is what and where it was.
///
/// It is written under a hidden name in the same folder. A process that dies leaves it there; the
/// next replacement in the folder deletes what nobody writes any more. Not for two threads at once.
class FileReplacement {
 public:
  FileReplacement() = default;
  /// Deletes the new file unless it has taken its place.
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  /// Creates the new file, empty. To be called first, once.
  /// \param path of the old file, UTF-8. A symbolic link stays one: what it points at is replaced,
  /// or created.
  Status begin(const std::string& path);

  /// Writes all bytes where the last ones ended. False, with errno, when that is impossible.
  bool write(const void* bytes, std::size_t count);
  /// Goes to an offset from the beginning. False, with errno, when that is impossible.
  bool seek(std::int64_t offset);
  /// Where it stands, from the beginning; -1, with errno, when there is no saying.
  std::int64_t position() const;
  /// Bytes of the new file so far; 0 when there is no saying.
  std::uint64_t size() const;

  /// Gives the new file the permissions of the old one, puts it on the disk and then in its place.
  Status commit();

 private:
  /// \param text with the path and the reason as placeholders
  Status failed(Message text) const;

  std::string mPath;                   ///< of the old file, no symbolic link any more
  std::optional<LockedFile> mWriting;  ///< none before begin() and after commit()
};

/// Deletes what dead processes left that were replacing a file, or others in its folder.
/// \param path of the file, UTF-8
void clearReplacements(const std::string& path);

/// Writing beyond the largest size that the user allows for files fails from here on, as on a full
/// disk, and no longer ends the program.
void outliveSizeLimits();

/// What a path leads to: the end of a chain of symbolic links, also where there is no file yet.
std::string placeOf(const std::string& path);

}  // namespace talvesk
