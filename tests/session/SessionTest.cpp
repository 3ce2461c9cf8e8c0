#include "base/SampleStore.h"
#include "session/FullSurvey.h"
#include "session/PickEdits.h"
#include "session/Session.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fullSurvey;
using testing::isSame;

class Sessions : public ::testing::Test {
 protected:
  Sessions() { session.open(fullSurvey(), true); }

  Status pick(int trace, double time, const std::string& key = {}) {
    return session.applyMerging(
        Edit::kPick,
        [&](Survey& survey) {
          changePicks(survey.document, 0, {{trace, time, false}});
          return Status();
        },
        key);
  }
  void setTitle(const std::string& title) {
    const Status status = session.apply(Edit::kTitle, [&](Survey& survey) {
      survey.document.title = title;
      return Status();
    });
    ASSERT_TRUE(status.ok()) << status.message();
  }
  double time(int trace) const { return session.document().ttArray[0].ttMisurati[trace]; }

  Session session;
};

TEST_F(Sessions, goBackAndForthStepByStep) {
  const double first = time(4);
  ASSERT_TRUE(pick(4, 0.030).ok());
  setTitle("Other");
  ASSERT_TRUE(pick(4, 0.031).ok());
  EXPECT_EQ(session.steps(), 3U);
  session.undo();
  EXPECT_EQ(session.undoText().english(), "Set title");
  EXPECT_EQ(session.redoText().english(), "Edit picks");
  session.undo();
  EXPECT_EQ(session.document().title, "Dam");
  session.undo();
  EXPECT_EQ(time(4), first);
  EXPECT_FALSE(session.canUndo() || session.modified());
  EXPECT_TRUE(session.undoText().empty());
  session.undo();
  while (session.canRedo()) session.redo();
  EXPECT_EQ(time(4), 0.031);
  EXPECT_EQ(session.document().title, "Other");
  session.undo();
  setTitle("Third");
  EXPECT_FALSE(session.canRedo()) << "what was undone is gone with another edit";
}

TEST_F(Sessions, takeTheErrorOfAPickWithItsTime) {
  const auto change = [&](const PickChange& pick) {
    ASSERT_TRUE(session
                    .apply(Edit::kPick,
                           [&](Survey& survey) {
                             changePicks(survey.document, 0, {pick});
                             return Status();
                           })
                    .ok());
  };
  const auto error = [&] { return session.document().ttArray[0].errorOf(4); };
  change({4, 0.030, false, 0.001});
  EXPECT_EQ(error(), 0.001);
  change({4, 0.030, true});
  EXPECT_EQ(error(), 0.001) << "the pick is the same";
  change({4, 0.031, false});
  EXPECT_EQ(error(), 0.0) << "nobody said how far this one may be off";
  change({4, 0.031, false, 0.0025});
  EXPECT_EQ(session.steps(), 4U) << "a new error alone is an edit";
  change({4, kNoTime, false});
  EXPECT_EQ(error(), 0.0);
  for (int steps = 0; steps < 4; ++steps) session.undo();
  EXPECT_EQ(error(), 0.001);
}

TEST_F(Sessions, areCleanWhereTheyWereSaved) {
  setTitle("One");
  session.markSaved();
  EXPECT_FALSE(session.modified());
  setTitle("Two");
  EXPECT_TRUE(session.modified());
  session.undo();
  EXPECT_FALSE(session.modified()) << "as it was saved";
  session.undo();
  EXPECT_TRUE(session.modified());
  setTitle("Elsewhere");
  session.undo();
  EXPECT_TRUE(session.modified()) << "nothing leads to what was saved any more";
  session.open(fullSurvey(), false);
  EXPECT_TRUE(session.modified()) << "no file holds it";
  EXPECT_FALSE(session.canUndo() || session.canRedo());
}

