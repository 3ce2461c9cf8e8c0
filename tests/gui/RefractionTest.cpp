#include "app/dialogs/RefractionProcessingDialog.h"
#include "gui/WindowTest.h"
#include "io/TravelTimeFile.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "support/RefractionLines.h"
#include "view/SectionScene.h"
#include "widgets/LayerCurvesPlot.h"
#include "widgets/RefractionProfilePlot.h"
#include "widgets/SeriesPlot.h"
#include "widgets/section/SectionView.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QUndoStack>
#include <cmath>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;
using refractionDataStructure::layerStruct;
using testing::DippingLayers;
using ::testing::HasSubstr;
using testing::ModalScript;
using testing::WindowTest;

/// The dialog on a line whose true layers are known, and the hands of a user.
class Refraction : public WindowTest {
 protected:
  void show(const DippingLayers& ground, bool marked) {
    std::vector<layerStruct> truth;
    line = testing::standardDippingLine(ground, truth);
    Interpretation interpretation;
    if (marked) interpretation.ttLayer = truth;
    show(interpretation);
  }
  void show(const Interpretation& interpretation) {
    dialog = std::make_unique<RefractionProcessingDialog>(line, interpretation);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
    QTest::qWait(50);
    curves().setFocus();
  }
  template <typename Widget>
  Widget& part(const char* name) {
    return *dialog->findChild<Widget*>(QLatin1String(name));
  }
  LayerCurvesPlot& curves() { return part<LayerCurvesPlot>("curvesPlot"); }
  void press(const char* button) { part<QPushButton>(button).click(); }
  std::uint32_t layer(std::size_t shot, std::size_t trace) {
    return dialog->interpretation().ttLayer[shot].layer[trace];
  }
  QPointF at(std::uint32_t shot, std::uint32_t trace) {
    return curves().pointOf({shot, trace}).value();
  }
  void mouse(QEvent::Type type, const QPointF& point, Qt::MouseButtons held) {
    QWidget* canvas = curves().canvas();
    const bool moving = type == QEvent::MouseMove;
    QMouseEvent event(type, point, canvas->mapToGlobal(point.toPoint()),
                      moving ? Qt::NoButton : Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(canvas, &event);
  }
  void click(const QPointF& point) {
    mouse(QEvent::MouseButtonPress, point, Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, point, Qt::NoButton);
  }
  void key(Qt::Key code, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::keyClick(&curves(), code, keys);
  }
  /// Whether the times through the profile have come.
  bool fitted() {
    return QTest::qWaitFor([this] { return part<QCheckBox>("computedCheck").isEnabled(); }, 60000);
  }
  QString reading() { return part<QLabel>("velocityLabel").text(); }

  TomoDocument line;
  std::unique_ptr<RefractionProcessingDialog> dialog;
};

TEST_F(Refraction, marksByClickAndRubberBandWithALiveVelocity) {
  show(testing::twoDippingLayers(), false);
  part<QComboBox>("shotCombo").setCurrentIndex(1 + 5);
  click(at(5, 20));
  EXPECT_EQ(layer(5, 20), 1U);

  part<QComboBox>("selectLayerCombo").setCurrentIndex(2);
  const QPointF corner = at(5, 30) - QPointF(5, -5);
  const QPointF other = at(5, 34) + QPointF(5, -5);
  mouse(QEvent::MouseButtonPress, corner, Qt::LeftButton);
  mouse(QEvent::MouseMove, 0.5 * (corner + other), Qt::LeftButton);
  EXPECT_THAT(reading().toStdString(), HasSubstr("Layer 2, right of shot 6: "));
  EXPECT_EQ(layer(5, 30), 0U) << "not before the button is let go";
  mouse(QEvent::MouseButtonRelease, other, Qt::NoButton);
  for (std::size_t trace = 30; trace <= 34; ++trace) EXPECT_EQ(layer(5, trace), 2U) << trace;
  EXPECT_THAT(reading().toStdString(), HasSubstr("(5 picks)"));
  EXPECT_EQ(layer(4, 31), 0U) << "of another shot";

  dialog->undoStack()->undo();
  EXPECT_EQ(layer(5, 30), 0U);
  EXPECT_EQ(layer(5, 20), 1U);
  dialog->undoStack()->redo();
  EXPECT_EQ(layer(5, 34), 2U);

  part<QCheckBox>("editableCheck").setChecked(false);
  click(at(5, 40));
  EXPECT_EQ(layer(5, 40), 0U);
}

TEST_F(Refraction, marksByKeys) {
  show(testing::twoDippingLayers(), false);
  key(Qt::Key_PageDown);
  key(Qt::Key_PageDown);
  EXPECT_EQ(part<QComboBox>("shotCombo").currentIndex(), 1 + 1);
  key(Qt::Key_Right);
  key(Qt::Key_Right, Qt::ShiftModifier);
  key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(curves().selection().size(), 3U);
  key(Qt::Key_3);
  EXPECT_EQ(part<QComboBox>("selectLayerCombo").currentIndex(), 3);
  for (std::size_t trace = 0; trace < 3; ++trace) EXPECT_EQ(layer(1, trace), 3U);
  EXPECT_EQ(layer(1, 3), 0U);
  key(Qt::Key_0);
  EXPECT_EQ(layer(1, 0), 0U);
  key(Qt::Key_Escape);
  EXPECT_TRUE(curves().selection().empty());
  EXPECT_TRUE(dialog->isVisible()) << "the first Escape gives up the selection";
  key(Qt::Key_2);
  EXPECT_EQ(layer(1, 0), 0U) << "nothing is selected";
}

TEST_F(Refraction, asksBeforeEscapeLosesMarks) {
  show(testing::twoDippingLayers(), false);
  click(at(5, 20));
  key(Qt::Key_Escape);
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    dialogs.expectBox("Refraction processing", "Close without keeping the changes?", "", answer);
    key(Qt::Key_Escape);
    EXPECT_EQ(dialog->isVisible(), answer == QMessageBox::No);
  }
  EXPECT_TRUE(dialogs.finished());
}

