#include "batch/SmallShots.h"
#include "io/project/projectReader.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::vector<std::string> arguments(const std::string& command,
                                   const std::vector<std::string>& files,
                                   const std::vector<std::string>& more) {
  std::vector<std::string> all = {command};
  all.insert(all.end(), files.begin(), files.end());
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

class Picking : public testing::Test {
 protected:
  Outcome pick(const std::vector<std::string>& more) const {
    return runBatch(arguments("pick", mFiles, more));
  }
  ordered_json pickJson(std::vector<std::string> more = {}) const {
    more.insert(more.end(), {"-o", mFolder / "out.otte", "--json", "-"});
    const Outcome outcome = pick(more);
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    return ordered_json::parse(outcome.out);
  }
  std::string geophones(std::size_t count, double spacing, const std::string& separator) const {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
      text += std::to_string(spacing * static_cast<double>(i)) + separator + "5\n";
    }
    return mFolder.write("geophones.csv", text);
  }

  Folder mFolder;
  std::vector<std::string> mFiles = writeSmallShots(mFolder);
};

TEST_F(Picking, goesAlongTheLineWhenAskedTo) {
  const Outcome joint =
      pick({"-o", mFolder / "out.otte", "--method", "joint", "--json", mFolder / "out.json"});
  ASSERT_EQ(joint.code, 0) << joint.err;
  EXPECT_THAT(joint.out, HasSubstr("Picked along the line: "));
  const ordered_json json = ordered_json::parse(contentsOf(mFolder / "out.json"));
  std::size_t picks = 0;
  for (const auto& shot : json["shots"]) {
    picks += shot["accepted"].get<std::size_t>();
  }
  EXPECT_GT(picks, 30U);
  std::size_t good = 0;
  std::size_t doubtful = 0;
  for (const auto& shot : json["shots"]) {
    for (std::size_t i = 0; i < shot["times"].size(); ++i) {
      EXPECT_EQ(shot["errors_ms"][i].is_null(), shot["times"][i] < 0.0) << i;
      if (shot["errors_ms"][i].is_null()) continue;
      EXPECT_GE(shot["errors_ms"][i], 0.1);
      EXPECT_LE(shot["errors_ms"][i], 6.0);
      ++(shot["errors_ms"][i] <= 2.5 ? good : doubtful);
    }
    EXPECT_EQ(shot["picks_of_unknown_error"], 0);
    good -= shot["picks_good"].get<std::size_t>();
    doubtful -= shot["picks_doubtful"].get<std::size_t>();
  }
  EXPECT_EQ(good, 0U) << "as many as each shot says";
  EXPECT_EQ(doubtful, 0U);
  const Outcome unknown = pick({"-o", mFolder / "out.otte", "--method", "best"});
  EXPECT_NE(unknown.code, 0);
  EXPECT_THAT(unknown.err, HasSubstr("'best' is none of single, joint"));
}

TEST_F(Picking, isTheSameWhereverSamplesAre) {
  for (const std::vector<std::string>& how :
       {std::vector<std::string>{"--method", "joint"}, {"--filter", "agc"}}) {
    std::vector<std::string> memory = how;
    memory.insert(memory.end(), {"--samples-on-disk", "never"});
    std::vector<std::string> disk = how;
    disk.insert(disk.end(), {"--samples-on-disk", "always"});
    EXPECT_EQ(pickJson(disk), pickJson(memory)) << how.back();
  }
  const Outcome unknown = pick({"-o", mFolder / "out.otte", "--samples-on-disk", "sometimes"});
  EXPECT_NE(unknown.code, 0);
  EXPECT_THAT(unknown.err, HasSubstr("'sometimes' is none of automatic, always, never"));
}

TEST_F(Picking, tellsThatSamplesAreOnTheDisk) {
  const std::string words = "on the disk";
  const std::vector<std::string> output = {"-o", mFolder / "out.otte", "--samples-on-disk"};
  std::vector<std::string> always = output;
  always.emplace_back("always");
  std::vector<std::string> never = output;
  never.emplace_back("never");
  EXPECT_THAT(pick(always).out, HasSubstr(words));
  EXPECT_THAT(pick(never).out, Not(HasSubstr(words)));
}

