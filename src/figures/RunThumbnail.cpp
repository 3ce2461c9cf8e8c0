#include "figures/RunThumbnail.h"

#include "model/KeptRun.h"

#include <QColor>
#include <algorithm>

namespace talvesk {

QImage runThumbnail(const KeptRun& run, const ColorPalette& palette) {
  const GridSize& size = run.size;
  const std::uint64_t cells = size.cellCount();
  if (cells == 0 || run.slowness.size() != cells || run.hitCounts.size() != cells) return {};
  const ColorTable colors(palette);
  QImage image(static_cast<int>(size.col), static_cast<int>(size.righe), QImage::Format_ARGB32);
  if (image.isNull()) return image;
  image.fill(Qt::transparent);
  for (std::uint32_t column = 0; column < size.col; ++column) {
    bool covered = false;
    for (std::uint32_t row = size.righe; row-- > 0;) {
      const std::size_t cell = std::size_t{row} * size.col + column;
      covered = covered || run.hitCounts[cell] > 0;
      if (!covered) continue;
      const RgbColor& color = colors[std::max(colors.indexOf(1.0 / run.slowness[cell]), 0)];
      image.setPixelColor(static_cast<int>(column), static_cast<int>(row),
                          QColor::fromRgbF(color.r, color.g, color.b));
    }
  }
  return image;
}

}  // namespace talvesk
