#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "app/WaitCursor.h"
#include "app/doFilteringDialog.h"
#include "model/SurveyFacts.h"
#include "processing/FirstBreak.h"
#include "processing/NoiseReduction.h"
#include "processing/ShotFilters.h"
#include "processing/ShotList.h"
#include "session/PickEdits.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/editTravelTimesWidget.h"

#include <QApplication>
#include <QProgressDialog>
#include <QStatusBar>

namespace talvesk {

std::vector<std::int32_t> Talvesk_MainWindows::shotsToProcess() const {
  return shotList(document(), mSettings.showAllTraces, mCurrentFile);
}

/// Shot by shot on this thread: a shot takes a moment, and between two of them the window answers
/// and the document is whole. False when the user stopped it.
bool Talvesk_MainWindows::forEachShot(const std::vector<std::int32_t>& shots, const QString& text,
                                      const std::function<void(std::int32_t)>& work) {
  QProgressDialog progress(text, tr("Stop"), 0, static_cast<int>(shots.size()), this);
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(500);
  progress.setWindowTitle(QApplication::applicationName());
  const WaitCursor waiting;
  progress.setValue(0);
  bool whole = true;
  for (std::size_t i = 0; i < shots.size() && whole; ++i) {
    work(shots[i]);
    progress.setValue(static_cast<int>(i + 1));
    whole = !progress.wasCanceled() || i + 1 == shots.size();
  }
  return whole;
}

void Talvesk_MainWindows::on_actionAutoPick_triggered() {
  logSlot(__func__);
  if (mCurrentFile < 0) return;
  const bool useFiltered = mUi->show_filtered_cb->isChecked();
  TomoDocument work = document();
  std::size_t traces = 0;
  std::size_t found = 0;
  Status failed;
  forEachShot(shotsToProcess(), tr("Picking first breaks ..."), [&](std::int32_t shot) {
    // A shot without a filtered copy has nothing to pick there.
    Status status = pickShots(work, {shot}, useFiltered && hasFilteredCopy(shot));
    if (!status.ok() && failed.ok()) failed = std::move(status);
    markPicksAutomatic(work, shot);
    const TravelTime& record = work.ttArray[static_cast<std::size_t>(shot)];
    traces += record.ttMisurati.size();
    found += pickCount(record);
  });
  edit(Edit::kAutoPick, [&](Survey& survey) { survey.document = work; });
  // The traces may be behind another tab.
  statusBar()->showMessage(tr("First breaks found on %1 of %2 traces.").arg(found).arg(traces),
                           kMessageTime);
  if (!failed.ok()) {
    mLog.write(failed.message(), 1);
    showError(this, tr("Warning"), tr("Not every shot could be picked."), textOf(failed.text()));
  }
}

void Talvesk_MainWindows::makeFilteredCopies(
    Message step, const QString& text,
    const std::function<FilterOutcome(TomoDocument&, std::int32_t)>& filter) {
  const std::vector<std::int32_t> shots = shotsToProcess();
  if (shots.empty()) return;
  FilterOutcome sum;
  TomoDocument work = document();
  forEachShot(shots, text, [&](std::int32_t shot) {
    FilterOutcome one = filter(work, shot);
    sum.filtered += one.filtered;
    sum.failed += one.failed;
    if (sum.status.ok()) sum.status = std::move(one.status);
  });
  if (sum.filtered > 0) takeFilteredCopies(work, std::move(step));
  statusBar()->showMessage(tr("Filtered copies made of %1 of %2 traces.")
                               .arg(sum.filtered)
                               .arg(sum.filtered + sum.failed),
                           kMessageTime);
  if (sum.failed > 0) {
    mLog.write(sum.status.message(), 1);
    showError(this, tr("Warning"),
              tr("%n trace(s) stay as they were.", nullptr, static_cast<int>(sum.failed)),
              textOf(sum.status.text()));
  }
}

/// Whatever shots were filtered, only the one in view is marked and turned over to its copy.
void Talvesk_MainWindows::takeFilteredCopies(const TomoDocument& work, Message step) {
  mSettings.showFiltered = true;
  saveSettings();
  edit(
      Edit::kFilter,
      [&](Survey& survey) {
        survey.document = work;
        RecordingNote& shot =
            survey.document.recordings.edit().noteOf(static_cast<std::size_t>(mCurrentFile));
        shot.filtered = true;
        shot.showFiltered = true;
      },
      std::move(step));
}

void Talvesk_MainWindows::on_actionAGC_triggered() {
  logSlot(__func__);
  makeFilteredCopies(Message::tr("AGC"), tr("Applying AGC ..."),
                     [](TomoDocument& work, std::int32_t shot) { return agcShots(work, {shot}); });
}

void Talvesk_MainWindows::on_actionAuto_improve_triggered() {
  logSlot(__func__);
  makeFilteredCopies(
      Message::tr("Hushel"), tr("Applying Hushel ..."),
      [](TomoDocument& work, std::int32_t shot) { return reduceNoise(work, {shot}); });
}

void Talvesk_MainWindows::on_actionFilter_triggered() {
  logSlot(__func__);
  const std::vector<std::int32_t> shots = shotsToProcess();
  if (shots.empty() || mCurrentFile < 0) return;
  TomoDocument work = document();
  doFilteringDialog dialog(work, mCurrentFile, shots, this);
  dialog.setTraceOptions(mUi->showTracesWidget->options());
  dialog.exec();
  if (dialog.changedDocument()) takeFilteredCopies(work, {});
}

}  // namespace talvesk
