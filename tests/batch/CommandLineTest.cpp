#include "batch/BatchRunner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk::batchtest {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct UsageCase {
  /// "LINE" stands for a good travel-time file, the other capitals for files that do not exist.
  std::vector<std::string> arguments;
  std::string says;
};

class WrongUsage : public testing::TestWithParam<UsageCase> {};

TEST_P(WrongUsage, endsWithTwoAndOneLineAndAHint) {
  const Folder folder;
  const std::string line = folder.write("line.otte", smallLine());
  std::vector<std::string> arguments = GetParam().arguments;
  for (std::string& argument : arguments) {
    if (argument == "LINE") argument = line;
    if (argument == "IMAGE") argument = folder / "section.png";
    if (argument == "SHOT") argument = folder / "shot.sg2";
    if (argument == "PICKS") argument = folder / "picks.otte";
  }
  const Outcome outcome = runBatch(arguments);
  EXPECT_EQ(outcome.code, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, StartsWith("talvesk-batch: "));
  EXPECT_THAT(outcome.err, HasSubstr(GetParam().says));
  EXPECT_THAT(outcome.err, HasSubstr("--help"));
  EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 2) << outcome.err;
  EXPECT_EQ(folder.fileCount(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    CommandLine, WrongUsage,
    testing::Values(
        UsageCase{{}, "command is required"}, UsageCase{{"explode"}, "explode"},
        UsageCase{{"invert"}, "INPUT"}, UsageCase{{"invert", "LINE", "--speed", "3"}, "--speed"},
        UsageCase{{"invert", "LINE", "--iterations", "0"}, "--iterations"},
        UsageCase{{"invert", "LINE", "--iterations", "2.5"}, "'2.5'"},
        UsageCase{{"invert", "LINE", "--iterations", "99999999999"}, "--iterations"},
        UsageCase{{"invert", "LINE", "--iterations", "3", "--iterations", "4"}, "--iterations"},
        UsageCase{{"invert", "LINE", "--solver-iterations", "-1"}, "--solver-iterations"},
        UsageCase{{"invert", "LINE", "--smoothing", "0"}, "--smoothing"},
        UsageCase{{"invert", "LINE", "--smoothing-type", "median"}, "median"},
        UsageCase{{"invert", "LINE", "--nodes", "5"}, "--nodes"},
        UsageCase{{"invert", "LINE", "--cell-size", "0.09"}, "--cell-size"},
        UsageCase{{"invert", "LINE", "--cell-size", "nan"}, "'nan'"},
        UsageCase{{"invert", "LINE", "--cell-size", "1,5"}, "'1,5'"},
        UsageCase{{"invert", "LINE", "--depth", "-3"}, "--depth"},
        UsageCase{{"invert", "LINE", "--depth", "12m"}, "'12m'"},
        UsageCase{{"invert", "LINE", "--min-velocity", "0"}, "--min-velocity"},
        UsageCase{{"invert", "LINE", "--max-velocity", "1e12"}, "--max-velocity"},
        UsageCase{{"invert", "LINE", "--layer", "0:10:300"}, "TOP:BOTTOM:VTOP:VBOTTOM"},
        UsageCase{{"invert", "LINE", "--layer", "0:10:300:900:"}, "TOP:BOTTOM:VTOP:VBOTTOM"},
        UsageCase{{"invert", "LINE", "--layer", "0::300:900"}, "--layer"},
        UsageCase{{"invert", "LINE", "--layer", "5:5:300:900"}, "deeper"},
        UsageCase{{"invert", "LINE", "--layer", "-1:5:300:900"}, "'-1'"},
        UsageCase{{"invert", "LINE", "--layer", "0:1000:300:900"}, "999.99"},
        UsageCase{{"invert", "LINE", "--layer", "0:5:0:900"}, "999999"},
        UsageCase{{"invert", "LINE", "--image", "section.bmp"}, "section.bmp"},
        UsageCase{{"invert", "LINE", "--rays"}, "--image"},
        UsageCase{{"invert", "LINE", "--z-offset", "100"}, "--gridded"},
        UsageCase{{"invert", "LINE", "--image", "IMAGE", "--otte", "IMAGE"}, "same file"},
        UsageCase{{"invert", "LINE", "--otte", "LINE"}, "overwrite"}, UsageCase{{"info"}, "FILE"},
        UsageCase{{"info", "LINE", "--json", "LINE"}, "overwrite"},
        UsageCase{{"info", "LINE", "--samples"}, "--json"},
        UsageCase{{"info", "LINE", "--samples", "--json", "PICKS"}, "only shot files"},
        UsageCase{{"invert", "LINE", "--quiet", "--verbose"}, "--quiet"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--verbose", "--quiet"}, "--quiet"},
        UsageCase{{"refract", "LINE", "--json", "PICKS", "--verbose", "--quiet"}, "--quiet"},
        UsageCase{{"pick"}, "SHOTS"}, UsageCase{{"pick", "SHOT"}, "--otte"},
        UsageCase{{"pick", "SHOT", "-o", "picks.csv"}, ".otte"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--filter", "fir"}, "'fir'"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--filter", "band"}, "band needs"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--low", "50"}, "--filter band"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--filter", "agc", "--high", "5"}, "band"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--filter", "band", "--low", "0"}, "--low"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--filter", "band", "--low-order", "2"}, "--low"},
        UsageCase{
            {"pick", "SHOT", "-o", "PICKS", "--filter", "band", "--low", "9", "--low-order", "0"},
            "--low-order"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--separator", ","}, "--geophones"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--shots", "LINE", "--separator", "|"}, "'|'"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--image", "gather.bmp"}, "gather.bmp"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--reduce", "1500"}, "--image"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--image", "a.svg", "--reduce", "5"}, "from 10"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--image", "a.svg", "--by-offset", "far"},
                  "signed, absolute"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--image", "a.svg", "--time-gain", "4"},
                  "from 0 to 3"},
        UsageCase{{"pick", "SHOT", "-o", "PICKS", "--json", "PICKS"}, "same file"},
        UsageCase{{"pick", "SHOT", "-o", "LINE", "--geophones", "LINE"}, "overwrite"},
        UsageCase{{"invert", "SHOT", "LINE"}, "together"},
        UsageCase{{"invert", "LINE", "LINE"}, "one travel-time file"},
        UsageCase{{"invert", "LINE", "--filter", "agc"}, "no shot file"},
        UsageCase{{"invert", "SHOT", "--filter", "band"}, "band needs"},
        UsageCase{{"convert", "LINE", "picks.txt"}, ".otte"},
        UsageCase{{"convert", "LINE", "LINE"}, "overwrite"}, UsageCase{{"demo"}, "DIR"}));

TEST(CommandLine, everyHelpTextNamesTheUnitsOfItsNumbers) {
  const Outcome invert = runBatch({"invert", "--help"});
  EXPECT_EQ(invert.code, 0);
  EXPECT_EQ(invert.err, "");
  for (const char* word : {"metres", "m/s", "seconds", "cells", "--layer", "Ctrl-C"}) {
    EXPECT_THAT(invert.out, HasSubstr(word));
  }
  const std::vector<std::vector<std::string>> others = {{"--help"},
                                                        {"info", "--help"},
                                                        {"pick", "--help"},
                                                        {"convert", "--help"},
                                                        {"demo", "--help"}};
  for (const auto& arguments : others) {
    const Outcome outcome = runBatch(arguments);
    EXPECT_EQ(outcome.code, 0) << arguments.front();
    EXPECT_THAT(outcome.out, HasSubstr("talvesk-batch")) << arguments.front();
  }
}

}  // namespace
}  // namespace talvesk::batchtest
