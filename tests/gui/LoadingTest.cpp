#include "gui/WindowTest.h"
#include "io/FileFormats.h"
#include "io/TravelTimeFile.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/TestSurveys.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableWidget>
#include <QTest>
#include <QUrl>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;
using testing::WindowTest;

class Loading : public WindowTest {
 protected:
  Loading() { open(); }

  void drop(const QStringList& files) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& file : files) urls << QUrl::fromLocalFile(file);
    data.setUrls(urls);
    const QPoint middle = window->rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent event(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &event);
    QTest::qWait(50);
  }

  QString picksFile(const std::string& name, int shots, int traces) const {
    TomoDocument picks;
    picks.line.edit().goephonesStringSet.emplace_back();
    for (int i = 0; i < traces; ++i)
      picks.line.edit().goephonesStringSet[0].push_back({10.0 + 2.0 * i, 0.0});
    for (int shot = 0; shot < shots; ++shot) {
      TravelTime record;
      record.traceSetID = shot;
      record.shotPos2d = {9.0 + 4.0 * shot, 0.0};
      record.ttMisurati.edit().assign(static_cast<std::size_t>(traces), 0.02 + 0.001 * shot);
      picks.ttArray.edit().push_back(record);
    }
    EXPECT_TRUE(writeTravelTimes(home.file(name), picks).ok());
    return QString::fromStdString(home.file(name));
  }
};

TEST_F(Loading, byDialogAddsToTheSurveyAndRemembersTheFolder) {
  const QStringList files = {shotFile("a.dat"), shotFile("b.dat", 13.0)};
  dialogs.expectFiles("Open Seismic Trace", files);
  action("actionOpen_shot_files").trigger();
  EXPECT_THAT(writable().recordings->traceSets, SizeIs(2));
  EXPECT_EQ(window->currentFile(), 0);
  EXPECT_EQ(testing::TestFolder::get(home.file("Talvesk_TMP/Talvesk_history.txt")), home.path());
  EXPECT_THAT(log(), HasSubstr("Talvesk_MainWindows::loadTraces_PWave\n"));

  dialogs.expectFiles("Open Seismic Trace", {shotFile("c.dat", 17.0)});
  action("actionOpen_shot_files").trigger();
  EXPECT_THAT(writable().recordings->traceSets, SizeIs(3));
  EXPECT_EQ(window->currentFile(), 2) << "the first of the new shots is in view";
  EXPECT_EQ(child<QComboBox>("shotCBox").currentText().toStdString(), "3: c.dat at 17.0 m");
}

TEST_F(Loading, startsWhereFilesWereOpenedAndSavingWhereTheyWereSaved) {
  ASSERT_TRUE(QDir(QString::fromStdString(home.path())).mkdir("out"));
  const auto expectFolder = [&](const std::string& folder) {
    dialogs.expect([folder](QWidget& dialog) {
      EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory().path().toStdString(), folder);
      dialog.close();
    });
  };
  dialogs.expectFiles("Open Seismic Trace", {shotFile("a.dat")});
  action("actionOpen_shot_files").trigger();
  expectFolder(home.path());
  action("actionExport_TravelTimes").trigger();

  dialogs.expectFiles("Save Project", {QString::fromStdString(home.file("out/line"))});
  action("actionSave_Project_As").trigger();
  dialogs.expectFiles("Save TravelTimeExchange", {QString::fromStdString(home.file("out/picks"))});
  action("actionExport_TravelTimes").trigger();
  EXPECT_EQ(testing::TestFolder::get(home.file("Talvesk_TMP/Talvesk_history.txt")), home.path());
  expectFolder(home.path());
  action("actionOpen_shot_files").trigger();
  expectFolder(home.file("out"));
  action("actionExport_TravelTimes").trigger();

  dialogs.expectFiles("Open Seismic Trace", {shotFile("b.dat", 13.0)});
  action("actionOpen_shot_files").trigger();
  expectFolder(home.path());
  action("actionExport_TravelTimes").trigger();
}

