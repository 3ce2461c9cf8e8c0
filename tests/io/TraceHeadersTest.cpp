#include "base/AtomicFile.h"
#include "io/Seg2Writer.h"
#include "io/SegyWriter.h"
#include "io/ShotLoader.h"
#include "io/TraceHeaders.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"
#include "support/ShotDocument.h"
#include "support/ShotFiles.h"
#include "support/TestFolder.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

std::size_t columnOf(const TraceHeaders& headers, const std::string& name) {
  const auto& columns = headers.columns();
  const auto found = std::find_if(columns.begin(), columns.end(),
                                  [&](const HeaderColumn& column) { return column.name == name; });
  EXPECT_NE(found, columns.end()) << name;
  return static_cast<std::size_t>(found - columns.begin());
}

double numberAt(const TraceHeaders& headers, std::size_t row, const std::string& name) {
  return headers.number(row, columnOf(headers, name));
}

std::string textAt(const TraceHeaders& headers, std::size_t row, const std::string& name) {
  std::string text;
  for (const Message& word : headers.words(row, columnOf(headers, name))) {
    text += (text.empty() ? "" : "; ") + word.english();
  }
  return text;
}

WrittenShot writtenShot() {
  WrittenShot shot;
  shot.source = {-1.5, 100.25};
  shot.receivers = {{0.0, 100.0}, {5.0, 101.5}};
  shot.traces = {{1.0F, 2.0F, 3.0F, 0.0F}, {4.0F, 5.0F, 6.0F, 0.0F}};
  shot.sampleInterval = 0.0005;
  shot.delay = -0.01;
  return shot;
}

TomoDocument loaded(const std::vector<std::string>& files) {
  const ConsoleCapture console;
  TomoDocument document;
  ShotLoader loader;
  for (const ShotFileOutcome& outcome : loader.load(files, document)) {
    EXPECT_TRUE(outcome.status.ok()) << outcome.status.message();
  }
  return document;
}

TEST(TraceHeaders, haveARowForEveryTraceInTheOrderOfShots) {
  const TraceHeaders headers(shotDocument(3, 4, 10));
  EXPECT_EQ(headers.rows(), 12U);
  EXPECT_EQ(headers.setOf(0), 0U);
  EXPECT_EQ(headers.setOf(11), 2U);
  EXPECT_EQ(headers.traceOf(7), 3U);
  EXPECT_EQ(headers.rowOf(1, 2), 6U);
  EXPECT_EQ(headers.rowOf(1, 4), headers.rows());
  EXPECT_EQ(headers.rowOf(3, 0), headers.rows());
  EXPECT_EQ(TraceHeaders().rows(), 0U);
}

TEST(TraceHeaders, tellTheSurveyBesideWhatTheFileSays) {
  TomoDocument document = shotDocument(2, 3, 20);
  document.line.edit().goephonesStringSet[0][1] = {13.5, 2.0};
  document.ttArray.edit()[1].setError(1, 0.0005);
  document.ttArray.edit()[1].ttMisurati.edit()[2] = kNoTime;
  const TraceHeaders headers(std::move(document));
  const std::size_t row = headers.rowOf(1, 1);
  const std::pair<const char*, double> known[] = {{"shot", 2.0},
                                                  {"trace", 2.0},
                                                  {"shot_x_m", 13.0},
                                                  {"geophone_x_m", 13.5},
                                                  {"geophone_elevation_m", 2.0},
                                                  {"offset_m", 0.5},
                                                  {"receiver_x_in_file_m", 12.0},
                                                  {"pick_ms", 12.0},
                                                  {"pick_error_ms", 0.5},
                                                  {"sample_interval_ms", 0.25},
                                                  {"samples", 20.0},
                                                  {"length_ms", 5.0}};
  for (const auto& [name, value] : known) {
    EXPECT_DOUBLE_EQ(numberAt(headers, row, name), value) << name;
  }
  EXPECT_EQ(textAt(headers, row, "file"), "2.dat");
  EXPECT_TRUE(std::isnan(numberAt(headers, row + 1, "pick_ms")));
  EXPECT_TRUE(std::isnan(numberAt(headers, row + 1, "pick_error_ms")));
}

