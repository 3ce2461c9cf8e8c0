#pragma once

#include "app/presenters/Desk.h"
#include "io/HeadedPicks.h"

#include <QObject>
#include <optional>

namespace talvesk {

class ProjectPresenter;

/// Travel-time files: picks that come from them and go into them.
class TravelTimesPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  TravelTimesPresenter(Desk& desk, ProjectPresenter& projects) : mDesk(desk), mProjects(projects) {}

  void import();  ///< asks for the file
  void importFile(const QString& file);
  void exportTimes();  ///< asks for the file

 private:
  /// None when the user gave up.
  std::optional<TimeUnit> askForTimeUnit(const QString& file);

  Desk& mDesk;
  ProjectPresenter& mProjects;
};

}  // namespace talvesk
