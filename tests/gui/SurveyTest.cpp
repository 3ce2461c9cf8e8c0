#include "gui/WindowTest.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QInputDialog>
#include <QKeyEvent>
#include <QTabWidget>
#include <QTest>

namespace talvesk {
namespace {

using ::testing::SizeIs;
using testing::WindowTest;

class Survey : public WindowTest {
 protected:
  Survey() { open(); }

  void expectToSave(QMessageBox::StandardButton answer) {
    dialogs.expectBox("Talvesk", "The document has been modified",
                      "Do you want to save your changes?", answer);
  }
  editTravelTimesWidget& traces() { return child<editTravelTimesWidget>("showTracesWidget"); }
};

TEST_F(Survey, goesRoundItsShotsAndNeverBeyond) {
  for (const char* name : {"actionNext_file", "actionPrev_file"}) {
    QMetaObject::invokeMethod(window.get(), ("on_" + std::string(name) + "_triggered").c_str());
    EXPECT_EQ(window->currentFile(), -1) << "nothing to show";
  }
  loadShots(3);
  QAction& next = action("actionNext_file");
  QAction& previous = action("actionPrev_file");
  const auto& chooser = child<QComboBox>("shotCBox");
  std::vector<int> seen;
  for (QAction* step : {&previous, &next, &next, &next, &next, &previous}) {
    step->trigger();
    seen.push_back(window->currentFile());
    EXPECT_EQ(traces().shot(), window->currentFile());
    EXPECT_EQ(chooser.currentIndex(), window->currentFile());
  }
  EXPECT_THAT(seen, ::testing::ElementsAre(2, 0, 1, 2, 0, 2));
}

TEST_F(Survey, closesAtOnceWhenNothingChanged) {
  EXPECT_TRUE(window->close());
  EXPECT_FALSE(window->isVisible());
}

TEST_F(Survey, staysOpenOnCancelAndGoesOnDiscard) {
  loadShots(1);
  EXPECT_TRUE(window->isWindowModified());
  expectToSave(QMessageBox::Cancel);
  EXPECT_FALSE(window->close());
  EXPECT_TRUE(window->isVisible());
  EXPECT_THAT(writable().recordings->traceSets, SizeIs(1));
  expectToSave(QMessageBox::Discard);
  EXPECT_TRUE(window->close());
}

TEST_F(Survey, isEmptiedByNewWhichAsksFirst) {
  loadShots(2);
  expectToSave(QMessageBox::Cancel);
  action("actionNew").trigger();
  EXPECT_THAT(writable().recordings->traceSets, SizeIs(2));

  expectToSave(QMessageBox::Discard);
  dialogs.expectFiles("Open Seismic Trace", {shotFile("new.dat")});
  action("actionNew").trigger();
  EXPECT_THAT(writable().recordings->traceSets, SizeIs(1));
  EXPECT_EQ(window->currentFile(), 0);
}

TEST_F(Survey, staysWhenNewFindsNoFilesToTakeItsPlace) {
  loadShots(2);
  const auto expectAsItWas = [this] {
    EXPECT_THAT(writable().recordings->traceSets, SizeIs(2));
    EXPECT_EQ(window->currentFile(), 0);
    EXPECT_TRUE(window->isWindowModified());
  };
  expectToSave(QMessageBox::Discard);
  dialogs.expectAndCancel();
  action("actionNew").trigger();
  expectAsItWas();

  expectToSave(QMessageBox::Discard);
  const QString broken = QString::fromStdString(home.put("broken.dat", "no SEG-2"));
  dialogs.expectFiles("Open Seismic Trace", {broken});
  dialogs.expectBox("Error occured", "Error while loading one or more traces.", broken,
                    QMessageBox::Ok);
  action("actionNew").trigger();
  expectAsItWas();
}

TEST_F(Survey, isSteppedThroughByShiftAndTheArrowsOfTheKeypad) {
  loadShots(3);
  // As X11 hands keys on: no shortcut has matched. The digits come with the number lock off.
  const auto press = [this](int key, Qt::KeyboardModifiers modifiers) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&traces(), &event);
    return window->currentFile();
  };
  const auto shiftKeypad = Qt::ShiftModifier | Qt::KeypadModifier;
  const struct {
    int key;
    Qt::KeyboardModifiers modifiers;
    int shot;
  } presses[] = {{Qt::Key_Right, shiftKeypad, 1},       {Qt::Key_6, shiftKeypad, 2},
                 {Qt::Key_Left, shiftKeypad, 1},        {Qt::Key_4, shiftKeypad, 0},
                 {Qt::Key_Right, Qt::ShiftModifier, 0}, {Qt::Key_Right, Qt::KeypadModifier, 0},
                 {Qt::Key_Up, shiftKeypad, 0}};
  for (const auto& each : presses) {
    EXPECT_EQ(press(each.key, each.modifiers), each.shot) << each.key << " " << each.modifiers;
  }
}

