#include "io/standard/SegyStandard.h"
#include "io/standard/ShotSplit.h"
#include "io/standard/SuStandard.h"
#include "support/StandardSegyFiles.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::DoubleNear;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using Fields = std::vector<SegyField>;

/// A file of traces that have four samples and these fields each.
StandardSegy fileOf(const std::vector<Fields>& traces) {
  StandardSegy file;
  file.revision = 1;
  for (const Fields& fields : traces) file.traces.push_back({{1, 2, 3, 4}, fields, {}});
  return file;
}

StandardReading read(const StandardSegy& file) {
  StandardReading reading;
  const Status status = readSegyByStandard(standardSegyBytes(file), reading);
  EXPECT_TRUE(status.ok()) << status.message();
  if (reading.shots.empty()) reading.shots.emplace_back();
  return reading;
}

const std::vector<ShotRecord>& tracesOf(const StandardReading& reading) {
  return reading.shots.front().data.traces;
}

std::vector<std::string> warningsOf(const StandardReading& reading) {
  std::vector<std::string> texts;
  for (const Message& warning : reading.warnings) texts.push_back(warning.english());
  return texts;
}

/// One warning that has this in it, or none for a null pointer.
void expectTold(const StandardReading& reading, const char* told) {
  if (told == nullptr) {
    EXPECT_THAT(warningsOf(reading), IsEmpty());
  } else {
    EXPECT_THAT(warningsOf(reading), ElementsAre(HasSubstr(told)));
  }
}

std::vector<double> receiversOf(const StandardReading& reading) {
  std::vector<double> x;
  for (const ShotRecord& trace : tracesOf(reading)) x.push_back(trace.receiver.x);
  return x;
}

TEST(StandardSegyShots, appliesScalarsOfEitherSign) {
  const struct {
    std::int16_t scalar;
    double factor;
    bool told;
  } kCases[] = {{0, 1, false},     {1, 1, false},       {-1, 1, false},        {10, 10, false},
                {-10, 0.1, false}, {-100, 0.01, false}, {-1000, 0.001, false}, {82, 1, true},
                {-7, 1, true},     {-32768, 1, true}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.scalar);
    const StandardReading coordinates =
        read(fileOf({{{71, 2, row.scalar}, {73, 4, -250}, {81, 4, 1000}, {45, 4, 3}}}));
    EXPECT_DOUBLE_EQ(tracesOf(coordinates)[0].source.x, -250 * row.factor);
    EXPECT_DOUBLE_EQ(tracesOf(coordinates)[0].receiver.x, 1000 * row.factor);
    EXPECT_EQ(tracesOf(coordinates)[0].source.z, 3.0);
    expectTold(coordinates, row.told ? "for the coordinates of trace 1" : nullptr);
    const StandardReading elevations =
        read(fileOf({{{69, 2, row.scalar}, {81, 4, 4}, {41, 4, 500}, {45, 4, -600}}}));
    EXPECT_DOUBLE_EQ(tracesOf(elevations)[0].receiver.z, 500 * row.factor);
    EXPECT_DOUBLE_EQ(tracesOf(elevations)[0].source.z, -600 * row.factor);
    EXPECT_EQ(tracesOf(elevations)[0].receiver.x, 4.0);
    expectTold(elevations, row.told ? "for the elevations of trace 1" : nullptr);
  }
}

TEST(StandardSegyShots, takesFeetToMetres) {
  StandardSegy file = fileOf({{{73, 4, -10}, {81, 4, 100}, {41, 4, 1000}, {45, 4, 1000}}});
  file.fields = {{3255, 2, 2}};
  const StandardReading reading = read(file);
  EXPECT_DOUBLE_EQ(tracesOf(reading)[0].source.x, -3.048);
  EXPECT_DOUBLE_EQ(tracesOf(reading)[0].receiver.x, 30.48);
  EXPECT_DOUBLE_EQ(tracesOf(reading)[0].receiver.z, 304.8);
  expectTold(reading, "in feet");
}

TEST(StandardSegyShots, placesAShotInAHoleBelowTheGround) {
  const StandardReading reading =
      read(fileOf({{{69, 2, -10}, {81, 4, 5}, {41, 4, 1010}, {45, 4, 1000}, {49, 4, 15}}}));
  EXPECT_EQ(tracesOf(reading)[0].source.z, 98.5);
  EXPECT_EQ(tracesOf(reading)[0].receiver.z, 101.0);
  expectTold(reading, "up to 1.5 m below the ground");
}

