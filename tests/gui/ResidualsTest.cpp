#include "app/dialogs/ResidualsDialog.h"
#include "gui/WindowTest.h"
#include "io/Survey.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "support/TestSurveys.h"
#include "tomo/TomographyRun.h"
#include "view/RayLines.h"
#include "widgets/MatrixView.h"
#include "widgets/PointPlot.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QToolTip>
#include <cmath>

namespace talvesk::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

/// Five shots over two layers, inverted; then the section explains all picks, but for trace 10 of
/// shot 3, which is 20 ms late.
class ResidualsWindow : public WindowTest {
 protected:
  ResidualsWindow() {
    open();
    QStringList files;
    for (const double source : {9.0, 15.0, 21.0, 27.0, 33.0}) {
      files << shotFile("shot" + std::to_string(files.size() + 1) + ".dat", source);
    }
    window->openFiles(files);
    TomoDocument& line = writable();
    pickTwoLayers(line, 450.0, 1800.0, 2.0);
    for (TravelTime& record : line.ttArray.edit()) {
      for (double& time : record.ttMisurati.edit()) time = std::max(time, 0.5e-3);
    }
    putGrid(line, 8.0, 1.0);
    TomographyParameters few;
    few.externalIterations = 2;
    few.solverIterations = 2;
    Log nowhere;
    EXPECT_TRUE(runInversion(line, few, nowhere).status.ok());
    for (TravelTime& record : line.ttArray.edit()) {
      for (std::size_t i = 0; i < 12; ++i) {
        record.ttMisurati.edit()[i] = record.ttCalcolati[i] + (i % 2 == 0 ? 1e-4 : -1e-4);
      }
    }
    line.ttArray.edit()[2].ttMisurati.edit()[9] += 0.02;
    showWritten();
    window->showFile(0);
  }
  void look() {
    action("actionResiduals").trigger();
    ASSERT_NE(dialog(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog()));
  }
  ResidualsDialog* dialog() { return window->findChild<ResidualsDialog*>(); }
  MatrixView& map() { return child<MatrixView>("map"); }
  PointPlot& plot(const char* name) { return child<PointPlot>(name); }
  std::string head() { return child<QLabel>("headLabel").text().toStdString(); }
  std::string told() { return child<QLabel>("pickLabel").text().toStdString(); }
  void turnTo(int tab) {
    child<QTabWidget>("viewsTabs").setCurrentIndex(tab);
    QTest::qWait(50);
  }
  /// "3, 7" of the shot and trace in view, from 1.
  std::string inView() {
    const auto& traces = child<editTravelTimesWidget>("showTracesWidget");
    return std::to_string(traces.shot() + 1) + ", " + std::to_string(traces.currentTrace() + 1);
  }
  void clickCell(std::size_t row, std::size_t column) {
    QTest::mouseClick(&map(), Qt::LeftButton, {}, map().rectAt({row, column}).center().toPoint());
  }
  bool settled(const std::string& text) {
    return QTest::qWaitFor([&] { return head().find(text) != std::string::npos; }, 5000);
  }
};

TEST_F(ResidualsWindow, goesFromTheMapToThePicks) {
  look();
  EXPECT_THAT(head(), HasSubstr("Misfit of the section: RMS 2.57 ms"));
  EXPECT_THAT(head(), HasSubstr("Picks: 60, suspect: 1."));
  EXPECT_EQ(map().picture().marked, (std::vector<std::size_t>{2 * 12 + 9}));
  clickCell(2, 9);
  EXPECT_EQ(inView(), "3, 10");
  EXPECT_THAT(told(), HasSubstr("Shot 3, geophone 10 at 28 m, offset 7 m: measured "));
  EXPECT_THAT(told(), HasSubstr("residual -19.90 ms"));
  EXPECT_THAT(told(), HasSubstr("; suspect"));

  map().setFocus();
  QTest::keyClick(&map(), Qt::Key_Right);
  QTest::keyClick(&map(), Qt::Key_Down);
  EXPECT_EQ(inView(), "3, 10") << "not before it is asked for";
  EXPECT_THAT(told(), HasSubstr("Shot 4, geophone 11"));
  QTest::keyClick(&map(), Qt::Key_Return);
  EXPECT_EQ(inView(), "4, 11");
  ASSERT_NE(dialog(), nullptr);
  EXPECT_TRUE(dialog()->isVisible());

  const QPoint at = map().rectAt({0, 3}).center().toPoint();
  QHelpEvent help(QEvent::ToolTip, at, map().mapToGlobal(at));
  QCoreApplication::sendEvent(&map(), &help);
  EXPECT_THAT(QToolTip::text().toStdString(), HasSubstr("Shot 1, geophone 4"));
}

