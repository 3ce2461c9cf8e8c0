#include "app/presenters/CommandTable.h"
#include "gui/WindowTest.h"
#include "io/Survey.h"
#include "model/SurveyGeometry.h"
#include "support/TestSurveys.h"
#include "tomo/GridSetup.h"
#include "tomo/TomographyRun.h"

#include <QCheckBox>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QSet>
#include <QTabWidget>
#include <QTextDocument>
#include <QToolBar>
#include <map>
#include <set>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::pickTwoLayers;
using testing::WindowTest;

struct KnownCommand {
  const char* name;
  const char* text;
  const char* toolTip;  ///< empty: any that says more than the text
  const char* key;
  const char* icon;  ///< resource, empty: any or none
};

constexpr KnownCommand kCommands[] = {
    {"actionNew", "New...", "", "Ctrl+N", ":/icons/new-file.png"},
    {"actionLoad_TT", "Import TravelTimes...", "Load traveltimes", "", ""},
    {"actionApply_smoothing", "Apply smoothing", "", "", ""},
    {"actionRun_tomography_inversion", "Run tomography inversion", "", "Ctrl+R",
     ":/icons/speed.png"},
    {"actionGrid_view", "Grid view", "", "", ""},
    {"actionSmooth_view", "Smooth view", "", "", ""},
    {"actionExport_tomographic_data", "Export tomographic data ...", "", "", ""},
    {"actionNext_file", "Next", "Show the next seismic file", "Shift+Num+Right",
     ":/icons/next.png"},
    {"actionPrev_file", "Prev", "Show the previous file", "Shift+Num+Left", ":/icons/back.png"},
    {"actionDefine_model_velocity", "Define model velocity", "", "", ""},
    {"actionLoad_Project", "Load Project...", "", "Ctrl+A",
     ":/icons/open-folder-with-document.png"},
    {"actionSave_Project_As", "Save Project As...", "", "Ctrl+Shift+S", ":/icons/save.png"},
    {"actionImages", "Images ...", "", "", ":/icons/png.png"},
    {"actionAutoPick", "AutoPick", "", "", ":/icons/autopickingICO.png"},
    {"actionAbout", "About", "", "", ""},
    {"actionGeometry", "Geometry ...", "", "", ":/icons/settings.png"},
    {"actionGrid", "Grid ...", "", "", ":/icons/grid.png"},
    {"actionPDF", "PDF ...", "", "", ":/icons/pdf.png"},
    {"actionPalette", "Palette Options...", "", "", ":/icons/pantone.png"},
    {"actionODT", "ODT...", "", "", ":/icons/odt-document-outlined-interface-symbol.png"},
    {"actionWeb_page", "Web page ...", "", "", ":/icons/web-page.png"},
    {"actionExit", "Exit", "", "Meta+Q", ""},
    {"actionHelp", "On line help", "", "", ""},
    {"actionShow_rays", "Show Rays", "Overlay the seismic rays to profile", "", ""},
    {"actionFill_wiggle", "Fill wiggle", "", "", ""},
    {"actionSettings", "Settings", "", "", ""},
    {"actionShow_Contour_Lines", "Show Contour Lines", "", "", ":/icons/isolines.png"},
    {"actionSet_geography_coordinates", "Set geographic coordinates ...", "", "", ""},
    {"actionReset_View", "Reset View", "", "", ""},
    {"actionSave_Project", "Save Project", "", "Ctrl+S", ":/icons/save-file-option.png"},
    {"actionVertical_Gradient", "Vertical Gradient", "", "", ""},
    {"actionLaplacian_Gradient", "Laplacian Gradient", "", "", ""},
    {"actionShow_Tomographic_Profile", "Show Tomographic Profile", "", "", ""},
    {"actionUser_guide", "User guide", "", "", ""},
    {"actionFilter", "Filter...", "", "", ""},
    {"actionApply_Hushel", "Apply Hushel",
     "Apply Hushel - The Noise Reduction tool for seismic refraction data", "",
     ":/icons/Hushel_Icon.png"},
    {"actionAGC", "AGC", "", "", ""},
    {"actionRefraction", "Refraction", "", "", ""},
    {"actionSmallGeo", "Small", "", "", ""},
    {"actionNormalGeo", "Normal", "", "", ""},
    {"actionLargeGeo", "Large", "", "", ""},
    {"actionShow_refraction", "Show refraction", "", "", ""},
    {"actionShow_scalarbar", "Show scalarbar", "", "", ""},
    {"actionScreenshot", "Screenshot", "Take a Screenshot of the tomographic profile", "",
     ":/icons/screenshot.png"},
    {"actionExport_TravelTimes", "Export TravelTimes...", "", "", ""},
    {"actionShow_Information_Density_Layer", "Show Information Density Layer", "", "", ""},
    {"actionShow_Grid_Lines", "Show Grid Lines", "", "", ""},
    {"actionSet_title", "Set title ...", "Set prject title", "Ctrl+T", ":/icons/title.png"},
    {"actionShow_title", "Show title ...", "", "", ""},
    {"actionGridded_Data", "Tomography to text file ...",
     "Export tomography as a XYZVelocity gridded text file", "", ""},
    {"actionExportTomographic_profile_2_KML", "Tomographic profile ...", "", "", ""},
    {"actionExportSeismic_line", "Seismic line ...", "Export seismic line to KML", "", ""},
};

