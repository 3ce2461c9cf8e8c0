#pragma once

#include "app/FileFolders.h"
#include "app/Languages.h"
#include "app/ProjectFile.h"
#include "app/RecentProjects.h"
#include "app/RecoveryCopy.h"
#include "base/Log.h"
#include "base/Settings.h"
#include "base/WorkingFolder.h"
#include "io/ShotLoader.h"
#include "session/Session.h"

#include <QMainWindow>
#include <QStringList>
#include <QTimer>
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QComboBox;
class QFileDialog;
class QLabel;
class QMenu;

namespace talvesk {

class smoothingDialog;
struct GridSettings;

namespace Ui {
class Talvesk_MainWindows;
}
class BackgroundInversion;
class GuideWindow;
class SettingsDialog;
class editTravelTimesWidget;
class projectReader;
class progressTomographyDialog;
class TravelTimePlot;
enum class PickSnap;
enum class TraceTool;
struct FilterOutcome;
struct LoadedProject;
struct PlannedImage;
struct SectionReading;
struct SurveyGeometry;
struct TomographyParameters;
struct TomographyResult;
struct TraceCursor;

/// The one window of the program. It owns the survey, the log and the settings, asks what a command
/// must ask, calls the room that does the work and shows the outcome. Its slots are spread over
/// several files, menu by menu.
class Talvesk_MainWindows : public QMainWindow {
  Q_OBJECT

 public:
  /// Creates the working folder, opens the log, reads the settings.
  explicit Talvesk_MainWindows(QWidget* parent = nullptr);
  ~Talvesk_MainWindows() override;

  /// What the program does once the window is there: asks for the settings at the first run, offers
  /// the copy that a crash left, then loads what the command line names.
  void start(const QStringList& files);

  /// For an end that leaves no time for questions: changes that are not saved go into a recovery
  /// copy, which is there on return.
  void leaveRecoveryCopy();

  /// Loads what the command line names or what was dropped: a project, then shot files, then
  /// travel-time files.
  void openFiles(const QStringList& files);

  /// Lets the user edit where geophones and shots stand. True when the survey has the geometry that
  /// the dialog was left with by OK; false after Cancel, which changes nothing.
  bool askGeometry();

  const TomoDocument& document() const { return mSession.document(); }
  Session& session() { return mSession; }
  const Settings& settings() const { return mSettings; }
  int currentFile() const { return mCurrentFile; }  ///< record in view, -1 without one

  /// Makes a record the current one; one that does not exist leaves none current.
  void showFile(int index);

 public slots:
  /// Asks for shot files and adds them to the survey.
  void loadTraces_PWave();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private slots:
  void autosave();  ///< a recovery copy, if there is anything new to keep
  // File, Export, KML
  void on_actionNew_triggered();
  void on_actionLoad_Project_triggered();
  void on_actionSave_Project_triggered();
  void on_actionSave_Project_As_triggered();
  void on_actionLoad_TT_triggered();
  void on_actionExport_TravelTimes_triggered();
  void on_actionExit_triggered();
  void on_actionSettings_triggered();
  void on_actionExport_tomographic_data_triggered();
  void on_actionGridded_Data_triggered();
  void on_actionExport_VTK_triggered();
  void on_actionExport_Surfer_triggered();
  void on_actionExportTomographic_profile_2_KML_triggered();
  void on_actionExportSeismic_line_triggered();
  void on_actionImages_triggered();
  void on_actionScreenshot_triggered();
  void on_actionPDF_triggered();
  void on_actionODT_triggered();
  // Project
  void on_actionGeometry_triggered();
  void on_actionSet_geography_coordinates_triggered();
  void on_actionGrid_triggered();
  void on_actionDefine_model_velocity_triggered();
  void on_actionSet_title_triggered();
  // Traces
  void on_actionNext_file_triggered();
  void on_actionPrev_file_triggered();
  void on_actionUndo_triggered();
  void on_actionRedo_triggered();
  void on_actionFill_wiggle_triggered(bool checked);
  void on_actionTwo_colors_triggered(bool checked);
  void on_actionCut_horizontal_triggered(bool checked);
  void on_actionZoom_in_triggered(bool checked);
  void on_actionShow_filtered_triggered(bool checked);
  void on_actionShow_all_traces_triggered(bool checked);
  void on_actionRecording_details_triggered();
  void on_actionConfirm_picks_triggered();
  void on_actionRemove_picks_triggered();
  void on_actionRemove_unconfirmed_triggered();
  void on_actionBy_distance_triggered(bool checked);
  void on_actionTrue_amplitudes_triggered(bool checked);
  void on_actionAir_wave_triggered(bool checked);
  void on_actionMagnifier_triggered(bool checked);
  void on_actionGain_up_triggered();
  void on_actionGain_down_triggered();
  void on_actionSnap_none_triggered();
  void on_actionSnap_onset_triggered();
  void on_actionSnap_zero_triggered();
  void on_actionSnap_peak_triggered();
  void on_actionTool_pick_triggered();
  void on_actionTool_zoom_triggered();
  void on_actionTool_pan_triggered();
  void on_actionTool_ruler_triggered();
  void on_actionTool_select_triggered();
  void on_actionFit_triggered();
  void on_actionZoom_back_triggered();
  void on_actionZoom_forward_triggered();
  void on_show_filtered_cb_clicked(bool checked);
  void on_showAllPicksCB_clicked(bool checked);
  void on_showSimTT_CB_clicked(bool checked);
  // Processing
  void on_actionAutoPick_triggered();
  void on_actionFilter_triggered();
  void on_actionAGC_triggered();
  void on_actionRun_tomography_inversion_triggered();
  void on_actionApply_smoothing_triggered();
  void on_actionRefraction_triggered();
  // View
  void on_actionShow_Tomographic_Profile_triggered();
  void on_actionGrid_view_triggered();
  void on_actionSmooth_view_triggered();
  void on_actionShow_rays_triggered();
  void on_actionShow_Contour_Lines_triggered();
  void on_actionShow_Information_Density_Layer_triggered();
  void on_actionVertical_Gradient_triggered();
  void on_actionLaplacian_Gradient_triggered();
  void on_actionShow_refraction_triggered();
  void on_actionShow_scalarbar_triggered();
  void on_actionShow_Grid_Lines_triggered();
  void on_actionSmallGeo_triggered();
  void on_actionNormalGeo_triggered();
  void on_actionLargeGeo_triggered();
  void on_actionShow_title_triggered();
  void on_actionPalette_triggered();
  void on_actionReset_View_triggered();
  // Help
  void on_actionUser_guide_triggered();
  void on_actionHelp_triggered();
  void on_actionAbout_triggered();

