#include "gui/GeometryDriver.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"

#include <QDir>
#include <QInputDialog>
#include <QMenu>
#include <QToolButton>

namespace talvesk {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using testing::Geometry;
using testing::GeometryDriver;
using ::testing::HasSubstr;
using testing::TestFolder;

/// Files that come from other programs, and go to them.
class Exchange : public Geometry {
 protected:
  void expectChoice(const char* title, const QString& item) {
    dialogs.expect([title, item](QWidget& widget) {
      auto* dialog = qobject_cast<QInputDialog*>(&widget);
      ASSERT_NE(dialog, nullptr) << widget.windowTitle().toStdString();
      EXPECT_EQ(dialog->windowTitle(), title);
      EXPECT_TRUE(dialog->comboBoxItems().contains(item)) << item.toStdString();
      dialog->setTextValue(item);
      dialog->accept();
    });
  }
  static void type(QFileDialog& dialog, const std::string& name) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(name));
    QMetaObject::invokeMethod(&dialog, "accept");
  }
  QString put(const std::string& name, const std::string& text) {
    return QString::fromStdString(home.put(name, text));
  }
  std::string elevations(const TomoDocument& document) {
    std::string text;
    for (const Point2D& geophone : document.line->goephonesStringSet[0]) {
      text += std::to_string(geophone.z).substr(0, 6) + " ";
    }
    return text;
  }
};

TEST_F(Exchange, importsPicksOfShotSuffixesByTheirContent) {
  window->openFiles({put("picks.dat",
                         "3 # points\n#x z\n0 10\n5 11\n10 12\n2 # measurements\n"
                         "#s g t err\n1 2 0.005 0.001\n1 3 0.01 0.002\n")});
  ASSERT_EQ(writable().ttArray.size(), 1u);
  EXPECT_THAT(writable().ttArray[0].ttMisurati, ElementsAre(0.005, 0.01));
  EXPECT_EQ(writable().ttArray[0].errorOf(1), 0.002);
}

TEST_F(Exchange, asksForTheUnitOfATableThatTellsNone) {
  const QString table = put("picks.csv", "sx,gx,t\n0,5,5\n0,10,10\n");
  dialogs.expectFiles("Import TravelTimes", {table});
  dialogs.expectAndCancel();
  action("actionLoad_TT").trigger();
  EXPECT_TRUE(writable().ttArray.empty());

  dialogs.expectFiles("Import TravelTimes", {table});
  expectChoice("Import TravelTimes", "milliseconds");
  dialogs.expectBox("Warning", "picks.csv was loaded with warnings.",
                    "it was read as a table with a heading", QMessageBox::Ok);
  action("actionLoad_TT").trigger();
  ASSERT_EQ(writable().ttArray.size(), 1u);
  EXPECT_THAT(writable().ttArray[0].ttMisurati, ElementsAre(0.005, 0.01));
}

TEST_F(Exchange, exportsPicksInTheFormatOfTheChosenLineAndTellsWhatItLacks) {
  loadShots(2);
  for (TravelTime& record : writable().ttArray.edit()) record.ttMisurati.edit()[3] = 0.02;
  dialogs.expect([this](QWidget& widget) {
    auto& dialog = dynamic_cast<QFileDialog&>(widget);
    EXPECT_THAT(dialog.nameFilters(), ElementsAre("Open Travel Time Exchange format (*.otte)",
                                                  "Unified data format (*.sgt)", "All Files (*)"));
    dialog.selectNameFilter("Unified data format (*.sgt)");
    emit dialog.filterSelected("Unified data format (*.sgt)");
    EXPECT_EQ(dialog.defaultSuffix(), "sgt");
    type(dialog, home.file("out"));
  });
  dialogs.expectBox("Warning", "out.sgt does not hold all of the survey.",
                    "11 geophones have no pick", QMessageBox::Ok);
  action("actionExport_TravelTimes").trigger();
  EXPECT_THAT(TestFolder::get(home.file("out.sgt")), HasSubstr("2 # measurements\n#s g t valid\n"));
}

TEST_F(Exchange, laysGeophonesAndShotsOntoATableOfElevations) {
  loadShots(2);
  const QString ground = put("ground.txt", "distance (m)\televation\n0\t100\n20\t102\n40\t99\n");
  edit([&](GeometryDriver& user) {
    auto& button = user.child<QPushButton>("elevationsButton");
    ASSERT_EQ(button.menu()->actions().size(), 2);
    dialogs.expectFiles("Open Elevations", {ground});
    button.menu()->actions()[0]->trigger();
    EXPECT_THAT(user.notice().toStdString(), HasSubstr("taken from the table"));
    EXPECT_EQ(user.cell(user.geophones(), 0, GeophoneTable::kZ), "101");
    const QString straight = user.cell(user.geophones(), 6, GeophoneTable::kZ);
    dialogs.expectFiles("Open Elevations", {ground});
    button.menu()->actions()[1]->trigger();
    EXPECT_NE(user.cell(user.geophones(), 6, GeophoneTable::kZ), straight);
    user.child<QToolButton>("undoButton").click();
    user.ok();
  });
  EXPECT_THAT(elevations(writable()), HasSubstr("101.00 101.20 101.40"));
  EXPECT_EQ(writable().ttArray[0].shotPos2d.z, 100.9);
}

