#pragma once

#include "figures/SectionCamera.h"

#include <QImage>
#include <QSize>
#include <memory>

class QWidget;

namespace talvesk {

class ColorTable;
struct RgbColor;
struct SectionScene;

/// The part of a section view that OpenGL draws: a widget for the screen that shows the actors of
/// one scene. It takes no events. Made only when there is something to draw: a window without a
/// section needs no OpenGL.
class SectionCanvas {
 public:
  explicit SectionCanvas(QWidget* parent);
  ~SectionCanvas();
  SectionCanvas(const SectionCanvas&) = delete;
  SectionCanvas& operator=(const SectionCanvas&) = delete;

  QWidget* widget() const;
  void setScene(const SectionScene& scene, const ColorTable& colors, const RgbColor& contourColor);
  /// For the size of the widget as it is now.
  /// \param moving the camera will move on at once: draw roughly now, and properly a little later
  void setCamera(const SectionCamera& camera, bool moving);

 private:
  struct Parts;
  std::unique_ptr<Parts> mParts;
};

/// How wide contour lines are, logical pixels.
inline constexpr double kContourWidth = 1.2;

/// The same picture without a screen. Null when there is no OpenGL.
/// \param size logical pixels, of what the camera sees \param ratio device pixels per logical one
QImage sectionPicture(const SectionScene& scene, const ColorTable& colors,
                      const RgbColor& contourColor, const SectionCamera& camera, const QSize& size,
                      double ratio);

}  // namespace talvesk
