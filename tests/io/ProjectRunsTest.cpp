#include "model/GroundModel.h"
#include "model/KeptRuns.h"
#include "model/Residuals.h"
#include "model/TomographyOutcome.h"
#include "support/TestProjects.h"
#include "tomo/KeepRun.h"
#include "tomo/RayRecomputation.h"
#include "tomo/fitted/FittedRun.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Key;
using ::testing::Not;
using ::testing::SizeIs;

class RunsOfAProject : public ProjectTest {
 protected:
  void SetUp() override {
    putGrid(project.document, 12, 1.5);
    TomographyParameters parameters;
    parameters.externalIterations = 1;
    parameters.coarseToFine = true;
    ASSERT_TRUE(runInversion(project.document, parameters, log).status.ok());
    const FittedSettings usual;
    ASSERT_TRUE(runFittedInversion(project.document, usual, log).run.status.ok());
    project.document.runs.edit()[0].name = "smooth \xC3\xA9 <1>";
  }
  /// The list as it was saved, with one text in place of another where that is first found.
  std::string changed(const std::string& before, const std::string& after) {
    EXPECT_EQ(save(), 0) << writer.message();
    auto entries = entriesOf(archive());
    entries["runs.xml"] = with(entries["runs.xml"], before, after);
    return pack("other.tvsk", entries);
  }

  Log log;
  LoadedProject back;
};

TEST_F(RunsOfAProject, comeBackAsTheyWere) {
  ASSERT_EQ(save(), 0) << writer.message();
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  EXPECT_THAT(reader.warnings(), IsEmpty());
  ASSERT_EQ(back.document.runs.size(), 2U);
  for (std::size_t i = 0; i < 2; ++i) {
    const KeptRun& was = project.document.runs[i];
    const KeptRun& is = back.document.runs[i];
    EXPECT_EQ(is.number, was.number);
    EXPECT_EQ(is.name, was.name);
    EXPECT_EQ(is.when, was.when);
    EXPECT_EQ(is.chi2, was.chi2);
    EXPECT_EQ(is.misfit().rmse, was.misfit().rmse);
    EXPECT_EQ(is.record.computingSeconds, was.record.computingSeconds);
    EXPECT_EQ(is.record.fit.has_value(), was.record.fit.has_value());
    EXPECT_EQ(is.record.coarseToFine, i == 0 ? 1 : 0);
    EXPECT_EQ(is.coorcount, was.coorcount);
    EXPECT_EQ(is.hitCounts, was.hitCounts);
    EXPECT_EQ(is.times, was.times);
    const RunChanges changes = changesSince(is, back.document);
    EXPECT_FALSE(changes.picks || changes.positions || changes.ground) << i;
    for (std::size_t c = 0; c < was.slowness.size(); ++c) {
      ASSERT_DOUBLE_EQ(is.slowness[c], was.slowness[c]) << c;
    }
  }
  EXPECT_EQ(shownRun(back.document), 1U) << "the section is that of the second run";
}

TEST_F(RunsOfAProject, makeTheFitOfASectionKnownAgain) {
  const SectionMisfit shown = sectionMisfitOf(project.document);
  ASSERT_EQ(save(), 0);
  ASSERT_EQ(load(archive(), back), 0);
  ASSERT_TRUE(back.document.result->lastInversion->fit);
  EXPECT_EQ(back.document.result->lastInversion->fit->chi2,
            project.document.result->lastInversion->fit->chi2);
  ASSERT_TRUE(recomputeRays(back.document, log).ok());
  EXPECT_NEAR(sectionMisfitOf(back.document).rmse, shown.rmse, 1e-12);
}

TEST_F(RunsOfAProject, canBeUsedAfterLoading) {
  ASSERT_EQ(save(), 0);
  ASSERT_EQ(load(archive(), back), 0);
  ASSERT_TRUE(useRun(0, 1, back.document, log).ok());
  EXPECT_NEAR(sectionMisfitOf(back.document).rmse, back.document.runs[0].misfit().rmse, 1e-12);
  EXPECT_FALSE(back.document.result->lastInversion->fit);
}

TEST_F(RunsOfAProject, areAMemberOnlyWhereThereAreAny) {
  project.document.runs = {};
  ASSERT_EQ(save(), 0);
  EXPECT_THAT(entriesOf(archive()), Not(Contains(Key("runs.xml"))));
  ASSERT_EQ(load(archive(), back), 0);
  EXPECT_TRUE(back.document.runs.empty());
}

