#include "app/DialogSetGeometry.h"
#include "app/GeometryTables.h"
#include "app/SelectCSVDelimiterDialog.h"
#include "gui/WindowTest.h"
#include "widgets/LinePlan.h"
#include "widgets/SpreadsheetView.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <functional>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;
using testing::TestFolder;
using testing::WindowTest;

/// The geometry dialog as a user has it before him.
struct GeometryDriver {
  explicit GeometryDriver(QWidget& widget) : dialog(widget) {}

  template <typename Widget>
  Widget& child(const char* name) {
    auto* found = dialog.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
  }
  void click(const char* button) { child<QPushButton>(button).click(); }
  SpreadsheetView& geophones() { return child<SpreadsheetView>("geophonesTable"); }
  SpreadsheetView& shots() {
    child<QTabWidget>("pages").setCurrentIndex(1);
    return child<SpreadsheetView>("shotsTable");
  }
  void type(SpreadsheetView& table, int row, int column, const QString& text) {
    table.setCurrentIndex(table.model()->index(row, column));
    table.setFocus();
    QTest::keyClicks(&table, text.left(1));
    // Behind another dialog the window manager may have left the focus anywhere.
    auto* editor = table.viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, text.mid(1));
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  void paste(SpreadsheetView& table, int row, int column, const QString& text) {
    QApplication::clipboard()->setText(text);
    table.setCurrentIndex(table.model()->index(row, column));
    QTest::keyClick(&table, Qt::Key_V, Qt::ControlModifier);
  }
  static QString cell(SpreadsheetView& table, int row, int column) {
    return table.model()->index(row, column).data().toString();
  }
  QString notice() { return child<QLabel>("noticeLabel").text(); }
  QStringList mistakes() {
    QStringList texts;
    auto& list = child<QListWidget>("mistakesList");
    for (int i = 0; i < list.count(); ++i) texts << list.item(i)->text();
    return texts;
  }
  void ok() { child<QDialogButtonBox>("buttonBox").button(QDialogButtonBox::Ok)->click(); }
  void cancel() { child<QDialogButtonBox>("buttonBox").button(QDialogButtonBox::Cancel)->click(); }

  QWidget& dialog;
};

class Geometry : public WindowTest {
 protected:
  Geometry() { open(); }

  /// What to do with the geometry dialog once it is there; it must end with ok() or cancel().
  /// \param leaves it ends with cancel() after an edit
  void edit(std::function<void(GeometryDriver&)> work, bool leaves = false) {
    dialogs.expect([work = std::move(work)](QWidget& widget) {
      if (qobject_cast<DialogSetGeometry*>(&widget) == nullptr) {
        ADD_FAILURE() << widget.windowTitle().toStdString();
        widget.close();
        return;
      }
      GeometryDriver driver(widget);
      work(driver);
    });
    if (leaves) expectToLeave();
    action("actionGeometry").trigger();
  }
  void expectToLeave() {
    dialogs.expectBox("Set survey geometry - Dialog", "The geometry has been edited.", "",
                      QMessageBox::Yes);
  }
  void expectSeparator(int entry) {
    dialogs.expect([entry](QWidget& widget) {
      auto* dialog = qobject_cast<SelectCSVDelimiterDialog*>(&widget);
      ASSERT_NE(dialog, nullptr) << widget.windowTitle().toStdString();
      auto* box = dialog->findChild<QComboBox*>();
      EXPECT_EQ(dialog->windowTitle(), "Select CSV Separator");
      ASSERT_EQ(box->count(), 3);
      EXPECT_EQ(box->itemText(0) + box->itemText(1) + box->itemText(2), "(blank space);,");
      box->setCurrentIndex(entry);
      dialog->accept();
    });
  }
  void expectRefused(const QString& details) {
    dialogs.expect([details](QWidget& widget) {
      auto* box = qobject_cast<QMessageBox*>(&widget);
      ASSERT_NE(box, nullptr) << widget.windowTitle().toStdString();
      EXPECT_EQ(box->text(), "Error Message");
      EXPECT_EQ(box->informativeText().toStdString(), details.toStdString());
      box->button(QMessageBox::Ok)->click();
    });
  }
  const std::vector<Point2D>& string(std::size_t index = 0) const {
    return window->document().goephonesStringSet.at(index);
  }
};

TEST_F(Geometry, changesTheSurveyInOneStepAndAllFollows) {
  loadShots(2);
  window->document().modified = false;
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
  EXPECT_EQ(window->document().ttArray[0].shotPos2d.z, 10.0);
  EXPECT_NEAR(window->document().ttArray[1].shotPos2d.z, 10.0 + 11.0 * 14.0 / 27.5, 1e-12);
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_THAT(child<QComboBox>("shotCBox").itemText(1).toStdString(), HasSubstr("114"));
}

TEST_F(Geometry, leftWithCancelChangesNothing) {
  loadShots(1);
  window->document().modified = false;
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
  EXPECT_THAT(window->document().goephonesStringSet, SizeIs(1));
  EXPECT_FALSE(window->document().modified);
}

