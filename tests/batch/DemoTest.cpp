#include "batch/BatchRunner.h"
#include "batch/DemoLine.h"
#include "batch/DemoShots.h"
#include "io/Seg2Writer.h"
#include "io/ShotFile.h"
#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

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

std::vector<std::string> shotsIn(const std::string& demo) {
  std::vector<std::string> files;
  for (const char* number : {"01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11"}) {
    files.push_back(demo + "/shot" + number + ".sg2");
  }
  return files;
}

/// Tests on the demo line. ctest makes it once and names its folder to them all; who runs this
/// program by hand has it made here. Nobody writes there.
class Demo : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    sFolder = new Folder;
    const char* shared = std::getenv("TALVESK_DEMO_LINE");
    sDemo = shared != nullptr ? shared : *sFolder / "demo";
    if (shared != nullptr) return;
    ASSERT_EQ(runBatch({"demo", sDemo}).code, 0);
  }
  static void TearDownTestSuite() { delete sFolder; }
  static std::string line() { return sDemo + "/demo.otte"; }
  static std::vector<std::string> shots() { return shotsIn(sDemo); }
  /// The results of a command on the shot files.
  static ordered_json ofShots(const std::string& command, const std::vector<std::string>& more) {
    std::vector<std::string> arguments = {command};
    for (const std::string& file : shots()) arguments.push_back(file);
    arguments.insert(arguments.end(), more.begin(), more.end());
    arguments.insert(arguments.end(), {"--quiet", "--json", "-"});
    const Outcome outcome = runBatch(arguments);
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    return ordered_json::parse(outcome.out);
  }

  static Folder* sFolder;    ///< for what the tests write
  static std::string sDemo;  ///< folder of the demo line
};
Folder* Demo::sFolder = nullptr;
std::string Demo::sDemo;

TEST_F(Demo, shotFilesAndGeometryFilesAgreeAboutPositions) {
  const ordered_json byHeaders = ofShots("pick", {"-o", *sFolder / "a.otte"});
  const ordered_json byFiles =
      ofShots("pick", {"-o", *sFolder / "b.otte", "--geophones", sDemo + "/geophones.csv",
                       "--shots", sDemo + "/shots.csv"});
  EXPECT_EQ(byHeaders, byFiles);
  const Outcome info = runBatch({"info", line(), "--json", "-"});
  EXPECT_EQ(byHeaders["strings"], ordered_json::parse(info.out)["strings"]);
}

TEST_F(Demo, recordsStartBeforeTheShotAndEndWithAZero) {
  SegyState state;
  ShotFileData data;
  ASSERT_TRUE(readShotFile(shots()[4], state, data).ok());
  EXPECT_TRUE(data.warnings.empty());
  ASSERT_EQ(data.traces.size(), 48U);
  for (const ShotRecord& trace : data.traces) {
    EXPECT_EQ(trace.source, (Point2D{33.0, std::round(demoElevation(33.0) * 100.0) / 100.0}));
    EXPECT_EQ(trace.delay, -0.01);
    EXPECT_EQ(trace.sampleInterval, 0.0000625);
    ASSERT_EQ(trace.samples.size(), 4000U);
    EXPECT_NE(trace.samples[3998], 0.0);
    EXPECT_EQ(trace.samples[3999], 0.0);
  }
}

TEST_F(Demo, firstBreaksFourTimesAboveTheNoiseArePickedWithinAMillisecond) {
  const ordered_json picks = ofShots("pick", {"-o", *sFolder / "picks.otte"});
  TravelTimeData truth;
  ASSERT_TRUE(readTravelTimes(line(), truth).ok());
  std::size_t clear = 0;
  std::size_t found = 0;
  for (std::size_t shot = 0; shot < truth.records.size(); ++shot) {
    const TravelTime& record = truth.records[shot];
    for (std::size_t i = 0; i < record.ttMisurati.size(); ++i) {
      if (demoSignalToNoise(truth.strings[0][i].x - record.shotPos2d.x) < 4.0) continue;
      ++clear;
      const double picked = picks["shots"][shot]["times"][i].get<double>();
      if (std::abs(picked - record.ttMisurati[i]) <= 0.001) ++found;
    }
  }
  EXPECT_GT(clear, 400U);
  EXPECT_GE(static_cast<double>(found), 0.95 * static_cast<double>(clear));
}

TEST_F(Demo, autopicksInvertAlmostAsWellAsTheTruePicks) {
  const Outcome truth = runBatch({"invert", line(), "--json", "-", "--quiet"});
  const double best = ordered_json::parse(truth.out)["rmse_ms"].get<double>();
  const ordered_json picked = ofShots("invert", {});
  EXPECT_GT(picked["picks_used"], 500);
  EXPECT_NEAR(picked["rmse_ms"].get<double>(), best, 0.2 * best);
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

TEST(DemoFolder, isMadeWithTheSameBytesEveryTime) {
  const Folder folder;
  const std::string demo = folder / "new/demo";
  const Outcome made = runBatch({"demo", demo});
  ASSERT_EQ(made.code, 0) << made.err;
  const std::string again = folder / "again.otte";
  const TomoDocument document = demoLine();
  ASSERT_TRUE(writeTravelTimes(again, document).ok());
  EXPECT_EQ(contentsOf(demo + "/demo.otte"), contentsOf(again));
  const std::vector<WrittenShot> records = demoShots(document);
  const std::vector<std::string> shots = shotsIn(demo);
  ASSERT_EQ(records.size(), shots.size());
  for (std::size_t i = 0; i < records.size(); ++i) {
    EXPECT_TRUE(contentsOf(shots[i]) == formatSeg2(records[i])) << i;
  }
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
