#include "app/RecoveryCopy.h"

#include "app/MessageText.h"
#include "base/AtomicFile.h"
#include "io/Survey.h"
#include "io/project/ProjectWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>
#include <locale>
#include <sstream>
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

/// Beside a copy lies a text with the path of the project that it is a copy of, and in a last line
/// how that was.
QString noteOf(const QString& file) {
  return file + QStringLiteral(".txt");
}

std::string noteText(const ProjectFile& project) {
  std::string text = project.path().toStdString();
  if (const auto& stamp = project.stamp()) {
    text += "\n" + std::to_string(stamp->bytes) + " " + std::to_string(stamp->changed);
  }
  return text;
}

void readNote(const std::string& text, AbandonedCopy& copy) {
  const std::size_t end = text.rfind('\n');
  if (end != std::string::npos) {
    std::istringstream line(text.substr(end));
    line.imbue(std::locale::classic());
    FileStamp stamp;
    if (line >> stamp.bytes >> stamp.changed) copy.stamp = stamp;
  }
  copy.project = QString::fromStdString(copy.stamp ? text.substr(0, end) : text);
}

void removeFiles(const QString& file) {
  QFile::remove(file);
  QFile::remove(noteOf(file));
}

Status write(const QString& file, const QString& folder, const Survey& copy,
             const std::string& note) {
  ProjectWriter writer;
  if (writer.save(file.toStdString(), folder.toStdString(), copy.document, copy.interpretation,
                  copy.palettes, copy.section, copy.own) != 0) {
    return Status::failure(writer.reason());
  }
  return writeFileAtomically(noteOf(file).toStdString(), note);
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

void RecoveryCopy::save(Survey copy, const ProjectFile& project) {
  if (isSaving()) return;
  if (!take()) {
    emit failed(nothingCanBeWritten(), !canWrite(mFolder));
    return;
  }
  auto shared = std::make_shared<Survey>(std::move(copy));
  const int run = ++mRun;
  mThread.reset(QThread::create([this, run, shared = std::move(shared), file = mFile,
                                 folder = mFolder, note = noteText(project)]() mutable {
    const Status written = write(file, folder, *shared, note);
    shared.reset();  // here, not where the user waits for it
    QMetaObject::invokeMethod(
        this, [=] { finish(run, written); }, Qt::QueuedConnection);
  }));
  mThread->start(QThread::LowPriority);
}

Status RecoveryCopy::saveNow(const Survey& survey, const ProjectFile& project) {
  wait();
  if (!take()) return Status::failure(nothingCanBeWritten().toStdString());
  return write(mFile, mFolder, survey, noteText(project));
}

QString RecoveryCopy::nothingCanBeWritten() const {
  return tr("Nothing can be written in %1").arg(mFolder);
}

void RecoveryCopy::finish(int run, const Status& written) {
  if (mThread == nullptr || run != mRun) return;  // wait() was faster
  const bool wanted = mUnwanted.isEmpty();
  wait();
  if (!wanted) return;
  if (written.ok()) {
    emit saved();
  } else {
    emit failed(textOf(written.text()), !canWrite(mFolder));
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
  mFile = copy.file;  // to which the next save goes
  mLock = copy.lock;
}

std::optional<AbandonedCopy> RecoveryCopy::findAbandoned(const QString& folder) {
  const QFileInfoList found = QDir(folder).entryInfoList(
      {kPrefix + QLatin1Char('*') + kSuffix}, QDir::Files | QDir::NoSymLinks, QDir::Time);
  for (const QFileInfo& info : found) {
    const QString file = info.absoluteFilePath();
    auto lock = lockOf(file);
    if (!lock->tryLock(0)) continue;
    AbandonedCopy copy;
    copy.file = file;
    copy.time = info.lastModified();
    copy.lock = std::move(lock);
    std::string note;
    constexpr std::size_t kLongestNote = 5000;  // a path, and a line
    if (readWholeFile(noteOf(file).toStdString(), note, kLongestNote).ok()) readNote(note, copy);
    return copy;
  }
  return std::nullopt;
}

void RecoveryCopy::remove(const AbandonedCopy& copy) {
  removeFiles(copy.file);
}

}  // namespace talvesk
