#pragma once

#include "session/Session.h"

#include <QMainWindow>
#include <QStringList>
#include <memory>

namespace talvesk {

namespace Ui {
class Talvesk_MainWindows;
}
class CommandTable;
struct Desk;
struct Presenters;
struct Settings;

/// The one window of the program: its form, its menus, what becomes of it on the screen, and its
/// end. The survey and what belongs to it lie on the desk, presenters show it and ask what commands
/// must ask (app/presenters), and a table says which command runs what and when it can.
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

  const TomoDocument& document() const;
  Session& session();
  const Settings& settings() const;
  const CommandTable& commands() const { return *mCommands; }
  int currentFile() const;  ///< record in view, -1 without one

  /// Makes a record the current one; one that does not exist leaves none current.
  void showFile(int index);

 public slots:
  /// Asks for shot files and adds them to the survey.
  void loadTraces_PWave() { run(__func__); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private slots:
  void autosave();  ///< a recovery copy, if there is anything new to keep
  // By their names users of the log and callers from outside know these commands. The table
  // connects those that came later by itself.
  void on_actionNew_triggered() { run(__func__); }
  void on_actionLoad_Project_triggered() { run(__func__); }
  void on_actionSave_Project_triggered() { run(__func__); }
  void on_actionSave_Project_As_triggered() { run(__func__); }
  void on_actionLoad_TT_triggered() { run(__func__); }
  void on_actionExport_TravelTimes_triggered() { run(__func__); }
  void on_actionExit_triggered() { run(__func__); }
  void on_actionSettings_triggered() { run(__func__); }
  void on_actionExport_tomographic_data_triggered() { run(__func__); }
  void on_actionGridded_Data_triggered() { run(__func__); }
  void on_actionExportTomographic_profile_2_KML_triggered() { run(__func__); }
  void on_actionExportSeismic_line_triggered() { run(__func__); }
  void on_actionImages_triggered() { run(__func__); }
  void on_actionScreenshot_triggered() { run(__func__); }
  void on_actionPDF_triggered() { run(__func__); }
  void on_actionODT_triggered() { run(__func__); }
  void on_actionGeometry_triggered() { run(__func__); }
  void on_actionSet_geography_coordinates_triggered() { run(__func__); }
  void on_actionGrid_triggered() { run(__func__); }
  void on_actionDefine_model_velocity_triggered() { run(__func__); }
  void on_actionSet_title_triggered() { run(__func__); }
  void on_actionNext_file_triggered() { run(__func__); }
  void on_actionPrev_file_triggered() { run(__func__); }
  void on_actionFill_wiggle_triggered() { run(__func__); }
  void on_actionAutoPick_triggered() { run(__func__); }
  void on_actionFilter_triggered() { run(__func__); }
  void on_actionAGC_triggered() { run(__func__); }
  void on_actionRun_tomography_inversion_triggered() { run(__func__); }
  void on_actionCertainty_triggered() { run(__func__); }
  void on_actionApply_smoothing_triggered() { run(__func__); }
  void on_actionRefraction_triggered() { run(__func__); }
  void on_actionShow_Tomographic_Profile_triggered() { run(__func__); }
  void on_actionGrid_view_triggered() { run(__func__); }
  void on_actionSmooth_view_triggered() { run(__func__); }
  void on_actionShow_rays_triggered() { run(__func__); }
  void on_actionShow_Contour_Lines_triggered() { run(__func__); }
  void on_actionShow_Information_Density_Layer_triggered() { run(__func__); }
  void on_actionShow_Certainty_Layer_triggered() { run(__func__); }
  void on_actionVertical_Gradient_triggered() { run(__func__); }
  void on_actionLaplacian_Gradient_triggered() { run(__func__); }
  void on_actionShow_refraction_triggered() { run(__func__); }
  void on_actionShow_scalarbar_triggered() { run(__func__); }
  void on_actionShow_Grid_Lines_triggered() { run(__func__); }
  void on_actionSmallGeo_triggered() { run(__func__); }
  void on_actionNormalGeo_triggered() { run(__func__); }
  void on_actionLargeGeo_triggered() { run(__func__); }
  void on_actionShow_title_triggered() { run(__func__); }
  void on_actionPalette_triggered() { run(__func__); }
  void on_actionReset_View_triggered() { run(__func__); }
  void on_actionUser_guide_triggered() { run(__func__); }
  void on_actionHelp_triggered() { run(__func__); }
  void on_actionAbout_triggered() { run(__func__); }

 private:
  // Connected by hand: no widget has these names.
  void on_actionAuto_improve_triggered() { run(__func__); }
  void update_show_traces(bool /*onlyTraces*/) { run(__func__); }
  void enable_draw_travel_times();
  void on_pickEdited();
  void on_mousemoved(int trace);
  void update_palette_max(int value);
  void update_palette_min(int value);
  void on_vtk_palette_changed();
  void on_tomo_stopped();

  void run(const char* slot);
  void addKeys();
  void connectCommands();
  void connectViews();
  void connectPresenters();
  void layOutSplitter();
  void retranslate();

  std::unique_ptr<Ui::Talvesk_MainWindows> mUi;
  std::unique_ptr<Desk> mDesk;
  std::unique_ptr<Presenters> mPresenters;
  std::unique_ptr<CommandTable> mCommands;
  Session::Subscription mSubscription;
  bool mLaidOut = false;
};

}  // namespace talvesk
