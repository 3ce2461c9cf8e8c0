#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SWavePair.h"
#include "processing/ShotTime.h"
#include "support/TestProjects.h"

#include <cstdio>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Key;
using ::testing::Not;

class MendedProject : public ProjectTest {
 protected:
  MendedProject() : recorded(project.document) {}

  /// The first shot is late, runs backwards, and two of its traces are bad; the second is disabled.
  void mend() {
    project.document.ttArray.edit()[0].setWaiting(2, true);
    project.document.ttArray.edit()[1].setWaiting(3, true);
    for (TravelTime& record : project.document.ttArray.edit()) {
      for (const std::size_t trace : {1U, 3U}) record.setError(trace, 0.0015);
    }
    recorded = project.document;
    ShotMends first;
    first.timeShift = 0.003;
    first.orderReversed = true;
    first.traces.resize(6);
    first.traces[3].killed = true;
    first.traces[4].reversed = true;
    first.traces[5].mutedBefore = 0.0105;
    first.traces[2].gain = 0.75;
    ASSERT_TRUE(setMends(0, first, project.document).ok());
    ShotMends second;
    second.disabled = true;
    ASSERT_TRUE(setMends(1, second, project.document).ok());
  }
  static void expectSame(const TomoDocument& a, const TomoDocument& b) {
    ASSERT_EQ(a.recordings->traceSets.size(), b.recordings->traceSets.size());
    for (std::size_t s = 0; s < a.recordings->traceSets.size(); ++s) {
      EXPECT_EQ(*a.ttArray[s].ttMisurati, *b.ttArray[s].ttMisurati) << s;
      for (std::size_t t = 0; t < a.recordings->traceSets[s].size(); ++t) {
        const Trace& x = a.recordings->traceSets[s][t];
        const Trace& y = b.recordings->traceSets[s][t];
        EXPECT_EQ(x.samples, y.samples) << s << ", " << t;
        EXPECT_EQ(x.samplesDX, y.samplesDX) << s << ", " << t;
        EXPECT_EQ(x.samplesSX, y.samplesSX) << s << ", " << t;
        EXPECT_EQ(a.ttArray[s].waits(t), b.ttArray[s].waits(t)) << s << ", " << t;
        EXPECT_EQ(a.ttArray[s].errorOf(t), b.ttArray[s].errorOf(t)) << s << ", " << t;
      }
    }
  }
  /// Loads, compares, and takes all back.
  void expectToComeBack(const std::string& path) {
    LoadedProject back;
    ASSERT_EQ(load(path, back), 0) << reader.message();
    EXPECT_THAT(reader.repairs(), IsEmpty());
    expectSame(back.document, project.document);
    ASSERT_EQ(save(folder.file("again.tvsk"), back), 0);
    EXPECT_EQ(entriesOf(folder.file("again.tvsk")), entriesOf(path));
    for (std::size_t set = 0; set < 3; ++set) {
      EXPECT_TRUE(setMends(set, {}, back.document).ok());
    }
    expectSame(back.document, recorded);
    EXPECT_TRUE(back.document.recordings->originals.empty());
  }
  /// The member of the saved project with something else in it.
  std::string withMember(const std::string& before, const std::string& after) {
    auto entries = entriesOf(archive());
    entries["mends.xml"] = with(entries["mends.xml"], before, after);
    return pack("other.tvsk", entries);
  }

  TomoDocument recorded;  ///< the survey before its mends
};

TEST_F(MendedProject, canBeTakenBackYearsLaterFromItsShotFiles) {
  mend();
  ASSERT_EQ(save(), 0) << console.error();
  EXPECT_THAT(entriesOf(archive()).at("mends.xml"), Not(HasSubstr("<TAB")));
  expectToComeBack(archive());
}

TEST_F(MendedProject, countsTimeFromTheShotAsBefore) {
  countTimeFromShot(project.document);
  mend();
  ASSERT_EQ(save(), 0) << console.error();
  EXPECT_THAT(entriesOf(archive()).at("mends.xml"), Not(HasSubstr("<TAB")));
  expectToComeBack(archive());
}

TEST_F(MendedProject, keepsTheOriginalsThatNoFileGives) {
  mend();
  std::remove(shots[0].c_str());
  std::remove(shots[1].c_str());
  ASSERT_EQ(save(), 0) << console.error();
  EXPECT_THAT(entriesOf(archive()).at("mends.xml"), HasSubstr("<TAB"));
  EXPECT_THAT(entriesOf(archive()), Not(Contains(Key("1.dat"))));
  expectToComeBack(archive());
}

