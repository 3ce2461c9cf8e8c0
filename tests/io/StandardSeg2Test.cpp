#include "io/standard/Seg2Standard.h"
#include "support/CommaLocale.h"
#include "support/StandardFiles.h"

#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

using Strings = std::vector<std::string>;

constexpr ByteOrder kOrders[] = {ByteOrder::kLittle, ByteOrder::kBig};
const std::string kInterval = "SAMPLE_INTERVAL 0.001";

StandardReading readBytes(const std::string& bytes) {
  StandardReading reading;
  const Status status = readSeg2ByStandard(bytes, reading);
  EXPECT_TRUE(status.ok()) << status.message();
  if (reading.shots.empty()) reading.shots.emplace_back();
  return reading;
}

/// A file of one trace for each of the string lists.
Seg2Fixture fileOf(const std::vector<Strings>& headers,
                   const std::vector<double>& samples = {1, 2}) {
  Seg2Fixture file;
  for (const Strings& strings : headers) file.channels.push_back({4, samples, strings, {}});
  return file;
}

StandardReading readHeaders(const std::vector<Strings>& headers) {
  return readBytes(seg2Bytes(fileOf(headers)));
}

const ShotRecord& firstTrace(const StandardReading& reading) {
  static const ShotRecord kNone;
  const auto& traces = reading.shots.front().data.traces;
  return traces.empty() ? kNone : traces.front();
}

std::string refusalOf(const std::string& bytes) {
  StandardReading reading;
  const Status status = readSeg2ByStandard(bytes, reading);
  EXPECT_EQ(status.code(), 1);
  EXPECT_TRUE(reading.shots.empty());
  return status.message();
}

TEST(StandardSeg2, decodesEveryCodeInBothByteOrdersToItsLastSample) {
  const std::vector<double> samples = {0, 1, -1, 300, -32000, 5, 6};
  for (const ByteOrder order : kOrders) {
    for (int code = 1; code <= 5; ++code) {
      Seg2Fixture file;
      file.order = order;
      file.channels.assign(2, {code, samples, {kInterval}, {}});
      const StandardReading reading = readBytes(seg2Bytes(file));
      ASSERT_THAT(reading.shots.front().data.traces, SizeIs(2)) << code;
      EXPECT_EQ(reading.shots.front().data.traces[1].samples, samples) << code;
      EXPECT_THAT(reading.warnings, Not(Contains(HasSubstr("cut short")))) << code;
    }
  }
}

TEST(StandardSeg2, keepsTheRangeAndPrecisionOfEachCode) {
  const struct {
    int code;
    std::vector<double> samples;
  } kCases[] = {{2, {-2147483648.0, 2147483647.0, 16777217.0}},
                {3, {32767.0 * 32768, -32767.0 * 32768, -32767.0, 4096.0 * 1024, -3.0}},
                {5, {0.1, -1e300, 5e-324}}};
  for (const auto& [code, samples] : kCases) {
    for (const ByteOrder order : kOrders) {
      Seg2Fixture file;
      file.order = order;
      file.channels = {{code, samples, {kInterval}, {}}};
      EXPECT_EQ(firstTrace(readBytes(seg2Bytes(file))).samples, samples) << code;
    }
  }
}

TEST(StandardSeg2, refusesOtherCodesByTheirNumber) {
  for (const int code : {0, 6, 10, 255}) {
    Seg2Fixture file = fileOf({{kInterval}, {kInterval}});
    file.channels[1].code = code;
    EXPECT_THAT(refusalOf(seg2Bytes(file)),
                HasSubstr("trace 2 have the data format code " + std::to_string(code)));
  }
}

