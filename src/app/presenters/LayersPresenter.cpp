#include "app/presenters/LayersPresenter.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/dialogs/CompareLayersDialog.h"
#include "app/dialogs/ElasticDialog.h"
#include "app/dialogs/StartLayersDialog.h"
#include "app/presenters/FileExport.h"
#include "app/presenters/ModelPresenter.h"
#include "app/presenters/PrintPresenter.h"
#include "app/presenters/ProjectPresenter.h"
#include "export/ComparisonText.h"
#include "export/ElasticText.h"
#include "figures/ProfileLines.h"
#include "figures/SectionFigure.h"
#include "io/FileFormats.h"
#include "io/Survey.h"
#include "io/project/projectReader.h"
#include "model/GroundModel.h"

#include <QFileDialog>
#include <QFileInfo>
#include <utility>

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

/// A project is read aside; that of this survey is no other wave, and one without layers says
/// nothing.
bool LayersPresenter::askForOtherWave(ElasticSurvey& other) {
  const QString title = tr("Project of the other wave");
  const QString file = QFileDialog::getOpenFileName(&mDesk.window, title, mDesk.folders.toOpen(),
                                                    dialogFilter(filtersOf(projectFormat())));
  if (file.isEmpty()) return false;
  mDesk.folders.opened(file);
  const QString canonical = QFileInfo(file).canonicalFilePath();
  if (!canonical.isEmpty() && !mDesk.project.isEmpty() &&
      canonical == QFileInfo(mDesk.project.path()).canonicalFilePath()) {
    showError(&mDesk.window, title, tr("This is the project that is open."),
              tr("Choose the project of the other wave, P or S, along the same line."));
    return false;
  }
  LoadedProject project;
  if (!mProjects.read(file, project)) return false;
  if (project.interpretation->refractData.cData.empty()) {
    showError(&mDesk.window, title,
              tr("%1 has no layered profile.").arg(QFileInfo(file).fileName()),
              tr("Open it, build its profiles in the refraction dialog, and save it."));
    return false;
  }
  other = {QFileInfo(file).fileName(), std::move(project.document), *project.interpretation};
  return true;
}

void LayersPresenter::putWavesTogether() {
  ElasticSurvey other;
  if (!askForOtherWave(other)) return;
  const QString own =
      mDesk.project.isEmpty() ? tr("this survey") : QFileInfo(mDesk.project.path()).fileName();
  ElasticDialog dialog({own, mDesk.document(), mDesk.interpretation()}, std::move(other),
                       &mDesk.window);
  dialog.otherWanted = [&] {
    ElasticSurvey another;
    if (askForOtherWave(another)) dialog.setOther(std::move(another));
  };
  dialog.pictureWanted = [this](const ElasticLine& line, const ElasticFigureOptions& shown) {
    const QString file =
        askForExport(mDesk, tr("Save picture of P and S"),
                     tr("PNG picture (*.png);;SVG picture (*.svg);;PDF document (*.pdf)"), "png");
    if (file.isEmpty()) return;
    exportTo(mDesk, file,
             [&](const std::string& path) { return writeElasticFigure(line, shown, path); });
  };
  dialog.printWanted = [this](const ElasticLine& line, const ElasticFigureOptions& shown) {
    mPrints.printElastic(line, shown);
  };
  dialog.tableWanted = [this](const ElasticLine& line) {
    const QString file =
        askForExport(mDesk, tr("Save table of P and S"), tr("Table (*.csv)"), "csv");
    if (file.isEmpty()) return;
    exportTo(mDesk, file, [&](const std::string& path) { return writeElastic(path, line); });
  };
  dialog.exec();
}

}  // namespace talvesk