TEST_F(Sessions, stayAsTheyWereWhenAnEditFails) {
  const Survey before = session.survey();
  const std::uint64_t revision = session.revision();
  int told = 0;
  const auto subscription = session.subscribe([&](const SurveyChange&) { ++told; });
  const Session::Change changes[] = {
      [](Survey& survey) {
        survey.document.title.clear();
        survey.document.ttArray.edit().clear();
        return Status::failure("no");
      },
      [](Survey& survey) -> Status {
        survey.palettes.edit().current().max_db = 1.0;
        throw std::runtime_error("memory");
      },
      [this](Survey& survey) {
        survey.document.title = "outer";
        return session.apply(Edit::kTitle, [](Survey& inner) {
          inner.document.title = "inner";
          return Status();
        });
      },
      [](Survey& survey) {
        survey.document.map.edit().geoCoord_isSet = false;  // which no title touches
        return Status();
      },
  };
  for (const Session::Change& change : changes) {
    EXPECT_FALSE(session.apply(Edit::kTitle, change).ok());
    EXPECT_TRUE(isSame(session.survey(), before));
    EXPECT_FALSE(session.modified() || session.canUndo());
  }
  EXPECT_EQ(told, 0);
  EXPECT_EQ(session.revision(), revision);
  EXPECT_TRUE(pick(0, 0.5).ok()) << "the next edit is not in the way of a failed one";
}

TEST_F(Sessions, makeNoStepOfNothing) {
  ASSERT_TRUE(pick(4, time(4)).ok());
  setTitle("Dam");
  EXPECT_EQ(session.steps(), 0U);
  EXPECT_FALSE(session.modified());
}

TEST_F(Sessions, tellObserversOnceWhatIsOther) {
  std::vector<SurveyChange::Kind> kinds;
  PartSet last;
  auto subscription = session.subscribe([&](const SurveyChange& change) {
    kinds.push_back(change.kind);
    last = change.parts;
  });
  ASSERT_TRUE(pick(4, 0.030).ok());
  EXPECT_TRUE(last.has(Part::kPicks));
  EXPECT_FALSE(last.has(Part::kGeometry) || last.has(Part::kRecordings) || last.has(Part::kLook));
  session.undo();
  session.redo();
  session.markSaved();
  session.setView([](SectionViewSettings& view) { view.rays = !view.rays; });
  EXPECT_TRUE(last.has(Part::kView));
  session.open({}, true);
  using Kind = SurveyChange::Kind;
  EXPECT_EQ(kinds, (std::vector<Kind>{Kind::kEdit, Kind::kUndo, Kind::kRedo, Kind::kSaved,
                                      Kind::kView, Kind::kOpened}));
  subscription.reset();
  setTitle("unheard");
  EXPECT_EQ(kinds.size(), 6U);
}

TEST_F(Sessions, leaveTheViewAloneWhenTheyGoBack) {
  setTitle("Other");
  ASSERT_TRUE(session
                  .apply(Edit::kContours,
                         [](Survey& survey) {
                           survey.section.contours.filled = false;
                           survey.section.lockRange = true;
                           return Status();
                         })
                  .ok());
  session.setView([](SectionViewSettings& view) { view.verticalExaggeration = 7.0; });
  session.undo();
  EXPECT_TRUE(session.survey().section.contours.filled);
  EXPECT_FALSE(session.survey().section.lockRange) << "the range goes with the colours";
  session.undo();
  EXPECT_EQ(session.survey().section.verticalExaggeration, 7.0);
  EXPECT_FALSE(session.modified()) << "looking at it otherwise is no edit";
}

TEST_F(Sessions, rememberTheCellSizesThatWereProposedWhenTheyGoBack) {
  const auto propose = [this](double size) {
    session.amend(
        [size](Survey& survey) { survey.document.proposedCellSizes.edit().push_back(size); });
  };
  ASSERT_TRUE(pick(4, 0.030).ok());
  propose(0.5);
  const Shared<GroundModel> model = session.document().model;
  PartSet parts;
  const auto heard =
      session.subscribe([&parts](const SurveyChange& change) { parts = change.parts; });
  session.undo();
  EXPECT_FALSE(parts.has(Part::kModel)) << "the section is as it was";
  EXPECT_TRUE(session.document().model.isSharedWith(model));
  EXPECT_EQ(session.document().proposedCellSizes, std::vector<double>{0.5});
  session.redo();
  EXPECT_EQ(session.document().proposedCellSizes, std::vector<double>{0.5});

  const auto otherLine = [](Survey& survey) {
    survey.document.clearModelAndResults();
    return Status();
  };
  ASSERT_TRUE(session.apply(Edit::kGrid, otherLine).ok());
  propose(2.0);
  session.undo();
  EXPECT_EQ(session.document().proposedCellSizes, std::vector<double>{0.5})
      << "those of the line that the step took away";
}

