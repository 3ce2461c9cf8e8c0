#include "app/dialogs/gridDialog.h"
#include "app/dialogs/progressTomographyDialog.h"
#include "app/dialogs/runTomography_Dialog.h"
#include "gui/WindowTest.h"
#include "io/TravelTimeFile.h"
#include "model/GroundModel.h"
#include "model/Residuals.h"
#include "model/TomographyOutcome.h"
#include "support/TestSurveys.h"
#include "tomo/Misfit.h"
#include "tomo/fitted/CertaintyRun.h"
#include "view/SectionScene.h"
#include "widgets/section/SectionView.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QDragEnterEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <functional>
#include <memory>

namespace talvesk::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// Waits for the progress dialog. What it then does is the first event of the inversion: nothing
/// that the inversion tells can come before.
class ShowWatch : public QObject {
 public:
  explicit ShowWatch(std::function<void(progressTomographyDialog&)> act) : mAct(std::move(act)) {
    qApp->installEventFilter(this);
  }
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* progress = qobject_cast<progressTomographyDialog*>(object);
    if (event->type() == QEvent::Show && progress != nullptr && mAct) {
      QMetaObject::invokeMethod(
          progress, [act = std::move(mAct), progress] { act(*progress); }, Qt::QueuedConnection);
      mAct = nullptr;
    }
    return false;
  }

 private:
  std::function<void(progressTomographyDialog&)> mAct;
};

class Inverting : public WindowTest {
 protected:
  /// A line of 24 geophones and five shots over two layers; `missing` picks of each shot are not
  /// there.
  void openLine(std::size_t missing = 0) {
    TomoDocument line = testLine(24, 2.0, {-2.0, 9.0, 23.0, 37.0, 48.0}, 1.0);
    pickTwoLayers(line, 450.0, 1800.0, 3.0);
    for (TravelTime& record : line.ttArray.edit()) {
      for (std::size_t i = 0; i < missing; ++i) record.ttMisurati.edit()[i] = kUnpicked;
    }
    ASSERT_TRUE(writeTravelTimes(home.file("line.otte"), line).ok());
    open();
    window->openFiles({QString::fromStdString(home.file("line.otte"))});
    ASSERT_EQ(writable().ttArray.size(), 5U);
    window->session().markSaved();
  }
  void answerGrid(double depth, double cell) {
    dialogs.expect([=](QWidget& widget) {
      ASSERT_NE(qobject_cast<gridDialog*>(&widget), nullptr) << widget.windowTitle().toStdString();
      widget.findChild<QDoubleSpinBox*>(QStringLiteral("maxDepthEdit"))->setValue(depth);
      widget.findChild<QDoubleSpinBox*>(QStringLiteral("cellSizeEdit"))->setValue(cell);
      QTest::keyClick(&widget, Qt::Key_Return);
    });
  }
  void answerParameters(int external, int solver) {
    dialogs.expect([=](QWidget& widget) {
      ASSERT_NE(qobject_cast<runTomography_Dialog*>(&widget), nullptr)
          << widget.windowTitle().toStdString();
      widget.findChild<QSpinBox*>(QStringLiteral("extIter_edit"))->setValue(external);
      widget.findChild<QSpinBox*>(QStringLiteral("solvIter_Edit"))->setValue(solver);
      QTest::keyClick(&widget, Qt::Key_Return);
    });
  }
  void expectResults() {
    dialogs.expect([this](QWidget& widget) {
      auto* box = qobject_cast<QMessageBox*>(&widget);
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->windowTitle().toStdString(), "Inversion results");
      results = box->text();
      details = box->informativeText();
      box->button(QMessageBox::Ok)->click();
    });
  }
  void run() { action("actionRun_tomography_inversion").trigger(); }
  /// Does something once, as soon as the next inversion is under way.
  void whileRunning(const std::function<void(progressTomographyDialog&)>& act) {
    mWatch = std::make_unique<ShowWatch>(act);
  }

  QString results;
  QString details;

 private:
  std::unique_ptr<ShowWatch> mWatch;
};

