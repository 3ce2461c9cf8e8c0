#include "app/presenters/TracesPresenter.h"

#include "app/LengthText.h"
#include "app/LossQuestion.h"
#include "app/MessageText.h"
#include "app/dialogs/MendDialog.h"
#include "app/dialogs/RecordingDetailsDialog.h"
#include "figures/FigureWords.h"
#include "io/Survey.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "session/RemoveShots.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>

namespace talvesk {

TracesPresenter::TracesPresenter(Desk& desk) : mDesk(desk), mChooser(new QComboBox(&desk.window)) {
  addChooser();
  connectEditors();
  connect(&desk.shot, &ShotInView::changed, this, &TracesPresenter::showShot);
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    const auto has = [&change](Part part) { return change.parts.has(part); };
    const bool opened = change.kind == SurveyChange::Kind::kOpened;
    if (opened || has(Part::kRecordings) || has(Part::kGeometry)) showRecords();
    if (!has(Part::kGeometry) && !has(Part::kResult)) return;
    for (editTravelTimesWidget* editor : mDesk.editors()) editor->update();
  });
}

void TracesPresenter::addChooser() {
  mChooser->setObjectName(QStringLiteral("shotCBox"));
  mChooser->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  mChooser->setMinimumContentsLength(12);
  mDesk.ui.toolBar->insertWidget(mDesk.ui.actionNext_file, mChooser);
  connect(mChooser, QOverload<int>::of(&QComboBox::activated), &mDesk.shot, &ShotInView::show);
}

void TracesPresenter::connectEditors() {
  for (editTravelTimesWidget* editor : mDesk.editors()) {
    editor->setSession(mDesk.session);
    connect(editor, &editTravelTimesWidget::editRefused, this,
            [this](const Status& reason) { mDesk.tellUnlessDone(reason); });
    connect(editor, &editTravelTimesWidget::pickLeftOut, this,
            [this](const Status& why) { mDesk.tell(textOf(why.text())); });
    connect(editor, &editTravelTimesWidget::cursorMoved, this,
            [this, editor](const TraceCursor& cursor) {
              if (!editor->isHidden()) showCursor(cursor);
            });
  }
  connect(mDesk.ui.showTracesWidget, &editTravelTimesWidget::shotEdited, &mDesk.shot,
          &ShotInView::show);
}

void TracesPresenter::showRecords() {
  showShot();
  mDesk.ui.tracesStack->setCurrentWidget(mDesk.document().ttArray.empty()
                                             ? mDesk.ui.emptyPage
                                             : static_cast<QWidget*>(mDesk.ui.splitter));
  refreshChooser();
}

void TracesPresenter::showShot() {
  for (editTravelTimesWidget* editor : mDesk.editors()) editor->setShot(mDesk.shot.index());
  mChooser->setEnabled(!mDesk.document().ttArray.empty());
  mChooser->setCurrentIndex(mDesk.shot.index());
}

void TracesPresenter::removeShot() {
  const int shot = mDesk.shot.index();
  if (shot < 0) return;
  const std::vector<std::size_t> shots = {static_cast<std::size_t>(shot)};
  Survey without = mDesk.survey();
  removeShots(shots, without);
  Losses losses;
  losses.model = modelLoss(mDesk.document(), without.document.surveyProfile());
  losses.interpretation = isInterpreted(mDesk.interpretation());
  if (!mayLose(&mDesk.window, mDesk.document(), losses)) return;
  if (!mDesk.edit(Edit::kRemoveShot, [&](Survey& survey) { removeShots(shots, survey); })) return;
  mDesk.tell(tr("Shot %1 is removed; Undo brings it back.").arg(shot + 1));
}

