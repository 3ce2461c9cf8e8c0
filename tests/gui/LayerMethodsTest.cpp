#include "app/dialogs/LayerMethodsDialog.h"
#include "app/dialogs/RefractionProcessingDialog.h"
#include "gui/WindowTest.h"
#include "model/ChiSquare.h"
#include "support/RefractionLines.h"
#include "widgets/PointPlot.h"

#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr int kPatience = 60000;  // ms

template <typename Widget>
Widget& part(QWidget& dialog, const char* name) {
  return *dialog.findChild<Widget*>(QLatin1String(name));
}

/// Layers by several methods, of a line whose true layers are known.
class LayerMethods : public testing::WindowTest {
 protected:
  explicit LayerMethods(const testing::DippingLayers& ground = testing::threeDippingLayers())
      : line(testing::standardDippingLine(ground, all.ttLayer)) {}

  LayerPicks picks() const { return layerPicksOf(line, all, errorRuleOf(line)); }
  static bool hasBands(const LayerMethodsDialog& dialog) {
    const auto& results = dialog.comparison().results;
    return !results.empty() && !results[0].layers.empty() &&
           !results[0].layers[0].depthBand.empty();
  }
  static bool isDone(LayerMethodsDialog& dialog) {
    return QTest::qWaitFor([&] { return hasBands(dialog); }, kPatience);
  }

  Interpretation all;
  TomoDocument line;
};

TEST_F(LayerMethods, standSideBySideWithTheirErrorsAfterAWhile) {
  LayerMethodsDialog dialog(picks());
  part<QSpinBox>(dialog, "boundsEdit").setValue(6);
  dialog.setVisible(true);
  ASSERT_TRUE(isDone(dialog));
  const auto& summary = part<QTableWidget>(dialog, "summaryTable");
  ASSERT_EQ(summary.rowCount(), 8) << "two refractors by four methods";
  EXPECT_EQ(summary.item(0, 1)->text(), QStringLiteral("Reciprocal"));
  EXPECT_EQ(summary.item(7, 1)->text(), QStringLiteral("Plus-minus"));
  EXPECT_THAT(summary.item(1, 3)->text().toStdString(), HasSubstr(" ± "));
  const std::string notes = part<QPlainTextEdit>(dialog, "notesText").toPlainText().toStdString();
  EXPECT_THAT(notes, HasSubstr("Layer 2: depths are farthest apart at "));
  EXPECT_THAT(notes, HasSubstr("Layer 3: methods disagree beyond the errors of the picks"));

  const auto& tabs = part<QTabWidget>(dialog, "tabs");
  EXPECT_TRUE(tabs.isTabVisible(2));
  const auto& layer = part<QTableWidget>(dialog, "layer2Table");
  EXPECT_EQ(layer.rowCount(), 60);
  EXPECT_EQ(layer.columnCount(), 10);
  EXPECT_EQ(layer.horizontalHeaderItem(3)->text(), QStringLiteral("Delay times:\ndepth [m]"));
  // At 50 m; none of the methods knows that the ground is so.
  const double depth = layer.item(25, 3)->text().section(QLatin1Char(' '), 0, 0).toDouble();
  EXPECT_NEAR(depth, testing::threeDippingLayers().depth(0, line.line->goephonesStringSet[0][25].x),
              0.3);
  EXPECT_THAT(part<QLabel>(dialog, "layer2Notes").text().toStdString(),
              HasSubstr("by 6 such interpretations"));
}

TEST_F(LayerMethods, errorBandsCanBeStoppedAndBegunAgain) {
  LayerMethodsDialog dialog(picks());
  part<QSpinBox>(dialog, "boundsEdit").setValue(1000);
  auto& stop = part<QPushButton>(dialog, "stopButton");
  dialog.setVisible(true);
  ASSERT_TRUE(QTest::qWaitFor([&] { return stop.isEnabled(); }, kPatience));
  EXPECT_EQ(part<QTableWidget>(dialog, "summaryTable").rowCount(), 8) << "at once";
  ASSERT_TRUE(QTest::qWaitFor([&] { return part<QProgressBar>(dialog, "progressBar").value() > 0; },
                              kPatience));
  stop.click();
  auto& start = part<QPushButton>(dialog, "startButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return start.isEnabled(); }, kPatience));
  EXPECT_EQ(part<QLabel>(dialog, "progressLabel").text().toStdString(), "Stopped: no error bands.");
  EXPECT_FALSE(hasBands(dialog));
  EXPECT_THAT(part<QLabel>(dialog, "layer2Notes").text().toStdString(),
              Not(HasSubstr("such interpretations")));
  part<QSpinBox>(dialog, "boundsEdit").setValue(2);
  start.click();
  EXPECT_TRUE(isDone(dialog));
}

TEST_F(LayerMethods, closingDoesNotWaitForThemAll) {
  auto dialog = std::make_unique<LayerMethodsDialog>(picks());
  part<QSpinBox>(*dialog, "boundsEdit").setValue(1000);
  dialog->setVisible(true);
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return part<QProgressBar>(*dialog, "progressBar").value() > 0; }, kPatience));
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  dialog.reset();
}