TEST_F(Inverting, asksBeforeItGoesOnWithoutMostPicks) {
  openLine(12);
  dialogs.expectBox("Warning:", "Uncomplete set of picks. \n \n",
                    "Do you want to run tomography inversion anyway? ", QMessageBox::No);
  run();
  EXPECT_EQ(writable().model->grid, nullptr);
  EXPECT_FALSE(window->session().modified());
  EXPECT_THAT(log(), HasSubstr("Talvesk_MainWindows::on_actionRun_tomography_inversion_triggered"));
  EXPECT_THAT(log(), Not(HasSubstr("grid does not exist")));
}

TEST_F(Inverting, endsWhereADialogIsCancelled) {
  openLine(11);
  dialogs.expectAndCancel();  // the grid
  run();
  EXPECT_EQ(writable().model->grid, nullptr);
  EXPECT_FALSE(window->session().modified());
  EXPECT_THAT(log(), HasSubstr("grid does not exist; ask for parameter\n"));
  answerGrid(12.0, 1.0);
  dialogs.expectAndCancel();  // the parameters
  run();
  ASSERT_NE(writable().model->grid, nullptr);
  EXPECT_FALSE(writable().result->has_tomographic_info);
  EXPECT_THAT(log(), Not(HasSubstr("Running Tomography")));
}

TEST_F(Inverting, showsItsResults) {
  openLine();
  answerGrid(12.0, 1.0);
  answerParameters(2, 3);
  expectResults();
  run();
  const TomoDocument& line = writable();
  EXPECT_TRUE(line.result->has_tomographic_info && window->session().modified());
  ASSERT_TRUE(line.result->lastInversion);
  const Misfit misfit = line.result->lastInversion->history.back();
  EXPECT_EQ(line.result->RMSE_tomography, 100.0 * misfit.relativeRms);
  const SectionMisfit section = sectionMisfitOf(line);
  ASSERT_GT(section.count, 0);
  EXPECT_THAT(child<QLabel>("misfitLabel").text().toStdString(),
              HasSubstr("Misfit of the section: RMS "));
  const auto number = [](double value) { return QString::number(value, 'g', 6); };
  const QRegularExpression expected(
      QStringLiteral(
          "^Section, along fresh rays\nAll picks as they are, RMS: \\[ms\\] %5; \\[%\\] %6\n[^E]+"
          "Last solver pass\nElapsed time: \\[s\\] [0-9.e-]+\nRMSE: \\[ms\\] %1; "
          "\\[%\\] %2\nMaxError: \\[ms\\] %3; \\[%\\] %4\n$")
          .arg(number(1000.0 * misfit.rmse), number(100.0 * misfit.relativeRms),
               number(1000.0 * misfit.maxError), number(100.0 * misfit.maxRelativeError),
               number(1000.0 * section.rmse), number(100.0 * section.relativeRms)));
  EXPECT_TRUE(expected.match(results).hasMatch()) << results.toStdString();
  EXPECT_EQ(child<QTabWidget>("tabWidget").currentIndex(), 2);
  EXPECT_TRUE(child<QWidget>("showSimTT_CB").isEnabled());
  EXPECT_THAT(log(), HasSubstr("Running Tomography :Multi thread mode. \n"));
  EXPECT_THAT(log(), HasSubstr("Running Tomography - external iteration 1 ... COMPLETED. \n"));
  EXPECT_THAT(log(), Not(HasSubstr("Stop Request")));
  EXPECT_TRUE(action("actionGrid").isEnabled() && action("actionOpen_shot_files").isEnabled());
}

TEST_F(Inverting, keepsTheMisfitInViewAndSaysWhenPicksHaveChanged) {
  openLine();
  answerGrid(12.0, 1.0);
  answerParameters(1, 2);
  expectResults();
  const auto told = [this] { return child<QLabel>("misfitLabel").text().toStdString(); };
  EXPECT_EQ(told(), "");
  run();
  EXPECT_THAT(told(), StartsWith("Misfit of the section: RMS "));
  EXPECT_THAT(told(), Not(HasSubstr("changed")));
  const double pick = window->document().ttArray[0].ttMisurati[3];
  child<editTravelTimesWidget>("showTracesWidget").editPick(0, 3, 1.01 * pick);
  EXPECT_THAT(told(), HasSubstr("Picks have changed since."));
}

