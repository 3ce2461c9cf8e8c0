#include "batch/BatchRunner.h"
#include "io/TravelTimeFile.h"
#include "support/RefractionLines.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace talvesk::batchtest {
namespace {

using nlohmann::ordered_json;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// Projects of P and S waves over one dipping refractor, S 2.5 times slower; the profiles are those
/// of the program.
class Elastic : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder = new Folder;
    p = project("p", 1.0, 0.0);
    s = project("s", 2.5, 0.0);
    deep = project("deep", 2.5, 4.0);
  }
  static void TearDownTestSuite() { delete folder; }

  static std::string project(const std::string& name, double slower, double deeper,
                             const char* profile = "reciprocal") {
    testing::DippingLayers ground = testing::twoDippingLayers();
    for (double& v : ground.velocities) v /= slower;
    ground.depths[0] += deeper;
    std::vector<refractionDataStructure::layerStruct> truth;
    const std::string picks = *folder / (name + ".otte");
    EXPECT_TRUE(writeTravelTimes(picks, testing::standardDippingLine(ground, truth)).ok());
    const std::string path = *folder / (name + ".tvsk");
    const Outcome outcome = runBatch({"refract", picks, "--propose", "survey", "--profile", profile,
                                      "--project", path, "--start-model", "sharp", "--quiet"});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    return path;
  }

  static Folder* folder;
  static std::string p;
  static std::string s;
  static std::string deep;
};

Folder* Elastic::folder = nullptr;
std::string Elastic::p;
std::string Elastic::s;
std::string Elastic::deep;