TEST(StandardSegyShots, putsShotsWithoutElevationsOnTheGround) {
  std::vector<Fields> traces;
  for (const int x : {0, 10, 20}) {
    traces.push_back({{9, 4, x + 1}, {73, 4, 2 * x - 5}, {81, 4, x}, {41, 4, 100 + x}});
  }
  const StandardReading reading = read(fileOf(traces));
  ASSERT_EQ(reading.shots.size(), 3u);
  const double kElevations[] = {100, 110, 120};  // at -5, 15 and 35 m
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(reading.shots[i].data.traces[0].source.z, kElevations[i]) << i;
  }
  expectTold(reading, "elevations of geophones alone");
}

TEST(StandardSegyShots, takesNoElevationsThatNoGroundHas) {
  const StandardReading reading =
      read(fileOf({{{81, 4, 5}, {41, 4, 100}}, {{81, 4, 10}, {41, 4, 5152390}}}));
  EXPECT_EQ(tracesOf(reading)[0].receiver.z, 0.0);
  EXPECT_EQ(tracesOf(reading)[1].receiver.z, 0.0);
  expectTold(reading, "of trace 2 lie beyond all ground");
}

TEST(StandardSegyShots, placesGeophonesByOffsetsWhereCoordinatesDoNot) {
  const struct {
    const char* what;
    std::vector<Fields> traces;
    std::vector<double> receivers;
    const char* told;
  } kCases[] = {{"no coordinates", {{{37, 4, -5}}, {{37, 4, 5}}}, {-5, 5}, "by their offsets"},
                {"one for all",
                 {{{73, 4, 7}, {81, 4, 7}, {37, 4, 5}}, {{73, 4, 7}, {81, 4, 7}, {37, 4, 9}}},
                 {12, 16},
                 "by their offsets"},
                {"coordinates that tell",
                 {{{81, 4, 1}, {37, 4, 50}}, {{81, 4, 2}, {37, 4, 60}}},
                 {1, 2},
                 nullptr},
                {"shots along the line into one geophone",
                 {{{9, 4, 1}, {73, 4, 1}, {37, 4, 8}, {81, 4, 9}},
                  {{9, 4, 2}, {73, 4, 3}, {37, 4, 6}, {81, 4, 9}}},
                 {9},
                 "put the geophones of all traces at 9 m"},
                {"nothing", {{}, {}}, {0, 0}, "tell no positions"}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.what);
    const StandardReading reading = read(fileOf(row.traces));
    EXPECT_EQ(receiversOf(reading), row.receivers);
    expectTold(reading, row.told);
  }
}

TEST(StandardSegyShots, measuresALineOnTheMapFromItsFirstGeophone) {
  // 3-4-5: geophones every 5 m to the north-east, the shot 5 m before the first and 2.5 m beside.
  std::vector<Fields> traces;
  for (int i = 0; i < 3; ++i) {
    traces.push_back({{71, 2, -10},
                      {73, 4, 4999990},
                      {77, 4, 60000000 - 25},
                      {81, 4, 5000000 + 30 * i},
                      {85, 4, 60000000 + 40 * i}});
  }
  const StandardReading reading = read(fileOf(traces));
  EXPECT_THAT(receiversOf(reading), ElementsAre(0, 5, 10));
  EXPECT_THAT(tracesOf(reading)[0].source.x, DoubleNear(-2.6, 0.0005));
  EXPECT_THAT(warningsOf(reading),
              ElementsAre(AllOf(HasSubstr("x 500000, y 6000000"), HasSubstr("shots up to 0.7 m"))));
}

TEST(StandardSegyShots, keepsXWhereTheGeophonesShareTheirY) {
  const StandardReading reading =
      read(fileOf({{{73, 4, 500}, {77, 4, 43}, {81, 4, 510}, {85, 4, 40}},
                   {{73, 4, 500}, {77, 4, 43}, {81, 4, 520}, {85, 4, 40}}}));
  EXPECT_THAT(receiversOf(reading), ElementsAre(510, 520));
  EXPECT_EQ(tracesOf(reading)[0].source.x, 500.0);
  expectTold(reading, "up to 3 m beside the line");
}

TEST(StandardSegyShots, warnsOfCoordinatesThatAreNoMetres) {
  for (const int unit : {2, 3, 4}) {
    const StandardReading reading = read(fileOf(
        {{{81, 4, 30}, {85, 4, 5}, {89, 2, unit}}, {{81, 4, 31}, {85, 4, 6}, {89, 2, unit}}}));
    EXPECT_THAT(receiversOf(reading), ElementsAre(30, 31));
    expectTold(reading, "no metres");
  }
}

TEST(StandardSegyShots, warnsOfALineOfHundredsOfKilometres) {
  expectTold(read(fileOf({{{81, 4, 0}}, {{81, 4, 950000}}})), "along 950000 m");
}

