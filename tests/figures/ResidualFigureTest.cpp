#include "figures/ImageSet.h"
#include "figures/ResidualFigures.h"
#include "model/Residuals.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"
#include "support/TestSurveys.h"
#include "tomo/TomographyRun.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::TestFolder;

/// A section that explains its picks, but for one of the last shot that is 25 ms late; one of the
/// first shot is gone.
TomoDocument inverted() {
  const testing::ConsoleCapture console;
  TomoDocument line = testing::testLine(13, 2.0, {0.0, 12.0, 24.0});
  testing::pickTwoLayers(line, 450.0, 1800.0, 3.0);
  for (TravelTime& record : line.ttArray.edit()) {
    for (double& time : record.ttMisurati.edit()) time = std::max(time, 0.5e-3);
  }
  testing::putGrid(line, 10.0, 1.0);
  TomographyParameters few;
  few.externalIterations = 2;
  few.solverIterations = 2;
  Log log;
  EXPECT_TRUE(runInversion(line, few, log).status.ok());
  for (TravelTime& record : line.ttArray.edit()) {
    for (std::size_t i = 0; i < 13; ++i) {
      record.ttMisurati.edit()[i] = record.ttCalcolati[i] + 1e-4 * (i % 3 == 0 ? 1.0 : -1.0);
    }
  }
  line.ttArray.edit()[2].ttMisurati.edit()[1] += 0.025;
  line.ttArray.edit()[0].ttMisurati.edit()[5] = kUnpicked;
  return line;
}

TEST(ResidualFigures, drawLatePicksBlueAndEmptyCellsHatched) {
  const ResidualTable table = residualTableOf(inverted());
  const MatrixPicture picture = residualMatrix(table, {});
  ASSERT_EQ(picture.rows.size(), 3U);
  EXPECT_EQ(picture.marked, (std::vector<std::size_t>{2 * 13 + 1}));
  EXPECT_TRUE(std::isnan(picture.at(0, 5)));
  QImage image(800, 300, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  const QFont font = figureFont(8.0);
  picture.paint(painter, image.rect(), font, MatrixInk::paper());
  painter.end();
  const QRectF area = picture.area(image.rect(), font);
  const QPoint late = picture.cell(2, 1, area).topLeft().toPoint() + QPoint(3, 3);
  EXPECT_GT(image.pixelColor(late).blue(), image.pixelColor(late).red() + 60)
      << "computed less than measured";
  // Of an empty cell some pixels are paper and some are not.
  int paper = 0;
  const QRect empty = picture.cell(0, 5, area).toAlignedRect().adjusted(2, 2, -2, -2);
  for (int y = empty.top(); y < empty.bottom(); ++y) {
    for (int x = empty.left(); x < empty.right(); ++x) {
      paper += image.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
    }
  }
  EXPECT_GT(paper, 10);
  EXPECT_LT(paper, empty.width() * empty.height() - 10);
}

TEST(ResidualFigures, tellAllOfAPick) {
  TomoDocument line = inverted();
  line.ttArray.edit()[2].ttMisurati.edit()[1] = 0.060;
  line.ttArray.edit()[2].ttCalcolati.edit()[1] = 0.0354;
  const ResidualTable table = residualTableOf(line);
  EXPECT_EQ(residualText(table, table.pickOf(2, 1), QLocale::c()).toStdString(),
            "Shot 3, geophone 2 at 2 m, offset 22 m: measured 60.00 ms, computed 35.40 ms, "
            "residual -24.60 ms, error 1.80 ms (-13.7 errors); suspect");
}

TEST(ResidualFigures, writeEveryViewInEveryFormatAndNothingWithoutResiduals) {
  const TestFolder folder;
  TomoDocument line = inverted();
  const ResidualTable table = residualTableOf(line);
  for (const auto view :
       {ResidualView::kMap, ResidualView::kOffset, ResidualView::kGroups, ResidualView::kSection}) {
    for (const char* suffix : {".png", ".svg", ".pdf"}) {
      const std::string path = folder.file("view" + std::to_string(int(view)) + suffix);
      const Status status = writeResidualFigure(line, table, view, {}, {}, path);
      EXPECT_TRUE(status.ok()) << path << status.message();
      EXPECT_GT(QFileInfo(QString::fromStdString(path)).size(), 1000) << path;
    }
    line.result.edit().timesOfSection = false;
    const std::string none = folder.file("none.png");
    EXPECT_THAT(writeResidualFigure(line, residualTableOf(line), view, {}, {}, none).message(),
                HasSubstr("no residuals"));
    EXPECT_FALSE(QFile::exists(QString::fromStdString(none)));
    line.result.edit().timesOfSection = true;
  }
}

TEST(ResidualFigures, areAmongThePicturesOfASurvey) {
  const TestFolder folder;
  TomoDocument line = inverted();
  ImageSetOptions options;
  options.residuals = true;
  options.palette = ColorPaletteList().current();
  options.folder = folder.path();
  options.widthMm = 120.0;
  const auto planned = planImages(line, nullptr, options);
  ASSERT_EQ(planned.size(), 2U);
  for (const PlannedImage& image : planned) {
    ASSERT_TRUE(image.write().ok());
    EXPECT_EQ(QImage(QString::fromStdString(image.path)).width(), 709) << image.path;
  }
  EXPECT_THAT(planned[0].path, HasSubstr("residuals.png"));
  EXPECT_THAT(planned[1].path, HasSubstr("residuals_section.png"));
  line.result.edit().timesOfSection = false;
  EXPECT_TRUE(planImages(line, nullptr, options).empty());
}

TEST(ResidualFigures, colourTheChosenShotAndMarkSuspects) {
  const ResidualTable table = residualTableOf(inverted());
  ResidualLook look;
  look.shot = 1;
  std::vector<std::string> names;
  for (const PlotSeries& series : offsetSeries(table, look)) {
    if (!series.name.isEmpty()) names.push_back(series.name.toStdString());
    const std::size_t dots = series.points.size();
    if (series.name == QStringLiteral("Shot 2")) {
      EXPECT_EQ(dots, 13U);
    } else if (series.name == QStringLiteral("Suspect")) {
      EXPECT_EQ(dots, 1U);
    }
  }
  EXPECT_THAT(
      names, ElementsAre("Picks", "Shot 2", "Suspect", "One standard deviation", "Running median"));
}

}  // namespace
}  // namespace talvesk