TEST_F(Elastic, tellsRatiosAndModuliOfBothLayers) {
  const Outcome outcome = runBatch({"elastic", p, s, "--density", "1800,2100", "--json", "-"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  const ordered_json json = ordered_json::parse(outcome.out);
  ASSERT_EQ(json["layers"].size(), 2U);
  const double density[] = {1800.0, 2100.0};
  const double vs[] = {200.0, 720.0};
  for (std::size_t i = 0; i < 2; ++i) {
    const ordered_json& layer = json["layers"][i];
    const std::size_t middle = layer["x"].size() / 2;
    EXPECT_EQ(layer["layer"], i + 1);
    EXPECT_NEAR(layer["vp_vs"][middle].get<double>(), 2.5, 0.03);
    EXPECT_NEAR(layer["poisson"][middle].get<double>(), 4.25 / 10.5, 0.005);
    EXPECT_EQ(layer["density_kg_m3"][middle], density[i]);
    const double g0 = 1e-6 * density[i] * vs[i] * vs[i];
    EXPECT_NEAR(layer["g0_mpa"][middle].get<double>(), g0, 0.06 * g0);
    EXPECT_EQ(layer["verdict"][middle], "");
    EXPECT_FALSE(layer.contains("errors"));
  }
  EXPECT_THAT(outcome.err, HasSubstr("Layer 1, medians of 60 places: Vp 500 m/s, Vs 200 m/s"));
}

TEST_F(Elastic, writesTableAndPictureWithErrors) {
  const std::string table = *folder / "errors.csv";
  const std::string picture = *folder / "errors.svg";
  const Outcome outcome = runBatch({"elastic", p, s, "--density", "gardner", "--bounds", "10",
                                    "--out", table, "--picture", picture, "--quiet"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr("Gardner's rule was found for rocks"));
  const std::string text = contentsOf(table);
  EXPECT_THAT(text,
              StartsWith("layer,position_m,elevation_m,top_p_m,top_s_m,vp_m_s,vp_m_s_error,"));
  EXPECT_THAT(text, HasSubstr(",m_mpa,m_mpa_error,remark\n1,0,100,0,0,"));
  EXPECT_THAT(text, HasSubstr("\n2,"));
  EXPECT_THAT(contentsOf(picture), AllOf(HasSubstr("<svg"), HasSubstr("Poisson"), HasSubstr("E0")));
}

TEST_F(Elastic, saysThatAFittedProfileGetsNoErrors) {
  const std::string fitted = project("fitted", 1.0, 0.0, "fitted");
  const char* const told = "P: its profile was fitted to all picks and gets no errors";
  const Outcome outcome = runBatch({"elastic", fitted, s, "--bounds", "5", "--json", "-"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, AllOf(HasSubstr(told), Not(HasSubstr("S: its profile"))));
  const ordered_json json = ordered_json::parse(outcome.out);
  EXPECT_THAT(json["remarks"].dump(), HasSubstr(told));
  EXPECT_FALSE(json["layers"][1].contains("errors"));
  EXPECT_THAT(runBatch({"elastic", fitted, s, "--json", "-"}).err, Not(HasSubstr(told)))
      << "nobody asked for any";
}

TEST_F(Elastic, saysWhatDoesNotFitWhateverQuietSays) {
  struct Row {
    std::vector<std::string> arguments;
    const char* says;
  };
  const Row rows[] = {
      {{p, deep}, "Layer 2: at 60 of 60 places the depths of its top by P and by S differ"},
      {{s, p}, "Layer 1: at 60 of 60 places S is not slower than P"},
  };
  for (const Row& row : rows) {
    const std::string table = *folder / "quiet.csv";
    std::vector<std::string> arguments = {"elastic", "--quiet", "--out", table};
    arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
    const Outcome outcome = runBatch(arguments);
    EXPECT_EQ(outcome.code, 0);
    EXPECT_THAT(outcome.err, HasSubstr(row.says));
  }
  EXPECT_THAT(contentsOf(*folder / "quiet.csv"), HasSubstr("0.4,,2000,500,,,80,s_not_slower\n"));
}

TEST_F(Elastic, comparesSectionsCellByCell) {
  const std::string table = *folder / "cells.csv";
  const std::string picture = *folder / "cells.svg";
  const Outcome outcome = runBatch({"elastic", p, s, "--section", table, "--section", picture,
                                    "--quantity", "poisson", "--density", "1900"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("s.tvsk: its section is a starting model"));
  const std::string text = contentsOf(table);
  EXPECT_THAT(text, StartsWith("position_m,elevation_m,depth_m,vp_m_s,vs_m_s,vp_vs,poisson,"));
  EXPECT_THAT(text.substr(text.find('\n') + 1), HasSubstr(",500,200,2.5,0.404761905,1900,76,"));
  EXPECT_THAT(contentsOf(picture), HasSubstr("Poisson's ratio"));
}

/// Sections are there without layers, too.
TEST_F(Elastic, needsNoLayersForSections) {
  const std::string shots = folder->write("small.otte", smallLine());
  const std::string other = *folder / "small.tvsk";
  ASSERT_EQ(runBatch({"invert", shots, "--iterations", "1", "--project", other, "--quiet"}).code,
            0);
  const std::string table = *folder / "small.csv";
  const Outcome outcome = runBatch({"elastic", p, other, "--section", table});
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("cells of P lie where the section of S shows none"));
  EXPECT_THAT(contentsOf(table), HasSubstr("s_not_slower"));
  EXPECT_EQ(runBatch({"elastic", p, other, "--section", table, "--json", "-"}).code, 1);
}

TEST_F(Elastic, refusesWhatItCannotPutTogether) {
  const std::string junk = folder->write("junk.tvsk", "PK\x03\x04 not a project");
  const std::string bare = *folder / "bare.tvsk";
  const std::string shots = folder->write("bare.otte", smallLine());
  ASSERT_EQ(runBatch({"invert", shots, "--iterations", "1", "--project", bare, "--quiet"}).code, 0);
  const std::string link = *folder / "link.tvsk";
  std::filesystem::create_symlink(p, link);
  struct Row {
    std::vector<std::string> arguments;
    int code;
    const char* says;
  };
  const Row rows[] = {
      {{p, p}, 2, "P and S are the same project"},
      {{p, link}, 2, "P and S are the same project"},
      {{p}, 2, "S is required"},
      {{p, shots}, 2, "must end in .tvsk"},
      {{p, s, "--density", "1800,,2000"}, 2, "'' is not a number"},
      {{p, s, "--density", "1,8"}, 2, "'1' is not a number from 100 to 10000"},
      {{p, s, "--density", "stone"}, 2, "--density"},
      {{p, s, "--picture", "curves.bmp"}, 2, "curves.bmp"},
      {{p, s, "--out", s}, 2, "overwrite"},
      {{p, s, "--quantity", "g0"}, 2, "--section"},
      {{p, s, "--section", "cells.txt"}, 2, "cells.txt"},
      {{p, junk}, 1, "is not a valid project"},
      {{p, *folder / "none.tvsk"}, 1, "none.tvsk"},
      {{p, bare}, 1, "The project of S has no layered profile"},
      {{p, s, "--shift", "1000"},
       1,
       "P and S have no place in common: P was interpreted from 0 m to 147.5 m, S from 1000 m to "},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.says);
    std::vector<std::string> arguments = {"elastic"};
    arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
    const Outcome outcome = runBatch(arguments);
    EXPECT_EQ(outcome.code, row.code) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr(row.says));
    EXPECT_EQ(outcome.out, "");
  }
}

}  // namespace
}  // namespace talvesk::batchtest
