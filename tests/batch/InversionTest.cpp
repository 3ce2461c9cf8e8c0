#include "batch/BatchRunner.h"
#include "batch/OptionParsing.h"

#include <algorithm>
#include <set>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;

/// The arguments of a run that takes a moment.
std::vector<std::string> quickRun(const std::string& input,
                                  const std::vector<std::string>& more = {}) {
  std::vector<std::string> arguments = {"invert",       input, "--cell-size",         "1",
                                        "--iterations", "2",   "--solver-iterations", "5"};
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

/// The lines of times, the only ones that differ between two runs, are taken out.
std::string withoutElapsed(std::string json) {
  for (const char* key : {"\"elapsed_s\"", "\"computing_s\""}) {
    const std::size_t begin = json.find(key);
    if (begin != std::string::npos) json.erase(begin, json.find('\n', begin) - begin);
  }
  return json;
}

TEST(Inversion, standardOutputIsPureJsonWithItsKeysInOrder) {
  const Folder folder;
  const Outcome outcome =
      runBatch(quickRun(folder.write("line.otte", smallLine()), {"--json", "-"}));
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = ordered_json::parse(outcome.out);
  std::string keys;
  for (const auto& item : json.items()) keys += item.key() + " ";
  for (const auto& item : json["grid"].items()) keys += item.key() + " ";
  for (const auto& item : json["misfit_history"][0].items()) keys += item.key() + " ";
  EXPECT_EQ(keys,
            "grid iterations_done kept_iteration elapsed_s rmse_ms rms_percent max_error_ms "
            "max_error_percent "
            "picks_used excluded misfit_history velocities hit_counts coverage_m info_density "
            "to_be_draw computed_times section_rmse_ms section_rms_percent section_bias_ms "
            "section_max_abs_ms section_max_abs_shot section_max_abs_receiver "
            "trusted_rmse_ms trusted_rms_percent section_history section_times errors_ms "
            "sigma_floor_ms sigma_percent least_error_ms errors_raised picks_good picks_doubtful "
            "picks_of_unknown_error computing_s "
            "method chi2 chi2_all suspect_count chi2_history reference lambda suspects statics_ms "
            "righe col nV aLato "
            "x_offset iteration rmse_ms rms_percent ");
  // 26 m of array, half of it deep, in cells of 1 m.
  EXPECT_EQ(json["grid"],
            ordered_json::parse(R"({"righe":13,"col":26,"nV":6,"aLato":1.0,"x_offset":1.0})"));
  for (const char* key : {"velocities", "hit_counts", "coverage_m", "info_density", "to_be_draw"}) {
    EXPECT_EQ(json[key].size(), 13U * 26U) << key;
  }
  EXPECT_EQ(json["iterations_done"], 2);
  EXPECT_EQ(json["picks_used"], 39);
  EXPECT_EQ(json["misfit_history"].size(), 2U);
  EXPECT_EQ(json["misfit_history"][1]["rmse_ms"], json["rmse_ms"]);
  ASSERT_EQ(json["computed_times"].size(), 3U);
  EXPECT_EQ(json["computed_times"][2].size(), 13U);
  EXPECT_NE(json["section_times"], json["computed_times"]);
  ASSERT_EQ(json["section_history"].size(), 3U);
  EXPECT_EQ(json["section_history"][2]["section_rmse_ms"], json["section_rmse_ms"]);
  EXPECT_GE(json["section_max_abs_ms"], json["section_rmse_ms"]);
  EXPECT_THAT(outcome.err, HasSubstr("Section: RMS [ms] "));
  EXPECT_THAT(outcome.err, HasSubstr("RMSE: [ms] "));
}

TEST(Inversion, fitsTheSmallLine) {
  const Folder folder;
  const Outcome outcome = runBatch({"invert", folder.write("line.otte", smallLine()), "--cell-size",
                                    "0.5", "--json", "-", "--quiet"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = ordered_json::parse(outcome.out);
  EXPECT_LT(json["rmse_ms"].get<double>(), 1.5);
  EXPECT_LT(json["rmse_ms"].get<double>(), json["misfit_history"][0]["rmse_ms"].get<double>());
  for (const ordered_json& velocity : json["velocities"]) {
    EXPECT_LE(velocity.get<double>(), 3500.0 * (1.0 + 1e-9));
  }
}

TEST(Inversion, fitsToTheErrorsOfThePicksOnDemand) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const std::vector<std::string> command = {
      "invert", input,     "--cell-size", "1",         "--method", "fitted", "--reference",
      "start",  "--sigma", "0.5,3",       "--statics", "--json",   "-"};
  const Outcome outcome = runBatch(command);
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = ordered_json::parse(outcome.out);
  EXPECT_EQ(json["method"], "fitted");
  EXPECT_NEAR(json["chi2"].get<double>(), 1.0, 0.05) << json["chi2_history"];
  EXPECT_GE(json["chi2_all"], json["chi2"]);
  EXPECT_EQ(json["chi2_history"].size(), json["iterations_done"].get<std::size_t>() + 1);
  EXPECT_EQ(json["suspects"].size(), json["suspect_count"].get<std::size_t>());
  EXPECT_EQ(json["statics_ms"].size(), 3U);
  EXPECT_GT(json["lambda"].get<double>(), 0.0);
  EXPECT_EQ(json["computed_times"], json["section_times"]) << "there is no last solver pass";
  EXPECT_THAT(outcome.err, HasSubstr("Chi-square: "));
  EXPECT_THAT(outcome.err, HasSubstr("Time shifts of shots: [ms]"));
  std::vector<std::string> single = command;
  single.push_back("--single-thread");
  EXPECT_EQ(withoutElapsed(runBatch(single).out), withoutElapsed(outcome.out));
  single.back() = "--threads=3";
  EXPECT_EQ(withoutElapsed(runBatch(single).out), withoutElapsed(outcome.out));
}

TEST(Inversion, saysOnStandardErrorWhatAFitLeavesOut) {
  const Folder folder;
  const Outcome outcome = runBatch({"invert", folder.write("line.otte", smallLine()), "--cell-size",
                                    "1", "--method", "fitted", "--reference", "default", "--sigma",
                                    "0.01,0", "--quiet", "--iterations", "1"});
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("target not reached"));
}

TEST(Inversion, refusesOptionsThatItsMethodHasNoUseFor) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const std::vector<std::vector<std::string>> wrong = {{"--blocky"},
                                                       {"--statics", "--method", "smoothed"},
                                                       {"--method", "fitted", "--smoothing", "3"},
                                                       {"--method", "fitted", "--symmetric"},
                                                       {"--method", "joint"},
                                                       {"--sigma", "0.5"},
                                                       {"--sigma", "0,3"},
                                                       {"--sigma", "0.5,3,"}};
  for (const std::vector<std::string>& options : wrong) {
    std::vector<std::string> command = {"invert", input};
    command.insert(command.end(), options.begin(), options.end());
    const Outcome outcome = runBatch(command);
    EXPECT_EQ(outcome.code, 2) << options.front() << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr("--"));
  }
}

