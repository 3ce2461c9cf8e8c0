#include "io/ReadingComparison.h"
#include "io/SegyFile.h"
#include "support/ConsoleCapture.h"
#include "support/ShotFiles.h"
#include "support/TestFolder.h"

#include <functional>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// A sound shot into four geophones 5 m apart, as both readers have it but for a scale.
ReadShotFile reading(ShotReader reader, double scale) {
  ReadShotFile file;
  file.outcome.path = "a.dat";
  file.outcome.format = "seg2";
  file.reader = reader;
  file.shots.resize(1);
  for (int i = 0; i < 4; ++i) {
    ShotRecord trace;
    for (int s = 0; s < 30; ++s) trace.samples.edit().push_back(scale * ((s * 7 + i) % 11 - 5));
    if (reader == ShotReader::kRules) trace.samples.edit().back() = 0.0;
    trace.sampleInterval = 0.001;
    trace.delay = -0.002;
    trace.source = {-2.5, 100.0};
    trace.receiver = {5.0 * i, 100.0};
    file.shots[0].data.traces.push_back(trace);
  }
  return file;
}

std::vector<ShotRecord>& traces(ReadShotFile& file) {
  return file.shots[0].data.traces;
}

struct TwoReadings {
  ReadShotFile rules = reading(ShotReader::kRules, 1.0);
  ReadShotFile standard = reading(ShotReader::kStandard, 0.0123);
};

TEST(LostByRules, isNothingOfARecordThatDiffersInScaleAndLastSample) {
  const TwoReadings sound;
  EXPECT_THAT(lostByRules(sound.rules, sound.standard), IsEmpty());
  EXPECT_FALSE(mayHaveLost(sound.rules));
}

TEST(LostByRules, isWhatTheStandardHasBesides) {
  const auto forAll = [](ReadShotFile& file, const std::function<void(ShotRecord&)>& change) {
    for (ShotRecord& trace : traces(file)) change(trace);
  };
  const struct {
    const char* loss;
    std::function<void(TwoReadings&)> change;
    bool shows;  ///< in the reading by the rules alone
  } cases[] = {
      {"cannot read it",
       [](TwoReadings& two) {
         two.rules.shots.clear();
         two.rules.outcome.status = Status::failure("no");
       },
       true},
      {"find no trace in it", [](TwoReadings& two) { traces(two.rules).clear(); }, true},
      {"read 3 of its 4 traces", [](TwoReadings& two) { traces(two.rules).pop_back(); }, false},
      {"read 4 of its 8 traces of 2 shots",
       [](TwoReadings& two) { two.standard.shots.push_back(two.standard.shots.front()); }, false},
      {"make one shot of its 2",
       [](TwoReadings& two) {
         const std::vector<ShotRecord> first = traces(two.rules);
         for (ShotRecord trace : first) {
           trace.source.x = 30.0;
           traces(two.rules).push_back(trace);
         }
         two.standard.shots.push_back(two.standard.shots.front());
         for (ShotRecord& trace : two.standard.shots[1].data.traces) trace.source.x = 30.0;
       },
       true},
      {"1 of 4 traces are all zeros",
       [](TwoReadings& two) { traces(two.rules)[2].samples.edit().assign(30, 0.0); }, true},
      {"the samples of 4 of 4 traces",
       [&](TwoReadings& two) {
         forAll(two.rules, [](ShotRecord& trace) {
           for (std::size_t i = 0; i < 15; ++i) trace.samples.edit()[i] = trace.samples[2 * i];
         });
       },
       false},
      {"4 of 4 traces are shorter",
       [&](TwoReadings& two) {
         forAll(two.rules, [](ShotRecord& trace) { trace.samples.edit().resize(20); });
       },
       false},
      {"interval is 0 ms by the program's rules, 1 ms by the standard",
       [&](TwoReadings& two) {
         forAll(two.rules, [](ShotRecord& trace) { trace.sampleInterval = 0.0; });
       },
       true},
      {"start -2 ms from the shot by the program's rules, 5 ms by the standard",
       [&](TwoReadings& two) {
         forAll(two.standard, [](ShotRecord& trace) {
           trace.delay = 0.0;
           std::vector<double>& samples = trace.samples.edit();
           samples.insert(samples.begin(), 5, 0.0);
         });
       },
       false},
      {"geophones are at 0 m by the program's rules, at 0 m to 15 m by",
       [&](TwoReadings& two) {
         forAll(two.rules, [](ShotRecord& trace) { trace.receiver.x = 0.0; });
       },
       true},
      {"geophones are at 0 m to 1500 m by the program's rules, at 0 m to 15 m",
       [&](TwoReadings& two) {
         forAll(two.rules, [](ShotRecord& trace) { trace.receiver.x *= 100.0; });
       },
       false},
      {"shot is at 0 m by the program's rules, at -2.5 m by",
       [&](TwoReadings& two) {
         forAll(two.rules, [](ShotRecord& trace) { trace.source.x = 0.0; });
       },
       false},
      {"elevations of 4 of 4 traces",
       [&](TwoReadings& two) {
         forAll(two.rules, [](ShotRecord& trace) { trace.receiver.z = 0.0; });
       },
       false}};
  for (const auto& c : cases) {
    TwoReadings two;
    c.change(two);
    const std::vector<Message> losses = lostByRules(two.rules, two.standard);
    ASSERT_THAT(losses, SizeIs(1)) << c.loss;
    EXPECT_THAT(losses[0].english(), HasSubstr(c.loss));
    EXPECT_EQ(mayHaveLost(two.rules), c.shows) << c.loss;
    // Nothing of a file that the standard cannot read can be called lost.
    two.standard.outcome.status = Status::failure("no");
    two.standard.shots.clear();
    EXPECT_THAT(lostByRules(two.rules, two.standard), IsEmpty()) << c.loss;
  }
}

