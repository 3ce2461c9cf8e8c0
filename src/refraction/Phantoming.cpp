#include "refraction/Phantoming.h"

#include "base/Console.h"
#include "base/TextNumber.h"
#include "model/TravelTime.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

constexpr double kNoArrival = -1.0;  ///< any negative time

double shiftOf(const layerStruct& marks, std::size_t trace) {
  return trace < marks.trasla.size() ? marks.trasla[trace] : 0.0;
}

/// All receivers of the line by ascending x, each x once, without arrivals.
phantom emptyCurve(const std::vector<ShotArrivals>& shots) {
  phantom curve;
  for (const ShotArrivals& shot : shots) {
    for (const Point2D& receiver : shot.receivers) {
      if (isFinite(receiver)) curve.points.push_back(receiver);
    }
  }
  keepFirstOfEachX(curve.points);
  curve.times.assign(curve.points.size(), kNoArrival);
  return curve;
}

/// The line of the end shot's own arrivals, which are the only ones in the curve.
LinearFit fitOwn(const phantom& curve, std::size_t& picks) {
  std::vector<double> x;
  std::vector<double> times;
  console::log("ID Time");
  for (std::size_t i = 0; i < curve.points.size(); ++i) {
    if (curve.times[i] < 0.0) continue;
    x.push_back(curve.points[i].x);
    times.push_back(curve.times[i]);
    console::log(std::to_string(i) + ' ' + formatDouble(curve.times[i]));
  }
  picks = x.size();
  return picks < 2 ? LinearFit{} : linearFit(x, times);
}

/// Leaves only the receivers that have an arrival.
void dropEmpty(phantom& curve) {
  std::size_t kept = 0;
  for (std::size_t i = 0; i < curve.times.size(); ++i) {
    if (curve.times[i] < 0.0) continue;
    curve.points[kept] = curve.points[i];
    curve.times[kept] = curve.times[i];
    ++kept;
  }
  curve.points.resize(kept);
  curve.times.resize(kept);
  curve.enabled.assign(kept, true);
}

}  // namespace

bool CurveOutcome::usable() const {
  return ownPicks >= 2 && curve.points.size() >= 2 && std::isfinite(curve.slope) &&
         std::isfinite(curve.intercept);
}

std::optional<double> shiftOntoLine(const ShotArrivals& shot, std::uint32_t refractor, Side side,
                                    const LinearFit& line, layerStruct& marks) {
  double sum = 0.0;
  std::vector<std::size_t> arrivals;
  for (std::size_t i = 0; i < shot.times.size(); ++i) {
    if (layerOf(marks, i) != refractor || !shot.onSide(i, side) || !hasPick(shot.times[i])) {
      continue;
    }
    sum += line.at(shot.receivers[i].x) - shot.times[i];
    arrivals.push_back(i);
  }
  if (arrivals.empty()) return std::nullopt;
  const double shift = sum / static_cast<double>(arrivals.size());
  marks.trasla.resize(std::max(marks.trasla.size(), marks.layer.size()), 0.0);
  for (const std::size_t i : arrivals) marks.trasla[i] = shift;
  return shift;
}

void mergeInto(phantom& curve, const ShotArrivals& shot, const layerStruct& marks, Side side) {
  const auto refractor = static_cast<std::uint32_t>(curve.layer);
  for (std::size_t i = 0; i < shot.times.size(); ++i) {
    if (layerOf(marks, i) != refractor || !shot.onSide(i, side) || !hasPick(shot.times[i])) {
      continue;
    }
    const double x = shot.receivers[i].x;
    const auto at = std::lower_bound(curve.points.begin(), curve.points.end(), x,
                                     [](const Point2D& p, double value) { return p.x < value; });
    if (at == curve.points.end() || at->x != x) continue;
    double& time = curve.times[static_cast<std::size_t>(at - curve.points.begin())];
    const double arrival = shot.times[i] + shiftOf(marks, i);
    time = time < 0.0 ? arrival : (time + arrival) * 0.5;
  }
}

CurveOutcome buildCurve(const std::vector<ShotArrivals>& shots, std::int32_t endShot,
                        std::uint32_t refractor, Side side, std::vector<layerStruct>& marks) {
  CurveOutcome outcome;
  phantom& curve = outcome.curve;
  curve = emptyCurve(shots);
  curve.layer = static_cast<std::int32_t>(refractor);
  curve.shotID = endShot;
  const auto end = static_cast<std::uint32_t>(endShot);
  if (const layerStruct* own = marksOf(marks, end)) {
    // The end shot keeps its times: they are what the others are shifted onto.
    layerStruct unshifted = *own;
    unshifted.trasla.clear();
    mergeInto(curve, shots[end], unshifted, side);
  }
  const LinearFit line = fitOwn(curve, outcome.ownPicks);
  curve.slope = line.slope;
  curve.intercept = line.intercept;
  if (outcome.ownPicks >= 2 && std::isfinite(line.slope)) {
    for (std::size_t shot = 0; shot < shots.size(); ++shot) {
      const layerStruct* found = shot == end ? nullptr : marksOf(marks, shot);
      if (found == nullptr || !found->enabled) continue;
      layerStruct& other = marks[static_cast<std::size_t>(found - marks.data())];
      if (shiftOntoLine(shots[shot], refractor, side, line, other)) {
        mergeInto(curve, shots[shot], other, side);
      }
    }
  }
  dropEmpty(curve);
  return outcome;
}

}  // namespace talvesk
