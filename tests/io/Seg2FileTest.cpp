#include "io/Seg2File.h"
#include "io/Seg2Strings.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"
#include "support/ShotFiles.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

const std::string kInterval = "SAMPLE_INTERVAL 0.00025";

ShotFileData readWhole(const std::string& bytes) {
  const ConsoleCapture console;
  ShotFileData data;
  const Status status = readSeg2(bytes, data);
  EXPECT_TRUE(status.ok()) << status.message();
  return data;
}

int statusOf(const std::string& bytes) {
  const ConsoleCapture console;
  ShotFileData data;
  const int code = readSeg2(bytes, data).code();
  EXPECT_TRUE(code == 0 || data.traces.empty());
  return code;
}

Seg2Channel channel(int format, std::vector<float> samples,
                    const std::vector<std::string>& strings = {kInterval}) {
  return {format, std::move(samples), seg2Area(strings)};
}

Seg2Strings parsed(const std::string& area) {
  const ConsoleCapture console;
  return parseSeg2Strings(area);
}

TEST(Seg2File, decodesFourBytesPerSampleAndKeepsTheLastSampleZero) {
  const struct {
    int format;
    std::vector<float> samples;
    std::vector<double> expected;
  } kCases[] = {
      {4, {1.5F, -2.25e10F, 3.0F, 9.0F}, {1.5, -2.25e10F, 3.0, 0.0}},
      {2, {7.0F, -2147483648.0F, 65536.0F, 9.0F}, {7.0, -2147483648.0, 65536.0, 0.0}},
      {1, {7.0F, -32768.0F, 300.0F, 9.0F}, {7.0, -32768.0, 300.0, 0.0}},
      {10, {-7.0F, 9.0F}, {-7.0, 0.0}},
      {4, {9.0F}, {0.0}},
      {4, {}, {}},
  };
  for (const auto& [format, samples, expected] : kCases) {
    const ShotFileData data = readWhole(seg2Bytes({channel(format, samples)}));
    ASSERT_EQ(data.traces.size(), 1u);
    EXPECT_EQ(data.traces[0].samples, expected) << format;
    EXPECT_EQ(data.traces[0].sampleInterval, 0.00025);
  }
}

TEST(Seg2File, namesFormatCodesThatItDoesNotRead) {
  const ShotFileData data =
      readWhole(seg2Bytes({channel(3, {1, 2, 3}), channel(5, {1, 2, 3}), channel(3, {1, 2, 3})}));
  for (const ShotRecord& trace : data.traces) EXPECT_THAT(trace.samples, ElementsAre(0, 0, 0));
  EXPECT_THAT(data.warnings, ElementsAre("data format code 3 is not read; its samples are 0",
                                         "data format code 5 is not read; its samples are 0"));
}

TEST(Seg2File, neverHandsOutSamplesThatAreNotFinite) {
  const float infinity = std::numeric_limits<float>::infinity();
  const ShotFileData data = readWhole(seg2Bytes({channel(4, {1, infinity, std::nanf(""), 4, 5})}));
  EXPECT_THAT(data.traces[0].samples, ElementsAre(1, 0, 0, 4, 0));
  EXPECT_THAT(data.warnings, ElementsAre(HasSubstr("2 samples")));
}

TEST(Seg2File, saysWhatPositionsAndDelaysItDoesNotUse) {
  const std::string interval = "SAMPLE_INTERVAL 0.001";
  const ShotFileData data = readWhole(seg2Bytes({
      channel(4, {1, 2}, {"DELAY -0.01", "RECEIVER_LOCATION 5 1", interval, "SOURCE_LOCATION 1 2"}),
      channel(4, {1, 2}, {"DELAY nan", "RECEIVER_LOCATION inf 1", interval, "SOURCE_LOCATION 1 2"}),
      channel(4, {1, 2}, {"DELAY 0", "RECEIVER_LOCATION 9 nan", interval, "SOURCE_LOCATION 1 2"}),
      channel(4, {1, 2}, {"DELAY none", "RECEIVER_LOCATION 9 1e999", interval}),
  }));
  EXPECT_EQ(data.traces[1].delay, 0.0);
  EXPECT_EQ(data.traces[1].receiver, Point2D());
  EXPECT_EQ(data.traces[2].receiver, (Point2D{9.0, 0.0}));
  EXPECT_THAT(
      data.warnings,
      ElementsAre("the receiver position in the header of 3 traces, the first of them trace "
                  "2, is no finite number; what cannot be used of it was taken as 0",
                  "the delay in the header of trace 2 is no finite number; what cannot be "
                  "used of it was taken as 0"));
}

