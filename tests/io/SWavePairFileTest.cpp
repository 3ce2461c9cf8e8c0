#include "io/SWavePairFile.h"
#include "io/ShotLoader.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "processing/FirstBreak.h"
#include "support/ConsoleCapture.h"
#include "support/ShotDocument.h"
#include "support/ShotFiles.h"
#include "support/TestFolder.h"

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::HasSubstr;

struct Recording {
  std::size_t channels = 2;
  double interval = 0.00025;
  double delay = 0.0;
  std::size_t samples = 400;
  double sign = 1.0;
  double source = 9.0;
};

/// The same noise with either polarity of the blow, which arrives at firstBreak() of the trace.
std::string recording(const TestFolder& folder, const std::string& name, const Recording& made) {
  std::vector<Seg2Channel> channels;
  for (std::size_t i = 0; i < made.channels; ++i) {
    const Trace trace = ringingTrace(firstBreak(i), made.samples);
    Seg2Channel channel;
    for (std::size_t k = 0; k < trace.samples.size(); ++k) {
      // Common to both, a strong early arrival that their difference does not have.
      const double common = k > 20 ? 5e3 * std::sin(0.2 * static_cast<double>(k)) : 0.0;
      const double noise = 0.01 * std::sin(12.9898 * static_cast<double>(k + 31 * i));
      channel.samples.push_back(
          static_cast<float>(common + made.sign * (trace.samples[k] + noise)));
    }
    channel.area = seg2Area({"DELAY " + std::to_string(made.delay),
                             "RECEIVER_LOCATION " + std::to_string(10 + 2 * i),
                             "SAMPLE_INTERVAL " + std::to_string(made.interval),
                             "SOURCE_LOCATION " + std::to_string(made.source)});
    channels.push_back(channel);
  }
  return folder.put(name, seg2Bytes(channels));
}

TEST(SWavePairFile, isPickedOnItsDifferenceAndNotOnOneRecording) {
  const ConsoleCapture console;
  const TestFolder folder;
  const std::string dx = recording(folder, "dx.dat", {});
  Recording other;
  other.sign = -1.0;
  const std::string sx = recording(folder, "sx.dat", other);
  SegyState state;
  auto pair = std::make_shared<SWavePair>();
  const Status status = readSWavePair(dx, sx, state, *pair);
  ASSERT_TRUE(status.ok()) << status.message();
  const Trace& trace = pair->traces[1];
  EXPECT_EQ(trace.waveKind, Trace::kSWavePair);
  EXPECT_EQ(trace.samples[77], trace.samplesDX[77] - trace.samplesSX[77]);
  EXPECT_NE(trace.samplesSX[77], 0.0);

  TomoDocument document;
  SurveyGeometry geometry;
  addPair(geometry, pair);
  ASSERT_TRUE(applyGeometry(geometry, document));
  // Samples that something else left behind are not what is picked.
  Trace& kept = document.recordings.edit().traceSets[0][1];
  kept.samples = kept.samplesDX;
  const std::int32_t picked = pickTrace(document, 0, 1, false);
  EXPECT_NEAR(picked * kept.sampleInterval, firstBreak(1), 0.0015);
  kept.waveKind = Trace::kFromFile;
  kept.samples = kept.samplesDX;
  EXPECT_LT(pickTrace(document, 0, 1, false) * kept.sampleInterval, 0.009) << "the common arrival";
}

TEST(SWavePairFile, refusesRecordingsThatDoNotFit) {
  const ConsoleCapture console;
  const TestFolder folder;
  const std::string dx = recording(folder, "dx.dat", {});
  const auto with = [](auto change) {
    Recording recorded;
    change(recorded);
    return recorded;
  };
  const struct {
    Recording sx;
    const char* reason;
  } kCases[] = {
      {with([](Recording& r) { r.channels = 3; }), "2 traces, the SX file 3"},
      {with([](Recording& r) { r.interval = 0.0005; }),
       "interval of 0.25 ms in the DX file and of 0.5"},
      {with([](Recording& r) { r.delay = -0.01; }), "delay of 0 ms in the DX file and of -10 ms"},
      {with([](Recording& r) { r.channels = 0; }), "no traces"},
  };
  SegyState state;
  SWavePair pair;
  pair.fileDX = "before";
  for (const auto& [recorded, reason] : kCases) {
    const Status status = readSWavePair(dx, recording(folder, "sx.dat", recorded), state, pair);
    EXPECT_FALSE(status.ok());
    EXPECT_THAT(status.message(), HasSubstr(reason));
  }
  EXPECT_EQ(readSWavePair(dx, "/no/sx.dat", state, pair).code(), 1);
  EXPECT_EQ(readSWavePair(dx, "sx.txt", state, pair).code(), 3);
  EXPECT_THAT(readSWavePair(dx, dx, state, pair).message(), HasSubstr("same file"));
  EXPECT_EQ(pair.fileDX, "before");
}

TEST(SWavePairFile, warnsOfWhatDiffersAndGoesOn) {
  const ConsoleCapture console;
  const TestFolder folder;
  Recording other;
  other.samples = 300;
  other.source = 11.0;
  SegyState state;
  SWavePair pair;
  ASSERT_TRUE(readSWavePair(recording(folder, "dx.dat", {}), recording(folder, "sx.dat", other),
                            state, pair)
                  .ok());
  EXPECT_THAT(pair.warnings, ::testing::ElementsAre(HasSubstr("source"), HasSubstr("length")));
  EXPECT_EQ(pair.traces[0].samples.size(), 400U);
  EXPECT_EQ(pair.traces[0].samples[350], pair.traces[0].samplesDX[350]);
}

TEST(SWavePairFile, keepsShotFilesOutOfASurveyOfPairs) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = shotDocument(1, 2, 8);
  document.recordings.edit().waveType = WaveType::S;
  const auto outcomes = ShotLoader().load({recording(folder, "p.dat", {})}, document);
  EXPECT_THAT(outcomes[0].status.message(), HasSubstr("S-wave pairs"));
  EXPECT_EQ(document.recordings->traceSets.size(), 1U);
}

}  // namespace
}  // namespace talvesk
