#include "io/ShotFile.h"
#include "support/ConsoleCapture.h"
#include "support/ShotFiles.h"

#include <chrono>
#include <cmath>
#include <random>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::Contains;
using ::testing::HasSubstr;

constexpr ByteOrder kLittle = ByteOrder::kLittle;

std::string smallSeg2() {
  const std::string area = seg2Area({"SAMPLE_INTERVAL 0.001", "SOURCE_LOCATION 1 2"});
  return seg2Bytes({{4, {1, 2, 3}, area}, {2, {4, 5, 6}, area}});
}

SegyFixture smallSegy() {
  SegyFixture file;
  file.order = kLittle;
  file.channels = {{{1, 2, 3}, 7, 10, 1}, {{4, 5, 6}, 7, 20, 1}};
  return file;
}

/// Files of each kind, with where each may be cut so that the test stays short.
const struct {
  const char* path;
  std::string bytes;
} kSmall[] = {
    {"a.dat", smallSeg2()}, {"a.sgy", segyBytes(smallSegy())}, {"a.su", suBytes(smallSegy())}};

std::size_t samplesOf(const ShotFileData& data) {
  std::size_t total = 0;
  for (const ShotRecord& trace : data.traces) total += trace.samples.size();
  return total;
}

/// Whatever the bytes were, what is accepted is of bounded size and can be used without a check.
Status expectSaneOrRefused(const std::string& path, const std::string& bytes, ShotFileData& data) {
  const ConsoleCapture console;
  SegyState state;
  const Status status = parseShotFile(bytes, path, state, data);
  if (!status.ok()) {
    EXPECT_THAT(status.message(), HasSubstr(path));
    EXPECT_TRUE(data.traces.empty());
    EXPECT_EQ(state.samplesPerTrace, 0) << "a file that fails leaves no trace in the state";
    return status;
  }
  EXPECT_LE(samplesOf(data) * sizeof(double), (std::size_t{64} << 20) + 15 * bytes.size());
  for (const ShotRecord& trace : data.traces) {
    EXPECT_TRUE(trace.samples.empty() || trace.samples.back() == 0.0);
    EXPECT_LE(trace.delay, 0.0);
    for (const double value : {trace.source.x, trace.source.z, trace.receiver.x, trace.receiver.z,
                               trace.delay, trace.sampleInterval}) {
      EXPECT_TRUE(std::isfinite(value));
    }
    for (const double sample : trace.samples) EXPECT_TRUE(std::isfinite(sample));
  }
  return status;
}

TEST(HostileShotFiles, endAnywhere) {
  for (const auto& [path, bytes] : kSmall) {
    for (std::size_t length = 0; length < bytes.size(); ++length) {
      ShotFileData data;
      (void)expectSaneOrRefused(path, bytes.substr(0, length), data);
    }
  }
}

TEST(HostileShotFiles, keepWhatStandsBeforeTheCut) {
  for (const auto& [path, bytes] : kSmall) {
    if (std::string(path) == "a.su") continue;  // its size is all that says how many traces it has
    // Eight bytes less: the last sample, which is never read, and the one before it.
    ShotFileData data;
    ASSERT_TRUE(expectSaneOrRefused(path, bytes.substr(0, bytes.size() - 7), data).ok()) << path;
    ASSERT_EQ(data.traces.size(), 2u);
    EXPECT_EQ(data.traces[0].samples, (std::vector<double>{1, 2, 0}));
    EXPECT_EQ(data.traces[1].samples, (std::vector<double>{4, 0, 0})) << "half a number is none";
    EXPECT_THAT(data.warnings, Contains(HasSubstr("3 bytes that its headers promise are missing")));
  }
}

