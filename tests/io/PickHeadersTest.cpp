#include "io/PickHeaders.h"
#include "io/PickedCopies.h"
#include "io/ShotFileFields.h"
#include "io/ShotLoader.h"
#include "io/standard/StandardReader.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "support/ConsoleCapture.h"
#include "support/StandardFiles.h"
#include "support/StandardSegyFiles.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Three traces, whose strings say more than this program reads, and an uneven length of headers.
std::string seg2File(ByteOrder order = ByteOrder::kLittle, int shots = 1) {
  Seg2Fixture file;
  file.order = order;
  for (int t = 0; t < 3; ++t) {
    Seg2Fixture::Channel channel;
    channel.samples = {1.5 + t, -2.0, 3.0, 4.0 * t, 5.0};
    channel.strings = {"SAMPLE_INTERVAL 0.001",
                       "DELAY -0.002",
                       "OPERATOR X" + std::string(t, 'Y'),
                       "SHOT_SEQUENCE_NUMBER " + std::to_string(shots > 1 ? t / 2 : 7),
                       "SOURCE_LOCATION 0 0 0",
                       "RECEIVER_LOCATION " + std::to_string(5 * t) + " 0 0",
                       "NOTE FIRST_BREAK 9"};
    file.channels.push_back(channel);
  }
  return seg2Bytes(file);
}

/// Samples of all traces, as the standard has them.
std::vector<std::vector<double>> samplesOf(const std::string& bytes, const std::string& name) {
  const ConsoleCapture console;
  StandardReading reading;
  const Status status = parseByStandard(bytes, name, reading);
  EXPECT_TRUE(status.ok()) << status.message();
  std::vector<std::vector<double>> all;
  for (const auto& shot : reading.shots) {
    for (const ShotRecord& trace : shot.data.traces) {
      all.emplace_back(trace.samples.begin(), trace.samples.end());
    }
  }
  return all;
}

TEST(PickHeaders, ofSeg2AreStringsThatLeaveAllElseAsItWas) {
  for (const ByteOrder order : {ByteOrder::kLittle, ByteOrder::kBig}) {
    const std::string before = seg2File(order);
    std::string bytes = before;
    ASSERT_TRUE(putPicksIntoSeg2(bytes, {0.0125, std::nullopt, 0.5}).ok());
    EXPECT_THAT(bytes, HasSubstr(std::string("FIRST_BREAK 0.012500\0", 21)));
    EXPECT_THAT(bytes, HasSubstr(std::string("FIRST_BREAK 0.500000\0", 21)));
    EXPECT_THAT(bytes, HasSubstr("NOTE FIRST_BREAK 9")) << "somebody's note is no pick";
    EXPECT_EQ(samplesOf(bytes, "a.sg2"), samplesOf(before, "a.sg2"));

    // Other picks take the place of these, and none at all leave nothing but filling.
    std::string again = bytes;
    ASSERT_TRUE(putPicksIntoSeg2(again, {0.0125, std::nullopt, 0.5}).ok());
    EXPECT_EQ(again, bytes);
    ASSERT_TRUE(putPicksIntoSeg2(again, {std::nullopt, 0.25, std::nullopt}).ok());
    EXPECT_THAT(again, HasSubstr(std::string("FIRST_BREAK 0.250000\0", 21)));
    EXPECT_THAT(again, ::testing::Not(HasSubstr("FIRST_BREAK 0.5")));
    EXPECT_EQ(samplesOf(again, "a.sg2"), samplesOf(before, "a.sg2"));
  }
}

TEST(PickHeaders, ofSeg2AreRefusedWhereTheFileCannotBeFollowed) {
  const std::string good = seg2File();
  const HeaderPicks picks(3, 0.01);
  std::string length = good;
  length.replace(good.find("SAMPLE_INTERVAL") - 2, 2, "\xFF\x7F");
  std::string pointer = good;
  pointer.replace(32, 4, pointer.substr(36, 4));
  std::string outside = good;
  outside.replace(40, 4, "\xF0\xFF\xFF\x7F");
  std::string size = good;
  size.replace(good.find("\x22\x44") + 2, 2, "\x08\0", 2);
  for (const std::string& bad :
       {length, pointer, outside, size, good.substr(0, 40), good.substr(0, 2), std::string(),
        std::string("text, and more of it than a header has, so that all can be read")}) {
    std::string bytes = bad;
    EXPECT_FALSE(putPicksIntoSeg2(bytes, picks).ok());
    EXPECT_EQ(bytes, bad);
  }
  std::string bytes = good;
  EXPECT_THAT(putPicksIntoSeg2(bytes, HeaderPicks(2)).message(), HasSubstr("3 traces"));
}

