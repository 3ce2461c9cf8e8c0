#pragma once

#include "view/ColorPalette.h"

#include <QSizeF>
#include <memory>

class vtkRenderer;

namespace talvesk {

struct SectionCamera;
struct SectionScene;

/// The parts of a section that are too many for a painter, as VTK actors: cells, blended values or
/// bands, rays and contour lines. Only what differs from the scene before is built anew, and
/// colours never touch geometry. What is put in front of them by a painter is in SectionSheet.
class SectionActors {
 public:
  SectionActors();
  ~SectionActors();
  SectionActors(const SectionActors&) = delete;
  SectionActors& operator=(const SectionActors&) = delete;

  vtkRenderer* renderer() const;

  /// \return whether anything differs from the scene before
  bool setScene(const SectionScene& scene);
  /// \param colors sectionColors() of that scene
  void setColors(const ColorTable& colors);
  /// \param width device pixels
  void setContourStyle(const RgbColor& color, double width);
  /// Leaves out all but some of the rays while the picture moves, when they are many.
  void setMoving(bool moving);
  /// \param size of the picture in the camera's pixels
  void setCamera(const SectionCamera& camera, const QSizeF& size);

 private:
  struct Parts;
  std::unique_ptr<Parts> mParts;
};

}  // namespace talvesk
