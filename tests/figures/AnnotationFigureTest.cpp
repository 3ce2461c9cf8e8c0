#include "figures/LithologyPattern.h"
#include "figures/SectionFigure.h"
#include "support/SectionDocument.h"

#include <QByteArray>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPolygonF>
#include <QStringList>
#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using testing::sectionDocument;

double layered(std::uint32_t row, std::uint32_t) {
  return 400.0 + 100.0 * row;
}

TomoDocument annotated() {
  TomoDocument document = sectionDocument(14, 60, 2.0, layered);
  Annotations& drawn = document.annotations.edit();
  drawn.isolines = {{"water table", 1500.0, 0x0000ff, 2.0}, {"bedrock", 9000.0}};
  drawn.items = {
      {AnnotationKind::kText, "old quarry", {{120.0, 95.0}}},
      {AnnotationKind::kLine, "", {{105.0, 97.0}, {115.0, 93.0}}, Lithology::kNone, 0x00aa00},
      {AnnotationKind::kPolygon, "", {{130, 99}, {145, 99}, {140, 92}}, Lithology::kGravel}};
  return document;
}

std::string svgOf(const TomoDocument& document, const SectionFigureOptions& options = {}) {
  QByteArray bytes;
  const Status status = renderSectionFigure(document, options, FigureFormat::kSvg, bytes);
  EXPECT_TRUE(status.ok()) << status.message();
  return bytes.toStdString();
}

TEST(AnnotationFigure, bringsWhatWasDrawnWithALegend) {
  const TomoDocument document = annotated();
  const std::string svg = svgOf(document);
  for (const char* text :
       {"old quarry", "water table: 1500 m/s", "bedrock: 9000 m/s (not reached)", ">Gravel<"}) {
    EXPECT_THAT(svg, HasSubstr(text));
  }
  EXPECT_THAT(svg, Not(HasSubstr(">Sand<"))) << "that is nowhere drawn";
  for (const char* color : {"#0000ff", "#00aa00"}) EXPECT_THAT(svg, HasSubstr(color));
  SectionFigureOptions without;
  without.scene.annotations = false;
  EXPECT_THAT(svgOf(document, without), Not(HasSubstr("old quarry")));
}

TEST(AnnotationFigure, explainsAPatternInEachOfItsColours) {
  TomoDocument document = annotated();
  const std::vector<Point2D> area = {{110, 99}, {125, 99}, {120, 96}};
  Annotations& drawn = document.annotations.edit();
  drawn.items = {{AnnotationKind::kPolygon, "dune", area, Lithology::kSand, 0xaa7700},
                 {AnnotationKind::kPolygon, "marine", area, Lithology::kSand, 0x0077aa}};
  std::string svg = svgOf(document);
  for (const char* text : {">Sand: dune<", ">Sand: marine<"}) EXPECT_THAT(svg, HasSubstr(text));
  drawn.items.push_back({AnnotationKind::kPolygon, "wet", area, Lithology::kSand, 0xaa7700});
  svg = svgOf(document);
  EXPECT_THAT(svg, Not(HasSubstr("Sand: dune"))) << "of that colour is not dune alone";
  EXPECT_THAT(svg, HasSubstr(">Sand<"));
  for (std::uint32_t color = 1; color < 40; ++color) {
    drawn.items.push_back({AnnotationKind::kPolygon, "", area, Lithology::kClay, color});
  }
  svg = svgOf(document);
  EXPECT_THAT(svg, Not(HasSubstr("Sand: marine"))) << "so many have no room";
  EXPECT_THAT(svg, HasSubstr(">Clay<"));
}

/// Names of 200 letters are wider than a sheet.
TEST(AnnotationFigure, shortensLongNamesInTheLegendAndKeepsTheirVelocities) {
  TomoDocument document = annotated();
  document.annotations.edit().isolines[0].name = std::string(150, 'w') + " table";
  const std::string svg = svgOf(document);
  EXPECT_THAT(svg, Not(HasSubstr(std::string(150, 'w') + " table: 1500 m/s")));
  EXPECT_THAT(svg, HasSubstr("w\u2026w"));
  EXPECT_THAT(svg, HasSubstr("w table: 1500 m/s<"));
}

/// What a painter is asked for, counted instead of painted.
class CountingEngine : public QPaintEngine {
 public:
  CountingEngine() : QPaintEngine(AllFeatures) {}
  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  void updateState(const QPaintEngineState& now) override {
    if (now.state().testFlag(DirtyHints)) mSmooth = now.renderHints() & QPainter::Antialiasing;
  }
  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
  void drawPath(const QPainterPath&) override {}
  void drawPolygon(const QPointF*, int count, PolygonDrawMode mode) override {
    if (mode == PolylineMode) {
      longestStroke = std::max(longestStroke, count);
      stroked += count;
    } else {
      int& largest = mSmooth ? largestSmooth : largestRough;
      largest = std::max(largest, count);
    }
  }
  Type type() const override { return User; }

  int longestStroke = 0;  ///< points
  int stroked = 0;        ///< points of all
  int largestSmooth = 0;  ///< corners of areas
  int largestRough = 0;

 private:
  bool mSmooth = false;
};

class CountingSheet : public QPaintDevice {
 public:
  QPaintEngine* paintEngine() const override { return &engine; }
  mutable CountingEngine engine;

