#include "app/presenters/ResidualsPresenter.h"

#include "app/dialogs/ResidualsDialog.h"
#include "app/presenters/FileExport.h"
#include "export/ResidualText.h"
#include "figures/SectionFigure.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/traces/editTravelTimesWidget.h"

namespace talvesk {
namespace {

constexpr int kSoon = 200;  // milliseconds

}  // namespace

ResidualsPresenter::ResidualsPresenter(Desk& desk) : mDesk(desk) {
  mSoon.setSingleShot(true);
  mSoon.setInterval(kSoon);
  connect(&mSoon, &QTimer::timeout, this, &ResidualsPresenter::refresh);
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    const auto has = [&change](Part part) { return change.parts.has(part); };
    const bool opened = change.kind == SurveyChange::Kind::kOpened;
    const bool about = has(Part::kPicks) || has(Part::kGeometry) || has(Part::kModel) ||
                       has(Part::kResult) || has(Part::kRecordings) || has(Part::kRuns);
    if (mDialog && (opened || about)) mSoon.start();
  });
}

void ResidualsPresenter::show() {
  if (!mDialog) {
    mDialog = new ResidualsDialog(&mDesk.window);
    mDialog->setAttribute(Qt::WA_DeleteOnClose);
    mDialog->offerWhereEmpty({mDesk.ui.actionRun_tomography_inversion});
    connect(mDialog, &ResidualsDialog::pickWanted, this, &ResidualsPresenter::goTo);
    connect(mDialog, &ResidualsDialog::pictureWanted, this, &ResidualsPresenter::savePicture);
    connect(mDialog, &ResidualsDialog::tableWanted, this, &ResidualsPresenter::saveTable);
  }
  refresh();
  mDialog->show();
  mDialog->raise();
  mDialog->activateWindow();
}

void ResidualsPresenter::retranslate() {
  refresh();
}

void ResidualsPresenter::refresh() {
  mSoon.stop();
  if (!mDialog) return;
  mDialog->showSurvey(mDesk.document(),
                      sectionFigureOptions(mDesk.section(), mDesk.palettes().current()));
}

/// The keys stay where they are, so that one can go on to the next pick.
void ResidualsPresenter::goTo(int shot, int trace) {
  mDesk.ui.tabWidget->setCurrentWidget(mDesk.ui.tab_3);
  if (mDesk.shot.index() != shot) mDesk.shot.show(shot);
  for (editTravelTimesWidget* editor : mDesk.editors()) editor->goToTrace(trace);
}

void ResidualsPresenter::savePicture() {
  const QString file =
      askForExport(mDesk, tr("Save picture of residuals"),
                   tr("PNG picture (*.png);;SVG picture (*.svg);;PDF document (*.pdf)"), "png");
  if (file.isEmpty() || !mDialog) return;
  exportTo(mDesk, file, [this](const std::string& path) {
    return writeResidualFigure(mDialog->document(), mDialog->table(), mDialog->view(),
                               mDialog->look(), mDialog->section(), path);
  });
}

void ResidualsPresenter::saveTable() {
  const QString file =
      askForExport(mDesk, tr("Save table of residuals"), tr("Table (*.csv);;All Files (*)"), "csv");
  if (file.isEmpty() || !mDialog) return;
  exportTo(mDesk, file,
           [this](const std::string& path) { return writeResiduals(path, mDialog->table()); });
}

}  // namespace talvesk
