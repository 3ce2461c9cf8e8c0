#include "app/BackgroundCheck.h"
#include "doctor/SyntheticLine.h"
#include "gui/WindowTest.h"
#include "model/GroundModel.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "tomo/GridSetup.h"

#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTest>

namespace talvesk {
namespace {

using namespace doctor::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::WindowTest;

/// The dialog as a user meets it.
class CheckPage {
 public:
  explicit CheckPage(QWidget& dialog) : mDialog(dialog) { wait(); }

  template <typename Widget>
  Widget& child(const char* name) const {
    auto* found = mDialog.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
  }
  QTableWidget& table() const { return child<QTableWidget>("findingsTable"); }
  std::string page() const {
    return child<QStackedWidget>("pages").currentWidget()->objectName().toStdString();
  }
  void wait() const {
    EXPECT_TRUE(QTest::qWaitFor([this] { return page() != "busyPage"; }, 30000));
  }
  /// "x 4 rec103.dat all shot position" of every line; an x where it is ticked.
  std::vector<std::string> lines() const {
    std::vector<std::string> lines;
    for (int row = 0; row < table().rowCount(); ++row) {
      std::string line = table().item(row, 0)->checkState() == Qt::Checked ? "x" : "-";
      for (int column = 1; column < 5; ++column) {
        line += ' ' + table().item(row, column)->text().toStdString();
      }
      lines.push_back(line);
    }
    return lines;
  }
  std::string proposal(int row) const { return table().item(row, 6)->text().toStdString(); }
  std::string outcome() const { return child<QLabel>("outcomeLabel").text().toStdString(); }

 private:
  QWidget& mDialog;
};

class Checking : public WindowTest {
 protected:
  Checking() { open(); }

  void use(const std::function<void(TomoDocument&)>& spoil) {
    TomoDocument document = soundLine();
    spoil(document);
    writable() = document;
    showWritten();
    window->showFile(0);
  }
  void check(const std::function<void(CheckPage&)>& look) {
    dialogs.expect([look](QWidget& dialog) {
      CheckPage page(dialog);
      look(page);
      dialog.close();
    });
    action("actionCheck_recordings").trigger();
  }
};

TEST_F(Checking, carriesOutWhatIsTakenAsItWasAltered) {
  use([](TomoDocument& document) {
    delayRecord(document, 2, 80);  // 20 ms
    placeShot(document, 3, 39.0);
    scaleTrace(document, 5, 9, 0.0);
  });
  const TomoDocument before = window->document();
  check([this](CheckPage& page) {
    EXPECT_THAT(page.lines(),
                ElementsAre("x 3 rec102.dat all trigger time", "x 4 rec103.dat all shot position",
                            "x 6 rec105.dat 10 dead traces"));
    EXPECT_THAT(page.outcome(), HasSubstr("Findings: 3"));

    // The record was not as late as it was found to be, and that confirms no more than itself.
    QTest::keyClick(&page.table(), Qt::Key_Space);
    EXPECT_THAT(page.lines().front(), HasSubstr("- 3 rec102"));
    auto& figure = page.child<QDoubleSpinBox>("figureEdit");
    EXPECT_NEAR(figure.value(), 20.0, 1.0);
    EXPECT_THAT(page.child<QPlainTextEdit>("findingText").toPlainText().toStdString(),
                HasSubstr("ms"));
    figure.setFocus();
    figure.selectAll();
    QTest::keyClicks(&figure, "19.75");
    QTest::keyClick(&figure, Qt::Key_Return);
    EXPECT_EQ(page.proposal(0), "move the record earlier by 19.75 ms");
    EXPECT_THAT(page.lines().front(), HasSubstr("x 3 rec102"));
    EXPECT_FALSE(window->session().canUndo());

    QTest::keyClick(&page.table(), Qt::Key_Down);
    EXPECT_NEAR(figure.value(), 19.0, 1.0);
    page.child<QPushButton>("tracesButton").click();
    EXPECT_EQ(window->currentFile(), 3);
    QTest::keyClick(&page.table(), Qt::Key_Down);
    EXPECT_TRUE(figure.isHidden());
    QTest::keyClick(&page.table(), Qt::Key_Space);  // the dead trace is left
    QTest::keyClick(&page.table(), Qt::Key_Return);
    page.wait();
    EXPECT_THAT(page.lines(), ElementsAre("- 6 rec105.dat 10 dead traces"));
    EXPECT_THAT(page.outcome(), HasSubstr("Proposals carried out: 2 of 2."));
    EXPECT_FALSE(page.child<QPushButton>("carryOutButton").isEnabled());
  });
  const TomoDocument& after = window->document();
  EXPECT_EQ(mendsOf(*after.recordings, 2).timeShift, 0.01975);
  EXPECT_NEAR(after.ttArray[3].shotPos2d.x, 19.0, 1.0);
  EXPECT_FALSE(mendOf(mendsOf(*after.recordings, 5), 9).killed);

  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Mend recordings\"");
  action("actionUndo").trigger();
  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Geometry\"");
  action("actionUndo").trigger();
  EXPECT_FALSE(action("actionUndo").isEnabled());
  EXPECT_EQ(after.ttArray[3].shotPos2d.x, before.ttArray[3].shotPos2d.x);
  EXPECT_EQ(after.recordings->traceSets[2][4].samples, before.recordings->traceSets[2][4].samples);
}

