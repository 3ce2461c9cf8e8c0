#include "batch/BatchRunner.h"
#include "io/StyleFile.h"
#include "io/project/ProjectWriter.h"
#include "model/GeographicsCoord.h"
#include "support/ConsoleCapture.h"
#include "support/SectionDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk::batchtest {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// A project of 3 rows of 10 cells of 1 m under a line that lies in Italy, its view from 500 m/s to
/// 700 m/s.
/// \param idle how many of its geophones make another string, which recorded no shot
std::string writeProject(const Folder& folder, bool onGlobe = true,
                         const std::vector<std::ptrdiff_t>& idle = {}) {
  const talvesk::testing::ConsoleCapture console;
  TomoDocument document = talvesk::testing::sectionDocument(
      3, 10, 0.0, [](std::uint32_t row, std::uint32_t) { return 500.0 + 100.0 * row; });
  document.title = "Valley";
  auto& strings = document.line.edit().goephonesStringSet;
  for (const std::ptrdiff_t geophones : idle) {
    strings.emplace_back(strings[0].begin(), strings[0].begin() + geophones);
  }
  if (onGlobe) {
    document.map.edit().geoCoord = {32632, 652000.0, 652004.8, 5074000.0, 5074006.4};
    document.map.edit().geoCoord_isSet = true;
  }
  ColorPaletteList palettes;
  palettes.current().min_db = 500.0;
  palettes.current().max_db = 700.0;
  ProjectWriter writer;
  EXPECT_EQ(writer.save(folder / "line.tvsk", folder / "", document, {}, palettes), 0)
      << writer.message();
  return folder / "line.tvsk";
}

