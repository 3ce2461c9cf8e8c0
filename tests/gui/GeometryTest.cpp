#include "gui/GeometryDriver.h"
#include "io/Survey.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "widgets/LinePlan.h"

#include <QMenu>
#include <QSpinBox>
#include <QToolButton>
#include <algorithm>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using testing::Geometry;
using testing::GeometryDriver;
using ::testing::HasSubstr;
using ::testing::SizeIs;
using testing::TestFolder;

TEST_F(Geometry, changesTheSurveyInOneStepAndAllFollows) {
  loadShots(2);
  window->session().markSaved();
  edit([](GeometryDriver& user) {
    user.child<QLineEdit>("firstEdit").setText("100");
    user.child<QLineEdit>("spacingEdit").setText("2,5");
    EXPECT_EQ(user.child<QSpinBox>("countSpin").value(), 12) << "as many as channels";
    user.click("autofillButton");
    user.type(user.geophones(), 0, GeophoneTable::kZ, "10");
    EXPECT_EQ(user.geophones().currentIndex().row(), 1) << "Enter goes down";
    user.type(user.geophones(), 11, GeophoneTable::kZ, "21");
    user.click("interpolateButton");
    user.type(user.shots(), 0, ShotTable::kX, "98.5");
    user.type(user.shots(), 1, ShotTable::kX, "114");
    user.click("shotsInterpolateButton");
    EXPECT_THAT(user.mistakes(), SizeIs(0)) << user.mistakes().join('\n').toStdString();
    EXPECT_EQ(user.child<QLabel>("shotLabel").text(),
              "Shot ID <b>2</b><br>Geophone geometry ID: <b>1</b> Shot position: <b>114 m</b><br>"
              "File name <b>shot2.dat</b>");
    user.ok();
  });
  EXPECT_EQ(string().front(), (Point2D{100.0, 10.0}));
  EXPECT_EQ(string().back(), (Point2D{127.5, 21.0}));
  EXPECT_NEAR(string()[1].z, 11.0, 1e-12);
  EXPECT_EQ(writable().ttArray[0].shotPos2d.z, 10.0);
  EXPECT_NEAR(writable().ttArray[1].shotPos2d.z, 10.0 + 11.0 * 14.0 / 27.5, 1e-12);
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_THAT(child<QComboBox>("shotCBox").itemText(1).toStdString(), HasSubstr("114"));
}

TEST_F(Geometry, leftWithCancelChangesNothing) {
  loadShots(1);
  window->session().markSaved();
  const auto before = string();
  edit([](GeometryDriver& user) { user.cancel(); });
  edit(
      [this](GeometryDriver& user) {
        user.type(user.geophones(), 3, GeophoneTable::kX, "99");
        user.click("addStringButton");
        EXPECT_EQ(string()[3].x, 16.0) << "not before OK";
        user.cancel();
      },
      true);
  EXPECT_EQ(string(), before);
  EXPECT_THAT(writable().line->goephonesStringSet, SizeIs(1));
  EXPECT_FALSE(window->session().modified());
}

TEST_F(Geometry, asksBeforeResultsAreLost) {
  loadShots(1);
  TomoDocument& document = writable();
  document.result.edit().has_tomographic_info = true;
  edit([](GeometryDriver& user) { user.ok(); });
  EXPECT_TRUE(document.result->has_tomographic_info) << "nothing moved, nothing lost";

  const auto moveFirst = [](GeometryDriver& user) {
    user.type(user.geophones(), 0, GeophoneTable::kX, "9.5");
    user.ok();
  };
  dialogs.expect([&](QWidget& widget) {
    GeometryDriver user(widget);
    moveFirst(user);
    EXPECT_TRUE(widget.isVisible()) << "after No";
    user.ok();
  });
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    dialogs.expectBox("Warning", "The survey changes. This will be removed (Undo brings it back):",
                      "the grid and the results of the inversion", answer);
  }
  action("actionGeometry").trigger();
  EXPECT_FALSE(document.result->has_tomographic_info);
  EXPECT_EQ(string()[0].x, 9.5);
}

