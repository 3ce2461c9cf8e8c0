#include "app/Messages.h"
#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "io/projectReader.h"

#include <QApplication>
#include <QLocale>
#include <QStatusBar>

// What keeps a crash from costing more than a minute of work.

namespace talvesk {
namespace {

// Milliseconds. A copy is begun early enough to be on the disk a minute after the edit.
constexpr int kDelay = 30 * 1000;             // from an edit to its copy
constexpr int kPause = 2 * 1000;              // for a copy that is still being saved
constexpr int kRetry = 30 * 1000;             // after a failure
constexpr int kLastingRetry = 3 * 60 * 1000;  // after one that will hardly go away
constexpr int kPatience = 3;                  // failures in a row that are more than an accident

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
  mAutosaveTimer.setObjectName(QStringLiteral("autosaveTimer"));
  mAutosaveTimer.setSingleShot(true);
  connect(&mAutosaveTimer, &QTimer::timeout, this, &Talvesk_MainWindows::autosave);
  connect(&mRecovery, &RecoveryCopy::saved, this, [this] { mFailedRecoveries = 0; });
  connect(&mRecovery, &RecoveryCopy::failed, this, &Talvesk_MainWindows::recoveryFailed);
}

void Talvesk_MainWindows::noteEdit() {
  if (!mAutosaveTimer.isActive()) mAutosaveTimer.start(kDelay);
}

/// There is nothing to lose any more.
void Talvesk_MainWindows::forgetRecovery() {
  mAutosaveTimer.stop();
  mRecovery.discard();
}

/// Dialogs and inversions that are open, for hours perhaps, do not put it off: they work on copies
/// of their own, and what they change meanwhile is whole between two events.
void Talvesk_MainWindows::autosave() {
  if (!mSession.modified() || mSession.revision() == mRecoveredRevision) return;
  if (mRecovery.isSaving()) {
    mAutosaveTimer.start(kPause);
    return;
  }
  mRecoveredRevision = mSession.revision();
  mRecovery.save(mSession.survey(), mProject);
}

void Talvesk_MainWindows::leaveRecoveryCopy() {
  if (!mSession.modified()) return;
  const Status left = mRecovery.saveNow(mSession.survey(), mProject);
  if (!left.ok()) mLog.write("Recovery copy: " + left.message(), 1);
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
  mAutosaveTimer.start(mFailedRecoveries < toTell ? kRetry : kLastingRetry);
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
  ProjectFile file(copy->project, mProject);
  if (copy->stamp) file.setStamp(*copy->stamp);
  if (!mayUse(file, tr("Do you want to open it all the same?"))) return;
  LoadedProject project;
  if (!loadProject(copy->file, project)) return;  // the copy stays, for whoever can do more with it
  takeProject(std::move(project), std::move(file), false);
  mRecovery.adopt(*copy);
  // It may have no file yet that could be named as loaded.
  statusBar()->showMessage(tr("The survey is recovered; it is not saved yet."), kMessageTime);
}

}  // namespace talvesk
