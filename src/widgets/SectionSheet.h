#pragma once

#include "figures/SectionCamera.h"
#include "view/ColorPalette.h"
#include "view/SectionScene.h"
#include "view/SectionViewSettings.h"

#include <QCoreApplication>
#include <QFont>
#include <QRectF>
#include <memory>

class QPainter;

namespace talvesk {

/// The paper around and over the section: axes, title, colour bar and legend beside it; grid lines,
/// markers, refractors, coverage limit and contour values on it. Painted over the picture of
/// SectionActors, on the screen and in a file alike. Lengths are logical pixels.
class SectionSheet {
  Q_DECLARE_TR_FUNCTIONS(talvesk::SectionSheet)

 public:
  void setScene(std::shared_ptr<const SectionScene> scene, const ColorPalette& palette,
                const SectionViewSettings& settings);
  const SectionScene* scene() const { return mScene.get(); }
  const SectionViewSettings& settings() const { return mSettings; }
  const ColorTable& colors() const { return mColors; }

  /// Where the section itself goes on a sheet of that size: 1 pixel wide and high at least, and of
  /// whole pixels.
  QRect plotRect(const QSizeF& size, const QFont& font) const;

  /// The camera that brings the whole section into a plot of that size, seen from the front.
  SectionCamera fittingCamera(double exaggeration, const QSizeF& plotSize) const;

  /// Paints all but what the actors show, which must be in plotRect() already.
  void paint(QPainter& painter, const QSizeF& size, const QFont& font,
             const SectionCamera& camera) const;

 private:
  std::shared_ptr<const SectionScene> mScene;
  SectionViewSettings mSettings;
  ColorTable mColors{ColorPalette()};
  Point2D mLow{0.0, 0.0};
  Point2D mHigh{1.0, 1.0};
};

}  // namespace talvesk
