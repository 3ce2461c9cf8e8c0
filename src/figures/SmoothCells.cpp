#include "figures/FigureItem.h"
#include "figures/SectionItems.h"
#include "view/SectionScene.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace talvesk::section_items {
namespace {

constexpr double kPixelsPerPoint = 3.0;  ///< in vector files, some 290 per inch

/// Colours every pixel of an image by the value in its middle, blended between the four corners of
/// its cell. Pixels outside the drawn cells stay clear.
class PixelPainter {
 public:
  /// \param map from survey positions to the sheet \param toSheet from pixels to it
  PixelPainter(const SectionScene& scene, const ColorTable& colors, const QTransform& map,
               const QTransform& toSheet, QImage& image)
      : mScene(scene),
        mToPixels(map * toSheet.inverted()),
        mFromPixels(mToPixels.inverted()),
        mImage(image) {
    for (int i = 0; i < colors.size(); ++i) mColors.push_back(toColor(colors[i]).rgb());
    mTable = &colors;
  }

  void paint() {
    const SectionMesh& mesh = mScene.mesh;
    const double left = mesh.corners[mesh.corner(0, 0)].x;
    const double right = mesh.corners[mesh.corner(0, mesh.columns)].x;
    for (int px = 0; px < mImage.width(); ++px) {
      const double x = mFromPixels.map(QPointF(px + 0.5, 0.0)).x();
      const double along = (x - left) / (right - left) * mesh.columns;
      if (!(along >= 0.0 && along < mesh.columns)) continue;
      const auto column = static_cast<std::uint32_t>(along);
      for (std::uint32_t row = 0; row < mesh.rows; ++row) {
        if (mesh.isDrawn(row, column)) paintCell(px, row, column, along - column);
      }
    }
  }

 private:
  /// Where a line of the mesh crosses a column of pixels, and with which value.
  struct Crossing {
    double y;  ///< pixels
    double value;
  };
  Crossing crossing(std::uint32_t line, std::uint32_t column, double f) const {
    const std::size_t a = mScene.mesh.corner(line, column);
    const std::size_t b = mScene.mesh.corner(line, column + 1);
    const auto mix = [f](double from, double to) { return from + f * (to - from); };
    const double z = mix(mScene.mesh.corners[a].z, mScene.mesh.corners[b].z);
    return {mToPixels.map(QPointF(0.0, z)).y(),
            mix(mScene.cornerValues[a], mScene.cornerValues[b])};
  }

  void paintCell(int px, std::uint32_t row, std::uint32_t column, double f) {
    const Crossing top = crossing(row, column, f);
    const Crossing bottom = crossing(row + 1, column, f);
    const double last = std::min(bottom.y - 0.5, mImage.height() - 1.0);
    for (double py = std::max(std::ceil(top.y - 0.5), 0.0); py <= last; py += 1.0) {
      const double down = (py + 0.5 - top.y) / (bottom.y - top.y);
      const int color = mTable->indexOf(top.value + down * (bottom.value - top.value));
      if (color >= 0)
        mImage.setPixel(px, static_cast<int>(py), mColors[static_cast<std::size_t>(color)]);
    }
  }

  const SectionScene& mScene;
  QTransform mToPixels;  ///< from survey positions
  QTransform mFromPixels;
  QImage& mImage;
  const ColorTable* mTable = nullptr;
  std::vector<QRgb> mColors;
};

}  // namespace

void paintSmoothCells(QPainter& painter, const SectionScene& scene, const ColorTable& colors,
                      const QTransform& map, const QRectF& canvas) {
  // On a device of pixels, those of the image are its own.
  const QTransform toDevice = paintsVectors(painter)
                                  ? QTransform::fromScale(kPixelsPerPoint, kPixelsPerPoint)
                                  : painter.deviceTransform();
  const QRect pixels = toDevice.mapRect(canvas).toAlignedRect();
  QImage image(pixels.size(), QImage::Format_ARGB32);
  if (image.isNull() || scene.mesh.columns == 0) return;
  image.fill(Qt::transparent);
  const QTransform toSheet =
      QTransform::fromTranslate(pixels.left(), pixels.top()) * toDevice.inverted();
  PixelPainter(scene, colors, map, toSheet, image).paint();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
  painter.drawImage(toSheet.mapRect(QRectF(image.rect())), image);
}

}  // namespace talvesk::section_items