TEST_F(Exchange, readsPositionsByTheNamesOfTheirColumnsAndSaysSo) {
  loadShots(1);
  std::string table = "kind\tz\tx\nshot\t7\t1\n";
  for (int i = 0; i < 12; ++i) table += "geophone\t8\t" + std::to_string(3 * i) + "\n";
  const QString file = put("line.csv", table);
  edit([&](GeometryDriver& user) {
    dialogs.expectFiles("Open Geometry", {file});
    expectSeparator(0);
    user.click("loadGeophonesButton");
    EXPECT_THAT(user.notice().toStdString(), HasSubstr("by the names of its columns"));
    dialogs.expectFiles("Open Geometry", {file});
    expectSeparator(0);
    user.child<QTabWidget>("pages").setCurrentIndex(1);
    user.click("loadShotsButton");
    user.ok();
  });
  EXPECT_EQ(string().back().x, 33.0);
  EXPECT_EQ(string().back().z, 8.0);
  EXPECT_EQ(writable().ttArray[0].shotPos2d, (Point2D{1.0, 7.0}));
}

TEST_F(Exchange, exportsRecordingsButNotOverTheFilesOfTheSurvey) {
  QDir(QString::fromStdString(home.path())).mkdir("out");
  window->openFiles({shotFile("shot01.sg2"), shotFile("shot02.sg2", 13.0)});
  const auto expectFolder = [this](const std::string& folder) {
    dialogs.expect([folder](QWidget& widget) {
      auto& dialog = dynamic_cast<QFileDialog&>(widget);
      EXPECT_EQ(dialog.windowTitle(), "Folder for the recordings");
      type(dialog, folder);
    });
  };
  const std::string before = TestFolder::get(home.file("shot01.sg2"));
  expectChoice("Export recordings", "SEG-2, a file for each shot");
  expectFolder(home.path());
  dialogs.expectBox("Warning", "shot01.sg2 is one of the shot files of this survey.",
                    "Choose another folder.", QMessageBox::Ok);
  action("actionExport_recordings").trigger();
  EXPECT_EQ(TestFolder::get(home.file("shot01.sg2")), before);

  expectChoice("Export recordings", "SEG-2, a file for each shot");
  expectFolder(home.file("out"));
  action("actionExport_recordings").trigger();
  EXPECT_FALSE(TestFolder::get(home.file("out/shot02.sg2")).empty());

  expectChoice("Export recordings", "SEG-2, a file for each shot");
  expectFolder(home.file("out"));
  dialogs.expectBox("Warning", "2 files exist already.", "shot01.sg2", QMessageBox::No);
  action("actionExport_recordings").trigger();

  expectChoice("Export recordings", "SEG-Y, all shots in one file");
  expectFolder(home.file("out"));
  action("actionExport_recordings").trigger();
  EXPECT_EQ(TestFolder::get(home.file("out/shots.sgy")).size(), 3600 + 24 * (240 + 4 * 400));
}

TEST_F(Exchange, copiesShotFilesWithPicksButNotOverThoseOfTheSurvey) {
  QDir(QString::fromStdString(home.path())).mkdir("out");
  window->openFiles({shotFile("shot01.sg2")});
  writable().ttArray.edit()[0].ttMisurati.edit()[1] = 0.0125;
  const auto expectFolder = [this](const std::string& folder) {
    dialogs.expect([folder](QWidget& widget) {
      auto& dialog = dynamic_cast<QFileDialog&>(widget);
      EXPECT_EQ(dialog.windowTitle(), "Folder for the shot files with picks");
      type(dialog, folder);
    });
  };
  const std::string before = TestFolder::get(home.file("shot01.sg2"));
  expectFolder(home.path());
  dialogs.expectBox("Warning", "shot01.sg2 is one of the shot files of this survey.",
                    "Choose another folder.", QMessageBox::Ok);
  action("actionExport_pick_headers").trigger();
  EXPECT_EQ(TestFolder::get(home.file("shot01.sg2")), before);

  expectFolder(home.file("out"));
  dialogs.expectBox("Shot files with picks", "The recordings have been saved.",
                    "FIRST_BREAK in seconds", QMessageBox::Ok);
  action("actionExport_pick_headers").trigger();
  EXPECT_THAT(TestFolder::get(home.file("out/shot01.sg2")), HasSubstr("FIRST_BREAK 0.012500"));
  EXPECT_TRUE(dialogs.finished());
}

}  // namespace
}  // namespace talvesk