TEST_F(MendedProject, bringsStacksAndPairsBack) {
  for (std::size_t set : {0U, 1U}) {
    project.document.ttArray.edit()[set].shotPos2d = {12.5, 100};
    for (Trace& trace : project.document.recordings.edit().traceSets[set]) {
      trace.waveKind = Trace::kSWavePair;
      trace.samplesDX = trace.samples;
      trace.samplesSX = std::vector<double>(40, 2.0);
      subtractRecordings(trace);
    }
  }
  recorded = project.document;
  ShotMends stack;
  stack.stackedWith = {1};
  ShotMends other;
  other.timeShift = -0.002;
  other.disabled = true;
  ASSERT_TRUE(setMends(0, stack, project.document).ok());
  ASSERT_TRUE(setMends(1, other, project.document).ok());
  ASSERT_EQ(save(), 0) << console.error();
  expectToComeBack(archive());
}

TEST_F(MendedProject, showsProgramsThatDoNotKnowOfItWhatTheMendedOneShows) {
  mend();
  ASSERT_EQ(save(), 0);
  auto entries = entriesOf(archive());
  entries.erase("mends.xml");
  LoadedProject back;
  ASSERT_EQ(load(pack("older.tvsk", entries), back), 0) << reader.message();
  expectSame(back.document, project.document);
  EXPECT_TRUE(back.document.recordings->mends.empty());
}

/// An earlier version carries the member, and may pick where there is no place for picks.
TEST_F(MendedProject, setsPicksOfAnotherProgramAsideWithAWord) {
  mend();
  const std::vector<double> others(6, 0.02);
  TomoDocument mended = project.document;
  project.document.ttArray.edit()[1].ttMisurati = others;
  ASSERT_EQ(save(), 0);
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("shot 2: picks that have no place any more "
                                                      "and are set aside: 6")));
  EXPECT_THAT(*back.document.ttArray[1].ttMisurati, *mended.ttArray[1].ttMisurati);
  ASSERT_TRUE(setMends(1, {}, back.document).ok());
  EXPECT_THAT(*back.document.ttArray[1].ttMisurati, others);
}

TEST_F(MendedProject, leavesMendsOfOtherTracesOutWithAWord) {
  mend();
  ASSERT_EQ(save(), 0);
  const struct {
    const char* before;
    const char* after;
    const char* shots;
  } cases[] = {{"<time_shift>0.003", "<time_shift>0.004", "1"},
               {"<time_shift>0.003", "<time_shift>-77.", "1"},
               {"<set>0", "<set>2", "3"},
               {"<set>0", "<set>4294967295", "4294967296"},
               {"<set>0", "<set>1", "2"},
               {"<muted_before>0.0105", "<muted_before>77777.", "1"},
               {"<killed>true", "<killed>false", "1"},
               {"<channel>0", "<channel>77", "1"},
               {"<channel>1", "<channel>0", "1"},
               {"<stacked_with size=\"dynamic\"/>",
                "<stacked_with size=\"dynamic\"><value0>-7</value0></stacked_with>", "1"},
               {"<stacked_with size=\"dynamic\"/>",
                "<stacked_with size=\"dynamic\"><value0>1</value0></stacked_with>", "1"},
               {"<originals size=\"dynamic\"/>",
                "<originals size=\"dynamic\"><value0><TAB size=\"dynamic\"/><TAB_DX "
                "size=\"dynamic\"/><TAB_SX size=\"dynamic\"/></value0></originals>",
                "1"}};
  for (const auto& c : cases) {
    LoadedProject back;
    ASSERT_EQ(load(withMember(c.before, c.after), back), 0) << reader.message();
    EXPECT_THAT(reader.repairs(),
                ElementsAre(AllOf(HasSubstr("mends.xml: the mends of these shots"),
                                  HasSubstr(std::string("as they are: ") + c.shots))))
        << c.after;
    expectSame(back.document, project.document);
  }
}

TEST_F(MendedProject, thatCannotBeReadOpensWithoutItsMends) {
  mend();
  ASSERT_EQ(save(), 0);
  LoadedProject back;
  ASSERT_EQ(load(withMember("<disabled>", "<disabled>perhaps"), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("what was mended in its recordings is not "
                                                      "known")));
  expectSame(back.document, project.document);
}

}  // namespace
}  // namespace talvesk
