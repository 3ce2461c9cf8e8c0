#include "app/dialogs/gridDialog.h"
#include "app/dialogs/progressTomographyDialog.h"
#include "app/dialogs/runTomography_Dialog.h"
#include "app/dialogs/select_speed_Dialog.h"
#include "app/dialogs/setVelocityWidget.h"
#include "app/dialogs/smoothingDialog.h"
#include "gui/ModalScript.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "support/TestSurveys.h"
#include "tomo/StartingModel.h"
#include "widgets/MisfitPlot.h"
#include "widgets/draw1DVelocityProfile.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTextBrowser>
#include <stdexcept>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using testing::ConsoleCapture;
using testing::ModalScript;

template <typename Widget>
Widget& child(const QWidget& parent, const char* name) {
  auto* found = parent.findChild<Widget*>(QLatin1String(name));
  if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
  return *found;
}

std::string text(const QWidget& parent, const char* label) {
  return child<QLabel>(parent, label).text().toStdString();
}

// --- Grid

/// 24 geophones 2 m apart, shots at both ends: 50 m of array from -1 m of the first shot on.
class GridDialog : public ::testing::Test {
 protected:
  gridDialog& open(const GridSettings& proposed) {
    dialog = std::make_unique<gridDialog>(survey, survey.surveyProfile(), proposed, 2);
    return *dialog;
  }
  QDoubleSpinBox& cellSize() { return child<QDoubleSpinBox>(*dialog, "cellSizeEdit"); }
  QCheckBox& propose() { return child<QCheckBox>(*dialog, "proposeCBox"); }
  std::string warning() { return text(*dialog, "warningLabel"); }

  TomoDocument survey = testing::testLine(24, 2.0, {-1.0, 47.0});
  std::unique_ptr<gridDialog> dialog;
};

TEST_F(GridDialog, showsWhatIsProposedAndTheGridThatItMakes) {
  open({25.0, 0.5, 6});
  EXPECT_EQ(dialog->windowTitle().toStdString(), "Grid Settings");
  EXPECT_EQ(text(*dialog, "arrayLength"), QLocale().toString(50.0, 'f', 2).toStdString());
  EXPECT_EQ(dialog->settings().maxDepth, 25.0);
  EXPECT_EQ(dialog->settings().cellSize, 0.5);
  EXPECT_EQ(dialog->settings().nodes, 6U);
  EXPECT_EQ(text(*dialog, "columnsFigure"), "100");
  EXPECT_EQ(text(*dialog, "rowsFigure"), "50");
  EXPECT_EQ(text(*dialog, "cellsFigure"), QLocale().toString(5000).toStdString());
  // 51 lines of 501 nodes, 50 rows of 4 levels of 101.
  EXPECT_EQ(text(*dialog, "nodesFigure"), QLocale().toString(45751).toStdString());
  cellSize().setValue(1.0);
  EXPECT_EQ(text(*dialog, "columnsFigure"), "50");
  EXPECT_EQ(warning(), "");
}

TEST_F(GridDialog, keepsValuesInTheRangesOfItsFields) {
  open({80.0, 0.0, 0});
  EXPECT_EQ(dialog->settings().maxDepth, 50.0) << "no deeper than the array is long";
  EXPECT_EQ(dialog->settings().cellSize, 0.1);
  EXPECT_EQ(dialog->settings().nodes, 6U);
}

TEST_F(GridDialog, givesBackWhatWasProposedWithAllItsDigits) {
  open({24.2451237, 0.33333, 6});
  EXPECT_EQ(child<QDoubleSpinBox>(*dialog, "maxDepthEdit").value(), 24.245);
  EXPECT_EQ(dialog->settings().maxDepth, 24.2451237);
  EXPECT_EQ(dialog->settings().cellSize, 0.33333);
  cellSize().setValue(0.5);
  child<QDoubleSpinBox>(*dialog, "maxDepthEdit").setValue(12.125);
  EXPECT_EQ(dialog->settings().cellSize, 0.5);
  EXPECT_EQ(dialog->settings().maxDepth, 12.125);
}

