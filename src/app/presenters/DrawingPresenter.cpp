#include "app/presenters/DrawingPresenter.h"

#include "app/Messages.h"
#include "app/dialogs/DrawingDialog.h"
#include "app/presenters/FileExport.h"
#include "export/CurtainTable.h"
#include "export/SectionGeoPackage.h"
#include "export/VtkGrid.h"
#include "figures/ProfileLines.h"
#include "io/Survey.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "refraction/PicksFingerprint.h"

namespace talvesk {

std::optional<DrawingOptions> DrawingPresenter::ask(bool asksPlace, DrawingPlace& place) {
  const TomoDocument& document = mDesk.document();
  DrawingOptions options;
  options.refractors = profileLines(document, mDesk.interpretation());
  DrawingDialog::Start start;
  start.isovalues = proposedIsovalues(document, mDesk.section(), mDesk.palettes().current());
  start.section = document.model->grid != nullptr;
  start.asksPlace = asksPlace;
  start.onMap = document.map->geoCoord_isSet;
  const bool old = picksChangedSince(document, mDesk.interpretation().refractData);
  if (!options.refractors.empty() && old) {
    start.note = tr("Picks have changed since the layered profile was built.");
  }
  DrawingDialog dialog(start, &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  options.isovalues = dialog.isovalues();
  place = dialog.place();
  return options;
}

/// Whether the line has a place on the map; the user is told when it has none.
bool DrawingPresenter::mayBeOnMap() {
  if (mDesk.document().map->geoCoord_isSet) return true;
  showWarning(&mDesk.window, tr("Warning"), tr("The line has no place on the map."),
              tr("Set it with Project > Set geographic coordinates ..."));
  return false;
}

void DrawingPresenter::exportDxf() {
  DrawingPlace place = DrawingPlace::kSection;
  const std::optional<DrawingOptions> options = ask(true, place);
  if (!options) return;
  const QString file = askForExport(mDesk, tr("Export DXF Drawing"),
                                    tr("DXF drawing (*.dxf);;All Files (*)"), "dxf");
  if (file.isEmpty()) return;
  exportTo(mDesk, file, [&](const std::string& path) {
    return writeSectionDxf(path, mDesk.document(), *options, place);
  });
}

void DrawingPresenter::exportGeoPackage() {
  if (!mayBeOnMap()) return;
  DrawingPlace place = DrawingPlace::kMap;
  const std::optional<DrawingOptions> options = ask(false, place);
  if (!options) return;
  const QString file = askForExport(mDesk, tr("Export GeoPackage"),
                                    tr("GeoPackage (*.gpkg);;All Files (*)"), "gpkg");
  if (file.isEmpty()) return;
  exportTo(mDesk, file, [&](const std::string& path) {
    return writeSectionGeoPackage(path, mDesk.document(), *options);
  });
}

void DrawingPresenter::exportCurtain() {
  if (!mDesk.document().model->grid || !mayBeOnMap()) return;
  const QString file = askForExport(
      mDesk, tr("Export Curtain"),
      tr("VTK unstructured grid (*.vtu);;Table of cells (*.csv);;All Files (*)"), "vtu");
  if (file.isEmpty()) return;
  const bool table = file.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
  exportTo(mDesk, file, [&](const std::string& path) {
    return table ? writeCurtainTable(path, mDesk.document())
                 : writeVtkCurtain(path, mDesk.document());
  });
}

}  // namespace talvesk
