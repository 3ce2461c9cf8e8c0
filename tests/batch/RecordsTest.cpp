#include "batch/SmallShots.h"
#include "io/project/ProjectWriter.h"
#include "support/ConsoleCapture.h"
#include "support/ShotDocument.h"
#include "view/ColorPalette.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using ::testing::HasSubstr;
using Json = nlohmann::json;

class BlowPairRecords : public ::testing::Test {
 protected:
  Outcome run(const std::vector<std::string>& more, const std::vector<std::string>& inputs) {
    std::vector<std::string> arguments = {"records", "-o", folder / "out"};
    arguments.insert(arguments.end(), inputs.begin(), inputs.end());
    arguments.insert(arguments.end(), more.begin(), more.end());
    return runBatch(arguments);
  }
  Outcome run(const std::vector<std::string>& more) { return run(more, shots); }
  std::vector<double> samplesOf(const std::string& file, std::size_t trace) {
    const Outcome outcome = runBatch({"info", file, "--json", "-", "--samples"});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    return Json::parse(outcome.out)["traces"].at(trace)["data"];
  }

  Folder folder;
  std::vector<std::string> shots = writeSmallShots(folder);
};

TEST_F(BlowPairRecords, areTheDifferenceAndTheSumOfTwoShots) {
  const Outcome outcome = run({"--blow-pair", "1,2", "--difference", "--sum"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("13 traces at the same places"));
  EXPECT_THAT(outcome.err, HasSubstr("difference and sum are not of one place"));
  const std::vector<double> a = samplesOf(shots[0], 4);
  const std::vector<double> b = samplesOf(shots[1], 4);
  const std::vector<double> difference = samplesOf(folder / "out/difference01-02.sgy", 4);
  const std::vector<double> sum = samplesOf(folder / "out/sum01-02.sgy", 4);
  ASSERT_GE(difference.size(), a.size());
  for (std::size_t i = 0; i < a.size(); ++i) {
    EXPECT_FLOAT_EQ(static_cast<float>(difference[i]), static_cast<float>(a[i] - b[i]));
    EXPECT_FLOAT_EQ(static_cast<float>(sum[i]), static_cast<float>(a[i] + b[i]));
  }
  EXPECT_FALSE(folder.holds("out/shot01.sgy")) << "nothing but what was asked for";
}

TEST_F(BlowPairRecords, areSeg2OnDemandAndOfEqualStrength) {
  const std::vector<std::string> sum = {"--blow-pair", "2,3", "--sum", "--as", "seg2"};
  ASSERT_EQ(run(sum).code, 0);
  const std::vector<double> as = samplesOf(folder / "out/sum02-03.sg2", 4);
  std::vector<std::string> equal = sum;
  equal.push_back("--equal-strength");
  ASSERT_EQ(run(equal).code, 0);
  const std::vector<double> balanced = samplesOf(folder / "out/sum02-03.sg2", 4);
  EXPECT_FALSE(folder.holds("out/difference02-03.sg2"));
  const std::vector<double> a = samplesOf(shots[1], 4);
  const std::vector<double> b = samplesOf(shots[2], 4);
  const auto largest = static_cast<std::size_t>(std::max_element(b.begin(), b.end()) - b.begin());
  const double factor = (balanced[largest] - a[largest]) / b[largest];
  EXPECT_GT(std::abs(factor - 1.0), 1e-5) << "they are nearly as strong, but not quite";
  for (std::size_t i = 0; i < b.size(); ++i) {
    EXPECT_FLOAT_EQ(static_cast<float>(as[i]), static_cast<float>(a[i] + b[i]));
    EXPECT_NEAR(balanced[i], a[i] + factor * b[i], 2e-7 * (std::abs(a[i]) + std::abs(b[i])) + 1e-6);
  }
}

TEST_F(BlowPairRecords, haveTheNumberOfTheFirst) {
  ASSERT_EQ(run({"--blow-pair", "2,3", "--sum"}).code, 0);
  const std::string bytes = contentsOf(folder / "out/sum02-03.sgy");
  ASSERT_GT(bytes.size(), 3612U);
  EXPECT_EQ(bytes.substr(3608, 4), std::string("\0\0\0\2", 4)) << "its field record";
}

TEST_F(BlowPairRecords, areRefusedWithAReason) {
  const struct {
    std::vector<std::string> options;
    int code;
    const char* complaint;
  } cases[] = {
      {{"--blow-pair", "1,2"}, 2, "--difference or --sum"},
      {{"--difference"}, 2, "--blow-pair"},
      {{"--blow-pair", "1", "--sum"}, 2, "does not name two shots"},
      {{"--blow-pair", "1,2,", "--sum"}, 2, "does not name two shots"},
      {{"--blow-pair", "1,1", "--sum"}, 2, "names one recording twice"},
      {{"--blow-pair", "0,1", "--sum"}, 2, "not a whole number"},
      {{"--blow-pair", "1,x", "--sum"}, 2, "not a whole number"},
      {{"--blow-pair", "1,2", "--sum", "--one-file"}, 2, "--one-file"},
      {{"--blow-pair", "1,4", "--sum"}, 1, "shot 4: there are 3 shots"},
      {{"--blow-pair", "1a,2", "--sum"}, 1, "shot 1 is no S-wave pair"},
  };
  for (const auto& c : cases) {
    const Outcome outcome = run(c.options);
    EXPECT_EQ(outcome.code, c.code) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr(c.complaint));
    EXPECT_FALSE(folder.holds("out/sum01-02.sgy"));
  }
}

/// One sense holds 3 throughout, the other -1.
TEST_F(BlowPairRecords, areThoseOfAnSWavePairByTheirLetters) {
  TomoDocument document = talvesk::testing::shotDocument(2, 3, 20);
  document.recordings.edit().waveType = WaveType::S;
  for (TraceSet& set : document.recordings.edit().traceSets) {
    for (Trace& trace : set) {
      trace.waveKind = Trace::kSWavePair;
      trace.samplesDX = std::vector<double>(20, 3.0);
      trace.samplesSX = std::vector<double>(20, -1.0);
    }
  }
  const std::string project = folder / "s.tvsk";
  {
    const talvesk::testing::ConsoleCapture quiet;
    ProjectWriter writer;
    ASSERT_EQ(writer.save(project, folder / "", document, {}, ColorPaletteList()), 0)
        << writer.message();
  }
  const Outcome bare = run({"--blow-pair", "1,2", "--sum"}, {project});
  EXPECT_EQ(bare.code, 1);
  EXPECT_THAT(bare.err, HasSubstr("shot 1 is an S-wave pair; its blows are 1a and 1b"));
  const Outcome outcome = run({"--blow-pair", "2a,2b", "--difference"}, {project});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_EQ(samplesOf(folder / "out/difference02a-02b.sgy", 1)[5], 4.0);
}

TEST_F(BlowPairRecords, saySoWhenRecordsNeverMeet) {
  WrittenShot late = smallShot(12.0);
  late.delay = 3600.0;
  const std::string file = folder.write("late.sg2", formatSeg2(late));
  const Outcome outcome = run({"--blow-pair", "1,2", "--sum"}, {shots[0], file});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("begin too far apart in time"));
}

}  // namespace
}  // namespace talvesk::batchtest
