#include "TestShots.h"
#include "widgets/PickEdit.h"
#include "widgets/PickStroke.h"

#include <QUndoStack>
#include <map>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::DoubleEq;
using ::testing::ElementsAre;
using ::testing::Pair;

using Merge = PickEditCommand::Merge;

class PickEdits : public ::testing::Test {
 protected:
  void change(int trace, double after, Merge merge = Merge::No, int shot = 0) {
    const double before = mDocument.ttArray[0].ttMisurati[trace];
    mStack.push(
        new PickEditCommand("edit", mDocument, mReview, shot,
                            {{trace, before, after, mReview.waits(shot, trace), false}}, merge,
                            [this](const PickEditEffect& effect) { mEffects.push_back(effect); }));
  }
  /// As if the autopicker had set what the document has.
  void autoPickedFrom(const std::vector<double>& before) {
    auto* batch = new PickBatchCommand(
        "auto", [] { return 0; },
        [this](const PickEditEffect& effect) { mEffects.push_back(effect); });
    batch->add(mDocument, mReview, 0, mReview.replaced(mDocument, 0, before));
    mStack.push(batch);
  }
  double time(int trace) const { return mDocument.ttArray[0].ttMisurati[trace]; }

  TomoDocument mDocument = testing::testShots(4, 100);
  PickReview mReview;
  std::vector<PickEditEffect> mEffects;
  QUndoStack mStack;
};

TEST_F(PickEdits, undoTellsNeverPickedFromRemoved) {
  mDocument.ttArray.edit()[0].ttMisurati.edit() = {kUnpicked, kNoTime, 0.02, 0.0};
  change(0, 0.01);
  change(1, 0.01);
  change(2, kNoTime);
  while (mStack.canUndo()) mStack.undo();
  EXPECT_THAT(mDocument.ttArray[0].ttMisurati, ElementsAre(kUnpicked, kNoTime, 0.02, 0.0));
  while (mStack.canRedo()) mStack.redo();
  EXPECT_THAT(mDocument.ttArray[0].ttMisurati, ElementsAre(0.01, 0.01, kNoTime, 0.0));
}

TEST_F(PickEdits, tellWhetherAPickIsNew) {
  change(0, 0.01);
  change(0, 0.02);
  change(0, kNoTime);
  mStack.undo();
  ASSERT_EQ(mEffects.size(), 4u);
  EXPECT_TRUE(mEffects[0].added);
  EXPECT_FALSE(mEffects[1].added);
  EXPECT_FALSE(mEffects[2].added);
  EXPECT_TRUE(mEffects[3].added) << "the undone removal brings it back";
}

TEST_F(PickEdits, ofAHeldKeyAreOne) {
  change(0, 0.010);
  change(0, 0.011, Merge::No);
  change(0, 0.012, Merge::KeyHeld);
  change(0, 0.013, Merge::KeyHeld);
  change(1, 0.020, Merge::KeyHeld);
  EXPECT_EQ(mStack.count(), 3) << "another trace is another edit";
  mStack.undo();
  mStack.undo();
  EXPECT_DOUBLE_EQ(time(0), 0.010);
  mStack.redo();
  EXPECT_DOUBLE_EQ(time(0), 0.013);
}

TEST_F(PickEdits, ofTracesThatAreGoneChangeNothing) {
  change(3, 0.01);
  mDocument.ttArray.edit()[0].ttMisurati.edit().resize(2);
  mStack.undo();
  mDocument.ttArray.edit().clear();
  mStack.redo();
  EXPECT_TRUE(mDocument.ttArray.empty());
}

