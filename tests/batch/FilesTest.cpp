#include "batch/BatchRunner.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using namespace std::string_literals;
using testing::HasSubstr;
using testing::StartsWith;

ordered_json infoOf(const std::string& path) {
  const Outcome outcome = runBatch({"info", path, "--json", "-"});
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  return ordered_json::parse(outcome.out);
}

struct BadFile {
  std::string name;
  std::string bytes;
};

class UnusableInput : public testing::TestWithParam<BadFile> {};

TEST_P(UnusableInput, failsWithOneLineAndLeavesNoFile) {
  const Folder folder;
  const std::string input = folder.write(GetParam().name, GetParam().bytes);
  const std::vector<std::vector<std::string>> commands = {
      {"info", input, "--json", folder / "info.json"},
      {"convert", input, folder / "out.otte"},
      {"invert", input, "--json", folder / "out.json", "--gridded", folder / "out.txt", "--otte",
       folder / "picks.otte", "--image", folder / "out.svg"}};
  for (const auto& arguments : commands) {
    const Outcome outcome = runBatch(arguments);
    EXPECT_EQ(outcome.code, 1) << arguments.front();
    EXPECT_THAT(outcome.err, StartsWith("talvesk-batch: ")) << arguments.front();
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_EQ(folder.fileCount(), 1U) << arguments.front();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Files, UnusableInput,
    testing::Values(BadFile{"empty.otte", ""}, BadFile{"line.OTTE", smallLine()},
                    BadFile{"line", smallLine()}, BadFile{"blank.otte", "otte \n1.0\n2\n1\n"},
                    BadFile{"short.otte", "otte\n1.0\n2\n1\n0;2;4;\n"},
                    BadFile{"words.otte", "otte\n1.0\n2\n1\n0;two;\n0;0;\n1;\n0;\n"},
                    BadFile{"zeros.otte", std::string(4096, '\0')},
                    BadFile{"escape.xyz", "\x1b[2J\x07 not a header\n"},
                    BadFile{"huge.otte", "otte\n1.0\n2\n999999999\n"},
                    BadFile{"curve.txt", "TX_CURVE\nVERSION:\n"},
                    BadFile{"picks.csv", ";;0;x\n;;0;0\n"}));

TEST(Files, missingFileIsNamed) {
  const Folder folder;
  const Outcome outcome = runBatch({"invert", folder / "none.otte"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("none.otte"));
}

TEST(Files, positionsThatMakeNoGridAreRefused) {
  const Folder folder;
  const std::string input =
      folder.write("heap.otte", "otte\n1.0\n2\n1\n5;5;5;\n0;0;0;\n5;\n0;\n0\n0\n1;2;3;\n");
  const Outcome outcome = runBatch({"invert", input, "--otte", folder / "out.otte"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("different positions"));
  EXPECT_FALSE(folder.holds("out.otte"));
}

TEST(Files, aGridThatCannotBeIsRefusedInOneLine) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{"--depth", "0"}, "without rows"},
      {{"--depth", "0.2", "--cell-size", "1"}, "without rows"},
      {{"--depth", "27"}, "array length"},
      {{"--cell-size", "100", "--depth", "26"}, "without rows"},
      {{"--cell-size", "30", "--depth", "26"}, "cells"}};
  for (const auto& [options, says] : cases) {
    std::vector<std::string> arguments = {"invert", input, "--json", folder / "out.json"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const Outcome outcome = runBatch(arguments);
    EXPECT_EQ(outcome.code, 1) << says;
    EXPECT_THAT(outcome.err, StartsWith("talvesk-batch: "));
    EXPECT_THAT(outcome.err, HasSubstr(says));
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_FALSE(folder.holds("out.json"));
  }
}

TEST(Files, aLayerModelWithoutPositiveVelocitiesIsRefused) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  std::vector<std::string> arguments = {
      "invert",       input,        "--cell-size", "1",  "--layer", "0:2:3000:10",
      "--layer",      "2:12:10:20", "--depth",     "26", "--json",  folder / "out.json",
      "--iterations", "1"};
  const Outcome outcome = runBatch(arguments);
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("velocity"));
  EXPECT_THAT(outcome.err, HasSubstr("--sharp-layers"));
  EXPECT_FALSE(folder.holds("out.json"));
  // No spline swings where there is none.
  for (const char* manner : {"sharp", "graded:1"}) {
    auto sharp = arguments;
    sharp.insert(sharp.end(), {"--sharp-layers", manner});
    const Outcome done = runBatch(sharp);
    EXPECT_EQ(done.code, 0) << done.err;
    EXPECT_TRUE(folder.holds("out.json"));
  }
}

TEST(Files, outputPlacesAreCheckedBeforeTheWork) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const std::pair<std::string, std::string> cases[] = {{folder / "nowhere/out.json", "no folder"},
                                                       {folder / "", "folder"}};
  for (const auto& [path, says] : cases) {
    const Outcome outcome = runBatch({"invert", input, "--json", path});
    EXPECT_EQ(outcome.code, 1) << path;
    EXPECT_THAT(outcome.err, HasSubstr(says)) << path;
    EXPECT_THAT(outcome.err, testing::Not(HasSubstr("External iteration"))) << path;
  }
}

TEST(Files, whatDoesNotFitOnStandardOutputIsAFailure) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  for (const std::string& arguments : {"info " + input + " --json -", "info " + input, "--help"s}) {
    const std::string command =
        std::string(TALVESK_BATCH) + " " + arguments + " >/dev/full 2>" + (folder / "err");
    EXPECT_NE(std::system(command.c_str()), 0) << arguments;
    EXPECT_EQ(contentsOf(folder / "err"), "talvesk-batch: Cannot write to the standard output\n")
        << arguments;
  }
}

