#pragma once

#include "app/presenters/Desk.h"
#include "app/presenters/RecentMenu.h"

#include <QObject>

namespace talvesk {

class projectReader;
struct LoadedProject;

/// Whole surveys: how they are saved, loaded and given up.
class ProjectPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit ProjectPresenter(Desk& desk);

  void load();    ///< asks for the file
  bool save();    ///< false when nothing was saved; why, the user has been told or has chosen
  bool saveAs();  ///< the same, to a file that is asked for
  void open(const QString& file);

  /// Whether changes that are not saved may be lost; offers to save them. False after Cancel, and
  /// where saving has failed.
  bool mayLoseChanges();

  /// Reads a project, with a bar, and tells what is wrong with it. False leaves all as it is.
  bool read(const QString& file, LoadedProject& project);
  /// Puts what was read in the place of the survey. \param saved there is a file that holds it
  void take(LoadedProject project, ProjectFile file, bool saved = true);
  /// Another survey in the place of this one, with all that belongs to it.
  void openSurvey(Survey survey, ProjectFile file, bool saved = false);
  /// The survey is another than that of its file, by an edit that was just made. Undo brings the
  /// file back with the survey.
  void leaveFile();

  std::function<void()> fileChanged;  ///< by leaveFile(), and undo and redo of its edit

  void retranslate() { mRecent.retranslate(); }

 private:
  bool saveTo(const QString& file);
  void reportBad(const QString& file, const projectReader& reader);
  void keepRange(ColorPaletteList& palettes) const;

  void followImports(const SurveyChange& change);
  void setFile(ProjectFile file);

  Desk& mDesk;
  RecentMenu mRecent;
  // Of imports of another survey that can be undone, and done again: the file on the other side.
  std::vector<ProjectFile> mFilesBefore;
  std::vector<ProjectFile> mFilesAfter;
  Session::Subscription mSubscription;
};

}  // namespace talvesk
