#include "io/SegyFile.h"
#include "support/ConsoleCapture.h"
#include "support/ShotFiles.h"

#include <cmath>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::string kBigConstant = {1, 2, 3, 4};
const std::string kLittleConstant = {4, 3, 2, 1};
const std::string kSwappedConstant = {3, 4, 1, 2};

SegyFixture fixture(ByteOrder order, std::int16_t format = 5) {
  SegyFixture file;
  file.order = order;
  file.format = format;
  file.constant = order == ByteOrder::kBig ? kBigConstant : kLittleConstant;
  file.channels = {{{1, -2, 300, 4}, 7, 10, 1}, {{5, 6, -32768, 8}, 7, 20, 1}};
  return file;
}

ShotFileData readSegyFile(const SegyFixture& file, SegyState& state) {
  const ConsoleCapture console;
  ShotFileData data;
  EXPECT_TRUE(readSegy(segyBytes(file), state, data).ok());
  return data;
}

ShotFileData readSuFile(const SegyFixture& file, SegyState& state) {
  const ConsoleCapture console;
  ShotFileData data;
  EXPECT_TRUE(readSu(suBytes(file), state, data).ok());
  return data;
}

TEST(SegyFile, readsEveryFormatInBothByteOrders) {
  for (const ByteOrder order : {ByteOrder::kLittle, ByteOrder::kBig}) {
    for (const std::int16_t format : {std::int16_t{2}, std::int16_t{3}, std::int16_t{5}}) {
      SegyState state;
      const ShotFileData data = readSegyFile(fixture(order, format), state);
      ASSERT_EQ(data.traces.size(), 2u);
      EXPECT_THAT(data.traces[0].samples, ElementsAre(1, -2, 300, 0)) << format;
      EXPECT_THAT(data.traces[1].samples, ElementsAre(5, 6, -32768, 0)) << format;
      EXPECT_EQ(data.traces[1].source, (Point2D{7, 0}));
      EXPECT_EQ(data.traces[1].receiver, (Point2D{20, 0}));
      EXPECT_EQ(data.traces[1].sampleInterval, 0.00025);
      EXPECT_EQ(data.traces[1].delay, 0.0);
      EXPECT_THAT(data.warnings, IsEmpty());
      EXPECT_EQ(state.nativeOrder, order == ByteOrder::kLittle);
      EXPECT_EQ(state.formatCode, format);
      EXPECT_EQ(state.samplesPerTrace, 4);
      EXPECT_EQ(state.sampleInterval, 0.25);
    }
  }
}

TEST(SegyFile, otherFormatsGiveZerosAndAWarning) {
  for (const std::int16_t format : {std::int16_t{0}, std::int16_t{1}, std::int16_t{6}}) {
    SegyState state;
    const ShotFileData data = readSegyFile(fixture(ByteOrder::kBig, format), state);
    EXPECT_THAT(data.traces[1].samples, ElementsAre(0, 0, 0, 0));
    EXPECT_EQ(data.traces[1].receiver.x, 20.0) << "the second trace is found all the same";
    EXPECT_THAT(data.warnings, ElementsAre(HasSubstr("code " + std::to_string(format))));
  }
}

TEST(SegyFile, findsItsByteOrder) {
  const struct {
    std::string constant;
    ByteOrder order;
    bool nativeAfter;
    const char* told;
  } kCases[] = {
      {kLittleConstant, ByteOrder::kLittle, true, "same endianess\n"},
      {kBigConstant, ByteOrder::kBig, false, "inverted byte Order67305985\n"},
      {kSwappedConstant, ByteOrder::kBig, false, "byte swabed\n"},
      {{0, 0, 0, 0}, ByteOrder::kLittle, true, ""},
      {{0, 0, 0, 0}, ByteOrder::kBig, false, ""},
      {{9, 9, 9, 9}, ByteOrder::kLittle, true, ""},
  };
  for (const auto& expected : kCases) {
    SegyFixture file = fixture(expected.order);
    file.constant = expected.constant;
    const ConsoleCapture console;
    SegyState state;
    ShotFileData data;
    ASSERT_TRUE(readSegy(segyBytes(file), state, data).ok());
    EXPECT_EQ(state.nativeOrder, expected.nativeAfter) << expected.told;
    EXPECT_EQ(console.out(), expected.told);
    EXPECT_EQ(data.traces.size(), 2u);
  }
}

TEST(SegyFile, comparesTheTwoReadingsOfTheTraceCountUnsigned) {
  // 0x0080 traces, big-endian, are 0x8000 read natively: larger, but negative as a signed number.
  SegyFixture file = fixture(ByteOrder::kBig);
  file.constant = {0, 0, 0, 0};
  file.channels.resize(0x80, file.channels.front());
  SegyState state;
  EXPECT_EQ(readSegyFile(file, state).traces.size(), 0x80u);
  EXPECT_FALSE(state.nativeOrder);
}

TEST(SegyFile, nothingSetsTheOrderBackToNative) {
  SegyState state;
  readSegyFile(fixture(ByteOrder::kBig), state);
  const ConsoleCapture console;
  ShotFileData data;
  ASSERT_TRUE(readSegy(segyBytes(fixture(ByteOrder::kLittle)), state, data).ok());
  EXPECT_EQ(console.out(), "same endianess\n");
  EXPECT_FALSE(state.nativeOrder);
  EXPECT_EQ(state.samplesPerTrace, 0x0400) << "4, read big-endian";
  EXPECT_THAT(data.warnings, ::testing::Contains(HasSubstr("is read big-endian")));
}

