#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <QStringList>
#include <vector>

namespace talvesk {

class ProjectPresenter;

/// Shot files: how they come into the survey.
class ShotFilesPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  ShotFilesPresenter(Desk& desk, ProjectPresenter& projects) : mDesk(desk), mProjects(projects) {}

  void newSurvey();  ///< asks for shot files, which take the place of the survey
  void addFiles();   ///< asks for shot files
  /// How shot files go with those that are there.
  enum class How { kAdded, kInstead };
  void load(const QStringList& files, How how = How::kAdded);

 private:
  QStringList askForFiles();
  std::vector<ReadShot> read(const QStringList& files, const TomoDocument& target);
  Survey surveyOf(TomoDocument document) const;
  void report(const std::vector<ShotFileOutcome>& outcomes);

  Desk& mDesk;
  ProjectPresenter& mProjects;
};

}  // namespace talvesk
