#include "io/project/ProjectLock.h"

#include "base/AtomicFile.h"
#include "base/FileReplacement.h"
#include "base/ThisProcess.h"

#include <QFileInfo>
#include <QString>
#include <QStringList>
#include <QSysInfo>
#include <cerrno>
#include <utility>

namespace talvesk {
namespace {

std::string thisHost() {
  return QSysInfo::machineHostName().toStdString();
}

/// One spelling for all paths that lead to one project.
std::string lockFileOf(const std::string& project) {
  const QFileInfo place(QString::fromStdString(placeOf(project)));
  const QFileInfo folder(place.absolutePath());
  const QString real = folder.exists() ? folder.canonicalFilePath() : folder.filePath();
  return (real + QStringLiteral("/.") + place.fileName() + QStringLiteral(".lock")).toStdString();
}

/// Anybody may have written what is read here.
std::string shown(const QStringList& lines, int index) {
  constexpr int kLongest = 80;
  QString line = lines.value(index).left(kLongest);
  for (QChar& letter : line) {
    if (!letter.isPrint()) letter = QLatin1Char(' ');
  }
  return line.simplified().toStdString();
}

ProjectHolder holderIn(const std::string& lockFile) {
  constexpr std::size_t kLongestText = 4096;
  std::string text;
  static_cast<void>(readWholeFile(lockFile, text, kLongestText));  // who stays unknown then
  const QStringList lines = QString::fromStdString(text).split(QLatin1Char('\n'));
  return {shown(lines, 0), shown(lines, 1), shown(lines, 2), lockFile};
}

}  // namespace

ProjectLock::ProjectLock(LockedFile file) : mFile(std::move(file)) {
  // Without its text, on a full disk, it is a lock still.
  static_cast<void>(
      mFile.write(userName() + "\n" + thisHost() + "\n" + std::to_string(processNumber()) + "\n"));
}

ProjectLock::~ProjectLock() {
  mFile.remove();
}

ProjectLock::Outcome ProjectLock::take(const std::string& project) {
  const std::string path = lockFileOf(project);
  for (;;) {
    if (auto file = LockedFile::create(path, 0666)) {
      return {std::unique_ptr<ProjectLock>(new ProjectLock(std::move(*file))), std::nullopt};
    }
    if (errno != EEXIST) return {};
    ProjectHolder holder = holderIn(path);
    // Another computer's lock may not be seen from here.
    const bool fromHere = holder.host.empty() || holder.host == thisHost();
    const auto left = fromHere ? LockedFile::takeOver(path) : std::nullopt;
    if (!left) return {nullptr, std::move(holder)};
    if (!left->remove()) return {};
  }
}

bool ProjectLock::isOf(const std::string& project) const {
  return mFile.path() == lockFileOf(project) && mFile.isNamed();
}

}  // namespace talvesk
