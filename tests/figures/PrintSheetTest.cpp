#include "figures/print/PrintSheet.h"
#include "model/SurveyLine.h"
#include "support/SectionDocument.h"
#include "support/ShotDocument.h"
#include "support/TestFolder.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::sectionDocument;
using testing::shotDocument;
using testing::TestFolder;

double layers(std::uint32_t row, std::uint32_t) {
  return 400.0 + 150.0 * row;
}

const Paper& paper(const std::string& name) {
  for (const Paper& known : papers()) {
    if (known.name == name) return known;
  }
  throw std::invalid_argument(name);
}

std::string bytesOf(const FigureDrawing& drawing, FigureFormat format) {
  QByteArray bytes;
  const Status status = paintFigure(format, drawing.sheet, drawing.paint, bytes);
  EXPECT_TRUE(status.ok()) << status.message();
  return bytes.toStdString();
}

QImage imageOf(FigureDrawing drawing, double dpi) {
  drawing.sheet.dpi = dpi;
  const std::string bytes = bytesOf(drawing, FigureFormat::kPng);
  return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                          static_cast<int>(bytes.size()));
}

/// Middles of the runs of one colour along a row of pixels.
std::vector<double> runsOf(const QImage& image, int row, QRgb color) {
  std::vector<double> middles;
  int begin = -1;
  for (int column = 0; column < image.width(); ++column) {
    const bool same = image.pixel(column, row) == color;
    if (same && begin < 0) begin = column;
    if (!same && begin >= 0) {
      middles.push_back(0.5 * (begin + column - 1));
      begin = -1;
    }
  }
  return middles;
}

/// Between the first and the last geophone of level ground, as a ruler on the paper has it.
double geophonesApartMm(const QImage& image, std::size_t geophones, double dpi) {
  for (int row = 0; row < image.height(); ++row) {
    const std::vector<double> middles = runsOf(image, row, qRgb(32, 32, 32));
    if (middles.size() == geophones) {
      return (middles.back() - middles.front()) / dpi * kMmPerInch;
    }
  }
  return 0.0;
}

TEST(PrintSheet, geophonesOfASectionAreAsFarApartOnPaperAsTheScaleHasIt) {
  const TomoDocument document = sectionDocument(8, 30, 0.0, layers);
  const std::vector<Point2D>& geophones = document.line->goephonesStringSet[0];
  const double metres = geophones.back().x - geophones.front().x;
  const struct {
    double scale;
    const char* paper;
    bool landscape;
    double exaggeration, dpi;
  } cases[] = {{200.0, "A4", true, 0.0, 300.0},
               {250.0, "A4", false, 3.0, 150.0},
               {125.0, "A3", true, 1.0, 300.0},
               {500.0, "A3", true, 2.0, 400.0}};
  for (const auto& c : cases) {
    SectionFigureOptions options;
    options.verticalExaggeration = c.exaggeration;
    FigureDrawing drawing;
    const Status status = prepareSectionPrint(
        document, options, PrintSheet::on(paper(c.paper), c.landscape, c.scale), drawing);
    ASSERT_TRUE(status.ok()) << status.message();
    const QImage image = imageOf(drawing, c.dpi);
    EXPECT_NEAR(image.width() / c.dpi * kMmPerInch,
                c.landscape ? paper(c.paper).heightMm : paper(c.paper).widthMm, 0.2);
    EXPECT_NEAR(geophonesApartMm(image, geophones.size(), c.dpi), 1e3 * metres / c.scale,
                1.5 * kMmPerInch / c.dpi)
        << c.scale << " " << c.paper;
  }
}

/// From the leftmost to the rightmost colour.
double colouredMm(const FigureDrawing& drawing) {
  constexpr double kDpi = 200.0;
  const QImage image = imageOf(drawing, kDpi);
  int first = image.width();
  int last = 0;
  for (int row = 0; row < image.height(); ++row) {
    for (int column = 0; column < image.width(); ++column) {
      if (image.pixelColor(column, row).saturation() < 60) continue;
      first = std::min(first, column);
      last = std::max(last, column);
    }
  }
  return (last - first) / kDpi * kMmPerInch;
}

TEST(PrintSheet, curvesGrowOnPaperAsTheScaleHasIt) {
  const TomoDocument document = shotDocument(12, 24, 0);
  const double metres =
      document.line->goephonesStringSet[0].back().x - document.ttArray[0].shotPos2d.x;
  const auto mmAt = [&document](double scale) {
    FigureDrawing drawing;
    const Status status =
        prepareTravelTimePrint(document, {}, PrintSheet::on(paper("A3"), true, scale), drawing);
    EXPECT_TRUE(status.ok()) << status.message();
    return status.ok() ? colouredMm(drawing) : 0.0;
  };
  // The symbols at the ends reach beyond their places, equally far at every scale.
  EXPECT_NEAR(mmAt(200.0) - mmAt(400.0), 1e3 * metres * (1.0 / 200.0 - 1.0 / 400.0), 0.4);
  EXPECT_NEAR(mmAt(200.0), 1e3 * metres / 200.0, 6.0);
}

TEST(PrintSheet, whatDoesNotFitIsRefusedWithAScaleThatDoes) {
  const TomoDocument section = sectionDocument(8, 30, 0.0, layers);
  const TomoDocument shots = shotDocument(12, 24, 0);
  const PrintSheet sheets[] = {PrintSheet::on(paper("A4"), false, 100.0),
                               PrintSheet::on(paper("A4"), false, 1.0)};
  for (const PrintSheet& tried : sheets) {
    for (const bool curves : {false, true}) {
      FigureDrawing drawing;
      const auto prepare = [&](const PrintSheet& sheet) {
        return curves ? prepareTravelTimePrint(shots, {}, sheet, drawing)
                      : prepareSectionPrint(section, {}, sheet, drawing);
      };
      const std::string words = prepare(tried).message();
      const std::size_t at = words.find("choose 1:");
      ASSERT_NE(at, std::string::npos) << words;
      PrintSheet named = tried;
      named.scale = std::stod(words.substr(at + 9));
      EXPECT_GT(named.scale, tried.scale);
      EXPECT_LE(named.scale, 500.0) << words;
      EXPECT_TRUE(prepare(named).ok()) << words;
    }
  }
  for (const double scale : {0.0, -5.0, 1e9, std::nan("")}) {
    FigureDrawing drawing;
    EXPECT_THAT(prepareSectionPrint(section, {}, PrintSheet::on(paper("A3"), true, scale), drawing)
                    .message(),
                HasSubstr("The scale must lie between 1:1 and 1:1000000"));
  }
}

TEST(PrintSheet, theBlockTellsTitleScalesAndLengthOfTheBar) {
  TomoDocument document = sectionDocument(8, 30, 0.0, layers);
  document.title = "Dam & toe";
  SectionFigureOptions options;
  options.verticalExaggeration = 2.0;
  FigureDrawing drawing;
  ASSERT_TRUE(
      prepareSectionPrint(document, options, PrintSheet::on(paper("A3"), true, 500.0), drawing)
          .ok());
  const std::string picture = bytesOf(drawing, FigureFormat::kSvg);
  for (const char* text : {"Scale 1:500", "Elevation 1:250", "Dam &amp; toe", ">25 m<"}) {
    EXPECT_THAT(picture, HasSubstr(text));
  }
  const TestFolder folder;
  ASSERT_TRUE(writePrint(drawing, folder.file("a.pdf")).ok());
  EXPECT_THAT(TestFolder::get(folder.file("a.pdf")), ::testing::StartsWith("%PDF-1."));
}

}  // namespace
}  // namespace talvesk
