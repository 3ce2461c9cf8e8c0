#include "app/presenters/BlowPairPresenter.h"

#include "app/LossQuestion.h"
#include "app/dialogs/BlowPairDialog.h"
#include "app/presenters/FileExport.h"
#include "io/RecordExport.h"
#include "io/Survey.h"
#include "session/AddBlowPair.h"

namespace talvesk {
namespace {

constexpr int kSoon = 200;  // milliseconds

}  // namespace

BlowPairPresenter::BlowPairPresenter(Desk& desk) : mDesk(desk) {
  mSoon.setSingleShot(true);
  mSoon.setInterval(kSoon);
  connect(&mSoon, &QTimer::timeout, this, &BlowPairPresenter::refresh);
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    const auto has = [&change](Part part) { return change.parts.has(part); };
    const bool opened = change.kind == SurveyChange::Kind::kOpened;
    const bool about = has(Part::kPicks) || has(Part::kGeometry) || has(Part::kRecordings);
    if (mDialog && (opened || about)) mSoon.start();
  });
}

void BlowPairPresenter::show() {
  if (!mDialog) {
    mDialog = new BlowPairDialog(&mDesk.window);
    mDialog->setAttribute(Qt::WA_DeleteOnClose);
    mDialog->addWanted = [this] { add(); };
    mDialog->saveShotWanted = [this] { saveShot(); };
    mDialog->savePictureWanted = [this] { savePicture(); };
  }
  refresh();
  if (mDesk.shot.index() >= 0) mDialog->chooseShot(static_cast<std::size_t>(mDesk.shot.index()));
  mDialog->show();
  mDialog->raise();
  mDialog->activateWindow();
}

void BlowPairPresenter::retranslate() {
  refresh();
}

void BlowPairPresenter::refresh() {
  mSoon.stop();
  if (mDialog) mDialog->setSurvey(mDesk.document());
}

void BlowPairPresenter::add() {
  const BlowPair pair = mDialog->pair();
  const BlowPair::Set which = mDialog->wanted();
  Survey with = mDesk.survey();
  const Status possible = addBlowPair(pair, which, with);
  if (!possible.ok()) {
    return mDesk.tellFailure(tr("The shot has not been added to the survey."), possible);
  }
  Losses losses;
  losses.model = modelLoss(mDesk.document(), with.document.surveyProfile());
  if (!mayLose(mDialog, mDesk.document(), losses)) return;
  const Status added = mDesk.session.apply(
      Edit::kOpenShots, [&](Survey& survey) { return addBlowPair(pair, which, survey); },
      which == BlowPair::kSum ? Message::tr("Add sum of two shots")
                              : Message::tr("Add difference of two shots"));
  if (!added.ok()) {
    return mDesk.tellFailure(tr("The shot has not been added to the survey."), added);
  }
  const auto shot = static_cast<int>(mDesk.document().ttArray.size()) - 1;
  mDesk.shot.show(shot);
  mDesk.tell(tr("Shot %1 is added; Undo takes it away.").arg(shot + 1));
}

void BlowPairPresenter::saveShot() {
  const QString file =
      askForExport(mDesk, tr("Save Shot File"), tr("SEG-2 (*.sg2);;SEG-Y (*.sgy)"), "sg2");
  if (file.isEmpty() || !mDialog || !mDialog->hasPair()) return;
  const bool segy = file.endsWith(QLatin1String(".sgy"), Qt::CaseInsensitive);
  std::vector<Message> notes;
  exportTo(mDesk, file, [&](const std::string& path) {
    const BlowPair& pair = mDialog->pair();
    const BlowPair::Set wanted = mDialog->wanted();
    return writeRecord(pair.document, wanted, static_cast<int>(pair.shotOf(wanted) + 1),
                       segy ? RecordFormat::kSegy : RecordFormat::kSeg2, path, notes);
  });
  if (!notes.empty()) mDesk.tellNotes(notes);
}

void BlowPairPresenter::savePicture() {
  const QString file = askForExport(mDesk, tr("Save Picture of Two Shots"),
                                    tr("Pictures (*.png *.svg *.pdf)"), "png");
  if (file.isEmpty() || !mDialog || !mDialog->hasPair()) return;
  exportTo(mDesk, file, [this](const std::string& path) {
    return writeBlowPair(path, mDialog->pair(), mDialog->look());
  });
}

}  // namespace talvesk