TEST_F(Geometry, asksBeforeResultsAreLost) {
  loadShots(1);
  TomoDocument& document = window->document();
  document.has_tomographic_info = true;
  edit([](GeometryDriver& user) { user.ok(); });
  EXPECT_TRUE(document.has_tomographic_info) << "nothing moved, nothing lost";

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
    dialogs.expectBox("Warning", "The survey changes. This will be lost:",
                      "the grid and the results of the inversion", answer);
  }
  action("actionGeometry").trigger();
  EXPECT_FALSE(document.has_tomographic_info);
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
  EXPECT_THAT(window->document().ttArray[0].ttMisurati, SizeIs(12)) << "as many as traces";
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
  ASSERT_THAT(window->document().goephonesStringSet, SizeIs(1));
  EXPECT_EQ(string().back().x, 40.0);
  EXPECT_EQ(window->document().ttArray[0].indexStesa, 0);
  EXPECT_EQ(window->document().ttArray[1].indexStesa, 0);
}

TEST_F(Geometry, savesAndLoadsFilesWithEverySeparator) {
  loadShots(2);
  for (int entry = 0; entry < 3; ++entry) {
    const std::string between = std::string(" ;,").substr(static_cast<std::size_t>(entry), 1);
    const std::string name = home.file("line" + std::to_string(entry));
    dialogs.expect([&](QWidget& widget) {
      GeometryDriver user(widget);
      user.click("saveGeophonesButton");
      user.child<QLineEdit>("firstEdit").setText("0");
      user.child<QLineEdit>("spacingEdit").setText("5");
      user.click("autofillButton");
      EXPECT_EQ(user.cell(user.geophones(), 11, GeophoneTable::kX), "55");
      user.click("loadGeophonesButton");
      EXPECT_EQ(user.cell(user.geophones(), 11, GeophoneTable::kX), "32");
      user.click("saveShotsButton");
      user.type(user.shots(), 1, ShotTable::kX, "99");
      user.click("loadShotsButton");
      EXPECT_EQ(user.cell(user.shots(), 1, ShotTable::kX), "13");
      user.ok();
    });
    dialogs.expectFiles("Save Geometry", {QString::fromStdString(name)});
    expectSeparator(entry);
    dialogs.expectFiles("Open Geometry", {QString::fromStdString(name + ".csv")});
    expectSeparator(entry);
    dialogs.expectFiles("Save Geometry", {QString::fromStdString(name + ".CSV")});
    expectSeparator(entry);
    dialogs.expectFiles("Open Geometry", {QString::fromStdString(name + ".CSV.csv")});
    expectSeparator(entry);
    action("actionGeometry").trigger();
    EXPECT_THAT(TestFolder::get(name + ".csv"), HasSubstr("10" + between + "0\n12" + between));
    EXPECT_EQ(
        TestFolder::get(name + ".CSV.csv"),
        "shot_id_1" + between + "9" + between + "0\nshot_id_2" + between + "13" + between + "0\n");
    EXPECT_EQ(string().back().x, 32.0);
  }
  EXPECT_THAT(console.out(), HasSubstr("LOADED\nTo be updated: 2\nSetting 1\nSetting 2\n"));
}

TEST_F(Geometry, rejectsFilesThatDoNotFit) {
  loadShots(2);
  std::string geophones;
  for (int i = 0; i < 12; ++i) geophones += std::to_string(i) + ";1\n";
  const struct {
    bool shots;
    std::string text;
    int separator;
    const char* details;
  } kCases[] = {
      {false, geophones.substr(0, geophones.size() - 5), 1, "Invalid geometry file. 11"},
      {false, geophones + "12;1\n", 1, "Invalid geometry file. 13"},
      {false, geophones, 2, "Invalid geometry file. 12"},
      {false, std::string(300, '1'), 1, "Invalid geometry file. 0"},
      {true, "shot_id_1;1;2\n", 1, "Invalid shot file. 1"},
      {true, "shot_id_1;1;2\nshot_id_2;1\n", 1, "Invalid shot file. 2"},
      {true, "shot_id_1;1;2\nshot_id_2;1;2\n", 0, "Invalid shot file. 0"},
  };
  for (const auto& [shots, text, separator, details] : kCases) {
    SCOPED_TRACE(details);
    const std::string path = home.put("line.csv", text);
    const bool ofShots = shots;
    dialogs.expect([ofShots](QWidget& widget) {
      GeometryDriver user(widget);
      user.click(ofShots ? "loadShotsButton" : "loadGeophonesButton");
      EXPECT_EQ(user.cell(user.geophones(), 0, GeophoneTable::kX), "10");
      EXPECT_EQ(user.cell(user.shots(), 0, ShotTable::kX), "9");
      EXPECT_FALSE(user.notice().isEmpty()) << "the count alone tells nobody what to do";
      user.cancel();
    });
    dialogs.expectFiles("Open Geometry", {QString::fromStdString(path)});
    expectSeparator(separator);
    expectRefused(details);
    action("actionGeometry").trigger();
  }
}