 private:
  // Connected by hand: no widget has these names.
  void on_actionAuto_improve_triggered();
  void enable_draw_travel_times();
  void on_pickEdited();
  void update_palette_max(int value);
  void update_palette_min(int value);
  void on_vtk_palette_changed();
  void on_mousemoved(int trace);
  void update_show_traces(bool onlyTraces);
  void on_tomo_stopped();

  // Start and end
  void startLog();
  void loadSettings();
  bool askForSettings(int language);
  void connectViews();
  void connectPlots();
  void connectCommands();
  void addShotChooser();
  void groupActions();
  void addKeys();
  void layOutSplitter();
  /// Where the window's place and tool bars, and what dialogs were left with, are remembered.
  QString windowStateFile() const;
  void restoreWindow();
  void saveWindow();
  void retranslate();
  bool mayLoseChanges();

  // Projects
  bool saveProject();
  bool saveProjectAs();
  bool saveProjectTo(const QString& file);
  void openProject(const QString& file);
  bool loadProject(const QString& file, LoadedProject& project);
  bool mayUse(const ProjectFile& file, const QString& question);
  bool mayReplace(const ProjectFile& file);
  void takeProject(LoadedProject project, ProjectFile file, bool saved = true);
  void keepRange(ColorPaletteList& palettes) const;
  void openSurvey(Survey survey, ProjectFile file, bool saved = false);
  void setProjectFile(ProjectFile file);
  Survey newSurvey(TomoDocument document) const;
  void reportBadProject(const QString& file, const projectReader& reader);
  void addRecentMenu();
  void refreshRecentProjects();
  void clearRecentProjects();
  void offerRecovery();
  void prepareAutosave();
  void noteEdit();
  void forgetRecovery();
  void recoveryFailed(const QString& reason, bool lasting);

  // Loading
  QStringList askForShotFiles();
  std::vector<ReadShot> readShotFiles(const QStringList& files, const TomoDocument& target);
  /// How shot files go with those that are there.
  enum class ShotFiles { kAdded, kInstead };
  void loadShotFiles(const QStringList& files, ShotFiles how = ShotFiles::kAdded);
  void reportShotFiles(const std::vector<ShotFileOutcome>& outcomes);
  void showFresh(int index);
  void askForShotTime(const std::vector<std::size_t>& sets);
  void importTravelTimeFile(const QString& file);
  void exportCurves();
  QString proposedName() const;
  void proposeName(QFileDialog& dialog, const char* suffix) const;
  QString askForExport(const QString& title, const QString& filter, const char* suffix);
  QString askForGriddedText();
  void exportTo(const QString& file, const std::function<Status(const std::string&)>& write);
  void showWriting(const QString& file);  ///< in the status bar
  void tellExport(const Status& written, const QString& file);
  bool mayOverwrite(const std::vector<PlannedImage>& images);
  void writeImages(const std::vector<PlannedImage>& images);
  void writeReportAs(const QString& title, const QString& filter, const char* suffix);
  void tellReport(const Status& written, const QString& file);
  bool mayExportKml();