TEST(MayHaveLost, isSoOfFormatsWhoseHeadersTheRulesPassOverAndOfWhatWasWarnedOf) {
  ReadShotFile file = reading(ShotReader::kRules, 1.0);
  file.outcome.warnings = {"odd"};
  EXPECT_TRUE(mayHaveLost(file));
  for (const char* format : {"segy", "su"}) {
    file = reading(ShotReader::kRules, 1.0);
    file.outcome.format = format;
    EXPECT_TRUE(mayHaveLost(file));
  }
}

std::string shotOfFormat(int code) {
  Seg2Channel channel;
  channel.format = code;
  channel.samples = {9, 8, 7, 6, 5, 4, 3, 2};
  channel.area = seg2Area({"RECEIVER_LOCATION 5", "SAMPLE_INTERVAL 0.001", "SOURCE_LOCATION 1"});
  return seg2Bytes({channel});
}

TEST(ReadFuller, readsOnlyWhatHelps) {
  const TestFolder folder;
  const struct {
    const char* name;
    std::string bytes;
    bool helps;
  } cases[] = {{"sound.dat", shotOfFormat(4), false},
               {"coded.dat", shotOfFormat(3), true},
               {"sound.unknown", shotOfFormat(4), true},
               {"notes.unknown", "notes\n", false},
               {"broken.dat", "no", false}};
  for (const auto& c : cases) {
    const ConsoleCapture console;
    SegyState state;
    const ReadShotFile byRules =
        readShotFileBy(ShotReader::kRules, folder.put(c.name, c.bytes), state);
    const std::string heard = console.out() + console.error();
    const auto fuller = readFuller(byRules);
    ASSERT_EQ(fuller.has_value(), c.helps) << c.name;
    EXPECT_EQ(console.out() + console.error(), heard) << c.name << ": nobody asked for it";
    if (!fuller) continue;
    EXPECT_EQ(fuller->byStandard.traceCount(), 1U) << c.name;
    EXPECT_THAT(fuller->losses, SizeIs(1)) << c.name;
  }
}

TEST(ReadingSummaries, spanTheTracesOfAllShots) {
  ReadShotFile file = reading(ShotReader::kStandard, 1.0);
  EXPECT_EQ(summaryOf(ReadShotFile()).traces, 0U);
  file.shots.push_back(file.shots.front());
  traces(file)[3].delay = -0.5;
  file.shots[1].data.traces[0].samples.edit().resize(7);
  for (ShotRecord& trace : file.shots[1].data.traces) trace.source.x = 20.0;
  const ReadingSummary summary = summaryOf(file);
  EXPECT_EQ(summary.shots, 2U);
  EXPECT_EQ(summary.traces, 8U);
  const std::pair<ReadingSummary::Span, ReadingSummary::Span> spans[] = {
      {summary.samples, {7, 30}},
      {summary.sampleInterval, {0.001, 0.001}},
      {summary.delay, {-0.5, -0.002}},
      {summary.sourceX, {-2.5, 20}},
      {summary.receiverX, {0, 15}}};
  for (const auto& [span, expected] : spans) {
    EXPECT_EQ(span.least, expected.least);
    EXPECT_EQ(span.most, expected.most);
  }
}

}  // namespace
}  // namespace talvesk
