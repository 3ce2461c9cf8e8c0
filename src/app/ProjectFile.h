#pragma once

#include "base/FileStamp.h"
#include "io/project/ProjectLock.h"

#include <QString>
#include <memory>
#include <optional>

namespace talvesk {

/// The file that a survey is saved in: where it is, how it was when it was last read or written
/// here, and the lock that tells others of it.
class ProjectFile {
 public:
  ProjectFile() = default;  ///< of a survey that was not saved yet
  /// A file that is about to be read, or was just written: takes note of how it is now, and lays
  /// its lock. \param former of the same window; if it is the same file, its lock goes on
  ProjectFile(const QString& path, const ProjectFile& former);

  const QString& path() const { return mPath; }  ///< empty before the survey was saved
  bool isEmpty() const { return mPath.isEmpty(); }
  /// Who else works on it; nothing is known of one who came later.
  const std::optional<ProjectHolder>& holder() const { return mHolder; }

  const std::optional<FileStamp>& stamp() const { return mStamp; }
  void setStamp(const FileStamp& stamp) { mStamp = stamp; }  ///< it was like that
  /// Whether there is a file that somebody else has written.
  bool hasChanged() const;

 private:
  QString mPath;
  std::optional<FileStamp> mStamp;
  std::shared_ptr<ProjectLock> mLock;  ///< null where none can be laid
  std::optional<ProjectHolder> mHolder;
};

}  // namespace talvesk
