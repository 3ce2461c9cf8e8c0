#include "io/standard/SegyStandard.h"
#include "io/standard/StandardReader.h"
#include "io/standard/SuStandard.h"
#include "support/ConsoleCapture.h"
#include "support/StandardSegyFiles.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr ByteOrder kOrders[] = {ByteOrder::kBig, ByteOrder::kLittle};

const char* nameOf(ByteOrder order) {
  return order == ByteOrder::kBig ? " big-endian" : " little-endian";
}

/// Two traces of a shot at 5 m, geophones at 10 and 20 m.
StandardSegy shot(int code = 5, ByteOrder order = ByteOrder::kBig, int revision = 0) {
  StandardSegy file;
  file.code = static_cast<std::int16_t>(code);
  file.order = order;
  file.revision = revision;
  file.traces = {{{1, 2, 100, 7}, {{73, 4, 5}, {81, 4, 10}}, {}},
                 {{3, 0, 127, 9}, {{73, 4, 5}, {81, 4, 20}}, {}}};
  return file;
}

StandardReading read(const StandardSegy& file) {
  StandardReading reading;
  const Status status = readSegyByStandard(standardSegyBytes(file), reading);
  EXPECT_TRUE(status.ok()) << status.message();
  if (reading.shots.empty()) reading.shots.emplace_back();
  return reading;
}

std::string refusalOf(const std::string& bytes) {
  StandardReading reading;
  reading.format = "before";
  const Status status = readSegyByStandard(bytes, reading);
  EXPECT_EQ(status.code(), 1);
  EXPECT_EQ(reading.format, "before");
  return status.message();
}

const std::vector<ShotRecord>& tracesOf(const StandardReading& reading) {
  return reading.shots.front().data.traces;
}

std::vector<std::string> warningsOf(const StandardReading& reading) {
  std::vector<std::string> texts;
  for (const Message& warning : reading.warnings) texts.push_back(warning.english());
  for (const StandardReading::Shot& shot : reading.shots) {
    for (const Message& warning : shot.data.warnings) texts.push_back(warning.english());
  }
  return texts;
}

TEST(StandardSegy, readsEveryCodeInBothByteOrdersAndAllRevisions) {
  for (const int code : {1, 2, 3, 5, 6, 7, 8, 9, 10, 11, 12, 15, 16}) {
    for (const ByteOrder order : kOrders) {
      for (const int revision : {0, 1, 2}) {
        SCOPED_TRACE("code " + std::to_string(code) + nameOf(order) + " revision " +
                     std::to_string(revision));
        const StandardReading reading = read(shot(code, order, revision));
        EXPECT_EQ(reading.format, "segy");
        ASSERT_EQ(tracesOf(reading).size(), 2u);
        EXPECT_THAT(tracesOf(reading)[0].samples, ElementsAre(1, 2, 100, 7));
        EXPECT_THAT(tracesOf(reading)[1].samples, ElementsAre(3, 0, 127, 9));
        EXPECT_EQ(tracesOf(reading)[1].sampleInterval, 0.00025);
        EXPECT_EQ(tracesOf(reading)[1].source, (Point2D{5, 0}));
        EXPECT_EQ(tracesOf(reading)[1].receiver, (Point2D{20, 0}));
        EXPECT_THAT(warningsOf(reading), IsEmpty());
      }
    }
  }
}

TEST(StandardSegy, readsTheEndsOfEachCode) {
  const struct {
    int code;
    std::vector<double> samples;
  } kCases[] = {{1, {-0.15625, -118.625, 16777215.0, 1.0 / 1048576.0}},
                {2, {-2147483648.0, 2147483647.0, -1, 0}},
                {3, {-32768, 32767, -1, 0}},
                {5, {-0.5, 1e30F, -1e-30F, 0}},
                {6, {-0.1, 1e300, -1e-300, 0}},
                {7, {-8388608, 8388607, -1, 0}},
                {8, {-128, 127, -1, 0}},
                {9, {-9007199254740992.0, 9007199254740992.0, -1, 0}},
                {10, {4294967295.0, 2147483648.0, 1, 0}},
                {11, {65535, 32768, 1, 0}},
                {12, {9007199254740992.0, 4294967296.0, 1, 0}},
                {15, {16777215, 8388608, 1, 0}},
                {16, {255, 128, 1, 0}}};
  for (const auto& row : kCases) {
    for (const ByteOrder order : kOrders) {
      StandardSegy file = shot(row.code, order);
      file.traces[0].samples = row.samples;
      EXPECT_EQ(tracesOf(read(file))[0].samples, row.samples) << row.code << nameOf(order);
    }
  }
}