TEST_F(Geometry, takesWhatASpreadsheetCopies) {
  loadShots(2);
  edit([](GeometryDriver& user) {
    user.paste(user.geophones(), 10, GeophoneTable::kX, "x\tz\n40\t1,5\n42\t\n44\t2.5\n");
    EXPECT_EQ(user.geophones().model()->rowCount(), 13) << "one geophone more";
    EXPECT_THAT(user.notice().toStdString(), HasSubstr("\"x z\", was taken for a heading"));
    EXPECT_EQ(user.cell(user.geophones(), 10, GeophoneTable::kZ), "1.5");
    EXPECT_EQ(user.cell(user.geophones(), 11, GeophoneTable::kZ), "");
    EXPECT_THAT(user.mistakes(), SizeIs(2));
    EXPECT_EQ(user.mistakes()[0], "String 1: geophone 12 has no position.");
    EXPECT_THAT(user.mistakes()[1].toStdString(), HasSubstr("13 geophones"));

    for (const char* refused : {"1\t2\t3\n", "1\tten\n", "1e9\t0\n"}) {
      user.paste(user.geophones(), 0, GeophoneTable::kX, refused);
      EXPECT_THAT(user.notice().toStdString(), HasSubstr("Nothing was pasted"));
      EXPECT_EQ(user.cell(user.geophones(), 0, GeophoneTable::kX), "10");
    }
    user.paste(user.shots(), 1, ShotTable::kX, "1\n2\n");
    EXPECT_THAT(user.notice().toStdString(), HasSubstr("2 rows do not fit"));
    user.paste(user.shots(), 0, ShotTable::kString, "2;9;0\n");
    EXPECT_THAT(user.notice().toStdString(), HasSubstr("no string 2"));

    // Empty, fill down, remove, and back.
    SpreadsheetView& table = user.geophones();
    table.setCurrentIndex(table.model()->index(12, 0));
    emit table.removeRequested({11, 12});
    EXPECT_EQ(table.model()->rowCount(), 11);
    user.click("addStringButton");
    EXPECT_EQ(user.child<QComboBox>("stringCBox").currentIndex(), 1);
    user.child<QToolButton>("undoButton").click();
    user.child<QToolButton>("undoButton").click();
    EXPECT_EQ(table.model()->rowCount(), 13);
    user.type(table, 11, GeophoneTable::kZ, "abc");
    EXPECT_THAT(user.notice().toStdString(), HasSubstr("not a number"));
    user.type(table, 11, GeophoneTable::kZ, "2");
    user.ok();
  });
  ASSERT_THAT(string(), SizeIs(13));
  EXPECT_EQ(string()[10], (Point2D{40.0, 1.5}));
  EXPECT_EQ(string()[11], (Point2D{42.0, 2.0}));
  EXPECT_THAT(writable().ttArray[0].ttMisurati, SizeIs(12)) << "as many as traces";
}

TEST_F(Geometry, isNotTakenWithPositionsMissing) {
  loadShots(1);
  dialogs.expect([](QWidget& widget) {
    GeometryDriver user(widget);
    SpreadsheetView& table = user.geophones();
    table.selectionModel()->select(
        QItemSelection(table.model()->index(2, 0), table.model()->index(4, 1)),
        QItemSelectionModel::ClearAndSelect);
    QTest::keyClick(&table, Qt::Key_Delete);
    user.ok();
    EXPECT_TRUE(widget.isVisible());
    EXPECT_EQ(table.currentIndex().row(), 2) << "the first that is missing";
    user.cancel();
  });
  dialogs.expectBox("Warning", "The geometry is not complete.", "geophones 3-5 have no position",
                    QMessageBox::Ok);
  expectToLeave();
  action("actionGeometry").trigger();
  EXPECT_EQ(string()[2].x, 14.0);
}

