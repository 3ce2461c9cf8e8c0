#include "batch/SmallShots.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;

ordered_json infoOf(const std::vector<std::string>& files, int code = 0,
                    const std::vector<std::string>& more = {}) {
  std::vector<std::string> arguments = {"info"};
  arguments.insert(arguments.end(), files.begin(), files.end());
  arguments.insert(arguments.end(), {"--json", "-"});
  arguments.insert(arguments.end(), more.begin(), more.end());
  const Outcome outcome = runBatch(arguments);
  EXPECT_EQ(outcome.code, code) << outcome.err;
  return ordered_json::parse(outcome.out);
}

std::string keysOf(const ordered_json& object) {
  std::string keys;
  for (const auto& item : object.items()) keys += item.key() + " ";
  return keys;
}

TEST(ShotInfo, tellsTheHeadersOfEveryTraceAndTheSamplesOnDemand) {
  const Folder folder;
  const std::string file = writeSmallShots(folder).front();
  const ordered_json brief = infoOf({file});
  EXPECT_EQ(keysOf(brief), "format status traces standard ");
  EXPECT_EQ(brief["format"], "seg2");
  EXPECT_EQ(brief["status"], 0);
  ASSERT_EQ(brief["traces"].size(), 13U);
  EXPECT_EQ(keysOf(brief["traces"][0]), "samples sample_interval source receiver delay ");
  EXPECT_EQ(brief["traces"][12],
            ordered_json::parse(R"({"samples":500,"sample_interval":0.00025,"source":[0.5,10.025],
                                    "receiver":[24.0,11.2],"delay":-0.02})"));

  const ordered_json full = infoOf({file}, 0, {"--samples"});
  const std::vector<float> recorded = smallShot(0.5).traces[3];
  const auto data = full["traces"][3]["data"].get<std::vector<float>>();
  ASSERT_EQ(data.size(), recorded.size());
  EXPECT_TRUE(std::equal(data.begin(), data.end() - 1, recorded.begin()));
  EXPECT_EQ(data.back(), 0.0F);
}

TEST(ShotInfo, writesTheHeadersOfAllTracesAsATable) {
  const Folder folder;
  const std::vector<std::string> shots = writeSmallShots(folder);
  std::vector<std::string> arguments = {"info", "--headers", folder / "h.csv"};
  arguments.insert(arguments.end(), shots.begin(), shots.end());
  const Outcome outcome = runBatch(arguments);
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const std::string table = contentsOf(folder / "h.csv");
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 1 + 3 * 13);
  EXPECT_EQ(table.substr(0, 16), "shot,trace,file,");
  EXPECT_THAT(table, HasSubstr(",RECEIVER_LOCATION"));
  EXPECT_THAT(table, HasSubstr("\n3,13,"));
  const std::string picks = folder.write("line.otte", smallLine());
  EXPECT_EQ(runBatch({"info", shots[0], picks, "--headers", folder / "x.csv"}).code, 2);
  EXPECT_FALSE(folder.holds("x.csv"));
}

TEST(ShotInfo, suFilesAreReadInTheByteOrderOfTheFileBeforeThem) {
  const Folder folder;
  const std::string segy = folder.write("a.sgy", bigEndianSegy({1.5F, -2.0F, 9.0F}));
  const std::string su = folder.write("b.SU", bigEndianSu({3.0F, 4.5F, 9.0F}));
  const ordered_json inOrder = infoOf({segy, su}, 0, {"--samples"});
  EXPECT_EQ(inOrder[0]["traces"][0]["data"], ordered_json::parse("[1.5,-2.0,0.0]"));
  EXPECT_EQ(inOrder[1]["format"], "su");
  EXPECT_EQ(inOrder[1]["traces"][0]["data"], ordered_json::parse("[3.0,4.5,0.0]"));
  const ordered_json swapped = infoOf({su, segy}, 0, {"--samples"});
  EXPECT_NE(swapped[0], inOrder[1]);
  EXPECT_EQ(swapped[1], inOrder[0]);
}

TEST(ShotInfo, filesThatFailHaveTheirStatusAndTheRestIsRead) {
  const Folder folder;
  const std::string good = writeSmallShots(folder).front();
  std::string bytes = contentsOf(good);
  for (std::size_t at = bytes.find("SAMPLE_INTERVAL"); at != std::string::npos;
       at = bytes.find("SAMPLE_INTERVAL", at)) {
    bytes[at] = 'X';
  }
  const std::string noInterval = folder.write("x.dat", bytes);
  const std::string line = folder.write("line.otte", smallLine());
  const std::string unknown = folder.write("notes.doc", "notes");
  const ordered_json array = infoOf({noInterval, good, unknown, line, folder / "none.su"}, 1);
  ASSERT_EQ(array.size(), 5U);
  const std::pair<std::size_t, int> failures[] = {{0, 2}, {2, 3}, {4, 1}};
  for (const auto& [i, status] : failures) {
    EXPECT_EQ(keysOf(array[i]), "file status message standard ");
    EXPECT_EQ(array[i]["status"], status) << i;
  }
  EXPECT_EQ(array[0]["file"], noInterval);
  EXPECT_EQ(array[1]["traces"].size(), 13U);
  EXPECT_EQ(array[3]["format"], "otte");
}

TEST(ShotInfo, aShotFileAloneThatFailsStillHasItsStatus) {
  const Folder folder;
  const ordered_json object = infoOf({folder.write("bad.sg2", "no shot")}, 1);
  EXPECT_EQ(object["status"], 1);
  EXPECT_THAT(object["message"].get<std::string>(), HasSubstr("bad.sg2"));
}

TEST(ShotInfo, truncatedFilesGiveZerosAndAWarning) {
  const Folder folder;
  const std::string bytes = formatSeg2(smallShot(0.5));
  const std::string file = folder.write("cut.sg2", bytes.substr(0, bytes.size() - 1000));
  const Outcome outcome = runBatch({"info", file, "--json", "-", "--samples"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_THAT(outcome.err, HasSubstr("cut.sg2"));
  const ordered_json data = ordered_json::parse(outcome.out)["traces"][12]["data"];
  ASSERT_EQ(data.size(), 500U);
  EXPECT_NE(data[0], 0.0);
  EXPECT_EQ(data[400], 0.0);
}

TEST(ShotInfo, forReadersSaysWhatIsCommonAndWhatDiffers) {
  const Folder folder;
  WrittenShot record = smallShot(0.5);
  record.traces[5].resize(100);
  const Outcome outcome = runBatch({"info", folder.write("a.sg2", formatSeg2(record))});
  EXPECT_EQ(outcome.code, 0);
  for (const char* text : {"format      seg2", "traces      13", "samples     100 to 500",
                           "interval    0.25 ms", "delay       -20 ms", "source      0.5 m"}) {
    EXPECT_THAT(outcome.out, HasSubstr(text));
  }
}

}  // namespace
}  // namespace talvesk::batchtest
