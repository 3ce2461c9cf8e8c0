#include "app/ProjectFile.h"

#include <utility>

namespace talvesk {

ProjectFile::ProjectFile(const QString& path, const ProjectFile& former)
    : mPath(path), mStamp(stampOf(path.toStdString())) {
  if (path.isEmpty()) return;
  if (former.mLock != nullptr && former.mLock->isOf(path.toStdString())) {
    mLock = former.mLock;
    return;
  }
  ProjectLock::Outcome outcome = ProjectLock::take(path.toStdString());
  mLock = std::move(outcome.lock);
  mHolder = std::move(outcome.holder);
}

bool ProjectFile::hasChanged() const {
  const std::optional<FileStamp> now = stampOf(mPath.toStdString());
  return now && now != mStamp;
}

}  // namespace talvesk
