#include "app/dialogs/FitPanel.h"
#include "app/dialogs/SecondLookDialog.h"
#include "app/dialogs/progressTomographyDialog.h"
#include "app/dialogs/runTomography_Dialog.h"
#include "figures/SectionCamera.h"
#include "gui/WindowTest.h"
#include "model/ChiSquare.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/TomographyOutcome.h"
#include "support/InFeet.h"
#include "support/TestSurveys.h"
#include "view/SectionScene.h"
#include "widgets/SeriesPlot.h"
#include "widgets/section/SectionView.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <cmath>
#include <functional>

namespace talvesk::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class Fitting : public WindowTest {
 protected:
  /// Shots over two layers with recordings, and a grid under them. The picks of a shot may be late,
  /// seconds; one of its picks may be off by 20 ms.
  void openShots(int lateShot = -1, double late = 0.0, int grossShot = -1, int grossTrace = -1) {
    open();
    QStringList files;
    const double sources[] = {9.0, 15.0, 21.0, 27.0, 33.0};
    for (const double source : sources) {
      files << shotFile("shot" + std::to_string(files.size() + 1) + ".dat", source);
    }
    window->openFiles(files);
    TomoDocument& line = writable();
    ASSERT_EQ(line.ttArray.size(), 5U);
    pickTwoLayers(line, 450.0, 1800.0, 2.0);
    for (TravelTime& record : line.ttArray.edit()) {
      for (double& time : record.ttMisurati.edit()) time = time > 0.0 ? time : 0.0005;
    }
    const auto shift = [&](int shot, std::size_t trace, double by) {
      line.ttArray.edit()[static_cast<std::size_t>(shot)].ttMisurati.edit()[trace] += by;
    };
    for (std::size_t i = 0; lateShot >= 0 && i < 12; ++i) shift(lateShot, i, late);
    if (grossShot >= 0) shift(grossShot, static_cast<std::size_t>(grossTrace), 0.02);
    putGrid(line, 8.0, 1.0);
    showWritten();
  }
  /// Answers the dialog with a fit, after `fill` has seen it.
  void answerFit(std::function<void(QDialog&)> fill = {}) {
    dialogs.expect([fill = std::move(fill)](QWidget& widget) {
      auto* dialog = qobject_cast<runTomography_Dialog*>(&widget);
      ASSERT_NE(dialog, nullptr) << widget.windowTitle().toStdString();
      EXPECT_FALSE(dialog->fits()) << "solver passes are the way unless somebody says otherwise";
      dialog->findChild<QComboBox*>("methodBox")->setCurrentIndex(1);
      EXPECT_TRUE(dialog->fits());
      if (fill) fill(*dialog);
      dialog->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
    });
  }
  void expectResults() {
    dialogs.expect([this](QWidget& widget) {
      auto* box = qobject_cast<QMessageBox*>(&widget);
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->windowTitle().toStdString(), "Inversion results");
      results = box->text().toStdString();
      box->button(QMessageBox::Ok)->click();
    });
  }
  void run() { action("actionRun_tomography_inversion").trigger(); }
  void fit(std::function<void(QDialog&)> fill = {}) {
    answerFit(std::move(fill));
    expectResults();
    run();
  }
  SecondLookDialog& secondLookDialog() { return *window->findChild<SecondLookDialog*>(); }
  std::string told() { return child<QLabel>("misfitLabel").text().toStdString(); }

  std::string results;
};

bool waitForModels(QDialog& dialog) {
  const auto* panel = dialog.findChild<FitPanel*>("fitPanel");
  return QTest::qWaitFor([panel] { return panel->modelsKnown(); }, 60000);
}

TEST_F(Fitting, tellsHowTheSectionFitsAndIsUndoneInOneStep) {
  openShots();
  const std::vector<double> before = window->document().model->grid->slownesses();
  const std::size_t steps = window->session().steps();
  fit();
  const TomoDocument& line = window->document();
  ASSERT_TRUE(line.result->lastInversion && line.result->lastInversion->fit);
  const FitRecord& record = *line.result->lastInversion->fit;
  EXPECT_THAT(results, HasSubstr("Chi-square: "));
  EXPECT_THAT(results, HasSubstr("Weight of the roughness: "));
  EXPECT_THAT(results, HasSubstr("Started from and held to: "));
  EXPECT_THAT(results, Not(HasSubstr("Last solver pass")));
  EXPECT_NE(record.reference, "best") << "the model that was the best";
  EXPECT_THAT(told(), HasSubstr(", chi-square "));
  const ChiSquare shown = child<SectionView>("vtk_widget").scene()->fit;
  EXPECT_EQ(shown.count, 60U);
  EXPECT_DOUBLE_EQ(shown.chi2, record.chi2);
  EXPECT_EQ(window->session().steps(), steps + 1);
  window->session().undo();
  EXPECT_EQ(line.model->grid->slownesses(), before);
  EXPECT_FALSE(line.result->has_tomographic_info);
  EXPECT_EQ(told(), "");
}

