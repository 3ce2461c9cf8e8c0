#include "base/AtomicFile.h"
#include "base/LengthUnit.h"
#include "figures/GatherPanels.h"
#include "figures/GatherSheet.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "support/CommaLocale.h"
#include "support/PanelPicture.h"
#include "support/ShotDocument.h"
#include "support/TestFolder.h"

#include <cmath>
#include <cstdio>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

bool isRed(const QColor& color) {
  return color.red() > 150 && color.green() < 110;
}

bool hasRedAt(const QImage& image, const GatherPanelPlace& panel, double x, double ms) {
  return hasColorAt(image, panel, x, ms, isRed);
}

struct Cells {
  std::size_t rows;
  std::size_t columns;
  std::size_t sheets;  ///< of five shots
};

class GatherSheets : public ::testing::TestWithParam<Cells> {};

TEST_P(GatherSheets, shareOneAxisOfTimeAndLieInRowsAndColumns) {
  const TomoDocument document = shotDocument(5, 12, 400);
  GatherSheetOptions options;
  options.rows = GetParam().rows;
  options.columns = GetParam().columns;
  EXPECT_EQ(gatherSheets(document, options), GetParam().sheets);
  FigureDrawing drawing;
  std::vector<GatherPanelPlace> places;
  ASSERT_TRUE(prepareGatherSheet(document, options, 0, drawing, &places).ok());
  ASSERT_EQ(places.size(), std::min<std::size_t>(5, options.rows * options.columns));
  for (std::size_t i = 0; i < places.size(); ++i) {
    EXPECT_DOUBLE_EQ(places[i].topMs, places[0].topMs);
    EXPECT_DOUBLE_EQ(places[i].bottomMs, places[0].bottomMs);
    EXPECT_DOUBLE_EQ(places[i].leftMm, places[i % options.columns].leftMm);
    const std::size_t left = i - i % options.columns;
    EXPECT_DOUBLE_EQ(places[i].topMm, places[left].topMm);
    EXPECT_LE(places[i].leftMm + places[i].widthMm, options.widthMm);
    EXPECT_LE(places[i].topMm + places[i].heightMm, options.heightMm);
  }
}

INSTANTIATE_TEST_SUITE_P(All, GatherSheets,
                         ::testing::Values(Cells{1, 1, 5}, Cells{1, 2, 3}, Cells{2, 3, 1},
                                           Cells{4, 4, 1}));

TEST(GatherSheet, showsThePicksOfEveryShotWhereTheyAre) {
  TomoDocument document = shotDocument(2, 12, 400);
  for (double& time : document.ttArray.edit()[1].ttMisurati.edit()) time += 0.02;
  GatherSheetOptions options;
  options.rows = 1;
  options.gather.gain = 0.2;
  FigureDrawing drawing;
  std::vector<GatherPanelPlace> places;
  ASSERT_TRUE(prepareGatherSheet(document, options, 0, drawing, &places).ok());
  const QImage image = pictureOf(drawing);
  const double x = 10.0 + 2.0 * 5;
  const double ms = 1e3 * firstBreak(5);
  EXPECT_TRUE(hasRedAt(image, places[0], x, ms));
  EXPECT_FALSE(hasRedAt(image, places[0], x, ms + 20.0));
  EXPECT_TRUE(hasRedAt(image, places[1], x, ms + 20.0));
  EXPECT_FALSE(hasRedAt(image, places[1], x, ms));
}

TEST(GatherSheet, hasATimeAxisThatAllItsShotsFitIn) {
  TomoDocument document = shotDocument(4, 3, 2000);
  for (double& time : document.ttArray.edit()[3].ttMisurati.edit()) time = 0.3;
  GatherSheetOptions options;
  options.rows = 1;
  FigureDrawing drawing;
  std::vector<GatherPanelPlace> places;
  ASSERT_TRUE(prepareGatherSheet(document, options, 0, drawing, &places).ok());
  EXPECT_LT(places[0].bottomMs, 50.0);
  ASSERT_TRUE(prepareGatherSheet(document, options, 1, drawing, &places).ok());
  EXPECT_GT(places[0].bottomMs, 300.0);
  EXPECT_DOUBLE_EQ(places[1].bottomMs, places[0].bottomMs);
}

