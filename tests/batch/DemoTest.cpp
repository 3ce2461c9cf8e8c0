#include "batch/BatchRunner.h"
#include "batch/DemoLine.h"
#include "io/TravelTimeFile.h"

#include <algorithm>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;

/// Shallowest depth (metres) at which the model under survey abscissa x is faster than `velocity`.
double depthOfVelocity(const ordered_json& result, double x, double velocity) {
  const auto& grid = result["grid"];
  const double side = grid["aLato"].get<double>();
  const auto columns = grid["col"].get<std::size_t>();
  const auto rows = grid["righe"].get<std::size_t>();
  const auto column = static_cast<std::size_t>((x + grid["x_offset"].get<double>()) / side);
  for (std::size_t row = 0; row < rows; ++row) {
    if (result["velocities"][row * columns + column].get<double>() > velocity) {
      return static_cast<double>(row) * side;
    }
  }
  return static_cast<double>(rows) * side;
}

class Demo : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    sFolder = new Folder;
    sMade = runBatch({"demo", *sFolder / "new/demo"});
  }
  static void TearDownTestSuite() { delete sFolder; }
  static std::string line() { return *sFolder / "new/demo/demo.otte"; }

  static Folder* sFolder;
  static Outcome sMade;
};
Folder* Demo::sFolder = nullptr;
Outcome Demo::sMade;

TEST_F(Demo, makesTheFolderAndTheSameBytesEveryTime) {
  ASSERT_EQ(sMade.code, 0) << sMade.err;
  const std::string again = *sFolder / "again.otte";
  ASSERT_TRUE(writeTravelTimes(again, demoLine()).ok());
  EXPECT_EQ(contentsOf(line()), contentsOf(again));
}

TEST_F(Demo, isALineOf48GeophonesAnd11ShotsWithTimesThatGrowAwayFromTheShot) {
  TravelTimeData data;
  ASSERT_TRUE(readTravelTimes(line(), data).ok());
  ASSERT_EQ(data.strings.size(), 1U);
  ASSERT_EQ(data.strings[0].size(), 48U);
  ASSERT_EQ(data.records.size(), 11U);
  std::size_t outside = 0;
  for (const TravelTime& record : data.records) {
    const double shot = record.shotPos2d.x;
    if (shot < 0.0 || shot > 94.0) ++outside;
    ASSERT_EQ(record.ttMisurati.size(), 48U);
    for (std::size_t i = 0; i < 48; ++i) {
      const double offset = std::abs(data.strings[0][i].x - shot);
      // Never faster than the bedrock, never slower than the loose cover, but for the noise.
      EXPECT_GT(record.ttMisurati[i], 0.0);
      EXPECT_GT(record.ttMisurati[i], offset / 3200.0 - 0.002);
      EXPECT_LT(record.ttMisurati[i], offset / 500.0 + 0.002);
    }
  }
  EXPECT_EQ(outside, 4U);
}

TEST_F(Demo, defaultInversionFindsTheBuriedValley) {
  const Outcome outcome = runBatch({"invert", line(), "--json", "-", "--quiet"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = ordered_json::parse(outcome.out);
  EXPECT_EQ(json["picks_used"], 48 * 11);
  EXPECT_LT(json["rmse_ms"].get<double>(), 1.0);
  const double valley = depthOfVelocity(json, 52.0, 2300.0);
  const double left = depthOfVelocity(json, 22.0, 2300.0);
  const double right = depthOfVelocity(json, 80.0, 2300.0);
  EXPECT_GT(valley, left + 3.0) << left;
  EXPECT_GT(valley, right + 3.0) << right;
}

TEST(DemoFolder, aNameThatIsTakenIsAFailure) {
  const Folder folder;
  const std::string taken = folder.write("taken", "");
  const Outcome outcome = runBatch({"demo", taken});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.err.rfind("talvesk-batch: ", 0), 0U) << outcome.err;
}

}  // namespace
}  // namespace talvesk::batchtest