TEST_F(Inverting, findsOutHowSureTheSectionIsAndShowsIt) {
  openLine();
  answerGrid(12.0, 2.0);
  answerParameters(1, 2);
  expectResults();
  run();
  const double velocity = window->document().model->grid->velocity(0);
  dialogs.expect([](QWidget& dialog) {
    auto* members = dialog.findChild<QSpinBox*>(QStringLiteral("membersField"));
    EXPECT_EQ(members->value(), 24);
    members->setValue(4);
    dialog.findChild<QPushButton*>(QStringLiteral("startButton"))->click();
    EXPECT_FALSE(members->isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); }, 60000));
  });
  action("actionCertainty").trigger();
  const auto& certainty = window->document().result->certainty;
  ASSERT_TRUE(certainty);
  EXPECT_EQ(certainty->members + certainty->leftOut, 4);
  EXPECT_EQ(window->document().model->grid->velocity(0), velocity) << "the section stays";
  const SectionScene& scene = *child<SectionView>("vtk_widget").scene();
  EXPECT_EQ(scene.quantity, SectionQuantity::kCertainty);
  EXPECT_TRUE(action("actionShow_Certainty_Layer").isChecked());
  EXPECT_GT(scene.dataRange.span(), 0.0);

  // One step of undo, after which the layer has nothing to show.
  window->session().undo();
  EXPECT_FALSE(window->document().result->certainty);
  EXPECT_FALSE(action("actionShow_Certainty_Layer").isEnabled());
  EXPECT_EQ(child<SectionView>("vtk_widget").scene()->quantity, SectionQuantity::kVelocity);
}

TEST_F(Inverting, keepsTheMembersOfACertaintyThatIsStopped) {
  openLine();
  answerGrid(12.0, 2.0);
  answerParameters(1, 2);
  expectResults();
  run();
  dialogs.expect([](QWidget& dialog) {
    dialog.findChild<QSpinBox*>(QStringLiteral("membersField"))->setValue(1000);
    dialog.findChild<QPushButton*>(QStringLiteral("startButton"))->click();
    auto& label = *dialog.findChild<QLabel*>(QStringLiteral("progressLabel"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return label.text().contains("members are done"); }, 60000));
    auto* stop = dialog.findChild<QPushButton*>(QStringLiteral("stopButton"));
    stop->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !stop->isEnabled(); }, 60000));
    EXPECT_TRUE(label.text().startsWith("Stopped with")) << label.text().toStdString();
    EXPECT_TRUE(dialog.isVisible());
    dialog.findChild<QPushButton*>(QStringLiteral("closeButton"))->click();
  });
  action("actionCertainty").trigger();
  ASSERT_TRUE(window->document().result->certainty);
  const Certainty& found = *window->document().result->certainty;
  EXPECT_LT(found.members, 1000);
  EXPECT_EQ(found.percentBeyond(found.velocities.median), 0.0);
  std::vector<double> tooFast = found.velocities.median;
  for (double& velocity : tooFast) velocity *= 1e3;
  EXPECT_EQ(found.percentBeyond(tooFast), 100.0);
  const std::string told = child<QStatusBar>("statusBar").currentMessage().toStdString();
  EXPECT_NE(told.find(" % of the cells with rays."), std::string::npos) << told;

  // It goes on from there, and ends with what one run without a stop finds out.
  CertaintySettings settings = certaintySettings(window->document());
  settings.members = found.members + found.leftOut + 3;
  Certainty whole;
  const auto alone = ensembleOf(window->document(), settings);
  ASSERT_TRUE(runCertainty(*alone, window->document(), settings, whole).ok());
  dialogs.expect([&](QWidget& dialog) {
    const QString said = dialog.findChild<QLabel*>(QStringLiteral("progressLabel"))->text();
    EXPECT_TRUE(said.contains("are done")) << said.toStdString();
    dialog.findChild<QSpinBox*>(QStringLiteral("membersField"))->setValue(settings.members);
    auto* start = dialog.findChild<QPushButton*>(QStringLiteral("startButton"));
    EXPECT_EQ(start->text().remove('&'), "Continue");
    start->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); }, 60000));
  });
  action("actionCertainty").trigger();
  const Certainty& more = *window->document().result->certainty;
  EXPECT_EQ(more.members + more.leftOut, settings.members);
  EXPECT_EQ(more.velocities.median, whole.velocities.median);
  EXPECT_EQ(more.deviations, whole.deviations);
}

