#include "Samples.h"
#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"
#include "support/TestGrids.h"
#include "support/TestSurveys.h"

#include <functional>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TravelTimeData sample() {
  const ConsoleCapture console;
  TravelTimeData data;
  EXPECT_TRUE(parseTravelTimes(kOtte, "a.otte", data).ok());
  return data;
}

/// A document with a grid and the results of an inversion.
TomoDocument inverted(std::size_t shots, std::size_t traces) {
  TomoDocument document;
  document.recordings.edit().traceSets.assign(shots, TraceSet(traces));
  document.recordings.edit().filenames.assign(shots, "shot.dat");
  document.line.edit().goephonesStringSet = {{{0, 1}, {1, 1}}, {{2, 1}}};
  for (std::size_t i = 0; i < shots; ++i) {
    TravelTime record;
    record.traceSetID = static_cast<int>(i);
    record.ttMisurati.edit().assign(traces, kUnpicked);
    record.ttCalcolati.edit().assign(traces, 0.5);
    document.ttArray.edit().push_back(record);
  }
  document.model.edit().grid = roughGrid({2, 2, 3, 5.0}, 0.0);
  document.proposedCellSizes = std::vector<double>{5.0};
  document.result.edit().has_tomographic_info = true;
  document.result.edit().RMSE_tomography = 3.0;
  document.result.edit().info_density = {1.0};
  document.result.edit().rays = {{1, 2}};
  document.result.edit().hitCounts = {1};
  document.result.edit().coorcount = {1.0};
  document.result.edit().excluded = {{0, 1, 2.0}};
  document.model.edit().layers.resize(1);
  return document;
}

void expectNoModel(const TomoDocument& document) {
  EXPECT_EQ(document.model->grid, nullptr);
  EXPECT_FALSE(document.result->has_tomographic_info);
  EXPECT_EQ(document.result->RMSE_tomography, -1.0);
  EXPECT_TRUE(document.result->info_density.empty() && document.result->rays.empty());
  EXPECT_TRUE(document.result->hitCounts.empty() && document.result->coorcount.empty());
  EXPECT_TRUE(document.result->excluded.empty() && document.proposedCellSizes.empty());
}

TEST(Import, replacesASurveyWithoutTraces) {
  TomoDocument document = inverted(5, 2);
  document.recordings.edit().traceSets.clear();
  document.title = "line 4";
  ASSERT_TRUE(importTravelTimes(sample(), document).ok());
  EXPECT_EQ(document.line->goephonesStringSet.size(), 1u);
  EXPECT_EQ(document.ttArray.size(), 2u);
  EXPECT_THAT(document.line->shotPositions, ElementsAre(-2.5, 12.5));
  EXPECT_THAT(document.recordings->filenames, IsEmpty());
  EXPECT_THAT(document.model->layers, IsEmpty());
  EXPECT_EQ(document.title, "line 4");
  expectNoModel(document);
}

TEST(Import, fillsTheRecordsByTheirTraceSet) {
  TomoDocument document = inverted(2, 3);
  TravelTimeData data = sample();
  std::swap(data.records[0], data.records[1]);
  ASSERT_TRUE(importTravelTimes(std::move(data), document).ok());
  EXPECT_THAT(document.ttArray[0].ttMisurati, ElementsAre(0.0055, 0.01025, kNoTime));
  EXPECT_THAT(document.ttArray[1].ttMisurati, ElementsAre(0.03, 0.02, kUnpicked));
  EXPECT_THAT(document.ttArray[1].ttCalcolati, ElementsAre(kNoTime, kNoTime, kNoTime));
  EXPECT_EQ(document.ttArray[0].traceSetID, 0);
  EXPECT_EQ(document.ttArray[0].shotPos2d, (Point2D{-2.5, 99}));
  EXPECT_THAT(document.line->shotPositions, ElementsAre(-2.5, 12.5));
  EXPECT_EQ(document.line->goephonesStringSet, sample().strings);
  EXPECT_EQ(document.recordings->traceSets.size(), 2u);
  EXPECT_EQ(document.recordings->filenames.size(), 2u);
  EXPECT_EQ(document.model->layers.size(), 1u);
  expectNoModel(document);
}

TEST(Import, takesTheMarksOfAnAutopickerAwayWithItsPicks) {
  TomoDocument document = inverted(2, 3);
  document.ttArray.edit()[0].setWaiting(0, true);
  document.ttArray.edit()[1].setWaiting(1, true);
  ASSERT_TRUE(importTravelTimes(sample(), document).ok());
  for (const TravelTime& record : document.ttArray) {
    for (std::size_t trace = 0; trace < 3; ++trace) EXPECT_FALSE(record.waits(trace)) << trace;
  }
}

