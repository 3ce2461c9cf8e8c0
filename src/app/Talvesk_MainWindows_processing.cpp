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
#include "ui_Talvesk_MainWindows.h"
#include "widgets/editTravelTimesWidget.h"

#include <QApplication>
#include <QProgressDialog>
#include <QStatusBar>

namespace talvesk {

std::vector<std::int32_t> Talvesk_MainWindows::shotsToProcess() const {
  return shotList(mDocument, mSettings.showAllTraces, mCurrentFile);
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
  std::vector<ReplacedPicks> picked;
  Status failed;
  forEachShot(shotsToProcess(), tr("Picking first breaks ..."), [&](std::int32_t shot) {
    // A shot without a filtered copy has nothing to pick there.
    const bool fromCopy = useFiltered && hasFilteredCopy(shot);
    picked.push_back({shot, mDocument.ttArray[static_cast<std::size_t>(shot)].ttMisurati});
    Status status = pickShots(mDocument, {shot}, fromCopy);
    if (!status.ok() && failed.ok()) failed = std::move(status);
  });
  mUi->showTracesWidget->autoPicked(picked);
  mUi->showTracesWidget_2->picksReplaced();
  documentModified();
  refreshPlots();
  // The traces may be behind another tab.
  std::size_t traces = 0;
  std::size_t found = 0;
  for (const ReplacedPicks& one : picked) {
    const TravelTime& record = mDocument.ttArray[static_cast<std::size_t>(one.shot)];
    traces += record.ttMisurati.size();
    found += pickCount(record);
  }
  statusBar()->showMessage(tr("First breaks found on %1 of %2 traces.").arg(found).arg(traces),
                           kMessageTime);
  if (!failed.ok()) {
    mLog.write(failed.message(), 1);
    showError(this, tr("Warning"), tr("Not every shot could be picked."), textOf(failed.text()));
  }
}

void Talvesk_MainWindows::makeFilteredCopies(
    const QString& text, const std::function<FilterOutcome(std::int32_t)>& filter) {
  const std::vector<std::int32_t> shots = shotsToProcess();
  if (shots.empty()) return;
  FilterOutcome sum;
  forEachShot(shots, text, [&](std::int32_t shot) {
    FilterOutcome one = filter(shot);
    sum.filtered += one.filtered;
    sum.failed += one.failed;
    if (sum.status.ok()) sum.status = std::move(one.status);
  });
  if (sum.filtered > 0) {
    documentModified();
    showFilteredCopies();
  }
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
void Talvesk_MainWindows::showFilteredCopies() {
  ShotMemory& shot = mShots[static_cast<std::size_t>(mCurrentFile)];
  shot.filtered = true;
  shot.showFiltered = true;
  mSettings.showFiltered = true;
  saveSettings();
  for (editTravelTimesWidget* editor : editors()) editor->documentChanged();
  refreshTraceOptions();
}

void Talvesk_MainWindows::on_actionAGC_triggered() {
  logSlot(__func__);
  makeFilteredCopies(tr("Applying AGC ..."),
                     [this](std::int32_t shot) { return agcShots(mDocument, {shot}); });
}

void Talvesk_MainWindows::on_actionAuto_improve_triggered() {
  logSlot(__func__);
  makeFilteredCopies(tr("Applying Hushel ..."),
                     [this](std::int32_t shot) { return reduceNoise(mDocument, {shot}); });
}

void Talvesk_MainWindows::on_actionFilter_triggered() {
  logSlot(__func__);
  const std::vector<std::int32_t> shots = shotsToProcess();
  if (shots.empty() || mCurrentFile < 0) return;
  doFilteringDialog dialog(mDocument, mCurrentFile, shots, this);
  dialog.setTraceOptions(mUi->showTracesWidget->options());
  dialog.exec();
  if (!dialog.changedDocument()) return;
  documentModified();
  showFilteredCopies();
}

}  // namespace talvesk
