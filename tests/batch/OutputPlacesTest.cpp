#include "batch/SmallShots.h"

#include <cstdlib>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// As a shell would run it, in the folder. Readers of pipes give up after a while.
int shell(const Folder& folder, const std::string& command) {
  const std::string setting =
      "cd '" + (folder / "") + "' || exit 9; B=" TALVESK_BATCH "; HOME=$PWD;";
  return std::system((setting + "{ " + command + "; } 2>err").c_str());
}

TEST(OutputPlaces, mayBeTheNullDeviceAnyNumberOfTimes) {
  const Folder folder;
  folder.write("line.otte", smallLine());
  for (const char* command :
       {"$B invert line.otte --iterations 1 --cell-size 1 --json /dev/null --otte /dev/null "
        "--gridded /dev/null --project /dev/null",
        "$B convert line.otte /dev/null", "$B info line.otte --json /dev/null"}) {
    EXPECT_EQ(shell(folder, command), 0) << command << contentsOf(folder / "err");
  }
  struct stat info {};
  ASSERT_EQ(stat("/dev/null", &info), 0);
  EXPECT_TRUE(S_ISCHR(info.st_mode));
}

TEST(OutputPlaces, leaveTheStandardOutputToTheDataThatIsSentThere) {
  const Folder folder;
  folder.write("line.otte", smallLine());
  for (const std::string& place : {std::string("/dev/stdout"), std::string("-")}) {
    ASSERT_EQ(shell(folder,
                    "$B invert line.otte --iterations 1 --cell-size 1 --json " + place + " > out"),
              0);
    EXPECT_EQ(ordered_json::parse(contentsOf(folder / "out"))["iterations_done"], 1) << place;
    EXPECT_THAT(contentsOf(folder / "err"), HasSubstr("RMSE: [ms]"));
  }
  ASSERT_EQ(shell(folder, "$B convert line.otte /dev/stdout > out"), 0);
  EXPECT_EQ(contentsOf(folder / "out"), smallLine());
  EXPECT_THAT(contentsOf(folder / "err"), StartsWith("Wrote /dev/stdout"));
  EXPECT_NE(shell(folder, "$B invert line.otte --json - --gridded /dev/stdout > out"), 0);
  EXPECT_THAT(contentsOf(folder / "err"), HasSubstr("--gridded and --json name the same file"));
}

TEST(OutputPlaces, mayBeAPipeWhoseReaderComesLater) {
  const Folder folder;
  folder.write("line.otte", smallLine());
  ASSERT_EQ(shell(folder,
                  "mkfifo pipe; { sleep 0.3; timeout 60 cat pipe > out; } & $B invert line.otte "
                  "--iterations "
                  "1 --cell-size 1 --project whole.tvsk --otte pipe; code=$?; wait; exit $code"),
            0)
      << contentsOf(folder / "err");
  EXPECT_EQ(contentsOf(folder / "out"), smallLine());
}

TEST(OutputPlaces, keepTheOtherOutputsWhenTheReaderOfAPipeLeaves) {
  const Folder folder;
  folder.write("line.otte", smallLine());
  EXPECT_NE(
      shell(
          folder,
          "mkfifo pipe; timeout 60 head -c 1 pipe > /dev/null & $B invert line.otte --iterations 1 "
          "--cell-size 0.2 --json pipe --gridded out.txt --otte out.otte"),
      0);
  EXPECT_THAT(contentsOf(folder / "err"), HasSubstr("Cannot write pipe: nobody reads from it"));
  EXPECT_TRUE(folder.holds("out.txt") && folder.holds("out.otte"));
}

TEST(OutputPlaces, ofProjectsMayBePipes) {
  const Folder folder;
  folder.write("line.otte", smallLine());
  ASSERT_EQ(shell(folder,
                  "$B invert line.otte --iterations 1 --cell-size 1 --project /dev/stdout --quiet "
                  "| cat > copy.tvsk"),
            0);
  const Outcome info = runBatch({"info", folder / "copy.tvsk"}, {{"HOME", folder / ""}});
  EXPECT_THAT(info.out, HasSubstr("26 columns of 1 m")) << info.err;
}

TEST(OutputPlaces, discardWhateverGoesNowhere) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const std::size_t files = folder.fileCount();
  const Outcome outcome = runBatch({"invert", input, "--iterations", "1", "--cell-size", "1",
                                    "--report", "/dev/null", "--image", "/dev/null", "--quiet"});
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_EQ(folder.fileCount(), files);
}

TEST(EngineLines, areHeardOnRequestOnly) {
  const Folder folder;
  const std::string input = folder.write("line.otte", smallLine());
  const std::vector<std::string> plain = {"invert", input, "--iterations", "2", "--cell-size", "1"};
  std::vector<std::string> verbose = plain;
  verbose.emplace_back("--verbose");
  const Outcome silent = runBatch(plain);
  EXPECT_EQ(std::count(silent.out.begin(), silent.out.end(), '\n'), 11) << silent.out;
  EXPECT_EQ(std::count(silent.err.begin(), silent.err.end(), '\n'), 2) << silent.err;
  EXPECT_THAT(silent.err, StartsWith("External iteration 1 of 2"));
  const Outcome talking = runBatch(verbose);
  EXPECT_THAT(talking.out, HasSubstr("Setting Grid ... COMPLETED."));
  EXPECT_THAT(talking.out, HasSubstr("[RUNNIG DIJKSTRA]"));
}

TEST(Losses, areToldWhateverQuietSays) {
  const Folder folder;
  std::string line = smallLine();
  line.insert(line.rfind('\n', line.size() - 2) + 1, "1e10;");
  line.erase(line.rfind(';', line.size() - 3) + 1);  // one time more in front, one less at the end
  const Outcome late =
      runBatch({"convert", folder.write("late.otte", line + "\n"), folder / "out.otte", "--quiet"});
  EXPECT_EQ(late.code, 0);
  EXPECT_THAT(late.err, HasSubstr("late.otte: a pick that cannot be was dropped: shot 3, trace 1"));

  std::string places = "distance;height\n";
  for (int i = 0; i < 13; ++i) places += std::to_string(2 * i) + (i == 4 ? ";?\n" : ";5\n");
  const std::vector<std::string> shots = writeSmallShots(folder);
  const Outcome zero = runBatch({"pick", shots.front(), "-o", folder / "p.otte", "--geophones",
                                 folder.write("g.csv", places), "--quiet"});
  EXPECT_EQ(zero.code, 0) << zero.err;
  EXPECT_THAT(zero.err, HasSubstr("g.csv: line 1, \"distance;height\", was taken for a heading"));
  EXPECT_THAT(zero.err, HasSubstr("g.csv: 1 field that is no number was taken as 0: line 6 \"?\""));
  EXPECT_THAT(zero.err, Not(HasSubstr("uncomplete")));

  WrittenShot early = smallShot(0.5);
  early.delay = -1.0;  // longer than the record
  early.source.z = 0.0;
  const std::string odd = folder.write("bell\a.sg2", formatSeg2(early));
  const Environment home = {{"HOME", folder / ""}};
  const Outcome kept = runBatch({"pick", odd, "--project", folder / "p.tvsk", "--quiet"}, home);
  EXPECT_THAT(kept.err, HasSubstr("13 traces end before the shot"));
  EXPECT_THAT(kept.err, HasSubstr("1 shots were put on the line of the geophones"));
  EXPECT_THAT(kept.err, HasSubstr("could not be copied; its traces are saved without it"));
}

}  // namespace
}  // namespace talvesk::batchtest