class Commands : public WindowTest {};

TEST_F(Commands, areAsUsersKnowThem) {
  open();
  for (const KnownCommand& command : kCommands) {
    SCOPED_TRACE(command.name);
    const QAction& found = action(command.name);
    EXPECT_EQ(found.text().toStdString(), command.text);
    if (*command.toolTip != '\0') {
      EXPECT_EQ(found.toolTip().toStdString(), command.toolTip);
    } else {
      EXPECT_GT(found.toolTip().size(), found.text().size()) << found.toolTip().toStdString();
    }
    if (*command.key != '\0') {
      EXPECT_EQ(found.shortcut(), QKeySequence(QLatin1String(command.key)));
    }
    if (*command.icon != '\0') {
      EXPECT_TRUE(QFile::exists(QLatin1String(command.icon)));
      EXPECT_FALSE(found.icon().isNull());
    }
  }
}

TEST_F(Commands, ofOneMenuHavePicturesOfTheirOwn) {
  open();
  for (const char* menu : {"menuFile", "menuProject", "menuProcessing", "menuView"}) {
    std::vector<std::pair<std::string, QImage>> pictures;
    for (const QAction* each : child<QMenu>(menu).actions()) {
      if (each->icon().isNull()) continue;
      const QImage picture = each->icon().pixmap(48, 48).toImage();
      for (const auto& [name, other] : pictures) {
        EXPECT_NE(picture, other) << name << " and " << each->objectName().toStdString();
      }
      pictures.emplace_back(each->objectName().toStdString(), picture);
    }
    EXPECT_GE(pictures.size(), 2U) << menu;
  }
}

TEST_F(Commands, tellWhatLibrariesTheProgramIsBuiltWith) {
  open();
  dialogs.expect([](QWidget& widget) {
    QTextDocument page;
    page.setHtml(dynamic_cast<QMessageBox&>(widget).text());
    const std::string text = page.toPlainText().toStdString();
    for (const char* name :
         {"Talvesk 2022.0", "Qt", "VTK", "Qwt", "PROJ", "libzip", "SQLite", "liquid-dsp", "Eigen",
          "cereal", "LGPL", "BSD 3-Clause", "MIT", "MPL 2.0", qVersion()}) {
      EXPECT_THAT(text, HasSubstr(name));
    }
    widget.close();
  });
  action("actionAbout").trigger();
}

/// All actions below a menu, its submenus included.
QSet<QAction*> reachable(const QMenu& menu) {
  QSet<QAction*> found;
  for (QAction* action : menu.actions()) {
    found.insert(action);
    if (action->menu() != nullptr) found.unite(reachable(*action->menu()));
  }
  return found;
}

TEST_F(Commands, areAllInTheMenus) {
  open();
  QSet<QAction*> inMenus;
  for (QAction* top : window->menuBar()->actions()) inMenus.unite(reachable(*top->menu()));
  for (const KnownCommand& command : kCommands) {
    EXPECT_TRUE(inMenus.contains(&action(command.name))) << command.name;
  }
}

TEST_F(Commands, shareNoKeyAndNoMnemonicOfTheMenuBar) {
  open();
  QSet<QString> keys;
  for (const QAction* each : window->findChildren<QAction*>()) {
    for (const QKeySequence& key : each->shortcuts()) {
      EXPECT_FALSE(keys.contains(key.toString())) << key.toString().toStdString();
      keys.insert(key.toString());
    }
  }
  for (const char* language : {"de", "en", "es", "fr", "it"}) {
    writeSettings(language);
    open();
    QSet<QString> mnemonics;
    for (const QAction* top : window->menuBar()->actions()) {
      const QString letter =
          top->text().mid(top->text().indexOf(QLatin1Char('&')) + 1, 1).toLower();
      EXPECT_FALSE(mnemonics.contains(letter)) << language << " " << top->text().toStdString();
      mnemonics.insert(letter);
    }
  }
}