TEST_F(Loading, startsWhereTheLastFileWasHoweverItCame) {
  for (const char* folder : {"dropped", "geometry"}) {
    ASSERT_TRUE(QDir(QString::fromStdString(home.path())).mkdir(folder));
  }
  const auto expectFolder = [&](const char* command, const std::string& folder) {
    dialogs.expect([folder](QWidget& dialog) {
      EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory().path().toStdString(), folder);
      dialog.close();
    });
    action(command).trigger();
  };
  window->openFiles({shotFile("dropped/a.dat")});
  expectFolder("actionOpen_shot_files", home.file("dropped"));
  expectFolder("actionLoad_TT", home.file("dropped"));

  // Dialogs within dialogs, too.
  dialogs.expect([this](QWidget& palettes) {
    dialogs.expectFiles("Save Palette", {QString::fromStdString(home.file("geometry/mine.xml"))});
    palettes.findChild<QAbstractButton*>("saveButton")->click();
    palettes.close();
  });
  action("actionPalette").trigger();
  expectFolder("actionSave_Project_As", home.file("geometry"));
  expectFolder("actionOpen_shot_files", home.file("dropped"));
}

TEST_F(Loading, showsTheShotFilesOfAllFormatsFirst) {
  dialogs.expect([](QWidget& widget) {
    const auto& dialog = dynamic_cast<QFileDialog&>(widget);
    const QStringList filters = dialog.nameFilters();
    EXPECT_EQ(filters.mid(1).join(";;").toStdString(),
              "SEG2 format (*.sg2 *.dat *.seg2);;SEGY format (*.sgy *.segy);;SU format (*.su);;"
              "All Files (*)");
    EXPECT_EQ(dialog.selectedNameFilter(), filters.front());
    for (const char* suffix : {"seg2", "dat", "sg2", "sgy", "segy", "su"}) {
      EXPECT_NE(shotFormatOf(std::string("shot.") + suffix), nullptr);
      EXPECT_THAT(filters.front().toStdString(), HasSubstr(std::string("*.") + suffix));
    }
    widget.close();
  });
  action("actionOpen_shot_files").trigger();
}

TEST_F(Loading, thatFailsTellsWhyOfEveryFile) {
  QStringList broken;
  for (int i = 0; i < 12; ++i) {
    broken << QString::fromStdString(home.put("broken" + std::to_string(i) + ".dat", "no SEG-2"));
  }
  dialogs.expect([&](QWidget& widget) {
    auto& box = dynamic_cast<QMessageBox&>(widget);
    EXPECT_EQ(box.windowTitle().toStdString(), "Error occured");
    EXPECT_THAT(box.informativeText().toStdString(), HasSubstr("and 4 more"));
    const QStringList reasons = box.detailedText().split('\n');
    EXPECT_EQ(reasons.size(), broken.size());
    for (int i = 0; i < std::min(reasons.size(), broken.size()); ++i) {
      EXPECT_TRUE(reasons[i].startsWith(broken[i] + ": ")) << reasons[i].toStdString();
      EXPECT_GT(reasons[i].size(), broken[i].size() + 10) << "a reason";
    }
    box.button(QMessageBox::Ok)->click();
  });
  window->openFiles(broken);
}

TEST_F(Loading, intoPicksWithoutTracesNamesTheFilesThatItRefuses) {
  drop({picksFile("picks.otte", 2, 12)});
  const QString shot = shotFile("a.dat");
  dialogs.expectBox("Error occured", "Error while loading one or more traces.",
                    shot + ": the survey holds picks without traces", QMessageBox::Ok);
  window->openFiles({shot});
}

