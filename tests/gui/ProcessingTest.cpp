#include "gui/WindowTest.h"
#include "model/PickGrades.h"
#include "model/Recordings.h"
#include "support/ShotDocument.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>

namespace talvesk {
namespace {

using testing::WindowTest;

class Processing : public WindowTest {
 protected:
  Processing() {
    open();
    loadShots(3);
  }

  int picksOf(std::size_t shot) {
    int picks = 0;
    for (const double time : writable().ttArray[shot].ttMisurati) picks += hasPick(time);
    return picks;
  }
  bool hasCopy(std::size_t shot) {
    return !writable().recordings->traceSets[shot].front().filtered.empty();
  }
};

TEST_F(Processing, picksTheShotInViewOrAllWhenAllAreShown) {
  window->showFile(1);
  action("actionAutoPick").trigger();
  EXPECT_EQ(picksOf(0), 0);
  EXPECT_GT(picksOf(1), 6);
  EXPECT_EQ(picksOf(2), 0);
  EXPECT_EQ(child<QStatusBar>("statusBar").currentMessage(),
            QString("First breaks found on %1 of 12 traces.").arg(picksOf(1)));
  const std::vector<double>& times = writable().ttArray[1].ttMisurati;
  for (std::size_t i = 6; i < times.size(); ++i) {
    if (!hasPick(times[i])) continue;
    EXPECT_NEAR(times[i], testing::firstBreak(i), 0.002) << i;
  }
  action("actionShow_all_traces").trigger();
  action("actionAutoPick").trigger();
  EXPECT_GT(picksOf(0), 6);
  EXPECT_GT(picksOf(2), 6);
}

TEST_F(Processing, givesPicksByHandBackWhenTheAutopickerIsUndone) {
  const SharedVector<TravelTime>& records = window->document().ttArray;
  child<editTravelTimesWidget>("showTracesWidget").editPick(1, 3, 0.05);
  action("actionShow_all_traces").trigger();
  action("actionAutoPick").trigger();
  ASSERT_GT(picksOf(0), 6);
  ASSERT_NE(records[1].ttMisurati[3], 0.05);
  action("actionUndo").trigger();
  EXPECT_EQ(records[1].ttMisurati[3], 0.05);
  EXPECT_EQ(picksOf(0) + picksOf(2), 0);
}

TEST_F(Processing, picksAlongTheLineAndLeavesWhatAPersonPicked) {
  const SharedVector<TravelTime>& records = window->document().ttArray;
  child<editTravelTimesWidget>("showTracesWidget").editPick(1, 3, 0.05);
  action("actionShow_all_traces").trigger();
  action("actionAutoPick_line").trigger();
  EXPECT_GT(picksOf(0), 6);
  EXPECT_GT(picksOf(2), 6);
  EXPECT_EQ(records[1].ttMisurati[3], 0.05);
  EXPECT_FALSE(records[1].waits(3));
  EXPECT_THAT(child<QStatusBar>("statusBar").currentMessage().toStdString(),
              ::testing::HasSubstr("1 picks that you made stay"));
  EXPECT_THAT(action("actionUndo").text().toStdString(),
              ::testing::HasSubstr("AutoPick along the line"));
  action("actionUndo").trigger();
  EXPECT_EQ(picksOf(0) + picksOf(2), 0);
}

TEST_F(Processing, picksEveryShotAlongTheLineWhicheverIsInView) {
  ASSERT_FALSE(action("actionShow_all_traces").isChecked());
  action("actionAutoPick_survey").trigger();
  for (std::size_t shot = 0; shot < 3; ++shot) EXPECT_GT(picksOf(shot), 6) << shot;
  action("actionUndo").trigger();
  EXPECT_EQ(picksOf(0) + picksOf(1) + picksOf(2), 0);
}

TEST_F(Processing, gradesThePicksAlongTheLineByTheirErrors) {
  action("actionAutoPick_line").trigger();
  const PickGrades grades = gradesOf(window->document().ttArray[0]);
  ASSERT_GT(grades.good + grades.doubtful, 6U);
  EXPECT_EQ(grades.unknown, 0U);
  const std::string told = child<QStatusBar>("statusBar").currentMessage().toStdString();
  EXPECT_THAT(told, ::testing::HasSubstr(std::to_string(grades.good) + " have a pick"));
  EXPECT_THAT(told, ::testing::HasSubstr(std::to_string(grades.doubtful) + " a doubtful one"));
}

TEST_F(Processing, setsErrorsByKeyAndMenuAndTellsThem) {
  auto& view = child<editTravelTimesWidget>("showTracesWidget");
  const auto& read = child<QLabel>("cursorLabel");
  const SharedVector<TravelTime>& records = window->document().ttArray;
  view.editPick(0, 3, 0.05);
  view.editPick(0, 4, 0.05);
  view.setCurrentTrace(2);
  QTest::keyClick(&view, Qt::Key_Right);
  EXPECT_THAT(read.text().toStdString(), ::testing::HasSubstr("Error \u2013 ms"));
  EXPECT_TRUE(action("actionError_unknown").isChecked());
  QTest::keyClick(&view, Qt::Key_1);
  EXPECT_THAT(read.text().toStdString(), ::testing::HasSubstr("Error 0.50 ms"));
  EXPECT_TRUE(action("actionError_05").isChecked()) << "that is what further picks get";
  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Set error of pick\"");