/// What can be done without dialogs tells the log its name; a disabled action can be told to.
TEST_F(Commands, writeTheirNameToTheLogFirst) {
  open();
  const char* const names[] = {"actionNext_file",  "actionPrev_file",   "actionAutoPick",
                               "actionAGC",        "actionShow_rays",   "actionExportSeismic_line",
                               "actionRefraction", "actionGridded_Data"};
  for (const char* name : names) {
    QMetaObject::invokeMethod(window.get(), ("on_" + std::string(name) + "_triggered").c_str());
    EXPECT_THAT(log(), ::testing::HasSubstr("] Talvesk_MainWindows::on_" + std::string(name) +
                                            "_triggered\n"));
  }
  loadShots(1);
  action("actionApply_Hushel").trigger();
  EXPECT_THAT(log(),
              ::testing::HasSubstr("Talvesk_MainWindows::on_actionAuto_improve_triggered\n"));
}

std::set<std::string> objectsOf(const CommandTable& table) {
  std::set<std::string> names;
  for (const Command& row : table.rows()) names.insert(row.object);
  return names;
}

TEST_F(Commands, haveOneRowForEveryActionAndSlot) {
  open();
  const CommandTable& table = window->commands();
  const std::set<std::string> objects = objectsOf(table);
  std::set<std::string> slotNames;
  for (const Command& row : table.rows()) slotNames.insert(CommandTable::slotOf(row));
  EXPECT_EQ(objects.size(), table.rows().size());
  EXPECT_EQ(slotNames.size(), table.rows().size());
  for (const Command& row : table.rows()) {
    EXPECT_NE(window->findChild<QObject*>(QLatin1String(row.object)), nullptr) << row.object;
  }

  int actions = 0;
  for (const QAction* each : window->findChildren<QAction*>(QRegularExpression("^action"))) {
    ++actions;
    EXPECT_EQ(objects.count(each->objectName().toStdString()), 1U)
        << each->objectName().toStdString();
  }
  EXPECT_GT(actions, 80);

  const QMetaObject& meta = *window->metaObject();
  int named = 0;
  for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
    const std::string name = meta.method(i).name().toStdString();
    if (name.rfind("on_", 0) != 0) continue;
    ++named;
    EXPECT_EQ(slotNames.count(name), 1U) << name;
  }
  EXPECT_GE(named, 50);
}

/// From what on a command can work, in the order in which a survey grows.
enum class Stage { kNothing, kShots, kGrid, kResult };