TEST_F(Picking, namesTheShotWhoseRecordIsLateBesideTheOthers) {
  std::vector<std::string> files;
  for (const double x : {0.0, 6.0, 12.0, 18.0, 24.0}) {
    WrittenShot record = smallShot(x);
    for (std::vector<float>& samples : record.traces) {
      if (x == 12.0)
        samples.insert(samples.begin(), samples.begin(), samples.begin() + 24);  // 6 ms
    }
    files.push_back(
        mFolder.write("late" + std::to_string(files.size()) + ".sg2", formatSeg2(record)));
  }
  const std::string project = mFolder / "late.tvsk";
  const Outcome outcome = runBatch(arguments(
      "pick", files, {"--method", "joint", "--project", project, "--json", mFolder / "late.json"}));
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("Reciprocity: 10 pairs of shots, RMS "));
  EXPECT_THAT(outcome.out, HasSubstr("shot 3: 4 pairs, RMS "));
  EXPECT_THAT(outcome.out, HasSubstr(" ms late by 4 of them"));
  EXPECT_THAT(outcome.out, HasSubstr("  largest differences:\n  shots "));
  const ordered_json found = ordered_json::parse(contentsOf(mFolder / "late.json"))["reciprocity"];
  const ordered_json& late = found["shots"][2];
  EXPECT_NEAR(late["mend_ms"].get<double>(), 6.0, 2.0 * late["shift_error_ms"].get<double>());
  EXPECT_LT(late["shift_error_ms"].get<double>(), 0.7);
  EXPECT_TRUE(found["shots"][1]["mend_ms"].is_null());
  EXPECT_EQ(found["pairs"].size(), 10U);
  EXPECT_EQ(found["pairs"][0]["shots"], ordered_json({0, 1}));
  EXPECT_EQ(found["pairs"][0]["traces"], ordered_json({3, 0}));
  EXPECT_NEAR(found["pairs"][0]["difference_ms"].get<double>(), 0.0, 0.6);

  const Outcome checked = runBatch({"check", project, "--json", "-"});
  ASSERT_EQ(checked.code, 0) << checked.err;
  EXPECT_EQ(ordered_json::parse(checked.out)["reciprocity"]["pairs"], found["pairs"]);
}

