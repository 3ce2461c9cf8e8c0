#include "io/standard/StandardReader.h"
#include "support/ConsoleCapture.h"
#include "support/StandardFiles.h"
#include "support/TestFolder.h"

#include <cmath>
#include <random>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::HasSubstr;

std::string smallSeg2(ByteOrder order, int code) {
  Seg2Fixture file;
  file.order = order;
  file.fileStrings = {"UNITS FEET"};
  for (const char* receiver : {"RECEIVER_LOCATION 5 0 1", "RECEIVER_LOCATION 10 0 2"}) {
    file.channels.push_back(
        {code, {1, 2, 3, 4, 5}, {"SAMPLE_INTERVAL 0.001", "DELAY 0.002", receiver}, {}});
  }
  return seg2Bytes(file);
}

std::string smallSeed() {
  SeedFixture record;
  record.samples = {1, 2, 3};
  SeedFixture next = record;
  next.tenthsOfMilliseconds = 50;
  SeedFixture compressed = record;
  compressed.channel = "XXSTA  00HHE";
  compressed.encoding = 11;
  compressed.promised = 20;
  compressed.data = std::string(192, '\x55');
  return seedBytes(record) + seedBytes(next) + seedBytes(compressed);
}

std::vector<std::string> smallFiles() {
  std::vector<std::string> files = {smallSeed()};
  for (const ByteOrder order : {ByteOrder::kLittle, ByteOrder::kBig}) {
    for (int code = 1; code <= 5; ++code) files.push_back(smallSeg2(order, code));
  }
  return files;
}

/// Whatever the bytes were, what is accepted is of bounded size and can be used without a check.
void expectSaneOrRefused(const std::string& bytes) {
  const ConsoleCapture console;
  StandardReading reading;
  if (!parseByStandard(bytes, "a.dat", reading).ok()) {
    EXPECT_THAT(console.error(), HasSubstr("a.dat"));
    EXPECT_TRUE(reading.shots.empty() && reading.warnings.empty());
    return;
  }
  EXPECT_FALSE(reading.shots.empty());
  std::size_t memory = 0;
  for (const StandardReading::Shot& shot : reading.shots) {
    for (const ShotRecord& trace : shot.data.traces) {
      memory += trace.samples.capacity() * sizeof(double);
      EXPECT_TRUE(isFinite(trace.source) && isFinite(trace.receiver));
      EXPECT_TRUE(std::isfinite(trace.delay) && trace.delay <= 0.0);
      EXPECT_TRUE(std::isfinite(trace.sampleInterval) && trace.sampleInterval > 0.0);
      for (const double sample : trace.samples) EXPECT_TRUE(std::isfinite(sample));
    }
  }
  EXPECT_LE(memory, (std::size_t{64} << 20) + 15 * bytes.size());
}

TEST(StandardReader, goesByTheContentWhateverTheSuffix) {
  const TestFolder folder;
  for (const char* name : {"a.dat", "a.sgy", "a.su", "a.txt", "a"}) {
    const ConsoleCapture console;
    StandardReading reading;
    ASSERT_TRUE(readByStandard(folder.put(name, smallSeg2(ByteOrder::kBig, 3)), reading).ok());
    EXPECT_EQ(reading.format, "seg2") << name;
    ASSERT_TRUE(readByStandard(folder.put(name, smallSeed()), reading).ok());
    EXPECT_EQ(reading.format, "mseed") << name;
  }
}

TEST(StandardReader, namesTheFileInItsWarnings) {
  const ConsoleCapture console;
  StandardReading reading;
  ASSERT_TRUE(parseByStandard(smallSeg2(ByteOrder::kLittle, 4), "line/a.dat", reading).ok());
  EXPECT_EQ(console.out(), "opening seg2 file line/a.dat\n");
  EXPECT_THAT(console.error(), HasSubstr("Warning: line/a.dat: its positions are in FEET"));
}

TEST(StandardReader, saysByWhatItToldShotsApart) {
  Seg2Fixture file;
  for (const char* source : {"SOURCE_LOCATION 0", "SOURCE_LOCATION 0", "SOURCE_LOCATION 9"}) {
    file.channels.push_back({4, {1, 2}, {"SAMPLE_INTERVAL 0.001", source}, {}});
  }
  const ConsoleCapture console;
  StandardReading reading;
  ASSERT_TRUE(parseByStandard(seg2Bytes(file), "a.dat", reading).ok());
  EXPECT_EQ(reading.split.english(), "it holds 2 shots, told apart by SOURCE_LOCATION");
  EXPECT_THAT(console.error(), HasSubstr("Warning: a.dat: it holds 2 shots"));
}

TEST(StandardReader, refusesWhatIsNoRecordWithAReason) {
  const struct {
    const char* path;
    std::string bytes;
    const char* reason;
  } kCases[] = {
      {"a.dat", "-0.2391 -0.2419\n-0.2825 0.0219\n", "it is a text file"},
      {"a.sg2", "", "the file is empty"},
      {"a.seg2", std::string(4000, '\xE7'), "by its content it is no file of SEG-2, "},
  };
  for (const auto& [path, bytes, reason] : kCases) {
    const ConsoleCapture console;
    StandardReading reading;
    const Status status = parseByStandard(bytes, path, reading);
    EXPECT_EQ(status.code(), 1);
    EXPECT_THAT(status.message(), AllOf(HasSubstr(path), HasSubstr(reason)));
    EXPECT_EQ(console.error(), status.message() + "\n");
  }
  const ConsoleCapture console;
  StandardReading reading;
  EXPECT_THAT(readByStandard("/nowhere/a.dat", reading).message(),
              HasSubstr("Error while loading /nowhere/a.dat"));
}

TEST(StandardReader, keepsWhatWasReadBeforeAFailure) {
  const ConsoleCapture console;
  StandardReading reading;
  ASSERT_TRUE(parseByStandard(smallSeed(), "a.mseed", reading).ok());
  EXPECT_FALSE(parseByStandard("U:", "b.dat", reading).ok());
  EXPECT_EQ(reading.format, "mseed");
  EXPECT_EQ(reading.shots.size(), 1u);
}

TEST(StandardReader, staysSaneWhereverAFileEnds) {
  for (const std::string& bytes : smallFiles()) {
    for (std::size_t length = 0; length < bytes.size(); ++length) {
      expectSaneOrRefused(bytes.substr(0, length));
    }
  }
}

TEST(StandardReader, staysSaneWhateverTheBytes) {
  std::mt19937 random(7);
  for (const std::string& bytes : smallFiles()) {
    for (int round = 0; round < 200; ++round) {
      std::string broken = bytes;
      for (int i = 0; i < 4; ++i) broken[random() % broken.size()] = static_cast<char>(random());
      expectSaneOrRefused(broken);
    }
  }
}

TEST(StandardReader, keepsWhatStandsBeforeTheCut) {
  const std::string bytes = smallSeg2(ByteOrder::kLittle, 5);
  const ConsoleCapture console;
  StandardReading reading;
  ASSERT_TRUE(parseByStandard(bytes.substr(0, bytes.size() - 9), "a.dat", reading).ok());
  EXPECT_EQ(reading.shots[0].data.traces[1].samples, (std::vector<double>{0, 0, 1, 2, 3, 0, 0}));
  EXPECT_THAT(reading.warnings,
              Contains(HasSubstr("9 bytes that its headers promise are missing")));
}

}  // namespace
}  // namespace talvesk