const std::map<Stage, std::vector<std::string>>& commandsByStage() {
  static const std::map<Stage, std::vector<std::string>> stages = {
      {Stage::kNothing,
       {"actionNew",
        "actionOpen_shot_files",
        "actionLoad_TT",
        "actionLoad_Project",
        "actionCampaign_page",
        "actionSettings",
        "actionExit",
        "actionFind_command",
        "actionUser_guide",
        "actionHelp",
        "actionAbout",
        "actionGeometry",
        "actionSet_title",
        "actionPalette",
        "actionFill_wiggle",
        "actionTwo_colors",
        "actionCut_horizontal",
        "actionZoom_in",
        "actionShow_filtered",
        "actionShow_all_traces",
        "actionBy_distance",
        "actionBy_offset",
        "actionBy_absolute_offset",
        "actionReduced_time",
        "actionReduction_velocity",
        "actionTime_gain",
        "actionTime_gain_exponent",
        "actionError_bars",
        "actionTrue_amplitudes",
        "actionAir_wave",
        "actionGuide_neighbour",
        "actionGuide_reciprocal",
        "actionMagnifier",
        "actionTool_pick",
        "actionTool_zoom",
        "actionTool_pan",
        "actionTool_ruler",
        "actionTool_select",
        "actionTool_guide",
        "actionSnap_none",
        "actionSnap_onset",
        "actionSnap_zero",
        "actionSnap_peak"}},
      {Stage::kShots,
       {"actionSave_Project",
        "actionSave_Project_As",
        "actionExport_TravelTimes",
        "actionExport_recordings",
        "actionExport_pick_headers",
        "actionExportSeismic_line",
        "actionExport_DXF",
        "actionExport_GeoPackage",
        "actionPrint",
        "actionImages",
        "actionShot_sheet",
        "actionPDF",
        "actionODT",
        "actionWeb_page",
        "actionSet_geography_coordinates",
        "actionSurveyed_positions",
        "actionGrid",
        "actionAutoPick",
        "actionAutoPick_line",
        "actionAutoPick_survey",
        "actionFill_along",
        "actionFilter",
        "actionNotch",
        "actionVelocity_filter",
        "actionAGC",
        "actionApply_Hushel",
        "actionRun_tomography_inversion",
        "actionInversion_runs",
        "actionResolution",
        "actionKnown_ground",
        "actionRefraction",
        "actionReciprocity",
        "actionNext_file",
        "actionPrev_file",
        "actionRecording_details",
        "actionTrace_headers",
        "actionOverlay_shots",
        "actionCheck_recordings",
        "actionMend_recording",
        "actionKill_traces",
        "actionReverse_polarity",
        "actionMute_traces",
        "actionAmplify_traces",
        "actionAttenuate_traces",
        "actionRemove_shot",
        "actionError_unknown",
        "actionError_05",
        "actionError_1",
        "actionError_25",
        "actionError_5",
        "actionUndo",
        "actionNext_doubtful",
        "actionPrevious_doubtful",
        "actionGain_up",
        "actionGain_down",
        "actionFit",
        "showAllPicksCB",
        "showTravelTimeCB"}},
      {Stage::kGrid,
       {"actionExport_tomographic_data",
        "actionGridded_Data",
        "actionExport_VTK",
        "actionExport_Surfer",
        "actionExport_curtain",
        "actionExportTomographic_profile_2_KML",
        "actionScreenshot",
        "actionDefine_model_velocity",
        "actionApply_smoothing",
        "actionShow_Tomographic_Profile",
        "actionGrid_view",
        "actionSmooth_view",
        "actionShow_Contour_Lines",
        "actionMarked_isolines",
        "actionDepth_profile",
        "actionFence",
        "actionSave_style",
        "actionApply_style",
        "actionAnnotations",
        "actionVertical_Gradient",
        "actionLaplacian_Gradient",
        "actionShow_scalarbar",
        "actionShow_Grid_Lines",
        "actionSmallGeo",
        "actionNormalGeo",
        "actionLargeGeo",
        "actionShow_title",
        "actionReset_View"}},
      {Stage::kResult,
       {"actionCertainty", "actionSecond_look", "actionResiduals", "actionShow_rays",
        "actionShow_Information_Density_Layer", "showSimTT_CB", "actionGuide_computed"}}};
  return stages;
}

/// What these need is not on the way to a section: a filtered copy, a layered profile, a view that
/// was zoomed, a step that was undone, picks that were made.
const std::set<std::string> kBesideTheWay = {"show_filtered_cb",
                                             "actionShow_refraction",
                                             "actionShow_Certainty_Layer",
                                             "actionExport_certainty",
                                             "actionFade_uncertain",
                                             "actionDepth_bands",
                                             "actionShow_annotations",
                                             "actionShow_known",
                                             "actionZoom_back",
                                             "actionZoom_forward",
                                             "actionRedo",
                                             "actionConfirm_picks",
                                             "actionRemove_picks",
                                             "actionRemove_unconfirmed",
                                             "actionCount_from_shot",
                                             "actionTake_back_mends",
                                             "actionStart_from_layers",
                                             "actionCompare_layers",
                                             "actionP_and_S"};

class GrowingSurvey : public Commands {
 protected:
  void expectEnabledUpTo(Stage stage) {
    for (const auto& [from, names] : commandsByStage()) {
      for (const std::string& name : names) {
        const QVariant enabled = child<QObject>(name.c_str()).property("enabled");
        EXPECT_EQ(enabled.toBool(), stage >= from) << name << " at stage " << int(stage);
      }
    }
  }
  void edit(Edit kind, const std::function<Status(Survey&)>& change) {
    const Status status = window->session().apply(kind, change);
    ASSERT_TRUE(status.ok()) << status.message();
  }

  Log nowhere;
};

