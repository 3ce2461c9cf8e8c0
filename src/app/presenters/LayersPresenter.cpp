#include "app/presenters/LayersPresenter.h"

#include "app/dialogs/CompareLayersDialog.h"
#include "app/dialogs/StartLayersDialog.h"
#include "app/presenters/FileExport.h"
#include "app/presenters/ModelPresenter.h"
#include "export/ComparisonText.h"
#include "figures/ProfileLines.h"
#include "figures/SectionFigure.h"
#include "io/Survey.h"
#include "model/GroundModel.h"

namespace talvesk {

/// The velocities with the profile over them, whatever the section shows at present.
SectionFigureOptions LayersPresenter::look() const {
  SectionViewSettings settings = mDesk.section();
  settings.profile = true;
  settings.quantity = SectionQuantity::kVelocity;
  settings.rays = false;
  settings.refraction = true;
  return sectionFigureOptions(settings, mDesk.palettes().current(),
                              profileLines(mDesk.document(), mDesk.interpretation()));
}

void LayersPresenter::start() {
  const auto hasCells = [this] {
    return mDesk.document().model->grid != nullptr && mDesk.document().model->grid->cellCount() > 0;
  };
  if (!hasCells() && (!mModels.makeGrid() || !hasCells())) return;
  StartLayersDialog dialog(mDesk.document(), mDesk.interpretation().refractData, look(),
                           &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return;
  if (!mDesk.edit(
          Edit::kStartingModel, [&](Survey& survey) { survey.document = dialog.filled(); },
          Message::tr("Start from layers"))) {
    return;
  }
  mDesk.showSection();
  mDesk.tell(tr("The grid has the velocities of the layered profile."));
}

void LayersPresenter::compare() {
  CompareLayersDialog dialog(mDesk.document(), mDesk.interpretation().refractData, look(),
                             &mDesk.window);
  dialog.pictureWanted = [this](const SectionFigureOptions& shown) {
    const QString file =
        askForExport(mDesk, tr("Save picture of layers and section"),
                     tr("PNG picture (*.png);;SVG picture (*.svg);;PDF document (*.pdf)"), "png");
    if (file.isEmpty()) return;
    exportTo(mDesk, file, [&](const std::string& path) {
      return writeSectionFigure(mDesk.document(), shown, path);
    });
  };
  dialog.tableWanted = [this](const LayerComparison& shown) {
    const QString file =
        askForExport(mDesk, tr("Save table of layers and section"), tr("Table (*.csv)"), "csv");
    if (file.isEmpty()) return;
    exportTo(mDesk, file, [&](const std::string& path) { return writeComparison(path, shown); });
  };
  dialog.exec();
}

}  // namespace talvesk