TEST_F(Refraction, asksBeforeEscapeLosesAProfile) {
  show(testing::twoDippingLayers(), true);
  press("buildButton");
  dialogs.expectBox("Refraction processing", "Close without keeping the changes?", "",
                    QMessageBox::Yes);
  key(Qt::Key_Escape);
  EXPECT_TRUE(dialogs.finished());
}

TEST_F(Refraction, buildsAProfileFromAProposalAndShowsItAll) {
  show(testing::threeDippingLayers(), false);
  press("proposeButton");
  press("pushAutoPhantButton");
  EXPECT_GT(part<QTableWidget>("shiftTable").rowCount(), 20);
  EXPECT_EQ(part<SeriesPlot>("phantomPlot").series().size(), 10U);
  press("buildButton");
  EXPECT_EQ(part<QTabWidget>("tabs").tabText(part<QTabWidget>("tabs").currentIndex()),
            QStringLiteral("Velocity/Profile"));
  EXPECT_EQ(part<SeriesPlot>("velocityPlot").series().size(), 3U);
  EXPECT_EQ(part<RefractionProfilePlot>("profilePlot").scene().boundaries.size(), 2U);

  auto& family = part<SeriesPlot>("tgPlot");
  ASSERT_EQ(family.series().size(), 9U);
  EXPECT_EQ(family.series().back().name, QStringLiteral("XY = 0 m"));
  auto& chooser = part<QComboBox>("xyCombo");
  chooser.setCurrentIndex(6);
  emit chooser.activated(6);
  EXPECT_EQ(family.series().back().name, QStringLiteral("XY = 2 m"));
  EXPECT_EQ(dialog->interpretation().refractData.cData[0].chosenXY, 2.0);
  emit chooser.activated(0);
  EXPECT_EQ(family.series().front().name, QStringLiteral("other XY")) << "the first is chosen";
}

TEST_F(Refraction, showsAnXYThatIsNoneOfTheFamilyAndWhatThePicksTell) {
  show(testing::twoDippingLayers(), true);
  press("buildButton");
  Interpretation interpretation = dialog->interpretation();
  chooseXY(interpretation, 2, 7.5);
  ASSERT_TRUE(buildProfiles(shotArrivals(line), interpretation).built);
  show(interpretation);
  const auto& curve = part<SeriesPlot>("tvPlot").series();
  ASSERT_EQ(curve.size(), 10U) << "the family and its own";
  EXPECT_EQ(curve.back().name, QStringLiteral("XY = 7.5 m"));
  const auto& built = interpretation.refractData.cData[0];
  ASSERT_EQ(curve.back().points.size(), built.tV.size());
  EXPECT_DOUBLE_EQ(curve.back().points[20].z, 1e3 * built.tV[20]);
  auto& chooser = part<QComboBox>("xyCombo");
  EXPECT_EQ(chooser.currentText(), QStringLiteral("7.5"));
  EXPECT_THAT(part<QLabel>("xyFoundLabel").text().toStdString(), HasSubstr("smoothest tV"));
  EXPECT_THAT(part<QLabel>("xyFoundLabel").toolTip().toStdString(),
              HasSubstr("7.5 m: tV rough by"));
  emit chooser.activated(4);
  EXPECT_EQ(dialog->interpretation().refractData.cData[0].chosenXY, 0.0);
  EXPECT_LT(chooser.findText(QStringLiteral("7.5")), 0) << "it was none of those to choose from";
}

