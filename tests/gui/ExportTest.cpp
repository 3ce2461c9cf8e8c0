#include "gui/WindowTest.h"
#include "model/GeographicsCoord.h"
#include "support/SectionDocument.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QStatusBar>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;
using testing::TestFolder;
using testing::WindowTest;

constexpr const char* kShiftTitle = "Set optional shift parameter before export";
constexpr const char* kMissing =
    "Geographical coordinates are missing, data cannot be exported in KML format";

/// The window with a section of 3 rows of 10 cells of 1 m under geophones from 100 m to 108 m.
class Exports : public WindowTest {
 protected:
  Exports() { open(); }

  void takeSection(bool onGlobe) {
    TomoDocument& document = writable();
    document = testing::sectionDocument(
        3, 10, 0.0, [](std::uint32_t row, std::uint32_t) { return row == 0 ? 250.0 : 3500.0; });
    if (onGlobe) {
      document.map.edit().geoCoord = {32632, 652000.0, 652004.8, 5074000.0, 5074006.4};
      document.map.edit().geoCoord_isSet = true;
    }
    window->showFile(0);
  }
  void expectFile(const char* title, const std::string& path) {
    dialogs.expectFiles(title, {QString::fromStdString(path)});
  }
  static QLineEdit& edit(QWidget& dialog, const char* name) {
    auto* found = dialog.findChild<QLineEdit*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no field ") + name);
    return *found;
  }
  static QPushButton& button(QWidget& dialog, QDialogButtonBox::StandardButton which) {
    return *dialog.findChild<QDialogButtonBox*>()->button(which);
  }
  static std::string label(QWidget& dialog, const char* name) {
    return dialog.findChild<QLabel*>(QLatin1String(name))->text().toStdString();
  }
  static void fill(QWidget& dialog, const std::vector<std::pair<const char*, const char*>>& texts) {
    for (const auto& [name, text] : texts) edit(dialog, name).setText(QString::fromUtf8(text));
  }
};

constexpr const char* kOfSections[] = {"actionExport_tomographic_data", "actionGridded_Data",
                                       "actionExport_VTK", "actionExport_Surfer",
                                       "actionExportTomographic_profile_2_KML"};
constexpr const char* kOfLines[] = {"actionExportSeismic_line", "actionSet_geography_coordinates"};

TEST_F(Exports, needALineOrASection) {
  for (const char* name : kOfSections) EXPECT_FALSE(action(name).isEnabled()) << name;
  for (const char* name : kOfLines) EXPECT_FALSE(action(name).isEnabled()) << name;
  loadShots(1);
  for (const char* name : kOfSections) EXPECT_FALSE(action(name).isEnabled()) << name;
  for (const char* name : kOfLines) EXPECT_TRUE(action(name).isEnabled()) << name;
  takeSection(false);
  for (const char* name : kOfSections) EXPECT_TRUE(action(name).isEnabled()) << name;
}

TEST_F(Exports, ofKmlWarnWithoutCoordinatesAndAskForNoFile) {
  takeSection(false);
  for (const char* name : {"actionExportSeismic_line", "actionExportTomographic_profile_2_KML"}) {
    dialogs.expectBox("Warning", kMissing, "", QMessageBox::Ok);
    action(name).trigger();
    EXPECT_TRUE(dialogs.finished()) << name;
  }
}

TEST_F(Exports, sayWhatTheyAreBusyWithAndGiveTheCursorBack) {
  takeSection(true);
  QStringList told;
  bool busy = false;
  QObject::connect(&child<QStatusBar>("statusBar"), &QStatusBar::messageChanged,
                   [&](const QString& message) {
                     told << message;
                     busy |= QApplication::overrideCursor() != nullptr;
                   });
  const QString file = QString::fromStdString(home.file("nowhere/line.kml"));
  dialogs.expectFiles("Export Seismic Line to KML", {file});
  dialogs.expectBox("Error occured", "The data have not been exported.", "", QMessageBox::Ok);
  action("actionExportSeismic_line").trigger();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(busy);
  EXPECT_TRUE(told.contains(QStringLiteral("Writing %1 ...").arg(file)));
  EXPECT_EQ(told.back(), QString()) << "it is over";
}

struct FileCommand {
  const char* action;
  const char* title;
  const char* filter;
  const char* suffix;
  const char* beginning;  ///< of the file
};
constexpr FileCommand kFileCommands[] = {
    {"actionExport_tomographic_data", "Export Gridded Data",
     "Save gridded tomographic velocity in a text file (*.txt)", "txt", "0.5 0 -0.5 250\n"},
    {"actionGridded_Data", "Export Gridded Data",
     "Save gridded tomographic velocity in a text file (*.txt)", "txt", "0.5 0 99.5 250\n"},
    {"actionExport_VTK", "Export VTK Grid", "VTK unstructured grid (*.vtu)", "vtu", "<?xml"},
    {"actionExport_Surfer", "Export Surfer Grid", "Surfer ASCII grid (*.grd)", "grd", "DSAA\n10 3"},
    {"actionExportTomographic_profile_2_KML", "Export Tomography to KML", "KML (*.kml)", "kml",
     "<?xml"},
    {"actionExportSeismic_line", "Export Seismic Line to KML", "KML (*.kml)", "kml", "<?xml"},
};

