#include "model/Annotations.h"
#include "support/PrintedSheets.h"
#include "support/SectionDocument.h"
#include "support/ShotDocument.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::geophonesApartMm;
using testing::imageOf;
using testing::layers;
using testing::lengthOf;
using testing::on;
using testing::prepared;
using testing::sectionDocument;
using testing::shotDocument;
using testing::svgOf;

TEST(PrintTiles, sheetsPutTogetherAreOneFigureTrueToScale) {
  const TomoDocument document = sectionDocument(8, 30, 0.0, layers);
  PrintSettings settings = on("A4", true, 40.0);
  settings.tiles = true;
  const PrintPages pages = prepared(printedSection(document, {}), settings);
  ASSERT_GT(pages.columns, 2U);
  ASSERT_GT(pages.rows, 1U);
  ASSERT_EQ(pages.places.size(), pages.count());
  constexpr double kDpi = 254.0;  // ten pixels to a millimetre
  constexpr double kHalfOverlap = 50.0;
  QImage whole(8000, 1500, QImage::Format_RGB32);
  whole.fill(Qt::white);
  double end = 0.0;
  for (std::size_t column = 0; column < pages.columns; ++column) {
    const PlotPlace& place = pages.places[column];
    if (column > 0) {
      const PlotPlace& before = pages.places[column - 1];
      EXPECT_NEAR((before.right - place.left) / 40.0, 1e-3 * kPrintOverlapMm, 6e-4);
      EXPECT_EQ(place.topMm, before.topMm) << "they lie beside each other";
      end -= 2.0 * kHalfOverlap;
    }
    const QRectF plot(10.0 * place.leftMm, 10.0 * place.topMm,
                      10.0 * (place.rightMm - place.leftMm), 10.0 * (place.bottomMm - place.topMm));
    // From match line to match line: beyond them are the words.
    const double cut = column > 0 ? kHalfOverlap + 4.0 : 0.0;
    QPainter(&whole).drawImage(QPointF(end + cut, 0.0), imageOf(pages, kDpi, column),
                               plot.adjusted(cut, 0.0, -kHalfOverlap - 4.0, 0.0));
    end += plot.width();
  }
  EXPECT_NEAR(geophonesApartMm(whole, document.line->goephonesStringSet[0].size(), kDpi),
              1e3 * lengthOf(document) / 40.0, 0.8);
  const PlotPlace& upper = pages.places.front();
  const PlotPlace& lower = pages.places[pages.columns];
  EXPECT_NEAR((lower.top - upper.bottom) / 40.0, 1e-3 * kPrintOverlapMm, 6e-4);
}

TEST(PrintTiles, partsOfCurvesAndTracesMeetTrueToScale) {
  const TomoDocument shots = shotDocument(12, 24, 400);
  const struct {
    PrintFigure figure;
    double msPerCm;
  } cases[] = {{printedCurves(shots, {}), 0.0},
               {printedCurves(shots, {}), 1.0},
               {printedGather(shots, 2, {}), 0.0},
               {printedGather(shots, 2, {}), 3.0}};
  for (const auto& c : cases) {
    PrintSettings settings = on("A4", true, 100.0);
    settings.tiles = true;
    settings.msPerCm = c.msPerCm;
    const PrintPages pages = prepared(c.figure, settings);
    ASSERT_GT(pages.columns, 1U);
    EXPECT_EQ(pages.rows > 1, c.msPerCm > 0.0);
    for (std::size_t page = 0; page < pages.count(); ++page) {
      const PlotPlace& own = pages.places[page];
      EXPECT_NEAR((own.right - own.left) / (own.rightMm - own.leftMm), 0.1, 1e-9);
      EXPECT_GE(own.leftMm, PrintSheet::kMarginMm);
      EXPECT_LE(own.rightMm, settings.sheet.widthMm - PrintSheet::kMarginMm);
      EXPECT_LE(own.bottomMm, settings.sheet.heightMm - PrintSheet::kMarginMm);
      const double perMm = std::abs(own.top - own.bottom) / (own.bottomMm - own.topMm);
      if (c.msPerCm > 0.0) {
        EXPECT_NEAR(perMm, 0.1 * c.msPerCm, 1e-9);
      }
      if (page % pages.columns > 0) {
        EXPECT_NEAR(pages.places[page - 1].right - own.left, 0.1 * kPrintOverlapMm, 0.03);
      }
      if (page >= pages.columns) {
        const double common = std::abs(pages.places[page - pages.columns].bottom - own.top);
        EXPECT_NEAR(common, perMm * kPrintOverlapMm, 0.03 * common);
      }
    }
  }
}