TEST_F(Sessions, makeOneStepOfAKeyThatIsHeld) {
  const double before = time(4);
  for (const double t : {0.030, 0.031, 0.032}) ASSERT_TRUE(pick(4, t, "nudge 1 4").ok());
  ASSERT_TRUE(pick(4, 0.033, "nudge 2 4").ok());
  EXPECT_EQ(session.steps(), 2U);
  session.undo();
  EXPECT_EQ(time(4), 0.032);
  session.undo();
  EXPECT_EQ(time(4), before);
  session.redo();
  session.markSaved();
  ASSERT_TRUE(pick(4, 0.034, "nudge 1 4").ok());
  EXPECT_EQ(session.steps(), 2U) << "what was saved can be gone back to";
}

TEST_F(Sessions, showAnEditThatIsUnderWay) {
  const Survey before = session.survey();
  const auto withRange = [](double most) {
    return [most](Survey& survey) {
      survey.palettes.edit().current().max_db = most;
      return Status();
    };
  };
  {
    OpenEdit edit(session, Edit::kPalette);
    ASSERT_TRUE(edit.preview(withRange(1000.0)).ok());
    EXPECT_EQ(session.survey().palettes->current().max_db, 1000.0);
    EXPECT_FALSE(session.canUndo());
    EXPECT_FALSE(pick(4, 0.030).ok()) << "one edit at a time";
    EXPECT_FALSE(session.begin(Edit::kTitle));
    {
      OpenEdit late(session, Edit::kPalette);
      EXPECT_FALSE(late.preview(withRange(7.0)).ok());
      EXPECT_FALSE(late.commit(withRange(7.0)).ok());
    }
    EXPECT_TRUE(session.isOpen()) << "the edit of somebody else goes on";
    EXPECT_EQ(session.survey().palettes->current().max_db, 1000.0);
  }
  EXPECT_TRUE(isSame(session.survey(), before)) << "abandoned";
  EXPECT_EQ(session.steps(), 0U);
  {
    OpenEdit edit(session, Edit::kPalette);
    ASSERT_TRUE(edit.preview(withRange(1000.0)).ok());
    ASSERT_TRUE(edit.preview(withRange(2000.0)).ok());
    ASSERT_TRUE(edit.commit(withRange(3000.0)).ok());
  }
  EXPECT_EQ(session.survey().palettes->current().max_db, 3000.0);
  EXPECT_EQ(session.steps(), 1U);
  bool named = false;
  const auto subscription = session.subscribe(
      [&](const SurveyChange&) { named = session.undoText() == Message("Palette"); });
  {
    OpenEdit edit(session, Edit::kPalette);
    ASSERT_TRUE(edit.preview(withRange(4000.0)).ok());
    named = false;
    ASSERT_TRUE(edit.commit(withRange(4000.0)).ok());
    EXPECT_TRUE(named) << "a step is told that shows what was shown before";
  }
  session.undo();
  session.undo();
  EXPECT_TRUE(isSame(session.survey(), before));
}

TEST_F(Sessions, countWhatWasDecidedAsModifiedAndNotWhatIsTried) {
  const auto limit = [](Survey& survey) {
    survey.document.model.edit().maxVelocity = 1234.0;
    return Status();
  };
  {
    OpenEdit trial(session, Edit::kGrid);
    ASSERT_TRUE(trial.preview(limit).ok());
    EXPECT_FALSE(session.modified());
    EXPECT_NE(session.settled().document.model->maxVelocity, 1234.0);
  }
  bool told = false;
  const auto subscription =
      session.subscribe([&](const SurveyChange&) { told = told || session.modified(); });
  OpenEdit run(session, Edit::kInversion, true);
  EXPECT_TRUE(told) << "the title has its mark from the beginning";
  ASSERT_TRUE(run.preview(limit).ok());
  EXPECT_TRUE(session.modified());
  EXPECT_EQ(session.settled().document.model->maxVelocity, 1234.0);
}

TEST_F(Sessions, boundWhatCanBeDoneAgainToo) {
  for (std::size_t set = 0; set < 3; ++set) {
    ASSERT_TRUE(session
                    .apply(Edit::kFilter,
                           [set](Survey& survey) {
                             for (Trace& trace : survey.document.recordings.edit().traceSets[set]) {
                               trace.filtered = std::vector<double>(40000, 1.0);
                             }
                             return Status();
                           })
                    .ok());
  }
  session.setUndoMemory(12 * 40000 * 8 * 3 / 2);
  EXPECT_EQ(session.steps(), 3U) << "the copies are those of the survey itself";
  session.undo();
  session.undo();
  EXPECT_EQ(session.steps(), 2U) << "the farthest is gone";
  EXPECT_EQ(session.droppedSteps(), 1U);
  EXPECT_TRUE(session.canUndo() && session.canRedo());
}