 protected:
  int metric(PaintDeviceMetric what) const override {
    switch (what) {
      case PdmWidth:
      case PdmHeight:
        return 2000;
      case PdmDevicePixelRatio:
        return 1;
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
      case PdmDepth:
        return 32;
      default:
        return 96;
    }
  }
};

/// As a hostile survey may bring them, with all the points that there may be in one. A stroke that
/// crosses itself, and smooth edges of an area that does, cost painters the square of its points.
TEST(AnnotationFigure, paintsOutlinesThatCrossThemselvesPieceByPiece) {
  constexpr int kCorners = 4900;
  for (const AnnotationKind kind : {AnnotationKind::kPolygon, AnnotationKind::kLine}) {
    TomoDocument document = annotated();
    Annotation tangle{kind, "tangle", {}, Lithology::kRock, 0x0000aa, 10.0};
    for (int i = 0; i < kCorners; ++i) {
      tangle.points.push_back({100.0 + (i * 7919) % 601 * 0.1, 86.0 + (i * 104729) % 141 * 0.1});
    }
    document.annotations.edit() = {{}, {tangle}};
    ASSERT_TRUE(faultOf(*document.annotations).empty());
    FigureDrawing drawing;
    ASSERT_TRUE(prepareSectionFigure(document, {}, drawing).ok());
    CountingSheet sheet;
    QPainter painter(&sheet);
    drawing.paint(painter, QRectF(0.0, 0.0, 1000.0, 700.0));
    painter.end();
    const CountingEngine& asked = sheet.engine;
    EXPECT_GT(asked.stroked, 2 * kCorners) << "with its halo";
    EXPECT_LT(asked.stroked, 4 * kCorners);
    EXPECT_LE(asked.longestStroke, 200);
    EXPECT_LE(asked.largestSmooth, 200);
    EXPECT_EQ(asked.largestRough == kCorners, kind == AnnotationKind::kPolygon);
  }
}

/// Where the middle of a text is in a figure: it is painted around an origin of its own.
double xOfText(const std::string& svg, const std::string& text) {
  const std::size_t at = svg.find('>' + text + '<');
  EXPECT_NE(at, std::string::npos) << text;
  const std::string origin = "matrix(1,0,0,1,";
  return std::stod(svg.substr(svg.rfind(origin, at) + origin.size()));
}

TEST(AnnotationFigure, movesTextsAtTheEdgeOfThePlotIntoIt) {
  TomoDocument document = annotated();
  const SectionFigureOptions options;
  const auto placeOf = [&](double x, const char* text) {
    document.annotations.edit().items = {{AnnotationKind::kText, text, {{x, 95.0}}}};
    return xOfText(svgOf(document, options), text);
  };
  const double middle = placeOf(130.0, "old quarry");
  const double right = placeOf(159.0, "old quarry");
  const double further = placeOf(159.5, "old quarry");
  EXPECT_GT(right, middle);
  EXPECT_EQ(right, further) << "both at the edge";
}

TEST(AnnotationFigure, saysHowManyAnnotationsItDoesNotShow) {
  TomoDocument document = annotated();
  document.annotations.edit().items[0].points[0].x = 5000.0;
  EXPECT_THAT(svgOf(document), HasSubstr("annotations outside the section: 1"));
}

/// Dark pixels of a pattern in a triangle, those outside it among them.
struct Ink {
  int inside = 0;
  int outside = 0;
};

Ink inkOf(Lithology pattern, const QRectF& canvas) {
  const QPolygonF triangle({{20, 20}, {180, 20}, {100, 140}});
  QImage image(200, 160, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  paintLithology(painter, triangle, pattern, Qt::black, canvas, {3.0, 3.0});
  painter.end();
  Ink ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) > 128) continue;
      const bool in = triangle.containsPoint(QPointF(x + 0.5, y + 0.5), Qt::OddEvenFill);
      ++(in ? ink.inside : ink.outside);
    }
  }
  return ink;
}

/// Formats without clipping would show signs that stick out.
TEST(LithologyPattern, keepsItsSignsWithinThePolygonAndTheSheet) {
  for (const Lithology pattern : kLithologies) {
    const Ink ink = inkOf(pattern, {0, 0, 200, 160});
    const bool has = pattern != Lithology::kNone;
    EXPECT_EQ(ink.inside > 100, has) << static_cast<int>(pattern);
    EXPECT_LE(ink.outside, ink.inside / 10) << static_cast<int>(pattern);
    EXPECT_EQ(inkOf(pattern, {0, 0, 200, 60}).inside < ink.inside, has);
  }
}

/// A hostile survey can make a polygon a million times as large as the sheet.
TEST(LithologyPattern, costsNoMoreThanTheSheetHasRoomFor) {
  QImage image(400, 300, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  const QPolygonF huge({{-1e9, -1e9}, {1e9, -1e9}, {1e9, 1e9}, {-1e9, 1e9}});
  paintLithology(painter, huge, Lithology::kSand, Qt::black, {0, 0, 400, 300}, {1e7, -1e7});
  painter.end();
  int dark = 0;
  for (int x = 0; x < 400; ++x) {
    for (int y = 0; y < 300; ++y) dark += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
  }
  EXPECT_GT(dark, 1000) << "the sheet is full of dots";
}

}  // namespace
}  // namespace talvesk
