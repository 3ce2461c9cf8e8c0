#include "io/standard/MiniSeed.h"
#include "support/StandardFiles.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

constexpr ByteOrder kOrders[] = {ByteOrder::kLittle, ByteOrder::kBig};

StandardReading readBytes(const std::string& bytes) {
  StandardReading reading;
  const Status status = readMiniSeedByStandard(bytes, reading);
  EXPECT_TRUE(status.ok()) << status.message();
  if (reading.shots.empty()) reading.shots.emplace_back();
  return reading;
}

const std::vector<ShotRecord>& traces(const StandardReading& reading) {
  return reading.shots.front().data.traces;
}

SeedFixture record(std::vector<double> samples, int tenthsOfMilliseconds = 0,
                   const std::string& channel = "XXSTA  00HHZ") {
  SeedFixture made;
  made.samples = std::move(samples);
  made.tenthsOfMilliseconds = tenthsOfMilliseconds;
  made.channel = channel;
  return made;
}

std::string refusalOf(const std::string& bytes) {
  StandardReading reading;
  const Status status = readMiniSeedByStandard(bytes, reading);
  EXPECT_EQ(status.code(), 1);
  EXPECT_TRUE(reading.shots.empty());
  return status.message();
}

TEST(StandardMiniSeed, decodesPlainSamplesInBothByteOrders) {
  for (const ByteOrder order : kOrders) {
    for (const int encoding : {1, 3, 4, 5}) {
      SeedFixture made = record({0, 1, -1, 300, -32768});
      made.encoding = encoding;
      made.order = order;
      const StandardReading reading = readBytes(seedBytes(made));
      ASSERT_THAT(traces(reading), SizeIs(1)) << encoding;
      EXPECT_EQ(traces(reading)[0].samples, made.samples) << encoding;
      EXPECT_EQ(traces(reading)[0].sampleInterval, 0.001) << encoding;
      EXPECT_EQ(reading.format, "mseed");
    }
  }
}

/// A frame of 64 bytes of one word with differences behind the codes, the first and the last
/// sample.
std::string steimFrame(ByteOrder order, int code, std::int64_t word, std::int32_t first,
                       std::int32_t last) {
  std::string frame(64, '\0');
  putInteger(frame, 0, std::int64_t{code} << 24, 4, order);
  putInteger(frame, 4, first, 4, order);
  putInteger(frame, 8, last, 4, order);
  putInteger(frame, 12, word, 4, order);
  return frame;
}

TEST(StandardMiniSeed, decompressesEveryWidthOfDifferences) {
  const struct {
    int encoding;
    int code;
    std::uint32_t word;  ///< with the first difference, which leads from the record before
    std::vector<double> samples;
  } kCases[] = {
      {10, 3, 7, {100}},
      {10, 2, 0x0007FFFF, {100, 99}},
      {10, 1, 0x077F80FF, {100, 227, 99, 98}},
      {11, 1, 0x07017FFF, {100, 101, 228, 227}},
      {11, 2, 0x40000007, {100}},
      {11, 2, 0x80000000U | 7U << 15 | 0x7FFE, {100, 98}},
      {11, 2, 0xC0000000U | 7U << 20 | 0x1FFU << 10 | 0x200, {100, 611, 99}},
      {11,
       3,
       0x00000000U | 7U << 24 | 31U << 18 | 32U << 12 | 63U << 6 | 1,
       {100, 131, 99, 98, 99}},
      {11,
       3,
       0x40000000U | 15U << 20 | 16U << 15 | 31U << 10 | 1U << 5 | 2,
       {100, 115, 99, 98, 99, 101}},
      {11,
       3,
       0x80000000U | 1U << 20 | 7U << 16 | 8U << 12 | 15U << 8 | 0U << 4 | 1,
       {100, 101, 108, 100, 99, 99, 100}},
  };
  for (const auto& [encoding, code, word, samples] : kCases) {
    for (const ByteOrder order : kOrders) {
      std::uint32_t stored = word;
      // Differences of whole bytes stand in the order of the file, not of the word.
      if (order == ByteOrder::kLittle && code == 1) stored = __builtin_bswap32(word);
      if (order == ByteOrder::kLittle && encoding == 10 && code == 2)
        stored = word << 16 | word >> 16;
      SeedFixture made;
      made.encoding = encoding;
      made.order = order;
      made.promised = static_cast<int>(samples.size());
      made.data = steimFrame(order, code, stored, 100, static_cast<int>(samples.back()));
      const StandardReading reading = readBytes(seedBytes(made));
      ASSERT_THAT(traces(reading), SizeIs(1));
      EXPECT_EQ(traces(reading)[0].samples, samples) << encoding << ' ' << code << ' ' << word;
      EXPECT_THAT(reading.warnings, SizeIs(1)) << encoding << ' ' << code << ' ' << word;
    }
  }
}