TEST_F(Exports, askForAFileAndGiveItsSuffix) {
  takeSection(true);
  for (const FileCommand& command : kFileCommands) {
    SCOPED_TRACE(command.action);
    const std::string file = home.file(command.action);
    dialogs.expect([&](QWidget& widget) {
      auto& dialog = dynamic_cast<QFileDialog&>(widget);
      EXPECT_EQ(dialog.windowTitle(), QLatin1String(command.title));
      EXPECT_EQ(dialog.nameFilters(), QStringList({command.filter, "All Files (*)"}));
      edit(widget, "fileNameEdit").setText(QString::fromStdString(file));
      QMetaObject::invokeMethod(&dialog, "accept");
    });
    if (std::string(command.action) == "actionGridded_Data") {
      dialogs.expect([](QWidget& dialog) { dynamic_cast<QDialog&>(dialog).accept(); });
    }
    action(command.action).trigger();
    EXPECT_THAT(TestFolder::get(file + "." + command.suffix), StartsWith(command.beginning));
    EXPECT_FALSE(window->session().modified()) << "an export changes nothing";
  }
}

TEST_F(Exports, tellWhatCannotBeWritten) {
  takeSection(true);
  for (const FileCommand& command : kFileCommands) {
    SCOPED_TRACE(command.action);
    expectFile(command.title, home.file("no/out"));
    if (std::string(command.action) == "actionGridded_Data") {
      dialogs.expect([](QWidget& dialog) { dynamic_cast<QDialog&>(dialog).accept(); });
    }
    dialogs.expectBox("Error occured", "The data have not been exported.",
                      QString::fromStdString(home.file("no/out.") + command.suffix),
                      QMessageBox::Ok);
    action(command.action).trigger();
    EXPECT_THAT(log(), HasSubstr(home.file("no/out.") + command.suffix));
  }
}

TEST_F(Exports, writeNothingWhenTheUserGivesUp) {
  takeSection(true);
  const int before = home.entries();
  for (const FileCommand& command : kFileCommands) {
    dialogs.expectAndCancel();
    action(command.action).trigger();
  }
  expectFile("Export Gridded Data", home.file("out.txt"));
  dialogs.expectAndCancel();
  action("actionGridded_Data").trigger();
  EXPECT_EQ(home.entries(), before);
  EXPECT_TRUE(dialogs.finished());
}

TEST_F(Exports, ofGriddedTextTakeTheShift) {
  takeSection(false);
  expectFile("Export Gridded Data", home.file("out.txt"));
  dialogs.expect([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QLatin1String(kShiftTitle));
    EXPECT_EQ(label(dialog, "y_coord_label"), "Y coord of the line");
    EXPECT_EQ(label(dialog, "z_offset_label"), "Z offset of the line");
    EXPECT_EQ(edit(dialog, "y_coord_edit").text(), QStringLiteral("0"));
    EXPECT_EQ(edit(dialog, "z_offset_edit").text(), QStringLiteral("0"));
    const QPushButton& ok = button(dialog, QDialogButtonBox::Ok);
    EXPECT_TRUE(ok.isEnabled());
    for (const char* wrong : {"", "12 m", "1,000.5", "nan", "1e999"}) {
      fill(dialog, {{"z_offset_edit", wrong}});
      EXPECT_FALSE(ok.isEnabled()) << wrong;
      EXPECT_EQ(label(dialog, "problemLabel"), "The Z offset is not a number.");
    }
    fill(dialog, {{"y_coord_edit", " 12.25 "}, {"z_offset_edit", "-100"}});
    EXPECT_TRUE(ok.isEnabled());
    dialog.findChild<QCheckBox*>(QStringLiteral("surveyXBox"))->setChecked(true);
    button(dialog, QDialogButtonBox::Ok).click();
  });
  action("actionGridded_Data").trigger();
  EXPECT_THAT(TestFolder::get(home.file("out.txt")), StartsWith("99.5 12.25 -0.5 250\n"));
}

TEST_F(Exports, ofTheSectionUseThePaletteInView) {
  takeSection(true);
  expectFile("Export Tomography to KML", home.file("out.kml"));
  action("actionExportTomographic_profile_2_KML").trigger();
  const std::string kml = TestFolder::get(home.file("out.kml"));
  EXPECT_THAT(kml, HasSubstr("<color>ff430034</color>")) << "250 m/s, where the palette begins";
  EXPECT_THAT(kml, HasSubstr("<color>ff00e7fd</color>")) << "3500 m/s, where it ends";
}

