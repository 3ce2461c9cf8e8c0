#include "batch/BatchRunner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;

Outcome fit(const Folder& folder, const std::vector<std::string>& more) {
  std::vector<std::string> arguments = {"invert",      folder.write("line.otte", smallLine()),
                                        "--cell-size", "1",
                                        "--method",    "fitted",
                                        "--json",      "-"};
  arguments.insert(arguments.end(), more.begin(), more.end());
  return runBatch(arguments);
}

TEST(Fitted, tellsWhatItStartedFromAndWhatElseThereWas) {
  const Folder folder;
  const Outcome best = fit(folder, {"--project", folder / "line.tvsk"});
  ASSERT_EQ(best.code, 0) << best.err;
  const ordered_json json = ordered_json::parse(best.out);
  ASSERT_GE(json["references"].size(), 3U);
  EXPECT_EQ(json["reference"], json["references"][0]["name"]);
  EXPECT_GT(json["references"][0]["chi2"], 0.0);
  EXPECT_EQ(json["method"], "fitted");
  EXPECT_THAT(best.err, HasSubstr("Started from: "));

  const Outcome other = fit(folder, {"--reference", "default", "--quiet"});
  ASSERT_EQ(other.code, 0) << other.err;
  const ordered_json otherJson = ordered_json::parse(other.out);
  EXPECT_EQ(otherJson["reference"], "default");
  EXPECT_NE(otherJson["velocities"], json["velocities"]);

  // The project tells the same of its section.
  const Outcome info = runBatch({"info", "--json", "-", folder / "line.tvsk"});
  const ordered_json kept = ordered_json::parse(info.out);
  const ordered_json& project = kept.is_array() ? kept[0] : kept;
  for (const char* key : {"method", "reference", "chi2", "chi2_all", "suspect_count"}) {
    EXPECT_EQ(project[key], json[key]) << key;
  }
}

TEST(Fitted, isNoSuccessWhereItIsStoppedBeforeAnythingIsFound) {
  const Folder folder;
  // So fine a grid that it is stopped while models are traced.
  const Outcome outcome = interruptBatch(
      {"invert", folder.write("line.otte", smallLine()), "--cell-size", "0.1", "--nodes", "20",
       "--method", "fitted", "--verbose", "--json", folder / "out.json"},
      "Tracing the models");
  EXPECT_EQ(outcome.code, 1) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("stopped before anything was found; nothing was written"));
  EXPECT_THAT(outcome.err, HasSubstr("Stopping; what has been found so far is kept."));
  EXPECT_FALSE(folder.holds("out.json"));
}

TEST(Fitted, refusesAModelThatThereIsNot) {
  const Folder folder;
  const Outcome unknown = fit(folder, {"--reference", "five-layers"});
  EXPECT_EQ(unknown.code, 2);
  EXPECT_THAT(unknown.err, HasSubstr("three-layers"));
}

}  // namespace
}  // namespace talvesk::batchtest