TEST(StandardMiniSeed, saysWhereACompressedRecordIsDamaged) {
  SeedFixture made;
  made.encoding = 10;
  made.promised = 1;
  made.data = steimFrame(ByteOrder::kBig, 3, 7, 100, 101);
  EXPECT_THAT(readBytes(seedBytes(made)).warnings, Contains(HasSubstr("damaged records")));
  made.promised = 200;
  EXPECT_THAT(readBytes(seedBytes(made)).warnings,
              Contains("samples that headers promise and records do not hold: 20"));
}

TEST(StandardMiniSeed, joinsTheRecordsOfEachChannel) {
  const std::string east = "XXSTA  00HHE";
  const StandardReading reading =
      readBytes(seedBytes(record({1, 2})) + seedBytes(record({7, 8, 9}, 0, east)) +
                seedBytes(record({5, 6}, 40)) + seedBytes(record({3, 4}, 20)));
  ASSERT_THAT(traces(reading), SizeIs(2));
  EXPECT_THAT(traces(reading)[0].samples, ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_THAT(traces(reading)[1].samples, ElementsAre(7, 8, 9));
  EXPECT_THAT(reading.warnings, ElementsAre(HasSubstr("neither positions nor the time")));
}

TEST(StandardMiniSeed, alignsChannelsAndTellsGapsAndOverlaps) {
  const std::string east = "XXSTA  00HHE";
  const struct {
    std::vector<SeedFixture> records;
    std::vector<double> last;
    const char* warning;
  } kCases[] = {
      {{record({1}), record({7, 8}, 20, east)}, {0, 0, 7, 8}, "the record of trace 2 begins later"},
      {{record({1}), record({7, 8}, 30, east)}, {7, 8}, "its times do not compare"},
      {{record({1, 2}), record({3, 4}, 30)}, {1, 2, 0, 3, 4}, "zeros stand for gaps"},
      {{record({1, 2}), record({3, 4}, 10)}, {1, 3, 4}, "overlap; the later ones count"},
      {{record({1, 2}), record({3}, 9000)}, {1, 2}, "longer than what was recorded: 1"},
      {{record({1, 2}), record({3}, 24)}, {1, 2, 3}, nullptr},
  };
  for (const auto& [records, last, warning] : kCases) {
    std::string bytes;
    for (const SeedFixture& made : records) bytes += seedBytes(made);
    const StandardReading reading = readBytes(bytes);
    ASSERT_FALSE(traces(reading).empty());
    EXPECT_EQ(traces(reading).back().samples, last);
    if (warning != nullptr) {
      EXPECT_THAT(reading.warnings, Contains(HasSubstr(warning)));
    } else {
      EXPECT_THAT(reading.warnings, SizeIs(1));
    }
  }
}

TEST(StandardMiniSeed, tellsWhatItLeavesOut) {
  SeedFixture slow = record({5});
  slow.rate = 100;
  SeedFixture log = record({5});
  log.rate = 0;
  SeedFixture geoscope = record({5});
  geoscope.encoding = 14;
  std::string noBlockette = seedBytes(record({5}));
  putInteger(noBlockette, 46, 0, 2, ByteOrder::kBig);
  const StandardReading reading =
      readBytes(seedBytes(record({1, 2})) + seedBytes(slow) + seedBytes(log) + seedBytes(geoscope) +
                noBlockette + std::string(128, 'x') + seedBytes(record({3}, 20)));
  ASSERT_THAT(traces(reading), SizeIs(1));
  EXPECT_THAT(traces(reading)[0].samples, ElementsAre(1, 2, 3));
  for (const char* warning : {"sample rate is not that of the first of their channel: 1",
                              "such as 14, is not read: 1", "no samples of a series: 1",
                              "no blockette 1000: 1", "bytes left out that are of no record"}) {
    EXPECT_THAT(reading.warnings, Contains(HasSubstr(warning)));
  }
  EXPECT_THAT(refusalOf(seedBytes(log)), HasSubstr("samples of a series"));
  EXPECT_THAT(refusalOf(seedBytes(geoscope)), HasSubstr("the encoding 14"));
  EXPECT_THAT(refusalOf(noBlockette), HasSubstr("blockette 1000"));
  EXPECT_THAT(refusalOf(std::string("MS\3") + seedBytes(log)), HasSubstr("version 3"));
}

TEST(StandardMiniSeed, readsRatesOfAllSigns) {
  const struct {
    int factor;
    int multiplier;
    double interval;
  } kCases[] = {{500, 2, 0.001}, {500, -2, 0.004}, {-2, 500, 0.004}, {-2, -5, 10.0}};
  for (const auto& [factor, multiplier, interval] : kCases) {
    std::string bytes = seedBytes(record({1, 2}));
    putInteger(bytes, 32, factor, 2, ByteOrder::kBig);
    putInteger(bytes, 34, multiplier, 2, ByteOrder::kBig);
    EXPECT_DOUBLE_EQ(traces(readBytes(bytes))[0].sampleInterval, interval);
  }
}

}  // namespace
}  // namespace talvesk