TEST_F(Inverting, testsWhatTheSurveyResolves) {
  openLine();
  // Without a grid the dialog says what to do.
  dialogs.expect([](QWidget& dialog) {
    EXPECT_FALSE(dialog.findChild<QPushButton*>(QStringLiteral("startButton"))->isEnabled());
    static_cast<QDialog&>(dialog).reject();
  });
  action("actionResolution").trigger();
  answerGrid(12.0, 2.0);
  answerParameters(1, 2);
  expectResults();
  run();
  const std::string table = home.file("resolution.csv");
  dialogs.expect([&](QWidget& dialog) {
    const auto button = [&](const char* name) {
      return dialog.findChild<QPushButton*>(QLatin1String(name));
    };
    EXPECT_FALSE(button("tableButton")->isEnabled());
    dialog.findChild<QCheckBox*>(QStringLiteral("severalBox"))->setChecked(false);
    dialog.findChild<QDoubleSpinBox*>(QStringLiteral("sizeField"))->setValue(4.0);
    // Stopped before the first test is completed, it has nothing to show and can begin again.
    button("startButton")->click();
    button("stopButton")->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return button("startButton")->isEnabled(); }, 60000));
    button("startButton")->click();
    EXPECT_FALSE(button("startButton")->isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([&] { return button("tableButton")->isEnabled(); }, 60000));
    EXPECT_EQ(dialog.findChild<QComboBox*>(QStringLiteral("shownBox"))->currentText(), "4 m");
    EXPECT_TRUE(dialog.findChild<QLabel*>(QStringLiteral("smallestLabel"))
                    ->text()
                    .startsWith("Smallest size that is resolved"));
    dialogs.expectFiles(QStringLiteral("Save table of the resolution test"),
                        {QString::fromStdString(table)});
    button("tableButton")->click();
    button("closeButton")->click();
  });
  action("actionResolution").trigger();
  EXPECT_THAT(TestFolder::get(table),
              StartsWith("depth_m,size_m,cells,correlation,share,smallest_resolved_m\n1,4,"));
}

TEST_F(Inverting, tellsBelowTheSectionHowItFitsThePicksAsTheyAre) {
  openLine();
  answerGrid(12.0, 1.0);
  answerParameters(1, 2);
  expectResults();
  run();
  const auto scene = [this]() -> const SectionScene& {
    return *child<SectionView>("vtk_widget").scene();
  };
  const double inverted = scene().misfit.rmse;
  EXPECT_EQ(inverted, sectionMisfitOf(window->document()).rmse);
  EXPECT_FALSE(scene().picksChanged);
  const double pick = window->document().ttArray[0].ttMisurati[3];
  child<editTravelTimesWidget>("showTracesWidget").editPick(0, 3, 1.5 * pick);
  EXPECT_GT(scene().misfit.rmse, inverted);
  EXPECT_EQ(scene().misfit.rmse, sectionMisfitOf(window->document()).rmse);
  EXPECT_TRUE(scene().picksChanged);
  window->session().undo();
  EXPECT_EQ(scene().misfit.rmse, inverted);
  EXPECT_FALSE(scene().picksChanged);
}

