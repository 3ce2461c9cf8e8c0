#include "batch/SmallShots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(Examples, buriedValleyWritesAllThatItPromises) {
  const Folder folder;
  const Outcome outcome = runExample("buried-valley.sh", {folder / "valley"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("RMSE: [ms] "));
  EXPECT_THAT(outcome.out, HasSubstr("Picks used: 528"));
  const auto json = nlohmann::json::parse(contentsOf(folder / "valley/section.json"));
  EXPECT_EQ(json["iterations_done"], 8);
  EXPECT_LT(json["rmse_ms"].get<double>(), 1.0);
  EXPECT_TRUE(folder.holds("valley/section.txt"));
  EXPECT_TRUE(folder.holds("valley/section.svg"));
}

TEST(Examples, shotsToSectionLeavesPicksAndPictures) {
  const Folder folder;
  std::vector<std::string> arguments = {folder / "results"};
  for (const std::string& file : writeSmallShots(folder)) arguments.push_back(file);
  const Outcome outcome = runExample("shots-to-section.sh", arguments);
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("Picks: "));
  EXPECT_THAT(outcome.out, HasSubstr("Section: RMS [ms] "));
  for (const char* name : {"picks.sgt", "picks.json", "shots.pdf", "section.png"}) {
    EXPECT_TRUE(folder.holds(std::string("results/") + name)) << name;
  }
}

TEST(Examples, surveyTableListsTheGoodFilesAndFailsForTheBad) {
  const Folder folder;
  folder.write("a.otte", smallLine());
  folder.write("b.csv", "no table\n");
  const Outcome outcome = runExample("survey-table.sh", {folder / "", folder / "results"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.out, testing::ContainsRegex("a\\.otte +39 +[0-9.]+ +[0-9.]+\n"));
  EXPECT_THAT(outcome.out, Not(HasSubstr("b.csv")));
  EXPECT_THAT(outcome.err, HasSubstr("b.csv"));
  EXPECT_TRUE(folder.holds("results/a.otte.png"));
}

}  // namespace
}  // namespace talvesk::batchtest
