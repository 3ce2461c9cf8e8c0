#include "refraction/elastic/ElasticModuli.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

bool isKnown(double velocity) {
  return std::isfinite(velocity) && velocity > 0.0;
}

/// What is added to a value by a metre per second more of P and of S.
struct Slopes {
  double vp;
  double vs;
};

}  // namespace

const char* nameOf(ElasticVerdict verdict) {
  switch (verdict) {
    case ElasticVerdict::kUnknown:
      return "unknown";
    case ElasticVerdict::kNegativePoisson:
      return "negative_poisson";
    case ElasticVerdict::kSNotSlower:
      return "s_not_slower";
    case ElasticVerdict::kSound:
      break;
  }
  return "";
}

double DensityRule::at(std::size_t layer, double vp) const {
  if (gardner) return 310.0 * std::pow(vp, growth());
  if (layers.empty()) return parameters::kDensity.initial;
  return layers[std::min(layer, layers.size() - 1)];
}

ElasticState elasticState(const Estimate& vp, const Estimate& vs, const DensityRule& density,
                          std::size_t layer) {
  ElasticState state;
  state[ElasticQuantity::kVp] = vp;
  state[ElasticQuantity::kVs] = vs;
  const auto set = [&](ElasticQuantity quantity, double value, const Slopes& slopes) {
    state[quantity] = {value, std::hypot(slopes.vp * vp.sigma, slopes.vs * vs.sigma)};
  };
  const double a = vp.value;
  const double b = vs.value;
  const double rho = isKnown(a) ? density.at(layer, a) : Estimate().value;
  const double growth = density.growth() / a;
  if (isKnown(a)) {
    state[ElasticQuantity::kDensity].value = rho;
    if (density.gardner) state[ElasticQuantity::kDensity].sigma = growth * rho * vp.sigma;
    const double m = rho * a * a;
    state[ElasticQuantity::kConstrained] = {m, (2.0 + density.growth()) * m / a * vp.sigma};
  }
  if (!isKnown(a) || !isKnown(b)) return state;
  const double ratio = a / b;
  set(ElasticQuantity::kRatio, ratio, {1.0 / b, -ratio / b});
  const double g = rho * b * b;
  set(ElasticQuantity::kShear, g, {growth * g, 2.0 * g / b});
  state.verdict = ElasticVerdict::kSNotSlower;
  if (!(ratio > 1.0)) return state;
  const double p = a * a;
  const double s = b * b;
  const double gap = p - s;
  state.verdict = p < 2.0 * s ? ElasticVerdict::kNegativePoisson : ElasticVerdict::kSound;
  set(ElasticQuantity::kPoisson, (p - 2.0 * s) / (2.0 * gap),
      {a * s / (gap * gap), -b * p / (gap * gap)});
  const double k = rho * (p - 4.0 / 3.0 * s);
  set(ElasticQuantity::kBulk, k, {growth * k + 2.0 * rho * a, -8.0 / 3.0 * rho * b});
  const double e = rho * s * (3.0 * p - 4.0 * s) / gap;
  set(ElasticQuantity::kYoung, e,
      {growth * e + 2.0 * a * rho * s * s / (gap * gap),
       2.0 * b * rho * (3.0 * p * p - 8.0 * p * s + 4.0 * s * s) / (gap * gap)});
  return state;
}

}  // namespace talvesk
