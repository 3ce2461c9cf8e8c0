#include "batch/SmallShots.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;
using testing::Not;

std::vector<std::string> arguments(const std::vector<std::string>& files,
                                   const std::vector<std::string>& more) {
  std::vector<std::string> all = {"check"};
  all.insert(all.end(), files.begin(), files.end());
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

/// Three shots, one of which holds two dead traces.
std::vector<std::string> shotsWithDeadTraces(const Folder& folder) {
  std::vector<std::string> files;
  for (const double x : {-1.0, 11.0, 25.0}) {
    WrittenShot record = smallShot(x);
    if (x == 11.0) {
      for (const std::size_t trace : {2, 9}) {
        std::fill(record.traces[trace].begin(), record.traces[trace].end(), 0.0F);
      }
    }
    files.push_back(folder.write("at" + std::to_string(files.size()) + ".sg2", formatSeg2(record)));
  }
  return files;
}

TEST(Check, tellsWhatIsDoubtfulAndWhatIsProposed) {
  const Folder folder;
  const Outcome outcome =
      runBatch(arguments(shotsWithDeadTraces(folder), {"--json", folder / "found.json"}));
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("shot 2 (at1.sg2)\n  dead traces, 100 % sure: dead: the "
                                     "samples of traces 3 and 10 are all the same\n  proposal: "
                                     "kill traces 3 and 10\n"));
  EXPECT_THAT(outcome.out, HasSubstr("Reciprocity: There are no picks yet.\n"));
  const ordered_json json = ordered_json::parse(contentsOf(folder / "found.json"));
  EXPECT_EQ(json["files"].size(), 3U);
  EXPECT_TRUE(json["reciprocity"]["rms_ms"].is_null());
  ASSERT_EQ(json["left"], json["findings"]);
  const ordered_json& dead = json["findings"][0];
  EXPECT_EQ(dead["kind"], "dead_trace");
  EXPECT_EQ(dead["shot"], 1);
  EXPECT_EQ(dead["traces"], ordered_json({2, 9}));
  EXPECT_EQ(dead["proposal"]["kind"], "kill_traces");
  EXPECT_GT(dead["measured"].size(), 8U);
}

TEST(Check, endsWithACodeOfItsOwnOnlyWhenAskedTo) {
  const Folder folder;
  const std::vector<std::string> doubtful = shotsWithDeadTraces(folder);
  EXPECT_EQ(runBatch(arguments(doubtful, {"--quiet"})).code, 0);
  EXPECT_EQ(runBatch(arguments(doubtful, {"--quiet", "--strict"})).code, 3);
  EXPECT_EQ(runBatch(arguments(doubtful, {"--strict", "--mend", folder / "mended.tvsk"})).code, 0);
  const Folder other;
  const Outcome sound = runBatch(arguments(writeSmallShots(other), {"--strict"}));
  EXPECT_EQ(sound.code, 0) << sound.out;
}

TEST(Check, leavesProposalsThatAreNotSure) {
  const Folder folder;
  std::vector<std::string> files;
  for (const double x : {-1.0, 11.0, 25.0}) {
    WrittenShot record = smallShot(x);
    for (float& sample : record.traces[4]) sample = -sample;
    files.push_back(folder.write("at" + std::to_string(files.size()) + ".sg2", formatSeg2(record)));
  }
  const auto mended = [&](const char* sure) {
    return runBatch(arguments(files, {"--mend", folder / "mended.tvsk", "--sure", sure})).out;
  };
  EXPECT_THAT(mended("100"), HasSubstr("0 proposals carried out."));
  EXPECT_THAT(mended("100"), HasSubstr("left that were less than 100 % sure"));
  EXPECT_THAT(mended("1"), Not(HasSubstr("0 proposals carried out.")));
}

TEST(Check, mendsIntoAProjectThatHasNothingLeftToMend) {
  const Folder folder;
  const std::string project = folder / "mended.tvsk";
  const Outcome mended = runBatch(arguments(shotsWithDeadTraces(folder), {"--mend", project}));
  ASSERT_EQ(mended.code, 0) << mended.err;
  EXPECT_THAT(mended.out, HasSubstr("1 proposal carried out."));
  const Outcome again = runBatch({"check", project, "--json", "-"});
  ASSERT_EQ(again.code, 0) << again.err;
  for (const ordered_json& finding : ordered_json::parse(again.out)["findings"]) {
    EXPECT_TRUE(finding["proposal"].is_null()) << finding;
  }
}

TEST(Check, refusesWhatHoldsNoRecordings) {
  const Folder folder;
  const std::string picks = folder.write("line.otte", smallLine());
  EXPECT_EQ(runBatch({"check", picks}).code, 1);
  EXPECT_EQ(runBatch({"check", folder / "missing.sg2"}).code, 1);
  EXPECT_EQ(runBatch({"check", folder / "a.tvsk", folder / "b.sg2"}).code, 2);
  EXPECT_EQ(runBatch({"check", folder / "a.tvsk", "--as-recorded"}).code, 2);
  EXPECT_EQ(runBatch({"check"}).code, 2);
  EXPECT_EQ(runBatch({"check", "a.sg2", "--mend", "out.txt"}).code, 2);
}

}  // namespace
}  // namespace talvesk::batchtest