TEST_F(GrowingSurvey, isWhatCommandsAreEnabledBy) {
  open();
  std::set<std::string> judged = kBesideTheWay;
  for (const auto& stage : commandsByStage()) {
    judged.insert(stage.second.begin(), stage.second.end());
  }
  ASSERT_EQ(judged, objectsOf(window->commands()));

  expectEnabledUpTo(Stage::kNothing);
  loadShots(2);
  expectEnabledUpTo(Stage::kShots);
  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Open shot files\"");
  EXPECT_FALSE(action("actionRedo").isEnabled());

  edit(Edit::kPick, [](Survey& survey) {
    pickTwoLayers(survey.document, 450.0, 1800.0, 3.0);
    return Status();
  });
  edit(Edit::kGrid, [this](Survey& survey) {
    return setUpGrid(survey.document, {8.0, 1.0, 4}, nowhere);
  });
  expectEnabledUpTo(Stage::kGrid);

  edit(Edit::kInversion, [this](Survey& survey) {
    TomographyParameters parameters;
    parameters.externalIterations = 1;
    parameters.solverIterations = 2;
    return runInversion(survey.document, parameters, nowhere).status;
  });
  expectEnabledUpTo(Stage::kResult);

  for (const Stage stage : {Stage::kGrid, Stage::kShots, Stage::kShots, Stage::kNothing}) {
    action("actionUndo").trigger();
    expectEnabledUpTo(stage);
  }
  EXPECT_TRUE(action("actionRedo").isEnabled());
  for (int step = 0; step < 4; ++step) action("actionRedo").trigger();
  expectEnabledUpTo(Stage::kResult);
  EXPECT_FALSE(action("actionRedo").isEnabled());
}

/// Neither left unconnected nor connected twice: a check mark turns over, is remembered, and turns
/// back, and the log has one line for each click.
TEST_F(GrowingSurvey, showsWhatItsCheckMarksSay) {
  open();
  loadShots(2);
  edit(Edit::kGrid, [this](Survey& survey) {
    return setUpGrid(survey.document, {8.0, 1.0, 4}, nowhere);
  });
  const auto lines = [this](const std::string& slot) {
    const std::string text = log();
    const std::string line = "] Talvesk_MainWindows::" + slot + "\n";
    int found = 0;
    for (auto at = text.find(line); at != std::string::npos; at = text.find(line, at + 1)) ++found;
    return found;
  };
  int clicked = 0;
  for (const Command& row : window->commands().rows()) {
    auto* each = window->findChild<QAction*>(QLatin1String(row.object));
    const std::string object = row.object;
    const bool asks = object == "actionShow_Contour_Lines" || object == "actionReduced_time";
    if (each == nullptr || !each->isCheckable() || !each->isEnabled() || asks) continue;
    SCOPED_TRACE(row.object);
    ++clicked;
    const bool before = each->isChecked();
    each->trigger();
    EXPECT_EQ(lines(CommandTable::slotOf(row)), 1);
    const bool stays = each->actionGroup() != nullptr;
    EXPECT_EQ(each->isChecked(), stays || !before);
    window->showFile(0);  // all commands are looked at anew
    EXPECT_EQ(each->isChecked(), stays || !before);
    each->trigger();
    EXPECT_EQ(lines(CommandTable::slotOf(row)), 2);
    EXPECT_EQ(each->isChecked(), stays || before);
  }
  EXPECT_GE(clicked, 30);
}

TEST_F(Commands, haveTheirTabsBoxesAndBars) {
  open();
  const auto& tabs = child<QTabWidget>("tabWidget");
  ASSERT_EQ(tabs.count(), 3);
  EXPECT_EQ(tabs.tabText(0), QStringLiteral("Traces"));
  EXPECT_EQ(tabs.tabText(1), QStringLiteral("Travel time curves"));
  EXPECT_EQ(tabs.tabText(2), QStringLiteral("Tomographic profile"));
  EXPECT_EQ(child<QCheckBox>("showAllPicksCB").text(), QStringLiteral("Show All Picks"));
  EXPECT_EQ(child<QCheckBox>("show_filtered_cb").text(), QStringLiteral("Show Filtered Traces"));
  EXPECT_EQ(child<QCheckBox>("showTravelTimeCB").text(), QStringLiteral("Show Only Traces"));
  EXPECT_EQ(child<QCheckBox>("showSimTT_CB").text(), QStringLiteral("Show computed Travel Times"));
  for (const char* name : {"mainToolBar", "toolBar"}) {
    for (const QAction* each : child<QToolBar>(name).actions()) {
      const bool button =
          !each->isSeparator() && each->objectName().startsWith(QLatin1String("action"));
      EXPECT_TRUE(!button || !each->icon().isNull()) << each->objectName().toStdString();
    }
  }
}

}  // namespace
}  // namespace talvesk
