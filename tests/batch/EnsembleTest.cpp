#include "batch/BatchRunner.h"

#include <algorithm>
#include <csignal>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;

/// A project with a fitted section.
class EnsembleRun : public testing::Test {
 protected:
  void SetUp() override {
    line = folder.write("line.otte", smallLine());
    ASSERT_EQ(invert({"-o", project}).code, 0);
  }
  Outcome invert(const std::vector<std::string>& more) const {
    std::vector<std::string> arguments = {"invert", line,       "--cell-size", "1",      "--depth",
                                          "6",      "--method", "fitted",      "--quiet"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return runBatch(arguments, {{"HOME", home / ""}});
  }
  static std::vector<std::string> arguments(const std::string& input,
                                            const std::vector<std::string>& more) {
    std::vector<std::string> all = {"ensemble", input, "--seed", "7", "--isovalue", "1000"};
    all.insert(all.end(), more.begin(), more.end());
    return all;
  }
  Outcome ensemble(const std::vector<std::string>& more) const {
    return runBatch(arguments(project, more), {{"HOME", home / ""}});
  }
  ordered_json jsonOf(const std::string& name) const {
    return ordered_json::parse(contentsOf(folder / name));
  }

  Folder folder;
  Folder home;
  std::string line;
  std::string project = folder / "line.tvsk";
};

TEST_F(EnsembleRun, hasTheMembersOfTheCertaintyOfAnInversion) {
  // The project remembers its section to the last bit by the members that it has, of any seed.
  const std::string sure = folder / "sure.tvsk";
  ASSERT_EQ(invert({"--certainty", "2", "--seed", "1", "-o", sure}).code, 0);
  ASSERT_EQ(invert({"--certainty", "6", "--certainty-depths", "1000", "--seed", "7", "--json",
                    folder / "invert.json"})
                .code,
            0);
  const Outcome outcome =
      runBatch(arguments(sure, {"--members", "6", "--json", folder / "ensemble.json", "--table",
                                folder / "cells.csv", "--depths", folder / "depths.csv"}));
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = jsonOf("ensemble.json");
  EXPECT_EQ(json["certainty"], jsonOf("invert.json")["certainty"]);
  EXPECT_EQ(json["fitted_now"], 6);
  EXPECT_EQ(json["missing"], 0);
  EXPECT_THAT(outcome.out, HasSubstr("Certainty: "));
  EXPECT_THAT(contentsOf(folder / "cells.csv"), HasSubstr(",members_with_rays,ln_deviation\n"));
  const std::string depths = contentsOf(folder / "depths.csv");
  EXPECT_EQ(std::count(depths.begin(), depths.end(), '\n'),
            1 + json["grid"]["col"].get<std::ptrdiff_t>());
}

TEST_F(EnsembleRun, goesOnAfterItWasKilledAndEndsWithTheSameBits) {
  ASSERT_EQ(ensemble({"--members", "60", "--json", folder / "whole.json"}).code, 0);
  const std::string out = folder / "sure.tvsk";
  const std::vector<std::string> asked = {"--members", "60",     "-o",
                                          out,         "--json", folder / "again.json"};
  for (const char* trigger : {" 2 of 60 members", " 20 of 60 members"}) {
    EXPECT_EQ(interruptBatch(arguments(project, asked), trigger, SIGKILL).code, -1);
    EXPECT_TRUE(folder.holds("sure.tvsk.members"));
    EXPECT_FALSE(folder.holds("sure.tvsk"));
  }
  const Outcome last = ensemble(asked);
  ASSERT_EQ(last.code, 0) << last.err;
  const ordered_json json = jsonOf("again.json");
  EXPECT_EQ(json["certainty"], jsonOf("whole.json")["certainty"]);
  EXPECT_LT(json["fitted_now"], 60);
  EXPECT_FALSE(folder.holds("sure.tvsk.members")) << "the project has them now";

  // Who asks the project for more goes on from there, too.
  ASSERT_EQ(runBatch(arguments(out, {"--members", "62", "--json", folder / "more.json"})).code, 0);
  EXPECT_EQ(jsonOf("more.json")["fitted_now"], 2);
}

TEST_F(EnsembleRun, keepsWhatIsDoneWhenItIsInterrupted) {
  const std::vector<std::string> asked = {"--members",          "400",    "-o",
                                          folder / "sure.tvsk", "--json", folder / "part.json"};
  const Outcome part = interruptBatch(arguments(project, asked), " 5 of 400 members");
  EXPECT_EQ(part.code, 0);
  EXPECT_THAT(part.err,
              HasSubstr(" of 400 members: stopped by the user; the same command goes on"));
  const int missing = jsonOf("part.json")["missing"].get<int>();
  EXPECT_GT(missing, 0);
  const std::vector<std::string> fewer = {"--members", std::to_string(400 - missing),
                                          "--keep",    folder / "sure.tvsk.members",
                                          "--json",    folder / "rest.json"};
  ASSERT_EQ(ensemble(fewer).code, 0);
  EXPECT_LT(jsonOf("rest.json")["fitted_now"], 400 - missing);
}

TEST_F(EnsembleRun, isPutTogetherOfPartsOfOtherRuns) {
  ASSERT_EQ(ensemble({"--members", "9", "--json", folder / "whole.json"}).code, 0);
  const std::string a = folder / "a.members", b = folder / "b.members";
  ASSERT_EQ(ensemble({"--members", "4", "--keep", a}).code, 0);
  ASSERT_EQ(ensemble({"--from", "7", "--members", "9", "--threads", "1", "--keep", b}).code, 0);
  const Outcome together = ensemble(
      {"--members", "9", "--add", b, "--add", a, "--json", folder / "parts.json", "--quiet"});
  ASSERT_EQ(together.code, 0) << together.err;
  EXPECT_EQ(jsonOf("parts.json")["certainty"], jsonOf("whole.json")["certainty"]);
  EXPECT_EQ(jsonOf("parts.json")["fitted_now"], 2);

  // What cannot be put together is told, and nothing is written.
  ASSERT_EQ(ensemble({"--from", "4", "--members", "6", "--keep", folder / "c.members"}).code, 0);
  std::string torn = contentsOf(a);
  torn[torn.size() / 2] = static_cast<char>(torn[torn.size() / 2] ^ 1);
  const struct {
    std::vector<std::string> add;
    const char* told;
  } cases[] = {
      {{"--add", a, "--add", folder / "c.members"}, "its member 4 is done already, others are not"},
      {{"--add", a, "--vary", "blocky=yes"}, "its members are those of another ensemble"},
      {{"--add", folder.write("torn", torn)}, "the file is damaged"},
      {{"--add", folder.write("short", torn.substr(0, 12))}, "the file is damaged"},
      {{"--add", project}, "no file with the members of an ensemble"},
      {{"--add", folder / "none"}, "none"},
      {{"--keep", folder.write("kept", torn)}, "remove it or name another file by --keep"},
  };
  for (const auto& each : cases) {
    std::vector<std::string> all = {"--members", "9", "-o", folder / "no.tvsk"};
    all.insert(all.end(), each.add.begin(), each.add.end());
    const Outcome outcome = ensemble(all);
    EXPECT_EQ(outcome.code, 1) << each.told;
    EXPECT_THAT(outcome.err, HasSubstr(each.told));
    EXPECT_FALSE(folder.holds("no.tvsk"));
  }
  EXPECT_EQ(contentsOf(folder / "kept"), torn) << "what is not its own stays";
}

TEST_F(EnsembleRun, tellsWhatItCannotDo) {
  const struct {
    std::vector<std::string> options;
    int code;
    const char* told;
  } cases[] = {
      {{"--vary", "depth=1,2"}, 2, "'depth' is none of smoothing, blocky, robust, statics"},
      {{"--vary", "blocky=maybe"}, 2, "'maybe' is neither yes nor no"},
      {{"--vary", "smoothing=0.5,0"}, 2, "'0' is not a number from 0.001 to 1000"},
      {{"--vary", "smoothing="}, 2, "is not SETTING=VALUE"},
      {{"--vary", "smoothing=1", "--vary", "smoothing=2", "--json", "-"}, 2, "is given twice"},
      {{"--members", "4"}, 2, "one of --out, --json, --table, --depths and --keep"},
      {{"--members", "1", "--json", "-"}, 2, "one member alone does not tell how sure"},
      {{"--from", "9", "--members", "8", "--json", "-"}, 2, "beyond the last member"},
      {{"--members", "70000"}, 2, "'70000' is not a whole number from 1 to 65536"},
      {{"--keep", project}, 2, "would overwrite the input"},
  };
  for (const auto& each : cases) {
    const Outcome outcome = ensemble(each.options);
    EXPECT_EQ(outcome.code, each.code) << each.told;
    EXPECT_THAT(outcome.err, HasSubstr(each.told));
  }
}

TEST_F(EnsembleRun, keepsASingleMemberButTellsNothingOfIt) {
  const std::string kept = folder / "one.members";
  const Outcome one = ensemble({"--members", "1", "--keep", kept});
  ASSERT_EQ(one.code, 0) << one.err;
  EXPECT_THAT(one.out, HasSubstr(", 1 member "));
  EXPECT_TRUE(folder.holds("one.members"));
  const Outcome told =
      ensemble({"--from", "2", "--members", "2", "--json", folder / "second.json"});
  EXPECT_EQ(told.code, 1);
  EXPECT_THAT(told.err, HasSubstr("only one member counts"));
  EXPECT_FALSE(folder.holds("second.json"));
}

TEST_F(EnsembleRun, variesSettings) {
  ASSERT_EQ(ensemble({"--members", "4", "--vary", "blocky=no,yes", "--vary", "smoothing=0.5,2",
                      "--json", folder / "varied.json"})
                .code,
            0);
  const ordered_json json = jsonOf("varied.json");
  EXPECT_EQ(json["vary"].dump(), R"({"smoothing":[0.5,2.0],"blocky":[false,true]})");
  EXPECT_THAT(json["certainty"]["models"][0]["name"].get<std::string>(), HasSubstr(", smooth"));
}

}  // namespace
}  // namespace talvesk::batchtest