TEST(Inversion, goesFromCoarseToFineWhenAsked) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const Outcome plain = runBatch(quickRun(input, {"--json", "-"}));
  const Outcome outcome =
      runBatch(quickRun(input, {"--json", "-", "--coarse-to-fine", "--smoothing", "4"}));
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = ordered_json::parse(outcome.out);
  const ordered_json& all = json["coarse_to_fine"];
  EXPECT_EQ(all["radii"], ordered_json::parse("[4, 2]"));
  ASSERT_EQ(all["section_rmse_ms"].size(), 3U);
  const std::size_t kept = all["kept_iteration"];
  EXPECT_EQ(json["section_rmse_ms"], all["section_rmse_ms"][kept]);
  EXPECT_LE(all["trimmed_rmse_ms"][kept], all["trimmed_rmse_ms"][3 - kept]);
  EXPECT_EQ(json["misfit_history"].size(), kept);
  EXPECT_THAT(outcome.err, HasSubstr("From coarse to fine: iteration " + std::to_string(kept) +
                                     " of 2 is kept"));
  EXPECT_FALSE(ordered_json::parse(plain.out).contains("coarse_to_fine"));
  EXPECT_EQ(runBatch(quickRun(input, {"--coarse-to-fine", "--method", "fitted"})).code, 2);
}