TEST(StandardSeg2, givesMillivoltsOfOneShot) {
  const struct {
    Strings strings;
    double sample;
    const char* warning;
  } kCases[] = {
      {{"DESCALING_FACTOR 0.5"}, 4.0, nullptr},
      {{"DESCALING_FACTOR 5.0E-001", "STACK 4"}, 1.0, nullptr},
      {{"STACK 2"}, 4.0, nullptr},
      {{"DESCALING_FACTOR 0"}, 8.0, "the DESCALING_FACTOR of trace 1 is no usable number"},
      {{"DESCALING_FACTOR nan"}, 8.0, "the DESCALING_FACTOR of trace 1 is no usable number"},
      {{"STACK 0"}, 8.0, "the STACK of trace 1 is no usable number"},
  };
  for (const auto& [strings, sample, warning] : kCases) {
    Strings all = strings;
    all.push_back(kInterval);
    const StandardReading reading = readBytes(seg2Bytes(fileOf({all}, {8, 8})));
    EXPECT_THAT(firstTrace(reading).samples, ElementsAre(sample, sample)) << strings[0];
    if (warning != nullptr) {
      EXPECT_THAT(reading.warnings, Contains(HasSubstr(warning)));
    } else {
      EXPECT_THAT(reading.warnings, Not(Contains(HasSubstr("as stored"))));
    }
  }
}

TEST(StandardSeg2, saysWhereOnlySomeTracesAreDescaled) {
  const StandardReading reading =
      readHeaders({{kInterval, "DESCALING_FACTOR 2"}, {kInterval}, {kInterval}});
  EXPECT_THAT(reading.warnings, Contains(HasSubstr("2 traces, the first of them trace 2, has no")));
}

TEST(StandardSeg2, countsTimeFromTheShot) {
  const struct {
    const char* strings;
    double delay;
    std::vector<double> samples;
    const char* warning;
  } kCases[] = {
      {"DELAY -0.010", -0.010, {1, 2, 3}, nullptr},
      {"DELAY 0", 0.0, {1, 2, 3}, nullptr},
      {"DELAY 0.002", 0.0, {0, 0, 1, 2, 3}, "begins after the shot, by up to 2 ms"},
      {"DELAY 0,003", 0.0, {0, 0, 0, 1, 2, 3}, "begins after the shot, by up to 3 ms"},
      {"DELAY 0.004", 0.0, {1, 2, 3}, "longer than it lasts"},
      {"DELAY 1e300", 0.0, {1, 2, 3}, "longer than it lasts"},
      {"DELAY soon", 0.0, {1, 2, 3}, "the DELAY of trace 1 is no finite number"},
      {"SKEW 0.001", 0.0, {0, 1, 2, 3}, "begins after the shot"},
      {"SKEW -0.002", -0.002, {1, 2, 3}, nullptr},
      {"SKEW 0.00075", 0.0, {1, 2, 3}, "the SKEW of trace 1 is up to 0.75 ms beyond whole samples"},
  };
  for (const auto& [strings, delay, samples, warning] : kCases) {
    const auto reading = readBytes(seg2Bytes(fileOf({{kInterval, strings}}, {1, 2, 3})));
    EXPECT_DOUBLE_EQ(firstTrace(reading).delay, delay) << strings;
    EXPECT_EQ(firstTrace(reading).samples, samples) << strings;
    if (warning != nullptr) {
      EXPECT_THAT(reading.warnings, Contains(HasSubstr(warning))) << strings;
    } else {
      EXPECT_THAT(reading.warnings, Not(Contains(HasSubstr("shot,")))) << strings;
    }
  }
}

TEST(StandardSeg2, takesTheIntervalOfAnotherTraceOrRefuses) {
  const StandardReading reading = readHeaders({{"DELAY 0"}, {"SAMPLE_INTERVAL 0.002"}});
  EXPECT_EQ(firstTrace(reading).sampleInterval, 0.002);
  EXPECT_THAT(reading.warnings, Contains(HasSubstr("trace 1 has no usable SAMPLE_INTERVAL")));
  for (const char* interval : {"SAMPLE_INTERVAL", "SAMPLE_INTERVAL 0", "SAMPLE_INTERVAL -1",
                               "SAMPLE_INTERVAL inf", "SAMPLE_INTERVAL 1e999", "NOTE"}) {
    EXPECT_THAT(refusalOf(seg2Bytes(fileOf({{interval}}))), HasSubstr("SAMPLE_INTERVAL"));
  }
}

