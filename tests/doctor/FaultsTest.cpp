#include "doctor/Doctor.h"
#include "doctor/FindingTexts.h"
#include "doctor/SyntheticLine.h"

#include <algorithm>
#include <functional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk::doctor {
namespace {

using namespace testing;
using Spoil = std::function<void(TomoDocument&)>;

/// "dead_trace 3: 5 8 -> kill_traces", shots and traces from 0.
std::string shortOf(const Finding& finding) {
  std::string text = keyOf(finding.kind);
  text += finding.shot ? " " + std::to_string(*finding.shot) : " -";
  for (const std::size_t trace : finding.traces) text += ":" + std::to_string(trace);
  return text + (finding.proposal ? std::string(" -> ") + keyOf(finding.proposal->kind) : "");
}

std::vector<std::string> found(const TomoDocument& document) {
  std::vector<std::string> texts;
  for (const Finding& finding : checkRecordings(document)) texts.push_back(shortOf(finding));
  return texts;
}

struct Fault {
  std::string name;
  Spoil spoil;
  std::vector<std::string> findings;
  bool mendable = true;  ///< nobody knows where shots beyond the ends of the geophones were
};

class Faults : public ::testing::TestWithParam<Fault> {};

TEST_P(Faults, areFoundAndNothingElseIs) {
  TomoDocument document = soundLine();
  GetParam().spoil(document);
  EXPECT_THAT(found(document), ::testing::ElementsAreArray(GetParam().findings));
}

/// Carrying out what is proposed leaves nothing to propose.
TEST_P(Faults, areGoneAfterwards) {
  TomoDocument document = soundLine();
  GetParam().spoil(document);
  for (const Finding& finding : checkRecordings(document)) {
    if (!finding.proposal) continue;
    const Status status = carryOut(finding, *finding.proposal, document);
    EXPECT_TRUE(status.ok()) << status.message();
  }
  std::string left;
  for (const Finding& finding : checkRecordings(document)) {
    if (finding.proposal) left += shortOf(finding) + ": " + finding.text.english() + '\n';
  }
  EXPECT_EQ(left.empty(), GetParam().mendable) << left;
}

Spoil inAllShots(const std::function<void(TomoDocument&, std::size_t)>& spoil) {
  return [spoil](TomoDocument& document) {
    for (std::size_t shot = 0; shot < document.ttArray.size(); ++shot) spoil(document, shot);
  };
}

std::vector<std::string> perShot(const std::string& before, const std::string& after) {
  std::vector<std::string> all;
  for (int shot = 0; shot < 8; ++shot) all.push_back(before + std::to_string(shot) + after);
  return all;
}

const Fault kFaults[] = {
    {"none", [](TomoDocument&) {}, {}},
    {"shotElsewhere",
     [](TomoDocument& d) { placeShot(d, 3, 39.0); },
     {"shot_position 3 -> move_shot"}},
    {"allShotsAtOnePlace",
     inAllShots([](TomoDocument& d, std::size_t shot) { placeShot(d, shot, 0.0); }),
     {"repeated_positions 0", "repeated_positions 1 -> move_shot",
      "repeated_positions 2 -> move_shot", "repeated_positions 3 -> move_shot",
      "repeated_positions 4 -> move_shot", "repeated_positions 5 -> move_shot",
      "repeated_positions 6 -> move_shot", "repeated_positions 7"},
     false},
    {"stationNumbersOfGeophones",
     [](TomoDocument& d) { placeGeophones(d, 1.0, 1.0); },
     {"station_numbers 0 -> move_geophones"}},
    {"geophonesAtOnePlace",
     [](TomoDocument& d) { placeGeophones(d, 5.64, 0.0); },
     {"repeated_positions 0 -> move_geophones"}},
    {"stringLaidTheOtherWay",
     [](TomoDocument& d) { placeGeophones(d, 46.0, -2.0); },
     {"reversed_order 0 -> move_geophones"}},
    {"oneRecordTheOtherWay",
     [](TomoDocument& d) { reverseRecord(d, 2); },
     {"reversed_order 2 -> reverse_order"}},
    {"lateRecord",
     [](TomoDocument& d) { delayRecord(d, 4, 24); },
     {"trigger_time 4 -> time_shift"}},
    {"earlyRecord",
     [](TomoDocument& d) { delayRecord(d, 5, -16); },
     {"trigger_time 5 -> time_shift"}},
    {"deadTraces",
     [](TomoDocument& d) {
       scaleTrace(d, 1, 4, 0.0);
       scaleTrace(d, 1, 17, 0.0);
     },
     {"dead_trace 1:4:17 -> kill_traces"}},
    {"weakTrace",
     [](TomoDocument& d) { scaleTrace(d, 6, 9, 1e-3); },
     {"dead_trace 6:9 -> kill_traces"}},
    {"emptyRecord",
     [](TomoDocument& d) {
       for (std::size_t t = 0; t < 24; ++t) scaleTrace(d, 7, t, 0.0);
     },
     {"dead_trace 7 -> disable_shot"}},
    {"clippedTrace",
     [](TomoDocument& d) {
       for (double& value : tracesOf(d, 2)[7].samples.edit()) {
         value = std::clamp(value, -500.0, 500.0);
       }
     },
     {"clipped_trace 2:7"}},
    {"noisyTrace",
     [](TomoDocument& d) {
       LinePlan loud;
       loud.noise = 30.0;
       tracesOf(d, 3)[2].samples = traceOf(loud, 15.0, 0.02, 999);
     },
     {"noisy_trace 3:2 -> kill_traces"}},
    {"geophoneWiredBackwards",
     inAllShots([](TomoDocument& d, std::size_t shot) { scaleTrace(d, shot, 13, -1.0); }),
     perShot("reversed_polarity ", ":13 -> reverse_traces")},
    {"oneTraceReversed",
     [](TomoDocument& d) { scaleTrace(d, 5, 3, -1.0); },
     {"reversed_polarity 5:3 -> reverse_traces"}},
    {"doubledTrace",
     [](TomoDocument& d) {
       TraceSet& traces = tracesOf(d, 6);
       traces[20].samples = traces[5].samples;
     },
     {"doubled_trace 6:20 -> kill_traces"}},
    {"mistimedTrace",
     [](TomoDocument& d) {
       std::vector<double>& samples = tracesOf(d, 0)[15].samples.edit();
       const std::vector<double> quiet(samples.begin(), samples.begin() + 60);
       samples.insert(samples.begin(), quiet.begin(), quiet.end());
       samples.resize(1200);
     },
     {"mistimed_trace 0:15 -> kill_traces"}},
    {"geophoneOffTheLine",
     [](TomoDocument& d) { d.line.edit().goephonesStringSet[0][12].x += 1.7; },
     {"geophone_off_line 0:12 -> move_geophones"}},
    {"channelsExchanged",
     inAllShots([](TomoDocument& d, std::size_t shot) {
       TraceSet& traces = tracesOf(d, shot);
       std::swap(traces[10].samples, traces[14].samples);
     }),
     {"moved_trace 0:10:14 -> move_geophones"}},
    {"recordTwice",
     [](TomoDocument& d) {
       tracesOf(d, 5) = tracesOf(d, 4);
       placeShot(d, 5, 27.0);
     },
     {"repeated_shot 5 -> disable_shot"}},
    {"intervalOfOneRecord",
     inAllShots([](TomoDocument& d, std::size_t shot) {
       if (shot != 3) return;
       for (Trace& trace : tracesOf(d, shot)) trace.sampleInterval = 0.000251;
     }),
     {"sample_intervals -"}},
    {"noElevations",
     [](TomoDocument& d) {
       for (Point2D& point : d.line.edit().goephonesStringSet[0]) point.z = 0.0;
       for (TravelTime& record : d.ttArray.edit()) record.shotPos2d.z = 0.0;
     },
     {"no_elevations -"}},
};

INSTANTIATE_TEST_SUITE_P(Field, Faults, ::testing::ValuesIn(kFaults),
                         [](const auto& fault) { return fault.param.name; });

/// A single record, so that no other one tells: its hammer switch shows on all channels.
TEST(Doctor, readsTheBlowOffASpikeOnAllChannels) {
  LinePlan plan;
  plan.shots = {19.0};
  plan.lead = 0.08;
  TomoDocument document = soundLine(plan);
  delayRecord(document, 0, 12);
  for (Trace& trace : tracesOf(document, 0)) trace.samples.edit()[320 + 12] += 900.0;
  const std::vector<Finding> findings = checkRecordings(document);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_THAT(findings[0].text.english(),
              ::testing::HasSubstr("all channels have a spike at 3 ms"));
  EXPECT_NEAR(findings[0].proposal->seconds, 12 * kInterval, 1e-9);
}

TEST(Doctor, stacksTwoRecordsOfOneShotPoint) {
  LinePlan plan;
  plan.shots = {3.0, 19.0, 19.0, 35.0};
  EXPECT_THAT(found(soundLine(plan)), ::testing::ElementsAre("repeated_shot 1 -> stack"));
}

TEST(Doctor, tellsOfSpreadsThatContradictEachOtherOrLeaveAGap) {
  TomoDocument document = soundLine();
  auto& strings = document.line.edit().goephonesStringSet;
  strings.push_back(strings[0]);
  for (Point2D& point : strings[1]) point.z += 0.4;
  document.ttArray.edit()[7].indexStesa = 1;
  EXPECT_THAT(found(document), ::testing::ElementsAre("overlapping_spreads -"));
  for (Point2D& point : strings[1]) point.x += 80.0;
  for (std::size_t shot = 5; shot < 8; ++shot) {
    document.ttArray.edit()[shot].indexStesa = 1;
    placeShot(document, shot, document.ttArray[shot].shotPos2d.x + 80.0);
  }
  EXPECT_THAT(found(document), ::testing::ElementsAre("overlapping_spreads -"));
}

TEST(Doctor, believesNumbersInNamesOnlyWhenLeastTimesFollowThem) {
  LinePlan plan;
  TomoDocument document = soundLine(plan);
  auto& names = document.recordings.edit().filenames;
  for (std::size_t i = 0; i < names.size(); ++i) {
    placeShot(document, i, 0.0);
    names[i] = "/line/" + std::to_string(static_cast<int>(plan.shots[i])) + "m.sg2";
  }
  for (const Finding& finding : checkRecordings(document)) {
    ASSERT_TRUE(finding.proposal.has_value()) << finding.text;
    EXPECT_EQ(finding.proposal->points[0].x, plan.shots[*finding.shot]);
  }
  std::reverse(names.begin(), names.begin() + 4);  // four of eight are wrong
  for (const Finding& finding : checkRecordings(document)) {
    EXPECT_THAT(finding.text.english(), ::testing::Not(::testing::HasSubstr("name of the file")));
  }
}

}  // namespace
}  // namespace talvesk::doctor