TEST(Inversion, testsWhatItResolves) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const Outcome outcome =
      runBatch(quickRun(input, {"--json", "-", "--resolution", "checkerboard:2,5:20"}));
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = ordered_json::parse(outcome.out);
  const ordered_json& resolution = json["resolution"];
  ASSERT_EQ(resolution["tests"].size(), 2U);
  EXPECT_EQ(resolution["tests"][1]["size"], 5.0);
  EXPECT_EQ(resolution["tests"][1]["by_depth"].size(), 13U);
  EXPECT_EQ(resolution["tests"][1]["recovered"].size(), json["velocities"].size());
  EXPECT_EQ(resolution["tests"][1]["true"][0], 1.2);
  EXPECT_EQ(resolution["smallest_size"].size(), 13U);
  EXPECT_THAT(outcome.err, HasSubstr("Resolution, checkerboard of 20 %"));
  for (const char* wrong :
       {"checkerboard", "rings:2:10", "spike:0:10", "layer:2:100", "spike:2:"}) {
    EXPECT_EQ(runBatch({"invert", input, "--resolution", wrong}).code, 2) << wrong;
  }
  const Outcome tooSmall = runBatch(quickRun(input, {"--resolution", "checkerboard:0.5:10"}));
  EXPECT_EQ(tooSmall.code, 1);
  EXPECT_THAT(tooSmall.err, HasSubstr("less than a cell of the grid"));
}

TEST(Inversion, resultsDoNotDependOnThreadsOrRuns) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const Outcome many = runBatch(quickRun(input, {"--json", "-", "--quiet"}));
  const Outcome again = runBatch(quickRun(input, {"--json", "-", "--quiet"}));
  const Outcome single = runBatch(quickRun(input, {"--json", "-", "--quiet", "--single-thread"}));
  ASSERT_EQ(many.code, 0) << many.err;
  EXPECT_EQ(withoutElapsed(many.out), withoutElapsed(again.out));
  EXPECT_EQ(withoutElapsed(many.out), withoutElapsed(single.out));
  EXPECT_NE(withoutElapsed(many.out), many.out);
  for (const char* threads : {"1", "2", "3", "8"}) {
    const Outcome some =
        runBatch(quickRun(input, {"--json", "-", "--verbose", "--threads", threads}));
    EXPECT_EQ(withoutElapsed(many.out), withoutElapsed(some.out)) << threads;
    const std::string n = threads;
    EXPECT_THAT(some.err, HasSubstr(" to be run " + n + " by " + n + "\n"));
    EXPECT_THAT(some.err, HasSubstr(n == "1" ? ":Single thread mode" : ":Multi thread mode"));
  }
}

TEST(Inversion, saysWhatIsWrongWithANumberOfThreads) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const struct {
    std::vector<std::string> options;
    const char* text;
  } cases[] = {
      {{"--threads", "0"}, "--threads: '0' is not a whole number from 1 to 1024"},
      {{"--threads", "-2"}, "--threads: '-2' is not a whole number from 1 to 1024"},
      {{"--threads", "1025"}, "--threads: '1025' is not a whole number from 1 to 1024"},
      {{"--threads", "1.5"}, "--threads: '1.5' is not a whole number"},
      {{"--threads", "two"}, "--threads: 'two' is not a whole number"},
      {{"--threads", "2", "--single-thread"}, "--single-thread excludes --threads"},
  };
  for (const auto& c : cases) {
    const Outcome outcome = runBatch(quickRun(input, c.options));
    EXPECT_EQ(outcome.code, 2) << c.text;
    EXPECT_THAT(outcome.err, HasSubstr(c.text));
  }
}