TEST(PickHeaders, ofSegyAndSuAreFourBytesOfEveryTrace) {
  for (const ByteOrder order : {ByteOrder::kBig, ByteOrder::kLittle}) {
    for (const SegyKind kind : {SegyKind::kSegy, SegyKind::kSu}) {
      SegyFixture file;
      file.order = order;
      file.channels = {{{1, 2, 3}, 0, 5}, {{4, 5, 6}, 0, 10}, {{7, 8, 9}, 0, 15}};
      const std::string before = kind == SegyKind::kSu ? suBytes(file) : segyBytes(file);
      const std::size_t first = kind == SegyKind::kSu ? 0 : 3600;
      std::string expected = before;
      putInteger(expected, first + 232, 12346, 4, order);
      putInteger(expected, first + 2 * 252 + 232, -2000, 4, order);
      std::string bytes = before;
      std::size_t replaced = 0;
      const Status status =
          putPicksIntoSegy(bytes, kind, {0.0123456, std::nullopt, -0.002}, replaced);
      ASSERT_TRUE(status.ok()) << status.message();
      EXPECT_EQ(bytes, expected);
      EXPECT_EQ(replaced, 0U);
      ASSERT_TRUE(putPicksIntoSegy(bytes, kind, {0.0123456, 0.5, std::nullopt}, replaced).ok());
      EXPECT_EQ(replaced, 1U) << "an older pick was taken away";
    }
  }
}

TEST(PickHeaders, ofSegyAreRefusedWithReason) {
  SegyFixture file;
  file.channels = {{{1, 2, 3}, 0, 5}};
  const std::string good = segyBytes(file);
  std::string revision2 = good;
  revision2[3500] = 2;
  std::size_t replaced = 0;
  const auto refusal = [&](std::string bytes, const HeaderPicks& picks) {
    const std::string before = bytes;
    const Status status = putPicksIntoSegy(bytes, SegyKind::kSegy, picks, replaced);
    EXPECT_EQ(bytes, before);
    return status.message();
  };
  EXPECT_THAT(refusal(revision2, {0.1}), HasSubstr("revision 2"));
  EXPECT_THAT(refusal(good, {0.1, 0.2}), HasSubstr("1 traces"));
  EXPECT_THAT(refusal(good, {1e6}), HasSubstr("no room"));
  EXPECT_THAT(refusal(good.substr(0, 100), {0.1}), HasSubstr("too short"));
}

class Copies : public ::testing::Test {
 protected:
  void load(const std::vector<std::string>& files, ShotReader reader) {
    const ConsoleCapture console;
    ShotLoader loader;
    for (const ShotFileOutcome& outcome : loader.load(files, document, reader)) {
      ASSERT_TRUE(outcome.status.ok()) << outcome.status.message();
    }
  }
  void pick(std::size_t shot, const std::vector<double>& times) {
    document.ttArray.edit()[shot].ttMisurati.edit() = times;
  }
  std::string target(const std::string& name) const { return out.file(name); }

  TestFolder in;
  TestFolder out;
  TomoDocument document;
  std::vector<Message> notes;
};

TEST_F(Copies, haveThePicksOfTheirShotsAndTheSourcesStayAsTheyWere) {
  SegyFixture segy;
  segy.channels = {{{1, 2, 3}, 0, 5}, {{4, 5, 6}, 0, 10}};
  load({in.put("a.sg2", seg2File()), in.put("b.sgy", segyBytes(segy))}, ShotReader::kRules);
  pick(0, {0.02, kNoTime, 0.03});
  pick(1, {kUnpicked, 0.0015});
  ASSERT_TRUE(writePickedCopies(document, out.path(), notes).ok());
  EXPECT_THAT(notes, IsEmpty());
  EXPECT_THAT(pickedCopies(document, out.path()), ElementsAre(target("a.sg2"), target("b.sgy")));
  EXPECT_EQ(out.entries(), 2);
  // The record began 2 ms before the shot, and its time counts from its first sample.
  EXPECT_THAT(TestFolder::get(target("a.sg2")), HasSubstr("FIRST_BREAK 0.018000"));
  EXPECT_THAT(TestFolder::get(target("a.sg2")), HasSubstr("FIRST_BREAK 0.028000"));
  EXPECT_EQ(TestFolder::get(target("b.sgy")).substr(3600 + 252 + 232, 4),
            integerBytes(1500, 4, ByteOrder::kBig));
  EXPECT_EQ(TestFolder::get(in.file("a.sg2")), seg2File());
  EXPECT_EQ(samplesOf(TestFolder::get(target("a.sg2")), "a.sg2"), samplesOf(seg2File(), "a.sg2"));
}