TEST(StandardSeg2, readsPositionsHoweverTheyAreWritten) {
  const CommaStreams commas;
  const struct {
    const char* words;
    Point2D position;
  } kCases[] = {
      {"5", {5, 0}},
      {"5.5 101.25", {5.5, 101.25}},
      {"5.5 7 101.25", {5.5, 101.25}},
      {"5,5 7,0 101,25", {5.5, 101.25}},
      {"5.5,7.0,101.25", {5.5, 101.25}},
      {"5.5, 7.0, 101.25", {5.5, 101.25}},
      {"5;7;101", {5, 101}},
      {"\t5.5\t7\t101.25 ", {5.5, 101.25}},
      {"5.5m", {5.5, 0}},
      {"+5 -0.0", {5, 0}},
      {"5 1e999 3", {5, 0}},
      {"5 nan", {5, 0}},
  };
  for (const auto& [words, position] : kCases) {
    const std::string text = words;
    const StandardReading reading =
        readHeaders({{kInterval, "source_location " + text, "Receiver_Location " + text}});
    EXPECT_EQ(firstTrace(reading).source, position) << words;
    EXPECT_EQ(firstTrace(reading).receiver, position) << words;
  }
}

TEST(StandardSeg2, convertsUnitsToMetres) {
  const struct {
    const char* units;
    double x;
    const char* warning;
  } kCases[] = {{"UNITS METERS", 10, nullptr},
                {"UNITS NONE", 10, nullptr},
                {"units feet", 3.048, "in FEET and were converted to metres, 0.3048 m each"},
                {"UNITS INCHES", 0.254, "in INCHES"},
                {"UNITS CENTIMETERS", 0.1, "in CENTIMETERS"},
                {"UNITS STATIONS", 10, "UNITS of its header, STATIONS, are not known"}};
  for (const auto& [units, x, warning] : kCases) {
    Seg2Fixture file = fileOf({{kInterval, "SOURCE_LOCATION 10", "RECEIVER_LOCATION 0 10"}});
    file.fileStrings = {"INSTRUMENT TEST", units, "NOTE \n UNITS PARSEC\n"};
    const StandardReading reading = readBytes(seg2Bytes(file));
    EXPECT_DOUBLE_EQ(firstTrace(reading).source.x, x) << units;
    EXPECT_DOUBLE_EQ(firstTrace(reading).receiver.z, x) << units;
    if (warning == nullptr) {
      EXPECT_THAT(reading.warnings, IsEmpty());
    } else {
      EXPECT_THAT(reading.warnings, ElementsAre(HasSubstr(warning)));
    }
  }
}

TEST(StandardSeg2, saysWhichPositionsCannotBeUsed) {
  const struct {
    std::vector<std::string> receivers;
    const char* warning;
  } kCases[] = {
      {{"here", "RECEIVER"}, "the header of all 2 traces tells no receiver position"},
      {{"5", ""}, "the header of trace 2 tells no receiver position"},
      {{"5", "5"}, "all its geophones are at x = 5 m"},
      {{"5 0 0", "10 2.5 0"}, "differ by up to 2.5 m in y, which is not used"},
      {{"5.64177 50.59781866 238", "5.64178 50.59788483 232"}, "longitude and latitude"},
      {{"50.59781866 5.64177 238", "50.59788483 5.64177 232"}, "longitude and latitude"},
  };
  for (const auto& [receivers, warning] : kCases) {
    std::vector<Strings> headers;
    for (const std::string& receiver : receivers) {
      headers.push_back({kInterval, "SOURCE_LOCATION 0", "RECEIVER_LOCATION " + receiver});
    }
    EXPECT_THAT(readHeaders(headers).warnings, ElementsAre(HasSubstr(warning)));
  }
  EXPECT_THAT(readHeaders({{kInterval, "SOURCE_LOCATION 0", "RECEIVER_LOCATION 0.0 0 101.3"},
                           {kInterval, "SOURCE_LOCATION 0", "RECEIVER_LOCATION 5.0 0 101.4"}})
                  .warnings,
              IsEmpty());
}

