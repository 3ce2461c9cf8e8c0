#include "app/dialogs/CompareRunsDialog.h"
#include "app/dialogs/RunsDialog.h"
#include "gui/WindowTest.h"
#include "io/TravelTimeFile.h"
#include "model/GroundModel.h"
#include "model/KeptRuns.h"
#include "model/Residuals.h"
#include "model/TomographyOutcome.h"
#include "support/TestSurveys.h"
#include "tomo/TomographyRun.h"
#include "tomo/fitted/FittedRun.h"
#include "view/SectionScene.h"
#include "widgets/section/SectionView.h"

#include <QComboBox>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTest>

namespace talvesk::testing {
namespace {

using ::testing::HasSubstr;

class Runs : public WindowTest {
 protected:
  /// A survey with a smoothed and a fitted run; the fitted one is shown.
  void openTwoRuns() {
    TomoDocument line = testLine(24, 2.0, {-2.0, 9.0, 23.0, 37.0, 48.0}, 1.0);
    pickTwoLayers(line, 450.0, 1800.0, 3.0);
    ASSERT_TRUE(writeTravelTimes(home.file("line.otte"), line).ok());
    open();
    window->openFiles({QString::fromStdString(home.file("line.otte"))});
    TomoDocument& document = writable();
    putGrid(document, 12.0, 1.0);
    Log quiet;
    TomographyParameters few;
    few.externalIterations = 2;
    ASSERT_TRUE(runInversion(document, few, quiet).status.ok());
    const FittedSettings usual;
    ASSERT_TRUE(runFittedInversion(document, usual, quiet).run.status.ok());
    showWritten();
    window->session().markSaved();
  }
  /// Opens the list, does something with it, and closes it.
  void withList(const std::function<void(RunsDialog&, QTableWidget&)>& act) {
    dialogs.expect([&act](QWidget& widget) {
      auto* dialog = qobject_cast<RunsDialog*>(&widget);
      ASSERT_NE(dialog, nullptr) << widget.windowTitle().toStdString();
      act(*dialog, *dialog->findChild<QTableWidget*>(QStringLiteral("runsTable")));
      dialog->reject();
    });
    action("actionInversion_runs").trigger();
  }
  static void press(const QWidget& dialog, const char* name) {
    auto* button = dialog.findChild<QPushButton*>(QLatin1String(name));
    ASSERT_NE(button, nullptr) << name;
    ASSERT_TRUE(button->isEnabled()) << name;
    button->click();
  }
  static std::string cell(const QTableWidget& table, int row, int column) {
    return table.item(row, column)->text().toStdString();
  }
  double captionRms() { return child<SectionView>("vtk_widget").scene()->misfit.rmse; }
};

TEST_F(Runs, sayWhatToDoWhileThereIsNone) {
  open();
  EXPECT_FALSE(action("actionInversion_runs").isEnabled());
  loadShots(1);
  withList([](RunsDialog& dialog, QTableWidget& table) {
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_TRUE(dialog.findChild<QLabel*>(QStringLiteral("emptyLabel"))->isVisible());
    for (const char* name : {"useButton", "compareButton", "renameButton", "deleteButton"}) {
      EXPECT_FALSE(dialog.findChild<QPushButton*>(QLatin1String(name))->isEnabled()) << name;
    }
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
      if (button->text() == QLatin1String("Run tomography inversion")) return button->click();
    }
    FAIL() << "no way to a run is offered";
  });
  // Once the list is gone the command asks what it must ask.
  dialogs.expectBox("Warning:", "Uncomplete set of picks. \n \n", "", QMessageBox::No);
  QCoreApplication::processEvents();
  EXPECT_TRUE(dialogs.finished());
}

TEST_F(Runs, becomeTheSectionByUse) {
  openTwoRuns();
  const double fitted = captionRms();
  const double smoothed = window->document().runs[0].misfit().rmse;
  ASSERT_NE(fitted, smoothed);
  withList([](RunsDialog& dialog, QTableWidget& table) {
    ASSERT_EQ(table.rowCount(), 2);
    EXPECT_EQ(cell(table, 0, 0), "Run 2");
    EXPECT_THAT(cell(table, 0, 10), HasSubstr("in use"));
    EXPECT_FALSE(table.item(1, 0)->icon().isNull());
    EXPECT_EQ(cell(table, 0, 3), "0.5 ms or 3 %");
    EXPECT_FALSE(dialog.findChild<QPushButton*>(QStringLiteral("useButton"))->isEnabled());
    table.selectRow(1);
    EXPECT_THAT(dialog.findChild<QLabel*>(QStringLiteral("settingsLabel"))->text().toStdString(),
                HasSubstr("smoothing parameter"));
    press(dialog, "useButton");
    EXPECT_THAT(cell(table, 1, 10), HasSubstr("in use"));
    EXPECT_EQ(cell(table, 0, 10), "");
  });
  EXPECT_EQ(captionRms(), smoothed);
  EXPECT_FALSE(window->document().result->lastInversion->fit);
  EXPECT_TRUE(window->session().modified());
  action("actionUndo").trigger();
  EXPECT_EQ(captionRms(), fitted);
  EXPECT_EQ(window->document().runs.size(), 2U);
}

TEST_F(Runs, areNamedAndDeletedAndBroughtBack) {
  openTwoRuns();
  withList([](RunsDialog& dialog, QTableWidget& table) {
    press(dialog, "renameButton");
    auto* editor = table.findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    editor->setText(QStringLiteral(" the good one "));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(table.item(0, 0)->text(), QStringLiteral("the good one"));
    EXPECT_TRUE(dialog.isVisible()) << "Return has ended the name, not used the run";
    table.selectRow(1);
    QTest::keyClick(&table, Qt::Key_Delete);
    EXPECT_EQ(table.rowCount(), 1);
  });
  EXPECT_EQ(window->document().runs[0].name, "the good one");
  EXPECT_TRUE(window->document().result->has_tomographic_info) << "the section is no run's alone";
  action("actionUndo").trigger();
  ASSERT_EQ(window->document().runs.size(), 2U);
  EXPECT_EQ(window->document().runs[1].name, "the good one");
  action("actionUndo").trigger();
  EXPECT_EQ(window->document().runs[1].name, "");
}

TEST_F(Runs, areSavedWithTheProject) {
  openTwoRuns();
  const QString project = QString::fromStdString(home.file("line.tvsk"));
  withList([](RunsDialog& dialog, QTableWidget& table) {
    table.selectRow(1);
    press(dialog, "useButton");
  });
  const double used = captionRms();
  dialogs.expectFiles(QStringLiteral("Save Project"), {project});
  action("actionSave_Project_As").trigger();
  open();
  dialogs.expectFiles(QStringLiteral("Load Project"), {project});
  action("actionLoad_Project").trigger();
  ASSERT_EQ(window->document().runs.size(), 2U);
  EXPECT_EQ(shownRun(window->document()), 0U);
  EXPECT_NEAR(captionRms(), used, 1e-12);
  withList([](RunsDialog& dialog, QTableWidget& table) {
    table.selectRow(0);
    press(dialog, "useButton");
  });
  EXPECT_NEAR(captionRms(), window->document().runs[1].misfit().rmse, 1e-12);
}

TEST_F(Runs, areComparedSideBySide) {
  openTwoRuns();
  const QString picture = QString::fromStdString(home.file("both.png"));
  const QString kept = qEnvironmentVariable("TALVESK_TEST_PICTURES");
  withList([&](RunsDialog& dialog, QTableWidget& table) {
    if (!kept.isEmpty()) dialog.grab().save(kept + QStringLiteral("/runs.png"));
    dialogs.expect([&](QWidget& widget) {
      auto* comparison = qobject_cast<CompareRunsDialog*>(&widget);
      ASSERT_NE(comparison, nullptr);
      QCoreApplication::processEvents();
      if (!kept.isEmpty()) comparison->grab().save(kept + QStringLiteral("/compare.png"));
      auto* left = comparison->findChild<QComboBox*>(QStringLiteral("leftBox"));
      auto* right = comparison->findChild<QComboBox*>(QStringLiteral("rightBox"));
      EXPECT_EQ(left->currentText().toStdString(), "Run 1");
      EXPECT_EQ(right->currentText().toStdString(), "Run 2");
      const auto* figures = comparison->findChild<QLabel*>(QStringLiteral("figuresLabel"));
      const auto text = [&] { return figures->text().toStdString(); };
      const QString chi2 = QLocale().toString(window->document().runs[1].chi2, 'g', 3);
      EXPECT_THAT(text(), HasSubstr("\u2192 " + chi2.toStdString()));
      EXPECT_THAT(text(), HasSubstr("their computed times differ by "));
      auto* sheet = comparison->findChild<QWidget*>(QStringLiteral("sheet"));
      const QImage before = sheet->grab().toImage();
      left->setCurrentIndex(1);
      EXPECT_THAT(text(), HasSubstr("differ by 0 ms"));
      EXPECT_NE(sheet->grab().toImage(), before);
      left->setCurrentIndex(0);
      dialogs.expectFiles(QStringLiteral("Save picture of both runs"), {picture});
      press(*comparison, "saveButton");
      comparison->reject();
    });
    table.selectAll();
    press(dialog, "compareButton");
  });
  EXPECT_FALSE(QImage(picture).isNull());
  EXPECT_FALSE(window->session().modified()) << "who compares changes nothing";
}

}  // namespace
}  // namespace talvesk::testing
