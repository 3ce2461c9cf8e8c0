#include "figures/SectionCamera.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kRadians = 3.14159265358979323846 / 180.0;
constexpr double kMinMetresPerPixel = 1e-4;  // closer, numbers at the axes have no room
constexpr double kMaxMetresPerPixel = 1e5;

}  // namespace

QTransform SectionCamera::toPicture(const QSizeF& size) const {
  const double scale = 1.0 / metresPerPixel;
  const double right = std::cos(turn * kRadians) * scale;
  const double down = std::sin(turn * kRadians) * std::sin(tilt * kRadians) * scale;
  const double up = std::cos(tilt * kRadians) * scale * exaggeration;
  return {right,
          down,
          0.0,
          -up,
          0.5 * size.width() - right * centre.x,
          0.5 * size.height() - down * centre.x + up * centre.z};
}

void SectionCamera::fit(const Point2D& lowerLeft, const Point2D& upperRight, const QSizeF& size,
                        const Padding& padding) {
  const double width = std::max(size.width() - 2.0 * padding.side, 1.0);
  const double height = std::max(size.height() - padding.top - padding.bottom, 1.0);
  const double along = std::max(upperRight.x - lowerLeft.x, 1e-3);
  const double down = std::max(upperRight.z - lowerLeft.z, 1e-3);
  metresPerPixel = 1.0;
  centre = {0.5 * (lowerLeft.x + upperRight.x), 0.5 * (lowerLeft.z + upperRight.z)};
  const QRectF picture =
      toPicture(size).mapRect(QRectF(lowerLeft.x, lowerLeft.z, along, down));  // one pixel a metre
  metresPerPixel = std::max(picture.width() / width, picture.height() / height);
  pan({0.0, 0.5 * (padding.top - padding.bottom)});
}

void SectionCamera::zoomAt(const QPointF& point, double factor, const QSizeF& size) {
  const QPointF before = toPicture(size).inverted().map(point);
  metresPerPixel = std::clamp(metresPerPixel / factor, kMinMetresPerPixel, kMaxMetresPerPixel);
  const QPointF after = toPicture(size).inverted().map(point);
  centre.x += before.x() - after.x();
  centre.z += before.y() - after.y();
}

void SectionCamera::pan(const QPointF& by) {
  const QTransform back = toPicture({0.0, 0.0}).inverted();
  const QPointF moved = back.map(by) - back.map(QPointF());
  centre.x -= moved.x();
  centre.z -= moved.y();
}

void SectionCamera::turnBy(double turned, double tilted) {
  turn = std::clamp(turn + turned, -kMaxTurn, kMaxTurn);
  tilt = std::clamp(tilt + tilted, -kMaxTurn, kMaxTurn);
}

void SectionCamera::setExaggeration(double factor) {
  if (std::isfinite(factor)) exaggeration = std::clamp(factor, kMinExaggeration, kMaxExaggeration);
}

}  // namespace talvesk
