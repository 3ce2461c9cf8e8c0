#include "app/RecoveryCopy.h"
#include "gui/ProjectsTest.h"
#include "io/project/ProjectWriter.h"
#include "io/project/projectReader.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/TomographyOutcome.h"
#include "support/ShotFiles.h"
#include "support/TestSurveys.h"
#include "tomo/ForwardPass.h"
#include "tomo/TomographyRun.h"
#include "widgets/section/SectionView.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QLockFile>
#include <QMenu>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>

namespace talvesk::testing {
namespace {

using ::testing::HasSubstr;

TEST_F(Projects, areSavedUnderANameWithTheirSuffixAndThenWithoutAsking) {
  EXPECT_TRUE(window->isWindowModified());
  saveAs(path("line"));
  EXPECT_TRUE(QFile::exists(path("line.tvsk")));
  EXPECT_FALSE(window->session().modified());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Talvesk 2022.0[*] - line.tvsk"));
  EXPECT_FALSE(window->isWindowModified());
  touch();
  const std::string before = TestFolder::get(home.file("line.tvsk"));
  document().title = "another";
  trigger("actionSave_Project");
  EXPECT_FALSE(window->session().modified());
  EXPECT_NE(TestFolder::get(home.file("line.tvsk")), before);
  EXPECT_THAT(log(), HasSubstr("Talvesk_MainWindows::on_actionSave_Project_triggered"));
}

TEST_F(Projects, proposeNamesForTheirFiles) {
  const auto proposed = [this](const char* command) {
    QString name;
    dialogs.expect([&name](QWidget& dialog) {
      name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
      dialog.close();
    });
    trigger(command);
    return name.toStdString();
  };
  const std::string folder = QDir(path("")).dirName().toStdString();
  EXPECT_EQ(proposed("actionSave_Project"), folder + ".tvsk") << "as where the shots are";
  document().title = "Line 1.5: north/south";
  EXPECT_EQ(proposed("actionSave_Project"), "Line_1.5__north_south.tvsk");
  EXPECT_EQ(proposed("actionExport_TravelTimes"), "Line_1.5__north_south.otte");
  saveAs(path("line"));
  EXPECT_EQ(proposed("actionExport_TravelTimes"), "line.otte");
}

TEST_F(Projects, comeBackWithWhatTheScreenShows) {
  document().recordings.edit().traceSets[1][0].filtered =
      document().recordings->traceSets[1][0].samples;
  putGrid(document(), 6, 2);
  Log quiet;
  ASSERT_TRUE(runInversion(document(), {}, quiet).status.ok());
  const std::size_t rays = document().result->rays.size();
  saveAs(path("line.tvsk"));
  open();
  EXPECT_TRUE(document().ttArray.empty());
  load(path("line.tvsk"));
  ASSERT_EQ(document().recordings->traceSets.size(), 3U);
  EXPECT_EQ(document().ttArray[1].ttMisurati[2], 0.017);
  EXPECT_EQ(document().result->rays.size(), rays);
  EXPECT_EQ(window->currentFile(), 0);
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Talvesk 2022.0[*] - line.tvsk"));
  EXPECT_FALSE(child<QWidget>("show_filtered_cb").isEnabled());
  window->showFile(1);
  EXPECT_TRUE(child<QWidget>("show_filtered_cb").isEnabled());
  EXPECT_TRUE(child<QWidget>("showSimTT_CB").isEnabled());
}

TEST_F(Projects, lookTheSameWhenTheyComeBack) {
  putGrid(document(), 8, 1);
  Log quiet;
  ASSERT_TRUE(runInversion(document(), {}, quiet).status.ok());
  saveAs(path("line.tvsk"));
  // What is loaded has the times of the final model, so the first picture is taken of that, too.
  load(path("line.tvsk"));
  const auto pictures = [this] {
    QList<QImage> all;
    const std::pair<const char*, QWidget*> views[] = {
        {"tab_3", &child<QWidget>("showTracesWidget")},
        {"tab_3", &child<QWidget>("travelTimePreview")},
        {"vtk_tab", child<SectionView>("vtk_widget").sheet()}};
    for (const auto& [tab, view] : views) {
      child<QTabWidget>("tabWidget").setCurrentWidget(&child<QWidget>(tab));
      QTest::qWait(100);
      all << view->grab().toImage();
    }
    return all;
  };
  trigger("actionShow_rays");
  trigger("actionShow_Information_Density_Layer");
  const QList<QImage> before = pictures();
  saveAs(path("again.tvsk"));
  open();
  load(path("again.tvsk"));
  const QList<QImage> after = pictures();
  EXPECT_TRUE(child<SectionView>("vtk_widget").sheet()->isVisible());
  EXPECT_NE(before[2], before[0]);
  for (int i = 0; i < before.size(); ++i) EXPECT_EQ(before[i], after[i]) << i;
}

TEST_F(Projects, nameInTheLogWhatTheirRaysLeaveOut) {
  const double cell = 0.4 * document().surveyProfile().arrayLength;
  putGrid(document(), 2 * cell, cell);  // two columns: the last fifth of the line has none
  Log quiet;
  ASSERT_TRUE(runInversion(document(), {}, quiet).status.ok());
  ASSERT_FALSE(document().result->excluded.empty());
  const std::string first = describe(document().result->excluded.front());
  saveAs(path("line.tvsk"));
  load(path("line.tvsk"));
  EXPECT_FALSE(document().result->excluded.empty());
  EXPECT_THAT(log(), HasSubstr("ERROR : " + first + "\n"));
}

TEST_F(Projects, areSavedAgainFromTheFilesThatTheyWereLoadedWith) {
  saveAs(path("line.tvsk"));
  open();
  load(path("line.tvsk"));
  for (int i = 1; i <= 3; ++i) QFile::remove(path("shot" + std::to_string(i) + ".dat"));
  saveAs(path("copy.tvsk"));
  open();
  load(path("copy.tvsk"));
  ASSERT_EQ(document().recordings->traceSets.size(), 3U);
  EXPECT_FALSE(document().recordings->traceSets[2][0].samples.empty());
}

TEST_F(Projects, askBeforeTheyReplaceAnotherFile) {
  home.put("other.tvsk", "precious");
  dialogs.expectFiles(QStringLiteral("Save Project"), {path("other")});
  dialogs.expectBox(QStringLiteral("Save Project"), QStringLiteral("other.tvsk already exists."),
                    QStringLiteral("Do you want to replace it?"), QMessageBox::No);
  trigger("actionSave_Project_As");
  EXPECT_EQ(TestFolder::get(home.file("other.tvsk")), "precious");
  EXPECT_TRUE(window->session().modified());
}

TEST_F(Projects, needAName) {
  dialogs.expectFiles(QStringLiteral("Save Project"), {path(".tvsk")});
  dialogs.expectBox(QStringLiteral("Error occured"), QStringLiteral("Empty filename to be saved"),
                    QString(), QMessageBox::Ok);
  trigger("actionSave_Project_As");
  EXPECT_TRUE(window->session().modified());
}

TEST_F(Projects, thatCannotBeSavedAreToldAndStayModified) {
  saveAs(path("line.tvsk"));
  touch();
  // Nothing can be put together any more.
  QDir(path("Talvesk_TMP")).removeRecursively();
  dialogs.expectBox(QStringLiteral("Error occured"),
                    QStringLiteral("Something went wrong while saving project ") +
                        path("line.tvsk") +
                        QStringLiteral("\nWARNING: the project has NOT been saved."),
                    QStringLiteral("The file is as it was before."), QMessageBox::Ok);
  trigger("actionSave_Project");
  EXPECT_TRUE(window->session().modified());
  EXPECT_TRUE(QFile::exists(path("line.tvsk")));
}

TEST_F(Projects, thatAreNoneLeaveTheSurveyAsItIs) {
  window->session().markSaved();
  home.put("text.tvsk", "no project");
  dialogs.expectFiles(QStringLiteral("Load Project"), {path("text.tvsk")});
  dialogs.expectBox(QStringLiteral("Error occured"),
                    QStringLiteral("text.tvsk is not a valid project."), QString(),
                    QMessageBox::Ok);
  trigger("actionLoad_Project");
  EXPECT_EQ(document().recordings->traceSets.size(), 3U);
  EXPECT_EQ(document().ttArray[1].ttMisurati[2], 0.017);
}

TEST_F(Projects, tellWhatHadToBePutRightInThem) {
  document().model.edit().maxVelocity = 1e308;
  saveAs(path("line.tvsk"));
  dialogs.expectFiles(QStringLiteral("Load Project"), {path("line.tvsk")});
  dialogs.expectBox(
      QStringLiteral("Warning"),
      QStringLiteral("Some values of the project cannot be. They were put right or left out."),
      QStringLiteral("limits of velocity"), QMessageBox::Ok);
  trigger("actionLoad_Project");
  EXPECT_EQ(document().model->maxVelocity, 3500.0);
}

TEST_F(Projects, tellOfShotFilesThatCouldNotBeSaved) {
  QFile::remove(path("shot2.dat"));
  dialogs.expectFiles(QStringLiteral("Save Project"), {path("line.tvsk")});
  dialogs.expectBox(QStringLiteral("Warning"), QStringLiteral("The project has been saved."),
                    path("shot2.dat"), QMessageBox::Ok);
  trigger("actionSave_Project_As");
  EXPECT_FALSE(window->session().modified());
}

TEST_F(Projects, areSavedOrNotWhenTheWindowCloses) {
  const auto closeWith = [this](QMessageBox::StandardButton button) {
    dialogs.expectBox(QStringLiteral("Talvesk"), QStringLiteral("The document has been modified"),
                      QStringLiteral("Do you want to save your changes?"), button);
  };
  closeWith(QMessageBox::Cancel);
  EXPECT_FALSE(window->close());
  closeWith(QMessageBox::Save);
  dialogs.expectAndCancel();  // where to?
  EXPECT_FALSE(window->close());
  closeWith(QMessageBox::Save);
  dialogs.expectFiles(QStringLiteral("Save Project"), {path("line.tvsk")});
  EXPECT_TRUE(window->close());
  EXPECT_TRUE(QFile::exists(path("line.tvsk")));
}

TEST_F(Projects, areListedAndOpenedAgain) {
  saveAs(path("a.tvsk"));
  saveAs(path("b.tvsk"));
  open();
  const QList<QAction*> actions = child<QMenu>("menuRecent_projects").actions();
  ASSERT_EQ(actions.size(), 4);  // two projects, a line, and one to clear the list
  EXPECT_EQ(actions[0]->text(), QStringLiteral("&1 ") + path("b.tvsk"));
  actions[1]->trigger();
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Talvesk 2022.0[*] - a.tvsk"));
  EXPECT_THAT(log(), HasSubstr("] Talvesk_MainWindows::openProject\n"));
  QFile::remove(path("b.tvsk"));
  dialogs.expectBox(QStringLiteral("Error occured"),
                    QStringLiteral("b.tvsk is not a valid project."),
                    QStringLiteral("There is no file "), QMessageBox::Ok);
  child<QMenu>("menuRecent_projects").actions()[1]->trigger();
  EXPECT_EQ(child<QMenu>("menuRecent_projects").actions().size(), 3);
  child<QMenu>("menuRecent_projects").actions()[2]->trigger();
  EXPECT_FALSE(child<QMenu>("menuRecent_projects").isEnabled());
  EXPECT_THAT(log(), HasSubstr("] Talvesk_MainWindows::clearRecentProjects\n"));
}

TEST_F(Projects, openFromTheCommandLine) {
  saveAs(path("line.tvsk"));
  open();
  window->start({path("line.tvsk")});
  EXPECT_EQ(document().recordings->traceSets.size(), 3U);
}

TEST_F(Projects, doNotChangeInWhichByteOrderShotsAreRead) {
  SegyFixture file;
  file.constant = {1, 2, 3, 4};
  file.channels = {{{4, 5, 6}, 7, 10, 0}, {{7, 8, 9}, 7, 20, 0}};
  const QString segy = QString::fromStdString(home.put("big.sgy", segyBytes(file)));
  const QString su = QString::fromStdString(home.put("big.su", suBytes(file)));
  saveAs(path("line.tvsk"));
  dialogs.expectFiles(QStringLiteral("Open Seismic Trace"), {segy});
  trigger("actionOpen_shot_files");
  window->session().markSaved();
  load(path("line.tvsk"));
  ASSERT_EQ(document().recordings->traceSets.size(), 3U);
  dialogs.expectFiles(QStringLiteral("Open Seismic Trace"), {su});
  trigger("actionOpen_shot_files");
  ASSERT_EQ(document().recordings->traceSets.size(), 4U);
  EXPECT_EQ(document().recordings->traceSets[3].at(1).samples, (std::vector<double>{7, 8, 0}));
}

TEST_F(Projects, giveWayToANewSurvey) {
  saveAs(path("line.tvsk"));
  const QString title = window->windowTitle();
  dialogs.expectAndCancel();  // which shot files?
  trigger("actionNew");
  EXPECT_EQ(document().ttArray.size(), 3U);
  EXPECT_EQ(window->windowTitle(), title) << "none: the project stays";
  dialogs.expectFiles(QStringLiteral("Open Seismic Trace"), {shotFile("new.dat")});
  trigger("actionNew");
  EXPECT_EQ(document().ttArray.size(), 1U);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Talvesk 2022.0[*]"));
}

TEST_F(Projects, haveARecoveryCopyOnlyWhileThereIsSomethingToLose) {
  autosave();
  EXPECT_EQ(recoveryFiles().size(), 3);  // copy, note and lock
  saveAs(path("line.tvsk"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return recoveryFiles().isEmpty(); }));
  autosave(false);
  QTest::qWait(200);
  EXPECT_TRUE(recoveryFiles().isEmpty());
}

TEST_F(Projects, leaveNoRecoveryCopyAfterTheWindowWasClosed) {
  autosave();
  dialogs.expectBox(QStringLiteral("Talvesk"), QStringLiteral("The document has been modified"),
                    QString(), QMessageBox::Discard);
  EXPECT_TRUE(window->close());
  window.reset();
  EXPECT_TRUE(recoveryFiles().isEmpty());
}

TEST_F(Projects, doNotWaitForARecoveryCopyThatNobodyWantsAnyMore) {
  RecoveryCopy recovery(path("Talvesk_TMP/"));
  QSignalSpy saved(&recovery, &RecoveryCopy::saved);
  const auto save = [&recovery] {
    LoadedProject survey;
    survey.document.title = "Line";
    recovery.save(std::move(survey), {});
  };
  save();
  recovery.discard();
  EXPECT_TRUE(recovery.isSaving()) << "it has been waited for";
  save();  // too early: nothing happens
  while (recovery.isSaving()) QTest::qWait(10);
  EXPECT_TRUE(recoveryFiles().isEmpty());
  EXPECT_EQ(saved.count(), 0);
  save();
  while (recovery.isSaving()) QTest::qWait(10);
  EXPECT_EQ(recoveryFiles().size(), 3);
  EXPECT_EQ(saved.count(), 1);
}

/// The recovery copy of a program that is gone.
class Crash : public Projects {
 protected:
  Crash() {
    saveAs(path("line.tvsk"));
    document().title = "Crashed";
    ProjectWriter writer;
    EXPECT_EQ(writer.save(copy.toStdString(), home.file("Talvesk_TMP/"), document(), {}, {}), 0);
    home.put("Talvesk_TMP/Talvesk_recovery_1.tvsk.txt", home.file("line.tvsk"));
    open();
  }
  void answer(QMessageBox::StandardButton button) {
    dialogs.expectBox(QStringLiteral("Recover survey"),
                      QStringLiteral("Talvesk was not closed properly."), path("line.tvsk"),
                      button);
    window->start({});
  }
  QString copy = path("Talvesk_TMP/Talvesk_recovery_1.tvsk");
};

TEST_F(Crash, isMadeGoodByTheCopy) {
  answer(QMessageBox::Open);
  EXPECT_EQ(document().title, "Crashed");
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Talvesk 2022.0[*] - line.tvsk - Crashed"));
  EXPECT_TRUE(QFile::exists(copy));  // until the survey is saved
  trigger("actionSave_Project");
  EXPECT_TRUE(recoveryFiles().isEmpty());
}

TEST_F(Crash, isForgottenOrAskedAboutAgain) {
  answer(QMessageBox::Cancel);
  EXPECT_TRUE(QFile::exists(copy));
  answer(QMessageBox::Discard);
  EXPECT_TRUE(recoveryFiles().isEmpty());
  EXPECT_TRUE(document().ttArray.empty());
  window->start({});  // nothing to ask
}

TEST_F(Crash, doesNotHideThatTheProjectWasSavedByOthersSince) {
  home.put("Talvesk_TMP/Talvesk_recovery_1.tvsk.txt", home.file("line.tvsk") + "\n17 4711");
  answer(QMessageBox::Open);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Talvesk 2022.0[*] - line.tvsk - Crashed"));
  dialogs.expectBox(QStringLiteral("Save Project"),
                    QStringLiteral("line.tvsk has been changed by somebody else since it was "
                                   "opened or saved here."),
                    QString(), QMessageBox::No);
  trigger("actionSave_Project");
  EXPECT_TRUE(window->session().modified());
}

TEST_F(Crash, isNotWhatHappenedToAnotherWindow) {
  QLockFile other(copy + QStringLiteral(".lock"));
  ASSERT_TRUE(other.tryLock(0));
  window->start({});
  EXPECT_TRUE(document().ttArray.empty());
}

}  // namespace
}  // namespace talvesk::testing
