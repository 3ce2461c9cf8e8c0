#pragma once

#include "app/FileFolders.h"
#include "app/ProjectFile.h"
#include "app/presenters/ShotInView.h"
#include "base/Log.h"
#include "base/Settings.h"
#include "base/WorkingFolder.h"
#include "io/ShotLoader.h"
#include "model/RefractionDataStructure.h"
#include "session/Session.h"
#include "view/ColorPalette.h"
#include "view/SectionViewSettings.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QString>
#include <array>
#include <functional>
#include <vector>

class QLabel;

namespace talvesk {

namespace Ui {
class Talvesk_MainWindows;
}

class editTravelTimesWidget;
class TravelTimePlot;

/// What the presenters of the one window work on together: the survey, the form, and what the
/// program remembers. It belongs to the window and knows no presenter.
struct Desk {
  /// Opens the log and reads no settings yet. \param form is set up already
  Desk(QMainWindow& mainWindow, Ui::Talvesk_MainWindows& form);
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  QMainWindow& window;  ///< parent of dialogs
  Ui::Talvesk_MainWindows& ui;
  WorkingFolder folder;
  Log log;
  RecordedConsole recorded{log};  ///< goes after all that tells the console something
  Settings settings;
  FileFolders folders;
  ShotLoader loader;
  Session session;
  ShotInView shot{session};
  ProjectFile project;            ///< where the survey is saved
  bool inversionRuns = false;     ///< all commands are locked; the survey is not to be edited
  QLabel* cursorLabel = nullptr;  ///< in the status bar: what is under the mouse

  const Survey& survey() const { return session.survey(); }
  const TomoDocument& document() const { return session.document(); }
  const refractionDataStructure::Interpretation& interpretation() const;
  const ColorPaletteList& palettes() const;
  const SectionViewSettings& section() const;

  bool hasFilteredCopy(int index) const;  ///< any trace of a shot; false for one that is not there

  /// Edits the survey. False, after telling why, when it is as it was.
  bool edit(Edit kind, const std::function<void(Survey&)>& change, Message text = {});
  bool tellUnlessDone(const Status& status);
  void tell(const QString& text);                     ///< an outcome, in the status bar
  void tellNotes(const std::vector<Message>& notes);  ///< of an edit, there and in the log
  /// Tells a failure by a box and the log. \param text what the user wanted and did not get
  void tellFailure(const QString& text, const Status& status);
  void logSlot(const char* name);
  void saveSettings();

  std::array<editTravelTimesWidget*, 2> editors() const;  ///< of picks, in the traces
  std::array<TravelTimePlot*, 2> plots() const;           ///< beside the traces, and of all shots
  void showSection();  ///< the tab of the section comes to the front
  /// Shows a record that was just loaded, and the keys go to its traces: they would turn the tabs
  /// over where the focus was before there was anything to pick.
  void showFresh(int index);

  /// Where the window's place and tool bars, and what dialogs were left with, are remembered.
  QString windowStateFile() const;

  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)
};

}  // namespace talvesk
