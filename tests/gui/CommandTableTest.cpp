#include "gui/WindowTest.h"

#include <QCheckBox>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSet>
#include <QTabWidget>
#include <QTextDocument>
#include <QToolBar>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::WindowTest;

struct Command {
  const char* name;
  const char* text;
  const char* toolTip;  ///< empty: any that says more than the text
  const char* key;
  const char* icon;  ///< resource, empty: any or none
};

constexpr Command kCommands[] = {
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
  for (const Command& command : kCommands) {
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
         {"Talvesk 2022.0", "Qt", "VTK", "Qwt", "PROJ", "libzip", "liquid-dsp", "Eigen", "cereal",
          "LGPL", "BSD 3-Clause", "MIT", "MPL 2.0", qVersion()}) {
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
  for (const Command& command : kCommands) {
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

TEST_F(Commands, areEnabledWhenTheyCanWork) {
  open();
  const char* const ofTraces[] = {"actionAutoPick",           "actionAGC",
                                  "actionApply_Hushel",       "actionNext_file",
                                  "actionExport_TravelTimes", "actionRecording_details"};
  const char* const always[] = {
      "actionNew",  "actionOpen_shot_files", "actionLoad_TT",  "actionSettings",
      "actionExit", "actionAbout",           "actionSet_title"};
  for (const char* name : ofTraces) EXPECT_FALSE(action(name).isEnabled()) << name;
  for (const char* name : always) EXPECT_TRUE(action(name).isEnabled()) << name;
  loadShots(2);
  for (const char* name : ofTraces) EXPECT_TRUE(action(name).isEnabled()) << name;
  EXPECT_TRUE(action("actionUndo").isEnabled()) << "loading can be taken back";
  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Open shot files\"");
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
