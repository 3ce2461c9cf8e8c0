#include "io/RecordExport.h"
#include "io/SegyWriter.h"
#include "io/ShotLoader.h"
#include "io/standard/StandardReader.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Two shots into three geophones; the traces of the first end in a sample that is not 0.
TomoDocument survey(double interval = 0.00025) {
  TomoDocument document;
  document.line.edit().goephonesStringSet = {{{0.0, 100.25}, {5.5, 101.0}, {11.0, 99.5}}};
  for (int shot = 0; shot < 2; ++shot) {
    TraceSet set(3);
    for (std::size_t t = 0; t < set.size(); ++t) {
      set[t].sampleInterval = interval;
      for (int i = 0; i < 40; ++i) {
        set[t].samples.edit().push_back(
            static_cast<float>(std::sin(0.3 * i * (1.0 + static_cast<double>(t)) + shot)));
      }
      if (shot == 1) set[t].samples.edit().back() = 0.0;
    }
    document.recordings.edit().traceSets.push_back(std::move(set));
    TravelTime record;
    record.shotPos2d = {-1.25 + 13.5 * shot, 100.5};
    record.traceSetID = shot;
    record.ttMisurati.edit().assign(3, kUnpicked);
    document.ttArray.edit().push_back(std::move(record));
  }
  return document;
}

std::vector<Trace>& tracesOf(TomoDocument& document, std::size_t set) {
  return document.recordings.edit().traceSets[set];
}

TomoDocument loaded(const std::vector<std::string>& files) {
  const ConsoleCapture console;
  TomoDocument document;
  ShotLoader loader;
  for (const ShotFileOutcome& outcome : loader.load(files, document)) {
    EXPECT_TRUE(outcome.status.ok()) << outcome.status.message();
    EXPECT_THAT(outcome.warnings, IsEmpty());
  }
  return document;
}

std::vector<double> samplesOf(const TomoDocument& document, std::size_t set, std::size_t trace) {
  const Samples& samples = document.recordings->traceSets[set][trace].samples;
  return {samples.begin(), samples.end()};
}

class RecordExporting : public ::testing::Test {
 protected:
  std::vector<std::string> write(const TomoDocument& document, RecordFormat format,
                                 bool together = false) {
    const RecordExport wanted = {format, folder.path(), together};
    const Status status = exportRecords(document, wanted, notes);
    EXPECT_TRUE(status.ok()) << status.message();
    return recordFiles(document, wanted);
  }

  TestFolder folder;
  std::vector<Message> notes;
};

TEST_F(RecordExporting, comesBackFromSeg2WithAllSamplesPositionsAndTimes) {
  TomoDocument before = survey(0.0000625);
  before.line.edit().goephonesStringSet[0][1] = {566245.876321, 1.0 / 3.0};
  for (Trace& trace : tracesOf(before, 0)) trace.delay = -0.0125;
  const std::vector<std::string> files = write(before, RecordFormat::kSeg2);
  EXPECT_THAT(files, ElementsAre(folder.file("shot01.sg2"), folder.file("shot02.sg2")));
  EXPECT_THAT(notes, IsEmpty());
  const TomoDocument after = loaded(files);
  EXPECT_EQ(after.line->goephonesStringSet, before.line->goephonesStringSet);
  EXPECT_EQ(after.shotPoints(), before.shotPoints());
  for (std::size_t t = 0; t < 3; ++t) {
    std::vector<double> longer = samplesOf(before, 0, t);
    longer.push_back(0.0);  // the sample that the program's own reader does not read
    EXPECT_EQ(samplesOf(after, 0, t), longer);
    EXPECT_EQ(samplesOf(after, 1, t), samplesOf(before, 1, t));
    EXPECT_EQ(after.recordings->traceSets[0][t].delay, -0.0125);
    EXPECT_EQ(after.recordings->traceSets[1][t].delay, 0.0);
    EXPECT_EQ(after.recordings->traceSets[1][t].sampleInterval, 0.0000625);
  }
}