TEST_F(Inverting, completesTheIterationInWhichItIsStopped) {
  openLine();
  answerGrid(12.0, 0.5);
  answerParameters(50, 5);
  whileRunning([](progressTomographyDialog& progress) {
    progress.findChild<QPushButton*>(QStringLiteral("stopButton"))->click();
  });
  expectResults();
  run();
  EXPECT_TRUE(writable().result->has_tomographic_info);
  EXPECT_THAT(log(), HasSubstr("Running Tomography - external iteration 0 ... COMPLETED. \n"));
  EXPECT_THAT(log(), HasSubstr("Stop Request by the user.\n"));
  EXPECT_THAT(log(), Not(HasSubstr("external iteration 1")));
  EXPECT_FALSE(results.isEmpty());
  results.clear();
  answerParameters(1, 2);  // the wish to stop is not for the next one
  expectResults();
  run();
  EXPECT_THAT(log(), HasSubstr("external iteration 0 ... COMPLETED. "));
}

TEST_F(Inverting, proposesTheCellSizeOfTheSurveyWhereThereIsNoGrid) {
  openLine();
  dialogs.expect([](QWidget& dialog) {
    EXPECT_TRUE(dialog.findChild<QCheckBox*>(QStringLiteral("proposeCBox"))->isChecked());
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  dialogs.expectAndCancel();  // the parameters
  run();
  ASSERT_NE(writable().model->grid, nullptr);
  EXPECT_EQ(writable().model->grid->aLato(), 0.5);
}

TEST_F(Inverting, namesWhatItLeftOut) {
  openLine();
  answerGrid(12.0, 3.0);  // 17 columns of 52 m: they end at 51.6 m, the last shot is at 51 m
  answerParameters(1, 1);
  expectResults();
  run();
  EXPECT_EQ(details.toStdString(), "");
  answerGrid(12.0, 7.0);  // 7 columns and a node: 50.4 m
  action("actionGrid").trigger();
  answerParameters(1, 1);
  expectResults();
  run();
  const std::string shot = " 5 beyond the last column";
  EXPECT_THAT(details.toStdString(), HasSubstr("Left out of the inversion:\nShot"));
  EXPECT_THAT(details.toStdString(), HasSubstr(shot + "\n24 of 120 picks"));
  EXPECT_THAT(child<QStatusBar>("statusBar").currentMessage().toStdString(),
              HasSubstr(shot + "; 24 of 120 picks."));
}

TEST_F(Inverting, showsNoResultsWhereNothingIsPicked) {
  openLine(24);
  dialogs.expectBox("Warning:", "Uncomplete set of picks. \n \n", "anyway", QMessageBox::Yes);
  answerGrid(12.0, 1.0);
  answerParameters(1, 1);
  run();
  EXPECT_TRUE(writable().result->has_tomographic_info);
  EXPECT_LT(writable().result->RMSE_tomography, 0.0);
}

TEST_F(Inverting, tellsWhyAGridWithoutRowsCannotBeInverted) {
  openLine();
  answerGrid(0.0, 1.0);
  dialogs.expectBox("Invalid parameter",
                    "The max depth parameter set to 0.0 is not valid for tomography", "",
                    QMessageBox::Ok);
  answerParameters(1, 1);
  dialogs.expectBox("Error occured", "The inversion could not be completed.", "no grid with cells",
                    QMessageBox::Ok);
  run();
  EXPECT_FALSE(writable().result->has_tomographic_info);
}

TEST_F(Inverting, leavesUndoAndRedoAloneWhenItFailsBeforeItsFirstIteration) {
  openLine();
  answerGrid(0.0, 1.0);
  dialogs.expectBox("Invalid parameter",
                    "The max depth parameter set to 0.0 is not valid for tomography", "",
                    QMessageBox::Ok);
  dialogs.expectAndCancel();  // the parameters
  run();
  child<editTravelTimesWidget>("showTracesWidget").editPick(0, 3, 0.02);
  window->session().undo();
  const std::size_t steps = window->session().steps();
  answerParameters(1, 1);
  dialogs.expectBox("Error occured", "The inversion could not be completed.", "no grid with cells",
                    QMessageBox::Ok);
  run();
  EXPECT_EQ(window->session().steps(), steps);
  EXPECT_TRUE(window->session().canRedo());
}

TEST_F(Inverting, leavesTheWindowAliveButTheDocumentOutOfReach) {
  openLine();
  answerGrid(12.0, 0.5);
  answerParameters(12, 10);  // the section in view is drawn anew after each
  int events = 0;
  QTimer heart;
  QObject::connect(&heart, &QTimer::timeout, [&events] { ++events; });
  whileRunning([&](progressTomographyDialog& progress) {
    heart.start(1);
    EXPECT_FALSE(progress.isModal());
    for (const char* name : {"actionNew", "actionOpen_shot_files", "actionGrid", "actionUndo",
                             "actionRun_tomography_inversion", "actionSave_Project"}) {
      EXPECT_FALSE(action(name).isEnabled()) << name;
    }
    EXPECT_FALSE(child<QWidget>("showTracesWidget").isEnabled());
    EXPECT_FALSE(child<QWidget>("travelTimePreview").isEnabled());
    EXPECT_TRUE(child<QTabWidget>("tabWidget").isEnabled());
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QString::fromStdString(home.file("line.otte")))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_FALSE(enter.isAccepted());
    window->openFiles({QStringLiteral("/no/such/file.otte")});  // else a box would complain
  });
  expectResults();
  run();
  EXPECT_GT(events, 5) << "the window slept";
  EXPECT_TRUE(child<QWidget>("showTracesWidget").isEnabled());
}

TEST_F(Inverting, asksForAStopBeforeTheWindowCloses) {
  openLine();
  answerGrid(12.0, 0.5);
  answerParameters(3, 5);
  const char* const question = "The inversion is still running.";
  whileRunning([&](progressTomographyDialog&) { window->close(); });
  dialogs.expectBox("Tomography inversion", question, "and close", QMessageBox::No);
  expectResults();
  run();
  EXPECT_TRUE(window->isVisible());
  EXPECT_THAT(log(), Not(HasSubstr("Stop Request")));

  answerParameters(50, 20);
  whileRunning([&](progressTomographyDialog&) { window->close(); });
  dialogs.expectBox("Tomography inversion", question, "and close", QMessageBox::Yes);
  dialogs.expectBox(QApplication::applicationName(), "The document has been modified", "",
                    QMessageBox::Discard);
  run();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));
  EXPECT_THAT(log(), HasSubstr("Stop Request by the user.\n"));
}