TEST_F(Picking, writesThePicksThatItTellsOf) {
  const Outcome outcome = pick({"-o", mFolder / "out.otte", "--json", mFolder / "out.json"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("Shots: 3, traces: 39"));
  EXPECT_THAT(outcome.out, HasSubstr("up to 80 samples"));
  EXPECT_THAT(outcome.out, Not(HasSubstr("[FIRST BREAK]")));
  const ordered_json json = ordered_json::parse(contentsOf(mFolder / "out.json"));
  std::string keys;
  for (const auto& item : json.items()) keys += item.key() + " ";
  for (const auto& item : json["shots"][0].items()) keys += item.key() + " ";
  EXPECT_EQ(keys,
            "filter strings shots reciprocity position string trace_set times errors_ms picks_good "
            "picks_doubtful "
            "picks_of_unknown_error file samples_before_shot accepted rejected ");
  const ordered_json written =
      ordered_json::parse(runBatch({"info", mFolder / "out.otte", "--json", "-"}).out);
  EXPECT_EQ(written["strings"], json["strings"]);
  std::size_t accepted = 0;
  for (std::size_t shot = 0; shot < 3; ++shot) {
    EXPECT_EQ(written["shots"][shot]["position"], json["shots"][shot]["position"]);
    const auto times = json["shots"][shot]["times"].get<std::vector<double>>();
    const auto read = written["shots"][shot]["times"].get<std::vector<double>>();
    ASSERT_EQ(times.size(), read.size());
    std::size_t picks = 0;
    for (std::size_t i = 0; i < times.size(); ++i) {
      EXPECT_NEAR(times[i], read[i], 1e-6);
      if (times[i] > 0.0) ++picks;
    }
    EXPECT_EQ(json["shots"][shot]["accepted"], picks);
    EXPECT_EQ(json["shots"][shot]["rejected"], 13 - picks);
    EXPECT_EQ(json["shots"][shot]["errors_ms"], ordered_json(std::vector<std::nullptr_t>(13)));
    EXPECT_EQ(json["shots"][shot]["picks_of_unknown_error"], picks);
    accepted += picks;
  }
  EXPECT_GT(accepted, 30U);
  EXPECT_THAT(outcome.out, HasSubstr(std::to_string(accepted) + " accepted"));
}

TEST_F(Picking, countsFromTheFirstSampleWhenAsked) {
  const ordered_json counted = pickJson();
  const ordered_json recorded = pickJson({"--as-recorded"});
  EXPECT_EQ(counted["shots"][0]["samples_before_shot"], kSmallLead);
  EXPECT_EQ(recorded["shots"][0]["samples_before_shot"], 0);
  std::size_t compared = 0;
  for (std::size_t i = 0; i < 13; ++i) {
    const double late = recorded["shots"][0]["times"][i].get<double>();
    const double early = counted["shots"][0]["times"][i].get<double>();
    if (late < 0.0 || early < 0.0) continue;
    ++compared;
    EXPECT_NEAR(late - early, static_cast<double>(kSmallLead) * kSmallInterval, 1e-9) << i;
  }
  EXPECT_GT(compared, 8U);
}

TEST_F(Picking, everyFilterHasItsSay) {
  const ordered_json raw = pickJson()["shots"];
  const std::vector<std::pair<std::string, std::vector<std::string>>> filters = {
      {"hushel", {}},
      {"band", {"--low", "100"}},
      {"band", {"--high", "150", "--high-order", "3"}},
      {"band", {"--low", "300", "--low-order", "2", "--high", "20"}},
      {"notch", {"--notch", "60", "--notch-harmonics", "2", "--notch-quality", "5"}},
      {"velocity", {"--slowest", "200", "--velocity-taper", "50"}}};
  std::vector<ordered_json> seen = {raw};
  for (const auto& [name, corners] : filters) {
    std::vector<std::string> options = {"--filter", name};
    options.insert(options.end(), corners.begin(), corners.end());
    const ordered_json json = pickJson(options);
    EXPECT_EQ(json["filter"], name);
    EXPECT_GT(json["shots"][1]["accepted"], 5) << name;
    EXPECT_EQ(std::count(seen.begin(), seen.end(), json["shots"]), 0) << json["shots"];
    seen.push_back(json["shots"]);
  }
  // Gain does not move breaks as sharp as these.
  const ordered_json agc = pickJson({"--filter", "agc"});
  EXPECT_EQ(agc["filter"], "agc");
  EXPECT_GT(agc["shots"][1]["accepted"], 5);
  EXPECT_EQ(pickJson({"--filter", "none"})["shots"], raw);
}

TEST_F(Picking, geometryFilesReplaceThePositionsOfTheHeaders) {
  for (const std::string separator : {";", ",", " "}) {
    const std::string places = geophones(13, 3.0, separator);
    const std::string shots = mFolder.write(
        "shots.csv", "shot_id_a" + separator + "1.5" + separator + "4\nshot_id_b" + separator +
                         "19" + separator + "4\nshot_id_c" + separator + "35" + separator + "4\n");
    const ordered_json json =
        pickJson({"--geophones", places, "--shots", shots, "--separator", separator});
    ASSERT_EQ(json["strings"].size(), 1U);
    EXPECT_EQ(json["strings"][0][12], ordered_json::parse("[36.0,5.0]"));
    EXPECT_EQ(json["shots"][2]["position"], ordered_json::parse("[35.0,4.0]"));
    EXPECT_EQ(json["shots"][2]["string"], 0);
  }
}

TEST_F(Picking, shotsWithoutElevationsComeOntoTheLineOfTheGeophones) {
  WrittenShot record = smallShot(0.5);
  record.source.z = 0.0;
  mFiles = {mFolder.write("flat.sg2", formatSeg2(record))};
  const std::string places = geophones(13, 3.0, ";");
  const Outcome outcome = pick({"-o", mFolder / "a.otte", "--geophones", places});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("1 shots were put on the line of the geophones"));
  const ordered_json json = pickJson({"--geophones", places});
  EXPECT_EQ(json["shots"][0]["position"][1], 5.0);
}

TEST_F(Picking, shotsThatAFilePutsBelowTheGeophonesStayThere) {
  const std::string places = geophones(13, 3.0, ";");
  const std::string low = mFolder.write("low.csv", "shot_1;1;0\nshot_2;19;0\nshot_3;35;0\n");
  const Outcome outcome = pick({"-o", mFolder / "a.otte", "--geophones", places, "--shots", low});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("low.csv: all shots are at elevation 0"));
  const ordered_json json = pickJson({"--geophones", places, "--shots", low});
  for (const auto& shot : json["shots"]) EXPECT_EQ(shot["position"][1], 0.0);
}

