#include "app/presenters/ProcessingPresenter.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/WaitCursor.h"
#include "app/dialogs/NotchDialog.h"
#include "app/dialogs/VelocityFilterDialog.h"
#include "app/dialogs/doFilteringDialog.h"
#include "io/Survey.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "processing/FirstBreak.h"
#include "processing/NoiseReduction.h"
#include "processing/ShotFilters.h"
#include "processing/ShotList.h"
#include "processing/joint/JointPicker.h"
#include "session/PickEdits.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QApplication>
#include <QProgressDialog>
#include <utility>

namespace talvesk {

ProcessingPresenter::ProcessingPresenter(Desk& desk) : mDesk(desk) {
  for (editTravelTimesWidget* editor : desk.editors()) {
    connect(editor, &editTravelTimesWidget::guideDrawn, this,
            [this](const std::vector<Point2D>& points) {
              GuideLine guide;
              guide.points = points;
              fillAlong(guide);
            });
  }
}

std::vector<std::int32_t> ProcessingPresenter::shotsToProcess() const {
  return shotList(mDesk.document(), mDesk.settings.showAllTraces, mDesk.shot.index());
}

/// Shot by shot on this thread: a shot takes a moment, and between two of them the window answers
/// and the document is whole.
void ProcessingPresenter::forEachShot(const std::vector<std::int32_t>& shots, const QString& text,
                                      const std::function<void(std::int32_t)>& work) {
  QProgressDialog progress(text, tr("Stop"), 0, static_cast<int>(shots.size()), &mDesk.window);
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(500);
  progress.setWindowTitle(QApplication::applicationName());
  const WaitCursor waiting;
  progress.setValue(0);
  for (std::size_t i = 0; i < shots.size() && !progress.wasCanceled(); ++i) {
    work(shots[i]);
    progress.setValue(static_cast<int>(i + 1));
  }
}

void ProcessingPresenter::autoPick() {
  if (mDesk.shot.index() < 0) return;
  const bool useFiltered = mDesk.ui.show_filtered_cb->isChecked();
  TomoDocument work = mDesk.document();
  std::size_t traces = 0;
  std::size_t found = 0;
  std::size_t leftOut = 0;
  Status failed;
  std::vector<std::int32_t> picked;
  forEachShot(shotsToProcess(), tr("Picking first breaks ..."), [&](std::int32_t shot) {
    picked.push_back(shot);
    // A shot without a filtered copy has nothing to pick there.
    Status status = pickShots(work, {shot}, useFiltered && mDesk.hasFilteredCopy(shot));
    if (!status.ok() && failed.ok()) failed = std::move(status);
    markPicksAutomatic(work, shot);
    const TravelTime& record = work.ttArray[static_cast<std::size_t>(shot)];
    traces += record.ttMisurati.size();
    leftOut += tracesWithoutPart(work, record).size();
    found += pickCount(record);
  });
  if (!mDesk.edit(Edit::kAutoPick, [&](Survey& survey) { survey.document = work; })) return;
  // The traces may be behind another tab.
  QString outcome = tr("First breaks found on %1 of %2 traces.").arg(found).arg(traces);
  if (leftOut > 0) {
    outcome += QLatin1Char(' ') +
               tr("%1 of them are of disabled shots or killed and left unpicked.").arg(leftOut);
  }
  const Message early = describePicksAtFirstSample(work, picked);
  if (!early.empty()) {
    outcome += QLatin1Char(' ') + textOf(early);
    mDesk.log.write(early, 1);
  }
  mDesk.tell(outcome);
  if (!failed.ok()) {
    mDesk.log.write(failed.message(), 1);
    showError(&mDesk.window, tr("Warning"), tr("Not every shot could be picked."),
              textOf(failed.text()));
  }
}

void ProcessingPresenter::autoPickAlongLine() {
  pickAlongLine(shotsToProcess());
}

void ProcessingPresenter::autoPickSurvey() {
  pickAlongLine(shotList(mDesk.document(), true, 0));
}

void ProcessingPresenter::pickAlongLine(const std::vector<std::int32_t>& shots) {
  if (shots.empty()) return;
  TomoDocument work = mDesk.document();
  JointPickOptions options;
  options.keepConfirmed = true;
  options.useFiltered = mDesk.ui.show_filtered_cb->isChecked();
  JointPickOutcome outcome;
  QProgressDialog progress(tr("Picking first breaks ..."), tr("Stop"), 0, 0, &mDesk.window);
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(500);
  progress.setWindowTitle(QApplication::applicationName());
  const WaitCursor waiting;
  const Status status = pickJointly(work, shots, options, outcome, [&progress] {
    progress.setValue(0);
    return !progress.wasCanceled();
  });
  progress.reset();
  if (!status.ok()) {
    mDesk.log.write(status.message(), 1);
    showError(&mDesk.window, tr("Warning"), tr("Not every shot could be picked."),
              textOf(status.text()));
    return;
  }
  if (outcome.stopped) return;
  if (!mDesk.edit(
          Edit::kAutoPick, [&](Survey& survey) { survey.document = work; },
          Message::tr("AutoPick along the line"))) {
    return;
  }
  QString text =
      tr("Of %1 traces %2 have a pick that is sure to %3 ms and %4 a doubtful one; %5 picks "
         "that you made stay.")
          .arg(outcome.traces)
          .arg(outcome.good)
          .arg(parameters::kGoodPick.value)
          .arg(outcome.doubtful)
          .arg(outcome.kept);
  if (outcome.mended > 0) {
    text += QLatin1Char(' ') +
            tr("%1 of them are of disabled shots or killed and left unpicked.").arg(outcome.mended);
  }
  mDesk.tell(text);
}

void ProcessingPresenter::fillAlong() {
  const int shot = mDesk.shot.index();
  if (shot < 0) return;
  const TravelTime& record = mDesk.document().ttArray[static_cast<std::size_t>(shot)];
  for (std::size_t trace = 0; trace < record.ttMisurati.size(); ++trace) {
    if (hasPick(record.ttMisurati[trace]) && !record.waits(trace)) return fillAlong(GuideLine());
  }
  mDesk.tell(
      tr("Set or confirm some picks of this shot first, or draw a line with the tool Guide "
         "line."));
}

void ProcessingPresenter::fillAlong(const GuideLine& guide) {
  const int shot = mDesk.shot.index();
  if (shot < 0) return;
  TomoDocument work = mDesk.document();
  JointPickOptions options;
  options.useFiltered = mDesk.ui.show_filtered_cb->isChecked();
  JointPickOutcome outcome;
  const WaitCursor waiting;
  const Status status = talvesk::fillAlong(work, shot, guide, options, outcome);
  if (!status.ok()) {
    return mDesk.tellFailure(tr("Shot %1 has not been filled.").arg(shot + 1), status);
  }
  if (!mDesk.edit(
          Edit::kAutoPick, [&](Survey& survey) { survey.document = work; },
          Message::tr("Fill along the line"))) {
    return;
  }
  const std::size_t filled = outcome.good + outcome.doubtful;
  QString text = tr("Shot %1: %2 traces filled, %3 sure to %4 ms and %5 doubtful; %6 are without a "
                    "pick, %7 picks that you made stay.")
                     .arg(shot + 1)
                     .arg(filled)
                     .arg(outcome.good)
                     .arg(parameters::kGoodPick.value)
                     .arg(outcome.doubtful)
                     .arg(outcome.traces - filled - outcome.kept)
                     .arg(outcome.kept);
  if (outcome.mended > 0) {
    text += QLatin1Char(' ') +
            tr("%1 of them are of disabled shots or killed and left unpicked.").arg(outcome.mended);
  }
  mDesk.tell(text);
}

void ProcessingPresenter::makeFilteredCopies(
    Message step, const QString& text,
    const std::function<FilterOutcome(TomoDocument&, std::int32_t)>& filter) {
  const std::vector<std::int32_t> shots = shotsToProcess();
  if (shots.empty()) return;
  FilterOutcome sum;
  TomoDocument work = mDesk.document();
  forEachShot(shots, text, [&](std::int32_t shot) {
    FilterOutcome one = filter(work, shot);
    sum.filtered += one.filtered;
    sum.failed += one.failed;
    if (sum.status.ok()) sum.status = std::move(one.status);
  });
  if (sum.filtered > 0) takeFilteredCopies(work, std::move(step));
  mDesk.tell(tr("Filtered copies made of %1 of %2 traces.")
                 .arg(sum.filtered)
                 .arg(sum.filtered + sum.failed));
  if (sum.failed > 0) {
    mDesk.log.write(sum.status.message(), 1);
    showError(&mDesk.window, tr("Warning"),
              tr("%n trace(s) stay as they were.", nullptr, static_cast<int>(sum.failed)),
              textOf(sum.status.text()));
  }
}

/// The views show filtered copies from now on, of every shot that has one.
void ProcessingPresenter::takeFilteredCopies(const TomoDocument& work, Message step) {
  mDesk.settings.showFiltered = true;
  mDesk.saveSettings();
  mDesk.edit(
      Edit::kFilter, [&](Survey& survey) { survey.document = work; }, std::move(step));
}

void ProcessingPresenter::agc() {
  makeFilteredCopies(Message::tr("AGC"), tr("Applying AGC ..."),
                     [](TomoDocument& work, std::int32_t shot) { return agcShots(work, {shot}); });
}

void ProcessingPresenter::hushel() {
  makeFilteredCopies(
      Message::tr("Hushel"), tr("Applying Hushel ..."),
      [](TomoDocument& work, std::int32_t shot) { return reduceNoise(work, {shot}); });
}

/// Whether the dialogs of filters have something to begin with: records may be of picks only.
bool ProcessingPresenter::hasTraces(int shot) const {
  return shot >= 0 &&
         static_cast<std::size_t>(shot) < mDesk.document().recordings->traceSets.size();
}

void ProcessingPresenter::notch() {
  const int shot = mDesk.shot.index();
  const std::vector<std::int32_t> shots = shotsToProcess();
  if (shots.empty() || !hasTraces(shot)) return;
  NotchDialog dialog(mDesk.document(), shot, shots.size(), &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return;
  const NotchFilter filter = dialog.filter();
  const bool ofFiltered = dialog.ofFiltered();
  makeFilteredCopies(Message::tr("Notch"), tr("Applying notches ..."),
                     [=](TomoDocument& work, std::int32_t each) {
                       return notchShots(work, {each}, filter, ofFiltered);
                     });
}

void ProcessingPresenter::velocityFilter() {
  const int shot = mDesk.shot.index();
  const std::vector<std::int32_t> shots = shotsToProcess();
  if (shots.empty() || !hasTraces(shot)) return;
  VelocityFilterDialog dialog(mDesk.document(), shot, shots.size(), &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return;
  const VelocityFilter filter = dialog.filter();
  const bool ofFiltered = dialog.ofFiltered();
  std::vector<Message> notes;
  makeFilteredCopies(Message::tr("Velocity filter"), tr("Applying the velocity filter ..."),
                     [&](TomoDocument& work, std::int32_t each) {
                       return velocityFilterShots(work, {each}, filter, ofFiltered, notes);
                     });
  mDesk.tellNotes(notes);
}

void ProcessingPresenter::filter() {
  const std::vector<std::int32_t> shots = shotsToProcess();
  if (shots.empty() || mDesk.shot.index() < 0) return;
  TomoDocument work = mDesk.document();
  doFilteringDialog dialog(work, mDesk.shot.index(), shots, &mDesk.window);
  dialog.setTraceOptions(mDesk.ui.showTracesWidget->options());
  dialog.exec();
  if (dialog.changedDocument()) takeFilteredCopies(work, {});
}

}  // namespace talvesk
