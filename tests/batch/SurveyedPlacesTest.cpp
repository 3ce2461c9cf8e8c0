#include "batch/BatchRunner.h"
#include "batch/SmallShots.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using Json = nlohmann::json;

class SurveyedPlaces : public ::testing::Test {
 protected:
  Outcome run(const std::vector<std::string>& arguments) { return runBatch(arguments); }
  std::string in(const std::string& name) const { return folder / name; }
  Json jsonOf(const std::string& name) { return Json::parse(contentsOf(in(name))); }

  /// The 13 geophones of the small line, 5 m apart where they are said to be 2 m apart: three east
  /// and four north. The ground falls by 12 m to 5 m of the map.
  std::string table() {
    std::string text = "Name;Rechtswert;Hochwert;H\xC3\xB6he\n";
    for (int i = 0; i < 13; ++i) {
      text += "G" + std::to_string(i + 1) + ";" + std::to_string(652000 + 3 * i) + ",25;" +
              std::to_string(5074000 + 4 * i) + ",5;" + std::to_string(900 - 12 * i) + "\n";
    }
    return folder.write("points.csv", text + "S99;652000;5074000;900\n");
  }

  Folder folder;
};

TEST_F(SurveyedPlaces, becomeDistancesAndTheMapPositionOfALine) {
  const std::string line = folder.write("line.otte", smallLine());
  const Outcome outcome =
      run({"invert", line, "--cell-size", "2", "--positions", table(), "--positions-epsg", "32632",
           "--length", "slope", "--positions-json", in("p.json"), "--project", in("a.tvsk")});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("13 geophones, 0 shots; across the line 0 m RMS"));
  EXPECT_THAT(outcome.err, HasSubstr("no geophone or shot of the survey is there: line 15"));
  EXPECT_THAT(outcome.err, HasSubstr("by the distances so far: shots 1-3"));
  const Json told = jsonOf("p.json");
  EXPECT_EQ(told["length"], "slope");
  EXPECT_EQ(told["stations"], "number");
  EXPECT_EQ(told["points"][12]["geophone"], 13);
  EXPECT_EQ(told["points"][12]["before"]["x"], 24.0);
  EXPECT_EQ(told["points"][12]["after"]["x"], 156.0);
  EXPECT_EQ(told["points"][12]["after"]["elevation"], 756.0);
  EXPECT_EQ(told["points"][13]["line"], nullptr);

  ASSERT_EQ(run({"info", in("a.tvsk"), "--json", in("a.json")}).code, 0);
  const Json project = jsonOf("a.json");
  EXPECT_EQ(project["crs"], 32632);
  EXPECT_EQ(project["strings"][0][12][0], 156.0) << project["strings"].dump();
  EXPECT_EQ(run({"export", in("a.tvsk"), "--kml-line", in("a.kml")}).code, 0);
}

TEST_F(SurveyedPlaces, leaveTheMapPositionWithoutACode) {
  const std::vector<std::string> shots = writeSmallShots(folder);
  const Outcome outcome = run(
      {"pick", shots[0], "--positions", table(), "--line", "bent", "-o", in("a.otte"), "--quiet"});
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("without the code of its reference system"));
  EXPECT_THAT(contentsOf(in("a.otte")), HasSubstr(";60;"));
}