TEST_F(Geometry, keepsStringsAndTheShotsThatUseThem) {
  loadShots(2);
  dialogs.expect([](QWidget& widget) {
    GeometryDriver user(widget);
    user.click("addStringButton");
    auto* menu = user.child<QPushButton>("copyStringButton").menu();
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 1);
    menu->actions().front()->trigger();
    EXPECT_EQ(user.geophones().model()->rowCount(), 12);
    user.type(user.geophones(), 11, GeophoneTable::kX, "40");
    user.paste(user.shots(), 1, ShotTable::kString, "2");
    user.child<QTabWidget>("pages").setCurrentIndex(0);
    auto& chooser = user.child<QComboBox>("stringCBox");
    chooser.setCurrentIndex(0);
    emit chooser.activated(0);
    user.click("removeStringButton");
    user.ok();
  });
  dialogs.expectBox("Set survey geometry - Dialog", "String 1 is used by shot 1. Remove it?",
                    "They will use string 1", QMessageBox::Yes);
  action("actionGeometry").trigger();
  ASSERT_THAT(writable().line->goephonesStringSet, SizeIs(1));
  EXPECT_EQ(string().back().x, 40.0);
  EXPECT_EQ(writable().ttArray[0].indexStesa, 0);
  EXPECT_EQ(writable().ttArray[1].indexStesa, 0);
}

TEST_F(Geometry, makesShotsOfSWavePairsWhichArePickedOnTheirDifference) {
  const QString dx = shotFile("dx 2.dat", 9.0);
  const QString sx = shotFile("sx 2.dat", 9.0, 0.0, 12);
  const QString wrong = shotFile("wrong.dat", 9.0, 0.0, 11);
  const std::string history = home.put("Talvesk_TMP/Talvesk_history.txt", home.file("Talvesk_TMP"));
  dialogs.expect([](QWidget& widget) {
    GeometryDriver user(widget);
    EXPECT_TRUE(user.child<QLabel>("emptyLabel").isVisible());
    user.click("addPairsButton");
    EXPECT_EQ(user.shots().model()->rowCount(), 0) << "11 channels do not go with 12";
    user.click("addPairsButton");
    ASSERT_EQ(user.shots().model()->rowCount(), 1);
    EXPECT_FALSE(user.child<QLabel>("emptyLabel").isVisible());
    EXPECT_EQ(user.cell(user.shots(), 0, ShotTable::kFileDX), "dx 2.dat");
    EXPECT_EQ(user.cell(user.shots(), 0, ShotTable::kFileSX), "sx 2.dat");
    EXPECT_TRUE(user.shots().isColumnHidden(ShotTable::kFile));
    EXPECT_EQ(user.geophones().model()->rowCount(), 12);
    user.ok();
  });
  dialogs.expectFiles("Open DX Files", {dx});
  dialogs.expectFiles("Open SX Files", {wrong});
  dialogs.expectBox("Error occured", "No shot was added: the files are not taken as S-wave pairs.",
                    "12 traces, the SX file 11", QMessageBox::Ok);
  dialogs.expectFiles("Open DX Files", {dx});
  dialogs.expectFiles("Open SX Files", {sx});
  action("actionGeometry").trigger();

  const TomoDocument& document = window->document();
  ASSERT_THAT(document.recordings->traceSets, SizeIs(1));
  EXPECT_EQ(document.recordings->waveType, WaveType::S);
  EXPECT_EQ(TestFolder::get(history), home.path()) << "recordings are opened as shot files are";
  EXPECT_THAT(document.recordings->filenames_DX, ElementsAre(dx.toStdString()));
  EXPECT_THAT(document.recordings->filenames_SX, ElementsAre(sx.toStdString()));
  EXPECT_EQ(window->currentFile(), 0);
  EXPECT_THAT(child<QComboBox>("shotCBox").itemText(0).toStdString(), HasSubstr("dx 2.dat"));
  // Two recordings that are alike leave nothing to pick, however loud each is.
  Trace trace = document.recordings->traceSets[0][3];
  EXPECT_EQ(trace.waveKind, Trace::kSWavePair);
  EXPECT_THAT(trace.samples, ::testing::Each(0.0));
  EXPECT_NE(*std::max_element(trace.samplesDX.begin(), trace.samplesDX.end()), 0.0);
  // A blow the other way round doubles the signal.
  for (Trace& each : writable().recordings.edit().traceSets[0]) {
    for (double& sample : each.samplesSX.edit()) sample = -sample;
  }
  action("actionAutoPick").trigger();
  trace = document.recordings->traceSets[0][3];
  EXPECT_EQ(trace.samples[100], 2.0 * trace.samplesDX[100]);
  EXPECT_NEAR(document.ttArray[0].ttMisurati[3], 0.016, 0.002);
}

