#pragma once

#include "app/presenters/Desk.h"
#include "figures/SectionFigureOptions.h"

#include <QObject>

namespace talvesk {

class ModelPresenter;
class PrintPresenter;
class ProjectPresenter;
struct ElasticSurvey;

/// From the layered profile to the section and back, and to the layers of another wave.
class LayersPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  LayersPresenter(Desk& desk, ModelPresenter& models, ProjectPresenter& projects,
                  PrintPresenter& prints)
      : mDesk(desk), mModels(models), mProjects(projects), mPrints(prints) {}

  /// Puts the profile into the grid, as the user wants it; without a grid asks for one first.
  void start();
  /// Shows where the section has a refractor of the profile.
  void compare();
  /// Asks for a project of the other wave and shows what P and S say together. The survey stays.
  void putWavesTogether();

 private:
  SectionFigureOptions look() const;
  bool askForOtherWave(ElasticSurvey& other);

  Desk& mDesk;
  ModelPresenter& mModels;
  ProjectPresenter& mProjects;
  PrintPresenter& mPrints;
};

}  // namespace talvesk
