#include "app/presenters/DepthProfilePresenter.h"

#include "app/dialogs/DepthProfileDialog.h"
#include "app/presenters/FileExport.h"
#include "figures/DepthProfileFigure.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/section/SectionView.h"

namespace talvesk {

DepthProfilePresenter::DepthProfilePresenter(Desk& desk) : mDesk(desk) {
  connect(desk.ui.vtk_widget, &SectionView::cursorMoved, this, [this](const SectionReading& at) {
    if (mDialog != nullptr && mDialog->isVisible()) mDialog->pointAt(at.position.x);
  });
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    PartSet shown;
    shown.add(Part::kModel);
    shown.add(Part::kResult);
    if (mDialog != nullptr && mDialog->isVisible() && change.parts.any(shown)) refresh();
  });
}

void DepthProfilePresenter::show() {
  mDesk.showSection();
  if (mDialog == nullptr) {
    mDialog = new DepthProfileDialog(&mDesk.window);
    mDialog->saveWanted = [this] { save(); };
  }
  refresh();
  mDialog->show();
  mDialog->raise();
}

std::optional<double> DepthProfilePresenter::place() const {
  if (mDialog == nullptr) return std::nullopt;
  return mDialog->profile().x;
}

void DepthProfilePresenter::refresh() {
  mDialog->setSection(DepthProfiles(mDesk.document()));
}

void DepthProfilePresenter::save() {
  const QString file =
      askForExport(mDesk, tr("Save depth profile"), tr("Pictures (*.png *.svg *.pdf)"), "png");
  if (file.isEmpty()) return;
  exportTo(mDesk, file, [&](const std::string& path) {
    return writeDepthProfile(path, mDialog->profile(), mDialog->section());
  });
}

}  // namespace talvesk
