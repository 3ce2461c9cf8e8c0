#include "batch/BatchRunner.h"

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;

std::vector<std::string> fieldsOf(const std::string& line) {
  std::vector<std::string> fields;
  std::istringstream in(line);
  for (std::string field; std::getline(in, field, ',');) fields.push_back(field);
  return fields;
}

/// The residuals of a table, milliseconds.
std::vector<double> residualsIn(const std::string& table) {
  std::istringstream in(table);
  std::string line;
  std::getline(in, line);
  EXPECT_EQ(line,
            "shot,shot_position_m,geophone,geophone_position_m,offset_m,measured_ms,computed_ms,"
            "residual_ms,error_ms,residual_in_errors,suspect");
  std::vector<double> residuals;
  while (std::getline(in, line)) {
    const std::vector<std::string> fields = fieldsOf(line);
    EXPECT_EQ(fields.size(), 11U) << line;
    EXPECT_NEAR(std::stod(fields[6]) - std::stod(fields[5]), std::stod(fields[7]), 1e-6) << line;
    EXPECT_NEAR(std::stod(fields[7]) / std::stod(fields[8]), std::stod(fields[9]), 1e-6) << line;
    residuals.push_back(std::stod(fields[7]));
  }
  return residuals;
}

TEST(ResidualTables, areThoseOfTheMisfitThatIsToldWhateverTheMethod) {
  for (const char* method : {"smoothed", "fitted"}) {
    const Folder folder;
    const Outcome outcome =
        runBatch({"invert", folder.write("line.otte", smallLine()), "--cell-size", "1", "--method",
                  method, "--iterations", "3", "--residuals", folder / "r.csv", "--json", "-",
                  "--project", folder / "line.tvsk"});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const std::string table = contentsOf(folder / "r.csv");
    double squares = 0.0;
    const std::vector<double> residuals = residualsIn(table);
    ASSERT_FALSE(residuals.empty());
    for (const double each : residuals) squares += each * each;
    EXPECT_NEAR(std::sqrt(squares / static_cast<double>(residuals.size())),
                ordered_json::parse(outcome.out)["section_rmse_ms"].get<double>(), 1e-6)
        << method;

    const Outcome again =
        runBatch({"export", folder / "line.tvsk", "--residuals", folder / "again.csv"});
    ASSERT_EQ(again.code, 0) << again.err;
    EXPECT_EQ(contentsOf(folder / "again.csv"), table) << method;
  }
}

}  // namespace
}  // namespace talvesk::batchtest