TEST_F(Picking, warnsOfNumbersThatAreCutAtDecimalCommas) {
  const std::string shots = mFolder.write("c.csv", "shot_1;1;4,5\nshot_2;19;4\nshot_3;35;0\n");
  const Outcome outcome = pick({"-o", mFolder / "a.otte", "--shots", shots});
  EXPECT_THAT(outcome.err, HasSubstr("c.csv: numbers were cut at their decimal commas"));
  EXPECT_THAT(outcome.err, Not(HasSubstr("put on the line"))) << "some have elevations";
}

TEST_F(Picking, whatDoesNotFitFailsInOneLineAndLeavesTheOldFile) {
  const std::string out = mFolder.write("out.otte", "old");
  const std::string few = geophones(12, 3.0, ";");
  const std::string uneven = mFolder.write(
      "uneven.csv", "0;5\n3;5\n6;5\n9;5\n12;5\n15;5\n18;5\n22;5\n24;5\n27;5\n30;5\n33;5\n36;5\n");
  const std::string twoShots = mFolder.write("two.csv", "shot_id_1;1;0\nshot_id_2;2;0\n");
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{"--geophones", few}, "12 geophones do not fit"},
      {{"--geophones", few, "--separator", ","}, "geophones.csv"},
      {{"--shots", twoShots}, "2 shots do not fit 3"},
      {{"--shots", mFolder / "none.csv"}, "none.csv"},
      {{"--filter", "band", "--low", "5000"}, "5000 Hz"},
      {{"--filter", "band", "--high", "2000"}, "2000 Hz"},
      {{"--filter", "velocity", "--geophones", uneven}, "not evenly spaced"},
      {{mFolder / "none.sg2"}, "none.sg2"},
      {{mFolder / "line.otte"}, "suffix"}};
  const std::size_t files = mFolder.fileCount();
  for (const auto& [options, says] : cases) {
    std::vector<std::string> all = {
        "-o", out, "--json", mFolder / "out.json", "--image", mFolder / "out.pdf"};
    all.insert(all.begin(), options.begin(), options.end());
    const Outcome outcome = pick(all);
    EXPECT_EQ(outcome.code, 1) << says;
    EXPECT_THAT(outcome.err, StartsWith("talvesk-batch: "));
    EXPECT_THAT(outcome.err, HasSubstr(says));
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_EQ(contentsOf(out), "old") << says;
    EXPECT_EQ(mFolder.fileCount(), files) << says;
  }
}

TEST_F(Picking, picturesAreOnePdfOrOneFilePerShot) {
  ASSERT_EQ(pick({"-o", mFolder / "out.otte", "--image", mFolder / "all.pdf", "--image",
                  mFolder / "one.svg", "--filter", "agc", "--quiet"})
                .code,
            0);
  EXPECT_THAT(contentsOf(mFolder / "all.pdf"), StartsWith("%PDF-"));
  for (const char* name : {"one_01.svg", "one_02.svg", "one_03.svg"}) {
    EXPECT_THAT(contentsOf(mFolder / name), HasSubstr("<svg")) << name;
  }
}

TEST_F(Picking, sheetsHaveSeveralShotsEach) {
  ASSERT_EQ(pick({"-o", mFolder / "out.otte", "--image", mFolder / "all.pdf", "--image",
                  mFolder / "two.svg", "--sheet", "1x2", "--quiet"})
                .code,
            0);
  EXPECT_THAT(contentsOf(mFolder / "all.pdf"), HasSubstr("/Count 2"));
  EXPECT_THAT(contentsOf(mFolder / "two_01.svg"), HasSubstr("<svg"));
  EXPECT_THAT(contentsOf(mFolder / "two_02.svg"), HasSubstr("<svg"));
  ASSERT_EQ(pick({"-o", mFolder / "out.otte", "--image", mFolder / "wide.svg", "--sheet", "10x10",
                  "--reduce", "900", "--by-offset", "signed", "--time-gain", "2", "--quiet"})
                .code,
            0);
  for (const char* words : {"Reduced time [ms], t - |x|/900 m/s", "Offset [m]", "t^2"}) {
    EXPECT_THAT(contentsOf(mFolder / "wide.svg"), HasSubstr(words));
  }
  for (const std::string sheet : {"2", "0x2", "2x11", "2x3x4", "1.5x2", "axb"}) {
    const Outcome wrong = pick(
        {"-o", mFolder / "out.otte", "--image", mFolder / "all.pdf", "--sheet", sheet, "--quiet"});
    EXPECT_EQ(wrong.code, 2) << sheet;
    EXPECT_THAT(wrong.err, HasSubstr("--sheet")) << sheet;
  }
  EXPECT_EQ(pick({"-o", mFolder / "out.otte", "--sheet", "2x2"}).code, 2);
}