TEST(Files, convertKeepsPositionsAndTimes) {
  const Folder folder;
  const std::string csv = folder.write("line.csv",
                                       ";;0;2.5;5;\n;;100;100.25;100.5;\n"
                                       "-1;99.9;2.125;7;12.5;\n6;100.6;11;0;-99000;\n");
  ASSERT_EQ(runBatch({"convert", csv, folder / "a.otte"}).code, 0);
  ASSERT_EQ(runBatch({"convert", folder / "a.otte", folder / "b.otte"}).code, 0);
  EXPECT_EQ(contentsOf(folder / "a.otte"), contentsOf(folder / "b.otte"));

  const ordered_json before = infoOf(csv);
  const ordered_json after = infoOf(folder / "b.otte");
  EXPECT_EQ(before["format"], "csv");
  EXPECT_EQ(after["format"], "otte");
  EXPECT_EQ(before["strings"], ordered_json::parse("[[[0.0,100.0],[2.5,100.25],[5.0,100.5]]]"));
  EXPECT_EQ(before["strings"], after["strings"]);
  ASSERT_EQ(after["shots"].size(), 2U);
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(before["shots"][i]["position"], after["shots"][i]["position"]);
    EXPECT_EQ(before["shots"][i]["times"], after["shots"][i]["times"]);
  }
}

TEST(Files, infoWritesItsKeysInOrderAndTimesInSeconds) {
  const Folder folder;
  const Outcome outcome = runBatch({"info", folder.write("line.otte", smallLine()), "--json", "-"});
  const ordered_json info = ordered_json::parse(outcome.out);
  std::string keys;
  for (const auto& item : info.items()) keys += item.key() + " ";
  for (const auto& item : info["shots"][1].items()) keys += item.key() + " ";
  EXPECT_EQ(keys,
            "format strings shots position string trace_set times errors_ms picks_good "
            "picks_doubtful picks_of_unknown_error ");
  EXPECT_EQ(info["shots"][1]["trace_set"], 1);
  EXPECT_NEAR(info["shots"][1]["times"][6].get<double>(), 0.5 / 600.0, 1e-8);
}

TEST(Files, oneUnreadableFileDoesNotHideTheOthers) {
  const Folder folder;
  const std::string good = folder.write("line.otte", smallLine());
  const Outcome outcome = runBatch({"info", good, folder / "none.xyz", good, "--json", "-"});
  EXPECT_EQ(outcome.code, 1);
  const ordered_json array = ordered_json::parse(outcome.out);
  ASSERT_EQ(array.size(), 3U);
  EXPECT_EQ(array[0], array[2]);
  EXPECT_EQ(array[0]["format"], "otte");
  EXPECT_EQ(array[1]["file"], folder / "none.xyz");
  EXPECT_EQ(array[1]["status"], 1);
  EXPECT_THAT(array[1]["message"].get<std::string>(), HasSubstr("none.xyz"));
}

TEST(Files, infoForReadersCountsWhatIsThere) {
  const Folder folder;
  const Outcome outcome = runBatch({"info", folder.write("line.otte", smallLine())});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.err, "");
  for (const char* text :
       {"format      otte", "strings     1", "geophones   13", "shots       3",
        "picks       39 of 39", "errors      -", "spacing     2 m", "0 to 24 m"}) {
    EXPECT_THAT(outcome.out, HasSubstr(text));
  }
}

TEST(Files, infoSendsNoControlCharactersOfNamesToATerminal) {
  const Folder folder;
  const std::string input = folder.write("a\x1b[2Jb\nc\xc2\x9b.otte", smallLine());
  const Outcome outcome = runBatch({"info", input});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_THAT(outcome.out, StartsWith((folder / "a [2Jb c  .otte") + "\n  format "));
}

TEST(Files, namesThatAreNoTextAreRefusedAndNothingGetsAnotherName) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const std::string place = (folder / "") + "/";
  const std::string odd = place + "latin \xe9.otte";
  std::ofstream(odd) << smallLine();
  for (const std::string& arguments :
       {"info '" + odd + "'", "convert '" + odd + "' '" + place + "x.otte'",
        "convert '" + input + "' '" + place + "\xe8.otte'", "demo '" + place + "\xe8'"}) {
    const std::string command =
        std::string(TALVESK_BATCH) + " " + arguments + " 2>" + (folder / "err");
    EXPECT_NE(std::system(command.c_str()), 0) << arguments;
    EXPECT_THAT(contentsOf(folder / "err"), HasSubstr("UTF-8")) << arguments;
    const std::filesystem::directory_iterator files(place);
    EXPECT_EQ(std::distance(begin(files), end(files)), 3) << arguments;
  }
}

TEST(Files, namesInAnyScriptWorkInAnyLocale) {
  const Folder folder;
  const std::string input = folder.write("Linie \xc3\xbc\xe5\xb1\xb1.otte", smallLine());
  for (const char* locale : {"C", "C.UTF-8"}) {
    const std::string output = folder / (std::string("Gel\xc3\xa4nde ") + locale + ".otte");
    const Outcome outcome = runBatch({"convert", input, output}, {{"LC_ALL", locale}});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(contentsOf(output), contentsOf(input)) << locale;
  }
}

}  // namespace
}  // namespace talvesk::batchtest