TEST(Seg2File, takesPositionsDelayAndIntervalOfEachTrace) {
  const ShotFileData data =
      readWhole(seg2Bytes({channel(4, {1, 2},
                                   {"DELAY -0.010", "RECEIVER_LOCATION 5.0 12.5",
                                    "SAMPLE_INTERVAL 0.001", "SOURCE_LOCATION 1.5 0 101.25"}),
                           channel(4, {1}, {"RECEIVER_LOCATION 10", "SAMPLE_INTERVAL 0.002"})}));
  ASSERT_EQ(data.traces.size(), 2u);
  EXPECT_EQ(data.traces[0].source, (Point2D{1.5, 101.25}));
  EXPECT_EQ(data.traces[0].receiver, (Point2D{5.0, 12.5}));
  EXPECT_EQ(data.traces[0].delay, -0.010);
  EXPECT_EQ(data.traces[1].source, Point2D());
  EXPECT_EQ(data.traces[1].receiver, (Point2D{10.0, 0.0}));
  EXPECT_EQ(data.traces[1].sampleInterval, 0.002);
  EXPECT_THAT(data.warnings, ElementsAre("its traces have different numbers of samples",
                                         "its traces have different sample intervals"));
}

TEST(Seg2File, onlyTheLastTraceDecidesTheStatus) {
  const Seg2Channel good = channel(4, {1, 2});
  const Seg2Channel bad = channel(4, {1, 2}, {"DELAY 0"});
  EXPECT_EQ(statusOf(seg2Bytes({good, bad})), 2);
  EXPECT_EQ(statusOf(seg2Bytes({bad, good})), 0);
  EXPECT_EQ(statusOf(seg2Bytes({})), 0);
}

TEST(Seg2File, refusesOtherFiles) {
  std::string bigEndian = seg2Bytes({channel(4, {1, 2})});
  std::swap(bigEndian[0], bigEndian[1]);
  EXPECT_EQ(statusOf(bigEndian), 1);
  EXPECT_EQ(statusOf(""), 1);
  EXPECT_EQ(statusOf("U"), 1);
}

TEST(Seg2File, tellsItsProgress) {
  const ConsoleCapture console;
  ShotFileData data;
  ASSERT_TRUE(
      readSeg2(seg2Bytes({channel(4, {1, 2, 3}, {kInterval, "SOURCE_LOCATION 1 2,5 3"})}), data)
          .ok());
  EXPECT_EQ(console.out(), "Numero tracce:1\nSizedata 3\nreading Metadata 86\nY: 2,5\nZ: 3\n");
}

TEST(Seg2File, blocksWithoutStringsLackAnInterval) {
  for (const std::int64_t blockSize : {0, 4, 31, 32}) {
    std::string bytes = seg2Bytes({channel(4, {1, 2})});
    putInteger(bytes, 36 + 2, blockSize, 2, ByteOrder::kLittle);
    EXPECT_EQ(statusOf(bytes), 2) << blockSize;
  }
}

TEST(Seg2Strings, readNumbersAtTheFrontOfAWord) {
  const struct {
    const char* area;
    bool hasInterval;
    double interval;
    double delay;
  } kCases[] = {
      {"SAMPLE_INTERVAL 0.5 DELAY 0,012", true, 0.5, -0.012},
      {"SAMPLE_INTERVAL 0,5s DELAY -0.012", true, 0.5, -0.012},
      {"SAMPLE_INTERVAL\n1e-3\nDELAY\n+1", true, 0.001, -1.0},
      {"SAMPLE_INTERVAL 1,234.5", true, 1.234, 0.0},
      {"SAMPLE_INTERVAL 0.25 SAMPLE_INTERVAL x", false, 0.25, 0.0},
      {"SAMPLE_INTERVAL", false, 0.0, 0.0},
      {"SAMPLE_INTERVAL s", false, 0.0, 0.0},
      {"SAMPLE_INTERVAL 1e999", false, 0.0, 0.0},
      {"SAMPLE_INTERVAL inf", false, 0.0, 0.0},
      {"SAMPLE_INTERVAL DELAY 2", false, 0.0, -2.0},
      {"SAMPLE_INTERVALS 1 XDELAY 2 delay 3", false, 0.0, 0.0},
      {"SAMPLE_INTERVAL 1 DELAY none DELAY", true, 1.0, 0.0},
      {"", false, 0.0, 0.0},
  };
  for (const auto& expected : kCases) {
    const Seg2Strings read = parsed(expected.area);
    EXPECT_EQ(read.hasInterval, expected.hasInterval) << expected.area;
    EXPECT_EQ(read.sampleInterval, expected.interval) << expected.area;
    EXPECT_EQ(read.delay, expected.delay) << expected.area;
  }
}

TEST(Seg2Strings, takeTheElevationFromTheLastOfTwoOrThreeNumbers) {
  const struct {
    const char* words;
    Point2D location;
    const char* told;
  } kCases[] = {
      {"1.5", {1.5, 0}, ""},
      {"1.5 2", {1.5, 2}, "Z: 2\n"},
      {"1,5 2,5 3,5", {1.5, 3.5}, "Y: 2,5\nZ: 3,5\n"},
      {"1.5 2 3 4", {1.5, 3}, "Y: 2\nZ: 3\n"},
      {"1.5 2m 3", {1.5, 0}, ""},
      {"1.5 2 3m", {1.5, 2}, "Z: 2\n"},
      {"1.5m 2 m", {1.5, 2}, "Z: 2\n"},
      {"1.5 1e999 3", {1.5, 0}, ""},
      {"1.5 nan", {1.5, 0}, ""},
      {"1.5 2 nan", {1.5, 0}, "Y: 2\n"},
      {"1.5 nan 3", {1.5, 3}, "Y: nan\nZ: 3\n"},
      {"1.5 2 1e999", {1.5, 2}, "Z: 2\n"},
      {"m 2", {0, 0}, "Exception Source location\n"},
      {"", {0, 0}, "Exception Source location\n"},
  };
  for (const auto& [words, location, told] : kCases) {
    const ConsoleCapture console;
    const std::string area = std::string("SAMPLE_INTERVAL 1 SOURCE_LOCATION ") + words;
    EXPECT_EQ(parseSeg2Strings(area).source, location) << words;
    EXPECT_EQ(console.out(), told) << words;
  }
}

