#include "export/SurferGrid.h"
#include "model/GroundModel.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"
#include "support/SectionDocument.h"
#include "support/TestFolder.h"

#include <cmath>
#include <sstream>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::HasSubstr;

struct Raster {
  std::string format;
  int nx = 0, ny = 0;
  double xlo = 0, xhi = 0, ylo = 0, yhi = 0, zlo = 0, zhi = 0;
  std::vector<double> values;
  double at(int i, int j) const { return values[j * nx + i]; }
  double x(int i) const { return xlo + (xhi - xlo) * i / (nx - 1); }
  double y(int j) const { return ylo + (yhi - ylo) * j / (ny - 1); }
  bool blank(int i, int j) const { return at(i, j) >= 1.70141e38; }
};

Raster readBack(const std::string& path) {
  Raster r;
  std::istringstream stream(TestFolder::get(path));
  stream.imbue(std::locale::classic());
  stream >> r.format >> r.nx >> r.ny >> r.xlo >> r.xhi >> r.ylo >> r.yhi >> r.zlo >> r.zhi;
  for (double value; stream >> value;) r.values.push_back(value);
  EXPECT_TRUE(stream.eof()) << "nothing but numbers";
  EXPECT_EQ(r.values.size(), static_cast<std::size_t>(r.nx) * static_cast<std::size_t>(r.ny));
  return r;
}

double byRow(std::uint32_t row, std::uint32_t column) {
  return 500.0 + 100.0 * row + column;
}

TEST(SurferGrid, hasANodeInEveryCellUnderLevelGroundLowestLineFirst) {
  const ConsoleCapture console;
  const CommaStreams commas;
  const TestFolder folder;
  TomoDocument document = sectionDocument(3, 12, 0.0, byRow);
  document.model.edit().editGrid().setDraw(0, false);
  document.model.edit().editGrid().setDraw(14, false);
  document.model.edit().editGrid().setSlowness(35, 0.0);
  ASSERT_TRUE(writeSurferGrid(folder.file("s.grd"), document).ok());
  const Raster r = readBack(folder.file("s.grd"));
  EXPECT_EQ(r.format, "DSAA");
  ASSERT_EQ(r.nx, 12);
  ASSERT_EQ(r.ny, 3);
  EXPECT_NEAR(r.xlo, 99.5, 1e-9) << "survey x of the first column's middle";
  EXPECT_NEAR(r.xhi, 110.5, 1e-9);
  EXPECT_NEAR(r.ylo, 97.5, 1e-9) << "three metres below ground at 100 m";
  EXPECT_NEAR(r.yhi, 99.5, 1e-9);
  EXPECT_EQ(r.zlo, 501.0);
  EXPECT_EQ(r.zhi, 710.0);
  for (int j = 0; j < 3; ++j) {
    for (int i = 0; i < 12; ++i) {
      const int row = 2 - j;
      const int cell = row * 12 + i;
      if (cell == 0 || cell == 14 || cell == 35) {
        EXPECT_TRUE(r.blank(i, j)) << cell;
      } else {
        EXPECT_EQ(r.at(i, j), 500.0 + 100.0 * row + i);
      }
    }
  }
}

TEST(SurferGrid, followsTheGroundAndIsBlankOutside) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = sectionDocument(6, 40, 6.0, byRow);
  ASSERT_TRUE(writeSurferGrid(folder.file("s.grd"), document).ok());
  const Raster r = readBack(folder.file("s.grd"));
  ASSERT_EQ(r.nx, 40);
  EXPECT_NEAR((r.yhi - r.ylo) / (r.ny - 1), 1.0, 1e-9) << "steps of the cell size";
  int filled = 0;
  for (int j = 0; j < r.ny; ++j) {
    for (int i = 0; i < r.nx; ++i) {
      const auto& g = document.model->grid->geometry();
      const auto node = static_cast<std::uint32_t>(i) * 5;
      const double top = -0.5 * (g.lineZ(0, node) + g.lineZ(0, node + 5));
      const double bottom = -0.5 * (g.lineZ(6, node) + g.lineZ(6, node + 5));
      SCOPED_TRACE(std::to_string(i) + " " + std::to_string(j));
      EXPECT_EQ(r.blank(i, j), r.y(j) > top + 1e-9 || r.y(j) < bottom - 1e-9);
      if (r.blank(i, j)) continue;
      ++filled;
      // The row is the number of whole hundreds; its middle is near.
      const int row = static_cast<int>((r.at(i, j) - 500.0) / 100.0);
      EXPECT_EQ(r.at(i, j), 500.0 + 100.0 * row + i);
      EXPECT_NEAR(r.y(j),
                  -document.model->grid->cellCentre(static_cast<std::uint32_t>(row * 40 + i)).z,
                  1.5);
    }
  }
  EXPECT_NEAR(filled, 240, 24);
}

TEST(SurferGrid, widensASingleColumnWithBlanks) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = sectionDocument(3, 4, 0.0, byRow);
  for (std::uint32_t cell = 0; cell < 12; ++cell)
    document.model.edit().editGrid().setDraw(cell, cell == 6);
  ASSERT_TRUE(writeSurferGrid(folder.file("s.grd"), document).ok());
  const Raster r = readBack(folder.file("s.grd"));
  ASSERT_EQ(r.nx, 2);
  ASSERT_EQ(r.ny, 2);
  EXPECT_EQ(r.at(0, 1), 602.0);
  EXPECT_TRUE(r.blank(1, 0) && r.blank(1, 1) && r.blank(0, 0));
}

TEST(SurferGrid, isNotWrittenWithoutDrawnCellsForHugeReliefOrWhereItCannotBe) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument hidden = sectionDocument(3, 4, 0.0, byRow);
  for (std::uint32_t cell = 0; cell < 12; ++cell)
    hidden.model.edit().editGrid().setDraw(cell, false);
  const std::string path = folder.file("s.grd");
  EXPECT_THAT(writeSurferGrid(path, hidden).message(), HasSubstr("no cell"));
  EXPECT_THAT(writeSurferGrid(path, TomoDocument()).message(), HasSubstr("no grid"));
  EXPECT_THAT(writeSurferGrid(path, sectionDocument(3, 40, 1e12, byRow)).message(),
              HasSubstr("nodes"));
  EXPECT_THAT(writeSurferGrid(folder.file("no/s.grd"), sectionDocument(3, 4, 0.0, byRow)).message(),
              HasSubstr("no/s.grd"));
  EXPECT_EQ(folder.entries(), 0);
}

}  // namespace
}  // namespace talvesk