TEST_F(RecordExporting, comesBackFromSegyAsFarAsItsReaderGoes) {
  TomoDocument before = survey();
  before.line.edit().goephonesStringSet = {{{-3, 100.25}, {5, 101}, {11, 99.5}}};
  before.ttArray.edit()[0].shotPos2d.x = 2.0;
  before.ttArray.edit()[1].shotPos2d.x = -4.0;
  const TomoDocument after = loaded(write(before, RecordFormat::kSegy));
  EXPECT_THAT(after.line->goephonesStringSet[0],
              ElementsAre(Point2D{-3, 0}, Point2D{5, 0}, Point2D{11, 0}));
  EXPECT_THAT(after.line->shotPositions, ElementsAre(2.0, -4.0));
  EXPECT_EQ(samplesOf(after, 1, 2), samplesOf(before, 1, 2));
  EXPECT_EQ(samplesOf(after, 0, 2).size(), 41u);
  EXPECT_EQ(after.recordings->traceSets[1][0].sampleInterval, 0.00025);
}

TEST_F(RecordExporting, comesBackFromBothFormatsByTheStandard) {
  TomoDocument before = survey();
  for (Trace& trace : tracesOf(before, 0)) trace.delay = -0.0125;
  for (const auto& [format, together] : {std::pair{RecordFormat::kSeg2, false},
                                         {RecordFormat::kSegy, false},
                                         {RecordFormat::kSegy, true}}) {
    std::vector<StandardReading::Shot> shots;
    for (const std::string& file : write(before, format, together)) {
      StandardReading reading;
      ASSERT_TRUE(readByStandard(file, reading).ok()) << file;
      for (const Message& warning : reading.warnings) ADD_FAILURE() << warning;
      shots.insert(shots.end(), reading.shots.begin(), reading.shots.end());
    }
    ASSERT_EQ(shots.size(), 2u);
    for (std::size_t s = 0; s < 2; ++s) {
      const ShotFileData& data = shots[s].data;
      for (const Message& warning : data.warnings) ADD_FAILURE() << warning;
      ASSERT_EQ(data.traces.size(), 3u);
      for (std::size_t t = 0; t < 3; ++t) {
        std::vector<double> samples = samplesOf(before, s, t);
        samples.resize(data.traces[t].samples.size(), 0.0);
        EXPECT_EQ(data.traces[t].samples, samples);
        EXPECT_EQ(data.traces[t].receiver, before.line->goephonesStringSet[0][t]);
        EXPECT_EQ(data.traces[t].source, before.ttArray[s].shotPos2d);
        EXPECT_EQ(data.traces[t].sampleInterval, 0.00025);
        EXPECT_DOUBLE_EQ(data.traces[t].delay, s == 0 ? -0.0125 : 0.0);
      }
    }
  }
}

std::int64_t field(const std::string& file, std::size_t at, std::size_t bytes) {
  std::int64_t value = 0;
  for (std::size_t i = 0; i < bytes; ++i)
    value = value * 256 + static_cast<unsigned char>(file[at + i]);
  const std::int64_t range = std::int64_t{1} << (8 * bytes);
  return value < range / 2 ? value : value - range;
}

TEST_F(RecordExporting, fillsTheHeadersOfSegyThatOtherProgramsRead) {
  TomoDocument document = survey();
  for (Trace& trace : tracesOf(document, 1)) trace.delay = -0.0125;
  document.recordings.edit().mends.resize(2);
  document.recordings.edit().mends[1].traces = {{}, {true, false, 0.0}};
  const std::vector<std::string> files = write(document, RecordFormat::kSegy, true);
  ASSERT_THAT(files, ElementsAre(folder.file("shots.sgy")));
  EXPECT_THAT(notes, ElementsAre(HasSubstr("read by the program's rules, the files have no elev")));
  const std::string file = TestFolder::get(files[0]);
  const std::size_t traceBytes = 240 + 41 * 4;
  ASSERT_EQ(file.size(), 3600 + 6 * traceBytes);
  EXPECT_EQ(file.substr(0, 4), "\xC3\x40\xF1\x40");  // "C 1 "
  EXPECT_NE(file.find("\xE2\xC5\xC7\x40\xE8\x40\xD9\xC5\xE5\xF1"),
            std::string::npos);  // SEG Y REV1
  const struct {
    std::size_t at;
    std::size_t bytes;
    std::int64_t value;
  } fields[] = {{3212, 2, 3}, {3216, 2, 250}, {3220, 2, 41}, {3224, 2, 5},
                {3254, 2, 1}, {3500, 2, 256}, {3502, 2, 1}};
  for (const auto& f : fields) EXPECT_EQ(field(file, f.at, f.bytes), f.value) << f.at;
  const std::size_t fifth = 3600 + 4 * traceBytes;  // the second trace of the second shot
  const struct {
    std::size_t at;
    std::size_t bytes;
    std::int64_t value;
  } ofTrace[] = {{0, 4, 5},     {4, 4, 5},     {8, 4, 2},      {12, 4, 2},     {16, 4, 2},
                 {28, 2, 2},    {36, 4, -7},   {40, 4, 10100}, {44, 4, 10050}, {68, 2, -100},
                 {70, 2, -100}, {72, 4, 1225}, {80, 4, 550},   {88, 2, 1},     {108, 2, -125},
                 {114, 2, 41},  {116, 2, 250}, {214, 2, -10}};
  for (const auto& f : ofTrace) EXPECT_EQ(field(file, fifth + f.at, f.bytes), f.value) << f.at;
}

