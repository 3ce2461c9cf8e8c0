#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

class GeometryPresenter;
class smoothingDialog;
struct GridSettings;
struct SurveyProfile;

/// The model of the ground: grid, starting model, smoothing.
class ModelPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  ModelPresenter(Desk& desk, GeometryPresenter& geometry) : mDesk(desk), mGeometry(geometry) {}

  /// Asks for a grid and builds it; without geometry asks for that first, as long as the user gives
  /// one. False when there is no grid as the user wants it.
  bool makeGrid();
  void defineVelocity();  ///< asks for layers and puts them into the grid
  void smooth();          ///< asks how, and traces rays anew where there is a result

 private:
  GridSettings proposedGrid(SurveyProfile& profile);
  bool isPresent(const SurveyProfile& profile, const GridSettings& settings) const;
  bool askForSameGrid();
  Status smoothBeside(const smoothingDialog& dialog);

  Desk& mDesk;
  GeometryPresenter& mGeometry;
};

}  // namespace talvesk