/// One run that cannot have been costs no other.
TEST_F(RunsOfAProject, thatCannotHaveBeenAreLeftOut) {
  const std::string rows = "<righe>" + std::to_string(project.document.model->grid->righe());
  const struct {
    std::string before;
    std::string after;
  } cases[] = {{rows, "<righe>4294967295"},
               {rows, "<righe>0"},
               {"<nV>6", "<nV>1"},
               {"<nV>6", "<nV>100000"},
               {"<aLato>", "<aLato>-"},
               {"<x_offset>", "<x_offset>9999999999"},
               {"<smoothing>", "<smoothing>-"},
               {"<smoothingType>", "<smoothingType>9"},
               {"<number>1", "<number>0"},
               {"<number>1", "<number>2"},
               {"<coarse_to_fine>", "<coarse_to_fine>-"}};
  for (const auto& c : cases) {
    LoadedProject other;
    ASSERT_EQ(load(changed(c.before, c.after), other), 0) << c.after << reader.message();
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("inversion run"))) << c.after;
    ASSERT_EQ(other.document.runs.size(), 1U) << c.after;
    EXPECT_TRUE(useRun(0, 1, other.document, log).ok()) << c.after;
  }
}

/// What a section is told by comes from its run where the result of the project does not tell it.
TEST_F(RunsOfAProject, giveASectionNoFitThatCannotHaveBeen) {
  FittedSettings settings;
  settings.fit.statics = true;
  settings.errors = {1e-5, 0.0};  // so small that no other run has its section
  ASSERT_TRUE(runFittedInversion(project.document, settings, log).run.status.ok());
  ASSERT_EQ(save(), 0) << writer.message();
  auto entries = entriesOf(archive());
  entries.erase("result.xml");
  const std::string sound = entries.at("runs.xml");
  const std::size_t fit = sound.rfind("<fit ");
  const struct {
    const char* element;
    std::string value;
  } cases[] = {{"<late", "nan"},         {"<late", "inf"},
               {"<late", "1e300"},       {"<mended", "1e300"},
               {"<error_floor", "0"},    {"<error_floor", "1e-300"},
               {"<error_share", "nan"},  {"<error_share", "1e9"},
               {"<suspects", "-1"},      {"<lambda", "nan"},
               {"<chi2", "-1"},          {"<reference", "a\nb"},
               {"<reference", "&lt;b>"}, {"<reference", std::string(300000, 'x')}};
  for (const auto& c : cases) {
    const std::size_t first = sound.find('>', sound.find(c.element, fit)) + 1;
    entries["runs.xml"] = sound.substr(0, first) + c.value + sound.substr(sound.find('<', first));
    LoadedProject other;
    ASSERT_EQ(load(pack("other.tvsk", entries), other), 0) << c.element;
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("inversion run 3")))
        << c.element << c.value.substr(0, 9);
    EXPECT_EQ(other.document.runs.size(), 2U) << c.element;
    ASSERT_TRUE(other.document.result->lastInversion) << c.element;
    EXPECT_FALSE(other.document.result->lastInversion->fit) << c.element << c.value.substr(0, 9);
  }
  entries["runs.xml"] = sound;
  ASSERT_EQ(load(pack("other.tvsk", entries), back), 0);
  EXPECT_TRUE(back.document.result->lastInversion->fit) << "as it was";
}

TEST_F(RunsOfAProject, haveVelocitiesThatGroundCanHave) {
  ASSERT_EQ(save(), 0) << writer.message();
  auto entries = entriesOf(archive());
  const std::string sound = entries.at("runs.xml");
  const std::size_t first = sound.find("<value0>", sound.find("<velocities")) + 8;
  for (const std::string velocity : {"nan", "inf", "-500", "0", "1e-300", "1e300"}) {
    entries["runs.xml"] = sound.substr(0, first) + velocity + sound.substr(sound.find('<', first));
    LoadedProject other;
    ASSERT_EQ(load(pack("other.tvsk", entries), other), 0) << velocity;
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("inversion run 1"))) << velocity;
    EXPECT_EQ(other.document.runs.size(), 1U) << velocity;
  }
}

TEST_F(RunsOfAProject, areNoMoreThanTheListHolds) {
  const std::vector<KeptRun> two = *project.document.runs;
  std::vector<KeptRun>& runs = project.document.runs.edit();
  for (std::uint32_t i = 0; i < kMostRuns; ++i) {
    runs.push_back(two[i % 2]);
    runs.back().number = i + 3;
  }
  ASSERT_EQ(save(), 0);
  ASSERT_EQ(load(archive(), back), 0);
  EXPECT_EQ(back.document.runs.size(), kMostRuns);
  EXPECT_THAT(reader.repairs(), AllOf(SizeIs(2), Each(HasSubstr("more than can be kept"))));
}

TEST_F(RunsOfAProject, thatCannotBeReadLeaveTheRestOfTheProject) {
  for (const std::string after : {"<runs>x", "</cereal>", "<runs size=\"dynamic\"><value0><a/>"}) {
    LoadedProject other;
    ASSERT_EQ(load(changed("<runs size=\"dynamic\">", after), other), 0) << after;
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("runs"))) << after;
    EXPECT_TRUE(other.document.runs.empty()) << after;
    EXPECT_TRUE(other.document.result->has_tomographic_info) << after;
  }
}

}  // namespace
}  // namespace talvesk
