#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

class FenceDialog;
class ProjectPresenter;

/// The sections of several projects at their places on the map.
class FencePresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  /// \param projects reads those that stand beside the survey
  FencePresenter(Desk& desk, ProjectPresenter& projects) : mDesk(desk), mProjects(projects) {}

  void show();

 private:
  void addTo(FenceDialog& dialog);
  void save(const FenceDialog& dialog);

  Desk& mDesk;
  ProjectPresenter& mProjects;
};

}  // namespace talvesk
