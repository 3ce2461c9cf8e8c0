#pragma once

#include "app/presenters/Desk.h"
#include "export/SectionDxf.h"

#include <QObject>
#include <optional>

namespace talvesk {

class DrawingDialog;

/// Lines and cells of the section for programs that draw and for maps.
class DrawingPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit DrawingPresenter(Desk& desk) : mDesk(desk) {}

  // Each asks what it must, and tells in the status bar or a box what became of it.

  void exportDxf();
  void exportGeoPackage();
  void exportCurtain();

 private:
  /// What the user chose; none when he gave up. \param asksPlace whether a flat drawing will do,
  /// too
  std::optional<DrawingOptions> ask(bool asksPlace, DrawingPlace& place);
  bool mayBeOnMap();

  Desk& mDesk;
};

}  // namespace talvesk