TEST_F(SurveyedPlaces, areThoseOfAConvertedFile) {
  const std::string line = folder.write("line.otte", smallLine());
  const std::vector<std::string> places = {"--positions", table(), "--length", "slope"};
  const auto with = [&](std::vector<std::string> arguments) {
    arguments.insert(arguments.end(), places.begin(), places.end());
    return run(arguments);
  };
  ASSERT_EQ(run({"info", line, "--json", in("before.json")}).code, 0);
  const Outcome info = with({"info", line, "--json", in("told.json")});
  ASSERT_EQ(info.code, 0) << info.err;
  EXPECT_THAT(info.out, HasSubstr("13 geophones, 0 shots"));
  const Outcome outcome = with({"convert", line, in("placed.sgt"), "--positions-epsg", "32632"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("does not hold the place of the line on the map"));
  ASSERT_EQ(run({"info", in("placed.sgt"), "--json", in("placed.json")}).code, 0);

  const Json before = jsonOf("before.json");
  const Json told = jsonOf("told.json");
  const Json placed = jsonOf("placed.json");
  EXPECT_EQ(before["strings"][0][12][0], 24.0);
  for (const Json* each : {&told, &placed}) {
    EXPECT_EQ((*each)["strings"][0][12], (Json{156.0, 756.0})) << (*each)["strings"].dump();
    ASSERT_EQ((*each)["shots"].size(), before["shots"].size());
    EXPECT_EQ((*each)["shots"][1]["times"], before["shots"][1]["times"]) << "the picks stay";
  }
  EXPECT_EQ(contentsOf(line), smallLine());
}

TEST_F(SurveyedPlaces, areThoseOfTheTableOfHeadersOfAllShots) {
  const std::vector<std::string> shots = writeSmallShots(folder);
  ASSERT_EQ(run({"pick", shots[0], shots[1], "--project", in("a.tvsk")}).code, 0);
  for (const auto& files : {std::vector<std::string>{shots[0], shots[1]}, {in("a.tvsk")}}) {
    std::vector<std::string> arguments = {"info",      "--positions",      table(),
                                          "--headers", in("h.csv"),        "--length",
                                          "slope",     "--positions-json", in("p.json")};
    arguments.insert(arguments.end(), files.begin(), files.end());
    const Outcome outcome = run(arguments);
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("13 geophones, 0 shots"));
    EXPECT_EQ(jsonOf("p.json")["points"][12]["after"]["x"], 156.0);
    // Geophone x and elevation by the table, and behind them what the files say.
    const std::string headers = contentsOf(in("h.csv"));
    EXPECT_THAT(headers, HasSubstr(",156,756,"));
    EXPECT_THAT(headers, HasSubstr(",24,11.2,"));
    EXPECT_THAT(headers, HasSubstr("\n2,13,"));
  }
  const Outcome refused =
      run({"info", shots[0], "--positions", in("none.csv"), "--headers", in("x.csv")});
  EXPECT_EQ(refused.code, 1);
  EXPECT_FALSE(folder.holds("x.csv"));
}

TEST_F(SurveyedPlaces, areOfOneSurvey) {
  const std::string line = folder.write("line.otte", smallLine());
  const std::string shot = writeSmallShots(folder).front();
  for (const auto& files : {std::vector<std::string>{line, line}, {line, shot}}) {
    std::vector<std::string> arguments = {"info", "--positions", table()};
    arguments.insert(arguments.end(), files.begin(), files.end());
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.code, 2);
    EXPECT_THAT(outcome.err, HasSubstr("a table is of one line"));
  }
  const Outcome same = run(
      {"convert", line, in("a.otte"), "--positions", table(), "--positions-json", in("a.otte")});
  EXPECT_EQ(same.code, 2) << same.err;
  EXPECT_FALSE(folder.holds("a.otte"));
  const std::string where = table();
  const std::string before = contentsOf(where);
  EXPECT_NE(run({"info", line, "--positions", where, "--json", where}).code, 0);
  EXPECT_EQ(contentsOf(where), before) << "the table that positions are read from";
}

TEST_F(SurveyedPlaces, areRefusedWhole) {
  const std::string line = folder.write("line.otte", smallLine());
  const std::string wrong = folder.write("wrong.csv", "x,z\n0,1\n5,2\n");
  const struct {
    std::vector<std::string> options;
    int code;
    const char* complaint;
  } cases[] = {
      {{"--line", "bent"}, 2, "--positions"},
      {{"--positions", table(), "--line", "crooked"}, 2, "none of straight, ends, bent"},
      {{"--positions", table(), "--positions-epsg", "4326"}, 1, "not a projected"},
      {{"--positions", table(), "--positions-json", line}, 1, "line.otte"},
      {{"--positions", wrong}, 1, "which columns hold easting"},
      {{"--positions", in("none.csv")}, 1, "none.csv"},
  };
  for (const auto& c : cases) {
    std::vector<std::string> arguments = {"invert", line, "--json", in("a.json")};
    arguments.insert(arguments.end(), c.options.begin(), c.options.end());
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.code, c.code) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr(c.complaint));
    EXPECT_FALSE(folder.holds("a.json")) << c.complaint;
  }
  EXPECT_EQ(contentsOf(line), smallLine());
  const Outcome json = run(
      {"info", writeSmallShots(folder).front(), "--positions", table(), "--json", in("a.json")});
  EXPECT_EQ(json.code, 2) << "which tells what stands in the file, not where the table puts it";
  EXPECT_THAT(json.err, HasSubstr("--positions-json"));
}

}  // namespace
}  // namespace talvesk::batchtest
