#include "refraction/elastic/ElasticLine.h"

#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

std::size_t ElasticLayer::count(ElasticVerdict verdict) const {
  return static_cast<std::size_t>(std::count_if(
      points.begin(), points.end(),
      [verdict](const ElasticPoint& point) { return point.state.verdict == verdict; }));
}

double ElasticLayer::median(ElasticQuantity quantity) const {
  std::vector<double> known;
  for (const ElasticPoint& point : points) {
    const double value = point.state[quantity].value;
    if (std::isfinite(value)) known.push_back(value);
  }
  return medianOf(std::move(known), Estimate().value);
}

std::vector<Message> elasticSummary(const ElasticLine& line) {
  using Quantity = ElasticQuantity;
  std::vector<Message> lines;
  for (const ElasticLayer& layer : line.layers) {
    const auto value = [&layer](Quantity quantity, int digits, double factor = 1.0) {
      const double median = factor * layer.median(quantity);
      if (!std::isfinite(median)) return Message("-");
      // Thousands are whole numbers, and have no exponent.
      return std::fabs(median) < 1e3 ? Message::number(median, digits)
                                     : Message::number(std::round(median), 15);
    };
    const auto velocity = [&layer](Quantity quantity) {
      const double median = layer.median(quantity);
      return std::isfinite(median) ? Message::velocity(median, 4) : Message("-");
    };
    lines.push_back(
        Message::tr("Layer %1, medians of %2 places: %3; %4")
            .arg(layer.layer)
            .arg(layer.points.size())
            .arg(Message::tr("Vp %1, Vs %2, Vp/Vs %3, Poisson's ratio %4")
                     .arg(velocity(Quantity::kVp))
                     .arg(velocity(Quantity::kVs))
                     .arg(value(Quantity::kRatio, 3))
                     .arg(value(Quantity::kPoisson, 3)))
            .arg(Message::tr("density %1 kg/m3, G0 %2 MPa, E0 %3 MPa, K %4 MPa, M %5 MPa")
                     .arg(value(Quantity::kDensity, 4))
                     .arg(value(Quantity::kShear, 3, 1e-6))
                     .arg(value(Quantity::kYoung, 3, 1e-6))
                     .arg(value(Quantity::kBulk, 3, 1e-6))
                     .arg(value(Quantity::kConstrained, 3, 1e-6))));
  }
  return lines;
}

}  // namespace talvesk