TEST_F(Refraction, asksBeforeAProposalReplacesMarks) {
  show(testing::twoDippingLayers(), true);
  const auto before = layer(5, 30);
  part<QComboBox>("shotCombo").setCurrentIndex(1 + 5);
  key(Qt::Key_Right);
  key(Qt::Key_3);
  dialogs.expectBox("Propose layers", "Replace the marks by a proposal?", "", QMessageBox::No);
  press("proposeButton");
  EXPECT_EQ(layer(5, 0), 3U);
  dialogs.expectBox("Propose layers", "Replace the marks by a proposal?", "", QMessageBox::Yes);
  press("proposeButton");
  EXPECT_NE(layer(5, 0), 3U);
  EXPECT_EQ(layer(5, 30), before);
  EXPECT_TRUE(dialogs.finished());
}

TEST_F(Refraction, proposesOverTheWholeSurveyWithItsFigures) {
  std::vector<layerStruct> truth;
  line = testing::standardDippingLine(testing::twoDippingLayers(), truth);
  line.ttArray.edit()[5].ttMisurati.edit()[50] += 0.04;
  show(Interpretation());
  const auto& label = part<QLabel>("proposalLabel");
  EXPECT_FALSE(label.isVisible());
  press("proposeSurveyButton");
  ASSERT_TRUE(label.isVisible());
  const std::string proposed = label.text().toStdString();
  EXPECT_THAT(proposed, HasSubstr("Proposal over the whole survey: 2 layers, misfit 0 ms; "));
  EXPECT_THAT(proposed, HasSubstr("1 pick fits no layer and is given to none (shot/trace): 6/51"));
  EXPECT_EQ(layer(5, 50), 0U);
  for (const std::size_t trace : {5U, 20U, 55U}) {
    EXPECT_EQ(layer(5, trace), truth[5].layer[trace]) << trace;
  }
  // It is one step, and the figures are not passed off as those of other marks.
  dialog->undoStack()->undo();
  EXPECT_EQ(layer(5, 20), 0U);
  EXPECT_THAT(label.text().toStdString(),
              HasSubstr("The marks are no longer those of this proposal."));
  dialog->undoStack()->redo();
  EXPECT_EQ(label.text().toStdString(), proposed);
  dialogs.expectBox("Propose layers", "Replace the marks by a proposal?", "", QMessageBox::Yes);
  press("proposeButton");
  EXPECT_FALSE(label.isVisible());
  EXPECT_TRUE(dialogs.finished());
}

TEST_F(Refraction, drawsComputedTimesOverThePicksAndTellsTheirMisfit) {
  show(testing::twoDippingLayers(), true);
  EXPECT_FALSE(part<QCheckBox>("computedCheck").isEnabled());
  EXPECT_FALSE(curves().computedTime({5, 40}));
  line.ttArray.edit()[7].ttMisurati.edit()[40] += 0.01;
  show(dialog->interpretation());
  press("buildButton");
  ASSERT_TRUE(fitted());
  const double pick = line.ttArray[5].ttMisurati[40];
  EXPECT_NEAR(curves().computedTime({5, 40}).value_or(0.0), pick, 0.0015);

  const auto& table = part<QTableWidget>("misfitTable");
  ASSERT_EQ(table.columnCount(), 3);
  ASSERT_EQ(table.rowCount(), 21) << "20 shots, then all";
  const auto rms = [&](int row) { return table.item(row, 2)->text().toDouble(); };
  EXPECT_EQ(table.item(7, 0)->text(), QStringLiteral("Shot 8"));
  EXPECT_GT(rms(7), rms(6) + 0.5) << "the pick that is 10 ms late";
  EXPECT_LT(rms(20), rms(7)) << "all shots";
  EXPECT_THAT(table.item(7, 2)->toolTip().toStdString(), HasSubstr("chi2"));

  part<QTabWidget>("tabs").setCurrentIndex(0);
  part<QComboBox>("shotCombo").setCurrentIndex(1 + 5);
  const auto picture = [this] {
    QTest::qWait(20);
    return curves().canvas()->grab().toImage();
  };
  const QImage with = picture();
  part<QCheckBox>("computedCheck").setChecked(false);
  EXPECT_NE(picture(), with);
  part<QCheckBox>("computedCheck").setChecked(true);
  // A computed time is that of the layer that the pick is marked as; the misfit is that of the
  // build, and not said of other marks.
  key(Qt::Key_Right);
  const double refracted = curves().computedTime({5, 0}).value_or(1.0);
  EXPECT_THAT(reading().toStdString(), HasSubstr("misfit of the shot 0."));
  key(Qt::Key_1);
  EXPECT_THAT(reading().toStdString(), ::testing::Not(HasSubstr("misfit")));
  EXPECT_GT(curves().computedTime({5, 0}).value_or(0.0), refracted + 0.01) << "the direct wave";
  key(Qt::Key_0);
  EXPECT_FALSE(curves().computedTime({5, 0}));
  // They come with a profile that was built earlier.
  show(dialog->interpretation());
  EXPECT_TRUE(fitted());
}