TEST_F(Loading, givenUpChangesNothing) {
  dialogs.expectAndCancel();
  action("actionOpen_shot_files").trigger();
  EXPECT_THAT(writable().recordings->traceSets, SizeIs(0));
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(Loading, byDropTakesShotsAndTheirPicksTogether) {
  EXPECT_EQ(child<QStackedWidget>("tracesStack").currentIndex(), 0) << "says what to do next";
  drop({picksFile("picks.otte", 2, 12), shotFile("a.dat"), shotFile("b.dat", 13.0)});
  EXPECT_THAT(writable().recordings->traceSets, SizeIs(2));
  EXPECT_DOUBLE_EQ(writable().ttArray.at(1).ttMisurati.at(3), 0.021);
  EXPECT_EQ(child<QStackedWidget>("tracesStack").currentIndex(), 1);
  EXPECT_EQ(child<QStatusBar>("statusBar").currentMessage(), "Travel times of 2 shots imported.");
}

TEST_F(Loading, namesTheFilesThatFailAndTakesTheOthers) {
  const QString noShot = QString::fromStdString(home.put("notes.doc", "no shot"));
  const QString broken = QString::fromStdString(home.put("broken.dat", "no SEG-2 either"));
  dialogs.expectBox("Error occured", "Unsupported file format.", "notes.doc", QMessageBox::Ok);
  dialogs.expectBox("Error occured", "Error while loading one or more traces.", "broken.dat",
                    QMessageBox::Ok);
  window->openFiles({noShot, shotFile("good.dat"), broken});
  EXPECT_THAT(writable().recordings->traceSets, SizeIs(1));
  EXPECT_THAT(log(), HasSubstr("ERROR : " + broken.toStdString()));
}

TEST_F(Loading, refusesPicksOfAnotherSurveyAndKeepsItsOwn) {
  loadShots(2);
  writable().ttArray.edit()[0].ttMisurati.edit()[0] = 0.011;
  window->session().markSaved();
  dialogs.expectBox("Error occured", "Error while loading other.otte.", "3 shots", QMessageBox::Ok);
  window->openFiles({picksFile("other.otte", 3, 12)});
  EXPECT_DOUBLE_EQ(writable().ttArray[0].ttMisurati[0], 0.011);
}

TEST_F(Loading, ofPicksAsksBeforeItReplacesUnsavedOnes) {
  loadShots(1);
  writable().ttArray.edit()[0].ttMisurati.edit()[0] = 0.011;
  dialogs.expectBox("Talvesk", "The document has been modified",
                    "Do you want to save your changes?", QMessageBox::Cancel);
  window->openFiles({picksFile("picks.otte", 1, 12)});
  EXPECT_DOUBLE_EQ(writable().ttArray[0].ttMisurati[0], 0.011);
}

TEST_F(Loading, asksBeforeGridAndResultsGo) {
  loadShots(2);
  TomoDocument& document = writable();
  const std::size_t known = document.recordings->traceSets.size();
  testing::putGrid(document, 5.0, 1.0);
  document.result.edit().has_tomographic_info = true;
  window->session().markSaved();
  const QString longer = shotFile("longer.dat", 60.0);
  const char* const question = "The survey changes. This will be removed (Undo brings it back):";
  dialogs.expectBox("Warning", question, "the grid and the results of the inversion",
                    QMessageBox::No);
  window->openFiles({longer});
  EXPECT_THAT(document.recordings->traceSets, SizeIs(known));
  EXPECT_TRUE(document.model->grid != nullptr && document.result->has_tomographic_info &&
              !window->session().modified());

  // At a place that is known: the line stays as it is.
  dialogs.expectBox("Warning", question, "the results of the inversion; the grid stays",
                    QMessageBox::Yes);
  window->openFiles({shotFile("again.dat", document.ttArray[0].shotPos2d.x)});
  EXPECT_THAT(document.recordings->traceSets, SizeIs(known + 1));
  EXPECT_TRUE(document.model->grid != nullptr && !document.result->has_tomographic_info);
  window->openFiles({shotFile("more.dat", document.ttArray[0].shotPos2d.x)});  // nothing to lose
  EXPECT_NE(document.model->grid, nullptr);

  dialogs.expectBox("Warning", question, "the grid", QMessageBox::Yes);
  window->openFiles({longer});
  EXPECT_THAT(document.recordings->traceSets, SizeIs(known + 3));
  EXPECT_EQ(document.model->grid, nullptr);
}

TEST_F(Loading, ofPicksAsksBeforeGridAndResultsGo) {
  loadShots(2);
  TomoDocument& document = writable();
  testing::putGrid(document, 5.0, 1.0);
  document.result.edit().has_tomographic_info = true;
  document.ttArray.edit()[0].ttMisurati.edit()[3] = 0.011;
  document.ttArray.edit()[0].ttCalcolati.edit()[3] = 0.012;
  window->session().markSaved();
  dialogs.expectFiles("Save TravelTimeExchange", {QString::fromStdString(home.file("same"))});
  action("actionExport_TravelTimes").trigger();
  window->session().markSaved();
  window->openFiles({QString::fromStdString(home.file("same.otte"))});
  EXPECT_TRUE(document.model->grid != nullptr && document.result->has_tomographic_info)
      << "nothing has moved";
  EXPECT_EQ(document.ttArray[0].ttCalcolati[3], 0.012);

  TomoDocument moved;
  moved.line.edit().goephonesStringSet = document.line->goephonesStringSet;
  moved.ttArray.edit() = document.ttArray;
  moved.ttArray.edit()[1].shotPos2d.x += 50.0;
  ASSERT_TRUE(writeTravelTimes(home.file("moved.otte"), moved).ok());
  const QString file = QString::fromStdString(home.file("moved.otte"));
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    window->session().markSaved();
    dialogs.expectBox("Warning", "The survey changes. This will be removed (Undo brings it back):",
                      "the grid and the results of the inversion", answer);
    window->openFiles({file});
    EXPECT_EQ(document.model->grid == nullptr, answer == QMessageBox::Yes);
    EXPECT_EQ(window->session().modified(), answer == QMessageBox::Yes);
  }
  EXPECT_DOUBLE_EQ(document.ttArray[1].shotPos2d.x, moved.ttArray[1].shotPos2d.x);
}

