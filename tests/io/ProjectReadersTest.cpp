#include "model/Recordings.h"
#include "support/TestProjects.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Key;
using ::testing::Not;

/// Three shot files by the program's rules and one of two shots by the standard.
class ProjectReaders : public ProjectTest {
 protected:
  void SetUp() override {
    std::vector<Seg2Channel> channels;
    for (int i = 0; i < 12; ++i) {
      const std::string place = std::to_string(5 * (i % 6));
      channels.push_back(
          {4,
           {1, -2, static_cast<float>(i), 4, 5},
           seg2Area({"RECEIVER_LOCATION " + place + " 100", "SAMPLE_INTERVAL 0.001",
                     "SOURCE_LOCATION " + std::to_string(i < 6 ? 3 : 22) + " 100"})});
    }
    line = folder.put("line.dat", seg2Bytes(channels));
    const auto outcomes = ShotLoader().load({line}, project.document, ShotReader::kStandard);
    ASSERT_TRUE(outcomes[0].status.ok()) << outcomes[0].status.message();
    ASSERT_EQ(project.document.recordings->traceSets.size(), 5U);
    ASSERT_EQ(save(), 0) << writer.message();
  }

  void expectSameTraces() {
    const std::vector<TraceSet>& saved = project.document.recordings->traceSets;
    ASSERT_EQ(back.document.recordings->traceSets.size(), saved.size());
    for (std::size_t set = 0; set < saved.size(); ++set) {
      for (std::size_t i = 0; i < saved[set].size(); ++i) {
        const Trace& was = saved[set][i];
        const Trace& is = back.document.recordings->traceSets[set].at(i);
        EXPECT_EQ(is.samples, was.samples) << set;
        EXPECT_EQ(is.sourcePosition, was.sourcePosition);
        EXPECT_EQ(is.receiverPosition, was.receiverPosition);
        EXPECT_EQ(is.delay, was.delay);
        EXPECT_EQ(is.droppedSamples, was.droppedSamples);
        EXPECT_EQ(is.sampleInterval, was.sampleInterval);
      }
    }
  }
  void expectAllByRules() {
    for (const RecordingNote& note : back.document.recordings->notes) {
      EXPECT_EQ(note.reader, ShotReader::kRules);
    }
  }

  std::string line;
  LoadedProject back;
};

TEST_F(ProjectReaders, comeBackWithTheSamplesOfTheirReading) {
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  EXPECT_THAT(reader.warnings(), IsEmpty());
  expectSameTraces();
  const std::vector<RecordingNote>& notes = back.document.recordings->notes;
  ASSERT_EQ(notes.size(), 5U);
  EXPECT_EQ(notes[2].reader, ShotReader::kRules);
  for (std::size_t set : {3U, 4U}) {
    const RecordingNote& was = project.document.recordings->notes[set];
    EXPECT_EQ(notes[set].reader, ShotReader::kStandard);
    EXPECT_EQ(notes[set].format, "seg2");
    EXPECT_EQ(notes[set].recordInFile, set - 3);
    EXPECT_EQ(notes[set].nameInFile, was.nameInFile);
  }
  ASSERT_EQ(save(folder.file("again.tvsk"), back), 0) << writer.message();
  EXPECT_EQ(entriesOf(folder.file("again.tvsk")), entriesOf(archive()));
}

TEST_F(ProjectReaders, areNothingThatEarlierVersionsNeed) {
  auto entries = entriesOf(archive());
  ASSERT_EQ(entries.erase("readers.xml"), 1U);
  ASSERT_EQ(load(pack("earlier.tvsk", entries), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  expectSameTraces();
  expectAllByRules();
}

TEST_F(ProjectReaders, thatDoNotGoWithTheProjectAreLeftOutWithAWord) {
  const std::string member = entriesOf(archive())["readers.xml"];
  const std::string cases[] = {
      member.substr(0, member.size() / 2), without(member, "value4"),
      with(member, "line.dat", "other.dat"),
      with(member, "<reader>1</reader>", "<reader>7</reader>"),
      with(member, "<format xml:space=\"preserve\">seg2", "<format xml:space=\"preserve\">magic")};
  for (const std::string& spoilt : cases) {
    auto entries = entriesOf(archive());
    entries["readers.xml"] = spoilt;
    back = {};
    ASSERT_EQ(load(pack("spoilt.tvsk", entries), back), 0) << reader.message();
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("readers.xml"))) << spoilt;
    expectSameTraces();
    expectAllByRules();
  }
}

TEST_F(ProjectReaders, areNotThereWhenAllIsReadByTheProgramsRules) {
  for (RecordingNote& note : project.document.recordings.edit().notes) {
    note.reader = ShotReader::kRules;
  }
  ASSERT_EQ(save(), 0);
  EXPECT_THAT(entriesOf(archive()), Not(Contains(Key("readers.xml"))));
}

TEST_F(ProjectReaders, haveAFileOfManyShotsReadOncePerSave) {
  const std::string before = console.out();
  ASSERT_EQ(save(), 0);
  const std::string said = console.out().substr(before.size());
  std::size_t times = 0;
  for (std::size_t at = said.find("line.dat\n"); at != std::string::npos;
       at = said.find("line.dat\n", at + 1)) {
    if (said.compare(said.rfind('\n', at) + 1, 12, "opening seg2") == 0) ++times;
  }
  EXPECT_EQ(times, 1U) << said;
}

/// One that was made of two others has its name from nowhere else.
TEST_F(ProjectReaders, keepTheNameOfAShotWithoutAFile) {
  LoadedProject made;
  ShotFileData data;
  for (const Trace& trace : project.document.recordings->traceSets[0]) {
    data.traces.push_back({trace.samples, trace.sourcePosition, trace.receiverPosition, trace.delay,
                           trace.sampleInterval});
  }
  made.document = project.document;
  appendShot({}, std::move(data), made.document);
  const std::string name = "difference of shots 1 and 2";
  made.document.recordings.edit().noteOf(5).nameInFile = name;
  const std::string file = folder.file("made.tvsk");
  ASSERT_EQ(save(file, made), 0) << writer.message();
  ASSERT_EQ(load(file, back), 0) << reader.message();
  EXPECT_THAT(reader.warnings(), IsEmpty());
  ASSERT_EQ(back.document.recordings->notes.size(), 6U);
  EXPECT_EQ(back.document.recordings->notes[5].nameInFile, name);
  EXPECT_EQ(back.document.recordings->notes[5].reader, ShotReader::kRules);
  EXPECT_EQ(back.document.recordings->notes[4].reader, ShotReader::kStandard);
}

}  // namespace
}  // namespace talvesk
