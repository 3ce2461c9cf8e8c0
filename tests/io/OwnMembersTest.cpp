#include "io/project/OwnMembers.h"
#include "model/PickFingerprint.h"
#include "model/Recordings.h"
#include "model/TomographyOutcome.h"
#include "support/TestProjects.h"
#include "tomo/RayRecomputation.h"
#include "tomo/TomographyRun.h"

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
using ::testing::SizeIs;

const std::string kNewer =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<cereal>\n\t<version>7</version>\n"
    "\t<what_nobody_knows_yet>\xC3\xA9</what_nobody_knows_yet>\n</cereal>\n";

class OwnMember : public ProjectTest {
 protected:
  void invert(TomoDocument& document) {
    if (document.model->grid == nullptr) putGrid(document, 12, 1.5);
    Log log;
    TomographyParameters parameters;
    parameters.externalIterations = 1;
    ASSERT_TRUE(runInversion(document, parameters, log).status.ok());
  }
  /// The project as it was saved, with other bytes for one of its members.
  std::string withMember(const std::string& name, const std::string& bytes) {
    EXPECT_EQ(save(), 0) << console.error();
    auto entries = entriesOf(archive());
    entries[name] = bytes;
    return pack("other.tvsk", entries);
  }
  /// The entries after loading, as they are in the next save.
  std::map<std::string, std::string> savedAgain(const LoadedProject& loaded) {
    EXPECT_EQ(save(folder.file("again.tvsk"), loaded), 0) << writer.message();
    return entriesOf(folder.file("again.tvsk"));
  }

  LoadedProject back;
};

TEST_F(OwnMember, namesAreThoseOfPlainXmlFilesBesideTheFive) {
  const struct {
    std::string name;
    bool own;
  } cases[] = {{"picks.xml", true},
               {"result.xml", true},
               {"profile_picks2.xml", true},
               {"tomodoc.xml", false},
               {"grid.xml", false},
               {"traces.xml", false},
               {"palettes.xml", false},
               {"refraction.xml", false},
               {"", false},
               {".xml", false},
               {"_a.xml", false},
               {"2nd.xml", false},
               {"Picks.xml", false},
               {"picks.XML", false},
               {"picks.xml ", false},
               {"a b.xml", false},
               {"a.b.xml", false},
               {"../a.xml", false},
               {"shot.sg2", false},
               {std::string(60, 'a') + ".xml", true},
               {std::string(61, 'a') + ".xml", false}};
  for (const auto& c : cases) EXPECT_EQ(isOwnMemberName(c.name), c.own) << c.name;
}

TEST_F(OwnMember, keepsWhichPicksAreUnconfirmed) {
  project.document.ttArray.edit()[0].setWaiting(1, true);
  project.document.ttArray.edit()[2].setWaiting(5, true);
  ASSERT_EQ(save(), 0);
  EXPECT_THAT(entriesOf(archive()), Contains(Key("picks.xml")));
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  for (std::size_t shot = 0; shot < 3; ++shot) {
    for (std::size_t trace = 0; trace < 6; ++trace) {
      const bool waits = (shot == 0 && trace == 1) || (shot == 2 && trace == 5);
      EXPECT_EQ(back.document.ttArray[shot].waits(trace), waits) << shot << ", " << trace;
    }
  }
  EXPECT_THAT(reader.repairs(), IsEmpty());
  EXPECT_THAT(reader.warnings(), IsEmpty());
  EXPECT_EQ(savedAgain(back), entriesOf(archive()));
}