TEST_F(Survey, namesItselfInTheTitle) {
  EXPECT_EQ(window->windowTitle().toStdString(), "Talvesk 2022.0[*]");
  dialogs.expect([](QWidget& dialog) {
    auto& input = dynamic_cast<QInputDialog&>(dialog);
    input.setTextValue("Valley [*] 3");
    input.accept();
  });
  action("actionSet_title").trigger();
  EXPECT_EQ(writable().title, "Valley [*] 3");
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(window->windowTitle().toStdString(), "Talvesk 2022.0[*] - Valley [*][*] 3");
}

TEST_F(Survey, hasTheKeysInItsTracesOnceLoaded) {
  auto& tabs = child<QTabWidget>("tabWidget");
  loadShots(2);
  ASSERT_EQ(window->focusWidget(), &traces());
  QTest::keyClick(window->focusWidget(), Qt::Key_Right);
  EXPECT_EQ(traces().currentTrace(), 1);
  EXPECT_EQ(tabs.currentIndex(), 0) << "no key turned the tabs over";
}

TEST_F(Survey, isPickedByMouseAndKeysWithUndo) {
  loadShots(2);
  editTravelTimesWidget& view = traces();
  const auto time = [this] { return window->document().ttArray[0].ttMisurati[4]; };
  view.fit();
  QTest::qWait(50);
  QTest::mouseClick(&view, Qt::LeftButton, {}, view.pointOf(4, 0.05).toPoint());
  const double clicked = time();
  ASSERT_GT(clicked, 0.0) << "a click sets a pick";
  EXPECT_TRUE(action("actionUndo").isEnabled());

  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_NEAR(time(), clicked + 0.00025, 1e-9) << "a key moves it by a sample";
  action("actionUndo").trigger();
  EXPECT_DOUBLE_EQ(time(), clicked);
  action("actionUndo").trigger();
  EXPECT_FALSE(hasPick(time()));
  action("actionRedo").trigger();
  EXPECT_DOUBLE_EQ(time(), clicked);

  QTest::keyClick(&view, Qt::Key_Delete);
  EXPECT_FALSE(hasPick(time()));
}

TEST_F(Survey, isChosenAndEditedInItsCurvesToo) {
  loadShots(2);
  for (TravelTime& record : writable().ttArray.edit()) {
    for (std::size_t i = 0; i < record.ttMisurati.size(); ++i) {
      record.ttMisurati.edit()[i] =
          0.02 + 0.002 * static_cast<double>(i) + 0.01 * record.traceSetID;
    }
  }
  window->showFile(0);
  child<QTabWidget>("tabWidget").setCurrentIndex(1);
  QTest::qWait(50);
  auto& curves = child<TravelTimePlot>("travelTimeCurves");
  ASSERT_TRUE(curves.pointOf(1, 6));
  const QPoint pick = curves.pointOf(1, 6)->toPoint();
  QTest::mouseClick(curves.canvas(), Qt::LeftButton, {}, pick);
  EXPECT_EQ(window->currentFile(), 1);

  const auto time = [this] { return window->document().ttArray[1].ttMisurati[6]; };
  const double before = time();
  QTest::mousePress(curves.canvas(), Qt::LeftButton, {}, pick);
  QTest::mouseMove(curves.canvas(), pick - QPoint(0, 20));
  QTest::mouseMove(curves.canvas(), pick - QPoint(0, 40));
  QTest::mouseRelease(curves.canvas(), Qt::LeftButton, {}, pick - QPoint(0, 40));
  EXPECT_GT(time(), before + 0.001) << "up is later";
  action("actionUndo").trigger();
  EXPECT_DOUBLE_EQ(time(), before);
}

TEST_F(Survey, showsOnlyTracesWithoutTheirTimes) {
  loadShots(1);
  auto& box = child<QCheckBox>("showTravelTimeCB");
  box.click();
  EXPECT_FALSE(child<QWidget>("travelTimePreview").isVisible());
  EXPECT_TRUE(traces().options().showOnlyTraces);
  box.click();
  EXPECT_TRUE(child<QWidget>("travelTimePreview").isVisible());
  EXPECT_FALSE(child<QWidget>("showTracesWidget_2").isVisible());
}

}  // namespace
}  // namespace talvesk