TEST(Export, writesEverythingOfAProject) {
  const Folder folder;
  const std::string project = writeProject(folder);
  const Outcome outcome = runBatch({"export",
                                    project,
                                    "--gridded",
                                    folder / "s.txt",
                                    "--survey-x",
                                    "--y",
                                    "7",
                                    "--z-offset",
                                    "-100",
                                    "--vtk",
                                    folder / "s.vtu",
                                    "--grd",
                                    folder / "s.grd",
                                    "--otte",
                                    folder / "s.otte",
                                    "--sgt",
                                    folder / "s.sgt",
                                    "--kml-line",
                                    folder / "line.kml",
                                    "--kml-section",
                                    folder / "section.kml"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(contentsOf(folder / "s.txt"), StartsWith("99.5 7 -0.5 500\n"));
  EXPECT_THAT(contentsOf(folder / "s.vtu"), HasSubstr("NumberOfCells=\"30\""));
  EXPECT_THAT(contentsOf(folder / "s.grd"), StartsWith("DSAA\n10 3\n"));
  EXPECT_THAT(contentsOf(folder / "s.otte"), Not(::testing::IsEmpty()));
  EXPECT_THAT(contentsOf(folder / "line.kml"), HasSubstr("10.95607815,45.80281645,0.0+"));
  EXPECT_THAT(contentsOf(folder / "section.kml"),
              AllOf(HasSubstr("<name>Valley Profile</name>"), HasSubstr("ff430034"),
                    HasSubstr("ff00e7fd")));
  EXPECT_THAT(contentsOf(folder / "s.sgt"), HasSubstr("#s g t"));
  EXPECT_EQ(folder.fileCount(), 8U) << "nothing is left of what was unpacked";
}

TEST(Export, drawsInMetresOfTheLineOrOnTheMap) {
  const Folder folder;
  const std::string project = writeProject(folder);
  ASSERT_EQ(runBatch({"export", project, "--dxf", folder / "s.dxf", "--isovalues", "550,650"}).code,
            0);
  EXPECT_THAT(contentsOf(folder / "s.dxf"),
              AllOf(HasSubstr("ISOLINE_550\n"), HasSubstr("ISOLINE_650\n"), HasSubstr("\n10\n100."),
                    Not(HasSubstr("\n10\n652000."))));
  ASSERT_EQ(runBatch({"export", project, "--dxf", folder / "m.dxf", "--dxf-map"}).code, 0);
  EXPECT_THAT(contentsOf(folder / "m.dxf"), HasSubstr("\n10\n652000."));

  ASSERT_EQ(runBatch({"export", project, "--gpkg", folder / "s.gpkg", "--curtain", folder / "s.vtu",
                      "--curtain", folder / "s.csv", "--epsg", "2180", "--first", "637000,487000",
                      "--last", "637008,487000"})
                .code,
            0);
  EXPECT_THAT(contentsOf(folder / "s.gpkg"), StartsWith("SQLite format 3"));
  EXPECT_THAT(contentsOf(folder / "s.vtu"), HasSubstr("EPSG"));
  EXPECT_THAT(contentsOf(folder / "s.csv"),
              AllOf(StartsWith("easting_m_epsg2180,"), HasSubstr("\n636999.5,487000,")));

  const Folder lost;
  const Outcome nowhere =
      runBatch({"export", writeProject(lost, false), "--dxf", lost / "m.dxf", "--dxf-map"});
  EXPECT_EQ(nowhere.code, 1);
  EXPECT_THAT(nowhere.err, HasSubstr("no place on the map"));
  EXPECT_FALSE(lost.holds("m.dxf"));
  for (const auto& [option, file] : {std::pair("--gpkg", "m.gpkg"), {"--curtain", "m.csv"}}) {
    const Outcome outcome = runBatch({"export", lost / "line.tvsk", option, lost / file});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_THAT(outcome.err, HasSubstr("no place on the map"));
    EXPECT_FALSE(lost.holds(file));
  }
  EXPECT_EQ(runBatch({"export", project, "--isovalues", "600"}).code, 2) << "of no drawing";
  EXPECT_EQ(runBatch({"export", project, "--dxf", folder / "x.dxf", "--isovalues", "6e9"}).code, 2);
}

TEST(Export, copiesShotFilesWithPicksInTheirHeaders) {
  const Folder folder;
  ASSERT_EQ(runBatch({"demo", folder / "line", "--quiet"}).code, 0);
  const std::string project = folder / "line.tvsk";
  ASSERT_EQ(runBatch({"pick", folder / "line/shot01.sg2", folder / "line/shot02.sg2", "--project",
                      project, "--quiet"})
                .code,
            0);
  const Outcome outcome = runBatch({"export", project, "--pick-headers", folder / "picked"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  for (const char* file : {"shot01.sg2", "shot02.sg2"}) {
    const std::string copy = folder / (std::string("picked/") + file);
    EXPECT_THAT(contentsOf(copy), HasSubstr("FIRST_BREAK 0."));
    const std::string source = folder / (std::string("line/") + file);
    const auto traces = [](const std::string& path) {
      const std::string json = runBatch({"info", "--json", "-", "--samples", path}).out;
      return json.substr(json.find("\"traces\""));
    };
    EXPECT_EQ(traces(copy), traces(source)) << "read by both readers";
  }
  const Outcome without =
      runBatch({"export", writeProject(folder), "--pick-headers", folder / "none"});
  EXPECT_EQ(without.code, 1);
  EXPECT_THAT(without.err, HasSubstr("no shot files"));
}

TEST(Export, drawsAndReportsWithoutADisplay) {
  const Folder folder;
  const std::string project = writeProject(folder);
  const Outcome outcome =
      runBatch({"export", project, "--quiet", "--image", folder / "a.svg", "--image",
                folder / "b.png", "--report", folder / "c.pdf", "--report-title", "Hill"},
               {{"DISPLAY", ""}});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(contentsOf(folder / "a.svg"), AllOf(HasSubstr(">Valley<"), HasSubstr(">700<")));
  EXPECT_THAT(contentsOf(folder / "b.png"), HasSubstr("PNG"));
  EXPECT_THAT(contentsOf(folder / "c.pdf"), StartsWith("%PDF-"));
  EXPECT_EQ(folder.fileCount(), 4U);
}

TEST(Export, printsSectionAndCurvesAtAScaleOrTellsOneThatFits) {
  const Folder folder;
  const std::string project = writeProject(folder);
  const Outcome printed = runBatch({"export", project, "--print", folder / "s.pdf", "--scale", "50",
                                    "--paper", "A3", "--print-curves", folder / "c.pdf"},
                                   {{"DISPLAY", ""}});
  ASSERT_EQ(printed.code, 0) << printed.err;
  for (const char* name : {"s.pdf", "c.pdf"}) {
    // An A3 sheet on its side, in points.
    EXPECT_THAT(contentsOf(folder / name),
                AllOf(StartsWith("%PDF-"), HasSubstr("/MediaBox [0 0 1191.000000 842.000000]")));
  }
  const Outcome refused = runBatch({"export", project, "--print", folder / "large.pdf", "--scale",
                                    "20", "--paper", "A4", "--portrait"});
  EXPECT_EQ(refused.code, 1);
  EXPECT_THAT(refused.err, HasSubstr("choose 1:"));
  EXPECT_EQ(folder.fileCount(), 3U);
  const Outcome split =
      runBatch({"export", project, "--print", folder / "large.pdf", "--scale", "20", "--paper",
                "A4", "--portrait", "--tiles", "--exaggeration", "2"},
               {{"DISPLAY", ""}});
  ASSERT_EQ(split.code, 0) << split.err;
  EXPECT_THAT(
      contentsOf(folder / "large.pdf"),
      AllOf(HasSubstr("/MediaBox [0 0 595.000000 842.000000]"), Not(HasSubstr("/Count 1"))));
  const Outcome fitted =
      runBatch({"export", project, "--print", folder / "fit.pdf", "--scale", "fit"}, {});
  EXPECT_EQ(fitted.code, 0) << fitted.err;
}

TEST(Export, printsOnlyWhatTheProjectHas) {
  const Folder folder;
  const std::string project = writeProject(folder);
  const struct {
    const char* option;
    const char* reason;
  } cases[] = {{"--print-traces", "no traces to draw"},
               {"--print-misfit", "no misfit to draw"},
               {"--print-layers", "no refractor with a depth"}};
  for (const auto& c : cases) {
    const Outcome outcome = runBatch({"export", project, c.option, folder / "x.pdf"});
    EXPECT_EQ(outcome.code, 1) << c.option;
    EXPECT_THAT(outcome.err, HasSubstr(c.reason)) << c.option;
  }
  EXPECT_EQ(folder.fileCount(), 1U);
}

TEST(Export, writesAPageOfEveryProjectAndOneOnAllOfThem) {
  const Folder folder;
  const std::string project = writeProject(folder);
  folder.write("torn.tvsk", "no archive");
  const Outcome outcome = runBatch({"export", "--report-index", folder / "pages", project,
                                    folder / "torn.tvsk", "--client", "Hill & Co"},
                                   {{"DISPLAY", ""}});
  EXPECT_EQ(outcome.code, 1) << "one of them failed";
  EXPECT_THAT(outcome.err, HasSubstr("torn.tvsk is not a valid project"));
  const std::string index = contentsOf(folder / "pages/index.html");
  EXPECT_THAT(index, AllOf(HasSubstr("<a href=\"line.html\">line</a>"), HasSubstr("Hill &amp; Co"),
                           HasSubstr("<strong>Failed:</strong> torn.tvsk is not a valid project"),
                           HasSubstr("Map of the lines"), Not(HasSubstr(folder / ""))));
  EXPECT_THAT(contentsOf(folder / "pages/line.html"), HasSubstr("<h1>Valley</h1>"));
}

TEST(Export, leavesAFileAloneThatIsNoPageOfItsOwn) {
  const Folder folder;
  const std::string project = writeProject(folder);
  folder.write("line.html", "mine");
  const Outcome outcome = runBatch({"export", "--report-index", folder / "all.html", project});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(contentsOf(folder / "line.html"), "mine");
  EXPECT_THAT(contentsOf(folder / "all.html"), HasSubstr("is no page of Talvesk"));
  std::remove((folder / "line.html").c_str());
  for (int times = 0; times < 2; ++times) {
    EXPECT_EQ(runBatch({"export", "--report-index", folder / "all.html", project}).code, 0);
  }
}

TEST(Export, takesManyProjectsForAnIndexOnly) {
  const auto refused = [](const std::vector<std::string>& arguments) {
    const Outcome outcome = runBatch(arguments);
    EXPECT_EQ(outcome.code, 2);
    return outcome.err;
  };
  EXPECT_THAT(refused({"export", "a.tvsk", "b.tvsk", "--vtk", "x.vtu"}), HasSubstr("several"));
  EXPECT_THAT(refused({"export", "a.tvsk", "--report-index", "x", "--vtk", "x.vtu"}),
              HasSubstr("no other option"));
  EXPECT_THAT(refused({"export", "a.tvsk", "--vtk", "x.vtu", "--client", "C"}),
              HasSubstr("--report-index"));
}

TEST(Export, laysAStyleOnPicturesAndKml) {
  const Folder folder;
  const std::string project = writeProject(folder);
  SectionStyle style;
  style.palette = ColorPaletteList()[2];
  style.palette.min_db = 400.0;
  style.palette.max_db = 900.0;
  style.section.verticalExaggeration = 2.5;
  style.isolines = {{"weathered rock", 650.0, 0x2040c0}};
  ASSERT_TRUE(writeStyle(folder / "campaign.tvstyle", style).ok());
  const Outcome outcome =
      runBatch({"export", project, "--quiet", "--style", folder / "campaign.tvstyle", "--image",
                folder / "a.svg", "--kml-section", folder / "s.kml"},
               {{"DISPLAY", ""}});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(contentsOf(folder / "a.svg"),
              AllOf(HasSubstr(">900<"), HasSubstr("weathered rock: 650 m/s"),
                    HasSubstr("Vertical exaggeration 2.5")));
  EXPECT_THAT(contentsOf(folder / "s.kml"), HasSubstr("<name>weathered rock</name>"));

  const Outcome none = runBatch(
      {"export", project, "--style", folder / "none.tvstyle", "--image", folder / "b.svg"});
  EXPECT_EQ(none.code, 1);
  EXPECT_THAT(none.err, HasSubstr("none.tvstyle"));
  EXPECT_FALSE(folder.holds("b.svg"));
}

TEST(Export, takesPlacePaletteAndRangeFromTheCommandLine) {
  const Folder folder;
  const std::string project = writeProject(folder, false);
  const Outcome without = runBatch({"export", project, "--kml-line", folder / "line.kml"});
  EXPECT_EQ(without.code, 1);
  EXPECT_THAT(without.err, HasSubstr("Geographical coordinates are missing, data cannot be "
                                     "exported in KML format"));
  EXPECT_FALSE(folder.holds("line.kml"));

  const Outcome outcome = runBatch({"export", project, "--kml-section", folder / "s.kml", "--epsg",
                                    "2180", "--first", "637000,487000", "--last", "637008,487000",
                                    "--palette", "Black to White", "--range", "500:600"});
  ASSERT_EQ(outcome.code, 0) << outcome.err;
  // The left edge lies a metre west of the first geophone in Warsaw.
  EXPECT_THAT(contentsOf(folder / "s.kml"),
              AllOf(HasSubstr("\n21.00668947,52.23197"), HasSubstr("<color>ff000000</color>"),
                    HasSubstr("<color>ffffffff</color>")));
  const Outcome report = runBatch({"export", project, "--report", folder / "r.pdf", "--epsg",
                                   "2180", "--first", "637000,487000", "--last", "637008,487000"});
  EXPECT_EQ(report.code, 0) << "a report tells the place, too: " << report.err;
}

TEST(Export, coloursNothingButTheKmlByAPaletteThatIsAskedFor) {
  const Folder folder;
  const std::string project = writeProject(folder);
  ASSERT_EQ(runBatch({"export", project, "--image", folder / "a.png"}).code, 0);
  const Outcome coloured =
      runBatch({"export", project, "--image", folder / "b.png", "--kml-section", folder / "s.kml",
                "--palette", "Black to White"});
  ASSERT_EQ(coloured.code, 0) << coloured.err;
  EXPECT_THAT(contentsOf(folder / "s.kml"), HasSubstr("<color>ffffffff</color>"));
  const std::string picture = contentsOf(folder / "a.png");
  EXPECT_EQ(contentsOf(folder / "b.png") == picture, true) << "of the project's palette";
}

TEST(Export, writesTheOthersWhenOneFails) {
  const Folder folder;
  const std::string project = writeProject(folder);
  const Outcome outcome =
      runBatch({"export", project, "--kml-line", folder / "line.kml", "--epsg", "999999", "--first",
                "1,2", "--last", "3,4", "--vtk", folder / "s.vtu"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("EPSG:999999 is no reference system"));
  EXPECT_TRUE(folder.holds("s.vtu"));
  EXPECT_FALSE(folder.holds("line.kml"));
}

/// The strings of picks are told apart by the shots that they recorded.
TEST(Export, hasResidualsOfASectionOnly) {
  const Folder folder;
  const Outcome outcome =
      runBatch({"export", writeProject(folder), "--residuals", folder / "r.csv"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("there is no section whose times could be compared"));
  EXPECT_EQ(folder.fileCount(), 1U);
}

TEST(Export, tellsOfStringsThatAnExchangeFileCannotHoldEvenWhenQuiet) {
  const Folder folder;
  const std::string project = writeProject(folder, true, {1, 4});
  for (const std::vector<std::string>& command :
       {std::vector<std::string>{"export", project}, {"invert", project, "--iterations", "1"}}) {
    std::vector<std::string> arguments = command;
    arguments.insert(arguments.end(), {"--otte", folder / "s.otte", "--quiet"});
    const Outcome outcome = runBatch(arguments);
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr("read back, string 2 will have another number"));
  }
}

TEST(Export, failsForWhatIsNoProjectInside) {
  const Folder folder;
  const Outcome outcome =
      runBatch({"export", folder.write("bad.tvsk", "PK\3\4"), "--vtk", folder / "s.vtu"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("bad.tvsk"));
  EXPECT_EQ(folder.fileCount(), 1U);
}

TEST(Export, refusesCommandLinesThatMakeNoSense) {
  const Folder folder;
  const std::string project = writeProject(folder);
  const std::string kml = folder / "s.kml";
  const struct {
    std::vector<std::string> more;
    const char* message;
  } cases[] = {
      {{}, "no file to write"},
      {{"--vtk", folder / "s.txt"}, "must end in .vtu"},
      {{"--vtk", folder / "s.vtu", "--y", "3"}, "--gridded"},
      {{"--vtk", folder / "s.vtu", "--palette", "Blue to red"}, "--kml-section"},
      {{"--vtk", folder / "s.vtu", "--epsg", "32632", "--first", "1,2", "--last", "3,4"}, "place"},
      {{"--kml-line", kml, "--epsg", "32632", "--first", "1,2"}, "--last"},
      {{"--kml-line", kml, "--first", "1,2", "--last", "1,2"}, "--epsg"},
      {{"--kml-line", kml, "--epsg", "32632", "--first", "1", "--last", "3,4"}, "'1' is not E,N"},
      {{"--kml-line", kml, "--epsg", "32632", "--first", "1,2,3", "--last", "3,4"}, "is not E,N"},
      {{"--kml-line", kml, "--epsg", "32632", "--first", "1,nan", "--last", "3,4"}, "'nan'"},
      {{"--kml-section", kml, "--range", "600:500"}, "above the minimum"},
      {{"--kml-section", kml, "--range", "600"}, "is not MIN:MAX"},
      {{"--kml-section", kml, "--palette", "Mauve"}, "'Mauve' is none of 'Silva viridis'"},
      {{"other.tvsk", "--vtk", folder / "s.vtu"}, "other.tvsk"},
      {{"--vtk", folder / "s.vtu", "--scale", "500"}, "goes with --print or another print"},
      {{"--vtk", folder / "s.vtu", "--tiles"}, "goes with --print or another print"},
      {{"--print", folder / "s.pdf", "--ms-per-cm", "0"}, "from 0.01 to 100000"},
      {{"--print", folder / "s.pdf", "--paper", "A9"}, "A9"},
      {{"--print", folder / "s.pdf", "--scale", "0"}, "from 1 to 1000000"},
      {{"--print", folder / "s.png"}, "must end in .pdf"},
      {{"--gridded", project}, "overwrite"},
      {{"--kml-line", kml, "--kml-section", kml}, "same file"},
  };
  for (const auto& c : cases) {
    std::vector<std::string> arguments = {"export", project};
    arguments.insert(arguments.end(), c.more.begin(), c.more.end());
    const Outcome outcome = runBatch(arguments);
    EXPECT_EQ(outcome.code, 2) << c.message;
    EXPECT_THAT(outcome.err, HasSubstr(c.message));
    EXPECT_EQ(folder.fileCount(), 1U);
  }
}

}  // namespace
}  // namespace talvesk::batchtest
