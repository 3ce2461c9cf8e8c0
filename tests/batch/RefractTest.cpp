#include "batch/BatchRunner.h"
#include "io/TravelTimeFile.h"
#include "io/project/ProjectWriter.h"
#include "io/project/projectReader.h"
#include "refraction/BuildProfiles.h"
#include "refraction/LayeredFit.h"
#include "refraction/WeighedPicks.h"
#include "support/ConsoleCapture.h"
#include "support/RefractionLines.h"

#include <QDir>
#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::Not;

/// A line over three layers as a file, and the true marks as another.
struct Survey {
  Survey() {
    std::vector<refractionDataStructure::layerStruct> truth;
    const TomoDocument line = testing::standardDippingLine(testing::threeDippingLayers(), truth);
    EXPECT_TRUE(writeTravelTimes(picks, line).ok());
    std::string text;
    for (const auto& marks : truth) {
      for (const std::uint32_t layer : marks.layer) text += std::to_string(layer) + ';';
      text += "\r\n";
    }
    folder.write("layers.csv", text);
  }
  Folder folder;
  std::string picks = folder / "line.otte";
  std::string layers = folder / "layers.csv";
};

TEST(Refract, findsTheLayersOfALine) {
  const Survey survey;
  for (const std::vector<std::string>& more :
       {std::vector<std::string>{}, {"--layers", survey.layers}, {"--xy", "-3"}}) {
    std::vector<std::string> arguments = {"refract", survey.picks, "--json", "-"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    const Outcome outcome = runBatch(arguments);
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const ordered_json json = ordered_json::parse(outcome.out);
    EXPECT_NEAR(json["v1"].get<double>(), 400.0, 12.0);
    ASSERT_EQ(json["refractors"].size(), 2U);
    const double velocities[] = {1200.0, 3500.0};
    for (std::size_t i = 0; i < 2; ++i) {
      const ordered_json& refractor = json["refractors"][i];
      const std::size_t middle = refractor["x"].size() / 2;
      const double x = refractor["x"][middle];
      EXPECT_NEAR(refractor["velocity"][middle].get<double>(), velocities[i], 0.03 * velocities[i]);
      EXPECT_NEAR(refractor["depth"][middle].get<double>(),
                  testing::threeDippingLayers().depth(i, x), 1.0);
      EXPECT_EQ(refractor["xy"], more.size() == 2 && more[0] == "--xy" ? -3.0 : 0.0);
      EXPECT_EQ(refractor["tv_family"].size(), 9U);
    }
    EXPECT_THAT(outcome.err, HasSubstr("Layer 3: shots "));
  }
}

TEST(Refract, writesTableAndPictures) {
  const Survey survey;
  const std::string table = survey.folder / "profile.txt";
  const std::string picture = survey.folder / "profile.svg";
  const Outcome outcome = runBatch({"refract", survey.picks, "--json", survey.folder / "r.json",
                                    "--table", table, "--image", picture});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(contentsOf(table),
              HasSubstr(" x    z    z2    tV  TV2   tg    tg2      V       V2\n0 "));
  EXPECT_THAT(contentsOf(picture), HasSubstr("Vertical exaggeration"));
  EXPECT_EQ(contentsOf(survey.folder / "r.json").substr(0, 7), "{\n\"v1\":");
}

TEST(Refract, savesItsLayersInAProjectAndDescribesThemInAReport) {
  const Survey survey;
  const Environment home = {{"HOME", survey.folder / ""}};
  const std::string project = survey.folder / "line.tvsk";
  const std::string first = survey.folder / "first.json";
  const std::string again = survey.folder / "again.json";
  const std::string report = survey.folder / "line.odt";
  const Outcome outcome =
      runBatch({"refract", survey.picks, "--layers", survey.layers, "--xy", "2", "--json", first,
                "--project", project, "--report", report, "--report-title", "Dipping"},
               home);
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_EQ(contentsOf(report).substr(0, 2), "PK");
  // The project brings its marks and its XY.
  ASSERT_EQ(runBatch({"refract", project, "--json", again}, home).code, 0);
  const ordered_json before = ordered_json::parse(contentsOf(first));
  const ordered_json after = ordered_json::parse(contentsOf(again));
  EXPECT_EQ(after["refractors"][0]["xy"], 2.0);
  EXPECT_EQ(after["shots"], before["shots"]);
  EXPECT_EQ(after["refractors"][0]["depth"], before["refractors"][0]["depth"]);
  // And so does an inversion of it.
  const std::string both = survey.folder / "both.odt";
  ASSERT_EQ(
      runBatch({"invert", project, "--iterations", "1", "--cell-size", "4", "--report", both}, home)
          .code,
      0);
  const std::string unpack =
      "python3 -m zipfile -e '" + both + "' '" + (survey.folder / "unpacked'");
  ASSERT_EQ(std::system(unpack.c_str()), 0);
  EXPECT_THAT(contentsOf(survey.folder / "unpacked/content.xml"),
              HasSubstr("Refraction interpretation"));
}

/// The section that an inversion starts from, read back from it.
TEST(Refract, putsItsLayersIntoTheGridForAnInversionToStartFrom) {
  const Survey survey;
  const Environment home = {{"HOME", survey.folder / ""}};
  const std::string project = survey.folder / "line.tvsk";
  const std::string json = survey.folder / "both.json";
  const std::string table = survey.folder / "both.csv";
  const std::string picture = survey.folder / "both.svg";
  for (const char* manner : {"sharp", "graded:3"}) {
    SCOPED_TRACE(manner);
    const Outcome outcome = runBatch({"refract", survey.picks, "--layers", survey.layers, "-o",
                                      project, "--start-model", manner, "--quiet"},
                                     home);
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr("stay as they are there to the ends of the grid"));
    for (const char* sign : {"800", "gradient"}) {
      const Outcome read = runBatch({"export", project, "--refractor", json, "--refractor", table,
                                     "--refractor", picture, "--refractor-at", sign},
                                    home);
      ASSERT_EQ(read.code, 0) << read.err;
      const ordered_json both = ordered_json::parse(contentsOf(json));
      EXPECT_EQ(both["layer"], 2);
      EXPECT_GT(both["count"].get<int>(), 40);
      EXPECT_LT(both["rms"].get<double>(), 1.6);
      EXPECT_EQ(both["x"].size(), both["section_depth"].size());
      EXPECT_THAT(contentsOf(table), HasSubstr("position_m,elevation_m,layers_depth_m"));
      EXPECT_THAT(contentsOf(picture), HasSubstr("Layer 2, layered profile"));
    }
  }
  const Outcome inverted = runBatch(
      {"invert", project, "--iterations", "1", "--json", survey.folder / "inverted.json"}, home);
  EXPECT_EQ(inverted.code, 0) << inverted.err;
}