TEST(StandardSegy, setsSamplesThatAreNoFiniteNumbersToZero) {
  StandardSegy file = shot(6);
  file.traces[0].samples[1] = std::numeric_limits<double>::quiet_NaN();
  file.traces[1].samples[0] = std::numeric_limits<double>::infinity();
  const StandardReading reading = read(file);
  EXPECT_THAT(tracesOf(reading)[0].samples, ElementsAre(1, 0, 100, 7));
  EXPECT_THAT(warningsOf(reading), ElementsAre(HasSubstr("2 samples that are no finite numbers")));
}

TEST(StandardSegy, refusesByNameWhatItDoesNotRead) {
  StandardSegy swapped = shot(5, ByteOrder::kBig, 2);
  swapped.fields = {{3297, 4, 0x02010403}};
  StandardSegy none = shot();
  for (StandardTrace& trace : none.traces) trace.samples.clear();
  const struct {
    std::string bytes;
    const char* reason;
  } kCases[] = {{standardSegyBytes(shot(4)), "code 4 (fixed point with gain)"},
                {standardSegyBytes(shot(0)), "code 0"},
                {standardSegyBytes(shot(13)), "code 13"},
                {standardSegyBytes(shot(99)), "code 99"},
                {standardSegyBytes(swapped), "swapped in pairs"},
                {standardSegyBytes(none), "no number of samples"},
                {standardSegyBytes(shot()).substr(0, 3839), "too short"},
                {"", "too short"}};
  for (const auto& row : kCases) EXPECT_THAT(refusalOf(row.bytes), HasSubstr(row.reason));
}

TEST(StandardSegy, takesTheNumberOfSamplesWithWhichTracesFitTheFile) {
  const SegyField kFixed = {3503, 2, 1};
  const struct {
    const char* what;
    std::vector<SegyField> file;
    std::vector<SegyField> trace;
    const char* told;
  } kCases[] = {
      {"trace headers left from a longer file", {}, {{115, 2, 462}}, "462 samples"},
      {"no samples in the trace headers", {}, {{115, 2, 0}}, nullptr},
      {"no samples in the header of the file", {{3221, 2, 0}}, {}, nullptr},
      {"nonsense in the header of the file", {{3221, 2, 9}}, {}, "not the 9"},
      {"of one length, as the file says", {kFixed}, {{115, 2, 462}}, "462 samples"},
      {"not of one length, whatever the file says", {kFixed, {3221, 2, 9}}, {}, "not the 9"}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.what);
    StandardSegy file = shot(3, ByteOrder::kBig, 1);
    file.fields = row.file;
    for (StandardTrace& trace : file.traces) {
      trace.fields.insert(trace.fields.end(), row.trace.begin(), row.trace.end());
    }
    const StandardReading reading = read(file);
    ASSERT_EQ(tracesOf(reading).size(), 2u);
    EXPECT_THAT(tracesOf(reading)[1].samples, ElementsAre(3, 0, 127, 9));
    if (row.told == nullptr) {
      EXPECT_THAT(warningsOf(reading), IsEmpty());
    } else {
      EXPECT_THAT(warningsOf(reading), ElementsAre(HasSubstr(row.told)));
    }
  }
}

TEST(StandardSegy, readsTracesOfDifferentLengthsAndIntervals) {
  for (const ByteOrder order : kOrders) {
    StandardSegy file = shot(2, order);
    file.traces[0].samples = {1, 2, 3, 4, 5, 6, 7};
    file.traces[0].fields.push_back({117, 2, 500});
    file.traces.push_back({{8}, {{73, 4, 5}, {81, 4, 30}}, {}});
    const StandardReading reading = read(file);
    ASSERT_EQ(tracesOf(reading).size(), 3u);
    EXPECT_THAT(tracesOf(reading)[0].samples, ElementsAre(1, 2, 3, 4, 5, 6, 7));
    EXPECT_THAT(tracesOf(reading)[2].samples, ElementsAre(8));
    EXPECT_EQ(tracesOf(reading)[0].sampleInterval, 0.0005);
    EXPECT_EQ(tracesOf(reading)[1].sampleInterval, 0.00025);
    EXPECT_THAT(warningsOf(reading), Contains(HasSubstr("different numbers of samples")));
    EXPECT_THAT(warningsOf(reading), Contains(HasSubstr("not the 250 microseconds")));
  }
}

