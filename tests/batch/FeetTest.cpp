#include "batch/BatchRunner.h"
#include "io/TravelTimeFile.h"
#include "support/RefractionLines.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

/// What a command leaves behind, in the unit that it was asked for.
struct FeetRun {
  Outcome outcome;
  std::string picture;
  std::string report;
  std::string table;
};

std::string layeredLine() {
  const Folder folder;
  std::vector<refractionDataStructure::layerStruct> truth;
  const TomoDocument line = testing::standardDippingLine(testing::threeDippingLayers(), truth);
  EXPECT_TRUE(writeTravelTimes(folder / "line.otte", line).ok());
  return contentsOf(folder / "line.otte");
}

FeetRun runWith(const std::string& command, const std::string& line,
                const std::vector<std::string>& more, bool feet) {
  const Folder folder;
  const std::string table = folder / "table.csv";
  std::vector<std::string> arguments = {command,    folder.write("line.otte", line),
                                        "--image",  folder / "picture.svg",
                                        "--report", folder / "report.html",
                                        "--date",   "2026-01-01",
                                        "--json",   "-"};
  for (const std::string& one : more) arguments.push_back(one == "TABLE" ? table : one);
  if (feet) arguments.push_back("--feet");
  FeetRun run;
  run.outcome = runBatch(arguments);
  EXPECT_EQ(run.outcome.code, 0) << run.outcome.err;
  run.picture = contentsOf(folder / "picture.svg");
  run.report = contentsOf(folder / "report.html");
  run.table = contentsOf(table);
  return run;
}

/// The JSON without how long it took.
nlohmann::json resultsOf(const FeetRun& run) {
  nlohmann::json json = nlohmann::json::parse(run.outcome.out);
  json.erase("elapsed_s");
  json.erase("computing_s");
  return json;
}

TEST(Feet, areInPicturesAndReportsAndNowhereElse) {
  const struct {
    const char* command;
    std::string line;
    std::vector<std::string> more;
    const char* inFeet;
    const char* inMetres;
    const char* lengthInFeet;
    const char* lengthInMetres;
  } facts[] = {
      {"invert",
       smallLine(),
       {"--cell-size", "1", "--depth", "8", "--gridded", "TABLE"},
       "Elevation [ft]",
       "Elevation [m]",
       "78.74 ft",
       "24.00 m"},
      {"refract", layeredLine(), {"--table", "TABLE"}, "Z (ft)", "Z (m)", "483.92 ft", "147.50 m"}};
  for (const auto& fact : facts) {
    const FeetRun metres = runWith(fact.command, fact.line, fact.more, false);
    const FeetRun feet = runWith(fact.command, fact.line, fact.more, true);
    EXPECT_THAT(metres.picture, HasSubstr(fact.inMetres));
    EXPECT_THAT(feet.picture, HasSubstr(fact.inFeet));
    EXPECT_THAT(feet.picture, Not(HasSubstr(fact.inMetres)));
    EXPECT_THAT(metres.report, HasSubstr(fact.lengthInMetres));
    EXPECT_THAT(feet.report, HasSubstr(fact.lengthInFeet));
    EXPECT_EQ(resultsOf(feet), resultsOf(metres));
    EXPECT_EQ(feet.table, metres.table);
    EXPECT_FALSE(feet.table.empty());
  }
}

}  // namespace
}  // namespace talvesk::batchtest