TEST_F(OwnMember, keepsTheErrorsOfPicks) {
  project.document.ttArray.edit()[0].setError(1, 0.0005);
  project.document.ttArray.edit()[2].setError(5, 1.0 / 3000.0);
  ASSERT_EQ(save(), 0);
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  for (std::size_t shot = 0; shot < 3; ++shot) {
    for (std::size_t trace = 0; trace < 6; ++trace) {
      EXPECT_EQ(back.document.ttArray[shot].errorOf(trace),
                project.document.ttArray[shot].errorOf(trace))
          << shot << ", " << trace;
    }
  }
  EXPECT_EQ(savedAgain(back), entriesOf(archive()));
  const std::string sound = entriesOf(archive()).at("errors.xml");
  for (const auto& [before, after] : std::vector<std::pair<std::string, std::string>>{
           {"<sigma>", "<sigma>-"}, {"<sigma>", "<sigma>9999999"}, {"<sigma>", "<sigma>x"}}) {
    LoadedProject other;
    ASSERT_EQ(load(withMember("errors.xml", with(sound, before, after)), other), 0) << after;
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("errors.xml"))) << after;
    EXPECT_EQ(other.document.ttArray[2].errorOf(5), 0.0) << after;
  }
  LoadedProject other;
  ASSERT_EQ(load(withMember("errors.xml", with(sound, "<of>1<", "<of>4294967295<")), other), 0);
  EXPECT_EQ(other.document.ttArray[2].errorOf(5), 1.0 / 3000.0);
}

TEST_F(OwnMember, keepsByWhatFilteredCopiesWereMade) {
  Recordings& recordings = project.document.recordings.edit();
  for (Trace& trace : recordings.traceSets[1]) trace.filtered = trace.samples;
  const std::vector<FilterStep> steps = {{FilterKind::kAgc, {}},
                                         {FilterKind::kVelocity, {350.5, 0.0, -1.0, 0.0, 20.0}}};
  recordings.noteOf(1).filters = steps;
  ASSERT_EQ(save(), 0);
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  const std::vector<FilterStep> read = filtersOf(*back.document.recordings, 1);
  ASSERT_EQ(read.size(), 2U);
  EXPECT_EQ(read[0].kind, FilterKind::kAgc);
  EXPECT_EQ(read[1].kind, FilterKind::kVelocity);
  EXPECT_EQ(read[1].numbers, steps[1].numbers);
  EXPECT_TRUE(filtersOf(*back.document.recordings, 0).empty());
  EXPECT_EQ(savedAgain(back), entriesOf(archive()));
  const std::string sound = entriesOf(archive()).at("filters.xml");
  for (const auto& [before, after] :
       std::vector<std::pair<std::string, std::string>>{{"<set>1<", "<set>77<"},
                                                        {"<kind>4<", "<kind>9<"},
                                                        {"<kind>4<", "<kind>3<"},
                                                        {"<kind>0<", "<kind>-1<"}}) {
    LoadedProject other;
    ASSERT_EQ(load(withMember("filters.xml", with(sound, before, after)), other), 0) << after;
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("filters.xml"))) << after;
    EXPECT_TRUE(filtersOf(*other.document.recordings, 1).empty()) << after;
  }
}

TEST_F(OwnMember, keepsHowSureTheSectionIs) {
  invert(project.document);
  const std::size_t cells = project.document.model->grid->cellCount();
  const std::uint32_t columns = project.document.model->grid->col();
  Certainty sure;
  sure.members = 22;
  sure.leftOut = 2;
  sure.seed = 7;
  sure.velocities = {std::vector<double>(cells, 1000.0 / 3.0), std::vector<double>(cells, 300.0),
                     std::vector<double>(cells, 400.0)};
  sure.deviations.assign(cells, 0.1);
  sure.touched.assign(cells, 21);
  const std::vector<double> depths(columns, 2.5);
  const std::vector<double> never(columns, std::nan(""));
  sure.bands.push_back({900.0, {depths, depths, never}});
  sure.models.push_back({"Two layers", 1.02, 22});
  sure.picks = 5;
  project.document.result.edit().certainty = sure;
  ASSERT_EQ(save(), 0);
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  ASSERT_TRUE(back.document.result->certainty);
  const Certainty& read = *back.document.result->certainty;
  EXPECT_EQ(read.members, 22);
  EXPECT_EQ(read.leftOut, 2);
  EXPECT_EQ(read.velocities.median, sure.velocities.median);
  EXPECT_EQ(read.velocities.high, sure.velocities.high);
  EXPECT_EQ(read.touched, sure.touched);
  ASSERT_THAT(read.bands, SizeIs(1));
  EXPECT_EQ(read.bands[0].depths.median, depths);
  EXPECT_TRUE(std::isnan(read.bands[0].depths.high[0]));
  EXPECT_EQ(read.models[0].name, "Two layers");
  EXPECT_EQ(read.picks, 5U);
  EXPECT_EQ(savedAgain(back), entriesOf(archive()));

  // What tells of another section, or cannot be, is left out.
  const std::string sound = entriesOf(archive()).at("certainty.xml");
  for (const auto& [before, after] :
       std::vector<std::pair<std::string, std::string>>{{"<section>", "<section>1"},
                                                        {"<members>22", "<members>0"},
                                                        {">400<", ">-400<"},
                                                        {"<left_out>2", "<left_out>-2"}}) {
    LoadedProject other;
    ASSERT_EQ(load(withMember("certainty.xml", with(sound, before, after)), other), 0) << after;
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("certainty.xml"))) << after;
    EXPECT_FALSE(other.document.result->certainty) << after;
  }
}