TEST(Seg2Strings, storeNoMinusZero) {
  const Seg2Strings read = parsed("DELAY -0 SOURCE_LOCATION -0.0 -0 RECEIVER_LOCATION -0 0 -0");
  for (const double value :
       {read.delay, read.source.x, read.source.z, read.receiver.x, read.receiver.z}) {
    EXPECT_FALSE(std::signbit(value));
  }
}

TEST(Seg2Strings, namesTheReceiverInItsOwnWords) {
  const ConsoleCapture console;
  parseSeg2Strings("RECEIVER_LOCATION here");
  EXPECT_EQ(console.out(),
            "Exception Receiver Location\nFATAL ERROR no sample interval provided\n");
}

TEST(Seg2Strings, lengthThatReadsAsADigitIsNoElevation) {
  // 49 bytes with their length are the digit "1" in front of a string.
  const std::string note = "NOTE " + std::string(41, 'x');
  const std::string area = seg2Area({"SOURCE_LOCATION 12.5", note, "SAMPLE_INTERVAL 0.5"});
  ASSERT_THAT(area, HasSubstr(std::string("1\0N", 3)));
  const Seg2Strings read = parsed(area);
  EXPECT_EQ(read.source, (Point2D{12.5, 0.0}));
  EXPECT_EQ(read.sampleInterval, 0.5);
}

TEST(Seg2Strings, lengthIsNoPartOfAWord) {
  // Lengths whose second byte is not zero, and strings without an end of their own.
  std::string area = seg2Area({"NOTE " + std::string(300, 'n'), "DELAY 0.5"});
  area.erase(area.size() - 3);
  area += std::string("\x18\0SAMPLE_INTERVAL 0.001", 24);
  const Seg2Strings read = parsed(area);
  EXPECT_EQ(read.sampleInterval, 0.001);
  EXPECT_EQ(read.delay, -0.5);
}

TEST(Seg2Strings, takeNoValueFromTheNextString) {
  const Seg2Strings read = parsed(seg2Area({"SAMPLE_INTERVAL", "5 CHANNELS", "SOURCE_LOCATION 12.5",
                                            "7 8", "DELAY", "3", "RECEIVER_LOCATION", "9 10"}));
  EXPECT_FALSE(read.hasInterval);
  EXPECT_EQ(read.source, (Point2D{12.5, 0.0}));
  EXPECT_EQ(read.delay, 0.0);
  EXPECT_EQ(read.receiver, Point2D());
}

TEST(Seg2Strings, wrongLengthsCutNoNumber) {
  // Lengths without their own two bytes, and with two bytes too many.
  for (const int wrong : {-2, 2}) {
    const std::vector<std::string> strings = {"DELAY -0.0125", "RECEIVER_LOCATION 1.25 0 33.75",
                                              "SAMPLE_INTERVAL 0.00025", "SOURCE_LOCATION 7 81.5"};
    std::string area = seg2Area(strings);
    std::size_t at = 0;
    for (const std::string& string : strings) {
      area[at] = static_cast<char>(area[at] + wrong);
      at += string.size() + 3;
    }
    const Seg2Strings read = parsed(area);
    EXPECT_EQ(read.delay, -0.0125) << wrong;
    EXPECT_EQ(read.receiver, (Point2D{1.25, 33.75})) << wrong;
    EXPECT_EQ(read.sampleInterval, 0.00025) << wrong;
    EXPECT_EQ(read.source, (Point2D{7, 81.5})) << wrong;
  }
}

TEST(Seg2Strings, acceptPlainText) {
  std::string area = "SAMPLE_INTERVAL 0.5";
  EXPECT_EQ(parsed(area).sampleInterval, 0.5);
  area.resize(60000, '\0');  // its first two letters would be a length that fits
  EXPECT_EQ(parsed(area).sampleInterval, 0.5);
}

TEST(Seg2Strings, followNoLocaleOfTheUser) {
  const CommaNumbers locale;
  if (!locale.found()) GTEST_SKIP() << "no locale with decimal commas here";
  const Seg2Strings read = parsed("SAMPLE_INTERVAL 0.25 DELAY 0,5");
  EXPECT_EQ(read.sampleInterval, 0.25);
  EXPECT_EQ(read.delay, -0.5);
}

}  // namespace
}  // namespace talvesk
