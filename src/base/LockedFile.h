#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace talvesk {

/// A file of our own beside those of the user, open and locked as long as the object lives. The
/// system drops the lock with the process, however that ends: a file that can be locked was left
/// behind. Where the file system has no locks, nothing looks left behind.
class LockedFile {
 public:
  /// Creates a file that is not there yet. None when there is one (errno is EEXIST) or it cannot be
  /// created (errno says why).
  /// \param mode its permissions, of which the user's mask takes some
  static std::optional<LockedFile> create(const std::string& path, unsigned mode);
  /// Opens and locks a file that its owner left behind. None when somebody holds it, it is gone, or
  /// it is no regular file.
  static std::optional<LockedFile> takeOver(const std::string& path);

  LockedFile(LockedFile&& other) noexcept;
  LockedFile& operator=(LockedFile&& other) noexcept;
  ~LockedFile();

  const std::string& path() const { return mPath; }
  int descriptor() const { return mDescriptor; }

  /// Writes bytes at the present place of the file. False when not all of them could be.
  bool write(std::string_view bytes) const;

  /// Whether the path still names this file.
  bool isNamed() const;
  /// Deletes the file, if the path still names it. False when that is impossible.
  bool remove() const;
  /// Gives the file another name, also one that another file has, which then has none any more.
  /// False when that is impossible (errno says why) and all is as before.
  bool rename(const std::string& path);

 private:
  LockedFile(std::string path, int descriptor);

  std::string mPath;
  int mDescriptor;
};

}  // namespace talvesk
