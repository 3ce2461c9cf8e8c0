#pragma once

#include "app/presenters/Desk.h"
#include "figures/SectionFigureOptions.h"

#include <QObject>

namespace talvesk {

class ModelPresenter;

/// From the layered profile to the section and back.
class LayersPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  LayersPresenter(Desk& desk, ModelPresenter& models) : mDesk(desk), mModels(models) {}

  /// Puts the profile into the grid, as the user wants it; without a grid asks for one first.
  void start();
  /// Shows where the section has a refractor of the profile.
  void compare();

 private:
  SectionFigureOptions look() const;

  Desk& mDesk;
  ModelPresenter& mModels;
};

}  // namespace talvesk
