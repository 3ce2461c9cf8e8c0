#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

/// Data for other programs, and where the line lies for those that draw maps.
class ExportPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit ExportPresenter(Desk& desk) : mDesk(desk) {}

  // Each asks for a file, and tells in the status bar or a box what became of it.

  void exportSection();      ///< gridded text, elevations counted from the reference one
  void exportGriddedText();  ///< the same, with Y and elevations that the user asks for
  void exportCertainty();
  void exportVtk();
  void exportSurfer();
  void exportSectionKml();
  void exportLineKml();
  void setMapPosition();  ///< by a dialog

 private:
  QString askForGriddedText();
  bool mayExportKml();

  Desk& mDesk;
};

}  // namespace talvesk