TEST_F(OwnMember, isNotThereWhenItHasNothingToTell) {
  project.document.ttArray.edit()[0].ttMisurati.edit()[1] = kNoTime;
  project.document.ttArray.edit()[0].setWaiting(1, true);  // no pick, and so none that waits
  ASSERT_EQ(save(), 0);
  EXPECT_THAT(entriesOf(archive()), SizeIs(8));
}

/// Inversions of earlier versions left none; a member without it would be refused when it is read.
TEST_F(OwnMember, ofAResultIsNotWrittenWithoutItsCoverage) {
  invert(project.document);
  project.document.result.edit().hitCounts.clear();
  project.document.result.edit().coorcount.clear();
  ASSERT_EQ(save(), 0);
  EXPECT_THAT(entriesOf(archive()), Not(Contains(Key("result.xml"))));
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  EXPECT_TRUE(back.document.result->has_tomographic_info);
}

TEST_F(OwnMember, ofOtherPicksIsLeftOutWithAWord) {
  project.document.ttArray.edit()[0].setWaiting(1, true);
  ASSERT_EQ(save(), 0);
  const std::string sound = entriesOf(archive()).at("picks.xml");
  const auto list = [](const std::string& traces) {
    return "<value0 size=\"dynamic\">\n\t\t\t<value0>" + traces + "</value0>";
  };
  const std::string broken[] = {with(sound, "<picks>", "<picks>1"),
                                with(sound, list("1"), list("6")),           // no such trace
                                with(sound, list("1"), list("4294967295")),  //
                                with(sound, list("1"), list("-1")),  // no number that it can hold
                                without(sound, "value2"),            // two records of three
                                without(sound, "unconfirmed"),
                                without(sound, "version"),
                                with(sound, "<version>1", "<version>99999999999"),
                                sound.substr(0, sound.size() / 2),
                                "",
                                "no XML"};
  for (const std::string& bytes : broken) {
    ASSERT_EQ(load(withMember("picks.xml", bytes), back), 0) << bytes;
    EXPECT_THAT(reader.repairs(), ElementsAre(AllOf(HasSubstr("picks.xml"),
                                                    HasSubstr("every pick counts as confirmed"))))
        << bytes;
    for (const TravelTime& record : back.document.ttArray) {
      for (std::size_t trace = 0; trace < 6; ++trace) EXPECT_FALSE(record.waits(trace)) << bytes;
    }
    EXPECT_THAT(back.own.carried, IsEmpty()) << bytes;
  }
}

