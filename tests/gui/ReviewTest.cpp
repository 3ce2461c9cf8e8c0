#include "gui/WindowTest.h"
#include "support/ShotDocument.h"
#include "widgets/ViewWindow.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QCheckBox>
#include <QStatusBar>
#include <QTabWidget>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;
using testing::WindowTest;

/// Three shots, picked without a fault by a picker that is sure to 1 ms, but for two picks.
class Review : public WindowTest {
 protected:
  Review() {
    open();
    loadShots(3);
    for (TravelTime& record : writable().ttArray.edit()) {
      for (std::size_t t = 0; t < 12; ++t) {
        record.ttMisurati.edit()[t] = testing::firstBreak(t);
        record.setWaiting(t, true);
        record.setError(t, 1e-3);
      }
      record.shotPos2d.x -= 500.0;  // where no shot has a geophone
    }
    writable().ttArray.edit()[2].setError(8, 4.1e-3);
    writable().ttArray.edit()[0].setError(3, 3.0e-3);
    showWritten();
  }

  void next() { action("actionNext_doubtful").trigger(); }
  void previous() { action("actionPrevious_doubtful").trigger(); }
  editTravelTimesWidget& traces() { return child<editTravelTimesWidget>("showTracesWidget"); }
  std::string told() { return child<QStatusBar>("statusBar").currentMessage().toStdString(); }
};

TEST_F(Review, goesFromTheWorstPickOnAndTellsWhy) {
  next();
  EXPECT_EQ(traces().shot(), 2);
  EXPECT_EQ(traces().currentTrace(), 8);
  EXPECT_EQ(told(), "Doubtful pick 1 of 2, shot 3, trace 9: error 4.1 ms");
  next();
  EXPECT_EQ(traces().shot(), 0);
  EXPECT_EQ(traces().currentTrace(), 3);
  EXPECT_EQ(told(), "Doubtful pick 2 of 2, shot 1, trace 4: error 3.0 ms");
  next();
  EXPECT_EQ(traces().shot(), 2);
  EXPECT_THAT(told(), HasSubstr("the worst again"));
  previous();
  EXPECT_EQ(traces().shot(), 0);
  EXPECT_THAT(told(), HasSubstr("before the worst, the last"));
  EXPECT_EQ(action("actionNext_doubtful").shortcut(), QKeySequence(Qt::Key_N));
  EXPECT_EQ(action("actionPrevious_doubtful").shortcut(), QKeySequence("Shift+N"));
}

TEST_F(Review, bringsThePickIntoSight) {
  child<QTabWidget>("tabWidget").setCurrentIndex(2);
  traces().setWindow({0.0, 3.0, 0.15, 0.20});
  next();
  EXPECT_EQ(child<QTabWidget>("tabWidget").currentIndex(), 0);
  const ViewWindow& seen = traces().window();
  EXPECT_LT(seen.left, 8.0);
  EXPECT_GT(seen.right, 8.0);
  EXPECT_LT(seen.top, testing::firstBreak(8));
  EXPECT_GT(seen.bottom, testing::firstBreak(8));
}

TEST_F(Review, leavesOutWhatWasConfirmedMovedOrRemoved) {
  next();
  traces().confirmPicks();
  next();
  EXPECT_THAT(told(), StartsWith("Doubtful pick 1 of 1, shot 1, trace 4"))
      << "the walk goes on, not back to the beginning";
  traces().editPick(0, 3, 0.02);
  next();
  EXPECT_EQ(told(), "None of the 34 picks that wait for confirmation is doubtful.");
  action("actionUndo").trigger();
  action("actionUndo").trigger();
  next();
  EXPECT_THAT(told(), StartsWith("Doubtful pick 1 of 2, shot 3, trace 9"));
}

TEST_F(Review, tellsReciprocalTimesThatDoNotAgree) {
  for (TravelTime& record : writable().ttArray.edit()) record.shotPos2d.x = 10.0;
  writable().ttArray.edit()[1].shotPos2d.x = 20.0;
  writable().ttArray.edit()[2].shotPos2d.x -= 500.0;
  // The first shot sees the second one at trace 6 after 20 ms, that one the first at once.
  writable().ttArray.edit()[1].ttMisurati.edit()[0] = 0.0135;
  writable().ttArray.edit()[1].setError(0, 1e-3);
  showWritten();
  next();
  EXPECT_EQ(told(), "Doubtful pick 1 of 4, shot 1, trace 6: reciprocal time 6.5 ms earlier");
}

TEST_F(Review, saysWhatIsNotKnownOfThePicks) {
  for (TravelTime& record : writable().ttArray.edit()) {
    record.pickErrors = {};
  }
  showWritten();
  next();
  EXPECT_EQ(told(),
            "None of the 36 picks that wait for confirmation is doubtful. Nothing is known of 36 "
            "of them: no error, no computed time, no reciprocal one.");
  for (TravelTime& record : writable().ttArray.edit()) record.unconfirmed = {};
  next();
  EXPECT_EQ(told(), "No pick waits for confirmation.");
}

TEST_F(Review, remembersWhichGuidesAreDrawn) {
  for (const char* name : {"actionGuide_neighbour", "actionGuide_reciprocal"}) {
    EXPECT_FALSE(action(name).isChecked());
    action(name).trigger();
  }
  const auto drawn = [this] {
    const TraceViewOptions& options = traces().options();
    return std::make_pair(options.showNeighbour, options.showReciprocal);
  };
  EXPECT_EQ(drawn(), std::make_pair(true, true));
  action("actionGuide_reciprocal").trigger();
  EXPECT_EQ(drawn(), std::make_pair(true, false));
  open();
  EXPECT_EQ(drawn(), std::make_pair(true, false));
  EXPECT_TRUE(action("actionGuide_neighbour").isChecked());
}

TEST_F(Review, restsWhilePicksAreHidden) {
  child<QCheckBox>("showTravelTimeCB").click();
  EXPECT_FALSE(action("actionNext_doubtful").isEnabled());
  child<QCheckBox>("showTravelTimeCB").click();
  EXPECT_TRUE(action("actionNext_doubtful").isEnabled());
}

}  // namespace
}  // namespace talvesk