TEST(Refract, saysWhatKeepsItFromAProfile) {
  const Survey survey;
  const std::string out = survey.folder / "r.json";
  struct Case {
    const char* what;
    std::vector<std::string> arguments;
    int code;
    const char* message;
  };
  const std::string bad = survey.folder.write("bad.csv", "1;2;x\n");
  const std::string none = survey.folder.write("none.csv", [] {
    std::string text;
    for (int shot = 0; shot < 20; ++shot) {
      for (int i = 0; i < 60; ++i) text += "1;";
      text += '\n';
    }
    return text;
  }());
  const Case cases[] = {
      {"no output", {survey.picks}, 2, "one of --json, --table"},
      {"no number", {survey.picks, "--json", out, "--xy", "wide"}, 2, "'wide' is not a number"},
      {"XY too wide",
       {survey.picks, "--json", out, "--xy", "15.5"},
       1,
       "the XY of layer 2 must be within 15 m, six spacings of its geophones"},
      {"no method",
       {survey.picks, "--json", out, "--method", "guess"},
       2,
       "none of reciprocal, delay-times, intercept, plus-minus, all"},
      {"no project for the model",
       {survey.picks, "--json", out, "--start-model", "sharp"},
       2,
       "--project"},
      {"no such manner",
       {survey.picks, "--project", out + ".tvsk", "--start-model", "graded"},
       2,
       "neither sharp nor graded:M"},
      {"output on input", {survey.picks, "--json", survey.picks}, 2, "line.otte"},
      {"broken marks", {survey.picks, "--json", out, "--layers", bad}, 1, "bad.csv, line 1"},
      {"no refractor",
       {survey.picks, "--json", out, "--layers", none},
       1,
       "Unable to find nearest shot for first refractor: no shot has picks of layer 2"}};
  for (const Case& c : cases) {
    std::vector<std::string> arguments = {"refract"};
    arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
    const Outcome outcome = runBatch(arguments);
    EXPECT_EQ(outcome.code, c.code) << c.what;
    EXPECT_THAT(outcome.err, HasSubstr(c.message)) << c.what;
    EXPECT_FALSE(survey.folder.holds("r.json")) << c.what;
  }
}