TEST(Inversion, startsNoMoreThreadsThanAMachineHasUseFor) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const Outcome outcome = runBatch(quickRun(input, {"--threads", "1024", "--quiet"}));
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  const unsigned processors = std::max(std::thread::hardware_concurrency(), 1U);
  if (processors > 255) GTEST_SKIP() << "a machine that has use for them";
  EXPECT_THAT(outcome.err, HasSubstr("--threads 1024: this machine has " +
                                     std::to_string(processors) + " processors"));
  CLI::App app;
  unsigned threads = 0;
  addThreadCount(app, "", [&threads](unsigned count) { threads = count; });
  app.parse("--threads 1024");
  EXPECT_EQ(threads, std::max(4 * processors, 32U));
  app.parse("--threads 3");
  EXPECT_EQ(threads, 3U);
}

TEST(Inversion, everyOutputIsTheSameInALocaleWithDecimalCommas) {
  const Folder folder;
  // Not every system has the locale; it is made for the test.
  const std::string locale = folder / "de_DE.UTF-8";
  const std::string make = "localedef -i de_DE -f UTF-8 '" + locale + "' >/dev/null 2>&1";
  if (std::system(make.c_str()) != 0) GTEST_SKIP() << "no localedef here";
  const std::string input = folder.write("line.otte", smallLine());
  std::string texts[2];
  const Environment environments[2] = {{{"LC_ALL", "C"}},
                                       {{"LC_ALL", "de_DE.UTF-8"}, {"LOCPATH", folder / ""}}};
  for (int i = 0; i < 2; ++i) {
    const Outcome outcome = runBatch(
        quickRun(input, {"--json", "-", "--quiet", "--layer", "0:12.5:300.5:2500", "--gridded",
                         folder / "out.txt", "--line-y", "-2.5", "--otte", folder / "out.otte",
                         "--image", folder / "out.svg", "--contours", "5", "--rays"}),
        environments[i]);
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    texts[i] = withoutElapsed(outcome.out) + contentsOf(folder / "out.txt") +
               contentsOf(folder / "out.otte") + contentsOf(folder / "out.svg");
  }
  EXPECT_EQ(texts[0], texts[1]);
  EXPECT_THAT(contentsOf(folder / "out.txt"), HasSubstr(" -2.5 "));
  EXPECT_EQ(contentsOf(folder / "out.otte"), contentsOf(input));
}

TEST(Inversion, picturesAreOfTheKindThatTheirNameSays) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const std::pair<const char*, const char*> kinds[] = {
      {"a.png", "\x89PNG\r\n"}, {"b.svg", "<svg"}, {"c.pdf", "%PDF-"}};
  for (const auto& [name, begins] : kinds) {
    const Outcome outcome = runBatch(quickRun(input, {"--image", folder / name, "--quiet"}));
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_THAT(contentsOf(folder / name).substr(0, 1000), HasSubstr(begins)) << name;
  }
}

TEST(Inversion, reportsNameThoseTheyConcern) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  for (const char* name : {"report.pdf", "report.odt"}) {
    const Outcome outcome = runBatch(quickRun(input, {"--report", folder / name, "--client",
                                                      "Somebody", "--quiet", "--contours", "4"}),
                                     {{"DISPLAY", ""}, {"LC_ALL", "de_DE.UTF-8"}});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
  }
  const std::string unpack =
      "python3 -m zipfile -e '" + (folder / "report.odt") + "' '" + (folder / "unpacked'");
  ASSERT_EQ(std::system(unpack.c_str()), 0);
  EXPECT_THAT(contentsOf(folder / "unpacked/meta.xml"), HasSubstr("<dc:language>en<"));
  EXPECT_EQ(contentsOf(folder / "report.pdf").substr(0, 5), "%PDF-");
  EXPECT_THAT(contentsOf(folder / "report.odt").substr(0, 100), HasSubstr("opendocument.text"));

  EXPECT_EQ(runBatch({"invert", input, "--report", folder / "report.doc"}).code, 2);
  EXPECT_EQ(runBatch({"invert", input, "--client", "Somebody"}).code, 2);
  EXPECT_EQ(runBatch({"invert", input, "--contours", "4"}).code, 2);
  const Outcome nowhere = runBatch({"invert", input, "--report", folder / "no/report.pdf"});
  EXPECT_EQ(nowhere.code, 1);
  EXPECT_THAT(nowhere.err, HasSubstr("there is no folder"));
}