TEST_F(Fitting, showsWhatItCanStartFromAndTakesWhatIsChosen) {
  openShots();
  fit([](QDialog& dialog) {
    ASSERT_TRUE(waitForModels(dialog));
    auto& table = *dialog.findChild<QTableWidget*>("referencesTable");
    QStringList names;
    for (int row = 0; row < table.rowCount(); ++row) {
      names << table.item(row, 0)->text();
      if (names.back() == QStringLiteral("Two layers")) {
        EXPECT_GT(table.item(row, 1)->text().toDouble(), 0.0);
        EXPECT_THAT(table.item(row, 2)->text().toStdString(), HasSubstr(" m/s from "));
      }
    }
    EXPECT_EQ(names.front().toStdString(), "Best of the picks' models");
    EXPECT_TRUE(names.contains("Two layers") && names.contains("Gradient")) << table.rowCount();
    EXPECT_FALSE(dialog.findChild<SeriesPlot*>("modelsPlot")->series().empty());
    table.selectRow(names.indexOf("Default model"));
  });
  EXPECT_EQ(window->document().result->lastInversion->fit->reference, "default");
  EXPECT_THAT(results, HasSubstr("Started from and held to: Default model"));
}

TEST_F(Fitting, offersTheLayersThatTheSurveyHas) {
  openShots();
  const TomoDocument& document = window->document();
  FitPanel panel;
  panel.setDocument(document, {{ReferenceKind::kLayers, document.model->grid->slownesses()}});
  panel.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return panel.modelsKnown(); }, 60000));
  auto& table = *panel.findChild<QTableWidget*>("referencesTable");
  const auto rows = table.findItems("Layered interpretation", Qt::MatchExactly);
  ASSERT_EQ(rows.size(), 1);
  EXPECT_FALSE(table.item(rows.front()->row(), 1)->text().isEmpty()) << "its chi-square";
  table.setCurrentItem(rows.front());
  EXPECT_EQ(panel.settings().reference, "layers");
  EXPECT_EQ(panel.settings().given.size(), 1U);
}

TEST_F(Fitting, tellsAtOnceWhatAnErrorMeans) {
  openShots();
  writable().ttArray.edit()[1].setError(3, 0.004);
  showWritten();
  fit();
  answerFit([](QDialog& dialog) {
    const auto text = [&dialog] {
      return dialog.findChild<QLabel*>("errorsMeanLabel")->text().toStdString();
    };
    const std::string usual = text();
    EXPECT_THAT(usual, HasSubstr("1 of 60 picks state an error of their own."));
    EXPECT_THAT(usual, HasSubstr("the present section has chi-square "));
    dialog.findChild<QDoubleSpinBox*>("floorEdit")->setValue(0.05);
    EXPECT_NE(text(), usual);
    dialog.findChild<QSpinBox*>("fitMinVelEdit")->setValue(9000);
    auto* ok = dialog.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok);
    EXPECT_FALSE(ok->isEnabled());
    EXPECT_THAT(dialog.findChild<QLabel*>("hintLabel")->text().toStdString(),
                HasSubstr("must be below"));
    dialog.reject();
  });
  run();
}

