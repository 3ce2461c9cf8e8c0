#include "app/Messages.h"
#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "io/ProjectSnapshot.h"

#include <QApplication>
#include <QLocale>
#include <QStatusBar>

// What keeps a crash from costing more than a few minutes of work.

namespace talvesk {
namespace {

constexpr int kInterval = 3 * 60 * 1000;  // milliseconds between copies
constexpr int kRetry = 30 * 1000;         // the same after a failure
constexpr int kPause = 2 * 1000;          // the same after a copy that a change overtook
constexpr int kPatience = 3;              // failures in a row that are more than an accident
constexpr std::size_t kPiece = std::size_t{1} << 22;  // bytes; copied in a few milliseconds

}  // namespace

void Talvesk_MainWindows::start(const QStringList& files) {
  if (mFirstRun) {
    mFirstRun = false;
    askForSettings(-1);
    saveSettings();  // after Cancel, too: nobody is asked twice
  }
  offerRecovery();
  openFiles(files);
}

void Talvesk_MainWindows::prepareAutosave() {
  connect(&mAutosaveTimer, &QTimer::timeout, this, &Talvesk_MainWindows::autosave);
  connect(&mRecovery, &RecoveryCopy::saved, this, [this] {
    mFailedRecoveries = 0;
    mAutosaveTimer.start(kInterval);
  });
  connect(&mRecovery, &RecoveryCopy::failed, this, &Talvesk_MainWindows::recoveryFailed);
  mAutosaveTimer.start(kInterval);
}

bool Talvesk_MainWindows::mayAutosave() const {
  return mInversion == nullptr && QApplication::activeModalWidget() == nullptr &&
         QApplication::activePopupWidget() == nullptr && mDocument.modified;
}

void Talvesk_MainWindows::autosave() {
  if (mSnapshot != nullptr || mRecovery.isSaving()) return;
  if (!mayAutosave() || mRevision == mRecoveredRevision) return;
  mSnapshot = std::make_unique<ProjectSnapshot>();
  mSnapshotRevision = mRevision;
  continueSnapshot();
}

/// One piece between two events of the user's. What was changed meanwhile makes the pieces useless;
/// others are made as soon as the user pauses.
void Talvesk_MainWindows::continueSnapshot() {
  if (mSnapshot == nullptr) return;
  if (!mayAutosave() || mRevision != mSnapshotRevision) {
    mSnapshot.reset();
    mAutosaveTimer.start(kPause);
    return;
  }
  if (!mSnapshot->copyTraces(mDocument, kPiece)) {
    QTimer::singleShot(0, this, &Talvesk_MainWindows::continueSnapshot);
    return;
  }
  mRecoveredRevision = mRevision;
  mRecovery.save(
      mSnapshot->complete(mDocument, mInterpretation, mPalettes, mSection, mProjectFolder),
      mProjectFile);
  mSnapshot.reset();
}

/// A full disk may have room again in a minute; a folder that cannot be written to is told once,
/// and so is what fails again and again.
void Talvesk_MainWindows::recoveryFailed(const QString& reason, bool lasting) {
  mLog.write("Recovery copy: " + reason.toStdString(), 1);
  ++mFailedRecoveries;
  mRecoveredRevision = 0;
  const int toTell = lasting ? 1 : kPatience;
  if (mFailedRecoveries == toTell) {
    statusBar()->showMessage(
        tr("No recovery copy can be saved; save the project yourself. %1").arg(reason));
  }
  mAutosaveTimer.start(mFailedRecoveries < toTell ? kRetry : kInterval);
}

void Talvesk_MainWindows::offerRecovery() {
  const auto copy = RecoveryCopy::findAbandoned(QString::fromStdString(mFolder.path));
  if (!copy) return;
  const QString time = QLocale().toString(copy->time, QLocale::ShortFormat);
  const QString details =
      copy->project.isEmpty()
          ? tr("A survey that was not saved yet is there as it was at %1. "
               "Do you want to open it?")
                .arg(time)
          : tr("The project %1 is there as it was at %2. Do you want to open it?")
                .arg(copy->project, time);
  const RecoveryAnswer answer = askToRecover(this, details);
  if (answer == RecoveryAnswer::kDiscard) RecoveryCopy::remove(*copy);
  if (answer != RecoveryAnswer::kOpen) return;
  LoadedProject project;
  if (!loadProject(copy->file, project)) return;  // the copy stays, for whoever can do more with it
  takeProject(std::move(project), copy->project);
  mRecovery.adopt(*copy);
  documentModified();
  // It may have no file yet that could be named as loaded.
  statusBar()->showMessage(tr("The survey is recovered; it is not saved yet."), kMessageTime);
}

}  // namespace talvesk