TEST(StandardSegyShots, countsTimeFromTheShot) {
  // Four samples of 0.25 ms.
  const struct {
    const char* what;
    Fields fields;
    double delay;
    std::vector<double> samples;
    const char* told;
  } kCases[] = {
      {"before", {{109, 2, -100}}, -0.1, {1, 2, 3, 4}, nullptr},
      {"a sample after", {{109, 2, 25}, {215, 2, -100}}, 0.0, {0, 1, 2, 3, 4}, "after the shot"},
      {"after", {{109, 2, 1}}, 0.0, {0, 0, 0, 0, 1, 2, 3, 4}, "begins after the shot"},
      {"too long after", {{109, 2, 2}}, 0.0, {1, 2, 3, 4}, "not applied"},
      {"divided", {{109, 2, -100}, {215, 2, -10}}, -0.01, {1, 2, 3, 4}, nullptr},
      {"multiplied", {{109, 2, -100}, {215, 2, 10}}, -1.0, {1, 2, 3, 4}, nullptr},
      {"an unknown scalar", {{109, 2, -100}, {215, 2, 20}}, -0.1, {1, 2, 3, 4}, "time scalar"},
      {"an unknown scalar of nothing", {{215, 2, 20}}, 0.0, {1, 2, 3, 4}, nullptr}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.what);
    Fields fields = row.fields;
    fields.push_back({81, 4, 5});
    const StandardReading reading = read(fileOf({fields}));
    EXPECT_DOUBLE_EQ(tracesOf(reading)[0].delay, row.delay);
    EXPECT_EQ(tracesOf(reading)[0].samples, row.samples);
    EXPECT_EQ(tracesOf(reading)[0].samples.capacity(), row.samples.size());
    expectTold(reading, row.told);
  }
}

TEST(StandardSegyShots, knowsTimeScalarsFromRevisionOneOnOnly) {
  const StandardSegy file = fileOf({{{81, 4, 5}, {109, 2, -100}, {215, 2, -10}}});
  StandardSegy old = file;
  old.revision = 0;
  EXPECT_DOUBLE_EQ(tracesOf(read(file))[0].delay, -0.01);
  EXPECT_DOUBLE_EQ(tracesOf(read(old))[0].delay, -0.1);
  StandardReading su;
  ASSERT_TRUE(readSuByStandard(standardSuBytes(file), su).ok());
  EXPECT_DOUBLE_EQ(tracesOf(su)[0].delay, -0.1);
}

TEST(StandardSegyShots, leavesOutWhatNoGeophoneRecorded) {
  for (const int kind : {4, 5, 6, 7, 8, 9, 22}) {
    const StandardReading reading =
        read(fileOf({{{81, 4, 10}}, {{29, 2, kind}, {81, 4, 77}}, {{81, 4, 20}}}));
    EXPECT_THAT(receiversOf(reading), ElementsAre(10, 20)) << kind;
    expectTold(reading, "the samples of trace 2 were left out");
  }
}

TEST(StandardSegyShots, keepsDeadTracesAsZeros) {
  for (const int kind : {2, 3}) {
    const StandardReading reading = read(fileOf({{{81, 4, 10}}, {{29, 2, kind}, {81, 4, 20}}}));
    EXPECT_THAT(receiversOf(reading), ElementsAre(10, 20));
    EXPECT_THAT(tracesOf(reading)[1].samples, ElementsAre(0, 0, 0, 0));
    expectTold(reading, "zeros stand for the samples of trace 2");
  }
}

TEST(StandardSegyShots, doesNotBelieveThatAllTracesAreDead) {
  const StandardReading reading =
      read(fileOf({{{29, 2, 2}, {81, 4, 10}}, {{29, 2, 6}, {81, 4, 20}}}));
  EXPECT_THAT(receiversOf(reading), ElementsAre(10, 20));
  EXPECT_THAT(tracesOf(reading)[0].samples, ElementsAre(1, 2, 3, 4));
  expectTold(reading, "not believed");
}

TEST(StandardSegyShots, splitsAFileOfManyRecordsAndNamesThem) {
  std::vector<Fields> traces;
  for (int shot = 0; shot < 3; ++shot) {
    traces.push_back({{9, 4, 12 + shot}, {29, 2, 4}});
    for (int i = 0; i < 2; ++i) {
      traces.push_back({{9, 4, 12 + shot}, {13, 4, i + 1}, {73, 4, 10 * shot}, {81, 4, 5 * i}});
    }
  }
  const StandardReading reading = read(fileOf(traces));
  ASSERT_EQ(reading.shots.size(), 3u);
  EXPECT_EQ(reading.split.english(), "field record (bytes 9 to 12)");
  EXPECT_EQ(reading.shots[0].name, "FFID 12");
  EXPECT_EQ(reading.shots[2].name, "FFID 14");
  for (const StandardReading::Shot& shot : reading.shots) {
    EXPECT_EQ(shot.data.format, "segy");
    EXPECT_EQ(shot.data.traces.size(), 2u);
  }
  EXPECT_EQ(reading.shots[2].data.traces[1].source.x, 20.0);
  expectTold(reading, "left out");
}