TEST(Refract, proposesOverTheSurveyAndSaysHowTheProfileFits) {
  const Survey survey;
  const std::string misfit = survey.folder / "misfit.txt";
  const Outcome outcome =
      runBatch({"refract", survey.picks, "--propose", "survey", "--json", "-", "--misfit", misfit});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = ordered_json::parse(outcome.out);
  EXPECT_EQ(json["proposal"]["layers"], 3);
  EXPECT_EQ(json["proposal"]["grounds"].size(), 4U);
  EXPECT_NEAR(json["proposal"]["grounds"][2]["velocities"][1].get<double>(), 1200.0, 12.0);
  EXPECT_THAT(outcome.err,
              HasSubstr("Proposal, by its waves: 3 layers, misfit 0 ms; 2 layers, misfit "));
  EXPECT_THAT(outcome.err, HasSubstr("Layer 2: fitted to all picks, "));
  EXPECT_THAT(outcome.err, HasSubstr(" m), misfit "));
  ASSERT_EQ(json["misfit"]["layers"].size(), 3U);
  EXPECT_LT(json["misfit"]["all"]["rms"].get<double>(), 0.0002);
  EXPECT_EQ(json["profile"], "fitted");
  EXPECT_NEAR(json["first_layer"]["velocity"][0].get<double>(), 400.0, 4.0);
  EXPECT_EQ(json["shots"][2]["times"].size(), 60U);
  EXPECT_THAT(contentsOf(misfit), HasSubstr("shot layer picks rms_ms mean_ms chi2\n1 "));
}

/// The XY is one of the reciprocal method, which is still there for such a proposal.
TEST(Refract, buildsAProposalOverTheSurveyByTheReciprocalMethodIfAskedTo) {
  const Survey survey;
  const std::vector<std::string> proposed = {"refract", survey.picks, "--propose",
                                             "survey",  "--json",     "-"};
  const auto with = [&](const std::vector<std::string>& more) {
    std::vector<std::string> arguments = proposed;
    arguments.insert(arguments.end(), more.begin(), more.end());
    return runBatch(arguments);
  };
  for (const auto& more : {std::vector<std::string>{"--profile", "reciprocal"}, {"--xy", "0"}}) {
    const Outcome outcome = with(more);
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const ordered_json json = ordered_json::parse(outcome.out);
    EXPECT_EQ(json["profile"], "reciprocal");
    EXPECT_TRUE(json["refractors"][0].contains("t_ab"));
  }
  EXPECT_EQ(with({"--profile", "fitted", "--xy", "0"}).code, 2);
  EXPECT_EQ(with({"--profile", "best"}).code, 2);
  EXPECT_EQ(runBatch({"refract", survey.picks, "--profile", "fitted", "--json", "-"}).code, 2);
}

/// A profile of another program has no first layer of its own: the project keeps it beside.
TEST(Refract, keepsAFittedProfileInProjects) {
  const Survey survey;
  const Environment home = {{"HOME", survey.folder / ""}};
  const std::string project = survey.folder / "fitted.tvsk";
  const Outcome first = runBatch(
      {"refract", survey.picks, "--propose", "survey", "--misfit", "-", "-o", project}, home);
  ASSERT_EQ(first.code, 0) << first.err;
  LoadedProject back;
  projectReader reader;
  ASSERT_TRUE(QDir().mkpath(QString::fromStdString(survey.folder / "work")));
  ASSERT_EQ(reader.load(project, survey.folder / "work/", back), 0) << reader.message();
  EXPECT_TRUE(back.interpretation->refractData.isFitted());
  const auto shots = shotArrivals(back.document);
  const LayeredFit fit =
      fitOfProfile(shots, pickErrors(back.document, shots), *back.interpretation);
  EXPECT_EQ(misfitTable(fit), first.out);
}

