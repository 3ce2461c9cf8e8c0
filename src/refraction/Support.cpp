#include "refraction/Support.h"

#include "model/TravelTime.h"
#include "numerics/Medians.h"
#include "refraction/ReciprocalMethod.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

constexpr double kGapSpacings = 2.0;
constexpr double kRounding = 1e-6;  // metres

/// Where a curve has arrivals, and which of them are its end shot's own.
struct CurveReading {
  const phantom* curve = nullptr;
  std::vector<bool> own;
  double spacing = 1.0;

  Support at(double x) const;
};

Support CurveReading::at(double x) const {
  const auto& points = curve->points;
  if (x < points.front().x - kRounding || x > points.back().x + kRounding) {
    return Support::kExtrapolated;
  }
  const auto behind =
      std::lower_bound(points.begin(), points.end(), x - kRounding,
                       [](const Point2D& point, double value) { return point.x < value; });
  const auto right = std::min(static_cast<std::size_t>(behind - points.begin()), points.size() - 1);
  const bool exact = points[right].x <= x + kRounding;
  const std::size_t left = exact || right == 0 ? right : right - 1;
  if (points[right].x - points[left].x > kGapSpacings * spacing + kRounding) return Support::kGap;
  return own[left] && own[right] ? Support::kPicks : Support::kPhantom;
}

CurveReading readingOf(const std::vector<ShotArrivals>& shots,
                       const std::vector<layerStruct>& marks, const phantom& curve, Side side,
                       double spacing) {
  CurveReading reading{&curve, std::vector<bool>(curve.points.size(), false), spacing};
  const auto end = static_cast<std::size_t>(curve.shotID);
  const layerStruct* own = curve.shotID < 0 || end >= shots.size() ? nullptr : marksOf(marks, end);
  if (own == nullptr) return reading;
  const ShotArrivals& shot = shots[end];
  for (std::size_t i = 0; i < shot.times.size(); ++i) {
    if (layerOf(*own, i) != static_cast<std::uint32_t>(curve.layer) || !shot.onSide(i, side) ||
        !hasPick(shot.times[i])) {
      continue;
    }
    const auto at = std::find_if(curve.points.begin(), curve.points.end(),
                                 [&](const Point2D& p) { return p.x == shot.receivers[i].x; });
    if (at != curve.points.end()) {
      reading.own[static_cast<std::size_t>(at - curve.points.begin())] = true;
    }
  }
  return reading;
}

Support beyond(const std::vector<double>& x, double reach, double at) {
  const bool inside = at - reach >= x.front() - kRounding && at + reach <= x.back() + kRounding;
  return inside ? Support::kPicks : Support::kExtrapolated;
}

/// Of the refractor above, at a place between two of its receivers.
Support above(const std::vector<double>& x, const std::vector<Support>& support, double at) {
  const auto behind = std::lower_bound(x.begin(), x.end(), at);
  if (behind == x.end()) return Support::kExtrapolated;
  const auto right = static_cast<std::size_t>(behind - x.begin());
  if (*behind == at) return support[right];
  return right == 0 ? Support::kExtrapolated : std::max(support[right - 1], support[right]);
}

/// Of a fitted profile: places are told of by the shots and receivers of the refractor's picks.
RefractorSupport fittedSupport(const std::vector<ShotArrivals>& shots,
                               const std::vector<layerStruct>& marks, const computedData& data,
                               std::uint32_t refractor) {
  std::set<double> told;
  for (const layerStruct& own : marks) {
    if (!own.enabled || own.shotID >= shots.size()) continue;
    const ShotArrivals& shot = shots[own.shotID];
    for (std::size_t i = 0; i < shot.times.size(); ++i) {
      if (layerOf(own, i) == refractor && hasPick(shot.times[i])) {
        told.insert({shot.shot.x, shot.receivers[i].x});
      }
    }
  }
  RefractorSupport support;
  for (const double x : data.x) {
    support.depth.push_back(told.count(x) > 0 ? Support::kPicks : Support::kGap);
    support.velocity.push_back(Support::kPicks);
  }
  return support;
}

}  // namespace

const char* nameOf(Support support) {
  constexpr const char* kNames[] = {"picks", "phantom", "gap", "extrapolated"};
  return kNames[static_cast<std::size_t>(support)];
}

RefractorSupport supportOf(const std::vector<ShotArrivals>& shots,
                           const Interpretation& interpretation, std::uint32_t refractor) {
  RefractorSupport support;
  const std::size_t index = refractor - 2;
  const auto& built = interpretation.refractData.cData;
  if (interpretation.refractData.isFitted() && index < built.size()) {
    return fittedSupport(shots, interpretation.ttLayer, built[index], refractor);
  }
  if (index >= built.size() || index >= interpretation.phnt_A.size() ||
      index >= interpretation.phnt_R.size()) {
    return support;
  }
  const computedData& data = built[index];
  const phantom& a = interpretation.phnt_A[index];
  const phantom& r = interpretation.phnt_R[index];
  if (data.x.empty() || a.points.empty() || r.points.empty()) return support;
  const double spacing = medianGap(data.x);
  const CurveReading forward = readingOf(shots, interpretation.ttLayer, a, Side::kRight, spacing);
  const CurveReading reverse = readingOf(shots, interpretation.ttLayer, r, Side::kLeft, spacing);
  const double xy = data.chosenXY;
  const RefractorSupport upper =
      index > 0 ? supportOf(shots, interpretation, refractor - 1) : RefractorSupport{};
  for (const double x : data.x) {
    const Support read = std::max(forward.at(x + xy), reverse.at(x - xy));
    support.velocity.push_back(std::max(read, beyond(data.x, kSlopeReach, x)));
    Support depth = std::max(read, beyond(data.x, std::fabs(xy), x));
    if (index > 0) depth = std::max(depth, above(built[index - 1].x, upper.depth, x));
    support.depth.push_back(depth);
  }
  return support;
}

}  // namespace talvesk
