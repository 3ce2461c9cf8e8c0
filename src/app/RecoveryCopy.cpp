#include "app/RecoveryCopy.h"

#include "app/MessageText.h"
#include "base/AtomicFile.h"
#include "io/ProjectWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>
#include <utility>

namespace talvesk {
namespace {

const QString kPrefix = QStringLiteral("Talvesk_recovery_");
const QString kSuffix = QStringLiteral(".tvsk");

std::shared_ptr<QLockFile> lockOf(const QString& file) {
  auto lock = std::make_shared<QLockFile>(file + QStringLiteral(".lock"));
  lock->setStaleLockTime(0);  // only the end of its program makes it void, not its age
  return lock;
}

/// Beside a copy lies a text with the path of the project that it is a copy of.
QString noteOf(const QString& file) {
  return file + QStringLiteral(".txt");
}

/// A program that died while it replaced a copy left the one before under this name.
QString formerOf(const QString& file) {
  return file + QLatin1Char('~');
}

/// The name of the copy, also where only the former one is left.
QString copyOf(QString file) {
  if (file.endsWith(QLatin1Char('~'))) file.chop(1);
  return file;
}

void removeFiles(const QString& file) {
  QFile::remove(file);
  QFile::remove(formerOf(file));
  QFile::remove(noteOf(file));
}

bool canWrite(const QString& folder) {
  const QFileInfo info(folder);
  return info.isDir() && info.isWritable();
}

}  // namespace

RecoveryCopy::RecoveryCopy(QString folder, QObject* parent)
    : QObject(parent), mFolder(std::move(folder)) {}

RecoveryCopy::~RecoveryCopy() {
  wait();
}

bool RecoveryCopy::take() {
  if (mLock != nullptr) return true;
  constexpr int kMostTries = 100;  // of windows that begin within a millisecond
  const qint64 now = QDateTime::currentMSecsSinceEpoch();
  for (int i = 0; i < kMostTries; ++i) {
    const QString file = mFolder + kPrefix + QString::number(now + i) + kSuffix;
    auto lock = lockOf(file);
    if (lock->tryLock(0)) {
      mFile = file;
      mLock = std::move(lock);
      return true;
    }
    if (lock->error() != QLockFile::LockFailedError) return false;
  }
  return false;
}

void RecoveryCopy::save(LoadedProject copy, const QString& project) {
  if (isSaving()) return;
  if (!take()) {
    emit failed(tr("Nothing can be written in %1").arg(mFolder), !canWrite(mFolder));
    return;
  }
  auto shared = std::make_shared<LoadedProject>(std::move(copy));
  const std::string file = mFile.toStdString();
  const std::string note = noteOf(mFile).toStdString();
  const std::string work = mFolder.toStdString();
  const int run = ++mRun;
  mThread.reset(
      QThread::create([=, shared = std::move(shared), path = project.toStdString()]() mutable {
        ProjectWriter writer;
        int result = writer.save(file, work, shared->document, shared->interpretation,
                                 shared->palettes, shared->section);
        shared.reset();  // here, not where the user waits for it
        Message reason = writer.reason();
        if (const Status noted = writeFileAtomically(note, path); result == 0 && !noted.ok()) {
          result = 1;
          reason = noted.text();
        }
        QMetaObject::invokeMethod(
            this, [=] { finish(run, result, textOf(reason)); }, Qt::QueuedConnection);
      }));
  mThread->start(QThread::LowPriority);
}

void RecoveryCopy::finish(int run, int result, const QString& reason) {
  if (mThread == nullptr || run != mRun) return;  // wait() was faster
  const bool wanted = mUnwanted.isEmpty();
  wait();
  if (!wanted) return;
  if (result == 0) {
    emit saved();
  } else {
    emit failed(reason, !canWrite(mFolder));
  }
}

void RecoveryCopy::wait() {
  if (mThread == nullptr) return;
  mThread->wait();
  mThread.reset();
  removeUnwanted();
}

void RecoveryCopy::removeUnwanted() {
  if (mUnwanted.isEmpty()) return;
  removeFiles(mUnwanted);
  mUnwantedsLock.reset();
  mUnwanted.clear();
}

void RecoveryCopy::discard() {
  if (mLock == nullptr) return;
  if (isSaving()) {
    mUnwanted = mFile;
    mUnwantedsLock = std::move(mLock);
  } else {
    removeFiles(mFile);
  }
  mLock.reset();
  mFile.clear();
}

void RecoveryCopy::adopt(const AbandonedCopy& copy) {
  discard();
  mFile = copyOf(copy.file);  // to which the next save goes
  mLock = copy.lock;
}

std::optional<AbandonedCopy> RecoveryCopy::findAbandoned(const QString& folder) {
  const QFileInfoList found = QDir(folder).entryInfoList(
      {kPrefix + QLatin1Char('*') + kSuffix, formerOf(kPrefix + QLatin1Char('*') + kSuffix)},
      QDir::Files | QDir::NoSymLinks, QDir::Time);
  for (const QFileInfo& info : found) {
    const QString file = copyOf(info.absoluteFilePath());
    if (file != info.absoluteFilePath() && QFile::exists(file)) continue;
    auto lock = lockOf(file);
    if (!lock->tryLock(0)) continue;
    AbandonedCopy copy;
    copy.file = info.absoluteFilePath();
    copy.time = info.lastModified();
    copy.lock = std::move(lock);
    std::string project;
    constexpr std::size_t kLongestPath = 4096;
    if (readWholeFile(noteOf(file).toStdString(), project, kLongestPath).ok()) {
      copy.project = QString::fromStdString(project);
    }
    return copy;
  }
  return std::nullopt;
}

void RecoveryCopy::remove(const AbandonedCopy& copy) {
  removeFiles(copyOf(copy.file));
}

}  // namespace talvesk