TEST(StandardSegy, takesTheIntervalThatMakesSense) {
  const struct {
    const char* what;
    int file;
    int trace;
    int fixed;
    double taken;
    const char* told;
  } kCases[] = {{"both", 250, 250, 0, 0.00025, nullptr},
                {"of the trace alone", 0, 125, 0, 0.000125, nullptr},
                {"of the file alone", 500, 0, 0, 0.0005, nullptr},
                {"of the trace", 250, 125, 0, 0.000125, "is not the 250"},
                {"of a file that says it is one for all", 250, 125, 1, 0.00025, "of 125"},
                {"negative in the trace", 250, -250, 0, 0.00025, "of 65286"},
                {"negative in a file that says it is one for all", -1, 250, 1, 0.00025, "65535"},
                {"long, but the only one", 0, 40000, 0, 0.04, nullptr},
                {"none", 0, 0, 0, 0.0, "not positive"}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.what);
    StandardSegy file = shot(5, ByteOrder::kBig, 1);
    file.fields = {{3217, 2, row.file}, {3503, 2, row.fixed}};
    for (StandardTrace& trace : file.traces) trace.fields.push_back({117, 2, row.trace});
    const StandardReading reading = read(file);
    EXPECT_EQ(tracesOf(reading)[1].sampleInterval, row.taken);
    if (row.told == nullptr) {
      EXPECT_THAT(warningsOf(reading), IsEmpty());
    } else {
      EXPECT_THAT(warningsOf(reading), ElementsAre(HasSubstr(row.told)));
    }
  }
}

TEST(StandardSegy, skipsExtendedTextsUpToTheirEnd) {
  const auto block = [](const std::string& text) {
    return text + std::string(3200 - text.size(), ' ');
  };
  const std::string ebcdicEnd = "\x4D\x4D\xE2\xC5\xC7\x7A\x40\xC5\x95\x84\xE3\x85\xA7\xA3\x5D\x5D" +
                                std::string(3200 - 16, '\x40');
  const std::string note = block("((ACME: notes of the crew))");
  const struct {
    const char* what;
    std::string text;
    int count;
  } kCases[] = {{"counted", note + note, 2},
                {"up to a stanza", note + block("((SEG: EndText))"), -1},
                {"up to a stanza in EBCDIC", ebcdicEnd, -1}};
  for (const auto& row : kCases) {
    for (const int revision : {1, 2}) {
      SCOPED_TRACE(row.what);
      StandardSegy file = shot(3, ByteOrder::kLittle, revision);
      file.extendedText = row.text;
      file.fields = {{3505, 2, row.count}};
      const StandardReading reading = read(file);
      ASSERT_EQ(tracesOf(reading).size(), 2u);
      EXPECT_THAT(tracesOf(reading)[1].samples, ElementsAre(3, 0, 127, 9));
      EXPECT_THAT(warningsOf(reading), IsEmpty());
    }
  }
}

TEST(StandardSegy, tellsOfExtendedTextsThatDoNotEnd) {
  for (const int count : {-1, 32767}) {
    StandardSegy file = shot(3, ByteOrder::kBig, 1);
    file.fields = {{3505, 2, count}};
    const StandardReading reading = read(file);
    EXPECT_EQ(tracesOf(reading).size(), 2u);
    EXPECT_THAT(warningsOf(reading), ElementsAre(HasSubstr("as if there were none")));
  }
}