TEST(SegyFile, scalesCoordinatesByIntegerDivision) {
  const struct {
    std::int16_t scalar;
    std::int32_t stored;
    double expected;
  } kCases[] =
      {
          {0, 57, 57.0},    {1, 57, 57.0},     {10, -57, -570.0},
          {-1, -57, -57.0}, {-2, 57, 0.0},     {-10, 57, 0.0},
          {-100, -57, 0.0}, {-32768, 57, 0.0}, {1, 16777217, 16777216.0},  // single precision
      };
  for (const auto& [scalar, stored, expected] : kCases) {
    SegyFixture file = fixture(ByteOrder::kBig);
    file.channels = {{{1, 2}, stored, stored, scalar}};
    SegyState state;
    const ShotFileData data = readSegyFile(file, state);
    EXPECT_EQ(data.traces[0].source.x, expected) << scalar;
    EXPECT_EQ(data.traces[0].receiver.x, expected) << scalar;
    EXPECT_FALSE(expected == 0.0 && std::signbit(data.traces[0].source.x)) << scalar;
  }
}

TEST(SegyFile, readsTracesOfNoneAndOfOneSample) {
  for (const std::size_t samples : {0, 1}) {
    SegyFixture file = fixture(ByteOrder::kLittle);
    for (SegyChannel& channel : file.channels) channel.samples.assign(samples, 9.0F);
    SegyState state;
    const ShotFileData data = readSegyFile(file, state);
    ASSERT_EQ(data.traces.size(), 2u);
    EXPECT_EQ(data.traces[1].samples, std::vector<double>(samples, 0.0));
    EXPECT_EQ(data.traces[1].receiver.x, 20.0);
  }
}

TEST(SegyFile, saysWhenItsHeadersNameFewerTracesThanItHolds) {
  std::string bytes = segyBytes(fixture(ByteOrder::kLittle));
  putInteger(bytes, 3212, 1, 2, ByteOrder::kLittle);
  const ConsoleCapture console;
  SegyState state;
  ShotFileData data;
  ASSERT_TRUE(readSegy(bytes, state, data).ok());
  EXPECT_EQ(data.traces.size(), 1u);
  EXPECT_THAT(data.warnings, ElementsAre(HasSubstr("256 bytes after the traces")));
}

TEST(SuFile, readsAsManyTracesAsItHasRoomFor) {
  SegyState state;
  const ShotFileData data = readSuFile(fixture(ByteOrder::kLittle), state);
  ASSERT_EQ(data.traces.size(), 2u);
  EXPECT_THAT(data.traces[0].samples, ElementsAre(1, -2, 300, 0));
  EXPECT_THAT(data.traces[1].samples, ElementsAre(5, 6, -32768, 0));
  EXPECT_EQ(data.traces[1].receiver.x, 20.0);
  EXPECT_EQ(data.traces[1].sampleInterval, 0.00025);
  EXPECT_EQ(state.formatCode, 5);
}

TEST(SuFile, isReadInTheOrderOfTheSegyFileBefore) {
  SegyState state;
  readSegyFile(fixture(ByteOrder::kBig), state);
  const ShotFileData data = readSuFile(fixture(ByteOrder::kBig), state);
  EXPECT_THAT(data.traces.at(1).samples, ElementsAre(5, 6, -32768, 0));
  EXPECT_THAT(data.warnings, IsEmpty());
}

TEST(SuFile, saysWhenItSeemsToBeInTheOtherByteOrder) {
  SegyState state;
  const ShotFileData data = readSuFile(fixture(ByteOrder::kBig), state);
  EXPECT_THAT(data.warnings, ::testing::Contains(HasSubstr("the other byte order")));
}

TEST(SuFile, spacesItsTracesByTheFormatOfTheFileBefore) {
  SegyState state;
  readSegyFile(fixture(ByteOrder::kLittle, 3), state);
  // Traces 248 bytes apart, as many as there would be 256 apart: the 16-bit spacing.
  SegyFixture file = fixture(ByteOrder::kLittle);
  std::string bytes = suBytes(file);
  putInteger(bytes, 248 + 80, 1234, 4, ByteOrder::kLittle);
  putInteger(bytes, 248 + 70, 1, 2, ByteOrder::kLittle);
  const ConsoleCapture console;
  ShotFileData data;
  ASSERT_TRUE(readSu(bytes, state, data).ok());
  ASSERT_EQ(data.traces.size(), 2u);
  EXPECT_THAT(data.traces[0].samples, ElementsAre(1, -2, 300, 0)) << "read as floats nevertheless";
  EXPECT_EQ(data.traces[1].receiver.x, 1234.0);
  EXPECT_THAT(data.warnings, ::testing::Contains(HasSubstr("16-bit")));
  EXPECT_EQ(readSuFile(file, state).traces[1].receiver.x, 20.0) << "the next one is as usual";
}

}  // namespace
}  // namespace talvesk