TEST(Import, dropsPicksBeyondTheRecordsOfTheTracesTheyBelongTo) {
  TomoDocument document = inverted(2, 3);
  for (TraceSet& set : document.recordings.edit().traceSets) {
    for (Trace& trace : set) {
      trace.samples.edit().assign(25, 0.0);
      trace.sampleInterval = 0.001;
    }
  }
  TravelTimeData data = sample();
  fitToRecords(data, document);
  EXPECT_THAT(data.warnings, ElementsAre(HasSubstr("shot 2, trace 1 (30 ms, beyond its record")));
  ASSERT_TRUE(importTravelTimes(std::move(data), document).ok());
  EXPECT_THAT(document.ttArray[1].ttMisurati, ElementsAre(kNoTime, 0.02, kUnpicked));
}

TEST(Import, keepsTheGridWhenOnlyTimesChange) {
  TomoDocument document = inverted(2, 3);
  document.line.edit().goephonesStringSet = sample().strings;
  for (std::size_t i = 0; i < 2; ++i)
    document.ttArray.edit()[i].shotPos2d = sample().records[i].shotPos2d;
  ASSERT_TRUE(importTravelTimes(sample(), document).ok());
  EXPECT_THAT(document.ttArray[0].ttMisurati, ElementsAre(0.0055, 0.01025, kNoTime));
  EXPECT_THAT(document.ttArray[0].ttCalcolati, ElementsAre(0.5, 0.5, 0.5));
  EXPECT_NE(document.model->grid, nullptr);
  EXPECT_TRUE(document.result->has_tomographic_info);
}

/// A survey that has been inverted, with positions that take more digits than a file has.
TomoDocument invertedLine(bool traces) {
  TomoDocument line = testLine(12, 2.0123456, {-1.0654321, 11.0}, 1.0);
  for (TravelTime& record : line.ttArray.edit()) {
    record.ttMisurati.edit().assign(12, 0.01);
    record.ttCalcolati.edit().assign(12, 0.012);
  }
  if (traces) line.recordings.edit().traceSets.assign(2, TraceSet(12));
  putGrid(line, 6.0, 1.0);
  line.model.edit().editGrid().setSlowness(5, 1.0 / 777.0);
  line.result.edit().has_tomographic_info = true;
  line.result.edit().RMSE_tomography = 3.0;
  line.result.edit().rays = {{1, 2}};
  line.model.edit().layers.resize(1);
  return line;
}

/// What a file has of a line after a change.
TravelTimeData writtenAfter(const TomoDocument& line,
                            const std::function<void(TomoDocument&)>& change = {}) {
  const TestFolder folder;
  const ConsoleCapture console;
  TomoDocument other;
  other.line.edit().goephonesStringSet = line.line->goephonesStringSet;
  other.ttArray.edit() = line.ttArray;
  if (change) change(other);
  TravelTimeData data;
  EXPECT_TRUE(writeTravelTimes(folder.file("out.otte"), other).ok());
  EXPECT_TRUE(readTravelTimes(folder.file("out.otte"), data).ok());
  return data;
}

TEST(Import, countsPositionsEqualToTheDigitsOfTheFileAsUnmoved) {
  for (const bool traces : {true, false}) {
    TomoDocument line = invertedLine(traces);
    TravelTimeData data = writtenAfter(
        line, [](TomoDocument& other) { other.ttArray.edit()[1].ttMisurati.edit()[3] = 0.02; });
    ASSERT_NE(data.strings, line.line->goephonesStringSet) << "digits are gone";
    const auto positions = line.line->goephonesStringSet;
    ImportCost cost;
    ASSERT_TRUE(checkImport(data, line, cost).ok());
    EXPECT_EQ(cost.model, ModelLoss::kNothing);
    EXPECT_FALSE(cost.survey);
    ASSERT_TRUE(importTravelTimes(std::move(data), line).ok());
    EXPECT_EQ(line.line->goephonesStringSet, positions);
    EXPECT_EQ(line.ttArray[0].shotPos2d.x, -1.0654321);
    EXPECT_DOUBLE_EQ(line.ttArray[1].ttMisurati[3], 0.02);
    EXPECT_EQ(line.ttArray[1].ttCalcolati[3], 0.012);
    EXPECT_TRUE(line.model->grid != nullptr && line.result->has_tomographic_info &&
                line.model->layers.size() == 1U);
  }
}