TEST(SegyWriter, countsPositionsAsFinelyAsTheyNeed) {
  const struct {
    double x;
    std::int64_t scalar;
    std::int64_t number;
  } cases[] = {{120.0, 1, 120},
               {-0.25, -100, -25},
               {0.125, -1000, 125},
               {0.00004, -10000, 0},
               {7632624.454, -100, 763262445}};  // finer would not fit four bytes
  for (const auto& c : cases) {
    WrittenShot shot;
    shot.receivers = {{c.x, 0.0}};
    shot.traces = {{1.0F}};
    shot.sampleInterval = 0.001;
    const std::string file = formatSegy({shot});
    EXPECT_EQ(field(file, 3600 + 70, 2), c.scalar) << c.x;
    EXPECT_EQ(field(file, 3600 + 80, 4), c.number) << c.x;
    EXPECT_EQ(field(file, 3600 + 68, 2), 1) << c.x;
  }
}

TEST_F(RecordExporting, writesNothingWhereAShotDoesNotFit) {
  TomoDocument uneven = survey();
  tracesOf(uneven, 1)[2].sampleInterval = 0.0005;
  TomoDocument large = survey();
  tracesOf(large, 1)[0].samples.edit()[3] = 1e39;
  TomoDocument late = survey();
  for (Trace& trace : tracesOf(late, 1)) trace.delay = -40.0;
  TomoDocument without = survey(std::numeric_limits<double>::max());
  const struct {
    TomoDocument document;
    RecordFormat format;
    const char* reason;
  } cases[] = {{survey(0.0000625), RecordFormat::kSegy,
                "shot 1: its sample interval of 0.0625 ms is no whole"},
               {late, RecordFormat::kSegy, "shot 2: it begins -40000 ms after the shot"},
               {uneven, RecordFormat::kSeg2, "the traces of shot 2 differ in sample interval"},
               {large, RecordFormat::kSeg2, "shot 2, trace 1: a sample is too large"},
               {without, RecordFormat::kSeg2, "shot 1: it has no sample interval"},
               {TomoDocument(), RecordFormat::kSeg2, "the survey has no records"}};
  for (const auto& c : cases) {
    const Status status = exportRecords(c.document, {c.format, folder.path(), false}, notes);
    EXPECT_THAT(status.message(), HasSubstr(c.reason));
    EXPECT_EQ(folder.entries(), 0) << c.reason;
  }
}

TEST_F(RecordExporting, saysWhatItLeavesOutAndRounds) {
  TomoDocument document = survey();
  document.recordings.edit().mends.resize(1);
  document.recordings.edit().mends[0].disabled = true;
  Trace& trace = tracesOf(document, 1)[0];
  trace.samples.edit()[7] = 0.1;
  for (Trace& each : tracesOf(document, 1)) {
    each.delay = -0.01;
    each.droppedSamples = 40;
  }
  EXPECT_THAT(write(document, RecordFormat::kSeg2), ElementsAre(folder.file("shot02.sg2")));
  EXPECT_THAT(notes, ElementsAre(HasSubstr("1 shots are disabled"), HasSubstr("3 traces begin at"),
                                 HasSubstr("1 samples were rounded")));
  EXPECT_EQ(loaded({folder.file("shot02.sg2")}).recordings->traceSets[0][0].delay, 0.0);
}

TEST_F(RecordExporting, canBeStopped) {
  const Status status = exportRecords(survey(), {RecordFormat::kSeg2, folder.path(), false}, notes,
                                      [](std::size_t shot) { return shot == 0; });
  EXPECT_FALSE(status.ok());
  EXPECT_EQ(folder.entries(), 1);  // what is there is whole
}

}  // namespace
}  // namespace talvesk