TEST_F(Refraction, marksNothingOnAGradientUnlessTheUserWants) {
  std::vector<layerStruct> truth;
  line = testing::standardDippingLine(testing::twoDippingLayers(), truth);
  for (TravelTime& record : line.ttArray.edit()) {
    for (std::size_t i = 0; i < record.ttMisurati.size(); ++i) {
      const double offset = std::fabs(2.5 * static_cast<double>(i) - record.shotPos2d.x);
      record.ttMisurati.edit()[i] = 2.0 / 30.0 * std::asinh(30.0 * offset / (2.0 * 500.0));
    }
  }
  show(Interpretation());
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    dialogs.expect([answer](QWidget& box) {
      const auto& message = dynamic_cast<QMessageBox&>(box);
      EXPECT_THAT(message.text().toStdString(), HasSubstr("No layers are proposed. Mark "));
      EXPECT_THAT(
          message.informativeText().toStdString(),
          HasSubstr(
              "a velocity that grows steadily with depth, from 500 m/s with a gradient of 30 1/s"));
      message.button(answer)->click();
    });
    press("proposeSurveyButton");
    EXPECT_EQ(layer(5, 50) != 0U, answer == QMessageBox::Yes);
    EXPECT_EQ(part<QLabel>("proposalLabel").isVisible(), answer == QMessageBox::Yes);
  }
  EXPECT_TRUE(dialogs.finished());
}

TEST_F(Refraction, warnsOfAMissingShotPair) {
  show(testing::twoDippingLayers(), false);
  dialogs.expectBox("Warning", "Unable to find nearest shot for first refractor",
                    "No shot that takes part has picks of layer 2.", QMessageBox::Ok);
  press("buildButton");
  EXPECT_TRUE(dialogs.finished());
  EXPECT_TRUE(dialog->interpretation().refractData.cData.empty());
  EXPECT_EQ(part<QTabWidget>("tabs").currentIndex(), 0);
}

TEST_F(Refraction, warnsOfWhatMakesAProfileInaccurate) {
  struct Case {
    const char* what;
    testing::Functions functions;
    const char* message;
  };
  const auto steady = [](double x) { return 5e-4 * x; };
  const auto deep = [](double) { return 0.02; };
  const Case cases[] = {
      {"a refractor that runs backward",
       {[](double x) { return x < 100 ? 1e-3 * x : 0.1 - 2e-3 * (x - 100); }, deep},
       "Velocity is less then zero at least one receiver. The profile may not be accurate. "
       "Please check input data "},
      {"a refractor that is six times as fast behind 75 m",
       {[](double x) { return x < 75 ? 9e-4 * x : 0.0675 + 1e-4 * (x - 75); }, deep},
       "Strong lateral velocity variations. The profile may not be accurate."},
      {"a refractor above the ground",
       {steady, [](double x) { return x == 50.0 ? -0.02 : 0.02; }},
       "The Tg function is less then zero at least one receiver. The profile may not be "
       "accurate. Please check input data "}};
  for (const Case& c : cases) {
    std::vector<layerStruct> truth;
    line = testing::standardDippingLine(testing::twoDippingLayers(), truth);
    testing::arrive(line, truth, c.functions);
    Interpretation interpretation;
    interpretation.ttLayer = truth;
    show(interpretation);
    dialogs.expectBox("Warning", c.message, "", QMessageBox::Ok);
    press("buildButton");
    EXPECT_TRUE(dialogs.finished()) << c.what;
    EXPECT_FALSE(dialog->interpretation().refractData.cData.empty()) << c.what;
    EXPECT_THAT(part<QLabel>("notesLabel").text().toStdString(),
                HasSubstr(QString::fromLatin1(c.message).trimmed().toStdString()));
    dialog.reset();
  }
}

