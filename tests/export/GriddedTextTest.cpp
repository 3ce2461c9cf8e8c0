#include "export/GriddedText.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"
#include "support/TestGrids.h"

#include <limits>
#include <sstream>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// Two rows of two cells of 10 m under level ground at 100 m, 500 m/s above 2000 m/s.
TomoDocument document() {
  TomoDocument document;
  const auto surface = hills(20.0, 0.0);
  document.model.edit().grid =
      std::make_unique<Grid>(std::make_shared<GridGeometry>(GridSize{2, 2, 3, 10.0}, surface),
                             std::vector<double>{0.002, 0.002, 0.0005, 0.0005});
  return document;
}

std::vector<std::string> linesOf(const std::string& path) {
  std::istringstream stream(TestFolder::get(path));
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

TEST(GriddedText, writesCentreLineElevationAndVelocity) {
  const ConsoleCapture console;
  const TestFolder folder;
  const std::string path = folder.file("grid.txt");
  ASSERT_TRUE(writeGriddedText(path, document()).ok());
  const TomoDocument same = document();
  const Point2D first = same.model->grid->cellCentre(0);
  ASSERT_NEAR(first.x, 5.0, 2.0);
  EXPECT_EQ(first.z, -95.0);  // a depth: five metres below ground at 100 m
  std::ostringstream x0, x1;
  x0 << first.x;
  x1 << same.model->grid->cellCentre(1).x;
  EXPECT_THAT(linesOf(path), ElementsAre(x0.str() + " 0 95 500", x1.str() + " 0 95 500",
                                         x0.str() + " 0 85 2000", x1.str() + " 0 85 2000"));
  EXPECT_EQ(console.out(), "");
  announceGriddedText(path);
  EXPECT_EQ(console.out(), "Exporting tomographic data on file: " + path + "\n");
}

TEST(GriddedText, shiftsTheLineInSixDigitsWhateverTheLocale) {
  const ConsoleCapture console;
  const TestFolder folder;
  const std::string path = folder.file("shifted.txt");
  const CommaNumbers numbers;
  const CommaStreams streams;
  ASSERT_TRUE(writeGriddedText(path, document(), {1234567.8, -0.12345678}).ok());
  EXPECT_THAT(linesOf(path)[0], HasSubstr(" 1.23457e+06 94.8765 500"));
}

TEST(GriddedText, takesTheOffsetOfTheGridOffAndCountsFromTheHighestGround) {
  const ConsoleCapture console;
  const TestFolder folder;
  const std::string path = folder.file("survey.txt");
  TomoDocument offset = document();
  offset.model.edit().xOffset = -95.0;
  EXPECT_EQ(referenceElevation(*offset.model->grid), 100.0);
  ASSERT_TRUE(
      writeGriddedText(path, offset, {0.0, -referenceElevation(*offset.model->grid), true}).ok());
  std::ostringstream x;
  x << offset.model->grid->cellCentre(0).x + 95.0;
  EXPECT_EQ(linesOf(path)[0], x.str() + " 0 -5 500");
}

TEST(GriddedText, leavesOutCellsThatAreNotDrawn) {
  const ConsoleCapture console;
  const TestFolder folder;
  const std::string path = folder.file("hidden.txt");
  TomoDocument hidden = document();
  hidden.model.edit().editGrid().setDraw(1, false);
  hidden.model.edit().editGrid().setDraw(2, false);
  ASSERT_TRUE(writeGriddedText(path, hidden).ok());
  EXPECT_THAT(linesOf(path), ElementsAre(HasSubstr(" 95 500"), HasSubstr(" 85 2000")));
}

TEST(GriddedText, writesAPlaceholderForAnInfiniteVelocity) {
  const ConsoleCapture console;
  const TestFolder folder;
  const std::string path = folder.file("placeholder.txt");
  TomoDocument unknown = document();
  unknown.model.edit().editGrid().setSlowness(0, 0.0);
  unknown.model.edit().editGrid().setSlowness(1, -0.0);
  unknown.model.edit().editGrid().setSlowness(2, std::numeric_limits<double>::denorm_min());
  ASSERT_TRUE(writeGriddedText(path, unknown).ok());
  EXPECT_THAT(linesOf(path), ElementsAre(HasSubstr(" 1.79769e+308"), HasSubstr(" 1.79769e+308"),
                                         HasSubstr(" 1.79769e+308"), HasSubstr(" 85 2000")));
}

TEST(GriddedText, writesNothingWithoutAGridOrWithAnEndlessShift) {
  const TestFolder folder;
  const std::string path = folder.put("old.txt", "old\n");
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const struct {
    TomoDocument document;
    double lineY;
    const char* message;
  } cases[] = {{TomoDocument(), 0.0, "has no grid"}, {document(), nan, "must be finite"}};
  for (const auto& c : cases) {
    const ConsoleCapture console;
    const Status status = writeGriddedText(path, c.document, {c.lineY, 0.0});
    EXPECT_FALSE(status.ok());
    EXPECT_THAT(status.message(), HasSubstr(c.message));
    EXPECT_EQ(console.error(), status.message() + "\n");
    EXPECT_THAT(linesOf(path), ElementsAre("old"));
  }
}

TEST(GriddedText, saysWhereItCannotWrite) {
  const ConsoleCapture console;
  const Status status = writeGriddedText("/no/such/folder/grid.txt", document());
  EXPECT_FALSE(status.ok());
  EXPECT_THAT(status.message(), HasSubstr("/no/such/folder/grid.txt"));
}

}  // namespace
}  // namespace talvesk
