// A survey that is spoiled as surveys are in the field, and brought back by what the doctor
// proposes alone.
#include "base/Log.h"
#include "doctor/Doctor.h"
#include "doctor/SyntheticLine.h"
#include "model/GroundModel.h"
#include "model/Mending.h"
#include "processing/FirstBreak.h"
#include "processing/ShotTime.h"
#include "support/ConsoleCapture.h"
#include "tomo/GridSetup.h"
#include "tomo/TomographyRun.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include <gtest/gtest.h>

namespace talvesk::doctor {
namespace {

using namespace testing;
using talvesk::testing::ConsoleCapture;

LinePlan bigLine() {
  LinePlan plan;
  plan.geophones = 48;
  plan.shots = {-5.0, 3.0, 11.0, 19.0, 27.0, 35.0, 43.0, 51.0, 59.0, 75.0, 91.0, 99.0};
  plan.noise = 0.004;
  return plan;
}

/// Carries out what is proposed, in its order, and looks again. \return rounds that it took
int mendAll(TomoDocument& document) {
  for (int round = 0; round < 6; ++round) {
    bool any = false;
    for (const Finding& finding : checkRecordings(document)) {
      if (!finding.proposal) continue;
      any = true;
      const Status status = carryOut(finding, *finding.proposal, document);
      EXPECT_TRUE(status.ok()) << status.message();
    }
    if (!any) return round;
  }
  return 6;
}

/// Shots 3 and 8 late and early, shot 5 recorded from the other end, geophones numbered from 1,
/// three dead traces, a geophone wired backwards, another one so in one record, shot 11 the record
/// of shot 10 once more.
TomoDocument spoiledLine() {
  TomoDocument document = soundLine(bigLine());
  tracesOf(document, 10) = tracesOf(document, 9);
  for (std::size_t shot = 0; shot < 12; ++shot) scaleTrace(document, shot, 30, -1.0);
  scaleTrace(document, 4, 9, -1.0);
  scaleTrace(document, 1, 20, 0.0);
  scaleTrace(document, 6, 40, 0.0);
  scaleTrace(document, 7, 3, 1e-4);
  delayRecord(document, 2, 48);
  delayRecord(document, 7, -32);
  reverseRecord(document, 4);
  placeGeophones(document, 1.0, 1.0);
  return document;
}

std::vector<std::int32_t> allShots(const TomoDocument& document) {
  std::vector<std::int32_t> shots(document.ttArray.size());
  std::iota(shots.begin(), shots.end(), 0);
  return shots;
}

void pickAll(TomoDocument& document) {
  ConsoleCapture console;
  countTimeFromShot(document);
  ASSERT_TRUE(pickShots(document, allShots(document), false).ok());
}

/// Slownesses of the section that the picks give; they count from the first sample.
std::vector<double> sectionOf(TomoDocument document) {
  for (TravelTime& record : document.ttArray.edit()) {
    for (double& time : record.ttMisurati.edit()) {
      if (hasPick(time)) time -= bigLine().lead;
    }
  }
  ConsoleCapture console;
  Log log;
  GridSettings settings;
  settings.maxDepth = 20.0;
  settings.cellSize = 1.0;
  EXPECT_TRUE(setUpGrid(document, settings, log).ok());
  TomographyParameters parameters;
  parameters.externalIterations = 3;
  parameters.solverIterations = 5;
  EXPECT_TRUE(runInversion(document, parameters, log).status.ok());
  return document.model->grid->slownesses();
}

/// Samples by which a record of the spoiled survey is late.
int lateness(std::size_t shot) {
  return shot == 2 ? 48 : shot == 7 ? -32 : 0;
}

/// Picks as a careful hand sets them on what was recorded, in channel order.
void pickByHand(TomoDocument& document, bool spoiled) {
  const LinePlan plan = bigLine();
  for (std::size_t shot = 0; shot < plan.shots.size(); ++shot) {
    std::vector<double> times;
    for (std::size_t g = 0; g < plan.geophones; ++g) {
      const double x = plan.first + plan.spacing * static_cast<double>(g);
      const double late = spoiled ? lateness(shot) * kInterval : 0.0;
      times.push_back(plan.lead + arrival(plan.shots[shot], x) + late);
    }
    if (spoiled && shot == 4) std::reverse(times.begin(), times.end());
    document.ttArray.edit()[shot].ttMisurati = std::move(times);
  }
}

/// Takes out of the survey that was never spoilt what is lost of the other one.
void loseTheSame(TomoDocument& sound) {
  ShotMends off;
  off.disabled = true;
  EXPECT_TRUE(setMends(10, off, sound).ok());
  for (const auto& [shot, trace] : {std::pair{1, 20}, {6, 40}, {7, 3}}) {
    ShotMends killed;
    killed.traces.resize(static_cast<std::size_t>(trace) + 1);
    killed.traces.back().killed = true;
    EXPECT_TRUE(setMends(static_cast<std::size_t>(shot), killed, sound).ok());
  }
}

TEST(SpoiledSurvey, isBroughtBackByProposalsAlone) {
  TomoDocument sound = soundLine(bigLine());
  TomoDocument mended = spoiledLine();
  EXPECT_LE(mendAll(mended), 5);

  ASSERT_EQ(mended.line->goephonesStringSet.size(), 1U);
  for (std::size_t g = 0; g < 48; ++g) {
    EXPECT_EQ(mended.line->goephonesStringSet[0][g], sound.line->goephonesStringSet[0][g]) << g;
  }
  const auto mends = [&](std::int32_t shot) { return mendsOfRecord(mended, shot); };
  for (std::int32_t shot = 0; shot < 12; ++shot) {
    const double wanted = lateness(static_cast<std::size_t>(shot));
    EXPECT_NEAR(mends(shot).timeShift / kInterval, wanted, 2.0) << "shot " << shot;
    EXPECT_EQ(mends(shot).orderReversed, shot == 4);
    EXPECT_EQ(mends(shot).disabled, shot == 10);
    for (std::size_t trace = 0; trace < 48; ++trace) {
      const bool dead =
          (shot == 1 && trace == 20) || (shot == 6 && trace == 40) || (shot == 7 && trace == 3);
      if (shot == 10) continue;
      EXPECT_EQ(mendOf(mends(shot), trace).killed, dead) << shot << ' ' << trace;
    }
  }
}

/// With the same picks, set on the records as they came: mending moves them to where they belong.
TEST(SpoiledSurvey, hasThePicksAndTheSectionOfTheUnspoiltOne) {
  TomoDocument sound = soundLine(bigLine());
  TomoDocument mended = spoiledLine();
  pickByHand(sound, false);
  pickByHand(mended, true);
  mendAll(mended);
  loseTheSame(sound);
  for (std::size_t shot = 0; shot < 12; ++shot) {
    const ShotMends& mends = mendsOfRecord(mended, static_cast<std::int32_t>(shot));
    const double inexact = std::fabs(mends.timeShift - lateness(shot) * kInterval);
    EXPECT_LE(inexact, 2.001 * kInterval);
    for (std::size_t trace = 0; trace < 48; ++trace) {
      EXPECT_NEAR(sound.ttArray[shot].ttMisurati[trace], mended.ttArray[shot].ttMisurati[trace],
                  inexact + 1e-9)
          << shot << ' ' << trace;
    }
  }
  const std::vector<double> expected = sectionOf(sound);
  const std::vector<double> got = sectionOf(mended);
  ASSERT_EQ(expected.size(), got.size());
  for (std::size_t i = 0; i < got.size(); ++i) {
    ASSERT_NEAR(got[i] / expected[i], 1.0, 0.02) << "cell " << i;
  }
}

/// The picker sees the mean of a whole record, and 20 samples before and behind: not all of its
/// picks are those of a record that begins elsewhere.
TEST(SpoiledSurvey, isPickedAutomaticallyLikeTheUnspoiltOne) {
  TomoDocument sound = soundLine(bigLine());
  TomoDocument mended = spoiledLine();
  mendAll(mended);
  loseTheSame(sound);
  pickAll(sound);
  pickAll(mended);
  std::size_t picks = 0;
  std::size_t others = 0;
  for (std::size_t shot = 0; shot < 12; ++shot) {
    for (std::size_t trace = 0; trace < 48; ++trace) {
      const double expected = sound.ttArray[shot].ttMisurati[trace];
      const double got = mended.ttArray[shot].ttMisurati[trace];
      if (hasPick(expected)) ++picks;
      if (std::fabs(got - expected) > 2.001 * kInterval) ++others;
    }
  }
  EXPECT_GT(picks, 450U);
  EXPECT_LE(others, picks / 50);
}

TEST(SpoiledSurvey, hasASoundTwinThatNothingIsDoubtfulAbout) {
  const std::vector<Finding> findings = checkRecordings(soundLine(bigLine()));
  for (const Finding& finding : findings) ADD_FAILURE() << finding.text;
}

/// Three of thirteen records begin 70 ms before the blow.
TEST(SpoiledSurvey, hasItsEarlyTriggersFoundAmongManyRightOnes) {
  LinePlan plan = bigLine();
  plan.shots.push_back(83.0);
  TomoDocument document = soundLine(plan);
  for (const std::size_t shot : {2, 5, 9}) delayRecord(document, shot, 280);
  const std::vector<Finding> findings = checkRecordings(document);
  ASSERT_EQ(findings.size(), 3U);
  for (const Finding& finding : findings) {
    EXPECT_EQ(finding.kind, Finding::Kind::kTriggerTime);
    ASSERT_TRUE(finding.proposal.has_value());
    EXPECT_NEAR(finding.proposal->seconds, 0.070, 2.0 * kInterval) << finding.text;
    EXPECT_GT(finding.confidence, 0.9);
  }
}

TEST(SpoiledSurvey, isFoundOutAlikeWhateverTheOrderOfWork) {
  const TomoDocument document = spoiledLine();
  const std::vector<Finding> once = checkRecordings(document);
  const std::vector<Finding> again = checkRecordings(document);
  ASSERT_EQ(once.size(), again.size());
  for (std::size_t i = 0; i < once.size(); ++i) {
    EXPECT_EQ(once[i].text, again[i].text);
    EXPECT_EQ(once[i].measured, again[i].measured);
    EXPECT_EQ(once[i].confidence, again[i].confidence);
  }
}

TEST(SpoiledSurvey, isCheckedNoFurtherWhenAskedToStop) {
  int asked = 0;
  checkRecordings(soundLine(), [&] { return ++asked < 2; });
  EXPECT_EQ(asked, 2);
}

}  // namespace
}  // namespace talvesk::doctor