TEST(StandardSegy, readsWhatRevisionTwoHasRoomFor) {
  StandardSegy file = shot(16, ByteOrder::kLittle, 2);
  file.extendedText = std::string(77, 'x');
  file.trailer = "((ACME: trailer))" + std::string(3200 - 17, ' ');
  file.fields = {
      {3269, 4, 70000}, {3273, 8, doubleBits(31.25)}, {3507, 4, 1}, {3521, 8, 3677}, {3529, 4, -1}};
  double receiver = 100.125;
  for (StandardTrace& trace : file.traces) {
    trace.samples.assign(70000, 200.0);
    trace.fields = {{29, 2, 1}, {117, 2, 31}};
    trace.extension = std::string(240, '\0');
    put(trace.extension, 0, {97, 8, doubleBits(100.0)}, file.order);
    put(trace.extension, 0, {113, 8, doubleBits(receiver)}, file.order);
    put(trace.extension, 0, {145, 8, doubleBits(31.25)}, file.order);
    receiver += 0.5;
  }
  const StandardReading reading = read(file);
  ASSERT_EQ(tracesOf(reading).size(), 2u);
  EXPECT_EQ(tracesOf(reading)[1].samples.size(), 70000u);
  EXPECT_THAT(tracesOf(reading)[1].samples, Each(200.0));
  EXPECT_EQ(tracesOf(reading)[1].sampleInterval, 31.25e-6);
  EXPECT_EQ(tracesOf(reading)[1].source.x, 100.0);
  EXPECT_EQ(tracesOf(reading)[1].receiver.x, 100.625);
  EXPECT_THAT(warningsOf(reading), IsEmpty());
}

TEST(StandardSegy, doesNotTakeFillingForTraces) {
  for (const std::size_t zeros : {1u, 250u, 1000u}) {
    StandardReading reading;
    const std::string bytes = standardSegyBytes(shot()) + std::string(zeros, '\0');
    ASSERT_TRUE(readSegyByStandard(bytes, reading).ok());
    EXPECT_EQ(tracesOf(reading).size(), 2u);
    EXPECT_THAT(warningsOf(reading),
                ElementsAre(HasSubstr(std::to_string(zeros) + " bytes after its traces")));
  }
}

TEST(StandardSegy, readsAFileThatIsCutShortAndSaysSo) {
  const std::string whole = standardSegyBytes(shot());
  StandardReading reading;
  ASSERT_TRUE(readSegyByStandard(whole.substr(0, whole.size() - 6), reading).ok());
  EXPECT_THAT(tracesOf(reading)[1].samples, ElementsAre(3, 0, 0, 0));
  EXPECT_THAT(warningsOf(reading), ElementsAre(HasSubstr("6 bytes that its headers promise")));
}

TEST(StandardSegy, findsTheByteOrderOfSuFiles) {
  for (const ByteOrder order : kOrders) {
    for (const int samples : {1, 4, 250, 257, 1000}) {
      SCOPED_TRACE(std::to_string(samples) + nameOf(order));
      StandardSegy file = shot(5, order);
      for (StandardTrace& trace : file.traces) {
        trace.samples.resize(static_cast<std::size_t>(samples), -2.5);
      }
      StandardReading reading;
      ASSERT_TRUE(readSuByStandard(standardSuBytes(file), reading).ok());
      EXPECT_EQ(reading.format, "su");
      ASSERT_EQ(tracesOf(reading).size(), 2u);
      EXPECT_EQ(tracesOf(reading)[1].samples, file.traces[1].samples);
      EXPECT_EQ(tracesOf(reading)[1].receiver.x, 20.0);
      EXPECT_THAT(warningsOf(reading), IsEmpty());
    }
  }
}

TEST(StandardSegy, readsSuTracesOfDifferentLengths) {
  for (const ByteOrder order : kOrders) {
    StandardSegy file = shot(5, order);
    file.traces[0].samples = {1, 2, 3, 4, 5, 6, 7};
    StandardReading reading;
    ASSERT_TRUE(readSuByStandard(standardSuBytes(file), reading).ok());
    ASSERT_EQ(tracesOf(reading).size(), 2u);
    EXPECT_THAT(tracesOf(reading)[0].samples, ElementsAre(1, 2, 3, 4, 5, 6, 7));
    EXPECT_THAT(tracesOf(reading)[1].samples, ElementsAre(3, 0, 127, 9));
  }
}