TEST(StandardSeg2, takesALineAlongYAsTheLine) {
  const StandardReading reading =
      readHeaders({{kInterval, "SOURCE_LOCATION 7 1 3", "RECEIVER_LOCATION 7 2 4"},
                   {kInterval, "SOURCE_LOCATION 7 1 3", "RECEIVER_LOCATION 7 5 4"}});
  EXPECT_EQ(firstTrace(reading).source, (Point2D{1, 3}));
  EXPECT_EQ(reading.shots[0].data.traces[1].receiver, (Point2D{5, 4}));
  EXPECT_THAT(reading.warnings, ElementsAre(HasSubstr("y was taken")));
}

TEST(StandardSeg2, splitsAFileOfManyShots) {
  const auto header = [](const std::string& shot, const std::string& source, int receiver) {
    return Strings{kInterval, "SHOT_SEQUENCE_NUMBER " + shot, "SOURCE_LOCATION " + source,
                   "RECEIVER_LOCATION " + std::to_string(receiver)};
  };
  const struct {
    const char* what;
    std::vector<Strings> headers;
    std::vector<std::string> names;
    std::vector<std::size_t> sizes;
  } kCases[] = {
      {"one shot", {header("1", "0", 5), header("1", "0", 10)}, {""}, {2}},
      {"numbers",
       {header("1", "0", 5), header("2", "9", 5), header("1", "0", 10), header("2", "9", 10)},
       {"shot 1", "shot 2"},
       {2, 2}},
      {"sources",
       {header("1", "0", 5), header("1", "0", 10), header("1", "9.5 2", 5)},
       {"source 0", "source 9.5 2"},
       {2, 1}},
      {"numbers of traces",
       {header("1", "0", 5), header("2", "0", 10), header("3", "0", 15)},
       {""},
       {3}},
      {"receivers as sources", {header("1", "5", 5), header("1", "10", 10)}, {""}, {2}},
      {"one geophone",
       {header("1", "5", 5), header("1", "10", 5)},
       {"source 5", "source 10"},
       {1, 1}},
  };
  for (const auto& [what, headers, names, sizes] : kCases) {
    const StandardReading reading = readHeaders(headers);
    ASSERT_THAT(reading.shots, SizeIs(names.size())) << what;
    for (std::size_t i = 0; i < names.size(); ++i) {
      EXPECT_EQ(reading.shots[i].name, names[i]) << what;
      EXPECT_THAT(reading.shots[i].data.traces, SizeIs(sizes[i])) << what;
      EXPECT_EQ(reading.shots[i].data.format, "seg2");
    }
    EXPECT_EQ(reading.split.empty(), names.size() == 1) << what;
  }
}

TEST(StandardSeg2, followsStringsAsInstrumentsWriteThem) {
  const Strings kSound = {"DELAY -0.0125", kInterval, "SOURCE_LOCATION 7 81.5",
                          "NOTE \n DELAY -9\n SOURCE_LOCATION 5\n"};
  const auto lengthsOff = [&](int wrong, ByteOrder order) {
    std::string area;
    for (const std::string& string : kSound) {
      area += integerBytes(static_cast<int>(string.size()) + 3 + wrong, 2, order) + string + '\0';
    }
    return area + std::string(2, '\0');
  };
  std::string unended;
  for (const std::string& string : kSound) {
    unended += integerBytes(static_cast<int>(string.size()) + 2, 2, ByteOrder::kLittle) + string;
  }
  Seg2Fixture big;
  big.order = ByteOrder::kBig;
  const struct {
    const char* what;
    ByteOrder order;
    std::string area;
  } kCases[] = {
      {"sound", ByteOrder::kLittle, stringArea(kSound, {})},
      {"padded with zeros", ByteOrder::kLittle, stringArea(kSound, {}) + std::string(40, '\0')},
      {"big-endian", ByteOrder::kBig, stringArea(kSound, big)},
      {"no ends of strings", ByteOrder::kLittle, unended},
      {"lengths without their own bytes", ByteOrder::kLittle, lengthsOff(-2, ByteOrder::kLittle)},
      {"lengths without the end", ByteOrder::kLittle, lengthsOff(-1, ByteOrder::kLittle)},
      {"lengths of too much", ByteOrder::kLittle, lengthsOff(2, ByteOrder::kLittle)},
      {"big-endian lengths of too much", ByteOrder::kBig, lengthsOff(2, ByteOrder::kBig)},
      {"big-endian lengths without the end", ByteOrder::kBig, lengthsOff(-1, ByteOrder::kBig)},
      {"lines of one text", ByteOrder::kLittle,
       "DELAY -0.0125\r\nSAMPLE_INTERVAL 0.001\r\nSOURCE_LOCATION 7 81.5\r\nNOTE\nDELAY -9"},
      {"lengths of the other byte order", ByteOrder::kLittle, stringArea(kSound, big)},
  };
  for (const auto& [what, order, area] : kCases) {
    Seg2Fixture file;
    file.order = order;
    file.channels = {{4, {1, 2, 3}, {}, area}};
    const StandardReading reading = readBytes(seg2Bytes(file));
    EXPECT_EQ(firstTrace(reading).delay, -0.0125) << what;
    EXPECT_EQ(firstTrace(reading).sampleInterval, 0.001) << what;
    EXPECT_EQ(firstTrace(reading).source, (Point2D{7, 81.5})) << what;
    EXPECT_EQ(firstTrace(reading).samples, (std::vector<double>{1, 2, 3})) << what;
  }
}