TEST_F(Geometry, tellsWhatOfAFileItSkippedAndTookForZero) {
  loadShots(1);
  std::string text = "\xEF\xBB\xBFx (m);z (m)\n";
  for (int i = 0; i < 12; ++i) text += std::to_string(i) + (i == 4 ? ";low\n" : ";1\n");
  const std::string path = home.put("line.csv", text);
  QString notice;
  dialogs.expect([&notice](QWidget& widget) {
    GeometryDriver user(widget);
    user.click("loadGeophonesButton");
    notice = user.notice();
    user.ok();
  });
  dialogs.expectFiles("Open Geometry", {QString::fromStdString(path)});
  expectSeparator(1);
  dialogs.expect([](QWidget& widget) {
    auto* box = qobject_cast<QMessageBox*>(&widget);
    ASSERT_NE(box, nullptr) << widget.windowTitle().toStdString();
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    EXPECT_THAT(box->text().toStdString(), HasSubstr("of line.csv"));
    EXPECT_EQ(box->informativeText(), "line 6: \"low\"");
    box->button(QMessageBox::Ok)->click();
  });
  action("actionGeometry").trigger();
  EXPECT_EQ(notice,
            "Geophones loaded from line.csv. The first line, \"x (m);z (m)\", was taken for a "
            "heading and skipped.");
  EXPECT_EQ(string()[3], (Point2D{3, 1}));
  EXPECT_EQ(string()[4], (Point2D{4, 0}));
}

TEST_F(Geometry, leavesFilesAloneWhenTheSeparatorIsNotChosen) {
  loadShots(1);
  dialogs.expect([](QWidget& widget) {
    GeometryDriver user(widget);
    user.click("saveGeophonesButton");
    user.click("loadGeophonesButton");
    user.cancel();
  });
  const std::string path = home.put("line.csv", "keep\n");
  dialogs.expectFiles("Save Geometry", {QString::fromStdString(home.file("new"))});
  dialogs.expectAndCancel();
  dialogs.expectFiles("Open Geometry", {QString::fromStdString(path)});
  dialogs.expectAndCancel();
  action("actionGeometry").trigger();
  EXPECT_FALSE(QFile::exists(QString::fromStdString(home.file("new.csv"))));
  EXPECT_EQ(TestFolder::get(path), "keep\n");
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

  TomoDocument& document = window->document();
  ASSERT_THAT(document.traceSets, SizeIs(1));
  EXPECT_EQ(document.waveType, WaveType::S);
  EXPECT_EQ(TestFolder::get(history), home.path()) << "recordings are opened as shot files are";
  EXPECT_THAT(document.filenames_DX, ElementsAre(dx.toStdString()));
  EXPECT_THAT(document.filenames_SX, ElementsAre(sx.toStdString()));
  EXPECT_EQ(window->currentFile(), 0);
  EXPECT_THAT(child<QComboBox>("shotCBox").itemText(0).toStdString(), HasSubstr("dx 2.dat"));
  // Two recordings that are alike leave nothing to pick, however loud each is.
  Trace& trace = document.traceSets[0][3];
  EXPECT_EQ(trace.waveKind, Trace::kSWavePair);
  EXPECT_THAT(trace.samples, ::testing::Each(0.0));
  EXPECT_NE(*std::max_element(trace.samplesDX.begin(), trace.samplesDX.end()), 0.0);
  // A blow the other way round doubles the signal.
  for (Trace& each : document.traceSets[0]) {
    for (double& sample : each.samplesSX) sample = -sample;
  }
  action("actionAutoPick").trigger();
  EXPECT_EQ(trace.samples[100], 2.0 * trace.samplesDX[100]);
  EXPECT_NEAR(document.ttArray[0].ttMisurati[3], 0.016, 0.002);
}

TEST_F(Geometry, replacesTheRecordingOfAShotByAPair) {
  loadShots(1);
  window->document().ttArray[0].ttMisurati[2] = 0.02;
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
  dialogs.expectBox("Warning", "The survey changes. This will be lost:", "the picks of shot 1",
                    QMessageBox::Yes);
  action("actionGeometry").trigger();
  const TomoDocument& document = window->document();
  EXPECT_EQ(document.traceSets[0][0].waveKind, Trace::kSWavePair);
  EXPECT_EQ(document.ttArray[0].shotPos2d.x, 9.0);
  EXPECT_EQ(document.ttArray[0].ttMisurati[2], kUnpicked);
  EXPECT_FALSE(action("actionUndo").isEnabled());
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
  EXPECT_EQ(window->document().ttArray[1].shotPos2d.x, 200.0);
}

TEST_F(Geometry, editsPicksWithoutTraces) {
  loadShots(1);
  window->document().traceSets.clear();
  window->document().filenames.clear();
  edit([](GeometryDriver& user) {
    EXPECT_FALSE(user.child<QPushButton>("addPairsButton").isEnabled());
    user.type(user.shots(), 0, ShotTable::kZ, "3");
    user.ok();
  });
  EXPECT_EQ(window->document().ttArray[0].shotPos2d.z, 3.0);
}

}  // namespace
}  // namespace talvesk