TEST_F(Picking, picturesMayBeByOffsetReducedAndAmplified) {
  const std::vector<std::string> plain = {"-o", mFolder / "a.otte", "--image", mFolder / "a.svg"};
  ASSERT_EQ(pick(plain).code, 0);
  const Outcome outcome =
      pick({"-o", mFolder / "b.otte", "--image", mFolder / "b.svg", "--by-offset", "absolute",
            "--reduce", "900", "--time-gain", "1.5"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const std::string drawn = contentsOf(mFolder / "b_02.svg");
  for (const char* words : {"Absolute offset [m]", "t - |x|/900 m/s", "gain with time t^1.5"}) {
    EXPECT_THAT(drawn, HasSubstr(words));
    EXPECT_THAT(contentsOf(mFolder / "a_02.svg"), Not(HasSubstr(words)));
  }
  EXPECT_EQ(contentsOf(mFolder / "a.otte"), contentsOf(mFolder / "b.otte")) << "picks stay";
}

TEST_F(Picking, thePickerIsHeardOnlyOnRequestAndQuietSaysNothing) {
  const Outcome verbose = pick({"-o", mFolder / "out.otte", "--verbose"});
  EXPECT_THAT(verbose.out, HasSubstr("opening seg2 file "));
  EXPECT_THAT(verbose.out, HasSubstr("[FIRST BREAK] TRACE 12 : "));
  EXPECT_THAT(verbose.err, HasSubstr("Picks at sample 20, before which AutoPick cannot look: 5, on "
                                     "shots 1, 2, 3."));
  EXPECT_THAT(pick({"-o", mFolder / "out.otte", "--method", "joint"}).err,
              Not(HasSubstr("at sample 20")));
  const Outcome quiet = pick({"-o", mFolder / "out.otte", "--quiet"});
  EXPECT_EQ(quiet.code, 0);
  EXPECT_EQ(quiet.out + quiet.err, "");
}

TEST_F(Picking, savesAProjectThatPicksNeedNoFileBeside) {
  const Environment home = {{"HOME", mFolder / ""}};
  const std::string project = mFolder / "line.tvsk";
  const Outcome outcome =
      runBatch(arguments("pick", mFiles, {"--project", project, "--filter", "agc"}), home);
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const Outcome told = runBatch({"info", project, "--json", "-"}, home);
  const ordered_json info = ordered_json::parse(told.out);
  const ordered_json picked = pickJson({"--filter", "agc"});
  EXPECT_EQ(info["strings"], picked["strings"]);
  for (std::size_t shot = 0; shot < 3; ++shot) {
    EXPECT_EQ(info["shots"][shot]["times"], picked["shots"][shot]["times"]);
    EXPECT_EQ(info["shots"][shot]["traces"], 13);
  }
}

TEST_F(Picking, leavesEveryPickOfAProjectUnconfirmed) {
  const Environment home = {{"HOME", mFolder / ""}};
  const std::string project = mFolder / "line.tvsk";
  ASSERT_EQ(runBatch(arguments("pick", mFiles, {"--project", project}), home).code, 0);
  LoadedProject back;
  projectReader reader;
  ASSERT_EQ(reader.load(project, mFolder / "", back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  std::size_t picks = 0;
  for (const TravelTime& record : back.document.ttArray) {
    for (std::size_t i = 0; i < record.ttMisurati.size(); ++i) {
      EXPECT_EQ(record.waits(i), hasPick(record.ttMisurati[i])) << i;
      picks += hasPick(record.ttMisurati[i]) ? 1 : 0;
    }
  }
  EXPECT_GT(picks, 30U);
}

TEST_F(Picking, receiversAtTooFewPlacesAreWarnedOf) {
  WrittenShot heap = smallShot(0.5);
  WrittenShot two = heap;
  for (std::size_t i = 0; i < heap.receivers.size(); ++i) {
    heap.receivers[i] = {0.0, 0.0};
    two.receivers[i] = {i < 6 ? 0.0 : 24.0, 0.0};
  }
  const struct {
    std::string file;
    const char* says;
  } cases[] = {{mFolder.write("heap.sg2", formatSeg2(heap)), "all receivers are at one place"},
               {mFolder.write("two.sg2", formatSeg2(two)), "13 receivers are at only 2 places"}};
  for (const auto& [file, says] : cases) {
    const Outcome outcome = runBatch({"pick", file, "-o", mFolder / "out.otte"});
    EXPECT_THAT(outcome.err, HasSubstr(says));
    EXPECT_THAT(outcome.err, HasSubstr("--geophones"));
  }
}

TEST_F(Picking, notASinglePickIsAFailureWithoutResult) {
  WrittenShot heap = smallShot(0.5);
  for (Point2D& receiver : heap.receivers) receiver = {0.0, 0.0};
  const std::string file = mFolder.write("heap.sg2", formatSeg2(heap));
  const std::size_t files = mFolder.fileCount();
  for (const char* command : {"pick", "invert"}) {
    const std::string output = command == std::string("pick") ? "-o" : "--otte";
    const Outcome outcome = runBatch(
        {command, file, output, mFolder / "out.otte", "--json", mFolder / "out.json", "--quiet"});
    EXPECT_EQ(outcome.code, 1) << command;
    EXPECT_EQ(outcome.err,
              "talvesk-batch: " + file + ": not a single usable pick; nothing was written\n");
    EXPECT_EQ(mFolder.fileCount(), files) << command;
  }
}

TEST_F(Picking, invertPicksTheSameFirstBreaksAndThreadsChangeNothing) {
  const std::vector<std::string> quick = {"--cell-size", "1", "--iterations", "2"};
  std::vector<std::string> more = quick;
  more.insert(more.end(), {"--filter", "hushel", "--otte", mFolder / "a.otte"});
  ASSERT_EQ(runBatch(arguments("invert", mFiles, more)).code, 0);
  more.back() = mFolder / "b.otte";
  for (const char* threads : {"--single-thread", "--threads=3"}) {
    std::vector<std::string> others = more;
    others.emplace_back(threads);
    ASSERT_EQ(runBatch(arguments("invert", mFiles, others)).code, 0);
    EXPECT_EQ(contentsOf(mFolder / "a.otte"), contentsOf(mFolder / "b.otte")) << threads;
  }
  ASSERT_EQ(pick({"--filter", "hushel", "-o", mFolder / "c.otte"}).code, 0);
  EXPECT_EQ(contentsOf(mFolder / "a.otte"), contentsOf(mFolder / "c.otte"));
}

struct HostileShot {
  std::string name;
  std::string bytes;
};

class UnusableShot : public testing::TestWithParam<HostileShot> {};

TEST_P(UnusableShot, failsWithOneLineAndLeavesNoFile) {
  const Folder folder;
  const std::string file = folder.write(GetParam().name, GetParam().bytes);
  const std::vector<std::vector<std::string>> commands = {
      {"info", file},
      {"pick", file, "-o", folder / "out.otte", "--json", folder / "out.json", "--image",
       folder / "out.png"},
      {"invert", file, "--otte", folder / "out.otte", "--gridded", folder / "out.txt"}};
  for (const auto& command : commands) {
    const Outcome outcome = runBatch(command);
    EXPECT_EQ(outcome.code, 1) << command.front();
    EXPECT_THAT(outcome.err, StartsWith("talvesk-batch: ")) << command.front();
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_EQ(folder.fileCount(), 1U) << command.front();
  }
}

/// A file of `traces` pointers to one and the same block, which claims 65535 samples.
std::string manyForOne(std::size_t traces) {
  std::string bytes(32 + 4 * traces + 64, '\0');
  bytes.replace(0, 2, "\x55\x3a");
  bytes[6] = static_cast<char>(traces & 0xff);
  bytes[7] = static_cast<char>(traces >> 8);
  const std::size_t block = 32 + 4 * traces;
  for (std::size_t i = 0; i < traces; ++i) {
    for (std::size_t b = 0; b < 4; ++b) {
      bytes[32 + 4 * i + b] = static_cast<char>((block >> (8 * b)) & 0xff);
    }
  }
  bytes[block + 2] = 64;
  bytes.replace(block + 8, 2, "\xff\xff");
  return bytes;
}

INSTANTIATE_TEST_SUITE_P(Picking, UnusableShot,
                         testing::Values(HostileShot{"empty.sg2", ""},
                                         HostileShot{"big-endian.dat", "\x3a\x55 etc."},
                                         HostileShot{"words.seg2", "no shot at all"},
                                         HostileShot{"greedy.sg2", manyForOne(65535)}));

}  // namespace
}  // namespace talvesk::batchtest
