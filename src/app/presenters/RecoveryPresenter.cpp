#include "app/presenters/RecoveryPresenter.h"

#include "app/Messages.h"
#include "app/presenters/ProjectPresenter.h"
#include "app/presenters/ProjectQuestions.h"
#include "io/project/projectReader.h"
#include "ui_Talvesk_MainWindows.h"

#include <QLocale>
#include <utility>

namespace talvesk {
namespace {

// Milliseconds. A copy is begun early enough to be on the disk a minute after the edit.
constexpr int kDelay = 30 * 1000;             // from an edit to its copy
constexpr int kPause = 2 * 1000;              // for a copy that is still being saved
constexpr int kRetry = 30 * 1000;             // after a failure
constexpr int kLastingRetry = 3 * 60 * 1000;  // after one that will hardly go away
constexpr int kPatience = 3;                  // failures in a row that are more than an accident

}  // namespace

RecoveryPresenter::RecoveryPresenter(Desk& desk, ProjectPresenter& projects)
    : mDesk(desk),
      mProjects(projects),
      mCopy(QString::fromStdString(desk.folder.path)),
      mTimer(&desk.window) {
  mTimer.setObjectName(QStringLiteral("autosaveTimer"));
  mTimer.setSingleShot(true);
  connect(&mTimer, &QTimer::timeout, this, [this] { due(); });
  connect(&mCopy, &RecoveryCopy::saved, this, [this] { mFailures = 0; });
  connect(&mCopy, &RecoveryCopy::failed, this, &RecoveryPresenter::failed);
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    using Kind = SurveyChange::Kind;
    if (change.kind == Kind::kOpened) forget();
    if (change.kind == Kind::kView) return;
    // Saved, or taken back to what was: nothing is to be recovered.
    if (!mDesk.session.modified()) return forget();
    if (!mTimer.isActive()) mTimer.start(kDelay);
  });
}

/// Dialogs and inversions that are open, for hours perhaps, do not put it off: they work on copies
/// of their own, and what they change meanwhile is whole between two events.
void RecoveryPresenter::autosave() {
  if (!mDesk.session.modified() || mDesk.session.revision() == mRevision) return;
  if (mCopy.isSaving()) {
    mTimer.start(kPause);
    return;
  }
  mRevision = mDesk.session.revision();
  mCopy.save(mDesk.session.settled(), mDesk.project);
}

void RecoveryPresenter::leaveCopy() {
  if (!mDesk.session.modified()) return;
  const Status left = mCopy.saveNow(mDesk.session.settled(), mDesk.project);
  if (!left.ok()) mDesk.log.write("Recovery copy: " + left.message(), 1);
}

/// A full disk may have room again in a minute; a folder that cannot be written to is told once,
/// and so is what fails again and again.
void RecoveryPresenter::failed(const QString& reason, bool lasting) {
  mDesk.log.write("Recovery copy: " + reason.toStdString(), 1);
  ++mFailures;
  mRevision = 0;
  const int toTell = lasting ? 1 : kPatience;
  if (mFailures == toTell) {
    mDesk.ui.statusBar->showMessage(
        tr("No recovery copy can be saved; save the project yourself. %1").arg(reason));
  }
  mTimer.start(mFailures < toTell ? kRetry : kLastingRetry);
}

void RecoveryPresenter::forget() {
  mTimer.stop();
  mCopy.discard();
}

void RecoveryPresenter::offer() {
  const auto copy = RecoveryCopy::findAbandoned(QString::fromStdString(mDesk.folder.path));
  if (!copy) return;
  const QString time = QLocale().toString(copy->time, QLocale::ShortFormat);
  const QString details =
      copy->project.isEmpty()
          ? tr("A survey that was not saved yet is there as it was at %1. "
               "Do you want to open it?")
                .arg(time)
          : tr("The project %1 is there as it was at %2. Do you want to open it?")
                .arg(copy->project, time);
  const RecoveryAnswer answer = askToRecover(&mDesk.window, details);
  if (answer == RecoveryAnswer::kDiscard) RecoveryCopy::remove(*copy);
  if (answer != RecoveryAnswer::kOpen) return;
  ProjectFile file(copy->project, mDesk.project);
  if (copy->stamp) file.setStamp(*copy->stamp);
  if (!mayUse(mDesk, file, tr("Do you want to open it all the same?"))) return;
  LoadedProject project;
  // Where that fails the copy stays, for whoever can do more with it.
  if (!mProjects.read(copy->file, project)) return;
  mProjects.take(std::move(project), std::move(file), false);
  mCopy.adopt(*copy);
  // It may have no file yet that could be named as loaded.
  mDesk.tell(tr("The survey is recovered; it is not saved yet."));
}

}  // namespace talvesk