TEST(Refract, givesAFittedProfileNoBandsOfAnother) {
  const Survey survey;
  const std::string table = survey.folder / "both.txt";
  const std::string plain = survey.folder / "plain.svg";
  const std::string bounded = survey.folder / "bounded.svg";
  const std::vector<std::string> asked = {"refract", survey.picks, "--propose",
                                          "survey",  "--quiet",    "--image"};
  const auto with = [&](const std::vector<std::string>& more) {
    std::vector<std::string> arguments = asked;
    arguments.insert(arguments.end(), more.begin(), more.end());
    return runBatch(arguments);
  };
  const char* const told = "no error bands: --bounds moves picks through the reciprocal method";
  EXPECT_THAT(with({plain}).err, Not(HasSubstr(told)));
  const Outcome outcome = with({bounded, "--bounds", "3", "--table", table});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr(told));
  EXPECT_EQ(contentsOf(bounded), contentsOf(plain));
  // The profile stands first, what the methods find below it.
  const std::string text = contentsOf(table);
  EXPECT_LT(text.find(" tV  TV2 "), text.find("\n\nLayer 2\nx elevation reciprocal-depth "));
}

TEST(Refract, keepsTheFittedProfileOfAProjectUnlessAnotherIsAskedFor) {
  const Survey survey;
  const Environment home = {{"HOME", survey.folder / ""}};
  const std::string project = survey.folder / "fitted.tvsk";
  const Outcome first = runBatch(
      {"refract", survey.picks, "--propose", "survey", "--quiet", "--table", "-", "-o", project},
      home);
  ASSERT_EQ(first.code, 0) << first.err;
  const Outcome again = runBatch({"refract", project, "--quiet", "--table", "-"}, home);
  EXPECT_EQ(again.out, first.out);
  const Outcome json = runBatch({"refract", project, "--quiet", "--json", "-"}, home);
  const ordered_json kept = ordered_json::parse(json.out);
  EXPECT_EQ(kept["profile"], "fitted");
  for (const char* key : {"xy", "tv_family", "tg_family", "xy_choice"}) {
    EXPECT_FALSE(kept["refractors"][0].contains(key)) << key;
  }
  for (const auto& more : {std::vector<std::string>{"--profile", "reciprocal"}, {"--xy", "0"}}) {
    std::vector<std::string> arguments = {"refract", project, "--quiet", "--json", "-"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    const Outcome other = runBatch(arguments, home);
    EXPECT_EQ(ordered_json::parse(other.out)["profile"], "reciprocal");
    EXPECT_THAT(other.err, HasSubstr("it is replaced by that of the reciprocal method"));
  }
}

TEST(Refract, writesTheMarksOfOneLayerAndSaysThatThereIsNoRefractor) {
  const Survey survey;
  const Outcome outcome = runBatch({"refract", survey.picks, "--propose", "survey", "--layer-count",
                                    "1", "--quiet", "--json", "-"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("1 layer: there is no refractor to build a profile of"));
  const ordered_json json = ordered_json::parse(outcome.out);
  EXPECT_EQ(json["proposal"]["layers"], 1);
  EXPECT_EQ(json["shots"][0]["layers"].size(), 60U);
  EXPECT_TRUE(json["refractors"].empty());
  const Folder folder;
  const Outcome more =
      runBatch({"refract", survey.picks, "--propose", "survey", "--layer-count", "1", "--quiet",
                "--json", "-", "--table", folder / "t.txt", "--image", folder / "i.png"});
  EXPECT_THAT(more.err, HasSubstr("--table, --image: there is no profile to show"));
  EXPECT_EQ(folder.fileCount(), 0U);
}

TEST(Refract, claimsNoLayersOnGroundWithASteadyGradient) {
  TomoDocument line = testing::testLine(24, 3.0, {-20.0, -1.5, 34.5, 70.5, 89.0});
  for (TravelTime& record : line.ttArray.edit()) {
    for (int i = 0; i < 24; ++i) {
      const double offset = std::fabs(3.0 * i - record.shotPos2d.x);
      record.ttMisurati.edit()[static_cast<std::size_t>(i)] =
          2.0 / 30.0 * std::asinh(0.5 * 30.0 / 400.0 * offset);
    }
  }
  Folder folder;
  const std::string picks = folder / "gradient.otte";
  ASSERT_TRUE(writeTravelTimes(picks, line).ok());
  const std::string out = folder / "r.json";
  const Outcome outcome = runBatch({"refract", picks, "--propose", "survey", "--json", out});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("no layers: a velocity that grows steadily with depth, from "
                                     "400 m/s with a gradient of 30 1/s"));
  EXPECT_EQ(runBatch({"refract", picks, "--layer-count", "2", "--json", out}).code, 2);
  EXPECT_EQ(runBatch({"refract", picks, "--propose", "guess", "--json", out}).code, 2);
}

TEST(Refract, leavesOutWhatNoGroundHasAndSaysSoEvenWhenQuiet) {
  const Survey survey;
  std::string text = contentsOf(survey.layers);
  std::replace(text.begin(), text.end(), '1', '0');
  const std::string layers = survey.folder.write("no_first.csv", text);
  const std::string table = survey.folder / "profile.txt";
  const Outcome outcome = runBatch(
      {"refract", survey.picks, "--layers", layers, "--json", "-", "--table", table, "--quiet"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("Layer 1: no shot that takes part has two picks"));
  const ordered_json json = ordered_json::parse(outcome.out);
  EXPECT_TRUE(json["v1"].is_null());
  EXPECT_TRUE(json["refractors"][0]["depth"][7].is_null());
  EXPECT_TRUE(json["refractors"][0]["velocity"][7].is_number());
  EXPECT_THAT(contentsOf(table), Not(AnyOf(HasSubstr("nan"), HasSubstr("inf"))));
}

TEST(Refract, comparesMethodsInJsonTableAndReport) {
  const Survey survey;
  const std::string table = survey.folder / "methods.txt";
  const std::string report = survey.folder / "methods.odt";
  const Outcome outcome =
      runBatch({"refract", survey.picks, "--layers", survey.layers, "--method", "all", "--bounds",
                "5", "--seed", "7", "--json", "-", "--table", table, "--report", report});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = ordered_json::parse(outcome.out);
  const ordered_json& comparison = json["comparison"];
  EXPECT_EQ(comparison["members"], 5);
  EXPECT_EQ(comparison["seed"], 7);
  ASSERT_EQ(comparison["methods"].size(), 4U);
  for (const ordered_json& method : comparison["methods"]) {
    ASSERT_EQ(method["layers"].size(), 2U) << method["method"];
    for (std::size_t i = 0; i < 2; ++i) {
      const ordered_json& layer = method["layers"][i];
      const double truth = testing::threeDippingLayers().depth(i, comparison["x"][30]);
      EXPECT_NEAR(layer["depth"][30].get<double>(), truth, 0.03 * truth) << method["method"];
      EXPECT_LT(layer["depth_band"]["low"][30], layer["depth_band"]["high"][30]);
    }
  }
  EXPECT_EQ(comparison["disagreements"][1]["depth"].size(), 60U);
  EXPECT_EQ(json["refractors"][0]["depth_support"].size(), json["refractors"][0]["depth"].size());
  EXPECT_EQ(json["refractors"][0]["xy_choice"]["tried"].size(), 13U);
  EXPECT_THAT(contentsOf(table), HasSubstr("Layer 3\nx elevation reciprocal-depth "));
  EXPECT_THAT(outcome.err, HasSubstr("Layer 2, delay times: 1200"));
  EXPECT_TRUE(survey.folder.holds("methods.odt"));
}

TEST(Refract, asItAlwaysWasHasNoComparison) {
  const Survey survey;
  const auto jsonOf = [&](std::vector<std::string> more) {
    std::vector<std::string> arguments = {"refract", survey.picks, "--json", "-"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return ordered_json::parse(runBatch(arguments).out);
  };
  const ordered_json plain = jsonOf({});
  const ordered_json bounded = jsonOf({"--bounds", "2", "--method", "intercept"});
  EXPECT_FALSE(plain.contains("comparison"));
  EXPECT_EQ(bounded["comparison"]["methods"].size(), 2U);
  EXPECT_EQ(plain["refractors"], bounded["refractors"]);
}

/// The shots beyond the ends are off, and those within can make no pair.
TEST(Refract, goesOnWithOtherMethodsWhereTheReciprocalOneCannot) {
  const Survey survey;
  std::string marks;
  std::size_t shot = 0;
  for (std::size_t at = 0; at < contentsOf(survey.layers).size(); ++shot) {
    const std::string text = contentsOf(survey.layers);
    const std::size_t end = text.find('\n', at);
    std::string line = text.substr(at, end + 1 - at);
    if (shot < 4 || shot > 15) std::replace(line.begin(), line.end(), '2', '0');
    std::replace(line.begin(), line.end(), '3', '0');
    marks += line;
    at = end + 1;
  }
  const std::string layers = survey.folder.write("inner.csv", marks);
  const auto run = [&](const char* method) {
    return runBatch(
        {"refract", survey.picks, "--layers", layers, "--method", method, "--json", "-"});
  };
  EXPECT_EQ(run("reciprocal").code, 1);
  const Outcome outcome = run("plus-minus");
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("no profile by the reciprocal method: Unable to find"));
  const ordered_json json = ordered_json::parse(outcome.out);
  EXPECT_TRUE(json["v1"].is_null());
  EXPECT_TRUE(json["refractors"].empty());
  EXPECT_NEAR(json["comparison"]["methods"][1]["layers"][0]["depth"][30].get<double>(),
              testing::threeDippingLayers().depth(0, 75.0), 0.1);
}

TEST(Refract, takesAnXYThatItFinds) {
  const Survey survey;
  const Outcome outcome = runBatch(
      {"refract", survey.picks, "--xy", "smoothest", "--json", "-", "--method", "reciprocal"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = ordered_json::parse(outcome.out);
  for (const ordered_json& refractor : json["refractors"]) {
    EXPECT_EQ(refractor["xy"], refractor["xy_choice"]["smoothest"]["xy"]);
  }
  EXPECT_THAT(outcome.err, HasSubstr("XY by smoothest tV "));
}

TEST(Refract, ofAProjectTellsWhetherPicksHaveChangedSince) {
  const testing::ConsoleCapture console;
  const Survey survey;
  const Folder home;
  LoadedProject project;
  project.document = testing::standardDippingLine(testing::threeDippingLayers(),
                                                  project.interpretation.edit().ttLayer);
  ASSERT_TRUE(buildProfiles(shotArrivals(project.document), project.interpretation.edit()).built);
  const std::string path = survey.folder / "line.tvsk";
  const auto saved = [&] {
    ProjectWriter writer;
    EXPECT_EQ(writer.save(path, home / "", project.document, project.interpretation,
                          project.palettes, project.section),
              0);
  };
  const auto run = [&](std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"info", path});
    const Outcome outcome = runBatch(arguments, {{"HOME", home / ""}});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    return outcome.out;
  };
  saved();
  EXPECT_THAT(run({}), HasSubstr("\n  layers      2 refractors\n"));
  EXPECT_EQ(ordered_json::parse(run({"--json", "-"}))["picks_changed_since_profile"], false);
  project.document.ttArray.edit()[4].ttMisurati.edit()[9] *= 1.01;
  saved();
  EXPECT_THAT(run({}), HasSubstr("\n  layers      2 refractors, picks have changed since\n"));
  EXPECT_EQ(ordered_json::parse(run({"--json", "-"}))["picks_changed_since_profile"], true);
}

}  // namespace
}  // namespace talvesk::batchtest
