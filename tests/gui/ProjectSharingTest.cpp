#include "gui/ProjectsTest.h"
#include "model/TomoDocument.h"

// What a window does about other programs that use the same project.

namespace talvesk::testing {
namespace {

const QString kChanged = QStringLiteral(
    "line.tvsk has been changed by somebody else since it was opened or saved here.");

TEST_F(Projects, askBeforeTheyReplaceWhatSomebodyElseHasSaved) {
  saveAs(path("line.tvsk"));
  home.put("line.tvsk", "of a colleague");
  touch();
  dialogs.expectBox(QStringLiteral("Save Project"), kChanged, QString(), QMessageBox::No);
  trigger("actionSave_Project");
  EXPECT_EQ(TestFolder::get(home.file("line.tvsk")), "of a colleague");
  EXPECT_TRUE(window->session().modified());
  dialogs.expectBox(QStringLiteral("Save Project"), kChanged, QString(), QMessageBox::Yes);
  trigger("actionSave_Project");
  EXPECT_NE(TestFolder::get(home.file("line.tvsk")), "of a colleague");
  touch();
  trigger("actionSave_Project");  // nobody else has saved since
  EXPECT_FALSE(window->session().modified());
}

TEST_F(Projects, areWrittenAgainWithoutAQuestionWhereSomebodyHasDeletedThem) {
  saveAs(path("line.tvsk"));
  QFile::remove(path("line.tvsk"));
  touch();
  trigger("actionSave_Project");
  EXPECT_TRUE(QFile::exists(path("line.tvsk")));
}

TEST_F(Projects, tellWhoElseHasThemOpen) {
  saveAs(path("line.tvsk"));
  saveAs(path("mine.tvsk"));
  home.put(".line.tvsk.lock", "anna\nfar.example\n17\n");
  document().title = "Mine";
  const auto loadAnd = [this](QMessageBox::StandardButton button) {
    dialogs.expectFiles(QStringLiteral("Load Project"), {path("line.tvsk")});
    dialogs.expectBox(QStringLiteral("Project in use"),
                      QStringLiteral("line.tvsk is in use by anna on far.example (process 17)."),
                      path(".line.tvsk.lock"), button);
    trigger("actionLoad_Project");
  };
  loadAnd(QMessageBox::No);
  EXPECT_EQ(document().title, "Mine");
  loadAnd(QMessageBox::Yes);
  EXPECT_EQ(document().title, "");
  EXPECT_EQ(TestFolder::get(home.file(".line.tvsk.lock")), "anna\nfar.example\n17\n");
}

TEST_F(Projects, thatOthersUseAreNotReplacedWithoutAQuestion) {
  home.put("line.tvsk", "of a colleague");
  home.put(".line.tvsk.lock", "anna\nfar.example\n17\n");
  dialogs.expectFiles(QStringLiteral("Save Project"), {path("line.tvsk")});
  dialogs.expectBox(QStringLiteral("Save Project"), QStringLiteral("line.tvsk already exists."),
                    QString(), QMessageBox::Yes);
  dialogs.expectBox(QStringLiteral("Project in use"),
                    QStringLiteral("line.tvsk is in use by anna on far.example (process 17)."),
                    QString(), QMessageBox::No);
  trigger("actionSave_Project_As");
  EXPECT_EQ(TestFolder::get(home.file("line.tvsk")), "of a colleague");
}

TEST_F(Projects, areLockedWhileTheyAreOpen) {
  const auto locked = [this](const char* name) { return QFile::exists(path(name)); };
  saveAs(path("line.tvsk"));
  EXPECT_TRUE(locked(".line.tvsk.lock"));
  load(path("line.tvsk"));  // its own lock asks nothing
  touch();
  trigger("actionSave_Project");
  EXPECT_TRUE(locked(".line.tvsk.lock"));
  saveAs(path("copy.tvsk"));
  EXPECT_FALSE(locked(".line.tvsk.lock"));
  EXPECT_TRUE(locked(".copy.tvsk.lock"));
  home.put("text.tvsk", "no project");
  dialogs.expectFiles(QStringLiteral("Load Project"), {path("text.tvsk")});
  dialogs.expectBox(QStringLiteral("Error occured"),
                    QStringLiteral("text.tvsk is not a valid project."), QString(),
                    QMessageBox::Ok);
  trigger("actionLoad_Project");
  EXPECT_FALSE(locked(".text.tvsk.lock"));
  EXPECT_TRUE(locked(".copy.tvsk.lock"));
  window->close();
  window.reset();
  EXPECT_FALSE(locked(".copy.tvsk.lock"));
}

}  // namespace
}  // namespace talvesk::testing
