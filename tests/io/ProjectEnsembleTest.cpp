#include "base/AtomicFile.h"
#include "io/EnsembleFile.h"
#include "model/TomographyOutcome.h"
#include "support/TestProjects.h"
#include "tomo/TestInversion.h"
#include "tomo/fitted/CertaintyRun.h"
#include "tomo/fitted/FittedRun.h"

#include <QTemporaryDir>
#include <algorithm>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A project whose certainty was stopped after two members.
class StoppedCertainty : public ProjectTest {
 protected:
  void SetUp() override {
    project = {};
    project.document = twoLayers(1.5);
    Log log;
    ASSERT_TRUE(runFittedInversion(project.document, {}, log).run.status.ok());
    settings = certaintySettings(project.document);
    settings.ensemble.isovalues = {900.0};
    whole = sureOf(*ensembleOf(project.document, settings), project.document, 5);
    project.document.result.edit().certainty =
        sureOf(*ensembleOf(project.document, settings), project.document, 2);
    ASSERT_TRUE(project.document.result->certainty->state);
    ASSERT_EQ(save(), 0);
  }
  Certainty sureOf(Ensemble& ensemble, const TomoDocument& document, int members) {
    Certainty certainty;
    CertaintySettings asked = settings;
    asked.members = members;
    const Status status = runCertainty(ensemble, document, asked, certainty);
    EXPECT_TRUE(status.ok()) << status.message();
    return certainty;
  }

  CertaintySettings settings;
  Certainty whole;  ///< of five members, in one go
  LoadedProject back;
};

TEST_F(StoppedCertainty, goesOnAfterTheProjectWasOpenedAgainToTheSameBits) {
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  const std::unique_ptr<Ensemble> ensemble = resumedEnsemble(back.document, settings);
  EXPECT_EQ(ensemble->done(), 2);
  const Certainty more = sureOf(*ensemble, back.document, 5);
  EXPECT_EQ(ensemble->done(), 5);
  EXPECT_EQ(more.members, whole.members);
  EXPECT_EQ(more.leftOut, whole.leftOut);
  EXPECT_EQ(more.velocities.median, whole.velocities.median);
  EXPECT_EQ(more.velocities.low, whole.velocities.low);
  EXPECT_EQ(more.velocities.high, whole.velocities.high);
  EXPECT_EQ(more.deviations, whole.deviations);
  EXPECT_EQ(more.touched, whole.touched);
  EXPECT_THAT(more.bands[0].depths.median, ::testing::Pointwise(::testing::NanSensitiveDoubleEq(),
                                                                whole.bands[0].depths.median));
  ASSERT_EQ(more.models.size(), whole.models.size());
  for (std::size_t i = 0; i < more.models.size(); ++i) {
    EXPECT_EQ(more.models[i].members, whole.models[i].members) << more.models[i].name;
  }

  // Other settings, picks and sections have other members.
  CertaintySettings other = settings;
  other.ensemble.seed = 99;
  EXPECT_EQ(resumedEnsemble(back.document, other)->done(), 0);
  TomoDocument moved = back.document;
  moved.ttArray.edit()[0].ttMisurati.edit()[3] += 0.001;
  EXPECT_EQ(resumedEnsemble(moved, settings)->done(), 0);
}

TEST_F(StoppedCertainty, isRefusedWithAWordWhereItsCountsCannotBe) {
  const auto entries = entriesOf(archive());
  const std::string sound = entries.at("ensemble.xml");
  const auto changed = [&](const std::string& list, const std::string& value) {
    std::string bytes = sound;
    const std::size_t at = bytes.find('<', bytes.find("<" + list + ">") + 1);
    const std::size_t from = bytes.find('>', at) + 1;
    return bytes.replace(from, bytes.find('<', from) - from, value);
  };
  const auto without = [&](const std::string& list) {
    std::string bytes = sound;
    const std::size_t from = bytes.find("<" + list + ">") + list.size() + 2;
    return bytes.replace(from, bytes.find("</" + list + ">") - from, "");
  };
  for (const std::string& bytes :
       {changed("bins", "4000000000000"), changed("bins", "-1"), changed("bins", "0"),
        changed("sums", "-9223372036854775808"), changed("squares", "9223372036854775807"),
        changed("members", "2"), changed("members", "7"), changed("members_with_rays", "3"),
        changed("start", "nan"), changed("start", "0"), changed("start", "1"), without("bins"),
        without("start"), without("members")}) {
    auto other = entries;
    ASSERT_NE(bytes, sound);
    other["ensemble.xml"] = bytes;
    LoadedProject loaded;
    ASSERT_EQ(load(pack("other.tvsk", other), loaded), 0);
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("ensemble.xml")));
    ASSERT_TRUE(loaded.document.result->certainty) << "which is as it was";
    EXPECT_FALSE(loaded.document.result->certainty->state);
    EXPECT_EQ(resumedEnsemble(loaded.document, settings)->done(), 0);
  }
}

TEST(EnsembleFile, comesBackToTheLastBitAndNeverInPart) {
  EnsembleState state;
  state.key = 0xfedcba9876543210;
  state.start = {0.002, 1.0 / 3.0, -0.0};
  state.members = {0, 1, 2};
  state.bins = {1, -1200, 3, 0, 2147483647, INT64_MIN, INT64_MAX};
  state.sums = {-1, 63, 64, -65};
  state.touched = {0, 4294967295U};
  const QTemporaryDir folder;
  const std::string path = folder.filePath("a.members").toStdString();
  ASSERT_TRUE(writeEnsemble(path, state).ok());
  EnsembleState back;
  ASSERT_TRUE(readEnsemble(path, back).ok());
  EXPECT_EQ(back.key, state.key);
  EXPECT_EQ(back.start, state.start);
  EXPECT_EQ(back.members, state.members);
  EXPECT_EQ(back.bins, state.bins);
  EXPECT_EQ(back.sums, state.sums);
  EXPECT_TRUE(back.squares.empty());
  EXPECT_EQ(back.touched, state.touched);

  std::string bytes;
  ASSERT_TRUE(readWholeFile(path, bytes).ok());
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    std::string flipped = bytes;
    flipped[i] = static_cast<char>(flipped[i] ^ 0x10);
    for (const std::string& broken : {bytes.substr(0, i), flipped}) {
      ASSERT_TRUE(writeFileAtomically(path, broken).ok());
      EnsembleState read;
      const Status status = readEnsemble(path, read);
      EXPECT_FALSE(status.ok()) << i;
      EXPECT_THAT(status.message(), HasSubstr("a.members"));
      EXPECT_TRUE(read.start.empty());
    }
  }
}

}  // namespace
}  // namespace talvesk
