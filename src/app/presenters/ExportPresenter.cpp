#include "app/presenters/ExportPresenter.h"

#include "app/Messages.h"
#include "app/dialogs/ExportTomoVelData.h"
#include "app/dialogs/setGeographyDialog.h"
#include "app/presenters/FileExport.h"
#include "export/CertaintyTable.h"
#include "export/GriddedText.h"
#include "export/SectionKml.h"
#include "export/SeismicLineKml.h"
#include "export/SurferGrid.h"
#include "export/VtkGrid.h"
#include "io/Survey.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"

namespace talvesk {
namespace {

bool areSame(const geographicsCoord& a, const geographicsCoord& b) {
  return a.CRS == b.CRS && a.mEastFstGeoph == b.mEastFstGeoph &&
         a.mEastLstGeoph == b.mEastLstGeoph && a.mNorthFstGeoph == b.mNorthFstGeoph &&
         a.mNorthLstGeoph == b.mNorthLstGeoph;
}

}  // namespace

QString ExportPresenter::askForGriddedText() {
  const QString file = askForExport(
      mDesk, tr("Export Gridded Data"),
      tr("Save gridded tomographic velocity in a text file (*.txt);;All Files (*)"), "txt");
  if (!file.isEmpty()) announceGriddedText(file.toStdString());
  return file;
}

void ExportPresenter::exportSection() {
  if (!mDesk.document().model->grid) return;
  const QString file = askForGriddedText();
  if (file.isEmpty()) return;
  GriddedTextOptions options;
  options.zOffset = -referenceElevation(*mDesk.document().model->grid);
  exportTo(mDesk, file, [&](const std::string& path) {
    return writeGriddedText(path, mDesk.document(), options);
  });
}

void ExportPresenter::exportGriddedText() {
  if (!mDesk.document().model->grid) return;
  const QString file = askForGriddedText();
  if (file.isEmpty()) return;
  ExportTomoVelData dialog(&mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return;
  exportTo(mDesk, file, [&](const std::string& path) {
    return writeGriddedText(path, mDesk.document(), dialog.options());
  });
}

void ExportPresenter::exportCertainty() {
  if (!mDesk.document().result->certainty) return;
  const QString file = askForExport(mDesk, tr("Export Certainty Table"),
                                    tr("Table of the certainty (*.csv);;All Files (*)"), "csv");
  if (file.isEmpty()) return;
  exportTo(mDesk, file,
           [this](const std::string& path) { return writeCertaintyTable(path, mDesk.document()); });
}

void ExportPresenter::exportVtk() {
  if (!mDesk.document().model->grid) return;
  const QString file = askForExport(mDesk, tr("Export VTK Grid"),
                                    tr("VTK unstructured grid (*.vtu);;All Files (*)"), "vtu");
  if (file.isEmpty()) return;
  exportTo(mDesk, file,
           [this](const std::string& path) { return writeVtkGrid(path, mDesk.document()); });
}

void ExportPresenter::exportSurfer() {
  if (!mDesk.document().model->grid) return;
  const QString file = askForExport(mDesk, tr("Export Surfer Grid"),
                                    tr("Surfer ASCII grid (*.grd);;All Files (*)"), "grd");
  if (file.isEmpty()) return;
  exportTo(mDesk, file,
           [this](const std::string& path) { return writeSurferGrid(path, mDesk.document()); });
}

/// Whether the line has a place on the globe; the user is told when it has none.
bool ExportPresenter::mayExportKml() {
  if (mDesk.document().map->geoCoord_isSet) return true;
  showWarning(&mDesk.window, tr("Warning"),
              tr("Geographical coordinates are missing, data cannot be exported in KML format"),
              tr("Set them with Project > Set geographic coordinates ..."));
  return false;
}

void ExportPresenter::exportSectionKml() {
  if (!mDesk.document().model->grid || !lineEnds(mDesk.document()) || !mayExportKml()) return;
  const QString file =
      askForExport(mDesk, tr("Export Tomography to KML"), tr("KML (*.kml);;All Files (*)"), "kml");
  if (file.isEmpty()) return;
  const ColorPalette& palette = mDesk.palettes().current();
  exportTo(mDesk, file, [&](const std::string& path) {
    return writeSectionKml(path, mDesk.document(), palette, {palette.min_db, palette.max_db});
  });
}

void ExportPresenter::exportLineKml() {
  if (!lineEnds(mDesk.document()) || !mayExportKml()) return;
  const QString file = askForExport(mDesk, tr("Export Seismic Line to KML"),
                                    tr("KML (*.kml);;All Files (*)"), "kml");
  if (file.isEmpty()) return;
  exportTo(mDesk, file,
           [this](const std::string& path) { return writeSeismicLineKml(path, mDesk.document()); });
}

void ExportPresenter::setMapPosition() {
  std::optional<geographicsCoord> before;
  if (mDesk.document().map->geoCoord_isSet) before = mDesk.document().map->geoCoord;
  setGeographyDialog dialog(before, lineEnds(mDesk.document()), &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return;
  if (before && areSame(*before, dialog.coordinates())) return;
  mDesk.edit(Edit::kMapPosition, [&](Survey& survey) {
    survey.document.map = MapPosition{dialog.coordinates(), true};
  });
}

}  // namespace talvesk
