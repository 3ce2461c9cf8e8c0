#include "view/SectionMeasure.h"

#include <cmath>

namespace talvesk {

SectionMeasure measureSection(const Point2D& from, const Point2D& to) {
  constexpr double kDegrees = 180.0 / 3.14159265358979323846;
  SectionMeasure measure;
  measure.horizontal = std::abs(to.x - from.x);
  measure.vertical = to.z - from.z;
  measure.distance = std::hypot(measure.horizontal, measure.vertical);
  if (measure.distance > 0.0) {
    measure.slope = kDegrees * std::atan2(measure.vertical, measure.horizontal);
  }
  return measure;
}

}  // namespace talvesk
