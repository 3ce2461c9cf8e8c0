#include "app/dialogs/ReciprocityModel.h"
#include "doctor/PickedLine.h"
#include "gui/WindowTest.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "widgets/ReciprocityMatrix.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QDialog>
#include <QFile>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTest>
#include <QToolTip>

namespace talvesk {
namespace {

using namespace doctor::testing;
using ::testing::HasSubstr;
using testing::WindowTest;

/// Eight shots at geophones 2 m apart, 6 m from each other; the record of shot 3 is 3 ms late.
class ReciprocityWindow : public WindowTest {
 protected:
  ReciprocityWindow() {
    open();
    LinePlan plan;
    plan.shots = {0.0, 6.0, 12.0, 18.0, 24.0, 30.0, 36.0, 42.0};
    plan.samples = 400;
    writable() = soundLine(plan);
    pickLine(writable(), {0, 0, 0.003});
    showWritten();
    window->showFile(0);
  }
  void compare() {
    action("actionReciprocity").trigger();
    ASSERT_NE(dialog(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog()));
  }
  QDialog* dialog() { return window->findChild<QDialog*>(QStringLiteral("ReciprocityDialog")); }
  QTableView& table() { return child<QTableView>("pairsTable"); }
  QTableWidget& shots() { return child<QTableWidget>("shotsTable"); }
  ReciprocityMatrix& matrix() { return child<ReciprocityMatrix>("matrix"); }
  std::string summary() { return child<QLabel>("summaryLabel").text().toStdString(); }
  std::string cell(int row, int column) {
    return table().model()->index(row, column).data().toString().toStdString();
  }
  void click(int row, int column) {
    const QRect at = table().visualRect(table().model()->index(row, column));
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, at.center());
  }
  /// "3, 7" of the shot and trace in view, from 1.
  std::string inView() {
    const auto& traces = child<editTravelTimesWidget>("showTracesWidget");
    return std::to_string(traces.shot() + 1) + ", " + std::to_string(traces.currentTrace() + 1);
  }
  void expectSettled(const std::string& text) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return summary().find(text) != std::string::npos; }, 5000))
        << summary();
  }
};

TEST_F(ReciprocityWindow, goesToThePicksOfAPair) {
  compare();
  EXPECT_THAT(summary(), HasSubstr("Pairs of shots: 28, RMS of their differences: 1.50 ms."));
  EXPECT_THAT(summary(), HasSubstr("Shot 3: the record is 3 ms late"));
  ASSERT_EQ(table().model()->rowCount(), 28);
  // Of differences alike the first pair comes first: shots 1 and 3.
  EXPECT_EQ(cell(0, ReciprocityModel::kFirst), "1");
  EXPECT_EQ(cell(0, ReciprocityModel::kSecond), "3");
  EXPECT_EQ(cell(0, ReciprocityModel::kDifference), "-3.00");
  EXPECT_EQ(cell(0, ReciprocityModel::kSigmas), "–");
  click(0, ReciprocityModel::kDifference);
  EXPECT_EQ(inView(), "1, 7");  // at 12 m
  click(0, ReciprocityModel::kBack);
  EXPECT_EQ(inView(), "3, 1");
  child<QPushButton>("thereButton").click();
  EXPECT_EQ(inView(), "1, 7");
  child<QPushButton>("backButton").click();
  EXPECT_EQ(inView(), "3, 1");

  table().setFocus();
  QTest::keyClick(&table(), Qt::Key_Down);
  EXPECT_EQ(inView(), "3, 1");  // not before it is asked for
  QTest::keyClick(&table(), Qt::Key_Return);
  EXPECT_NE(inView(), "3, 1");
  ASSERT_NE(dialog(), nullptr);
}

TEST_F(ReciprocityWindow, showsALateShotAsARowOfTheMatrix) {
  compare();
  for (std::size_t other = 0; other < 8; ++other) {
    if (other == 2) continue;
    EXPECT_NEAR(*matrix().difference({2, other}), 0.003, 1e-9);
    EXPECT_NEAR(*matrix().difference({other, 2}), -0.003, 1e-9);
  }
  EXPECT_NEAR(*matrix().difference({4, 7}), 0.0, 1e-9);
  EXPECT_FALSE(matrix().difference({4, 4}).has_value());

  const QImage picture = matrix().grab().toImage();
  const auto colorAt = [&](const ReciprocityMatrix::Cell& cell) {
    return picture.pixelColor(
        (matrix().rectOf(cell).center() * picture.devicePixelRatio()).toPoint());
  };
  EXPECT_GT(colorAt({2, 5}).red(), colorAt({2, 5}).blue() + 60);
  EXPECT_GT(colorAt({5, 2}).blue(), colorAt({5, 2}).red() + 60);
  EXPECT_LT(std::abs(colorAt({4, 7}).red() - colorAt({4, 7}).blue()), 20);

  QTest::mouseClick(&matrix(), Qt::LeftButton, {}, matrix().rectOf({2, 5}).center().toPoint());
  EXPECT_EQ(inView(), "3, 16");
  const QModelIndex current = table().currentIndex();
  EXPECT_EQ(cell(current.row(), ReciprocityModel::kFirst), "3");
  EXPECT_EQ(cell(current.row(), ReciprocityModel::kSecond), "6");
  matrix().setFocus();
  QTest::keyClick(&matrix(), Qt::Key_Right);
  EXPECT_TRUE(matrix().current() == (ReciprocityMatrix::Cell{2, 6}));
  EXPECT_EQ(inView(), "3, 16");
  QTest::keyClick(&matrix(), Qt::Key_Return);
  EXPECT_EQ(inView(), "3, 19");

  const QPoint at = matrix().rectOf({2, 6}).center().toPoint();
  QHelpEvent help(QEvent::ToolTip, at, matrix().mapToGlobal(at));
  QCoreApplication::sendEvent(&matrix(), &help);
  EXPECT_THAT(QToolTip::text().toStdString(), HasSubstr("Shot 3 to shot 7"));
  EXPECT_THAT(QToolTip::text().toStdString(), HasSubstr("difference 3.00 ms"));
}