TEST(HostileShotFiles, manyPointersToOneBlockAreRefused) {
  const struct {
    std::int64_t samples;
    std::int64_t blockSize;
  } kPromises[] = {{65535, 100}, {2, 65535}};
  for (const auto& [samples, blockSize] : kPromises) {
    std::string bytes(32 + 4 * 65535, '\0');
    putInteger(bytes, 0, 0x3A55, 2, kLittle);
    putInteger(bytes, 6, 65535, 2, kLittle);
    for (std::size_t i = 0; i < 65535; ++i) {
      putInteger(bytes, 32 + 4 * i, static_cast<std::int64_t>(bytes.size()), 4, kLittle);
    }
    std::string block(100, '\0');
    putInteger(block, 2, blockSize, 2, kLittle);
    putInteger(block, 8, samples, 2, kLittle);
    ShotFileData data;
    const Status status = expectSaneOrRefused("a.dat", bytes + block, data);
    EXPECT_EQ(status.code(), 1);
    EXPECT_THAT(status.message(), HasSubstr("promise 65535 traces"));
  }
}

TEST(HostileShotFiles, pointersPastTheEndGiveNoTrace) {
  for (const std::int64_t pointer : {std::int64_t{100000}, std::int64_t{0xFFFFFFFF}}) {
    std::string bytes = smallSeg2();
    putInteger(bytes, 36, pointer, 4, kLittle);
    ShotFileData data;
    EXPECT_EQ(expectSaneOrRefused("a.dat", bytes, data).code(), 2) << "the last trace has nothing";
    std::swap_ranges(&bytes[32], &bytes[36], &bytes[36]);
    EXPECT_TRUE(expectSaneOrRefused("a.dat", bytes, data).ok());
    ASSERT_EQ(data.traces.size(), 2u);
    EXPECT_TRUE(data.traces[0].samples.empty());
    EXPECT_EQ(data.traces[1].samples.size(), 3u);
  }
}

TEST(HostileShotFiles, segyOfTooManyTracesAndSamplesIsRefused) {
  std::string bytes = segyBytes(smallSegy());
  putInteger(bytes, 3212, 0x7F7F, 2, kLittle);
  putInteger(bytes, 3714, 65535, 2, kLittle);
  ShotFileData data;
  const Status status = expectSaneOrRefused("a.sgy", bytes, data);
  EXPECT_EQ(status.code(), 1);
  EXPECT_THAT(status.message(), HasSubstr("promise 32639 traces"));
}

TEST(HostileShotFiles, areExplainedByTheByteOrderOfAFileBefore) {
  SegyFixture file = smallSegy();
  file.constant = {4, 3, 2, 1};
  file.channels.assign(24, {std::vector<float>(1200), 1, 2, 0});
  const ConsoleCapture console;
  SegyState state;
  state.nativeOrder = false;
  ShotFileData data;
  const Status status = parseShotFile(segyBytes(file), "a.sgy", state, data);
  EXPECT_EQ(status.code(), 1);
  EXPECT_THAT(status.message(), HasSubstr("but is read big-endian"));
}

TEST(HostileShotFiles, areNeverSlow) {
  const auto start = std::chrono::steady_clock::now();
  // The largest header that is not refused, full of locations that are told on the console.
  std::string area;
  while (area.size() < 60000) area += "SOURCE_LOCATION 1 2 3 ";
  area += "SAMPLE_INTERVAL 1";
  std::string bytes = seg2Bytes({{4, {}, area}});
  const std::string block = bytes.substr(36);
  bytes.resize(32 + 4 * 1100);
  putInteger(bytes, 6, 1100, 2, kLittle);
  for (std::size_t i = 0; i < 1100; ++i) {
    putInteger(bytes, 32 + 4 * i, static_cast<std::int64_t>(bytes.size()), 4, kLittle);
  }
  ShotFileData data;
  EXPECT_TRUE(expectSaneOrRefused("a.dat", bytes + block, data).ok());
  EXPECT_EQ(data.traces.size(), 1100u);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(HostileShotFiles, areSaneWhateverTheirBytes) {
  std::mt19937 random(7);
  for (const auto& [path, bytes] : kSmall) {
    for (int round = 0; round < 300; ++round) {
      std::string broken = bytes;
      for (int i = 0; i < 4; ++i) broken[random() % broken.size()] = static_cast<char>(random());
      ShotFileData data;
      (void)expectSaneOrRefused(path, broken, data);
    }
  }
}

}  // namespace
}  // namespace talvesk