TEST_F(Loading, asksWhetherTimesCountFromTheShot) {
  const QString text = "The records start before the shot, by up to 20 ms.";
  dialogs.expectBox("Recording delay", text, "count times from the shot", QMessageBox::No);
  window->openFiles({shotFile("a.dat", 9.0, -0.02)});
  EXPECT_EQ(writable().recordings->traceSets[0][0].samples.size(), 400U);

  dialogs.expectBox("Recording delay", text, "count times from the shot", QMessageBox::Yes);
  window->openFiles({shotFile("b.dat", 13.0, -0.02)});
  EXPECT_EQ(writable().recordings->traceSets[1][0].samples.size(), 320U);
  EXPECT_EQ(writable().recordings->traceSets[0][0].samples.size(), 400U)
      << "what was answered for the first file stands";
}

TEST_F(Loading, countsTimesFromTheShotLaterToo) {
  const QString text = "The records start before the shot, by up to 20 ms.";
  const QAction& count = action("actionCount_from_shot");
  loadShots(1);
  EXPECT_FALSE(count.isEnabled()) << "the record begins with the shot";
  dialogs.expectBox("Recording delay", text, "count times from the shot", QMessageBox::No);
  window->openFiles({shotFile("late.dat", 13.0, -0.02)});
  ASSERT_TRUE(count.isEnabled());
  auto& traces = child<editTravelTimesWidget>("showTracesWidget");
  traces.editPick(1, 3, 0.0361);
  traces.editPick(1, 4, 0.0101);
  action("actionCount_from_shot").trigger();
  EXPECT_EQ(window->document().recordings->traceSets[0][0].samples.size(), 400U);
  EXPECT_EQ(window->document().recordings->traceSets[1][0].samples.size(), 320U);
  EXPECT_NEAR(window->document().ttArray[1].ttMisurati[3], 0.0161, 1e-12);
  EXPECT_EQ(window->document().ttArray[1].ttMisurati[4], kNoTime) << "before the shot";
  EXPECT_THAT(window->statusBar()->currentMessage().toStdString(),
              ::testing::HasSubstr("lay before it"));
  EXPECT_FALSE(count.isEnabled());
  EXPECT_EQ(action("actionUndo").text(), QStringLiteral("Undo \"Count times from the shot\""));
  action("actionUndo").trigger();
  EXPECT_EQ(window->document().ttArray[1].ttMisurati[4], 0.0101);
  EXPECT_TRUE(count.isEnabled());
}