  view.selectTraces(3, 4);
  const std::pair<const char*, double> commands[] = {{"actionError_1", 0.001},
                                                     {"actionError_25", 0.0025},
                                                     {"actionError_5", 0.005},
                                                     {"actionError_unknown", 0.0},
                                                     {"actionError_05", 0.0005}};
  for (const auto& [name, sigma] : commands) {
    action(name).trigger();
    EXPECT_DOUBLE_EQ(records[0].errorOf(3), sigma) << name;
    EXPECT_DOUBLE_EQ(records[0].errorOf(4), sigma) << name;
  }
  action("actionUndo").trigger();
  EXPECT_EQ(records[0].errorOf(4), 0.0);
}

TEST_F(Processing, fillsAShotThroughThePicksOfAPersonInOneStep) {
  const SharedVector<TravelTime>& records = window->document().ttArray;
  const auto told = [this] {
    return child<QStatusBar>("statusBar").currentMessage().toStdString();
  };
  action("actionShow_all_traces").trigger();  // of the shot in view all the same
  action("actionFill_along").trigger();
  EXPECT_THAT(told(), ::testing::StartsWith("Set or confirm some picks"));
  EXPECT_EQ(picksOf(0), 0);
  const double late = testing::firstBreak(7) + 0.003;
  child<editTravelTimesWidget>("showTracesWidget").editPick(0, 7, late);
  action("actionFill_along").trigger();
  EXPECT_GT(picksOf(0), 6);
  EXPECT_EQ(picksOf(1), 0);
  EXPECT_EQ(records[0].ttMisurati[7], late);
  EXPECT_FALSE(records[0].waits(7));
  EXPECT_TRUE(records[0].waits(8));
  EXPECT_THAT(told(), ::testing::MatchesRegex(
                          "Shot 1: [0-9]+ traces filled, .* 1 picks that you made stay.*"));
  EXPECT_THAT(action("actionUndo").text().toStdString(),
              ::testing::HasSubstr("Fill along the line"));
  action("actionUndo").trigger();
  EXPECT_EQ(picksOf(0), 1);
}

TEST_F(Processing, fillsTheTracesUnderALineThatIsDrawn) {
  auto& view = child<editTravelTimesWidget>("showTracesWidget");
  action("actionTool_guide").trigger();
  EXPECT_EQ(view.tool(), TraceTool::Guide);
  const auto at = [&view](int trace, double off) {
    const double time = testing::firstBreak(static_cast<std::size_t>(trace)) + off;
    return view.pointOf(trace, time).toPoint();
  };
  const auto drag = [&](int from, int to) {
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, at(from, 0.001));
    for (int trace = from; trace <= to; ++trace) {
      QMouseEvent move(QEvent::MouseMove, at(trace, 0.001), Qt::NoButton, Qt::LeftButton,
                       Qt::NoModifier);
      QApplication::sendEvent(&view, &move);
    }
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, at(to, 0.001));
  };
  drag(5, 5);
  EXPECT_FALSE(action("actionUndo").text().contains("Fill")) << "a click is no line";
  drag(2, 10);
  EXPECT_THAT(action("actionUndo").text().toStdString(),
              ::testing::HasSubstr("Fill along the line"));
  for (std::size_t trace = 2; trace <= 10; ++trace) {
    const double time = window->document().ttArray[0].ttMisurati[trace];
    if (!hasPick(time)) continue;
    EXPECT_NEAR(time, testing::firstBreak(trace), 0.011) << trace;
  }
  EXPECT_GT(picksOf(0), 6);
}

TEST_F(Processing, tellsAfterAutoPickHowManyPicksLieWhereItCannotLookBefore) {
  const auto told = [this] {
    return child<QStatusBar>("statusBar").currentMessage().toStdString();
  };
  action("actionAutoPick").trigger();
  EXPECT_THAT(told(), ::testing::Not(::testing::HasSubstr("at sample 20")));
  for (Trace& trace : writable().recordings.edit().traceSets[0]) {
    // Already shaking where the picker begins to look.
    for (std::size_t k = 0; k < trace.samples.size(); ++k) {
      trace.samples.edit()[k] = k < 10 ? 0.0 : k % 2 == 0 ? 1e3 : -1e3;
    }
  }
  showWritten();
  action("actionAutoPick").trigger();
  ASSERT_GT(picksOf(0), 6);
  EXPECT_THAT(told(), ::testing::HasSubstr("at sample 20, before which AutoPick cannot look: " +
                                           std::to_string(picksOf(0)) + ", on shot 1."));
}