TEST_F(Sessions, payForWhatDiffersOnly) {
  session.open(fullSurvey(20, 48, 2000), true);  // 15 MB of samples
  for (int i = 0; i < 100; ++i) ASSERT_TRUE(pick(i % 12, 0.001 * (i + 1)).ok());
  EXPECT_EQ(session.steps(), 100U);
  EXPECT_LT(session.undoMemory(), 400U << 10);
  const std::size_t before = session.undoMemory();
  ASSERT_TRUE(session
                  .apply(Edit::kFilter,
                         [](Survey& survey) {
                           for (Trace& trace : survey.document.recordings.edit().traceSets[3]) {
                             trace.filtered = std::vector<double>(2000, 1.0);
                           }
                           return Status();
                         })
                  .ok());
  EXPECT_LT(session.undoMemory() - before, 400U << 10) << "what was there before is shared";
  session.undo();
  EXPECT_GT(session.undoMemory() - before, 48U * 2000U * 8U) << "what could be done again is not";
}

TEST_F(Sessions, payNoMemoryForSamplesOnTheDisk) {
  session.open(fullSurvey(4, 12, 400), true);
  const auto filter = [](Survey& survey) {
    for (Trace& trace : survey.document.recordings.edit().traceSets[1]) {
      trace.filtered = std::vector<double>(40000, 1.0);
    }
    return Status();
  };
  const SampleStore::Choice disk(SamplesOnDisk::kAlways);
  ASSERT_TRUE(session.apply(Edit::kFilter, filter).ok());
  session.undo();
  EXPECT_LT(session.undoMemory(), 12U * 40000U * 8U / 2U);
  session.redo();
  EXPECT_EQ(session.document().recordings->traceSets[1][3].filtered,
            std::vector<double>(40000, 1.0));
}

TEST_F(Sessions, dropTheOldestStepsWhenTheyCostTooMuch) {
  session.setUndoMemory(3 * 12 * 400 * 8);
  const auto shorten = [](std::size_t set) {
    return [set](Survey& survey) {
      for (Trace& trace : survey.document.recordings.edit().traceSets[set]) {
        trace.samples = std::vector<double>(400, 2.0);
      }
      return Status();
    };
  };
  for (int i = 0; i < 10; ++i) ASSERT_TRUE(session.apply(Edit::kFilter, shorten(i % 3)).ok());
  EXPECT_LE(session.undoMemory(), 3U * 12U * 400U * 8U);
  EXPECT_GT(session.droppedSteps(), 5U);
  EXPECT_EQ(session.droppedSteps() + session.steps(), 10U);
  while (session.canUndo()) session.undo();
  EXPECT_TRUE(session.modified()) << "the way back does not lead to what was opened any more";
  session.setUndoMemory(1);
  ASSERT_TRUE(session.apply(Edit::kFilter, shorten(1)).ok());
  EXPECT_TRUE(session.canUndo()) << "the last step can always be taken back";
}

TEST(PickEdits, knowWhichPicksWait) {
  TomoDocument document = testing::shotDocument(2, 4, 100);
  const TomoDocument before = document;
  document.ttArray.edit()[1].ttMisurati = {0.01, kNoTime, kUnpicked, 0.02};
  markPicksAutomatic(document, 1);
  const TravelTime& record = document.ttArray[1];
  EXPECT_TRUE(record.waits(0) && record.waits(3));
  EXPECT_FALSE(record.waits(1) || record.waits(2)) << "what was rejected is no pick";
  EXPECT_EQ(shotsWithOtherPicks(before, document), std::vector<std::int32_t>{1});
  EXPECT_FALSE(hasNewPick(before, document));
  changePicks(document, 1, {{0, 0.015, false}, {1, 0.03, false}, {9, 0.03, false}});
  changePicks(document, 7, {{0, 0.015, false}});
  EXPECT_FALSE(document.ttArray[1].waits(0));
  EXPECT_EQ(document.ttArray[1].ttMisurati, (std::vector<double>{0.015, 0.03, kUnpicked, 0.02}));
}

}  // namespace
}  // namespace talvesk