TEST(Import, keepsTheGridUnderTheSameSurfaceAndForgetsItUnderAnother) {
  const struct {
    const char* name;
    std::function<void(TravelTimeData&)> change;
    ModelLoss loss;
  } cases[] = {
      {"a shot at another geophone",
       [](TravelTimeData& d) {
         d.records[1].shotPos2d = invertedLine(true).line->goephonesStringSet[0][5];
       },
       ModelLoss::kResults},
      {"a shot above the ground", [](TravelTimeData& d) { d.records[1].shotPos2d.z += 0.5; },
       ModelLoss::kGrid},
      {"a longer line", [](TravelTimeData& d) { d.records[0].shotPos2d.x -= 3.0; },
       ModelLoss::kGrid},
      {"a geophone moved", [](TravelTimeData& d) { d.strings[0][4].x += 0.3; }, ModelLoss::kGrid},
  };
  for (const bool traces : {true, false}) {
    for (const auto& c : cases) {
      SCOPED_TRACE(c.name);
      TomoDocument line = invertedLine(traces);
      // At a geophone it bends no surface that others do not bend as well.
      line.ttArray.edit()[1].shotPos2d = line.line->goephonesStringSet[0][6];
      TravelTimeData data = writtenAfter(line);
      c.change(data);
      ImportCost cost;
      ASSERT_TRUE(checkImport(data, line, cost).ok());
      EXPECT_EQ(cost.model, c.loss);
      EXPECT_EQ(cost.survey, !traces) << "without traces it is another survey";
      ASSERT_TRUE(importTravelTimes(std::move(data), line).ok());
      EXPECT_FALSE(line.result->has_tomographic_info);
      EXPECT_TRUE(line.result->rays.empty());
      EXPECT_EQ(line.ttArray[0].ttCalcolati, std::vector<double>(12, kNoTime));
      ASSERT_EQ(line.model->grid != nullptr, c.loss == ModelLoss::kResults);
      if (line.model->grid == nullptr) continue;
      EXPECT_EQ(line.model->grid->slowness(5), 1.0 / 777.0);
      EXPECT_EQ(line.result->info_density,
                std::vector<double>(line.model->grid->cellCount(), -1.0));
      EXPECT_EQ(line.model->layers.size(), 1U);
    }
  }
}

TEST(Import, givesGeophonesWithoutShotsTheirFirst) {
  TomoDocument line = invertedLine(false);
  const TravelTimeData data = writtenAfter(line);
  line.ttArray.edit().clear();
  ASSERT_TRUE(importTravelTimes(data, line).ok());
  EXPECT_EQ(line.ttArray.size(), 2U);
}

void expectUntouched(const TomoDocument& document, std::size_t shots, std::size_t traces) {
  EXPECT_NE(document.model->grid, nullptr);
  EXPECT_EQ(document.result->RMSE_tomography, 3.0);
  EXPECT_EQ(document.line->goephonesStringSet.size(), 2u);
  EXPECT_THAT(document.line->shotPositions, IsEmpty());
  ASSERT_EQ(document.ttArray.size(), shots);
  for (const TravelTime& record : document.ttArray) {
    EXPECT_EQ(record.ttMisurati, std::vector<double>(traces, kUnpicked));
  }
}

TEST(Import, leavesTheDocumentWhenThePicksDoNotFitItsTraces) {
  TravelTimeData twice = sample();
  twice.records[1].traceSetID = 0;
  TravelTimeData beyond = sample();
  beyond.records[1].traceSetID = 2;
  TravelTimeData negative = sample();
  negative.records[0].traceSetID = -1;
  TravelTimeData noString = sample();
  noString.records[1].indexStesa = 1;
  const struct {
    TravelTimeData data;
    std::size_t shots;
    std::size_t traces;
    const char* message;
  } cases[] = {
      {sample(), 3, 3, "picks of 2 shots, the survey has 3"},
      {sample(), 2, 4, "3 times for trace set 0, which has 4 traces"},
      {twice, 2, 3, "trace set 0 is named twice or not in the survey"},
      {beyond, 2, 3, "trace set 2 is named twice or not in the survey"},
      {negative, 2, 3, "trace set -1 is named twice or not in the survey"},
      {noString, 2, 3, "a record names geophone string 1 of 1"},
  };
  for (const auto& c : cases) {
    TomoDocument document = inverted(c.shots, c.traces);
    const Status status = importTravelTimes(c.data, document);
    EXPECT_EQ(status.code(), 1);
    EXPECT_THAT(status.message(), HasSubstr(c.message));
    expectUntouched(document, c.shots, c.traces);
  }
}

TEST(Load, tellsFileAndReasonAndLeavesTheDocument) {
  const TestFolder folder;
  for (const std::string& text : {kOtte, replaced(kOtte, "10.25", "x")}) {
    const std::string path = folder.put("load.otte", text);
    TomoDocument document = inverted(3, 3);
    const ConsoleCapture console;
    const Status status = loadTravelTimes(path, document);
    EXPECT_EQ(status.code(), 1);
    EXPECT_THAT(status.message(), HasSubstr(path));
    EXPECT_EQ(console.error(), status.message() + "\n");
    expectUntouched(document, 3, 3);
  }
}

TEST(Load, fillsAnEmptyDocument) {
  const TestFolder folder;
  const std::string path = folder.put("load.XYZ", kPickTable);
  TomoDocument document;
  const ConsoleCapture console;
  EXPECT_EQ(loadTravelTimes(path, document).code(), 0);
  EXPECT_EQ(document.ttArray.size(), 2u);
}

}  // namespace
}  // namespace talvesk