/// Two layers with all that P and S tell of them, over 78 m.
ElasticLine elasticLine() {
  ElasticLine line;
  line.layers.resize(2);
  for (std::uint32_t layer = 0; layer < 2; ++layer) {
    line.layers[layer].layer = layer + 1;
    for (int i = 0; i < 40; ++i) {
      ElasticPoint point;
      point.x = 2.0 * i;
      double value = 150.0 * (layer + 1) + i;
      for (Estimate& quantity : point.state.values) quantity.value = value *= 1.3;
      line.layers[layer].points.push_back(point);
    }
  }
  return line;
}

TEST(PrintTiles, allCurvesOfPAndSStandOnEverySheet) {
  const ElasticLine line = elasticLine();
  PrintSettings settings = on("A4", true, 200.0);
  settings.tiles = true;
  const PrintPages pages = prepared(printedElastic(line, {}), settings);
  ASSERT_EQ(pages.columns, 2U);
  ASSERT_EQ(pages.rows, 1U);
  EXPECT_NEAR(pages.places[0].right - pages.places[1].left, 0.2 * kPrintOverlapMm, 0.05);
  for (std::size_t page = 0; page < 2; ++page) {
    const PlotPlace& place = pages.places[page];
    EXPECT_NEAR((place.right - place.left) / (place.rightMm - place.leftMm), 0.2, 1e-9);
    EXPECT_GT(place.bottomMm - place.topMm, 100.0) << "from the first plot to the last";
    const std::string picture = svgOf(pages, page);
    for (const char* words : {"Distance [m]", "Vp/Vs", "Match line: sheet "}) {
      EXPECT_NE(picture.find(words), std::string::npos) << words;
    }
  }
}

/// Dark pixels of the titles of upright axes, from the first plot down.
std::vector<int> inkOfTitles(const PrintPages& pages, double dpi) {
  constexpr double kNumbersMm = 15.0;
  constexpr double kBetweenMm = 4.0;
  const double perMm = dpi / kMmPerInch;
  const QImage image = imageOf(pages, dpi);
  const PlotPlace& place = pages.places[0];
  std::vector<int> inks;
  double last = -1e9;
  for (int row = 0; row < (place.bottomMm + 2.0) * perMm; ++row) {
    int ink = 0;
    for (int column = 0; column < (place.leftMm - kNumbersMm) * perMm; ++column) {
      ink += qGray(image.pixel(column, row)) < 128 ? 1 : 0;
    }
    if (ink == 0) continue;
    if (row - last > kBetweenMm * perMm) inks.push_back(0);
    inks.back() += ink;
    last = row;
  }
  return inks;
}

TEST(PrintTiles, lowCurvesOfPAndSKeepTheirUnits) {
  const ElasticLine line = elasticLine();
  for (const double height : {205.0, 210.0, 215.0, 230.0}) {
    PrintSettings settings = on("A4", true, 500.0);
    settings.sheet.heightMm = height;
    const PrintPages pages = prepared(printedElastic(line, {}), settings);
    for (const double dpi : {96.0, 150.0, 300.0}) {
      const std::vector<int> inks = inkOfTitles(pages, dpi);
      ASSERT_EQ(inks.size(), 5U) << height << " at " << dpi;
      EXPECT_GT(inks[4], 0.7 * inks[3])
          << "K, M [MPa] after G0, E0 [MPa], " << height << " " << dpi;
    }
  }
}

/// Where ink of a colour that nothing else has lies on a sheet, metres along the line.
struct Reach {
  double from = 1e9;
  double to = -1e9;

  bool empty() const { return from > to; }
};

constexpr std::uint32_t kRareInk = 0xff00ff;

/// \param but rows at this elevation do not count
Reach reachOf(const PrintPages& pages, std::size_t page, double but = 1e9) {
  constexpr double kDpi = 254.0;  // ten pixels to a millimetre
  const QImage image = imageOf(pages, kDpi, page);
  const PlotPlace& place = pages.places[page];
  Reach reach;
  const double butRow = 10.0 * place.yToMm(but);
  for (int row = 0; row < image.height(); ++row) {
    if (std::abs(row - butRow) < 5.0) continue;
    for (int column = 0; column < image.width(); ++column) {
      if ((image.pixel(column, row) & 0xffffffU) != kRareInk) continue;
      const double metres = (place.right - place.left) / (place.rightMm - place.leftMm);
      const double x = place.left + (0.1 * (column + 0.5) - place.leftMm) * metres;
      reach.from = std::min(reach.from, x);
      reach.to = std::max(reach.to, x);
    }
  }
  return reach;
}

/// A section whose first match line is at x, and what is drawn on it.
struct DrawnSheets {
  TomoDocument document = sectionDocument(8, 30, 0.0, layers);
  PrintSettings settings = on("A4", true, 40.0);
  double match = 0.0;  ///< between the first sheet and the second
  double high = 0.0;   ///< an elevation in the middle of both

  DrawnSheets() {
    settings.tiles = true;
    const PrintPages pages = sheets();
    match = 0.5 * (pages.places[0].right + pages.places[1].left);
    high = 0.5 * (pages.places[0].top + pages.places[0].bottom);
  }

