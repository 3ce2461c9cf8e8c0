#include "app/presenters/ShotPairPresenter.h"

#include "app/LossQuestion.h"
#include "app/dialogs/ShotPairDialog.h"
#include "app/presenters/FileExport.h"
#include "io/RecordExport.h"
#include "io/Survey.h"
#include "session/AddShotPair.h"

namespace talvesk {
namespace {

constexpr int kSoon = 200;  // milliseconds

}  // namespace

ShotPairPresenter::ShotPairPresenter(Desk& desk) : mDesk(desk) {
  mSoon.setSingleShot(true);
  mSoon.setInterval(kSoon);
  connect(&mSoon, &QTimer::timeout, this, &ShotPairPresenter::refresh);
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    const auto has = [&change](Part part) { return change.parts.has(part); };
    const bool opened = change.kind == SurveyChange::Kind::kOpened;
    const bool about = has(Part::kPicks) || has(Part::kGeometry) || has(Part::kRecordings);
    if (mDialog && (opened || about)) mSoon.start();
  });
}

void ShotPairPresenter::show() {
  if (!mDialog) {
    mDialog = new ShotPairDialog(&mDesk.window);
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

void ShotPairPresenter::retranslate() {
  refresh();
}

void ShotPairPresenter::refresh() {
  mSoon.stop();
  if (mDialog) mDialog->setSurvey(mDesk.document());
}

void ShotPairPresenter::add() {
  const ShotPair pair = mDialog->pair();
  const ShotPair::Set which = mDialog->wanted();
  Survey with = mDesk.survey();
  const Status possible = addShotPair(pair, which, with);
  if (!possible.ok()) {
    return mDesk.tellFailure(tr("The shot has not been added to the survey."), possible);
  }
  Losses losses;
  losses.model = modelLoss(mDesk.document(), with.document.surveyProfile());
  if (!mayLose(mDialog, mDesk.document(), losses)) return;
  const Status added = mDesk.session.apply(
      Edit::kOpenShots, [&](Survey& survey) { return addShotPair(pair, which, survey); },
      which == ShotPair::kSum ? Message::tr("Add sum of two shots")
                              : Message::tr("Add difference of two shots"));
  if (!added.ok()) {
    return mDesk.tellFailure(tr("The shot has not been added to the survey."), added);
  }
  const auto shot = static_cast<int>(mDesk.document().ttArray.size()) - 1;
  mDesk.shot.show(shot);
  mDesk.tell(tr("Shot %1 is added; Undo takes it away.").arg(shot + 1));
}

void ShotPairPresenter::saveShot() {
  const QString file =
      askForExport(mDesk, tr("Save Shot File"), tr("SEG-2 (*.sg2);;SEG-Y (*.sgy)"), "sg2");
  if (file.isEmpty() || !mDialog || !mDialog->hasPair()) return;
  const bool segy = file.endsWith(QLatin1String(".sgy"), Qt::CaseInsensitive);
  std::vector<Message> notes;
  exportTo(mDesk, file, [&](const std::string& path) {
    return writeRecord(mDialog->pair().document, mDialog->wanted(),
                       segy ? RecordFormat::kSegy : RecordFormat::kSeg2, path, notes);
  });
  if (!notes.empty()) mDesk.tellNotes(notes);
}

void ShotPairPresenter::savePicture() {
  const QString file = askForExport(mDesk, tr("Save Picture of Two Shots"),
                                    tr("Pictures (*.png *.svg *.pdf)"), "png");
  if (file.isEmpty() || !mDialog || !mDialog->hasPair()) return;
  exportTo(mDesk, file, [this](const std::string& path) {
    return writeShotPair(path, mDialog->pair(), mDialog->look());
  });
}

}  // namespace talvesk
