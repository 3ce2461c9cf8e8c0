#pragma once

#include "figures/print/PrintFigures.h"
#include "figures/print/PrintPages.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

// What tests of printed sheets share.

namespace talvesk::testing {

inline double layers(std::uint32_t row, std::uint32_t) {
  return 400.0 + 150.0 * row;
}

inline PrintSettings on(const std::string& name, bool landscape, double scale) {
  for (const Paper& known : papers()) {
    if (known.name != name) continue;
    PrintSettings settings;
    settings.sheet = PrintSheet::on(known, landscape, scale);
    return settings;
  }
  throw std::invalid_argument(name);
}

inline PrintPages prepared(const PrintFigure& figure, const PrintSettings& settings) {
  PrintPages pages;
  const Status status = preparePrint(figure, settings, pages);
  EXPECT_TRUE(status.ok()) << status.message();
  return pages;
}

/// \param dpi a whole number of pixels
inline QImage imageOf(const PrintPages& pages, double dpi, std::size_t page = 0) {
  const double perMm = dpi / kMmPerInch;
  QImage image(static_cast<int>(std::lround(pages.sheet.widthMm * perMm)),
               static_cast<int>(std::lround(pages.sheet.heightMm * perMm)), QImage::Format_RGB32);
  setResolution(image, dpi);
  QPainter painter(&image);
  pages.paint(page, painter, QRectF(image.rect()));
  return image;
}

inline std::string svgOf(const PrintPages& pages, std::size_t page = 0) {
  QByteArray bytes;
  const Status status = paintFigure(
      FigureFormat::kSvg, pages.sheet,
      [&](QPainter& painter, const QRectF& rect) { pages.paint(page, painter, rect); }, bytes);
  EXPECT_TRUE(status.ok()) << status.message();
  return bytes.toStdString();
}

/// Middles of the runs of one colour along a row of pixels.
inline std::vector<double> runsOf(const QImage& image, int row, QRgb color) {
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
inline double geophonesApartMm(const QImage& image, std::size_t geophones, double dpi) {
  for (int row = 0; row < image.height(); ++row) {
    const std::vector<double> middles = runsOf(image, row, qRgb(32, 32, 32));
    if (middles.size() == geophones) {
      return (middles.back() - middles.front()) / dpi * kMmPerInch;
    }
  }
  return 0.0;
}

inline double lengthOf(const TomoDocument& document) {
  const std::vector<Point2D>& geophones = document.line->goephonesStringSet[0];
  return geophones.back().x - geophones.front().x;
}

}  // namespace talvesk::testing
