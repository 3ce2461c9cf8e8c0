#pragma once

#include "app/presenters/Desk.h"
#include "io/ReadingComparison.h"

#include <QObject>
#include <QStringList>
#include <map>
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
  /// Where the program's rules lose what the standard reads, the user is asked which to take.
  void load(const QStringList& files, How how = How::kAdded,
            ShotReader reader = ShotReader::kRules);

 private:
  struct Choice {
    QStringList files;  ///< none: the user does not want any
    ShotReader reader = ShotReader::kRules;
  };
  struct Readings {
    std::vector<ReadShotFile> files;
    std::map<std::size_t, FullerReading> fuller;  ///< by index
  };

  Choice askForFiles();
  Readings read(const QStringList& files, const TomoDocument& target, ShotReader reader);
  bool chooseReadings(Readings& readings);
  Survey surveyOf(TomoDocument document) const;
  void report(const std::vector<ShotFileOutcome>& outcomes);

  Desk& mDesk;
  ProjectPresenter& mProjects;
};

}  // namespace talvesk