  // Geometry
  void takeGeometry(const SurveyGeometry& geometry);

  // State
  void changeLanguage(int index);
  const Survey& survey() const { return mSession.survey(); }
  const refractionDataStructure::Interpretation& interpretation() const {
    return *survey().interpretation;
  }
  const ColorPaletteList& palettes() const { return *survey().palettes; }
  const SectionViewSettings& section() const { return survey().section; }
  void surveyChanged(const SurveyChange& change);
  bool showsOtherwise(const SurveyChange& change) const;
  void showRecords();
  /// Edits the survey. False, after telling why, when it is as it was.
  bool edit(Edit kind, const std::function<void(Survey&)>& change, Message text = {});
  bool tellUnlessDone(const Status& status);
  void refreshUndoTexts();
  void addMisfitLabel();
  void refreshMisfit();
  void refreshTitle();
  void refreshCommands();
  void refreshGeometryCommands();
  void refreshTomographyCommands();
  void refreshSectionCommands();
  void refreshPaletteCommands();
  std::optional<SectionScene> plainSection(SectionQuantity quantity) const;
  ValueRange contourRange(SectionQuantity quantity) const;
  ContourSettings completedContours(ContourSettings contours) const;
  void logContours();
  void refreshRefractionCommands();
  void refreshProjectCommands();
  void refreshExportCommands();
  void refreshReportCommands();
  void refreshSection();  ///< shows grid and results of the document as they are now
  void connectSection();
  void changeSection(const std::function<void(SectionViewSettings&)>& change);
  void chooseQuantity(SectionQuantity quantity, bool chosen);
  void chooseGeophones(GeophoneMarkers size);
  bool hasInformationDensity() const;
  QString whyNoSection() const;
  std::vector<SectionLine> refractors() const;
  void showSectionCursor(const SectionReading& reading);
  void refreshShotChooser();
  void refreshTraceOptions();
  void setOption(bool Settings::*option, bool value);
  void saveSettings();
  void refreshViewActions();
  void refreshPlots();
  bool hasFilteredCopy(int shot) const;
  template <typename Change>
  void changeView(Change change);
  void chooseSnap(PickSnap snap);
  void chooseTool(TraceTool tool);
  std::array<editTravelTimesWidget*, 2> editors() const;
  std::array<TravelTimePlot*, 2> plots() const;
  void showCursor(const TraceCursor& cursor);

  // Processing
  std::vector<std::int32_t> shotsToProcess() const;
  bool forEachShot(const std::vector<std::int32_t>& shots, const QString& text,
                   const std::function<void(std::int32_t)>& work);
  void makeFilteredCopies(Message step, const QString& text,
                          const std::function<FilterOutcome(TomoDocument&, std::int32_t)>& filter);
  void takeFilteredCopies(const TomoDocument& work, Message step);

  // Tomography
  bool isPresentGrid(const SurveyProfile& profile, const GridSettings& settings) const;
  bool askForSameGrid();
  GridSettings proposedGrid(SurveyProfile& profile);
  Status smoothBeside(const smoothingDialog& dialog);
  bool makeGrid();
  TomographyResult runInversionBeside(const TomographyParameters& parameters);
  void showInversion(const TomographyResult& result);
  static QString leftOutBox(const QStringList& names);
  std::vector<QWidget*> documentEditors() const;
  void askToStopAndClose();

  void logSlot(const char* name);
  void openUserGuide(const QString& page);

  std::unique_ptr<Ui::Talvesk_MainWindows> mUi;
  WorkingFolder mFolder;
  Log mLog;
  RecordedConsole mRecorded{mLog};  ///< goes after all that tells the console something
  Settings mSettings;
  FileFolders mFolders;
  Languages mLanguages;
  ShotLoader mLoader;
  Session mSession;
  Session::Subscription mSubscription;
  int mCurrentFile = -1;
  ProjectFile mProject;  ///< where the survey is saved
  RecentProjects mRecent;
  QMenu* mRecentMenu = nullptr;
  RecoveryCopy mRecovery;
  QTimer mAutosaveTimer{this};
  std::uint64_t mRecoveredRevision = 0;  ///< that the recovery copy holds
  int mFailedRecoveries = 0;             ///< in a row
  bool mLaidOut = false;
  struct PaletteTrial;
  PaletteTrial* mPaletteTrial = nullptr;      ///< while the dialog of palettes is open
  bool mFirstRun = false;                     ///< the user has not been asked for settings yet
  BackgroundInversion* mInversion = nullptr;  ///< under way; the document is not to be edited then
  progressTomographyDialog* mInversionProgress = nullptr;
  bool mCloseAfterInversion = false;
  QComboBox* mShotChooser = nullptr;
  QLabel* mCursorLabel = nullptr;
  QLabel* mMisfitLabel = nullptr;
  std::unique_ptr<GuideWindow> mGuide;  ///< once it was asked for
};

}  // namespace talvesk