TEST_F(Fitting, takesTheErrorFromItsSliderHoweverThatIsMoved) {
  openShots();
  dialogs.expect([](QWidget& widget) {
    auto& dialog = dynamic_cast<runTomography_Dialog&>(widget);
    dialog.findChild<QComboBox*>("methodBox")->setCurrentIndex(1);
    auto& slider = *dialog.findChild<QSlider*>("floorSlider");
    auto& field = *dialog.findChild<QDoubleSpinBox*>("floorEdit");
    const auto moves = [&](const char* how, const std::function<void()>& move) {
      const double before = field.value();
      const int step = slider.value();
      move();
      EXPECT_GT(field.value(), before) << how;
      EXPECT_GT(slider.value(), step) << how;
    };
    moves("key", [&] { QTest::keyClick(&slider, Qt::Key_PageUp); });
    moves("groove", [&] { slider.triggerAction(QAbstractSlider::SliderPageStepAdd); });
    moves("wheel", [&] {
      const QPointF middle = slider.rect().center();
      QWheelEvent wheel(middle, slider.mapToGlobal(middle.toPoint()), {}, {0, 1200}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
      QApplication::sendEvent(&slider, &wheel);
    });
    field.setValue(0.01);
    for (int i = 0; i < 40; ++i) QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_GT(field.value(), 0.01) << "steps finer than the field add up";
    field.setValue(0.37);
    EXPECT_EQ(field.value(), 0.37) << "what is typed is no step of the slider";
    dialog.reject();
  });
  run();
}

TEST_F(Fitting, leadsFromASuspectToItsTrace) {
  openShots(-1, 0.0, 2, 9);
  child<QTabWidget>("tabWidget").setCurrentIndex(0);
  fit();
  ASSERT_TRUE(secondLookDialog().isVisible()) << "it opens by itself where there is something";
  auto& table = *secondLookDialog().findChild<QTableWidget*>("suspectsTable");
  ASSERT_EQ(table.rowCount(), 1);
  EXPECT_EQ(table.item(0, 0)->text().toStdString(), "3");
  EXPECT_EQ(table.item(0, 1)->text().toStdString(), "10");
  EXPECT_NEAR(table.item(0, 3)->text().toDouble(), -20.0, 2.0);
  table.setCurrentCell(0, 0);
  EXPECT_EQ(child<QTabWidget>("tabWidget").currentWidget(), &child<QWidget>("tab_3"));
  auto& traces = child<editTravelTimesWidget>("showTracesWidget");
  EXPECT_EQ(traces.shot(), 2);
  EXPECT_EQ(traces.currentTrace(), 9);

  // Without the pick there is nothing to look at any more.
  traces.editPick(2, 9, kNoTime);
  EXPECT_EQ(table.rowCount(), 0);
  EXPECT_THAT(secondLookDialog().findChild<QLabel*>("headLabel")->text().toStdString(),
              HasSubstr("Picks have changed"));
}

/// After solver passes, too, and whatever there is to look at.
TEST_F(Fitting, leadsFromTheStatusBarToGroundAtALimit) {
  openShots();
  auto& notice = child<QToolButton>("secondLookNotice");
  EXPECT_FALSE(notice.isVisible());
  dialogs.expect([](QWidget& widget) {
    widget.findChild<QSpinBox*>("extIter_edit")->setValue(2);
    widget.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
  });
  expectResults();
  run();
  TomoDocument& line = writable();
  ASSERT_FALSE(line.result->lastInversion->fit);
  const Grid& grid = *line.model->grid;
  std::uint32_t column = 0;
  while (line.result->hitCounts[grid.cellIndex(1, column)] == 0) ++column;
  std::vector<double> slownesses = grid.slownesses();
  slownesses[grid.cellIndex(1, column)] = 1.0 / line.result->lastInversion->maxVelocity;
  line.model.edit().grid = std::make_shared<const Grid>(grid.sharedGeometry(), slownesses);
  showWritten();
  child<QTabWidget>("tabWidget").setCurrentIndex(0);
  const QString limit = QStringLiteral("cells at a limit of the velocity: ");
  ASSERT_TRUE(QTest::qWaitFor([&] { return notice.toolTip().contains(limit); }, 5000))
      << notice.toolTip().toStdString();
  EXPECT_TRUE(notice.isVisible());
  EXPECT_THAT(notice.text().toStdString(), HasSubstr("Second look ("));
  notice.click();
  auto& cells = *secondLookDialog().findChild<QListWidget*>("cellsList");
  ASSERT_GE(cells.count(), 1);
  int atLimit = -1;
  for (int row = 0; row < cells.count(); ++row) {
    if (cells.item(row)->text().contains(QStringLiteral("at the limit of"))) atLimit = row;
  }
  ASSERT_GE(atLimit, 0);
  QEvent change(QEvent::LanguageChange);
  {
    const testing::InFeet feet;
    QApplication::sendEvent(window.get(), &change);
    EXPECT_THAT(cells.item(atLimit)->text().toStdString(), HasSubstr(" ft/s: "));
  }
  QApplication::sendEvent(window.get(), &change);
  EXPECT_THAT(cells.item(atLimit)->text().toStdString(), HasSubstr(" m/s: "));
  cells.setCurrentRow(atLimit);
  EXPECT_EQ(child<QTabWidget>("tabWidget").currentWidget(), &child<QWidget>("vtk_tab"));
  auto& view = child<SectionView>("vtk_widget");
  const double near = view.camera().metresPerPixel;
  const Point2D cell{column - line.model->xOffset + 0.5, line.model->surface(column + 0.5) - 1.5};
  EXPECT_TRUE(QRectF(view.plotRect()).contains(view.pointOf(cell)));
  view.resetView();
  EXPECT_LT(near, view.camera().metresPerPixel);
}

TEST_F(Fitting, takesFoundTimeShiftsOverAsMends) {
  openShots(1, 0.005);
  const double picked = window->document().ttArray[1].ttMisurati[5];
  fit([](QDialog& dialog) {
    EXPECT_FALSE(dialog.findChild<QDoubleSpinBox*>("triggerEdit")->isEnabled());
    dialog.findChild<QCheckBox*>("staticsBox")->setChecked(true);
    dialog.findChild<QDoubleSpinBox*>("triggerEdit")->setValue(5.0);
  });
  EXPECT_THAT(results, HasSubstr("Time shifts of shots: [ms] shot 1: "));
  EXPECT_THAT(told(), HasSubstr("with the time shifts of shots"));
  const double fitted = sectionChiSquareOf(window->document()).chi2;
  SecondLookDialog& look = secondLookDialog();
  ASSERT_TRUE(look.isVisible());
  auto& table = *look.findChild<QTableWidget*>("shiftsTable");
  ASSERT_EQ(table.rowCount(), 5);
  EXPECT_NEAR(table.item(1, 1)->text().toDouble(), 4.0, 1.2) << "5 ms, less the mean of all shots";
  table.setCurrentCell(1, 1);
  EXPECT_EQ(child<QTabWidget>("tabWidget").currentWidget(), &child<QWidget>("tab_3"));
  EXPECT_EQ(child<editTravelTimesWidget>("showTracesWidget").shot(), 1);
  table.item(3, 0)->setCheckState(Qt::Unchecked);
  QEvent change(QEvent::LanguageChange);
  QApplication::sendEvent(window.get(), &change);
  EXPECT_EQ(table.item(3, 0)->checkState(), Qt::Unchecked) << "what was chosen stays";
  table.item(3, 0)->setCheckState(Qt::Checked);
  look.findChild<QPushButton*>("takeOverButton")->click();
  const TomoDocument& line = window->document();
  ASSERT_GE(line.recordings->mends.size(), 2U);
  const double shift = line.recordings->mends[1].timeShift;
  EXPECT_NEAR(shift, 0.004, 0.0012);
  EXPECT_DOUBLE_EQ(line.ttArray[1].ttMisurati[5], picked - shift);
  EXPECT_EQ(table.rowCount(), 0) << "what is taken over is not proposed again";
  EXPECT_FALSE(sectionChiSquareOf(line).shifted);
  EXPECT_NEAR(sectionChiSquareOf(line).chi2, fitted, 0.1) << "whole samples of 0.25 ms";
  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Take over time shifts\"");
  action("actionUndo").trigger();
  EXPECT_EQ(line.ttArray[1].ttMisurati[5], picked);
  EXPECT_EQ(table.rowCount(), 5);
}

TEST_F(Fitting, leavesTheSurveyAloneWhenItIsStoppedAtOnce) {
  openShots();
  const std::size_t steps = window->session().steps();
  answerFit();
  class Stopper : public QObject {
   public:
    bool eventFilter(QObject* object, QEvent* event) override {
      auto* progress = qobject_cast<progressTomographyDialog*>(object);
      if (event->type() == QEvent::Show && progress != nullptr) {
        progress->findChild<QPushButton*>("stopButton")->click();
      }
      return false;
    }
  } stopper;
  qApp->installEventFilter(&stopper);
  run();
  EXPECT_FALSE(window->document().result->has_tomographic_info);
  EXPECT_EQ(window->session().steps(), steps);
  EXPECT_TRUE(action("actionGrid").isEnabled());
  EXPECT_EQ(child<QStatusBar>("statusBar").currentMessage().toStdString(),
            "Stopped before anything was found; the section is as it was.");
}

}  // namespace
}  // namespace talvesk::testing