TEST_F(GridDialog, goesBetweenTheProposalAndTheGridThereIs) {
  open({25.0, 0.5, 6});
  EXPECT_TRUE(propose().isChecked());
  propose().click();
  EXPECT_EQ(dialog->settings().cellSize, 0.1) << "the least, without a grid";
  propose().click();
  EXPECT_EQ(dialog->settings().cellSize, 0.5);
  cellSize().setValue(1.25);
  EXPECT_FALSE(propose().isChecked()) << "this is no proposal";
  testing::putGrid(survey, 12.0, 0.8);
  open({25.0, 0.5, 6});
  propose().click();
  EXPECT_EQ(dialog->settings().cellSize, 0.8);
}

TEST_F(GridDialog, countsWhatTheLastColumnDoesNotReachAndOffersSizesThatDo) {
  testing::pickTwoLayers(survey, 450.0, 1800.0, 3.0);
  open({25.0, 1.0, 6});
  cellSize().setValue(3.5);  // 14 columns, 49 m: just reached
  EXPECT_EQ(warning(), "");
  EXPECT_TRUE(child<QPushButton>(*dialog, "largerButton").isHidden());
  cellSize().setValue(3.0);  // 16 columns and a node, 48.6 m
  EXPECT_THAT(warning(), ::testing::HasSubstr("beyond the last column, 24 of 48 picks."));
  // 17 columns of 2.941 m; 16 of 3.025 m and a node, 49.005 m.
  for (const auto& [button, size] :
       {std::pair("smallerButton", 2.941), std::pair("largerButton", 3.025)}) {
    cellSize().setValue(3.0);
    child<QPushButton>(*dialog, button).click();
    EXPECT_EQ(dialog->settings().cellSize, size);
    EXPECT_EQ(warning(), "");
    EXPECT_TRUE(child<QPushButton>(*dialog, button).isHidden());
  }
}

TEST_F(GridDialog, tellsOfPositionsThatTheLastColumnDoesNotReachBeforeThereAreShots) {
  survey.ttArray.edit().clear();
  open({25.0, 1.0, 6});
  cellSize().setValue(10.0);  // 4 columns, 42 m of 48
  EXPECT_THAT(warning(), ::testing::HasSubstr("beyond the last column"));
}

TEST_F(GridDialog, saysAllThatHoldsAtOnce) {
  survey.result.edit().has_tomographic_info = true;
  open({0.0, 3.0, 6});
  for (const char* words :
       {"no rows", "beyond the last column", "last inversion will be removed"}) {
    EXPECT_THAT(warning(), ::testing::HasSubstr(words));
  }
}

TEST_F(GridDialog, tellsThatTheSmallestCellsAreSlow) {
  open({25.0, 0.1, 6});
  EXPECT_THAT(warning(),
              ::testing::HasSubstr("is " + QLocale().toString(0.5, 'f', 2).toStdString() + " m."));
  cellSize().setValue(0.25);
  EXPECT_EQ(warning(), "");
}

TEST_F(GridDialog, warnsAndClosesAllTheSame) {
  ModalScript dialogs;
  open({25.0, 1.0, 15});
  dialog->accept();
  EXPECT_TRUE(dialogs.finished()) << "15 nodes are none too many";
  child<QDoubleSpinBox>(*dialog, "maxDepthEdit").setValue(0.0);
  child<QSpinBox>(*dialog, "nodesEdit").setValue(16);
  dialogs.expectBox("Invalid parameter",
                    "The max depth parameter set to 0.0 is not valid for tomography", "",
                    QMessageBox::Ok);
  dialogs.expectBox("Memory warning", "A large number of nodes may require a lot of memory", "",
                    QMessageBox::Ok);
  dialog->setResult(QDialog::Rejected);
  dialog->accept();
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(dialog->settings().maxDepth, 0.0);
  EXPECT_EQ(dialog->settings().nodes, 16U);
}