TEST_F(Exports, needNoPlaceThatProjCannotFind) {
  takeSection(true);
  writable().map.edit().geoCoord.CRS = 4326;
  expectFile("Export Seismic Line to KML", home.file("out.kml"));
  dialogs.expectBox("Error occured", "The data have not been exported.",
                    "is not a projected system", QMessageBox::Ok);
  action("actionExportSeismic_line").trigger();
  EXPECT_EQ(TestFolder::get(home.file("out.kml")), "");
}

TEST_F(Exports, placeTheLineWithChecksWhileTyping) {
  takeSection(false);
  dialogs.expect([](QWidget& dialog) {
    const QPushButton& ok = button(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(label(dialog, "firstLabel"), "First geophone (at 100.0 m)");
    EXPECT_EQ(label(dialog, "lastLabel"), "Last geophone (at 108.0 m)");
    EXPECT_EQ(label(dialog, "epsg_label"), "EPSG code");
    EXPECT_FALSE(ok.isEnabled());
    fill(dialog, {{"estFstGeoph", "652000"}, {"northFstGeoph", "5074000.0"}});
    EXPECT_THAT(label(dialog, "checkLabel"), HasSubstr("both geophones"));
    fill(dialog, {{"estLstGeoph", "652004.8"}, {"northLstGeoph", "5074006.4"}});
    EXPECT_THAT(label(dialog, "checkLabel"), HasSubstr("Enter the EPSG code"));
    const struct {
      const char* code;
      const char* system;
      const char* check;
      bool good;
    } steps[] = {
        {"999999", "", "no reference system", false},
        {"4326", "WGS 84", "not projected", false},
        {"2263", "NAD83 / New York Long Island (ftUS)", "not count in metres", false},
        {"2053", "Hartebeesthoek94 / Lo29", "westward", false},
        {"abc", "", "Enter the EPSG code", false},
        {"EPSG:32632", "WGS 84 / UTM zone 32N", "8.0 m apart, along the line 8.0 m.", true},
        {"32632", "WGS 84 / UTM zone 32N", "8.0 m apart, along the line 8.0 m.", true},
    };
    for (const auto& step : steps) {
      SCOPED_TRACE(step.code);
      fill(dialog, {{"epsgEdit", step.code}});
      EXPECT_EQ(label(dialog, "systemLabel"), step.system);
      EXPECT_THAT(label(dialog, "checkLabel"), HasSubstr(step.check));
      EXPECT_EQ(ok.isEnabled(), step.good);
    }
    EXPECT_EQ(label(dialog, "firstPlace"), "45.802816\u00B0 N   10.956078\u00B0 E");
    EXPECT_THAT(label(dialog, "checkLabel"), Not(HasSubstr("Check")));
    fill(dialog, {{"estLstGeoph", "652000"}, {"northLstGeoph", "5074000"}});
    EXPECT_THAT(label(dialog, "checkLabel"), HasSubstr("the same coordinates"));
    EXPECT_FALSE(ok.isEnabled());
    fill(dialog, {{"northLstGeoph", "5074009"}});
    EXPECT_THAT(label(dialog, "checkLabel"), HasSubstr("9.0 m apart, along the line 8.0 m. Check"));
    button(dialog, QDialogButtonBox::Ok).click();
  });
  action("actionSet_geography_coordinates").trigger();
  const TomoDocument& document = writable();
  EXPECT_TRUE(document.map->geoCoord_isSet);
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(document.map->geoCoord.CRS, 32632);
  EXPECT_EQ(document.map->geoCoord.mEastFstGeoph, 652000.0);
  EXPECT_EQ(document.map->geoCoord.mNorthFstGeoph, 5074000.0);
  EXPECT_EQ(document.map->geoCoord.mEastLstGeoph, 652000.0);
  EXPECT_EQ(document.map->geoCoord.mNorthLstGeoph, 5074009.0);
}

TEST_F(Exports, keepThePlaceWhenTheUserGivesUp) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  takeSection(true);
  dialogs.expect([](QWidget& dialog) {
    EXPECT_EQ(edit(dialog, "estLstGeoph").text(), QStringLiteral("652004,8"));
    EXPECT_EQ(edit(dialog, "epsgEdit").text(), QStringLiteral("32632"));
    EXPECT_TRUE(button(dialog, QDialogButtonBox::Ok).isEnabled());
    fill(dialog, {{"estLstGeoph", "652007.8"}, {"northLstGeoph", "5074006,4"}});
    EXPECT_TRUE(button(dialog, QDialogButtonBox::Ok).isEnabled()) << "pasted with a point";
    fill(dialog, {{"estLstGeoph", "652.007,8"}});
    EXPECT_FALSE(button(dialog, QDialogButtonBox::Ok).isEnabled()) << "thousands";
    dialog.close();
  });
  action("actionSet_geography_coordinates").trigger();
  QLocale::setDefault(before);
  EXPECT_EQ(writable().map->geoCoord.mEastLstGeoph, 652004.8);
  EXPECT_FALSE(window->session().modified());
}

}  // namespace
}  // namespace talvesk
