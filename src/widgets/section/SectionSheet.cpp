#include "widgets/section/SectionSheet.h"

#include "figures/FigureWords.h"
#include "widgets/section/SectionCanvas.h"

#include <QLocale>
#include <algorithm>
#include <utility>

namespace talvesk {

void SectionSheet::setScene(std::shared_ptr<const SectionScene> scene, const ColorPalette& palette,
                            const SectionViewSettings& settings) {
  mSettings = settings;
  if (scene && scene != mScene) mExtent = SectionExtent(*scene);
  mScene = std::move(scene);
  if (mScene) mColors = sectionColors(*mScene, palette);
}

SectionPaper SectionSheet::paper(const QFont& font) const {
  SectionDress dress;
  dress.font = font;
  dress.locale = QLocale();
  if (mSettings.title) dress.title = FigureWords::sectionTitle(*mScene);
  dress.colorBar = mSettings.scalarBar ? ColorBar::kVertical : ColorBar::kNone;
  dress.gridLines = mSettings.gridLines;
  dress.geophones = mSettings.geophones;
  dress.contours.color = mSettings.contours.color;
  dress.contours.width = kContourWidth;
  dress.contours.labelEvery = mSettings.contours.labelEvery;
  dress.contours.labelPoints = std::max(mSettings.contours.labelSize, 1);
  dress.mayShrink = true;
  return {*mScene, mExtent, mColors, dress};
}

}  // namespace talvesk