TEST(StandardSegy, tellsFilesByTheirContent) {
  StandardSegy unlabelled = shot();
  unlabelled.text.assign(3200, '\0');
  StandardSegy ebcdic = shot(4);
  ebcdic.text.assign(3200, '\x40');
  std::string untimed = standardSuBytes(shot());
  for (const std::size_t at : {116u, 372u}) untimed.replace(at, 2, 2, '\0');
  const struct {
    const char* what;
    std::string bytes;
    Likelihood segy;
    Likelihood su;
  } kCases[] = {
      {"SEG-Y", standardSegyBytes(shot()), Likelihood::kYes, Likelihood::kNo},
      {"SEG-Y, little-endian", standardSegyBytes(shot(3, ByteOrder::kLittle)), Likelihood::kYes,
       Likelihood::kNo},
      {"SEG-Y of a code that is not read", standardSegyBytes(ebcdic), Likelihood::kYes,
       Likelihood::kNo},
      {"SEG-Y without a text", standardSegyBytes(unlabelled), Likelihood::kYes, Likelihood::kNo},
      {"SU", standardSuBytes(shot()), Likelihood::kNo, Likelihood::kYes},
      {"SU, little-endian", standardSuBytes(shot(5, ByteOrder::kLittle)), Likelihood::kNo,
       Likelihood::kYes},
      {"SU without an interval", untimed, Likelihood::kNo, Likelihood::kPerhaps},
      {"a text", std::string(9000, 'a'), Likelihood::kNo, Likelihood::kNo},
      {"zeros", std::string(9000, '\0'), Likelihood::kNo, Likelihood::kNo},
      {"nothing", "", Likelihood::kNo, Likelihood::kNo}};
  for (const auto& row : kCases) {
    const std::string head = row.bytes.substr(0, 8192);
    EXPECT_EQ(likelihoodOfSegy(head, row.bytes.size()), row.segy) << row.what;
    EXPECT_EQ(likelihoodOfSu(head, row.bytes.size()), row.su) << row.what;
  }
}

TEST(StandardSegy, isChosenByContentWhateverTheSuffix) {
  const struct {
    std::string bytes;
    const char* format;
  } kCases[] = {{standardSegyBytes(shot(1)), "segy"},
                {standardSegyBytes(shot(3, ByteOrder::kLittle)), "segy"},
                {standardSuBytes(shot()), "su"},
                {standardSuBytes(shot(5, ByteOrder::kLittle)), "su"}};
  for (const auto& row : kCases) {
    for (const char* path : {"a", "a.dat", "a.su", "a.sgy"}) {
      const ConsoleCapture console;
      StandardReading reading;
      EXPECT_TRUE(parseByStandard(row.bytes, path, reading).ok()) << path;
      EXPECT_EQ(reading.format, row.format) << path;
    }
  }
}

std::size_t memoryOf(const StandardReading& reading) {
  std::size_t memory = 0;
  for (const StandardReading::Shot& shot : reading.shots) {
    for (const ShotRecord& trace : shot.data.traces) {
      memory += sizeof trace + trace.samples.capacity() * sizeof(double);
    }
  }
  return memory;
}

void expectBounded(const std::string& bytes) {
  for (const auto readBytes : {readSegyByStandard, readSuByStandard}) {
    StandardReading reading;
    const Status status = readBytes(bytes, reading);
    EXPECT_EQ(status.ok(), !reading.shots.empty());
    EXPECT_LE(memoryOf(reading), (std::size_t{64} << 20) + 16 * bytes.size());
    EXPECT_LT(warningsOf(reading).size(), 30u);
  }
}

TEST(StandardSegy, staysBoundedWhateverANumberOfTheHeadersSays) {
  for (const int revision : {0, 2}) {
    const std::string sound = standardSegyBytes(shot(16, ByteOrder::kBig, revision));
    for (std::size_t at = 3200; at + 8 <= sound.size(); at += 2) {
      for (const char fill : {'\0', '\x7F', '\xFF'}) {
        for (const std::size_t size : {2u, 8u}) {
          std::string broken = sound;
          broken.replace(at, size, size, fill);
          expectBounded(broken);
        }
      }
    }
  }
}

TEST(StandardSegy, staysBoundedWhereverAFileEnds) {
  for (const int revision : {0, 2}) {
    const std::string sound = standardSegyBytes(shot(1, ByteOrder::kLittle, revision));
    for (std::size_t size = 0; size < sound.size(); size += size < 3500 ? 97 : 1) {
      expectBounded(sound.substr(0, size));
    }
  }
}

TEST(StandardSegy, refusesMoreSamplesThanTheFileCanHold) {
  StandardSegy file = shot(16, ByteOrder::kBig, 2);
  file.fields = {{3269, 4, 2000000000}};
  for (StandardTrace& trace : file.traces) trace.fields.push_back({115, 2, 0});
  EXPECT_THAT(refusalOf(standardSegyBytes(file)), HasSubstr("than can come from"));
}

}  // namespace
}  // namespace talvesk