// --- Inversion

TEST(RunTomographyDialog, startsWithItsDefaultsAndTheLimitsOfTheDocument) {
  const runTomography_Dialog dialog(312.9, 2800.2);
  const TomographyParameters p = dialog.parameters();
  EXPECT_EQ(p.externalIterations, 10);
  EXPECT_EQ(p.solverIterations, 20);
  EXPECT_EQ(p.smoothing, 5);
  EXPECT_EQ(p.minVelocity, 312.0);
  EXPECT_EQ(p.maxVelocity, 2800.0);
  EXPECT_EQ(p.smoothingType, SmoothingType::kRayBased);
  EXPECT_FALSE(p.symmetric || p.singleThread);
  EXPECT_EQ(text(dialog, "extIterLabel"), "Number of external iterations (default =5)");
  EXPECT_EQ(text(dialog, "smoothLabel"), "Smoothing parameter (default =5) ");
  EXPECT_EQ(child<QSpinBox>(dialog, "maxVelEdit").singleStep(), 10);
}

TEST(RunTomographyDialog, returnsWhatIsChosen) {
  const runTomography_Dialog dialog(250.0, 3500.0);
  child<QSpinBox>(dialog, "extIter_edit").setValue(3);
  child<QSpinBox>(dialog, "solvIter_Edit").setValue(7);
  child<QSpinBox>(dialog, "smooth_Edit").setValue(0);
  child<QComboBox>(dialog, "typeOfSmoothingCBox").setCurrentIndex(2);
  child<QCheckBox>(dialog, "symmetricSmoothCBox").setChecked(true);
  child<QCheckBox>(dialog, "checkBox").setChecked(true);
  const TomographyParameters p = dialog.parameters();
  EXPECT_EQ(p.externalIterations, 3);
  EXPECT_EQ(p.solverIterations, 7);
  EXPECT_EQ(p.smoothing, 1) << "the least there is";
  EXPECT_EQ(p.smoothingType, SmoothingType::kGaussian);
  EXPECT_TRUE(p.symmetric && p.singleThread);
}

TEST(RunTomographyDialog, goesFromCoarseToFineOnDemandOnly) {
  const runTomography_Dialog dialog(250.0, 3500.0);
  EXPECT_FALSE(dialog.parameters().coarseToFine);
  child<QCheckBox>(dialog, "coarseToFineCBox").setChecked(true);
  EXPECT_TRUE(dialog.parameters().coarseToFine);
}

TEST(RunTomographyDialog, proposesWhenItsButtonIsPressed) {
  runTomography_Dialog dialog(250.0, 3500.0);
  EXPECT_FALSE(child<QPushButton>(dialog, "proposeButton").isEnabled());
  dialog.setProposal(RunProposal{180.0, 4200.0, 11.5, 4}, 24.0);
  EXPECT_EQ(dialog.parameters().minVelocity, 250.0);
  EXPECT_EQ(dialog.parameters().smoothing, 5);
  child<QPushButton>(dialog, "proposeButton").click();
  const TomographyParameters p = dialog.parameters();
  EXPECT_EQ(p.minVelocity, 180.0);
  EXPECT_EQ(p.maxVelocity, 4200.0);
  EXPECT_EQ(p.smoothing, 4);
  const auto metres = [](double value) { return QLocale().toString(value, 'f', 1).toStdString(); };
  EXPECT_EQ(text(dialog, "proposalLabel"), "Rays are expected down to " + metres(11.5) +
                                               " m; the grid reaches " + metres(24.0) + " m.");
}