/// Records of a project may stand in another order than its recordings.
TEST(TraceHeaders, takeTheRecordThatIsOfTheRecording) {
  TomoDocument document = shotDocument(3, 2, 20);
  std::vector<TravelTime>& records = document.ttArray.edit();
  std::swap(records[0], records[2]);
  records[1].traceSetID = 7;
  const TraceHeaders headers(std::move(document));
  EXPECT_EQ(numberAt(headers, 0, "shot"), 3.0);
  EXPECT_EQ(numberAt(headers, 0, "shot_x_m"), 9.0);
  EXPECT_EQ(textAt(headers, 0, "file"), "1.dat");
  EXPECT_EQ(numberAt(headers, 4, "shot"), 1.0);
  EXPECT_EQ(numberAt(headers, 4, "shot_x_m"), 17.0);
  EXPECT_TRUE(std::isnan(numberAt(headers, 2, "shot_x_m"))) << "a recording without a record";
  EXPECT_TRUE(std::isnan(numberAt(headers, 2, "shot"))) << "the number is another one's";
  EXPECT_TRUE(std::isnan(numberAt(headers, 2, "pick_ms")));
}

TEST(TraceHeaders, nameTheMendsOfATrace) {
  TomoDocument document = shotDocument(1, 3, 200);
  ShotMends mends;
  mends.traces.resize(2);
  mends.traces[0].reversed = true;
  mends.traces[0].gain = 2.5;
  mends.traces[1].killed = true;
  ASSERT_TRUE(setMends(0, mends, document).ok());
  const TraceHeaders headers(std::move(document));
  EXPECT_EQ(textAt(headers, 0, "mends"), "polarity reversed; gain 2.5");
  EXPECT_EQ(textAt(headers, 1, "mends"), "killed");
  EXPECT_EQ(textAt(headers, 2, "mends"), "");
}

TEST(TraceHeaders, ofFilesAreReadOnDemandWhateverTheReadersUse) {
  const TestFolder folder;
  const std::string seg2 = folder.file("a.sg2");
  const std::string segy = folder.file("b.sgy");
  ASSERT_TRUE(writeFileAtomically(seg2, formatSeg2(writtenShot())).ok());
  ASSERT_TRUE(writeFileAtomically(segy, formatSegy({writtenShot()})).ok());
  TraceHeaders headers(loaded({seg2, segy}));
  const std::size_t before = headers.columns().size();
  std::vector<Message> notes;
  headers.addFieldsOfFiles(notes);
  EXPECT_THAT(notes, IsEmpty());
  EXPECT_GT(headers.columns().size(), before);
  EXPECT_THAT(textAt(headers, 1, "RECEIVER_LOCATION"), StartsWith("5"));
  EXPECT_EQ(textAt(headers, 1, "samples in trace"), "");
  EXPECT_EQ(textAt(headers, 2, "RECEIVER_LOCATION"), "");
  EXPECT_EQ(textAt(headers, 3, "trace in field record"), "2");
  EXPECT_EQ(textAt(headers, 3, "samples in trace"), "4");
}

TEST(TraceHeaders, sayWhichFilesHaveNoFields) {
  const TestFolder folder;
  const std::string file = folder.file("a.sg2");
  ASSERT_TRUE(writeFileAtomically(file, formatSeg2(writtenShot())).ok());
  TomoDocument document = loaded({file});
  document.recordings.edit().traceSets[0].pop_back();
  TraceHeaders cut(document);
  std::vector<Message> notes;
  cut.addFieldsOfFiles(notes);
  EXPECT_THAT(notes, ElementsAre(Message("shot 1: its file has 2 traces, the shot 1")));
  EXPECT_EQ(cut.columns().size(), TraceHeaders().columns().size());
  document.recordings.edit().filenames[0] = folder.file("gone.sg2");
  notes.clear();
  TraceHeaders(document).addFieldsOfFiles(notes);
  ASSERT_EQ(notes.size(), 1U);
  EXPECT_THAT(notes[0].english(), HasSubstr("gone.sg2"));
}

TEST(TraceHeaders, sayWhichFieldsTheyHaveNoRoomFor) {
  const TestFolder folder;
  std::vector<Seg2Channel> channels;
  for (int trace = 0; trace < 3; ++trace) {
    std::vector<std::string> strings = {"SAMPLE_INTERVAL 0.001"};
    for (int i = 0; i < 200; ++i) strings.push_back("F" + std::to_string(1000 * trace + i) + " 1");
    channels.push_back({4, {1, 2, 3}, seg2Area(strings)});
  }
  const std::string file = folder.put("many.sg2", seg2Bytes(channels));
  TraceHeaders headers(loaded({file}));
  const std::size_t known = headers.columns().size();
  EXPECT_TRUE(headers.fieldsLeftOut().empty());
  std::vector<Message> notes;
  headers.addFieldsOfFiles(notes);
  EXPECT_EQ(headers.columns().size(), known + 400);
  EXPECT_EQ(headers.fieldsLeftOut().english(),
            "201 fields that there is no room for, among them F1199");
  TraceHeaders other;
  other.takeFieldsOfFiles(headers);
  EXPECT_FALSE(other.fieldsLeftOut().empty());
}