void TracesPresenter::mendRecording() {
  const int shot = mDesk.shot.index();
  if (shot < 0) return;
  MendDialog dialog(mDesk.document(), static_cast<std::size_t>(shot), &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return;
  mend(tr("The recording of shot %1 has not been mended.").arg(shot + 1),
       [&](TomoDocument& document, std::vector<Message>& notes) {
         return dialog.apply(document, notes);
       });
}

void TracesPresenter::takeBackMends() {
  mend(tr("The mends have not been taken back."),
       [](TomoDocument& document, std::vector<Message>& notes) {
         Status status;
         const std::size_t sets = document.recordings->mends.size();
         for (std::size_t set = 0; set < sets && status.ok(); ++set) {
           status = setMends(set, {}, document, &notes);
         }
         return status;
       });
}

/// One step, and in the status bar what became of picks and filtered copies.
void TracesPresenter::mend(
    const QString& failure,
    const std::function<Status(TomoDocument&, std::vector<Message>&)>& change) {
  std::vector<Message> notes;
  const Status done = mDesk.session.apply(
      Edit::kMend, [&](Survey& survey) { return change(survey.document, notes); });
  if (!done.ok()) return mDesk.tellFailure(failure, done);
  mDesk.tellNotes(notes);
}

void TracesPresenter::retranslate() {
  mChooser->setAccessibleName(tr("Shot in view"));
  mChooser->setToolTip(tr("The shot in view"));
  refreshChooser();
}

void TracesPresenter::refreshChooser() {
  mChooser->clear();
  for (std::size_t i = 0; i < mDesk.document().ttArray.size(); ++i) {
    const TravelTime& record = mDesk.document().ttArray[i];
    const QString place = lengthWithUnit(record.shotPos2d.x, 1);
    const auto number = static_cast<int>(i + 1);
    const std::string file = shotFile(mDesk.document(), i);
    QString name = QFileInfo(QString::fromStdString(file)).fileName();
    const std::string inFile = shotRecord(mDesk.document(), i);
    const QString part = QString::fromStdString(inFile);
    // A shot that was made of others has no file.
    if (!part.isEmpty()) name += name.isEmpty() ? part : QStringLiteral(" (%1)").arg(part);
    QString text = !name.isEmpty()
                       ? tr("%1: %2 at %3", "shot number, file, place").arg(number).arg(name, place)
                       : tr("%1: at %2", "shot number, place").arg(number).arg(place);
    const ShotMends& mends = mendsOfRecord(mDesk.document(), static_cast<std::int32_t>(i));
    if (mends.disabled) {
      text = tr("%1 (disabled)", "shot").arg(text);
    } else if (mends.any()) {
      text = tr("%1 (mended)", "shot").arg(text);
    }
    mChooser->addItem(text);
  }
  mChooser->setCurrentIndex(mDesk.shot.index());
}

void TracesPresenter::showCursor(const TraceCursor& cursor) {
  if (cursor.trace < 0 || mDesk.ui.tabWidget->currentWidget() != mDesk.ui.tab_3) {
    mDesk.cursorLabel->clear();
    return;
  }
  const QLocale locale;
  QStringList parts = {tr("Trace %1").arg(cursor.trace + 1)};
  if (!cursor.takesPart) parts << tr("disabled or killed");
  if (cursor.offset) parts << tr("Offset %1").arg(lengthWithUnit(*cursor.offset, 1));
  if (cursor.time) parts << tr("Time %1 ms").arg(locale.toString(1000.0 * *cursor.time, 'f', 2));
  if (cursor.reduced) {
    parts << tr("Reduced %1 ms").arg(locale.toString(1000.0 * *cursor.reduced, 'f', 2));
  }
  if (cursor.pick) {
    const QString pick = locale.toString(1000.0 * *cursor.pick, 'f', 2);
    parts << (cursor.pickIsAutomatic ? tr("Pick %1 ms (automatic)").arg(pick)
                                     : tr("Pick %1 ms").arg(pick));
    parts << tr("Error %1 ms").arg(FigureWords::pickError(cursor.pickError.value_or(0.0), locale));
  }
  if (cursor.amplitude) {
    parts << tr("Amplitude %1").arg(locale.toString(*cursor.amplitude, 'g', 4));
  }
  mDesk.cursorLabel->setText(parts.join(QStringLiteral("   ")));
}

void TracesPresenter::showDetails() {
  std::vector<RecordingInfo> files;
  for (const RecordingNote& note : mDesk.document().recordings->notes) {
    files.push_back({QString::fromStdString(note.format), linesOf(note.warnings)});
  }
  files.resize(mDesk.document().recordings->traceSets.size());
  RecordingDetailsDialog(mDesk.document(), files, mDesk.shot.index(), &mDesk.window).exec();
}

}  // namespace talvesk