TEST(RunTomographyDialog, leavesAMinimumAboveTheMaximumAndTells) {
  const runTomography_Dialog dialog(250.0, 3500.0);
  EXPECT_EQ(text(dialog, "hintLabel"), "");
  child<QSpinBox>(dialog, "minVelEdit").setValue(4000);
  EXPECT_EQ(dialog.parameters().minVelocity, 4000.0);
  EXPECT_EQ(dialog.parameters().maxVelocity, 3500.0);
  EXPECT_THAT(text(dialog, "hintLabel"), ::testing::HasSubstr("above the maximum"));
  child<QSpinBox>(dialog, "minVelEdit").setValue(300);
  child<QSpinBox>(dialog, "maxVelEdit").setValue(200);
  EXPECT_EQ(dialog.parameters().minVelocity, 300.0);
}

struct FieldFacts {
  const char* name;
  double least;
  double most;
  double initial;
  int decimals;
};

void expectFields(const QWidget& form, const std::vector<FieldFacts>& fields) {
  for (const FieldFacts& field : fields) {
    SCOPED_TRACE(field.name);
    const auto& box = child<QAbstractSpinBox>(form, field.name);
    EXPECT_EQ(box.property("minimum").toDouble(), field.least);
    EXPECT_EQ(box.property("maximum").toDouble(), field.most);
    EXPECT_EQ(box.property("value").toDouble(), field.initial);
    EXPECT_EQ(box.property("decimals").toInt(), field.decimals);
  }
}

TEST(ParameterFields, haveTheRangesThatUsersMayChooseFrom) {
  constexpr double kMany = 999999999.0;
  expectFields(runTomography_Dialog(250.0, 3500.0), {{"extIter_edit", 1.0, kMany, 10.0, 0},
                                                     {"solvIter_Edit", 1.0, kMany, 20.0, 0},
                                                     {"smooth_Edit", 1.0, kMany, 5.0, 0},
                                                     {"minVelEdit", 1.0, kMany, 250.0, 0},
                                                     {"maxVelEdit", 1.0, kMany, 3500.0, 0}});
  expectFields(smoothingDialog(SmoothingType::kLinear), {{"smooth_Edit", 1.0, kMany, 5.0, 0}});
  expectFields(setVelocityWidget({1.5, 300.0, 2.25, 2500.0}),
               {{"d1Edit", 0.0, 999.99, 1.5, 2},
                {"v1Edit", 0.0, 999999.0, 300.0, 0},
                {"d2Edit", 0.0, 999.99, 2.25, 2},
                {"v2Edit", 0.0, 999999.0, 2500.0, 0}});
}

// --- Progress

TEST(ProgressDialog, countsIterations) {
  progressTomographyDialog dialog;
  dialog.setTotal(3.0);
  dialog.addCompleted();
  EXPECT_EQ(child<QProgressBar>(dialog, "progressBar").value(), 33) << "truncated";
  dialog.addCompleted();
  TomographyProgress progress;
  dialog.addMisfit(progress);
  EXPECT_EQ(child<MisfitPlot>(dialog, "misfitPlot").points(), 0U) << "no picks, no misfit";
  progress.misfit.count = 5;
  dialog.addMisfit(progress);
  EXPECT_EQ(child<MisfitPlot>(dialog, "misfitPlot").points(), 1U);
  EXPECT_EQ(child<QTextBrowser>(dialog, "textBrowser").toPlainText().toStdString(),
            "Completed iteration 1\nCompleted iteration 2\n");
  EXPECT_EQ(child<QProgressBar>(dialog, "progressBar").value(), 66);
}

TEST(ProgressDialog, asksToStopOnceWhetherByButtonOrByClosing) {
  progressTomographyDialog dialog;
  QSignalSpy stopped(&dialog, &progressTomographyDialog::stopped);
  dialog.show();
  dialog.close();
  EXPECT_TRUE(dialog.isVisible()) << "the inversion still goes on";
  child<QPushButton>(dialog, "stopButton").click();
  EXPECT_EQ(stopped.count(), 1);
}

// --- Starting model

