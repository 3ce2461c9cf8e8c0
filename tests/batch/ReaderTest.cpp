#include "batch/SmallShots.h"
#include "support/ShotFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using ::testing::HasSubstr;
using ::testing::Not;

/// Two shots in one file, which the program's rules make one of.
std::string twoShots() {
  std::vector<talvesk::testing::Seg2Channel> channels;
  for (const double source : {0.5, 12.5}) {
    const WrittenShot shot = smallShot(source);
    for (std::size_t i = 0; i < shot.traces.size(); ++i) {
      const auto place = [](const Point2D& point) {
        return std::to_string(point.x) + " 0 " + std::to_string(point.z);
      };
      channels.push_back(
          {4, shot.traces[i],
           talvesk::testing::seg2Area(
               {"DELAY -0.02", "RECEIVER_LOCATION " + place(shot.receivers[i]),
                "SAMPLE_INTERVAL 0.00025", "SOURCE_LOCATION " + place(shot.source)})});
    }
  }
  return talvesk::testing::seg2Bytes(channels);
}

TEST(Reader, ofTheProgramsRulesSaysWhatItLosesAndWhichOptionHelpsHoweverQuiet) {
  const Folder folder;
  const std::string file = folder.write("line.dat", twoShots());
  for (const char* command : {"pick", "invert", "refract"}) {
    // All reject the heap of receivers sooner or later; what matters is said before.
    const Outcome outcome = runBatch({command, file, "--quiet", "--project", folder / "out.tvsk"});
    EXPECT_THAT(outcome.err,
                HasSubstr("warning: " + file +
                          ": the program's rules make one shot of its 2. Add --reader standard"))
        << command;
  }
}

TEST(Reader, ofTheStandardPicksEveryShotOfAFileOfAnySuffix) {
  const Folder folder;
  const std::string file = folder.write("line.measured", twoShots());
  const Outcome outcome = runBatch({"pick", file, "--reader", "standard", "-o", folder / "out.otte",
                                    "--json", "-", "--project", folder / "out.tvsk"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, Not(HasSubstr("--reader")));
  const ordered_json shots = ordered_json::parse(outcome.out)["shots"];
  ASSERT_EQ(shots.size(), 2U);
  for (const auto& shot : shots) {
    EXPECT_EQ(shot["file"], file);
    EXPECT_GT(shot["accepted"], 10);
  }
  EXPECT_NE(shots[0]["record"], shots[1]["record"]);
  EXPECT_EQ(shots[1]["position"][0], 12.5);

  const Outcome refused = runBatch({"pick", file, "-o", folder / "none.otte"});
  EXPECT_EQ(refused.code, 1);
  EXPECT_THAT(refused.err, HasSubstr("cannot read it. Add --reader standard"));
  EXPECT_EQ(runBatch({"invert", folder / "out.tvsk", "--json", "-", "--cell-size", "2"}).code, 0);
}

TEST(Reader, isOneOfTwo) {
  const Outcome outcome = runBatch({"pick", "a.dat", "-o", "out.otte", "--reader", "best"});
  EXPECT_EQ(outcome.code, 2);
  EXPECT_THAT(outcome.err, HasSubstr("'best' is none of rules, standard"));
}

TEST(Reader, ofEitherKindHasItsColumnInInfo) {
  const Folder folder;
  const std::string file = folder.write("line.dat", twoShots());
  const Outcome outcome = runBatch({"info", file});
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  for (const char* text :
       {"by the program's rules", "by the standard", "  shots       1  ", "  traces      26 "}) {
    EXPECT_THAT(outcome.out, HasSubstr(text));
  }
  EXPECT_THAT(outcome.err, HasSubstr("make one shot of its 2"));

  const ordered_json json = ordered_json::parse(runBatch({"info", file, "--json", "-"}).out);
  EXPECT_EQ(json["traces"].size(), 26U);
  const ordered_json& standard = json["standard"];
  ASSERT_EQ(standard["shots"].size(), 2U);
  EXPECT_EQ(standard["shots"][1]["traces"].size(), 13U);
  EXPECT_EQ(standard["shots"][1]["traces"][0]["source"][0], 12.5);
  EXPECT_EQ(standard["lost_by_rules"].size(), 1U);
}

TEST(Reader, decidesWhetherInfoFails) {
  const Folder folder;
  const std::string file = folder.write("line.measured", twoShots());
  const Outcome byRules = runBatch({"info", file});
  EXPECT_EQ(byRules.code, 1);
  EXPECT_THAT(byRules.out, HasSubstr("not read"));
  EXPECT_THAT(byRules.err, HasSubstr("--reader standard"));
  const Outcome byStandard = runBatch({"info", file, "--reader", "standard"});
  EXPECT_EQ(byStandard.code, 0) << byStandard.err;
  EXPECT_EQ(byStandard.out, byRules.out);
}

}  // namespace
}  // namespace talvesk::batchtest