TEST_F(Refraction, showsNothingThatNoGroundHasAndSaysWhy) {
  std::vector<layerStruct> truth;
  line = testing::standardDippingLine(testing::twoDippingLayers(), truth);
  testing::arrive(line, truth, {[](double x) { return x / 11000; }, [](double) { return 0.02; }});
  Interpretation interpretation;
  interpretation.ttLayer = truth;
  show(interpretation);
  press("buildButton");
  EXPECT_THAT(part<QLabel>("notesLabel").text().toStdString(),
              HasSubstr("Layer 2: no velocity and no depth at 5 of 60 receivers"));
  for (const Point2D& point : part<SeriesPlot>("velocityPlot").series().back().points) {
    EXPECT_TRUE(std::isnan(point.z) || point.z <= 12000.0) << point.x;
  }
  show(dialog->interpretation());
  EXPECT_THAT(part<QLabel>("notesLabel").text().toStdString(),
              HasSubstr("Some velocities or depths are not known."));
}

/// The window on the line, with the keys of the command.
class RefractionCommand : public WindowTest {
 protected:
  RefractionCommand() {
    open();
    writable() = testing::standardDippingLine(testing::twoDippingLayers(), truth);
    testing::putGrid(writable(), 30.0, 2.0);
    window->session().markSaved();
    window->showFile(0);
  }
  ~RefractionCommand() override { window->session().markSaved(); }
  void answer(QDialogButtonBox::StandardButton button) {
    dialogs.expect([button](QWidget& dialog) {
      dialog.findChild<QPushButton*>(QStringLiteral("proposeButton"))->click();
      dialog.findChild<QPushButton*>(QStringLiteral("buildButton"))->click();
      dialog.findChild<QDialogButtonBox*>()->button(button)->click();
    });
    action("actionRefraction").trigger();
  }
  std::vector<layerStruct> truth;
};

TEST_F(RefractionCommand, changesNothingOnCancelAndLaysTheProfileOverTheSectionOnOk) {
  EXPECT_FALSE(action("actionShow_refraction").isEnabled());
  answer(QDialogButtonBox::Cancel);
  EXPECT_FALSE(window->session().modified());
  EXPECT_FALSE(action("actionShow_refraction").isEnabled());
  answer(QDialogButtonBox::Ok);
  EXPECT_TRUE(window->session().modified());
  ASSERT_TRUE(action("actionShow_refraction").isEnabled());
  EXPECT_TRUE(action("actionShow_refraction").isChecked());
  action("actionShow_refraction").trigger();
  EXPECT_FALSE(action("actionShow_refraction").isChecked());
}

TEST_F(RefractionCommand, showsTheProfileBeforeThereIsAGrid) {
  writable().model.edit().grid.reset();
  window->showFile(0);
  answer(QDialogButtonBox::Ok);
  ASSERT_TRUE(action("actionShow_refraction").isEnabled());
  const SectionScene* scene = child<SectionView>("vtk_widget").scene();
  ASSERT_NE(scene, nullptr);
  ASSERT_EQ(scene->refractors.size(), 1U);
  EXPECT_LT(scene->lowerLeft().z, scene->surface.front().z - 5.0) << "the refractor is in view";
  action("actionShow_refraction").trigger();
  EXPECT_EQ(child<SectionView>("vtk_widget").scene(), nullptr);
}

