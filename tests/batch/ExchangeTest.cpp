#include "batch/BatchRunner.h"
#include "batch/SmallShots.h"

#include <gmock/gmock.h>

namespace talvesk::batchtest {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

const std::string kUnified =
    "3 # points\n#x z\n0 10\n5 11\n10 12\n2 # measurements\n#s g t err\n1 2 0.005 0.001\n"
    "1 3 0.01 0.002\n";

class Exchange : public ::testing::Test {
 protected:
  Outcome run(std::vector<std::string> arguments) { return runBatch(arguments); }
  std::string in(const std::string& name) const { return folder / name; }

  Folder folder;
};

TEST_F(Exchange, keepsErrorsOfPicksFromFileToFile) {
  const std::string unified = folder.write("picks.dat", kUnified);
  EXPECT_EQ(run({"convert", unified, in("again.sgt")}).err, "");
  EXPECT_THAT(contentsOf(in("again.sgt")), HasSubstr("#s g t err valid\n1 2 0.005 0.001 1\n"));
  const Outcome exchanged = run({"convert", unified, in("picks.otte"), "--quiet"});
  EXPECT_EQ(exchanged.code, 0);
  EXPECT_THAT(exchanged.err, HasSubstr("no place for the errors of the picks"));
  EXPECT_THAT(contentsOf(in("picks.otte")), HasSubstr("5;10;\n"));
}

TEST_F(Exchange, takesPicksWhoseSuffixIsOneOfShotFiles) {
  const std::string unified = folder.write("picks.dat", kUnified);
  EXPECT_THAT(run({"info", unified}).out, HasSubstr("format      sgt\n"));
  ASSERT_EQ(run({"convert", folder.write("line.otte", smallLine()), in("line.sgt")}).code, 0);
  const std::string line = folder.write("line.dat", contentsOf(in("line.sgt")));
  const Outcome outcome = run({"invert", line, "--cell-size", "1", "--json", in("a.json")});
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_TRUE(folder.holds("a.json"));
}

TEST_F(Exchange, asksForTheUnitThatATableDoesNotTell) {
  const std::string table = folder.write("a.csv", "sx,gx,t\n0,5,5\n0,10,10\n");
  const Outcome without = run({"info", table});
  EXPECT_EQ(without.code, 1);
  EXPECT_THAT(without.err, HasSubstr("in ms or in s; say it with --time-unit"));
  EXPECT_EQ(run({"convert", table, in("a.otte"), "--time-unit", "ms"}).code, 0);
  EXPECT_THAT(contentsOf(in("a.otte")), HasSubstr("5;10;\n"));
  EXPECT_EQ(run({"convert", table, in("a.otte"), "--time-unit", "min"}).code, 2);
}

TEST_F(Exchange, laysSurveysOntoATableOfElevations) {
  const std::string ground = folder.write("ground.txt", "distance\televation\n0\t100\n10\t102,5\n");
  const std::vector<std::string> shots = writeSmallShots(folder);
  const Outcome outcome = run({"pick", shots[0], "--elevations", ground, "-o", in("a.otte")});
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("ground.txt: 13 geophones, 1 shots\n"));
  EXPECT_THAT(outcome.err, HasSubstr("7 positions lie beyond its ends"));
  EXPECT_THAT(contentsOf(in("a.otte")), HasSubstr("\n100;100.5;101;101.5;102;102.5;102.5;"));
  EXPECT_EQ(run({"pick", shots[0], "--smooth-elevations", "-o", in("b.otte")}).code, 2);
  EXPECT_EQ(run({"pick", shots[0], "--elevations", in("none"), "-o", in("b.otte")}).code, 1);
}

TEST_F(Exchange, readsPositionsByTheNamesOfTheirColumns) {
  std::string table = "number\tz\tx\n";
  for (int i = 0; i < 13; ++i) table += std::to_string(i) + "\t7\t" + std::to_string(3 * i) + "\n";
  const Outcome outcome = run({"pick", writeSmallShots(folder)[0], "--geophones",
                               folder.write("g.csv", table), "-o", in("a.otte")});
  EXPECT_THAT(outcome.err, HasSubstr("g.csv: it was read by the names of its columns"));
  EXPECT_THAT(contentsOf(in("a.otte")), HasSubstr("\n0;3;6;9;12;15;18;21;24;27;30;33;36;\n7;7;"));
}

TEST_F(Exchange, writesRecordsThatPickAsTheirOriginals) {
  const std::vector<std::string> shots = writeSmallShots(folder);
  std::vector<std::string> write = {"records"};
  write.insert(write.end(), shots.begin(), shots.end());
  const auto with = [&](std::vector<std::string> more) {
    more.insert(more.begin(), write.begin(), write.end());
    return run(more);
  };
  const Outcome outcome = with({"--as", "seg2", "-o", in("new/records")});
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("shot01.sg2 to "));
  std::vector<std::string> before = {"pick", "-o", in("before.otte")};
  std::vector<std::string> after = {"pick", "-o", in("after.otte")};
  before.insert(before.end(), shots.begin(), shots.end());
  for (int i = 1; i <= 3; ++i)
    after.push_back(in("new/records/shot0" + std::to_string(i) + ".sg2"));
  ASSERT_EQ(run(before).code, 0);
  ASSERT_EQ(run(after).code, 0);
  EXPECT_EQ(contentsOf(in("after.otte")), contentsOf(in("before.otte")));

  EXPECT_EQ(with({"-o", in("segy"), "--one-file"}).code, 0);
  EXPECT_TRUE(folder.holds("segy/shots.sgy"));
  EXPECT_EQ(with({"-o", in("x"), "--one-file", "--as", "seg2"}).code, 2);
  EXPECT_EQ(with({"-o", in("x"), "--as", "miniseed"}).code, 2);
  EXPECT_EQ(with({"-o", shots[0]}).code, 1);
}

}  // namespace
}  // namespace talvesk::batchtest