TEST_F(Copies, haveTimesAsTheyWereRecordedWhateverWasMended) {
  load({in.put("a.sg2", seg2File())}, ShotReader::kRules);
  pick(0, {0.003, 0.002, 0.0035});
  ShotMends mends;
  mends.orderReversed = true;
  mends.timeShift = 0.001;
  ASSERT_TRUE(setMends(0, mends, document).ok());
  ASSERT_EQ(document.ttArray[0].ttMisurati[0], 0.0035 - 0.001) << "at the other end";
  ASSERT_TRUE(writePickedCopies(document, out.path(), notes).ok());
  const std::string bytes = TestFolder::get(target("a.sg2"));
  const std::size_t first = bytes.find("FIRST_BREAK 0.001000");
  const std::size_t last = bytes.find("FIRST_BREAK 0.001500");
  ASSERT_NE(first, std::string::npos);
  ASSERT_NE(last, std::string::npos);
  EXPECT_LT(first, last) << "in the order of the channels";
}

TEST_F(Copies, keepRecordsOfOneFileApart) {
  StandardSegy segy;
  segy.traces.resize(4);
  for (std::size_t t = 0; t < 4; ++t) {
    segy.traces[t].samples = {1.0, 2.0, 3.0};
    segy.traces[t].fields = {{9, 4, t < 2 ? 1 : 2}, {13, 4, t % 2 == 0 ? 1 : 2}};
  }
  load({in.put("all.sgy", standardSegyBytes(segy))}, ShotReader::kStandard);
  ASSERT_EQ(document.ttArray.size(), 2U);
  pick(0, {0.0011, 0.0012});
  pick(1, {0.0013, 0.0014});
  document.ttArray.edit().erase(document.ttArray.edit().begin());  // a shot that was removed
  ASSERT_TRUE(writePickedCopies(document, out.path(), notes).ok());
  const std::string bytes = TestFolder::get(target("all.sgy"));
  const std::size_t trace = (bytes.size() - 3600) / 4;
  for (const auto& [t, time] : {std::pair(0, 0), {1, 0}, {2, 1300}, {3, 1400}}) {
    EXPECT_EQ(bytes.substr(3600 + t * trace + 232, 4), integerBytes(time, 4, segy.order)) << t;
  }
}

TEST_F(Copies, knowSuByItsContentWhateverItIsCalled) {
  StandardSegy su;
  su.traces.resize(2);
  for (std::size_t t = 0; t < 2; ++t) {
    su.traces[t].samples = {1.0, 2.0, 3.0};
    su.traces[t].fields = {{9, 4, 1}, {13, 4, static_cast<int>(t) + 1}};
  }
  load({in.put("line.first", standardSuBytes(su))}, ShotReader::kStandard);
  ASSERT_EQ(document.ttArray.size(), 1U);
  pick(0, {0.0011, kUnpicked});
  ASSERT_TRUE(writePickedCopies(document, out.path(), notes).ok());
  EXPECT_THAT(notes, IsEmpty());
  const std::string bytes = TestFolder::get(target("line.first"));
  EXPECT_EQ(bytes.substr(232, 4), integerBytes(1100, 4, su.order));
  // And the table of trace headers shows what stands there.
  ShotFileFields fields;
  ASSERT_TRUE(readShotFileFields(bytes, "line.first", fields).ok());
  ASSERT_EQ(fields.traces.size(), 2U);
  EXPECT_EQ(fields.traces[0].back().name, "bytes 233 to 236");
  EXPECT_EQ(fields.traces[0].back().value, "1100");
  EXPECT_EQ(fields.traces[1].back().value, "0");
}

TEST_F(Copies, areNeverWrittenOverTheFilesOfTheSurvey) {
  load({in.put("a.sg2", seg2File())}, ShotReader::kRules);
  pick(0, {0.02, 0.02, 0.03});
  for (const std::string& folder : {in.path(), in.path() + "/.", in.path() + "/"}) {
    EXPECT_THAT(writePickedCopies(document, folder, notes).message(),
                HasSubstr("choose another folder"));
  }
  EXPECT_EQ(TestFolder::get(in.file("a.sg2")), seg2File());
  QDir(QString::fromStdString(in.path())).mkdir(QStringLiteral("b"));
  load({in.put("b/a.sg2", seg2File())}, ShotReader::kRules);
  EXPECT_THAT(writePickedCopies(document, out.path(), notes).message(),
              HasSubstr("two shot files"));
  EXPECT_EQ(out.entries(), 0);
  EXPECT_FALSE(writePickedCopies(TomoDocument(), out.path(), notes).ok());
}

