#include "batch/Progress.h"
#include "batch/ProjectFiles.h"
#include "batch/ResultJson.h"
#include "io/TravelTimeData.h"
#include "io/project/projectReader.h"
#include "model/Mending.h"
#include "support/ShotDocument.h"

#include <cmath>
#include <limits>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk {
namespace {

TomographyProgress threeOfTen() {
  TomographyProgress progress;
  progress.completed = 3;
  progress.total = 10;
  progress.elapsedSeconds = 90.0;
  progress.misfit.count = 5;
  progress.misfit.rmse = 0.0015;
  progress.misfit.relativeRms = 0.031;
  progress.sectionBefore.count = 5;
  progress.sectionBefore.rmse = 0.0025;
  progress.sectionBefore.relativeRms = 0.04;
  return progress;
}

TEST(Progress, remainingTimeFollowsFromTheIterationsDone) {
  EXPECT_EQ(
      progressLine(threeOfTen()),
      "External iteration 3 of 10: section of 2 2.5 ms (4 %), last solver pass 1.5 ms (3.1 %), "
      "elapsed 1:30, remaining about 3:30");
}

TEST(Progress, barFitsATerminalLine) {
  TomographyProgress progress = threeOfTen();
  EXPECT_EQ(progressBar(progress, 10), "[###.......] 3/10 section 2.5 ms (4 %) 3:30 left");
  progress.elapsedSeconds = 1e9;
  progress.completed = 1;
  progress.sectionBefore.rmse = 12.3456789;
  EXPECT_LT(progressBar(progress, 30).size(), 80U);
}

TEST(Progress, silenceIsSilentAndLinesHaveNoControlCharacters) {
  std::ostringstream silent;
  Progress(ProgressStyle::kSilent, silent, 10).show(threeOfTen());
  EXPECT_EQ(silent.str(), "");
  std::ostringstream lines;
  Progress(ProgressStyle::kLines, lines, 10).show(threeOfTen());
  EXPECT_EQ(lines.str(), progressLine(threeOfTen()) + "\n");
}

TEST(ProjectInfo, tellsTheMendsOfEveryShot) {
  LoadedProject project;
  project.document = testing::shotDocument(3, 4, 100);
  ShotMends mends;
  mends.timeShift = 0.001;
  mends.traces = {{}, {true, false, 0.0}};
  ASSERT_TRUE(setMends(1, mends, project.document).ok());
  const auto json = nlohmann::json::parse(projectJson(project));
  EXPECT_TRUE(json["shots"][0]["mends"].is_null());
  const auto& told = json["shots"][1]["mends"];
  EXPECT_EQ(told["time_shift"], 0.001);
  EXPECT_EQ(told["disabled"], false);
  ASSERT_EQ(told["traces"].size(), 1U);
  EXPECT_EQ(told["traces"][0]["trace"], 1);
  EXPECT_EQ(told["traces"][0]["killed"], true);
  std::ostringstream text;
  describe("line.tvsk", project, text);
  EXPECT_THAT(text.str(), ::testing::HasSubstr("  mend        shot 2: shifted by 1 ms: its record "
                                               "was late\n  mend        shot 2: traces killed: 2"));
}

TEST(ResultJson, whatIsNoNumberIsNullAndWrongBytesAreReplaced) {
  TravelTimeData data;
  data.format = "\xff\"otte";
  data.strings = {{{std::nan(""), std::numeric_limits<double>::infinity()}}};
  TravelTime record;
  record.ttMisurati.edit() = {0.1, -std::numeric_limits<double>::infinity()};
  data.records = {record};
  const auto json = nlohmann::ordered_json::parse(travelTimesJson(data));
  EXPECT_TRUE(json["strings"][0][0][0].is_null());
  EXPECT_TRUE(json["strings"][0][0][1].is_null());
  EXPECT_EQ(json["shots"][0]["times"][0], 0.1);
  EXPECT_TRUE(json["shots"][0]["times"][1].is_null());
}

TEST(ResultJson, arraysOfAnyLengthParse) {
  using nlohmann::ordered_json;
  EXPECT_EQ(ordered_json::parse(jsonArray({})), ordered_json::array());
  EXPECT_EQ(ordered_json::parse(jsonArray({"1\n"})), ordered_json::array({1}));
  EXPECT_EQ(ordered_json::parse(jsonArray({"1\n", "2\n"})), ordered_json::array({1, 2}));
}

}  // namespace
}  // namespace talvesk
