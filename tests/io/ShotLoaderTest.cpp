#include "io/ShotFile.h"
#include "io/ShotLoader.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "support/ShotFiles.h"
#include "support/TestFolder.h"
#include "support/TestGrids.h"
#include "support/TestSurveys.h"

#include <limits>
#include <set>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// A shot into as many channels, 5 m apart from `first` on.
std::string seg2Shot(double source, double first, int channels) {
  std::vector<Seg2Channel> made;
  for (int i = 0; i < channels; ++i) {
    made.push_back({4,
                    {1, 2, 3},
                    seg2Area({"DELAY -0.5", "RECEIVER_LOCATION " + std::to_string(first + 5 * i),
                              "SAMPLE_INTERVAL 0.001",
                              "SOURCE_LOCATION " + std::to_string(source) + " 101"})});
  }
  return seg2Bytes(made);
}

/// Shots at these places into three channels each, in one file.
std::string seg2Shots(const std::vector<double>& sources) {
  std::vector<Seg2Channel> made;
  for (const double source : sources) {
    for (int i = 0; i < 3; ++i) {
      made.push_back(
          {4,
           {1, 2, static_cast<float>(made.size())},
           seg2Area({"RECEIVER_LOCATION " + std::to_string(5 * i), "SAMPLE_INTERVAL 0.001",
                     "SOURCE_LOCATION " + std::to_string(source)})});
    }
  }
  return seg2Bytes(made);
}

std::string segyShot(ByteOrder order) {
  SegyFixture file;
  file.order = order;
  file.constant = order == ByteOrder::kBig ? std::string{1, 2, 3, 4} : std::string{4, 3, 2, 1};
  file.channels = {{{1, 2, 3}, 7, 10, 0}};
  return segyBytes(file);
}

std::string suShot(ByteOrder order) {
  SegyFixture file;
  file.order = order;
  file.channels = {{{4, 5, 6}, 7, 10, 0}, {{4, 5, 6}, 7, 20, 0}};
  return suBytes(file);
}

class ShotLoading : public ::testing::Test {
 protected:
  std::vector<int> load(const std::vector<std::string>& paths) {
    outcomes = loader.load(paths, document);
    std::vector<int> codes;
    for (const ShotFileOutcome& outcome : outcomes) codes.push_back(outcome.status.code());
    return codes;
  }

  TestFolder folder;
  ConsoleCapture console;
  ShotLoader loader;
  TomoDocument document;
  std::vector<ShotFileOutcome> outcomes;
};

TEST_F(ShotLoading, makesATraceSetAndARecordOfEachFile) {
  const std::string first = folder.put("b.DAT", seg2Shot(-2.5, 0, 3));
  const std::string second = folder.put("a.Sg2", seg2Shot(12.5, 0, 2));
  EXPECT_THAT(load({first, second}), ElementsAre(0, 0));
  EXPECT_EQ(outcomes[0].format, "seg2");
  EXPECT_THAT(document.recordings->filenames, ElementsAre(first, second));
  EXPECT_THAT(document.line->shotPositions, ElementsAre(-2.5, 12.5));
  ASSERT_THAT(document.recordings->traceSets, ElementsAre(SizeIs(3), SizeIs(2)));
  ASSERT_THAT(document.ttArray, SizeIs(2));
  EXPECT_EQ(document.ttArray[0].shotPos2d, (Point2D{-2.5, 101}));
  EXPECT_EQ(document.ttArray[1].traceSetID, 1);
  EXPECT_THAT(document.ttArray[0].ttMisurati, ElementsAre(0, 0, 0));
  EXPECT_THAT(document.ttArray[1].ttCalcolati, ElementsAre(kNoTime, kNoTime));
}

TEST_F(ShotLoading, keepsWhatTheTraceHeadersSay) {
  load({folder.put("a.dat", seg2Shot(-2.5, 10, 1))});
  const Trace& trace = document.recordings->traceSets.at(0).at(0);
  EXPECT_EQ(trace.waveKind, Trace::kFromFile);
  EXPECT_THAT(trace.samples, ElementsAre(1, 2, 0));
  EXPECT_THAT(trace.filtered, IsEmpty());
  EXPECT_EQ(trace.sourcePosition, (Point2D{-2.5, 101}));
  EXPECT_EQ(trace.receiverPosition, (Point2D{10, 0}));
  EXPECT_EQ(trace.delay, -0.5);
  EXPECT_EQ(trace.sampleInterval, 0.001);
  EXPECT_EQ(trace.furtherValue1, std::numeric_limits<double>::max());
}

TEST_F(ShotLoading, sharesGeophoneStringsThatAreEqual) {
  EXPECT_THAT(
      load({folder.put("a.dat", seg2Shot(0, 0, 3)), folder.put("b.dat", seg2Shot(5, 60, 3)),
            folder.put("c.dat", seg2Shot(9, 0, 3)), folder.put("d.dat", seg2Shot(9, 0, 2))}),
      ElementsAre(0, 0, 0, 0));
  EXPECT_THAT(document.line->goephonesStringSet, ElementsAre(SizeIs(3), SizeIs(3), SizeIs(2)));
  std::vector<int> strings;
  for (const TravelTime& record : document.ttArray) strings.push_back(record.indexStesa);
  EXPECT_THAT(strings, ElementsAre(0, 1, 0, 2));
}

