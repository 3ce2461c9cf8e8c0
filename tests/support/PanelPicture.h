#pragma once

#include "figures/FigureFile.h"
#include "figures/GatherPanels.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <functional>

namespace talvesk::testing {

/// Painted with 96 points to an inch.
inline QImage pictureOf(const FigureDrawing& drawing) {
  constexpr double kDots = 96.0;
  const QSizeF size = QSizeF(drawing.sheet.widthMm, drawing.sheet.heightMm) * (kDots / kMmPerInch);
  QImage image(size.toSize(), QImage::Format_RGB32);
  image.fill(Qt::white);
  setResolution(image, kDots);
  QPainter painter(&image);
  drawing.paint(painter, QRectF(QPointF(), size));
  return image;
}

/// Whether anything of such a colour is painted around a place of a panel.
/// \param left \param right of the place, pixels that count
inline bool hasColorAt(const QImage& image, const GatherPanelPlace& panel, double x, double ms,
                       const std::function<bool(const QColor&)>& wanted, int left = -3,
                       int right = 3) {
  constexpr double kDotsPerMm = 96.0 / kMmPerInch;
  const double column =
      (panel.leftMm + (x - panel.low) / (panel.high - panel.low) * panel.widthMm) * kDotsPerMm;
  const double row =
      (panel.topMm + (ms - panel.topMs) / (panel.bottomMs - panel.topMs) * panel.heightMm) *
      kDotsPerMm;
  for (int dx = left; dx <= right; ++dx) {
    for (int dy = -2; dy <= 2; ++dy) {
      const QPoint at(static_cast<int>(column) + dx, static_cast<int>(row) + dy);
      if (image.rect().contains(at) && wanted(image.pixelColor(at))) return true;
    }
  }
  return false;
}

}  // namespace talvesk::testing