/// In the legend of the section, and in the dialog until the profiles are built again.
TEST_F(RefractionCommand, marksAProfileWhosePicksHaveChangedSince) {
  answer(QDialogButtonBox::Ok);
  const auto name = [this] { return child<SectionView>("vtk_widget").scene()->refractors[0].name; };
  const double before = window->document().ttArray[5].ttMisurati[20];
  const auto edit = [&](double time) {
    child<editTravelTimesWidget>("showTracesWidget").editPick(5, 20, time);
  };
  EXPECT_EQ(name(), "Refractor 1");
  edit(before + 0.001);
  EXPECT_EQ(name(), "Refractor 1 (picks have changed since)");
  edit(before);
  EXPECT_EQ(name(), "Refractor 1") << "as after undo";
  edit(before + 0.001);
  dialogs.expect([](QWidget& dialog) {
    const auto& label = *dialog.findChild<QLabel*>(QStringLiteral("staleLabel"));
    EXPECT_EQ(label.text(),
              QStringLiteral("The picks have changed since the profiles were built."));
    dialog.findChild<QPushButton*>(QStringLiteral("buildButton"))->click();
    EXPECT_TRUE(label.text().isEmpty());
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
  });
  action("actionRefraction").trigger();
  EXPECT_EQ(name(), "Refractor 1");
}

TEST_F(RefractionCommand, writesHowTheProfileIsMadeToTheLog) {
  answer(QDialogButtonBox::Cancel);
  for (const char* line : {"] ID Time\n", "]  TAB: 0.", "] j xy tY tX tAB tVsJ\n"}) {
    EXPECT_THAT(log(), HasSubstr(line));
  }
}

TEST_F(RefractionCommand, leavesTheDocumentAloneOnOkWithoutAChange) {
  dialogs.expect([](QWidget& dialog) {
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
  });
  action("actionRefraction").trigger();
  EXPECT_FALSE(window->session().modified());
}

TEST_F(RefractionCommand, keepsPhantomArrivalsThatWereMadeWithoutAProfile) {
  const auto run = [this](const char* button, bool shiftsBefore) {
    window->session().markSaved();
    dialogs.expect([button, shiftsBefore](QWidget& dialog) {
      EXPECT_EQ(dialog.findChild<QTableWidget*>(QStringLiteral("shiftTable"))->rowCount() > 0,
                shiftsBefore);
      dialog.findChild<QPushButton*>(QLatin1String(button))->click();
      dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    action("actionRefraction").trigger();
    return window->session().modified();
  };
  EXPECT_TRUE(run("proposeButton", false));
  EXPECT_TRUE(run("pushAutoPhantButton", false));
  EXPECT_FALSE(run("pushAutoPhantButton", true)) << "the same curves again";
}

TEST_F(RefractionCommand, asksBeforeReplacedPicksTakeTheProfileAndOtherShotsTheMarks) {
  answer(QDialogButtonBox::Ok);
  TomoDocument moved;
  moved.line.edit().goephonesStringSet = writable().line->goephonesStringSet;
  moved.ttArray.edit() = writable().ttArray;
  ASSERT_TRUE(writeTravelTimes(home.file("same.otte"), moved).ok());
  moved.ttArray.edit().front().shotPos2d.x -= 7.0;
  ASSERT_TRUE(writeTravelTimes(home.file("moved.otte"), moved).ok());
  for (const char* name : {"same.otte", "moved.otte"}) {
    window->session().markSaved();
    dialogs.expectBox("Warning", "The survey changes. This will be removed (Undo brings it back):",
                      "the refraction interpretation", QMessageBox::Yes);
    window->openFiles({QString::fromStdString(home.file(name))});
    testing::putGrid(writable(), 30.0, 2.0);
    window->showFile(0);
    EXPECT_FALSE(action("actionShow_refraction").isEnabled()) << name;
    dialogs.expect([name](QWidget& dialog) {
      EXPECT_EQ(dialog.findChild<QPushButton*>(QStringLiteral("clearButton"))->isEnabled(),
                name == std::string("same.otte"))
          << "marks are those of the shots";
      dialog.close();
    });
    action("actionRefraction").trigger();
  }
}

TEST_F(RefractionCommand, asksAboutIncompletePicks) {
  for (TravelTime& record : writable().ttArray.edit()) {
    for (std::size_t i = 0; i < 40; ++i) record.ttMisurati.edit()[i] = kUnpicked;
  }
  dialogs.expectBox("Warning",
                    "Uncomplete set of picks. \n \n"
                    "Do you want to run refraction processing anyway? ",
                    "", QMessageBox::No);
  action("actionRefraction").trigger();
  EXPECT_TRUE(dialogs.finished());
  dialogs.expectBox("Warning",
                    "Uncomplete set of picks. \n \n"
                    "Do you want to run refraction processing anyway? ",
                    "", QMessageBox::Yes);
  dialogs.expectAndCancel();
  action("actionRefraction").trigger();
  EXPECT_TRUE(dialogs.finished());
}

}  // namespace
}  // namespace talvesk
