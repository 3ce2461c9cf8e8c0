#pragma once

#include "figures/SectionCamera.h"
#include "figures/SectionPaper.h"
#include "view/ColorPalette.h"
#include "view/SectionScene.h"
#include "view/SectionViewSettings.h"

#include <QFont>
#include <QSizeF>
#include <memory>

class QPainter;

namespace talvesk {

/// The paper of the section that a window shows: the scene with what the user chose about it.
/// Painted over the picture of SectionActors, on the screen and in a screenshot alike. Lengths are
/// logical pixels.
class SectionSheet {
 public:
  void setScene(std::shared_ptr<const SectionScene> scene, const ColorPalette& palette,
                const SectionViewSettings& settings);
  const SectionScene* scene() const { return mScene.get(); }
  const SectionViewSettings& settings() const { return mSettings; }
  const ColorTable& colors() const { return mColors; }

  /// The sheet's painter, for a scene that is there, as long as this one has it.
  SectionPaper paper(const QFont& font) const;

 private:
  std::shared_ptr<const SectionScene> mScene;
  SectionViewSettings mSettings;
  ColorTable mColors{ColorPalette()};
  SectionExtent mExtent;
};

}  // namespace talvesk