TEST_F(Checking, asksBeforeTheGridGoesAndTellsOfPicksThatAreSetAside) {
  use([this](TomoDocument& document) {
    placeShot(document, 3, 39.0);
    scaleTrace(document, 5, 9, 0.0);
    document.ttArray.edit()[5].ttMisurati.edit()[9] = 0.012;
    Log nowhere(home.file("grid.log"));
    ASSERT_TRUE(setUpGrid(document, {8.0, 1.0, 4}, nowhere).ok());
  });
  const QString changes =
      QStringLiteral("The survey changes. This will be removed (Undo brings it back):");
  check([&](CheckPage& page) {
    dialogs.expectBox("Warning", changes, "the grid", QMessageBox::No);
    page.child<QPushButton>("carryOutButton").click();
    EXPECT_EQ(page.lines().size(), 2U);
    EXPECT_FALSE(window->session().canUndo());
    dialogs.expectBox("Warning", changes, "the grid", QMessageBox::Yes);
    page.child<QPushButton>("carryOutButton").click();
    page.wait();
    EXPECT_THAT(page.lines(), ElementsAre());
    EXPECT_THAT(page.outcome(), HasSubstr("Proposals carried out: 2 of 2.\n"));
    EXPECT_THAT(page.outcome(), HasSubstr("set aside"));
  });
  EXPECT_EQ(window->document().model->grid, nullptr);
  EXPECT_FALSE(hasPick(window->document().ttArray[5].ttMisurati[9]));
}

TEST_F(Checking, doubtsNoSoundShotThatItWasStoppedBefore) {
  LinePlan plan;
  plan.shots.clear();
  for (int i = 0; i < 100; ++i) plan.shots.push_back(-4.75 + 0.5 * i);
  BackgroundCheck check;
  QSignalSpy finished(&check, &BackgroundCheck::finished);
  check.start(soundLine(plan));
  check.requestStop();
  ASSERT_TRUE(finished.wait(30000));
  EXPECT_TRUE(check.wasStopped());
  EXPECT_TRUE(check.findings().empty()) << check.findings().front().text.english();
}

TEST_F(Checking, saysWhereNothingIsDoubtful) {
  use([](TomoDocument&) {});
  check([](CheckPage& page) {
    EXPECT_EQ(page.page(), "emptyPage");
    EXPECT_EQ(page.child<QLabel>("emptyPage").text().toStdString(), "Nothing is doubtful.");
    EXPECT_FALSE(page.child<QPushButton>("carryOutButton").isEnabled());
  });
}

}  // namespace
}  // namespace talvesk