TEST(Inversion, interruptKeepsTheIterationUnderWay) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const Outcome outcome =
      interruptBatch({"invert", input, "--iterations", "100000", "--json", folder / "out.json"},
                     "External iteration 1 of");
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("Stopping after this external iteration"));
  EXPECT_THAT(outcome.out, HasSubstr(" of 100000, stopped by the user"));
  EXPECT_THAT(outcome.out, HasSubstr("RMSE: [ms] "));
  const ordered_json json = ordered_json::parse(contentsOf(folder / "out.json"));
  EXPECT_GE(json["iterations_done"].get<int>(), 1);
  EXPECT_LT(json["iterations_done"].get<int>(), 100000);
  EXPECT_EQ(json["misfit_history"].size(), json["iterations_done"].get<std::size_t>());
}

TEST(Inversion, positionsBeyondTheGridAreNamed) {
  // Two columns of 10 m end at 19 m, nodes are 2 m apart: the geophone at 20 m is taken to the last
  // node, those at 22 and 24 m and the shot at 23.5 m have none.
  const Folder folder;
  const Outcome outcome = runBatch({"invert", folder.write("line.otte", smallLine()), "--cell-size",
                                    "10", "--iterations", "1", "--json", "-"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = ordered_json::parse(outcome.out);
  std::set<std::pair<int, double>> shots;
  std::size_t receivers = 0;
  for (const ordered_json& entry : json["excluded"]) {
    if (entry["receiver"].is_null()) {
      shots.insert({entry["shot"].get<int>(), entry["x"].get<double>()});
    } else {
      ++receivers;
      EXPECT_GT(entry["x"].get<double>(), 21.0);
    }
  }
  EXPECT_EQ(shots, (std::set<std::pair<int, double>>{{2, 23.5}}));
  EXPECT_EQ(receivers, 4U);  // two geophones, for each of the two shots that are left
  EXPECT_EQ(json["picks_used"], 22);
  EXPECT_THAT(outcome.err, HasSubstr("Left out: shot 3 at x = 23.5 m"));
  EXPECT_THAT(outcome.err, HasSubstr("Picks used: 22 of 39"));
}

TEST(Inversion, namesWhatTheGridDoesNotReachEvenWhenQuiet) {
  const Folder folder;
  const Outcome outcome = runBatch({"invert", folder.write("line.otte", smallLine()), "--cell-size",
                                    "10", "--iterations", "1", "--quiet"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err,
            "talvesk-batch: warning: Left out: shot 3 at x = 23.5 m lies beyond the grid\n"
            "talvesk-batch: warning: Left out, beyond the grid: geophones 12-13 of string 1 at x = "
            "22 to 24 m\n"
            "talvesk-batch: warning: Left out: 17 of 39 picks\n"
            "talvesk-batch: warning: The nearest cell sizes that reach all: --cell-size 8.666 or "
            "11.364\n");
  for (const char* size : {"8.666", "11.364"}) {
    const Outcome whole = runBatch(
        {"invert", folder / "line.otte", "--cell-size", size, "--iterations", "1", "--quiet"});
    EXPECT_EQ(whole.err, "") << size;
  }
}

TEST(Inversion, aLineWithoutAUsablePickHasNoResult) {
  const std::string head = "otte\n1.0\n2\n1\n0;2;4;6;\n0;0;0;0;\n";
  const struct {
    const char* name;
    std::string line;
    const char* says;
  } cases[] = {
      {"unpicked.otte", head + "1;\n0;\n0\n0\n0;0;-99000;0;\n",
       "unpicked.otte: not a single usable pick"},
      // One column of 5 m: its nodes reach 5 m beyond the margin, the shot is at 6 m.
      {"beyond.otte", head + "6;\n0;\n0\n0\n9;6;3;0;\n", "all 3 are of shots or receivers"},
  };
  for (const auto& c : cases) {
    const Folder folder;
    const std::string input = folder.write(c.name, c.line);
    const Outcome outcome =
        runBatch({"invert", input, "--cell-size", "5", "--json", folder / "out.json", "--gridded",
                  folder / "out.txt", "--otte", folder / "picks.otte"});
    EXPECT_EQ(outcome.code, 1) << c.name;
    EXPECT_THAT(outcome.err, HasSubstr(c.says));
    EXPECT_EQ(folder.fileCount(), 1U) << c.name;
  }
}

TEST(Inversion, doubtfulChoicesAreWarnedOfAndCarriedOut) {
  const Folder folder;
  const std::string few = "otte\n1.0\n2\n1\n0;2;4;6;\n0;0;0;0;\n1;\n0;\n0\n0\n2;0;0;0;\n";
  const Outcome outcome = runBatch(
      quickRun(folder.write("line.otte", few), {"--min-velocity", "900", "--max-velocity", "800"}));
  EXPECT_EQ(outcome.code, 0);
  EXPECT_THAT(outcome.err, HasSubstr("warning: uncomplete set of picks"));
  EXPECT_THAT(outcome.err, HasSubstr("warning: the minimum velocity is above the maximum"));
}

TEST(Inversion, quietSaysNothing) {
  const Folder folder;
  const Outcome outcome =
      runBatch(quickRun(folder.write("line.otte", smallLine()),
                        {"--quiet", "--gridded", folder / "out.txt", "--z-offset", "-5"}));
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.out + outcome.err, "");
  EXPECT_TRUE(folder.holds("out.txt"));
}

TEST(Inversion, saysHowSureAFittedSectionIs) {
  const Folder folder;
  const std::string line = folder.write("line.otte", smallLine());
  const auto run = [&](const std::vector<std::string>& more) {
    std::vector<std::string> arguments = {
        "invert",      line, "--cell-size",        "2",         "--method", "fitted",
        "--certainty", "5",  "--certainty-depths", "1000,9000", "--json",   "-"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return runBatch(arguments);
  };
  const Outcome outcome = run({"--verbose", "--project", folder / "sure.tvsk"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("Certainty: 5 of 5 members"));
  const ordered_json json = ordered_json::parse(outcome.out);
  const ordered_json& certainty = json["certainty"];
  const std::size_t cells = json["velocities"].size();
  const int members = certainty["members"].get<int>();
  ASSERT_GT(members, 0);
  EXPECT_EQ(members + certainty["left_out"].get<int>(), 5);
  for (const char* key : {"median", "low", "high", "deviation", "members_with_rays"}) {
    ASSERT_EQ(certainty[key].size(), cells) << key;
  }
  for (std::size_t cell = 0; cell < cells; ++cell) {
    EXPECT_LE(certainty["low"][cell], certainty["median"][cell]);
    EXPECT_LE(certainty["median"][cell], certainty["high"][cell]);
  }
  ASSERT_EQ(certainty["depths"].size(), 2U);
  EXPECT_EQ(certainty["depths"][0]["velocity"], 1000.0);
  EXPECT_EQ(certainty["depths"][0]["median"].size(), json["grid"]["col"].get<std::size_t>());
  EXPECT_TRUE(certainty["depths"][1]["median"][0].is_null()) << "nowhere so fast";

  const Outcome again = run({"--single-thread"});
  EXPECT_EQ(ordered_json::parse(again.out)["certainty"], certainty);
  const Outcome other = run({"--seed", "2"});
  EXPECT_NE(ordered_json::parse(other.out)["certainty"]["median"], certainty["median"]);
}

TEST(Inversion, asksForCertaintyOfFittedSectionsOnly) {
  const Folder folder;
  const Outcome outcome =
      runBatch(quickRun(folder.write("line.otte", smallLine()), {"--certainty", "5"}));
  EXPECT_NE(outcome.code, 0);
  EXPECT_THAT(outcome.err, HasSubstr("--certainty: does not go with --method smoothed"));
}

}  // namespace
}  // namespace talvesk::batchtest