TEST(TraceHeaders, areWrittenByTheCLocaleWithQuotedFields) {
  const CommaStreams streams;
  const CommaNumbers numbers;
  const TestFolder folder;
  TomoDocument document = shotDocument(1, 2, 8);
  document.recordings.edit().filenames[0] = "line, \"north\".dat";
  const std::string path = folder.file("headers.csv");
  ASSERT_TRUE(writeTraceHeaders(path, TraceHeaders(document)).ok());
  std::string text;
  ASSERT_TRUE(readWholeFile(path, text).ok());
  EXPECT_THAT(text, StartsWith("shot,trace,file,record,shot_x_m,"));
  EXPECT_THAT(text, HasSubstr("\n1,2,\"line, \"\"north\"\".dat\",,9,0,12,0,3,12,,0.25,8,2,"));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 3);
}

TEST(ShotFileFields, ofBrokenFilesAreNoneOrShort) {
  const std::string good = formatSeg2(writtenShot());
  ShotFileFields whole;
  ASSERT_TRUE(readShotFileFields(good, "a.sg2", whole).ok());
  ASSERT_EQ(whole.traces.size(), 2U);
  for (std::size_t size = 0; size < good.size(); ++size) {
    ShotFileFields fields;
    const Status status =
        readShotFileFields(std::string_view(good).substr(0, size), "a.sg2", fields);
    EXPECT_EQ(status.ok(), size >= 2) << size;
    EXPECT_LE(fields.traces.size(), 2U);
  }
  ShotFileFields none;
  EXPECT_FALSE(readShotFileFields("no shot at all", "a.txt", none).ok());
  EXPECT_FALSE(readShotFileFields("", "a.su", none).ok());
}

TEST(ShotFileFields, sayWhatTheyLeaveOutAndCut) {
  std::vector<std::string> strings = {"NOTE " + std::string(300, 'x')};
  for (int i = 0; i < 260; ++i) strings.push_back("F" + std::to_string(1000 + i) + " 1");
  ShotFileFields fields;
  const std::string bytes = seg2Bytes({Seg2Channel{4, {1, 2, 3}, seg2Area(strings)}});
  ASSERT_TRUE(readShotFileFields(bytes, "a.sg2", fields).ok());
  EXPECT_EQ(fields.traces[0].size(), 256U);
  EXPECT_THAT(fields.leftOut, ElementsAre("F1255", "F1256", "F1257", "F1258", "F1259"));
  EXPECT_EQ(fields.traces[0][0].value, std::string(197, 'x') + "\xE2\x80\xA6");
}

TEST(ShotFileFields, keepNamesOfWhatIsLeftOutWithinBounds) {
  std::vector<std::string> strings;
  for (int i = 0; i < 1500; ++i) strings.push_back("F" + std::to_string(10000 + i) + " 1");
  ShotFileFields fields;
  const std::string bytes = seg2Bytes({Seg2Channel{4, {1, 2, 3}, seg2Area(strings)}});
  ASSERT_TRUE(readShotFileFields(bytes, "a.sg2", fields).ok());
  EXPECT_EQ(fields.leftOut.size(), kMostLeftOut);
}

TEST(ShotFileFields, takeNoSamplesForFieldsOfTheFile) {
  std::string bytes = formatSeg2(writtenShot());
  ShotFileFields whole;
  ASSERT_TRUE(readShotFileFields(bytes, "a.sg2", whole).ok());
  for (std::size_t at = 32; (at = bytes.find("\x22\x44", at)) != std::string::npos; ++at) {
    bytes[at] = bytes[at + 1] = '\0';
  }
  ShotFileFields broken;
  ASSERT_TRUE(readShotFileFields(bytes, "a.sg2", broken).ok());
  EXPECT_EQ(broken.common.size(), whole.common.size()) << "traces without their mark are traces";
}

TEST(ShotFileFields, areOneLineOfPrintableTextEach) {
  std::string bytes = formatSeg2(writtenShot());
  const std::size_t at = bytes.find("RECEIVER_LOCATION");
  ASSERT_NE(at, std::string::npos);
  bytes.replace(at, 17,
                "NOTE \xFC"
                "b\x1B[2Jer\t!!!!");
  ShotFileFields fields;
  ASSERT_TRUE(readShotFileFields(bytes, "a.sg2", fields).ok());
  bool seen = false;
  for (const FileField& field : fields.traces[0]) {
    for (const char c : field.name + field.value) EXPECT_GE(static_cast<unsigned char>(c), ' ');
    seen = seen || field.value.find(
                       "\xC3\xBC"
                       "b") != std::string::npos;
  }
  EXPECT_TRUE(seen);
}

}  // namespace
}  // namespace talvesk