TEST_F(ResidualsWindow, showsTheSamePickInEveryView) {
  look();
  turnTo(1);
  PointPlot& offsets = plot("offsetPlot");
  const std::size_t gross = dialog()->table().pickOf(2, 9);
  const PickResidual pick = dialog()->table().picks[gross];
  QTest::mouseClick(offsets.canvas(), Qt::LeftButton, {},
                    offsets.toCanvas({pick.offset, 1e3 * pick.residual}).toPoint());
  EXPECT_EQ(inView(), "3, 10");
  EXPECT_TRUE(map().currentPlace() == (MatrixView::Place{2, 9}));
  offsets.setFocus();
  QTest::keyClick(&offsets, Qt::Key_Right, Qt::ControlModifier);
  EXPECT_FALSE(map().currentPlace() == (MatrixView::Place{2, 9}));
  QTest::keyClick(&offsets, Qt::Key_Return);
  EXPECT_NE(inView(), "3, 10");

  turnTo(2);
  PointPlot& shots = plot("shotsPlot");
  shots.setFocus();
  for (int i = 0; i < 3; ++i) QTest::keyClick(&shots, Qt::Key_Right, Qt::ControlModifier);
  QTest::keyClick(&shots, Qt::Key_Return);
  EXPECT_EQ(inView(), "3, 10") << "the worst of the third shot";

  child<QComboBox>("shotBox").setCurrentIndex(3);
  const auto names = [&] {
    QStringList all;
    for (const PlotSeries& series : offsets.series()) all << series.name;
    return all;
  };
  EXPECT_TRUE(names().contains(QStringLiteral("Shot 3"))) << names().join(',').toStdString();
}

TEST_F(ResidualsWindow, tellsResidualsInErrorsOfThePicks) {
  look();
  const double milliseconds = map().picture().at(2, 9);
  EXPECT_NEAR(milliseconds, -19.9, 0.01);
  child<QComboBox>("unitBox").setCurrentIndex(1);
  const PickResidual pick = dialog()->table().picks[dialog()->table().pickOf(2, 9)];
  EXPECT_NEAR(map().picture().at(2, 9), pick.residual / pick.sigma, 1e-9);
  EXPECT_THAT(map().picture().legendTitle.toStdString(), HasSubstr("[pick errors]"));
}

TEST_F(ResidualsWindow, followsPicksUndoAndTheSection) {
  look();
  clickCell(1, 4);
  child<editTravelTimesWidget>("showTracesWidget").editPick(2, 9, kNoTime);
  EXPECT_TRUE(settled("Picks: 59, suspect: 0.")) << head();
  EXPECT_THAT(head(), HasSubstr("Picks have changed"));
  EXPECT_FALSE(map().hasValue({2, 9}));
  clickCell(2, 9);
  EXPECT_THAT(told(), HasSubstr("no pick with a computed time"));
  EXPECT_FALSE(child<QPushButton>("traceButton").isEnabled());
  action("actionUndo").trigger();
  EXPECT_TRUE(settled("Picks: 60, suspect: 1.")) << head();

  const Status gridded = window->session().apply(Edit::kGrid, [](Survey& survey) {
    survey.document.result.edit().clear();
    putGrid(survey.document, 6.0, 1.0);
    return Status();
  });
  ASSERT_TRUE(gridded.ok()) << gridded.message();
  EXPECT_TRUE(settled("There is no section yet")) << head();
  EXPECT_TRUE(map().picture().isEmpty());
  EXPECT_FALSE(child<QPushButton>("tableButton").isEnabled());
  child<QTabWidget>("viewsTabs").setCurrentIndex(1);
  bool offered = false;
  for (const QPushButton* button : child<QWidget>("offsetPlot").findChildren<QPushButton*>()) {
    offered |= button->isVisible() && button->text() == QLatin1String("Run tomography inversion");
  }
  EXPECT_TRUE(offered);
}

TEST_F(ResidualsWindow, givesItsTableAndPicturesAway) {
  look();
  const QString table = QString::fromStdString(home.file("residuals.csv"));
  dialogs.expectFiles(QStringLiteral("Save table of residuals"), {table});
  child<QPushButton>("tableButton").click();
  QFile written(table);
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  const QList<QByteArray> lines = written.readAll().split('\n');
  ASSERT_EQ(lines.size(), 62);  // heading, picks, and the end of the last line
  EXPECT_THAT(lines[34].toStdString(), HasSubstr("3,21,10,28,7,"));
  EXPECT_TRUE(lines[34].endsWith(",1"));

  for (int tab = 0; tab < 4; ++tab) {
    turnTo(tab);
    const QString picture =
        QString::fromStdString(home.file("view" + std::to_string(tab) + ".png"));
    dialogs.expectFiles(QStringLiteral("Save picture of residuals"), {picture});
    child<QPushButton>("pictureButton").click();
    const QImage image(picture);
    EXPECT_GT(image.width(), 500);
    QGuiApplication::clipboard()->clear();
    child<QPushButton>("copyButton").click();
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), image.size());
  }
}

TEST_F(ResidualsWindow, coloursTheGroundByTheRaysThroughIt) {
  const TomoDocument& line = window->document();
  ASSERT_FALSE(rayOwners(line).empty());
  look();
  turnTo(3);
  const QImage sheet = child<QWidget>("sheet").grab().toImage();
  int coloured = 0;
  for (int y = 0; y < sheet.height(); y += 3) {
    for (int x = 0; x < sheet.width(); x += 3) {
      coloured += sheet.pixelColor(x, y).saturation() > 60 ? 1 : 0;
    }
  }
  EXPECT_GT(coloured, 300);
}

}  // namespace
}  // namespace talvesk::testing
