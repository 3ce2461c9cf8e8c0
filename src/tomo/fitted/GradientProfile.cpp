#include "tomo/fitted/GradientProfile.h"

#include "tomo/fitted/ConcaveFit.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr std::size_t kSteps = 300;  // of the integral
constexpr std::size_t kEvery = 6;    // steps from one point of the profile to the next
constexpr double kSteady = 1e-6;     // relative change of slope that is none
constexpr double kGrowth = 1.5;      // the most that velocity grows below the deepest ray

/// A piece of a concave curve: up to an offset, with one slope.
struct Piece {
  double end, slope;
};

std::vector<Piece> piecesOf(const ConcaveCurve& curve) {
  std::vector<Piece> pieces;
  for (std::size_t i = 0; i < curve.knots.size(); ++i) {
    if (pieces.empty() || curve.slopes[i] < pieces.back().slope * (1.0 - kSteady)) {
      pieces.push_back({curve.knots[i], curve.slopes[i]});
    } else {
      pieces.back().end = curve.knots[i];
    }
  }
  return pieces;
}

/// Slopes of a concave curve at even offsets. Where two pieces meet, the slope falls steadily from
/// the middle of the shorter one to as far within the longer one: so the integral meets no jumps,
/// the times at the end of either stay, and a long straight branch keeps its slope.
std::vector<double> slopesAt(const ConcaveCurve& curve, double step) {
  const std::vector<Piece> pieces = piecesOf(curve);
  std::vector<double> offsets = {0.0};
  std::vector<double> values = {pieces.front().slope};
  double begin = 0.0;
  for (std::size_t i = 0; i + 1 < pieces.size(); ++i) {
    const double end = pieces[i].end;
    const double half = 0.5 * std::min(end - begin, pieces[i + 1].end - end);
    offsets.insert(offsets.end(), {end - half, end + half});
    values.insert(values.end(), {pieces[i].slope, pieces[i + 1].slope});
    begin = end;
  }
  std::vector<double> slopes;
  for (std::size_t i = 0; i < kSteps; ++i) {
    slopes.push_back(interpolated(offsets, values, (static_cast<double>(i) + 0.5) * step));
  }
  return slopes;
}

/// Below the deepest ray the velocity grows on, for a while, as the slopes of the farthest times
/// have it: v0 + k z lets 1 / p^2 grow by (k / 2)^2 over the square of the offset. Times that end
/// in a straight branch so end in steady ground, which no ray overtakes.
void extend(const std::vector<double>& slopes, double step, const VelocityBounds& bounds,
            GradientProfile& profile) {
  profile.deepestTurn = profile.depths.back();
  const double last = profile.velocities.back();
  const double end = std::min(kGrowth * last, bounds.greatest);
  const std::size_t from = slopes.size() * 3 / 5;
  const double squares = std::pow(1.0 / slopes.back(), 2) - std::pow(1.0 / slopes[from], 2);
  const double reach = static_cast<double>(slopes.size() - 1) * step;
  const double begin = static_cast<double>(from) * step;
  const double k = 2.0 * std::sqrt(std::max(0.0, squares) / (reach * reach - begin * begin));
  if (!(k * profile.deepestTurn > kSteady * last) || !(end > last)) return;
  profile.depths.push_back(profile.deepestTurn + (end - last) / k);
  profile.velocities.push_back(end);
}

}  // namespace

GroundColumn GradientProfile::column() const {
  GroundColumn column;
  for (std::size_t i = 1; i < depths.size(); ++i) {
    column.push_back({depths[i], velocities[i - 1], velocities[i]});
  }
  if (column.empty()) column.push_back({0.0, velocities.front(), velocities.front()});
  return column;
}

GradientProfile gradientProfile(const LinePicks& line, const VelocityBounds& bounds) {
  GradientProfile profile;
  const ConcaveCurve curve = fitConcave(line);
  if (curve.knots.size() < 3) return profile;
  const double reach = curve.knots.back();
  const double near = curve.knots.front();
  if (!(curve.at(reach) - curve.at(near) > (reach - near) / bounds.greatest)) return profile;

  const double step = reach / static_cast<double>(kSteps);
  std::vector<double> slopes = slopesAt(curve, step);
  for (double& p : slopes) p = std::clamp(p, 1.0 / bounds.greatest, 1.0 / bounds.least);
  profile.depths = {0.0};
  profile.velocities = {1.0 / slopes.front()};
  // Wiechert and Herglotz: the ray that comes up with slope p turns where the velocity is 1 / p, at
  // the depth of 1 / pi times the integral of acosh(p(x) / p) over the offsets before it.
  for (std::size_t to = kEvery; to <= kSteps; to += kEvery) {
    const double p = slopes[to - 1];
    double integral = 0.0;
    for (std::size_t i = 0; i + 1 < to; ++i) integral += std::acosh(std::max(1.0, slopes[i] / p));
    const double depth = integral * step / kPi;
    if (1.0 / p < profile.velocities.back() * (1.0 + kSteady) || depth <= profile.depths.back()) {
      continue;
    }
    profile.depths.push_back(depth);
    profile.velocities.push_back(1.0 / p);
  }
  extend(slopes, step, bounds, profile);
  for (std::size_t i = 0; i <= kSteps; i += kEvery) {
    profile.offsets.push_back(static_cast<double>(i) * step);
    profile.times.push_back(curve.at(profile.offsets.back()));
  }
  return profile;
}

}  // namespace talvesk
