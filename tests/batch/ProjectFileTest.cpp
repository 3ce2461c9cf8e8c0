#include "batch/BatchRunner.h"

#include <QDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

/// A home of its own: projects are put together in a folder below it.
class Projects : public testing::Test {
 protected:
  Outcome run(std::vector<std::string> arguments) const {
    return runBatch(arguments, {{"HOME", home / ""}});
  }
  ordered_json infoOf(const std::string& path) const {
    const Outcome outcome = run({"info", path, "--json", "-"});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    return ordered_json::parse(outcome.out);
  }

  Folder folder;
  Folder home;
  std::string line = folder.write("line.otte", smallLine());
  std::string project = folder / "line.tvsk";
  std::vector<std::string> invert = {
      "invert", line,           "--cell-size", "1",  "--depth",
      "5",      "--iterations", "2",           "-o", folder / "line.tvsk"};
};

TEST_F(Projects, holdWhatAnInversionGave) {
  invert.insert(invert.end(), {"--json", folder / "run.json", "--quiet"});
  ASSERT_EQ(run(invert).code, 0);
  const ordered_json result = ordered_json::parse(contentsOf(folder / "run.json"));
  const ordered_json info = infoOf(project);
  EXPECT_EQ(info["velocities"], result["velocities"]);
  EXPECT_EQ(info["rms_percent"], result["rms_percent"]);
  EXPECT_EQ(info["grid"]["righe"], 5);
  EXPECT_EQ(info["shots"].size(), 3U);
  EXPECT_EQ(info["shots"][1]["computed_times"], result["section_times"][1]);
  EXPECT_EQ(info["section_rmse_ms"], result["section_rmse_ms"]);
  EXPECT_EQ(info["has_tomographic_info"], true);
  const Outcome text = run({"info", project});
  EXPECT_THAT(text.out, HasSubstr("  grid        5 rows, 26 columns of 1 m\n"));
}

TEST_F(Projects, continueFromTheirGridUnlessAnotherIsAskedFor) {
  ASSERT_EQ(run(invert).code, 0);
  const std::string next = folder / "next.tvsk";
  ASSERT_EQ(run({"invert", project, "--iterations", "1", "-o", next}).code, 0);
  EXPECT_EQ(infoOf(next)["grid"]["righe"], 5);
  ASSERT_EQ(run({"invert", project, "--depth", "8", "--iterations", "1", "-o", next}).code, 0);
  EXPECT_EQ(infoOf(next)["grid"]["righe"], 16);
}

TEST_F(Projects, areKnownByTheirSuffixWhateverItsCase) {
  ASSERT_EQ(run(invert).code, 0);
  const std::string copy = folder.write("COPY.TVSK", contentsOf(project));
  EXPECT_EQ(infoOf(copy)["format"], "tvsk");
  EXPECT_EQ(run({"invert", copy, "--iterations", "1"}).code, 0);
}

TEST_F(Projects, leaveNothingInTheWorkingFolder) {
  ASSERT_EQ(run(invert).code, 0);
  infoOf(project);
  const QDir work(QString::fromStdString(home / "Talvesk_TMP"));
  EXPECT_THAT(work.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), IsEmpty());
  EXPECT_EQ(folder.fileCount(), 2U);
}

TEST_F(Projects, thatAreNoneAreNamedInOneLine) {
  const std::string broken = folder.write("broken.tvsk", "no archive");
  for (const char* command : {"info", "invert"}) {
    const Outcome outcome = run({command, broken});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_THAT(outcome.err, StartsWith("talvesk-batch: " + broken + " is not a valid project: "));
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
  }
}

TEST_F(Projects, areNamedByTheirSuffixAndNotOverTheirInput) {
  invert.back() = folder / "line.zip";
  EXPECT_EQ(run(invert).code, 2);
  invert.back() = project;
  ASSERT_EQ(run(invert).code, 0);
  EXPECT_EQ(run({"invert", project, "-o", project}).code, 2);
  EXPECT_THAT(run({"invert", project, "--filter", "agc"}).err, HasSubstr("is no shot file"));
}

}  // namespace
}  // namespace talvesk::batchtest
