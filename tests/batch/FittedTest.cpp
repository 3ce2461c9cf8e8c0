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

TEST(Fitted, startsFromTheSectionOfAnotherProject) {
  const Folder folder;
  ASSERT_EQ(fit(folder, {"--quiet", "--project", folder / "known.tvsk"}).code, 0);
  const Outcome outcome = fit(folder, {"--quiet", "--reference", folder / "known.tvsk"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_EQ(ordered_json::parse(outcome.out)["reference"], "file");
  const Outcome none = fit(folder, {"--quiet", "--reference", folder / "none.tvsk"});
  EXPECT_EQ(none.code, 1);
  EXPECT_THAT(none.err, HasSubstr("none.tvsk"));
  const Outcome layers = fit(folder, {"--quiet", "--reference", "layers"});
  EXPECT_EQ(layers.code, 1);
  EXPECT_THAT(layers.err, HasSubstr("no layered interpretation"));
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

/// The line with one pick of its first shot, that of receiver 6, 60 ms too late.
std::string lineWithAGrossPick() {
  const std::string line = smallLine();
  std::size_t at = 0;
  for (int row = 0; row < 10; ++row) at = line.find('\n', at) + 1;
  for (int field = 0; field < 5; ++field) at = line.find(';', at) + 1;
  const std::size_t end = line.find(';', at);
  return line.substr(0, at) + std::to_string(std::stod(line.substr(at, end - at)) + 60.0) +
         line.substr(end);
}

TEST(Fitted, hasTheKeysOfAResultThatTheOtherMethodHasToo) {
  const Folder folder;
  const std::string input = folder.write("line.otte", lineWithAGrossPick());
  const std::string file = folder / "out.json";
  ordered_json results[2];
  for (const std::string method : {"smoothed", "fitted"}) {
    const Outcome outcome = runBatch({"invert", input, "--cell-size", "1", "--method", method,
                                      "--iterations", "6", "--json", file});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_THAT(outcome.out,
                HasSubstr("; of all 39 picks as they are\nSection without suspects: RMS"))
        << method;
    EXPECT_THAT(outcome.out, HasSubstr("\nChi-square: ")) << method;
    EXPECT_THAT(outcome.err, HasSubstr("shot 1, receiver 6 late by ")) << method;
    const ordered_json json = ordered_json::parse(contentsOf(file));
    ASSERT_FALSE(json["suspects"].empty()) << method;
    EXPECT_EQ(json["suspects"].size(), json["suspect_count"]) << method;
    EXPECT_EQ(json["suspects"][0]["shot"], 0) << method;
    EXPECT_EQ(json["suspects"][0]["receiver"], 5) << method;
    EXPECT_EQ(json["section_history"].size(), json["kept_iteration"].get<std::size_t>() + 1);
    EXPECT_LT(json["trusted_rmse_ms"], json["section_rmse_ms"]) << method;
    results[method == "fitted" ? 1 : 0] = json;
  }
  for (const char* key : {"chi2_history", "reference", "lambda", "statics_ms"}) {
    EXPECT_TRUE(results[0].contains(key) && results[0][key].is_null()) << key;
    EXPECT_TRUE(results[1].contains(key)) << key;
  }
  EXPECT_FALSE(results[1]["chi2_history"].empty());
}

TEST(Fitted, takesNoOptionsOfTheOtherMethod) {
  const Folder folder;
  const std::string line = folder.write("line.otte", smallLine());
  EXPECT_EQ(runBatch({"invert", line, "--no-robust"}).code, 2);
  EXPECT_EQ(fit(folder, {"--trigger-error", "5"}).code, 2) << "it needs --statics";
  EXPECT_EQ(fit(folder, {"--statics", "--trigger-error", "0"}).code, 2);
}

TEST(Fitted, refusesAModelThatThereIsNot) {
  const Folder folder;
  const Outcome unknown = fit(folder, {"--reference", "five-layers"});
  EXPECT_EQ(unknown.code, 2);
  EXPECT_THAT(unknown.err, HasSubstr("three-layers"));
}

constexpr const char* kKnown =
    "kind,name,x,depth,bottom,velocity,error\n"
    "borehole,B1,10,0,2,500,25\n"
    "borehole,B1,10,2,4,1800,90\n"
    "borehole,far,9000,0,2,500,25\n";

TEST(Fitted, holdsTheSectionToKnownGround) {
  const Folder folder;
  const std::string table = folder.write("known.csv", kKnown);
  const Outcome held =
      fit(folder, {"--constraints", table, "--quiet", "--project", folder / "line.tvsk"});
  ASSERT_EQ(held.code, 0) << held.err;
  EXPECT_THAT(held.err, HasSubstr("borehole far at 9000 m stands beyond the grid"));
  const ordered_json json = ordered_json::parse(held.out);
  const ordered_json& known = json["constraints"];
  EXPECT_EQ(known["count"], 2);
  EXPECT_EQ(known["residuals"].size(), 2U);
  EXPECT_EQ(known["unused"].size(), 1U);
  EXPECT_GE(known["rms_sigma"], 0.0);

  // What the project keeps is what it can be held to again.
  const std::vector<std::string> again = {
      "invert",  folder / "line.tvsk", "--method",       "fitted", "--json", "-",
      "--quiet", "--reference",        json["reference"]};
  const Outcome forgot = runBatch(again);
  EXPECT_THAT(forgot.err, HasSubstr("--constraints project"));
  EXPECT_TRUE(ordered_json::parse(forgot.out)["constraints"].is_null());
  std::vector<std::string> own = again;
  own.insert(own.end(), {"--constraints", "project"});
  const ordered_json same = ordered_json::parse(runBatch(own).out);
  EXPECT_EQ(same["constraints"]["count"], 2);
  EXPECT_NE(same["velocities"], ordered_json::parse(forgot.out)["velocities"]);

  const Outcome info = runBatch({"info", "--json", "-", folder / "line.tvsk"});
  const ordered_json kept = ordered_json::parse(info.out);
  const ordered_json& project = kept.is_array() ? kept[0] : kept;
  EXPECT_EQ(project["known_ground"]["boreholes"], 2);
  EXPECT_EQ(project["known_ground_changed_since"], false);
}

TEST(Fitted, refusesKnownGroundThatCannotBe) {
  const Folder folder;
  const std::string table = folder.write("known.csv", "kind,x,depth\nbody,1,2\n");
  const Outcome wrong = fit(folder, {"--constraints", table});
  EXPECT_EQ(wrong.code, 1);
  EXPECT_THAT(wrong.err, HasSubstr("known.csv, line 2: there is no velocity"));
  EXPECT_EQ(fit(folder, {"--constraints", folder / "none.csv"}).code, 1);
  EXPECT_EQ(fit(folder, {"--constraints", "project"}).code, 2);
}

}  // namespace
}  // namespace talvesk::batchtest