TEST_F(ReciprocityWindow, mendsTheLateShotAndUndoBringsItBack) {
  compare();
  EXPECT_EQ(shots().currentRow(), 2);
  EXPECT_THAT(shots().item(2, 5)->text().toStdString(), HasSubstr("earlier by 3 ms"));
  child<QPushButton>("mendButton").click();
  EXPECT_NEAR(mendsOf(*window->document().recordings, 2).timeShift, 0.003, 1e-12);
  EXPECT_THAT(summary(), Not(HasSubstr("late")));
  EXPECT_FALSE(child<QPushButton>("mendButton").isEnabled());
  EXPECT_NEAR(*matrix().difference({2, 5}), 0.0, 1e-9);

  action("actionUndo").trigger();
  EXPECT_FALSE(mendsOf(*window->document().recordings, 2).any());
  expectSettled("Shot 3: the record is 3 ms late");
  EXPECT_TRUE(child<QPushButton>("mendButton").isEnabled());
}

TEST_F(ReciprocityWindow, followsThePicksAndKeepsTheChosenPair) {
  compare();
  table().sortByColumn(ReciprocityModel::kFirst, Qt::AscendingOrder);
  click(9, ReciprocityModel::kFirst);
  const std::string chosen = cell(9, ReciprocityModel::kFirst) + cell(9, ReciprocityModel::kSecond);
  child<editTravelTimesWidget>("showTracesWidget").editPick(6, 21, kNoTime);
  child<editTravelTimesWidget>("showTracesWidget").editPick(6, 20, kNoTime);
  child<editTravelTimesWidget>("showTracesWidget").editPick(6, 22, kNoTime);
  expectSettled("Pairs of shots: 27");
  const int row = table().currentIndex().row();
  EXPECT_EQ(cell(row, ReciprocityModel::kFirst) + cell(row, ReciprocityModel::kSecond), chosen);
}

TEST_F(ReciprocityWindow, saysWhyThereIsNothingToCompare) {
  for (TravelTime& record : writable().ttArray.edit()) {
    record.ttMisurati = std::vector<double>(24, kUnpicked);
  }
  showWritten();
  compare();
  const QWidget& empty = *child<QStackedWidget>("pages").currentWidget();
  EXPECT_THAT(empty.findChild<QLabel*>()->text().toStdString(),
              ::testing::HasSubstr("There are no picks yet"));
  QStringList offered;
  for (const QPushButton* button : empty.findChildren<QPushButton*>()) {
    if (button->isVisible()) offered << button->text();
  }
  EXPECT_EQ(offered.join(", ").toStdString(), "AutoPick all shots along the line, Geometry ...");
  EXPECT_EQ(child<QStackedWidget>("pages").currentWidget()->objectName().toStdString(),
            "emptyPage");
  child<editTravelTimesWidget>("showTracesWidget").editPick(0, 3, 0.012);
  child<editTravelTimesWidget>("showTracesWidget").editPick(1, 0, 0.012);
  expectSettled("Pairs of shots: 1, RMS of their differences: 0.00 ms.");
}

TEST_F(ReciprocityWindow, savesTheTableForSpreadsheets) {
  compare();
  const QString file = QString::fromStdString(home.file("pairs.csv"));
  dialogs.expectFiles(QStringLiteral("Save Reciprocal Times"), {file});
  child<QPushButton>("exportButton").click();
  QFile written(file);
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  const QList<QByteArray> lines = written.readAll().split('\n');
  ASSERT_EQ(lines.size(), 30);  // heading, pairs, and the end of the last line
  EXPECT_THAT(lines[0].toStdString(), HasSubstr("difference_ms"));
  EXPECT_EQ(lines[2].split(',').mid(0, 3), (QList<QByteArray>{"1", "0", "7"}));
  EXPECT_EQ(lines[2].split(',')[8], "-3");
}

}  // namespace
}  // namespace talvesk