TEST_F(Inverting, givesTheNumbersOfTheBatchProgramToTheLastBit) {
  const QString folder = QString::fromStdString(home.path());
  const QString line = folder + QStringLiteral("/demo.otte");
  const QString json = folder + QStringLiteral("/out.json");
  const QString batch = QStringLiteral(TALVESK_BATCH);
  ASSERT_EQ(QProcess::execute(batch, {QStringLiteral("demo"), folder}), 0);
  ASSERT_EQ(QProcess::execute(batch, {QStringLiteral("invert"), line, QStringLiteral("--quiet"),
                                      QStringLiteral("--iterations"), QStringLiteral("3"),
                                      QStringLiteral("--solver-iterations"), QStringLiteral("5"),
                                      QStringLiteral("--json"), json}),
            0);
  open();
  window->openFiles({line});
  dialogs.expect([](QWidget& widget) { QTest::keyClick(&widget, Qt::Key_Return); });
  action("actionGrid").trigger();
  answerParameters(3, 5);
  expectResults();
  run();

  const QJsonObject expected =
      QJsonDocument::fromJson(QByteArray::fromStdString(TestFolder::get(json.toStdString())))
          .object();
  const Grid& grid = *writable().model->grid;
  const QJsonArray velocities = expected[QLatin1String("velocities")].toArray();
  ASSERT_EQ(velocities.size(), static_cast<int>(grid.cellCount()));
  int different = 0;
  for (std::uint32_t c = 0; c < grid.cellCount(); ++c) {
    if (velocities[static_cast<int>(c)].toDouble() != grid.velocity(c)) ++different;
  }
  EXPECT_EQ(different, 0);
  EXPECT_EQ(expected[QLatin1String("rms_percent")].toDouble(), writable().result->RMSE_tomography);
}

}  // namespace
}  // namespace talvesk::testing
