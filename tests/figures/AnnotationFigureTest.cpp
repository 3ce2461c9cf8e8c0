#include "figures/LithologyPattern.h"
#include "figures/SectionFigure.h"
#include "support/SectionDocument.h"

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <QStringList>

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

std::string svgOf(const TomoDocument& document, SectionFigureOptions options = {}) {
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