TEST_F(ShotLoading, leavesFilesThatFailOut) {
  const std::string good = folder.put("good.dat", seg2Shot(1, 0, 2));
  EXPECT_THAT(load({folder.file("missing.dat"), folder.put("bad.seg2", "no"), good,
                    folder.put("silent.dat", seg2Bytes({{4, {1, 2}, seg2Area({"DELAY 0"})}})),
                    folder.put("picks.otte", "otte")}),
              ElementsAre(1, 1, 0, 2, 3));
  EXPECT_THAT(document.recordings->filenames, ElementsAre(good));
  EXPECT_THAT(document.ttArray, SizeIs(1));
  EXPECT_THAT(document.recordings->traceSets, SizeIs(1));
  EXPECT_THAT(document.line->goephonesStringSet, SizeIs(1));
  for (const ShotFileOutcome& outcome : outcomes) {
    EXPECT_EQ(outcome.status.message().find(outcome.path) == std::string::npos,
              outcome.status.ok());
  }
}

TEST_F(ShotLoading, isNoChangeWhenNoFileLoads) {
  document.model.edit().grid = roughGrid({2, 2, 3, 5.0}, 0.0);
  load({folder.file("missing.dat")});
  EXPECT_NE(document.model->grid, nullptr);
  load({folder.put("a.dat", seg2Shot(1, 0, 2))});
  EXPECT_EQ(document.model->grid, nullptr) << "the grid was made for another line";
}

TEST_F(ShotLoading, keepsTheGridWhenTheLineStaysAsItIs) {
  load({folder.put("a.dat", seg2Shot(0, 0, 4)), folder.put("b.dat", seg2Shot(15, 0, 4))});
  for (TravelTime& record : document.ttArray.edit()) record.shotPos2d.z = 0.0;
  putGrid(document, 5.0, 1.0);
  document.result.edit().has_tomographic_info = true;
  document.ttArray.edit()[0].ttCalcolati.edit().assign(4, 0.01);
  const std::string level = folder.put("level.dat", seg2Shot(0, 0, 4));    // a point that is known
  const std::string high = folder.put("high.dat", seg2Shot(7, 0, 4));      // 101 m above the line
  const std::string longer = folder.put("longer.dat", seg2Shot(0, 5, 4));  // a geophone at 20 m
  const std::string broken = folder.put("broken.dat", "no");
  const auto loss = [&](const std::vector<std::string>& files) {
    std::vector<ReadShotFile> shots;
    for (const std::string& file : files) shots.push_back(loader.read(file, document));
    return lossByShots(shots, document);
  };
  EXPECT_EQ(loss({broken}), ModelLoss::kNothing);
  EXPECT_EQ(loss({level, broken}), ModelLoss::kResults);
  EXPECT_EQ(loss({level, high}), ModelLoss::kGrid);
  EXPECT_EQ(loss({longer}), ModelLoss::kGrid);
  load({broken});
  EXPECT_TRUE(document.result->has_tomographic_info);
  load({level});
  EXPECT_THAT(document.ttArray, SizeIs(3));
  EXPECT_NE(document.model->grid, nullptr);
  EXPECT_FALSE(document.result->has_tomographic_info) << "its results are those of two shots";
  EXPECT_THAT(document.ttArray[0].ttCalcolati, ElementsAre(kNoTime, kNoTime, kNoTime, kNoTime));
  EXPECT_EQ(loss({level}), ModelLoss::kNothing);
  load({high});
  EXPECT_EQ(document.model->grid, nullptr);
}

TEST_F(ShotLoading, takesFilesWithoutATrace) {
  EXPECT_THAT(load({folder.put("none.dat", seg2Bytes({}))}), ElementsAre(0));
  EXPECT_THAT(document.recordings->traceSets, ElementsAre(IsEmpty()));
  EXPECT_THAT(document.ttArray.at(0).ttMisurati, IsEmpty());
  EXPECT_EQ(document.ttArray[0].shotPos2d, Point2D());
  EXPECT_THAT(outcomes[0].warnings, ElementsAre("the file holds no trace"));
}

TEST_F(ShotLoading, refusesASurveyOfPicksWithoutTraces) {
  document.ttArray.edit().resize(2);
  EXPECT_THAT(load({folder.put("a.dat", seg2Shot(1, 0, 2))}), ElementsAre(1));
  EXPECT_THAT(document.ttArray, SizeIs(2));
  EXPECT_THAT(document.recordings->filenames, IsEmpty());
}