TEST_F(Geometry, replacesTheRecordingOfAShotByAPair) {
  loadShots(1);
  writable().ttArray.edit()[0].ttMisurati.edit()[2] = 0.02;
  const auto marks = [this] { return window->session().survey().interpretation->ttLayer[0].layer; };
  window->session().amend(
      [](Survey& survey) { survey.interpretation.edit().ttLayer[0].layer[2] = 1; });
  const QString dx = shotFile("dx.dat", 50.0);
  const QString sx = shotFile("sx.dat", 50.0);
  dialogs.expect([](QWidget& widget) {
    GeometryDriver user(widget);
    user.shots().setCurrentIndex(user.shots().model()->index(0, ShotTable::kX));
    user.click("pairOfShotButton");
    user.ok();
  });
  dialogs.expectFiles("Open DX File of Shot 1", {dx});
  dialogs.expectFiles("Open SX File of Shot 1", {sx});
  dialogs.expectBox("Warning", "The survey changes. This will be removed (Undo brings it back):",
                    "the picks of shot 1", QMessageBox::Yes);
  action("actionGeometry").trigger();
  const TomoDocument& document = writable();
  EXPECT_EQ(document.recordings->traceSets[0][0].waveKind, Trace::kSWavePair);
  EXPECT_EQ(document.ttArray[0].shotPos2d.x, 9.0);
  EXPECT_EQ(document.ttArray[0].ttMisurati[2], kUnpicked);
  EXPECT_EQ(marks()[2], 0U) << "marks are those of the recording that is gone";
  action("actionUndo").trigger();
  EXPECT_EQ(marks()[2], 1U);
  EXPECT_EQ(document.recordings->traceSets[0][0].waveKind, Trace::kFromFile);
  EXPECT_EQ(document.ttArray[0].ttMisurati[2], 0.02);
}

TEST_F(Geometry, showsMistakesInThePlanWhereAClickLeadsToThem) {
  loadShots(2);
  edit([](GeometryDriver& user) {
    user.type(user.geophones(), 4, GeophoneTable::kX, "16");
    user.type(user.shots(), 1, ShotTable::kX, "200");
    const QStringList told = user.mistakes();
    EXPECT_THAT(told, SizeIs(2)) << told.join('\n').toStdString();
    auto& plan = user.child<LinePlan>("plan");
    EXPECT_THAT(plan.scene().mistakes,
                ::testing::UnorderedElementsAre(Point2D{16, 0}, Point2D{16, 0}, Point2D{200, 0}));
    EXPECT_EQ(plan.scene().current, (Point2D{200, 0}));
    const QPoint at = plan.pointOf({32, 0}).toPoint();
    QTest::mouseClick(plan.canvas(), Qt::LeftButton, Qt::NoModifier, at);
    EXPECT_EQ(user.child<QTabWidget>("pages").currentIndex(), 0);
    EXPECT_EQ(user.geophones().currentIndex().row(), 11);
    user.ok();
  });
  EXPECT_EQ(writable().ttArray[1].shotPos2d.x, 200.0);
}

TEST_F(Geometry, editsPicksWithoutTraces) {
  loadShots(1);
  writable().recordings.edit().traceSets.clear();
  writable().recordings.edit().filenames.clear();
  edit([](GeometryDriver& user) {
    EXPECT_FALSE(user.child<QPushButton>("addPairsButton").isEnabled());
    user.type(user.shots(), 0, ShotTable::kZ, "3");
    user.ok();
  });
  EXPECT_EQ(writable().ttArray[0].shotPos2d.z, 3.0);
}

}  // namespace
}  // namespace talvesk
