#include "processing/PickCurve.h"

#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

PickCurve pickCurveOf(const TomoDocument& document, const TravelTime& record) {
  PickCurve curve;
  curve.arrivals.source = record.shotPos2d.x;
  if (!std::isfinite(curve.arrivals.source)) return curve;
  const std::vector<Point2D> receivers = document.receiversOf(record);
  for (std::size_t t = 0; t < std::min(receivers.size(), record.ttMisurati.size()); ++t) {
    const double time = record.ttMisurati[t];
    if (!hasPick(time) || !std::isfinite(time) || !std::isfinite(receivers[t].x)) continue;
    curve.arrivals.points.push_back({receivers[t].x, time});
    curve.traces.push_back(t);
  }
  return curve;
}

}  // namespace talvesk
