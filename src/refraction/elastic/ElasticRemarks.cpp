#include "refraction/elastic/ElasticRemarks.h"

#include "numerics/Medians.h"

#include <cmath>

namespace talvesk {
namespace {

void remarkOnTops(const ElasticLayer& layer, double tolerance, std::vector<Message>& remarks) {
  std::vector<double> p;
  std::vector<double> s;
  for (const ElasticPoint& point : layer.points) {
    if (!point.topsDiffer) continue;
    p.push_back(point.topP.value);
    s.push_back(point.topS.value);
  }
  if (p.empty()) return;
  const double none = Estimate().value;
  const std::size_t places = p.size();
  remarks.push_back(
      Message::tr("Layer %1: at %2 of %3 places the depths of its top by P and by S differ by more "
                  "than %4 % (median there %5 by P, %6 by S). P waves often see the water "
                  "table, which S waves do not: the same number may be different ground.")
          .arg(layer.layer)
          .arg(places)
          .arg(layer.points.size())
          .arg(tolerance)
          .arg(Message::length(medianOf(std::move(p), none), 3))
          .arg(Message::length(medianOf(std::move(s), none), 3)));
}

void remarkOnVelocities(const ElasticLayer& layer, std::vector<Message>& remarks) {
  const std::size_t all = layer.points.size();
  if (const std::size_t n = layer.count(ElasticVerdict::kUnknown); n > 0) {
    remarks.push_back(Message::tr("Layer %1: at %2 of %3 places a velocity is not known.")
                          .arg(layer.layer)
                          .arg(n)
                          .arg(all));
  }
  if (const std::size_t n = layer.count(ElasticVerdict::kSNotSlower); n > 0) {
    remarks.push_back(Message::tr("Layer %1: at %2 of %3 places S is not slower than P, which no "
                                  "ground is: no Poisson's ratio, E0 and K there. Are P and S "
                                  "exchanged, or is S a P wave?")
                          .arg(layer.layer)
                          .arg(n)
                          .arg(all));
  }
  if (const std::size_t n = layer.count(ElasticVerdict::kNegativePoisson); n > 0) {
    remarks.push_back(Message::tr("Layer %1: at %2 of %3 places Vp/Vs is below 1.41 and Poisson's "
                                  "ratio negative, which soil and rock are not: the velocities "
                                  "are of different ground, or wrong.")
                          .arg(layer.layer)
                          .arg(n)
                          .arg(all));
  }
}

void remarkOnDensity(const ElasticLine& line, std::vector<Message>& remarks) {
  if (!line.options.density.gardner) return;
  std::size_t slow = 0;
  std::size_t all = 0;
  for (const ElasticLayer& layer : line.layers) {
    for (const ElasticPoint& point : layer.points) {
      const double vp = point.state[ElasticQuantity::kVp].value;
      all += std::isfinite(vp) ? 1 : 0;
      slow += vp < DensityRule::kSlowest ? 1 : 0;
    }
  }
  if (slow == 0) return;
  remarks.push_back(Message::tr("Gardner's rule was found for rocks faster than %1; at %2 of "
                                "%3 places Vp is less, and the density a guess.")
                        .arg(Message::velocity(DensityRule::kSlowest, 4))
                        .arg(slow)
                        .arg(all));
}

void remarkOnErrors(const LayeredWave& p, const LayeredWave& s, std::vector<Message>& remarks) {
  if (p.errorsNotGiven) {
    remarks.push_back(
        Message::tr("P: its profile was fitted to all picks and gets no errors. One "
                    "by the reciprocal method does."));
  }
  if (s.errorsNotGiven) {
    remarks.push_back(
        Message::tr("S: its profile was fitted to all picks and gets no errors. One "
                    "by the reciprocal method does."));
  }
}

/// Positions may agree although the lines do not.
void remarkOnSurface(const LayeredWave& p, const LayeredWave& s, double shift,
                     std::vector<Message>& remarks) {
  double most = 0.0;
  double where = 0.0;
  for (const Point2D& at : p.surface) {
    const double gap = std::fabs(s.elevationAt(at.x - shift) - at.z);
    if (!(gap > most)) continue;
    most = gap;
    where = at.x;
  }
  if (!(most > ElasticOptions::kPlaceTolerance)) return;
  remarks.push_back(Message::tr("The surfaces of P and S lie up to %1 apart, at %2: they may "
                                "not be the same line, or not begin at the same place.")
                        .arg(Message::length(most, 3))
                        .arg(Message::length(where)));
}

}  // namespace

void addRemarks(const LayeredWave& p, const LayeredWave& s, ElasticLine& line) {
  remarkOnErrors(p, s, line.remarks);
  remarkOnSurface(p, s, line.options.shift, line.remarks);
  for (const ElasticLayer& layer : line.layers) {
    remarkOnTops(layer, line.options.topTolerance, line.remarks);
    remarkOnVelocities(layer, line.remarks);
  }
  remarkOnDensity(line, line.remarks);
}

}  // namespace talvesk
