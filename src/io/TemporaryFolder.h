#pragma once

#include <memory>
#include <string>

namespace talvesk {

/// A folder of its own for one save or load, below the working folder and named by the time in
/// milliseconds. It is deleted with everything in it when the object goes; symbolic links in it are
/// deleted, never followed.
///
/// A lock file beside it, NAME.lock, tells other processes and other loads that somebody works in
/// it. The lock of a process that died without cleaning up does not count.
class TemporaryFolder {
 public:
  /// Creates a folder (one level). Null when that is impossible.
  /// \param workingFolder ending in "/"
  static std::unique_ptr<TemporaryFolder> create(const std::string& workingFolder);

  /// Deletes the folders in the working folder that nobody works in any more, whatever their name
  /// and whosever they were. Files are not touched, nor what symbolic links point at.
  static void clear(const std::string& workingFolder);

  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::string& path() const { return mPath; }  ///< ends in "/"

 private:
  struct Lock;
  TemporaryFolder(std::string path, std::unique_ptr<Lock> lock);

  std::string mPath;
  std::unique_ptr<Lock> mLock;
};

/// A save that copies shot files from the folder of a loaded project keeps that folder.
using SharedFolder = std::shared_ptr<TemporaryFolder>;

}  // namespace talvesk