TEST_F(Processing, tellsOfTheShotInViewAndOnlyBesideItsTraces) {
  auto& view = child<editTravelTimesWidget>("showTracesWidget");
  auto& read = child<QLabel>("cursorLabel");
  view.editPick(0, 3, 0.05);
  view.setCurrentTrace(2);
  QTest::keyClick(&view, Qt::Key_Right);
  EXPECT_TRUE(read.text().contains("Pick 50.00 ms")) << read.text().toStdString();
  action("actionNext_file").trigger();
  EXPECT_TRUE(read.text().startsWith("Trace 4")) << read.text().toStdString();
  EXPECT_FALSE(read.text().contains("ms")) << read.text().toStdString();
  child<QTabWidget>("tabWidget").setCurrentIndex(1);
  EXPECT_TRUE(read.text().isEmpty());
  action("actionPrev_file").trigger();
  EXPECT_TRUE(read.text().isEmpty()) << "its traces are out of sight";
}

TEST_F(Processing, offersToReviewPicksOnlyWhereThereAreSome) {
  auto& view = child<editTravelTimesWidget>("showTracesWidget");
  const auto offered = [this] {
    return std::make_pair(action("actionConfirm_picks").isEnabled(),
                          action("actionRemove_picks").isEnabled());
  };
  view.setCurrentTrace(8);
  EXPECT_EQ(offered(), std::make_pair(false, false)) << "nothing is picked";
  action("actionAutoPick").trigger();
  ASSERT_TRUE(hasPick(writable().ttArray[0].ttMisurati[8]));
  EXPECT_EQ(offered(), std::make_pair(true, true));
  action("actionConfirm_picks").trigger();
  EXPECT_EQ(offered(), std::make_pair(false, true));
  action("actionUndo").trigger();
  EXPECT_EQ(offered(), std::make_pair(true, true));
  action("actionRemove_picks").trigger();
  EXPECT_EQ(offered(), std::make_pair(false, false));
  view.setCurrentTrace(9);
  EXPECT_EQ(offered(), std::make_pair(true, true));
  action("actionNext_file").trigger();
  EXPECT_EQ(offered(), std::make_pair(false, false)) << "that shot is not picked";
}

TEST_F(Processing, filtersTheShotInViewAndTurnsItsCopyOver) {
  for (const char* command : {"actionAGC", "actionApply_Hushel"}) {
    open();
    loadShots(2);
    auto& shown = child<QCheckBox>("show_filtered_cb");
    EXPECT_FALSE(shown.isEnabled()) << "there is no copy yet";
    EXPECT_FALSE(shown.isChecked());
    action(command).trigger();
    EXPECT_TRUE(hasCopy(0)) << command;
    EXPECT_FALSE(hasCopy(1)) << command;
    EXPECT_TRUE(shown.isEnabled() && shown.isChecked()) << command;
    const QString traces = QString::number(writable().recordings->traceSets[0].size());
    EXPECT_EQ(child<QStatusBar>("statusBar").currentMessage(),
              "Filtered copies made of " + traces + " of " + traces + " traces.");
    action("actionNext_file").trigger();
    EXPECT_FALSE(shown.isEnabled()) << "the next shot has none";
    action("actionPrev_file").trigger();
    EXPECT_TRUE(shown.isChecked());
  }
}

TEST_F(Processing, filtersByDialogAndShowsTheResult) {
  dialogs.expect([](QWidget& dialog) {
    dialog.findChild<QCheckBox*>("lowPassCBox")->setChecked(true);
    dialog.findChild<QDoubleSpinBox*>("doubleFxLowpass")->setValue(100.0);
    dialog.findChild<QSpinBox*>("lowPassOrder")->setValue(2);
    dialog.findChild<QPushButton*>("button_apply_filter")->click();
    dialog.close();
  });
  action("actionFilter").trigger();
  EXPECT_TRUE(hasCopy(0));
  EXPECT_FALSE(hasCopy(1));
  EXPECT_TRUE(child<QCheckBox>("show_filtered_cb").isChecked());
}

TEST_F(Processing, reachesAllShotsWhenAllAreShown) {
  action("actionShow_all_traces").trigger();
  action("actionAGC").trigger();
  EXPECT_TRUE(hasCopy(0) && hasCopy(1) && hasCopy(2));
}

TEST_F(Processing, picksRawSamplesWhereThereIsNoFilteredCopy) {
  action("actionApply_Hushel").trigger();
  action("actionShow_all_traces").trigger();
  ASSERT_TRUE(child<QCheckBox>("show_filtered_cb").isChecked());
  action("actionAutoPick").trigger();
  EXPECT_GT(picksOf(2), 6);
}

TEST_F(Processing, leavesTracesThatCannotBeFilteredAndSaysSo) {
  writable().recordings.edit().traceSets[0][2].sampleInterval = 0.01;
  dialogs.expect([](QWidget& dialog) {
    auto& box = dynamic_cast<QMessageBox&>(dialog);
    EXPECT_EQ(box.text().toStdString(), "1 trace stays as it was.");
    box.button(QMessageBox::Ok)->click();
  });
  action("actionApply_Hushel").trigger();
  EXPECT_TRUE(writable().recordings->traceSets[0][2].filtered.empty());
  EXPECT_TRUE(hasCopy(0));
}

}  // namespace
}  // namespace talvesk