TEST_F(PickEdits, ofAutomaticPicksConfirmThemUntilUndone) {
  mDocument.ttArray.edit()[0].ttMisurati.edit() = {0.01, kNoTime, kUnpicked, 0.02};
  autoPickedFrom({0.01, kUnpicked, kUnpicked, kUnpicked});
  EXPECT_TRUE(mReview.waits(0, 0));
  EXPECT_FALSE(mReview.waits(0, 1)) << "what was rejected is no pick";
  change(0, 0.015);
  EXPECT_FALSE(mReview.waits(0, 0));
  mStack.undo();
  EXPECT_TRUE(mReview.waits(0, 0));
  EXPECT_TRUE(mReview.waits(0, 3));
}

const PickStroke::Adjust kAsItIs = [](int, double time) { return time; };

TEST(PickStroke, aRunFollowsThePointerOverTracesThatItSkipped) {
  const TraceLayout layout = TraceLayout::byChannel(8);
  PickStroke stroke;
  stroke.begin(PickStroke::Kind::Run, 1, {layout.position(1), 0.010}, layout, kAsItIs);
  stroke.moveTo(4, {layout.position(4), 0.016}, layout, kAsItIs);
  stroke.moveTo(4, {layout.position(4), 0.017}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(1, 0.010), Pair(2, DoubleEq(0.012)),
                                          Pair(3, DoubleEq(0.014)), Pair(4, 0.017)));
  stroke.moveTo(2, {layout.position(2), 0.015}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(1, 0.010), Pair(2, DoubleEq(0.015)),
                                          Pair(3, DoubleEq(0.016)), Pair(4, 0.017)))
      << "going back draws over";
}

TEST(PickStroke, aRunGoesByDistanceAndOverTracesAtOnePlace) {
  const TraceLayout layout = TraceLayout::byDistance({30.0, 20.0, 20.0, 0.0});
  PickStroke stroke;
  stroke.begin(PickStroke::Kind::Run, 3, {layout.position(3), 0.0}, layout, kAsItIs);
  stroke.moveTo(0, {layout.position(0), 0.3}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(0, DoubleEq(0.3)), Pair(1, DoubleEq(0.2)),
                                          Pair(2, DoubleEq(0.2)), Pair(3, 0.0)));
  stroke.begin(PickStroke::Kind::Run, 2, {layout.position(2), 0.1}, layout, kAsItIs);
  stroke.moveTo(1, {layout.position(1), 0.2}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(1, 0.2), Pair(2, 0.2)));
}

TEST(PickStroke, aRunTakesTheTimesAtTheTracesNotBetweenThem) {
  const TraceLayout layout = TraceLayout::byChannel(8);
  PickStroke stroke;
  stroke.begin(PickStroke::Kind::Run, 1, {1.2, 0.012}, layout, kAsItIs);
  stroke.moveTo(1, {1.4, 0.014}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(1, 0.014))) << "one trace follows the pointer";
  stroke.moveTo(2, {1.8, 0.018}, layout, kAsItIs);
  stroke.moveTo(2, {2.4, 0.024}, layout, kAsItIs);
  stroke.moveTo(3, {2.7, 0.027}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(1, 0.012), Pair(2, DoubleEq(0.020)), Pair(3, 0.027)))
      << "a trace that was not crossed has the time nearest to it";
}

TEST(PickStroke, aMovedPickStaysOnItsTrace) {
  const TraceLayout layout = TraceLayout::byChannel(8);
  PickStroke stroke;
  stroke.begin(PickStroke::Kind::Move, 3, {layout.position(3), 0.010}, layout, kAsItIs);
  stroke.moveTo(6, {layout.position(6), 0.020}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(3, 0.020)));
}

TEST(PickStroke, removingPassesOverTraces) {
  const TraceLayout layout = TraceLayout::byChannel(8);
  PickStroke stroke;
  stroke.begin(PickStroke::Kind::Remove, 5, {layout.position(5), 0.010}, layout, kAsItIs);
  stroke.moveTo(3, {layout.position(3), 0.020}, layout, kAsItIs);
  stroke.moveTo(-1, {9.0, 0.020}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(3, kNoTime), Pair(4, kNoTime), Pair(5, kNoTime)));
}

}  // namespace
}  // namespace talvesk