class Layers : public ::testing::Test {
 protected:
  Layers() : line(testing::testLine(24, 2.0, {-1.0, 47.0})) {
    testing::putGrid(line, 24.0, 1.0);
    line.result.edit().has_tomographic_info = true;
    line.result.edit().RMSE_tomography = 4.0;
  }
  std::vector<VelocityLayer> open(const std::vector<VelocityLayer>& layers = {}) {
    line.model.edit().layers = layers;
    dialog = std::make_unique<select_speed_Dialog>(line);
    dialog->show();
    return dialog->layers();
  }
  void click(const char* button) { child<QPushButton>(*dialog, button).click(); }
  setVelocityWidget& row(int i) {
    auto& list = child<QListWidget>(*dialog, "listWidget");
    return *qobject_cast<setVelocityWidget*>(list.itemWidget(list.item(i)));
  }
  static std::string described(const std::vector<VelocityLayer>& layers) {
    std::string text;
    for (const VelocityLayer& l : layers) {
      text += QStringLiteral("%1-%2: %3-%4; ")
                  .arg(l.initialDepth)
                  .arg(l.finalDepth)
                  .arg(l.initialVelocity)
                  .arg(l.finalVelocity)
                  .toStdString();
    }
    return text;
  }

  ConsoleCapture console;
  ModalScript dialogs;
  TomoDocument line;
  std::unique_ptr<select_speed_Dialog> dialog;
};

TEST_F(Layers, beginWithOneOverTheWholeGridThatAddSplits) {
  const std::string taken = "[LOG] accepted - speedlayer for loop \n";
  EXPECT_EQ(described(open()), "0-24: 300-2500; ");
  EXPECT_EQ(console.out(), "") << "nothing is taken from rows that nobody has changed";
  click("addButton");
  EXPECT_EQ(described(dialog->layers()), "0-12: 300-1400; 12-24: 1400-2500; ");
  EXPECT_EQ(console.out(), taken + taken) << "one line for each row";
  click("addButton");
  EXPECT_EQ(described(dialog->layers()), "0-12: 300-1400; 12-18: 1400-1950; 18-24: 1950-2500; ");
  EXPECT_EQ(child<QPushButton>(*dialog, "addButton").text().toStdString(), "Add");
  EXPECT_EQ(child<draw1DVelocityProfile>(*dialog, "widget").largestVelocity(), 2500.0);
  dialog->reject();
  EXPECT_TRUE(line.model->layers.empty() && line.result->has_tomographic_info);
}

TEST_F(Layers, goWhenCheckedOrSelected) {
  open({{0, 300, 6, 600}, {6, 600, 12, 900}, {12, 900, 24, 2000}});
  EXPECT_FALSE(child<QPushButton>(*dialog, "removeButton").isEnabled());
  child<QCheckBox>(row(0), "checkBox").setChecked(true);
  child<QListWidget>(*dialog, "listWidget").item(2)->setSelected(true);
  click("removeButton");
  EXPECT_EQ(described(dialog->layers()), "6-12: 600-900; ");
  EXPECT_FALSE(child<QPushButton>(*dialog, "removeButton").isEnabled());
  child<QCheckBox>(row(0), "checkBox").setChecked(true);
  click("removeButton");
  EXPECT_EQ(described(dialog->layers()), "");
  dialogs.expectBox("Define model velocity", "The layers make no velocity model.", "No layer",
                    QMessageBox::Ok);
  dialog->accept();
  EXPECT_TRUE(dialog->isVisible());
  click("addButton");
  EXPECT_EQ(described(dialog->layers()), "0-24: 300-2500; ");
}

TEST_F(Layers, giveTheirSplineToTheGridAndStayInTheDocument) {
  open({{0, 300.7, 12, 900.2}, {12, 900, 24, 2000}});
  child<QSpinBox>(row(1), "v2Edit").setValue(1500);
  child<draw1DVelocityProfile>(*dialog, "widget");
  dialog->accept();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(described(line.model->layers), "0-12: 300-900; 12-24: 900-1500; ");
  const Splines::CubicSpline spline = layerSpline(line.model->layers);
  for (std::uint32_t r = 0; r < line.model->grid->righe(); ++r) {
    EXPECT_EQ(line.model->grid->slowness(line.model->grid->cellIndex(r, 3)), 1.0 / spline(r * 1.0))
        << r;
  }
  EXPECT_FALSE(line.result->has_tomographic_info) << "results of another model";
  EXPECT_LT(line.result->RMSE_tomography, 0.0);
}