TEST(StandardSeg2, believesTheEndsThatTheFileTells) {
  for (const std::string& end : {std::string("\r\n"), std::string(";"), std::string("\0\n", 2)}) {
    Seg2Fixture file = fileOf({{"DELAY -0.5", kInterval}});
    file.stringEnd = end;
    file.lineEnd = "\n\r";
    EXPECT_EQ(firstTrace(readBytes(seg2Bytes(file))).delay, -0.5);
    EXPECT_EQ(firstTrace(readBytes(seg2Bytes(file))).sampleInterval, 0.001);
  }
}

TEST(StandardSeg2, leavesOutPointersThatLeadAstray) {
  for (const std::int64_t pointer : {std::int64_t{7}, std::int64_t{0xFFFFFFF0}}) {
    std::string bytes = seg2Bytes(fileOf({{kInterval}, {kInterval, "SOURCE_LOCATION 3"}}));
    putInteger(bytes, 32, pointer, 4, ByteOrder::kLittle);
    const StandardReading reading = readBytes(bytes);
    EXPECT_THAT(reading.shots.front().data.traces, SizeIs(1));
    EXPECT_EQ(firstTrace(reading).source.x, 3.0);
    EXPECT_THAT(reading.warnings, Contains(HasSubstr("nothing is read of trace 1")));
    EXPECT_THAT(reading.warnings, Not(Contains(HasSubstr("cut short"))));
  }
}

TEST(StandardSeg2, warnsOfChannelsOutOfOrder) {
  const StandardReading reading =
      readHeaders({{kInterval, "CHANNEL_NUMBER 2"}, {kInterval, "CHANNEL_NUMBER 1"}});
  EXPECT_THAT(reading.shots.front().data.warnings, ElementsAre(HasSubstr("do not ascend")));
}

TEST(StandardSeg2, handsOutNoSampleThatIsNotFinite) {
  const double infinity = std::numeric_limits<double>::infinity();
  Seg2Fixture file;
  file.channels = {{5, {1, infinity, 1e300}, {kInterval, "DESCALING_FACTOR 1e300"}, {}}};
  const StandardReading reading = readBytes(seg2Bytes(file));
  EXPECT_THAT(firstTrace(reading).samples, ElementsAre(1e300, 0, 0));
  EXPECT_THAT(reading.warnings, Contains(HasSubstr("2 samples that are no finite numbers")));
}

TEST(StandardSeg2, refusesPromisesThatItsBytesCannotKeep) {
  std::string bytes = seg2Bytes(fileOf({{kInterval}}));
  const std::size_t block = bytes.find(std::string("\x22\x44", 2));
  putInteger(bytes, block + 8, 0xFFFFFFFF, 4, ByteOrder::kLittle);
  EXPECT_THAT(refusalOf(bytes), HasSubstr("promise 1 traces"));
  EXPECT_THAT(refusalOf(seg2Bytes(fileOf({}))), HasSubstr("holds no trace"));
  EXPECT_THAT(refusalOf("no SEG-2"), HasSubstr("no SEG-2 file"));
}

}  // namespace
}  // namespace talvesk