TEST_F(Loading, exportedPicksComeBack) {
  loadShots(1);
  writable().ttArray.edit()[0].ttMisurati.edit()[5] = 0.0425;
  dialogs.expectFiles("Save TravelTimeExchange", {QString::fromStdString(home.file("out"))});
  action("actionExport_TravelTimes").trigger();
  ASSERT_FALSE(testing::TestFolder::get(home.file("out.otte")).empty()) << "the suffix is added";
  writable().ttArray.edit()[0].ttMisurati.edit()[5] = 0.0;
  dialogs.expectFiles("Import TravelTimes", {QString::fromStdString(home.file("out.otte"))});
  action("actionLoad_TT").trigger();
  EXPECT_DOUBLE_EQ(writable().ttArray[0].ttMisurati[5], 0.0425);
}

TEST_F(Loading, dropsAndNamesPicksThatCannotBe) {
  loadShots(1);
  const std::string path = home.file("late.otte");
  for (const auto& [seconds, why] : {std::pair{4250.0, "above an hour"}, {42.5, "its record of"}}) {
    writable().ttArray.edit()[0].ttMisurati.edit()[5] = seconds;
    ASSERT_TRUE(writeTravelTimes(path, writable()).ok());
    writable().ttArray.edit()[0].ttMisurati.edit()[5] = kUnpicked;
    dialogs.expectFiles("Import TravelTimes", {QString::fromStdString(path)});
    dialogs.expect([why = why](QWidget& widget) {
      auto* box = qobject_cast<QMessageBox*>(&widget);
      ASSERT_NE(box, nullptr) << widget.windowTitle().toStdString();
      EXPECT_EQ(box->text(), "late.otte was loaded with warnings.");
      EXPECT_THAT(box->informativeText().toStdString(), HasSubstr("shot 1, trace 6 ("));
      EXPECT_THAT(box->informativeText().toStdString(), HasSubstr(why));
      box->accept();
    });
    action("actionLoad_TT").trigger();
    EXPECT_EQ(writable().ttArray[0].ttMisurati[5], kNoTime) << why;
  }
}

TEST_F(Loading, showsWhatAFileHolds) {
  loadShots(2);
  writable().ttArray.edit()[1].ttMisurati.edit()[3] = 0.0125;
  writable().ttArray.edit()[1].setError(3, 0.0015);
  action("actionNext_file").trigger();
  dialogs.expect([this](QWidget& dialog) {
    EXPECT_EQ(dialog.findChild<QComboBox*>("fileCBox")->currentText().toStdString(),
              "2: shot2.dat");
    EXPECT_EQ(dialog.findChild<QLabel*>("formatValue")->text().toStdString(), "SEG-2");
    EXPECT_EQ(dialog.findChild<QLabel*>("samplesValue")->text().toStdString(), "400");
    EXPECT_EQ(dialog.findChild<QLabel*>("intervalValue")->text().toStdString(), "0.25 ms");
    const auto* table = dialog.findChild<QTableWidget*>("tracesTable");
    ASSERT_EQ(table->rowCount(), 12);
    const QRect mends = dialog.findChild<QLabel*>("mendsValue")->geometry();
    EXPECT_FALSE(mends.intersects(dialog.findChild<QLabel*>("droppedValue")->geometry()));
    EXPECT_FALSE(mends.intersects(dialog.findChild<QComboBox*>("fileCBox")->geometry()));
    EXPECT_EQ(table->item(3, 1)->text().toStdString(), "16");
    EXPECT_EQ(table->item(3, 8)->text().toStdString(), "12.50");
    EXPECT_EQ(table->item(3, 9)->text().toStdString(), "1.50");
    EXPECT_EQ(table->item(4, 8)->text(), QStringLiteral("\u2013")) << "not picked";
    EXPECT_EQ(table->item(4, 9)->text(), QStringLiteral("\u2013"));
    dialog.close();
  });
  action("actionRecording_details").trigger();
}

}  // namespace
}  // namespace talvesk