TEST_F(OwnMember, ofAnotherVersionIsToldAndKeptByteForByte) {
  invert(project.document);
  project.document.title = "known";
  for (const char* name : {"result.xml", "picks.xml", "fault_lines.xml"}) {
    ASSERT_EQ(load(withMember(name, kNewer), back), 0) << reader.message();
    EXPECT_THAT(reader.warnings(), ElementsAre(HasSubstr(name)));
    EXPECT_THAT(reader.repairs(), IsEmpty());
    // All that the five tell is there.
    EXPECT_EQ(back.document.title, "known");
    EXPECT_EQ(fingerprintOfPicks(back.document.ttArray),
              fingerprintOfPicks(project.document.ttArray));
    EXPECT_EQ(back.document.model->grid->velocities(), project.document.model->grid->velocities());
    Log log;
    ASSERT_TRUE(recomputeRays(back.document, log).ok());  // as whoever opens a project does
    EXPECT_EQ(savedAgain(back).at(name), kNewer);
    EXPECT_THAT(writer.warnings(), IsEmpty());
  }
}

TEST_F(OwnMember, thatIsCarriedGivesWayToThatOfAPartMadeAnew) {
  invert(project.document);
  ASSERT_EQ(load(withMember("result.xml", kNewer), back), 0);
  invert(back.document);
  EXPECT_THAT(savedAgain(back).at("result.xml"), HasSubstr("<version>1</version>"));
  EXPECT_THAT(writer.warnings(), ElementsAre(HasSubstr("result.xml")));

  ASSERT_EQ(load(withMember("picks.xml", kNewer), back), 0);
  back.document.ttArray.edit()[0].setWaiting(0, true);
  EXPECT_THAT(savedAgain(back).at("picks.xml"), HasSubstr("<version>1</version>"));
  EXPECT_THAT(writer.warnings(), ElementsAre(HasSubstr("picks.xml")));
}

TEST_F(OwnMember, thatIsCarriedGoesWithItsPart) {
  invert(project.document);
  ASSERT_EQ(load(withMember("result.xml", kNewer), back), 0);
  back.document.result.edit().clear();
  EXPECT_THAT(savedAgain(back), Not(Contains(Key("result.xml"))));
  EXPECT_THAT(writer.warnings(), IsEmpty());
}

TEST_F(OwnMember, isNoFileOfAShot) {
  ASSERT_EQ(load(withMember("notes.xml", "x"), back), 0);
  const std::string shot = folder.put("notes.xml", projectShot(0));
  back.document.recordings.edit().filenames[0] = shot;
  EXPECT_EQ(savedAgain(back).at("notes.xml"), "x");
  EXPECT_THAT(writer.warnings(), ElementsAre(HasSubstr(shot)));
}

TEST_F(OwnMember, isCarriedInReasonOnly) {
  ASSERT_EQ(save(), 0);
  auto entries = entriesOf(archive());
  for (int i = 0; i < 100; ++i) entries["more" + std::to_string(i) + ".xml"] = "x";
  ASSERT_EQ(load(pack("many.tvsk", entries), back), 0);
  EXPECT_THAT(back.own.carried, SizeIs(OwnMembers::kMost));
  EXPECT_THAT(reader.warnings(), SizeIs(OwnMembers::kMost + 1));
  EXPECT_THAT(reader.warnings().back().english(), HasSubstr("36 in all"));
  EXPECT_THAT(savedAgain(back), SizeIs(8 + OwnMembers::kMost));

  entries = entriesOf(archive());
  const std::string large(OwnMembers::kMostBytes / 2 + 1, 'x');
  for (const char* name : {"a.xml", "b.xml"}) entries[name] = large;
  entries["c.xml"] = "small";
  ASSERT_EQ(load(pack("large.tvsk", entries), back), 0) << reader.message();
  ASSERT_THAT(back.own.carried, SizeIs(2));
  EXPECT_EQ(back.own.carried[1].name, "c.xml");
  EXPECT_THAT(reader.warnings().back().english(), HasSubstr("b.xml"));
}

TEST_F(OwnMember, thatCannotBeWrittenLeavesTheOldProject) {
  ASSERT_EQ(save(), 0);
  const std::string before = TestFolder::get(archive());
  project.own.carried.push_back({"no/such/folder.xml", std::string("x")});
  EXPECT_EQ(save(), 1);
  EXPECT_THAT(writer.message(), Not(IsEmpty()));
  EXPECT_EQ(TestFolder::get(archive()), before);
}

}  // namespace
}  // namespace talvesk