TEST_F(LayerMethods, goToASpreadsheet) {
  LayerMethodsDialog dialog(picks());
  part<QSpinBox>(dialog, "boundsEdit").setValue(2);
  ASSERT_TRUE(isDone(dialog));
  part<QPushButton>(dialog, "copyButton").click();
  const std::string text = QApplication::clipboard()->text().toStdString();
  EXPECT_THAT(text, StartsWith("layer\tposition_m\televation_m\treciprocal_depth_m\t"));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 121);
}

/// No refractor is marked.
TEST_F(LayerMethods, sayWhyTheySayNothing) {
  for (auto& own : all.ttLayer) {
    std::replace_if(
        own.layer.begin(), own.layer.end(), [](auto l) { return l > 1; }, 0U);
  }
  LayerMethodsDialog dialog(picks());
  dialog.setVisible(true);
  const auto& notes = part<QPlainTextEdit>(dialog, "notesText");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !notes.toPlainText().isEmpty(); }, kPatience));
  EXPECT_THAT(notes.toPlainText().toStdString(),
              HasSubstr("Delay times: no pick is assigned to a refractor."));
  EXPECT_FALSE(part<QPushButton>(dialog, "pictureButton").isEnabled());
  EXPECT_FALSE(part<QPushButton>(dialog, "tableButton").isEnabled());
  EXPECT_FALSE(part<QTabWidget>(dialog, "tabs").isTabVisible(1));
}

/// The way there, and to the files.
TEST_F(LayerMethods, areComparedFromTheDialogOfRefraction) {
  open();
  writable() = line;
  window->showFile(0);
  const QString picture = QString::fromStdString(home.file("methods.svg"));
  const QString table = QString::fromStdString(home.file("methods.csv"));
  dialogs.expect([&](QWidget& refraction) {
    EXPECT_FALSE(part<QPushButton>(refraction, "methodsButton").isEnabled()) << "nothing is marked";
    part<QPushButton>(refraction, "proposeButton").click();
    dialogs.expect([&](QWidget& found) {
      auto& dialog = dynamic_cast<LayerMethodsDialog&>(found);
      auto& save = part<QPushButton>(dialog, "pictureButton");
      ASSERT_TRUE(QTest::qWaitFor([&] { return save.isEnabled(); }, kPatience));
      dialogs.expectFiles("Save picture of layers by method", {picture});
      save.click();
      dialogs.expectFiles("Save table of layers by method", {table});
      part<QPushButton>(dialog, "tableButton").click();
      dialog.reject();
    });
    part<QPushButton>(refraction, "methodsButton").click();
    dynamic_cast<QDialog&>(refraction).accept();
  });
  action("actionRefraction").trigger();
  EXPECT_TRUE(dialogs.finished());
  const auto read = [](const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
  };
  EXPECT_THAT(read(picture), HasSubstr("Plus-minus"));
  EXPECT_THAT(read(table), StartsWith("layer,position_m,elevation_m,reciprocal_depth_m,"));
  window->session().markSaved();
}

/// An XY is taken from the plot of its criterion.
TEST_F(LayerMethods, anXYIsChosenWhereItIsJudged) {
  RefractionProcessingDialog dialog(line, all);
  dialog.show();
  auto& plot = part<PointPlot>(dialog, "roughnessPlot");
  EXPECT_TRUE(plot.series().empty()) << "nothing is built yet";
  part<QPushButton>(dialog, "buildButton").click();
  part<QTabWidget>(dialog, "tabs").setCurrentIndex(2);
  ASSERT_EQ(dialog.interpretation().refractData.cData[0].chosenXY, 0.0);
  ASSERT_FALSE(plot.series().empty());
  const auto& criteria = plot.series().back().points;
  ASSERT_EQ(criteria.size(), 13U) << "six spacings either way";
  EXPECT_EQ(criteria[6].x, 0.0);
  plot.setCurrent(9);
  QTest::keyClick(&plot, Qt::Key_Return);
  QCoreApplication::processEvents();
  const double wanted = criteria[9].x;
  EXPECT_EQ(dialog.interpretation().refractData.cData[0].chosenXY, wanted);
  EXPECT_EQ(part<QComboBox>(dialog, "xyCombo").currentData().toDouble(), wanted);
  EXPECT_EQ(plot.series().front().points.front().x, wanted) << "it is the one marked as chosen";
  dialog.accept();
}

}  // namespace
}  // namespace talvesk