TEST(GatherSheet, isWrittenAsOneFileOrNumberedOnes) {
  const TestFolder folder;
  const TomoDocument document = shotDocument(5, 6, 100);
  GatherSheetOptions options;
  std::vector<std::string> written;
  for (const std::string suffix : {"pdf", "svg", "png"}) {
    const std::string path = folder.file("line." + suffix);
    const Status status = writeGatherSheets(document, options, path, written);
    ASSERT_TRUE(status.ok()) << status.message();
    EXPECT_EQ(written, gatherSheetFiles(document, options, path));
  }
  EXPECT_THAT(written, ElementsAre(folder.file("line_01.png"), folder.file("line_02.png")));
  std::string bytes;
  ASSERT_TRUE(readWholeFile(folder.file("line.pdf"), bytes).ok());
  EXPECT_THAT(bytes, HasSubstr("/Count 2"));
}

TEST(GatherSheet, looksTheSameByEveryLocale) {
  const TomoDocument document = shotDocument(2, 6, 100);
  const auto drawn = [&document] {
    FigureDrawing drawing;
    const GatherSheetOptions options;
    EXPECT_TRUE(prepareGatherSheet(document, options, 0, drawing).ok());
    return pictureOf(drawing);
  };
  const QImage plain = drawn();
  const CommaStreams streams;
  const CommaNumbers numbers;
  EXPECT_EQ(drawn(), plain);
}

TEST(GatherSheet, refusesWhatMakesNoSheet) {
  const TestFolder folder;
  const TomoDocument document = shotDocument(2, 6, 100);
  FigureDrawing drawing;
  GatherSheetOptions options;
  EXPECT_FALSE(prepareGatherSheet(TomoDocument(), options, 0, drawing).ok());
  EXPECT_FALSE(prepareGatherSheet(document, options, 1, drawing).ok());
  options.shots = {1, 2};
  EXPECT_THAT(prepareGatherSheet(document, options, 0, drawing).message(), HasSubstr("shot 3"));
  options.shots.clear();
  options.columns = 0;
  EXPECT_FALSE(prepareGatherSheet(document, options, 0, drawing).ok());
  options.columns = 10;
  options.rows = 10;
  options.widthMm = 100.0;
  EXPECT_THAT(prepareGatherSheet(document, options, 0, drawing).message(), HasSubstr("too small"));
  std::vector<std::string> written;
  const GatherSheetOptions usual;
  EXPECT_FALSE(writeGatherSheets(document, usual, folder.file("a.png"), written, [](std::size_t) {
                 return false;
               }).ok());
  EXPECT_THAT(written, IsEmpty());
}

TEST(GatherSheet, saysWhatIsMendedOfAShotOrLiesOutside) {
  TomoDocument document = shotDocument(2, 6, 100);
  ShotMends mends;
  mends.traces.resize(1);
  mends.traces[0].killed = true;
  ASSERT_TRUE(setMends(1, mends, document).ok());
  GatherFigureOptions options;
  options.window = TimeWindow{0.0, 11.0};
  GatherScene scene;
  ASSERT_TRUE(buildGatherScene(document, 1, options, scene).ok());
  EXPECT_THAT(scene.remarks, HasSubstr("1 trace killed"));
  EXPECT_THAT(scene.remarks, HasSubstr("outside the times shown"));
  ASSERT_TRUE(buildGatherScene(document, 0, GatherFigureOptions(), scene).ok());
  EXPECT_EQ(scene.remarks, "");
}

}  // namespace
}  // namespace talvesk
