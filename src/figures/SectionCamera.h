#pragma once

#include "base/Point2D.h"
#include "model/Parameters.h"

#include <QPointF>
#include <QSizeF>
#include <QTransform>

namespace talvesk {

/// How a section is looked at: a parallel projection, so that a picture of it can be measured. The
/// section is a plane, and its picture an affine one, even when the plane is turned.
struct SectionCamera {
  static constexpr double kMaxTurn = 75.0;  ///< degrees; beyond, the plane is seen edge-on
  static constexpr double kMinExaggeration = parameters::kExaggeration.limits.least;
  static constexpr double kMaxExaggeration = parameters::kExaggeration.limits.most;

  Point2D centre;               ///< survey position in the middle of the picture, metres
  double metresPerPixel = 1.0;  ///< along the line, of the plane as seen from the front
  double exaggeration = 1.0;    ///< height of a metre over its width
  double turn = 0.0;            ///< degrees about the vertical
  double tilt = 0.0;            ///< degrees about the line, seen from above

  bool isTurned() const { return turn != 0.0 || tilt != 0.0; }

  /// From survey positions (x, elevation) to a picture of that size, y downward.
  QTransform toPicture(const QSizeF& size) const;

  struct Padding {  ///< pixels inside the picture
    double side = 10.0;
    double top = 26.0;  ///< markers stand above the ground
    double bottom = 10.0;
  };
  /// Moves so that a rectangle is seen as large as it fits in, in the middle; exaggerated and
  /// turned as before.
  void fit(const Point2D& lowerLeft, const Point2D& upperRight, const QSizeF& size,
           const Padding& padding);

  void zoomAt(const QPointF& point, double factor, const QSizeF& size);  ///< `point` stays in place
  void pan(const QPointF& by);                ///< pixels that the picture moves
  void turnBy(double turned, double tilted);  ///< degrees
  /// The middle of the picture stays in place.
  void setExaggeration(double factor);
};

}  // namespace talvesk