TEST_F(Layers, rowsThatAreNoneAreDroppedSilently) {
  open({{0, 300, 12, 900}, {12, 900, 24, 2000}});
  child<QDoubleSpinBox>(row(1), "d2Edit").setValue(12.0);
  dialog->accept();
  EXPECT_EQ(described(line.model->layers), "0-12: 300-900; ");
}

TEST_F(Layers, thatSwingBelowZeroAreShownAndExplained) {
  open({{0, 5000, 11.9, 5000}, {11.9, 200, 24, 200}});
  EXPECT_TRUE(child<draw1DVelocityProfile>(*dialog, "widget").showsNonPositiveZone());
  EXPECT_THAT(text(*dialog, "problemLabel"), ::testing::HasSubstr("no velocity of the ground"));
  const std::vector<double> before = line.model->grid->slownesses();
  EXPECT_TRUE(child<QPushButton>(*dialog, "sharpButton").isVisible());
  dialogs.expectBox("Define model velocity", "The layers make no velocity model.",
                    "Do you want sharp layers instead?", QMessageBox::No);
  dialog->accept();
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(line.model->grid->slownesses(), before);
  child<QSpinBox>(row(0), "v1Edit").setValue(200);
  child<QSpinBox>(row(0), "v2Edit").setValue(200);
  EXPECT_FALSE(child<draw1DVelocityProfile>(*dialog, "widget").showsNonPositiveZone());
  EXPECT_EQ(text(*dialog, "problemLabel"),
            "The results of the last inversion will be removed (Undo brings them back).");
  EXPECT_FALSE(child<QPushButton>(*dialog, "sharpButton").isVisible());
  line.result.edit().has_tomographic_info = false;
  child<QSpinBox>(row(0), "v1Edit").setValue(201);
  EXPECT_EQ(text(*dialog, "problemLabel"), "");
}

TEST_F(Layers, thatNoSplineCarriesGoSharpOrGradedIntoTheGrid) {
  const std::vector<VelocityLayer> jump = {{0, 5000, 12, 5000}, {12, 200, 24, 200}};
  const auto velocityOfRow = [this](std::uint32_t r) {
    return line.model->grid->velocity(line.model->grid->cellIndex(r, 3));
  };
  open(jump);
  EXPECT_FALSE(child<QDoubleSpinBox>(*dialog, "thicknessEdit").isEnabled());
  dialogs.expectBox("Define model velocity", "The layers make no velocity model.",
                    "Do you want sharp layers instead?", QMessageBox::Yes);
  dialog->accept();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_NEAR(velocityOfRow(11), 5000.0, 1e-9);
  EXPECT_NEAR(velocityOfRow(12), 200.0, 1e-9);
  EXPECT_EQ(startingModelOf(line), StartingModel::kLayered);

  open(jump);
  EXPECT_EQ(child<QComboBox>(*dialog, "fillCombo").currentIndex(), 1) << "as the grid has them";
  EXPECT_FALSE(child<draw1DVelocityProfile>(*dialog, "widget").showsNonPositiveZone());
  child<QComboBox>(*dialog, "fillCombo").setCurrentIndex(2);
  child<QDoubleSpinBox>(*dialog, "thicknessEdit").setValue(4.0);
  dialog->accept();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_NEAR(velocityOfRow(9), 5000.0, 1e-9);
  EXPECT_NEAR(velocityOfRow(11), 3200.0, 1e-9);
  EXPECT_NEAR(velocityOfRow(12), 2000.0, 1e-9);
  EXPECT_NEAR(velocityOfRow(14), 200.0, 1e-9);
}

}  // namespace
}  // namespace talvesk
