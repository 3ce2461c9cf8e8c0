#include "app/ExportTomoVelData.h"
#include "app/Messages.h"
#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "app/WaitCursor.h"
#include "app/setGeographyDialog.h"
#include "export/GriddedText.h"
#include "export/SectionKml.h"
#include "export/SeismicLineKml.h"
#include "export/SurferGrid.h"
#include "export/VtkGrid.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "ui_Talvesk_MainWindows.h"

#include <QFileDialog>
#include <QStatusBar>

// The commands that write data for other programs.

namespace talvesk {
namespace {

bool areSame(const geographicsCoord& a, const geographicsCoord& b) {
  return a.CRS == b.CRS && a.mEastFstGeoph == b.mEastFstGeoph &&
         a.mEastLstGeoph == b.mEastLstGeoph && a.mNorthFstGeoph == b.mNorthFstGeoph &&
         a.mNorthLstGeoph == b.mNorthLstGeoph;
}

}  // namespace

/// The file to write, with the suffix where the user gave none; empty when the user gave up.
QString Talvesk_MainWindows::askForExport(const QString& title, const QString& filter,
                                          const char* suffix) {
  QFileDialog dialog(this, title, mFolders.toSave(), filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(QLatin1String(suffix));
  proposeName(dialog, suffix);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  mFolders.saved(dialog.selectedFiles().front());
  return dialog.selectedFiles().front();
}

/// Writes a file that may take as long as a breath, and tells the outcome.
void Talvesk_MainWindows::exportTo(const QString& file,
                                   const std::function<Status(const std::string&)>& write) {
  const Status written = whileWaiting([&] {
    showWriting(file);
    return write(file.toStdString());
  });
  tellExport(written, file);
}

void Talvesk_MainWindows::showWriting(const QString& file) {
  statusBar()->showMessage(tr("Writing %1 ...").arg(file));
  statusBar()->repaint();
}

void Talvesk_MainWindows::tellExport(const Status& written, const QString& file) {
  statusBar()->clearMessage();
  if (written.ok()) {
    statusBar()->showMessage(tr("Saved in %1").arg(file), kMessageTime);
    return;
  }
  tellFailure(this, mLog, tr("The data have not been exported."), written);
}

QString Talvesk_MainWindows::askForGriddedText() {
  const QString file = askForExport(
      tr("Export Gridded Data"),
      tr("Save gridded tomographic velocity in a text file (*.txt);;All Files (*)"), "txt");
  if (!file.isEmpty()) announceGriddedText(file.toStdString());
  return file;
}

void Talvesk_MainWindows::on_actionExport_tomographic_data_triggered() {
  logSlot(__func__);
  if (!document().model->grid) return;
  const QString file = askForGriddedText();
  if (file.isEmpty()) return;
  GriddedTextOptions options;
  options.zOffset = -referenceElevation(*document().model->grid);
  exportTo(file,
           [&](const std::string& path) { return writeGriddedText(path, document(), options); });
}

void Talvesk_MainWindows::on_actionGridded_Data_triggered() {
  logSlot(__func__);
  if (!document().model->grid) return;
  const QString file = askForGriddedText();
  if (file.isEmpty()) return;
  ExportTomoVelData dialog(this);
  if (dialog.exec() != QDialog::Accepted) return;
  exportTo(file, [&](const std::string& path) {
    return writeGriddedText(path, document(), dialog.options());
  });
}

void Talvesk_MainWindows::on_actionExport_VTK_triggered() {
  logSlot(__func__);
  if (!document().model->grid) return;
  const QString file = askForExport(tr("Export VTK Grid"),
                                    tr("VTK unstructured grid (*.vtu);;All Files (*)"), "vtu");
  if (file.isEmpty()) return;
  exportTo(file, [this](const std::string& path) { return writeVtkGrid(path, document()); });
}

void Talvesk_MainWindows::on_actionExport_Surfer_triggered() {
  logSlot(__func__);
  if (!document().model->grid) return;
  const QString file =
      askForExport(tr("Export Surfer Grid"), tr("Surfer ASCII grid (*.grd);;All Files (*)"), "grd");
  if (file.isEmpty()) return;
  exportTo(file, [this](const std::string& path) { return writeSurferGrid(path, document()); });
}

/// Whether the line has a place on the globe; the user is told when it has none.
bool Talvesk_MainWindows::mayExportKml() {
  if (document().map->geoCoord_isSet) return true;
  showWarning(this, tr("Warning"),
              tr("Geographical coordinates are missing, data cannot be exported in KML format"),
              tr("Set them with Project > Set geographic coordinates ..."));
  return false;
}

void Talvesk_MainWindows::on_actionExportTomographic_profile_2_KML_triggered() {
  logSlot(__func__);
  if (!document().model->grid || !lineEnds(document()) || !mayExportKml()) return;
  const QString file =
      askForExport(tr("Export Tomography to KML"), tr("KML (*.kml);;All Files (*)"), "kml");
  if (file.isEmpty()) return;
  const ColorPalette& palette = palettes().current();
  exportTo(file, [&](const std::string& path) {
    return writeSectionKml(path, document(), palette, {palette.min_db, palette.max_db});
  });
}

void Talvesk_MainWindows::on_actionExportSeismic_line_triggered() {
  logSlot(__func__);
  if (!lineEnds(document()) || !mayExportKml()) return;
  const QString file =
      askForExport(tr("Export Seismic Line to KML"), tr("KML (*.kml);;All Files (*)"), "kml");
  if (file.isEmpty()) return;
  exportTo(file, [this](const std::string& path) { return writeSeismicLineKml(path, document()); });
}

void Talvesk_MainWindows::on_actionSet_geography_coordinates_triggered() {
  logSlot(__func__);
  std::optional<geographicsCoord> before;
  if (document().map->geoCoord_isSet) before = document().map->geoCoord;
  setGeographyDialog dialog(before, lineEnds(document()), this);
  if (dialog.exec() != QDialog::Accepted) return;
  if (before && areSame(*before, dialog.coordinates())) return;
  edit(Edit::kMapPosition, [&](Survey& survey) {
    survey.document.map = MapPosition{dialog.coordinates(), true};
  });
}

void Talvesk_MainWindows::refreshExportCommands() {
  const bool line = lineEnds(document()).has_value();
  const bool section = document().model->grid != nullptr;
  for (QAction* action : {mUi->actionExport_tomographic_data, mUi->actionGridded_Data,
                          mUi->actionExport_VTK, mUi->actionExport_Surfer}) {
    action->setEnabled(section);
  }
  mUi->actionExportTomographic_profile_2_KML->setEnabled(line && section);
  mUi->actionExportSeismic_line->setEnabled(line);
  mUi->actionSet_geography_coordinates->setEnabled(line);
}

}  // namespace talvesk
