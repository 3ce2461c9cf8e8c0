#include "batch/BatchRunner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// A project with a smoothed and a fitted run, the fitted one shown.
class RunList : public testing::Test {
 protected:
  void SetUp() override {
    const std::string line = folder.write("line.otte", smallLine());
    ASSERT_EQ(run({"invert", line, "--cell-size", "1", "--depth", "5", "--iterations", "2", "-o",
                   folder / "start.tvsk", "--gridded", folder / "smoothed.txt"})
                  .code,
              0);
    ASSERT_EQ(run({"invert", folder / "start.tvsk", "--method", "fitted", "-o", project,
                   "--gridded", folder / "fitted.txt"})
                  .code,
              0);
  }
  Outcome run(const std::vector<std::string>& arguments) const {
    return runBatch(arguments, {{"HOME", home / ""}});
  }
  ordered_json runs(const std::string& path) const {
    return ordered_json::parse(run({"info", path, "--json", "-"}).out)["runs"];
  }

  Folder folder;
  Folder home;
  std::string project = folder / "line.tvsk";
};

TEST_F(RunList, isToldAsTextAndAsJson) {
  const Outcome text = run({"info", project, "--list"});
  EXPECT_THAT(text.out, AllOf(HasSubstr("  runs        2\n    1  smoothed, chi-square "),
                              HasSubstr(" by errors of 0.5 ms or 3 %, RMS "),
                              HasSubstr("\n  * 2  fitted, chi-square ")));
  EXPECT_THAT(run({"info", project}).out, Not(HasSubstr("smoothed, chi-square")));
  const ordered_json list = runs(project);
  ASSERT_EQ(list.size(), 2U);
  EXPECT_EQ(list[0]["method"], "smoothed");
  EXPECT_EQ(list[0]["shown"], false);
  EXPECT_EQ(list[1]["shown"], true);
  EXPECT_EQ(list[1]["settings"]["sigma_ms"], 0.5);
  EXPECT_LT(list[1]["chi2"], list[0]["chi2"]);
  EXPECT_EQ(list[1]["picks_changed"], false);
}

TEST_F(RunList, measuresARunByTheErrorsThatItWasRunWith) {
  const std::string line = folder / "line.otte";
  for (const std::string method : {"smoothed", "fitted"}) {
    const std::string file = folder / "sigma.tvsk";
    const Outcome outcome = run({"invert", line, "--cell-size", "1", "--method", method, "--sigma",
                                 "0.3,0", "--iterations", "3", "-o", file, "--json", "-"});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const ordered_json json = ordered_json::parse(outcome.out);
    const ordered_json info = ordered_json::parse(run({"info", file, "--json", "-"}).out);
    EXPECT_EQ(info["chi2"], json["chi2"]) << method;
    EXPECT_EQ(info["runs"][0]["chi2"], json["chi2"]) << method;
    EXPECT_EQ(info["runs"][0]["trusted_rmse_ms"], json["trusted_rmse_ms"]) << method;
    EXPECT_EQ(info["runs"][0]["settings"]["sigma_ms"], 0.3) << method;
    const std::string list = run({"info", file, "--list"}).out;
    EXPECT_THAT(list, HasSubstr(" by errors of 0.3 ms or 0 %, RMS ")) << method;
    EXPECT_THAT(list, HasSubstr("  inversion   " + method + ", ")) << method;
    EXPECT_THAT(list, Not(HasSubstr(method == "fitted" ? "last solver pass" : "fitted")));
  }
}

TEST_F(RunList, tellsAllSettingsOfARun) {
  const std::string file = folder / "set.tvsk";
  const std::string both = folder / "both.tvsk";
  ASSERT_EQ(
      run({"invert", folder / "line.otte", "--cell-size", "1", "--method", "fitted", "--statics",
           "--trigger-error", "5", "--no-robust", "--reference", "default", "-o", file})
          .code,
      0);
  ASSERT_EQ(run({"invert", file, "--coarse-to-fine", "--iterations", "2", "-o", both}).code, 0);
  const ordered_json list = runs(both);
  const ordered_json& fitted = list[0]["settings"];
  EXPECT_EQ(fitted["trigger_error_ms"], 5.0);
  EXPECT_EQ(fitted["robust"], false);
  EXPECT_EQ(fitted["reference"], "default");
  EXPECT_EQ(list[1]["settings"]["coarse_to_fine"], true);
}

TEST_F(RunList, letsExportsBeOfAnyRun) {
  for (const auto& [number, file] :
       {std::pair("1", "smoothed.txt"), std::pair("2", "fitted.txt")}) {
    const std::string out = folder / "out.txt";
    const Outcome outcome = run({"export", project, "--use", number, "--gridded", out});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(contentsOf(out), contentsOf(folder / file)) << number;
  }
}

TEST_F(RunList, startsAnInversionFromARun) {
  const std::string next = folder / "next.tvsk";
  const std::string json = folder / "next.json";
  ASSERT_EQ(
      run({"invert", project, "--use", "1", "--iterations", "1", "-o", next, "--json", json}).code,
      0);
  const ordered_json list = runs(next);
  ASSERT_EQ(list.size(), 3U);
  EXPECT_EQ(list[2]["number"], 3);
  const double start =
      ordered_json::parse(contentsOf(json))["section_history"][0]["section_rmse_ms"];
  EXPECT_NEAR(start, list[0]["section_rmse_ms"].get<double>(), 1e-9);
}

TEST_F(RunList, isNamedWhereARunIsNotInIt) {
  const Outcome missing = run({"export", project, "--use", "7", "--otte", folder / "x.otte"});
  EXPECT_NE(missing.code, 0);
  EXPECT_THAT(missing.err, AllOf(HasSubstr("no inversion run \"7\""), HasSubstr("keeps 1, 2")));
  EXPECT_FALSE(folder.holds("x.otte"));
  const std::string line = folder / "line.otte";
  EXPECT_THAT(run({"invert", line, "--use", "1"}).err, HasSubstr("only a project"));
  EXPECT_THAT(run({"invert", project, "--use", "1", "--depth", "4"}).err, HasSubstr("--use"));
  EXPECT_THAT(run({"info", line, "--list"}).err, HasSubstr("only projects"));
}

}  // namespace
}  // namespace talvesk::batchtest