TEST_F(ShotLoading, byTheStandardMakesATraceSetOfEveryShotOfAFile) {
  const std::string first = folder.put("one.dat", seg2Shots({7}));
  const std::string line = folder.put("line.whatever", seg2Shots({-2.5, 12.5}));
  EXPECT_THAT(load({line}), ElementsAre(kUnknownSuffix)) << "by the program's rules";
  outcomes = loader.load({first, line}, document, ShotReader::kStandard);
  ASSERT_TRUE(outcomes.at(0).status.ok() && outcomes.at(1).status.ok());

  const Recordings& recordings = *document.recordings;
  EXPECT_THAT(recordings.filenames, ElementsAre(first, line, line));
  ASSERT_THAT(recordings.traceSets, ElementsAre(SizeIs(3), SizeIs(3), SizeIs(3)));
  EXPECT_THAT(recordings.traceSets[2][1].samples, ElementsAre(1, 2, 4)) << "with the last sample";
  EXPECT_THAT(document.line->shotPositions, ElementsAre(7, -2.5, 12.5));
  EXPECT_THAT(document.line->goephonesStringSet, SizeIs(1));
  ASSERT_THAT(document.ttArray, SizeIs(3));
  EXPECT_EQ(document.ttArray[2].traceSetID, 2);
  ASSERT_THAT(recordings.notes, SizeIs(3));
  EXPECT_EQ(recordings.notes[0].nameInFile, "");
  EXPECT_NE(recordings.notes[2].nameInFile, recordings.notes[1].nameInFile);
  for (std::size_t set = 0; set < 3; ++set) {
    EXPECT_EQ(recordings.notes[set].reader, ShotReader::kStandard);
    EXPECT_EQ(recordings.notes[set].format, "seg2");
    EXPECT_EQ(recordings.notes[set].recordInFile, set == 2 ? 1 : 0);
  }
  ASSERT_FALSE(outcomes[1].warnings.empty()) << "how it was split";
  EXPECT_THAT(recordings.notes[2].warnings, Contains(outcomes[1].warnings.front()));
}

TEST(ReadShots, tellAWarningThatTheyShareOnce) {
  const ConsoleCapture console;
  const TestFolder folder;
  std::string bytes = seg2Shots({1, 2, 3});
  bytes.resize(bytes.size() - 12);  // of the last shot
  SegyState state;
  const ReadShotFile file =
      readShotFileBy(ShotReader::kStandard, folder.put("cut.dat", bytes), state);
  ASSERT_THAT(file.shots, SizeIs(3)) << file.outcome.status.message();
  std::vector<std::string> told;
  for (const Message& warning : file.outcome.warnings) told.push_back(warning.english());
  const std::set<std::string> once(told.begin(), told.end());
  EXPECT_EQ(once.size(), told.size());
  EXPECT_EQ(file.traceCount(), 9U);
}

TEST_F(ShotLoading, remembersTheByteOrderBetweenFilesAndCalls) {
  const std::string su = folder.put("big.su", suShot(ByteOrder::kBig));
  load({folder.put("big.segy", segyShot(ByteOrder::kBig)), su});
  EXPECT_THAT(document.recordings->traceSets, ElementsAre(SizeIs(1), SizeIs(2)));
  load({su});
  EXPECT_THAT(document.recordings->traceSets.at(2).at(1).samples, ElementsAre(4, 5, 0));
  ShotLoader fresh;
  EXPECT_TRUE(fresh.state().nativeOrder);
}

TEST(ShotFile, goesByTheSuffixWhateverItsCase) {
  const ConsoleCapture console;
  const std::string seg2 = seg2Shot(0, 0, 1);
  const std::string segy = segyShot(ByteOrder::kLittle);
  const std::string su = suShot(ByteOrder::kLittle);
  const struct {
    const char* path;
    const std::string& bytes;
    const char* format;
  } kCases[] = {
      {"a.seg2", seg2, "seg2"},  {"a.DAT", seg2, "seg2"},    {"/x.y/a.b.sg2", seg2, "seg2"},
      {"a.sgy", segy, "segy"},   {"a.SegY", segy, "segy"},   {"a.SU", su, "su"},
      {"seg2", seg2, nullptr},   {"a.dat/b", seg2, nullptr}, {"a.dat ", seg2, nullptr},
      {"a.segd", seg2, nullptr}, {"", seg2, nullptr},        {"a.", seg2, nullptr}};
  for (const auto& [path, bytes, format] : kCases) {
    SegyState state;
    ShotFileData data;
    EXPECT_EQ(parseShotFile(bytes, path, state, data).code(), format == nullptr ? 3 : 0) << path;
    EXPECT_EQ(data.format, format == nullptr ? "" : format) << path;
  }
}

TEST(ShotFile, tellsWhichFileItOpensAndWhichItCannot) {
  const struct {
    const char* name;
    const char* opening;
  } kCases[] = {{"/no/a.dat", "opening seg2 file /no/a.dat\n"},
                {"/no/a.sgy", "opening segy file /no/a.sgy\n"},
                {"/no/a.su", "opening su file /no/a.su\n"}};
  for (const auto& [name, opening] : kCases) {
    const ConsoleCapture console;
    SegyState state;
    ShotFileData data;
    EXPECT_EQ(readShotFile(name, state, data).code(), 1);
    EXPECT_EQ(console.out(), opening);
    EXPECT_EQ(console.error(), std::string("Error while loading ") + name + "\n");
  }
}

}  // namespace
}  // namespace talvesk