TEST(StandardSegyShots, splitsByWhatIsConsistent) {
  // Field record, source point, trace in record, source x.
  using Keys = std::vector<SplitKey>;
  const struct {
    const char* what;
    Keys traces;
    std::vector<std::size_t> sizes;
    std::string second;  ///< name of the second part
    bool doubtful;
  } kCases[] = {
      {"one shot", {{4, 4, 1, 5}, {4, 4, 2, 5}, {4, 4, 3, 5}}, {3}, "", false},
      {"field records",
       {{7, 1, 1, 5}, {7, 1, 2, 5}, {8, 1, 1, 9}, {8, 1, 2, 9}},
       {2, 2},
       "FFID 8",
       false},
      {"field records of one place",
       {{7, 1, 1, 5}, {7, 1, 2, 5}, {8, 1, 1, 5}, {8, 1, 2, 5}},
       {2, 2},
       "FFID 8",
       false},
      {"a last record cut short",
       {{7, 1, 1, 5}, {7, 1, 2, 5}, {8, 1, 1, 9}},
       {2, 1},
       "FFID 8",
       false},
      {"records that number traces, but points do not",
       {{1, 1, 1, 5}, {2, 1, 2, 5}, {3, 2, 1, 9}, {4, 2, 2, 9}},
       {2, 2},
       "shot point 2",
       false},
      {"sources alone",
       {{1, 0, 1, 5}, {1, 0, 2, 5}, {1, 0, 1, 9}, {1, 0, 2, 9}},
       {2, 2},
       "source 2",
       false},
      {"trace numbers alone",
       {{0, 0, 1, 0}, {0, 0, 2, 0}, {0, 0, 1, 0}, {0, 0, 2, 0}},
       {2, 2},
       "record 2",
       false},
      {"records of one trace from several places",
       {{1, 1, 1, 5}, {2, 2, 1, 7}, {3, 3, 1, 9}},
       {1, 1, 1},
       "FFID 2",
       false},
      {"records that count the traces of one shot",
       {{1, 1, 1, 5}, {2, 1, 2, 5}, {3, 1, 3, 5}},
       {3},
       "",
       true},
      {"by midpoint", {{7, 1, 1, 5}, {8, 2, 2, 9}, {7, 1, 2, 5}, {8, 2, 3, 9}}, {4}, "", true},
      {"sources that move within a record",
       {{7, 1, 1, 5}, {7, 1, 2, 6}, {8, 1, 3, 7}, {8, 1, 4, 8}},
       {4},
       "",
       true},
      {"channels that fall", {{4, 4, 3, 5}, {4, 4, 2, 5}, {4, 4, 1, 5}}, {3}, "", false},
      {"a single trace", {{4, 4, 1, 5}}, {1}, "", false}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.what);
    const ShotSplit split = splitShots(row.traces, false);
    std::vector<std::size_t> sizes;
    std::size_t next = 0;
    for (const ShotSplit::Part& part : split.parts) {
      EXPECT_EQ(part.first, next);
      next += part.count;
      sizes.push_back(part.count);
    }
    EXPECT_EQ(sizes, row.sizes);
    EXPECT_EQ(split.doubtful, row.doubtful);
    EXPECT_EQ(split.by.empty(), row.sizes.size() == 1);
    if (row.sizes.size() > 1) {
      EXPECT_EQ(split.parts[1].name, row.second);
    } else {
      EXPECT_EQ(split.parts[0].name, "");
    }
  }
}

TEST(StandardSegyShots, takesNoStackedSectionForShots) {
  StandardSegy file;
  for (int i = 0; i < 4; ++i) {
    file.traces.push_back({{1, 2}, {{9, 4, 100 + i}, {73, 4, 25 * i}, {81, 4, 25 * i}}, {}});
  }
  EXPECT_EQ(read(file).shots.size(), 4u);
  file.fields = {{3229, 2, 4}};
  const StandardReading reading = read(file);
  EXPECT_EQ(reading.shots.size(), 1u);
  EXPECT_THAT(warningsOf(reading), Contains(HasSubstr("taken as one shot")));
}

}  // namespace
}  // namespace talvesk