/// A project brings its recordings along, and does not know where they came from.
TEST_F(Copies, areNeverWrittenOverTheFilesThatAProjectWasMadeFrom) {
  SegyFixture segy;
  segy.channels = {{{1, 2, 3}, 0, 5}, {{4, 5, 6}, 0, 10}};
  load({in.put("a.sg2", seg2File()), in.put("b.sgy", segyBytes(segy))}, ShotReader::kRules);
  pick(0, {0.02, 0.02, 0.03});
  out.put("a.sg2", seg2File());
  EXPECT_THAT(writePickedCopies(document, out.path(), notes).message(),
              HasSubstr("choose another folder"));
  EXPECT_EQ(TestFolder::get(target("a.sg2")), seg2File());
  EXPECT_EQ(out.entries(), 1) << "nothing is written when one is in the way";
  // Copies that were made before may be made anew, with picks or without.
  QFile::remove(QString::fromStdString(target("a.sg2")));
  ASSERT_TRUE(writePickedCopies(document, out.path(), notes).ok());
  pick(0, {0.02, 0.02, 0.04});
  ASSERT_TRUE(writePickedCopies(document, out.path(), notes).ok());
  EXPECT_THAT(TestFolder::get(target("a.sg2")), HasSubstr("FIRST_BREAK 0.038000"));
  // Nor are copies in the way that were made when fewer shots had picks.
  pick(1, {kUnpicked, 0.0015});
  EXPECT_TRUE(writePickedCopies(document, out.path(), notes).ok());
  EXPECT_EQ(TestFolder::get(target("b.sgy")).substr(3600 + 252 + 232, 4),
            integerBytes(1500, 4, ByteOrder::kBig));
}

TEST_F(Copies, areOfFilesWithPicksAloneAndKeepNoOlderOnes) {
  load({in.put("a.sg2", seg2File()), in.put("b.sg2", seg2File())}, ShotReader::kRules);
  EXPECT_FALSE(writePickedCopies(document, out.path(), notes).ok()) << "none has any";
  notes.clear();
  pick(0, {0.02, 0.02, 0.03});
  ASSERT_TRUE(writePickedCopies(document, out.path(), notes).ok());
  EXPECT_EQ(out.entries(), 1);
  ASSERT_EQ(notes.size(), 1U);
  EXPECT_EQ(notes[0].english(), in.file("b.sg2") + " was left out: no picks yet");
  pick(0, {kUnpicked, kUnpicked, kUnpicked});
  pick(1, {0.02, 0.02, 0.03});
  notes.clear();
  ASSERT_TRUE(writePickedCopies(document, out.path(), notes).ok());
  EXPECT_THAT(TestFolder::get(target("a.sg2")), ::testing::Not(HasSubstr("FIRST_BREAK 0.0")));
  ASSERT_EQ(notes.size(), 1U);
  EXPECT_THAT(notes[0].english(), HasSubstr("a.sg2 has no picks"));
}

TEST_F(Copies, canBeStoppedBeforeEveryFileIsComparedAndWritten) {
  load({in.put("a.sg2", seg2File()), in.put("b.sg2", seg2File())}, ShotReader::kRules);
  pick(0, {0.02, 0.02, 0.03});
  pick(1, {0.02, 0.02, 0.03});
  for (std::size_t last = 0; last < 4; ++last) {
    std::vector<std::size_t> steps;
    const Status status = writePickedCopies(document, out.path(), notes, [&](std::size_t step) {
      steps.push_back(step);
      return step < last;
    });
    EXPECT_THAT(status.message(), HasSubstr("it was stopped"));
    ASSERT_EQ(steps.size(), last + 1) << "each step is another, for windows live by them";
    for (std::size_t i = 0; i < steps.size(); ++i) EXPECT_EQ(steps[i], i);
    EXPECT_EQ(out.entries(), last < 3 ? 0 : 1) << last;
  }
}

TEST_F(Copies, leaveOutAndNameWhatCannotTakePicks) {
  load({in.put("mixed.sg2", seg2File(ByteOrder::kLittle, 2))}, ShotReader::kStandard);
  const std::size_t shots = document.ttArray.size();
  ASSERT_EQ(shots, 2U);
  load({in.put("good.sg2", seg2File()), in.put("gone.sg2", seg2File())}, ShotReader::kRules);
  QFile::remove(QString::fromStdString(in.file("gone.sg2")));
  pick(shots, {0.02, 0.02, 0.03});
  ASSERT_TRUE(writePickedCopies(document, out.path(), notes).ok());
  EXPECT_EQ(out.entries(), 1);
  std::string told;
  for (const Message& note : notes) told += note.english() + "\n";
  EXPECT_THAT(told, HasSubstr("mixed.sg2 was left out: it holds several shots"));
  EXPECT_THAT(told, HasSubstr("gone.sg2 was left out"));
}

}  // namespace
}  // namespace talvesk
