#include "widgets/SectionSheet.h"

#include "figures/SectionItems.h"
#include "widgets/SectionSheet_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {

void SectionSheet::setScene(std::shared_ptr<const SectionScene> scene, const ColorPalette& palette,
                            const SectionViewSettings& settings) {
  mSettings = settings;
  if (!scene) {
    mScene.reset();
    return;
  }
  if (scene != mScene) {
    mLow = scene->lowerLeft();
    mHigh = scene->upperRight();
    if (!std::isfinite(mLow.x + mLow.z + mHigh.x + mHigh.z)) {
      mLow = {0.0, 0.0};
      mHigh = {1.0, 1.0};
    }
  }
  mScene = std::move(scene);
  mColors = sectionColors(*mScene, palette);
}

QRect SectionSheet::plotRect(const QSizeF& size, const QFont& font) const {
  const SheetMargins margins = sheetMargins(*this, size, font);
  const int width = static_cast<int>(size.width() - margins.left - margins.right);
  const int height = static_cast<int>(size.height() - margins.top - margins.bottom);
  return {static_cast<int>(margins.left), static_cast<int>(margins.top), std::max(width, 1),
          std::max(height, 1)};
}

SectionCamera SectionSheet::fittingCamera(double exaggeration, const QSizeF& plotSize) const {
  SectionCamera::Padding padding;
  padding.top = 10.0 + section_items::markerSize(mSettings.geophones);
  return SectionCamera::fitting(mLow, mHigh, exaggeration, plotSize, padding);
}

void SectionSheet::paint(QPainter& painter, const QSizeF& size, const QFont& font,
                         const SectionCamera& camera) const {
  if (!mScene) return;
  painter.save();
  painter.setFont(font);
  SheetPainter sheet(*this, {mLow, mHigh}, painter, size, plotRect(size, font), camera);
  sheet.paintOverSection();
  sheet.paintMargins();
  sheet.paintAxes();
  sheet.paintColorBar();
  sheet.paintTexts();
  painter.restore();
}

}  // namespace talvesk