  PrintPages sheets() const { return prepared(printedSection(document, {}), settings); }
  PrintPages whole() const {
    PrintSettings large = settings;
    large.tiles = false;
    large.sheet = {40.0, 850.0, 330.0};
    return prepared(printedSection(document, {}), large);
  }
  void draw(const Annotation& item) {
    document.annotations.edit().items = {item};
    document.annotations.edit().items[0].color = kRareInk;
  }
};

constexpr double kMmOfGround = 0.04;  ///< metres to a millimetre of those sheets

TEST(PrintTiles, aTextAtAMatchLineGoesOnFromSheetToSheet) {
  DrawnSheets drawn;
  for (const double beside : {-9.0, -4.0, 4.0, 9.0}) {
    Annotation text{AnnotationKind::kText, "Oldquarryofthevillage", {{0.0, drawn.high}}};
    text.points[0].x = drawn.match + beside * kMmOfGround;
    drawn.draw(text);
    const PrintPages pages = drawn.sheets();
    const Reach whole = reachOf(drawn.whole(), 0);
    ASSERT_LT(whole.from, drawn.match) << beside;
    ASSERT_GT(whole.to, drawn.match) << beside;
    constexpr double kPixels = 0.3 * kMmOfGround;
    const Reach left = reachOf(pages, 0);
    const Reach right = reachOf(pages, 1);
    EXPECT_NEAR(left.from, whole.from, kPixels) << beside;
    EXPECT_NEAR(right.to, whole.to, kPixels) << beside;
    EXPECT_GT(left.to, drawn.match - kMmOfGround) << beside;
    EXPECT_LT(right.from, drawn.match + kMmOfGround) << beside;
    EXPECT_TRUE(reachOf(pages, pages.columns + 2).empty()) << "far from there";
  }
}

TEST(PrintTiles, theNameOfALineLiesWithinTheMatchLinesOfItsSheet) {
  DrawnSheets drawn;
  for (const double beside : {-3.5, 0.0, 3.5}) {
    const double middle = drawn.match + beside * kMmOfGround;
    const double half = 12.0 * kMmOfGround;
    Annotation line{AnnotationKind::kLine, "fault", {{middle - half, drawn.high}}};
    line.points.push_back({middle + half, drawn.high});
    line.width = 0.5;
    drawn.draw(line);
    const PrintPages pages = drawn.sheets();
    const Reach left = reachOf(pages, 0, drawn.high);
    const Reach right = reachOf(pages, 1, drawn.high);
    EXPECT_FALSE(left.empty() && right.empty()) << beside;
    EXPECT_TRUE(left.empty() || left.to < drawn.match) << beside;
    EXPECT_TRUE(right.empty() || right.from > drawn.match) << beside;
  }
}

TEST(PrintTiles, theNameOfAnAreaStandsOnceWhenSheetsAreJoined) {
  DrawnSheets drawn;
  const PrintPages bare = drawn.sheets();
  ASSERT_GT(bare.columns, 2U);
  const PlotPlace& second = bare.places[1];
  const double middle = 0.5 * (second.left + second.right);
  const double half = 0.7 * (second.right - second.left);  // over its neighbours, too
  Annotation area{AnnotationKind::kPolygon, "pit", {{middle - half, drawn.high + 1.0}}};
  area.points.push_back({middle + half, drawn.high + 1.0});
  area.points.push_back({middle + half, drawn.high - 1.0});
  area.points.push_back({middle - half, drawn.high - 1.0});
  area.width = 0.2;
  drawn.draw(area);
  const PrintPages pages = drawn.sheets();
  for (std::size_t page = 0; page < pages.count(); ++page) {
    EXPECT_EQ(svgOf(pages, page).find(">pit<") != std::string::npos, page == 1) << page;
  }
}

TEST(PrintTiles, eachOfSeveralSheetsHasAxesAndTellsItsPlace) {
  const TomoDocument document = sectionDocument(8, 30, 0.0, layers);
  PrintSettings settings = on("A4", true, 40.0);
  settings.tiles = true;
  const PrintPages pages = prepared(printedSection(document, {}), settings);
  ASSERT_GT(pages.columns, 2U);
  const std::string below = std::to_string(pages.columns + 2);
  for (const std::string& words :
       {"Sheet 2 of " + std::to_string(pages.count()), std::string("Match line: sheet 1<"),
        std::string("Match line: sheet 3<"), "Match line: sheet " + below + "<",
        std::string("Distance [m]"), std::string("Elevation [m]"), std::string("Velocity [m/s]"),
        std::string("Scale 1:40")}) {
    EXPECT_NE(svgOf(pages, 1).find(words), std::string::npos) << words;
  }
  EXPECT_EQ(svgOf(prepared(printedSection(document, {}), on("A3", true, 500.0))).find("Sheet "),
            std::string::npos);
}

}  // namespace
}  // namespace talvesk
