#include "refraction/Branches.h"

#include "model/TravelTime.h"
#include "refraction/LinearFit.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {

using namespace refractionDataStructure;

std::optional<double> Branch::apparentVelocity() const {
  if (x.size() < 2) return std::nullopt;
  return std::fabs(1.0 / linearFit(x, times).slope);
}

Branch branchOf(const ShotArrivals& shot, const layerStruct& marks, std::uint32_t layer,
                Side side) {
  Branch branch;
  for (std::size_t i = 0; i < shot.times.size(); ++i) {
    if (layerOf(marks, i) != layer || !hasPick(shot.times[i]) || !shot.onSide(i, side)) continue;
    branch.x.push_back(shot.receivers[i].x);
    branch.times.push_back(shot.times[i]);
  }
  return branch;
}

double layerVelocity(const std::vector<ShotArrivals>& shots, const std::vector<layerStruct>& marks,
                     std::uint32_t layer) {
  double sum = 0.0;
  int branches = 0;
  for (std::size_t shot = 0; shot < shots.size(); ++shot) {
    const layerStruct* own = marksOf(marks, shot);
    if (own == nullptr || !own->enabled) continue;
    for (const Side side : {Side::kRight, Side::kLeft}) {
      const auto velocity = branchOf(shots[shot], *own, layer, side).apparentVelocity();
      if (!velocity) continue;
      sum += *velocity;
      ++branches;
    }
  }
  return sum / branches;
}

bool isAssigned(const layerStruct& marks, std::uint32_t layer) {
  return marks.enabled &&
         std::find(marks.layer.begin(), marks.layer.end(), layer) != marks.layer.end();
}

bool isAssigned(const std::vector<layerStruct>& marks, std::uint32_t layer) {
  return std::any_of(marks.begin(), marks.end(),
                     [layer](const layerStruct& m) { return isAssigned(m, layer); });
}

ShotPairReach shotPairReach(const std::vector<ShotArrivals>& shots,
                            const std::vector<layerStruct>& marks, std::uint32_t refractor) {
  ShotPairReach reach;
  for (const ShotArrivals& shot : shots) {
    for (const Point2D& receiver : shot.receivers) {
      reach.firstReceiver = std::min(reach.firstReceiver, receiver.x);
      reach.lastReceiver = std::max(reach.lastReceiver, receiver.x);
    }
  }
  for (const layerStruct& own : marks) {
    if (own.shotID >= shots.size() || !isAssigned(own, refractor)) continue;
    reach.firstShot = std::min(reach.firstShot, shots[own.shotID].shot.x);
    reach.lastShot = std::max(reach.lastShot, shots[own.shotID].shot.x);
  }
  return reach;
}

ShotPair findShotPair(const std::vector<ShotArrivals>& shots, const std::vector<layerStruct>& marks,
                      std::uint32_t refractor) {
  const ShotPairReach reach = shotPairReach(shots, marks, refractor);
  const double first = reach.firstReceiver;
  const double last = reach.lastReceiver;
  ShotPair pair;
  double nearestA = std::numeric_limits<double>::infinity();
  double nearestB = std::numeric_limits<double>::infinity();
  for (const layerStruct& own : marks) {
    if (own.shotID >= shots.size() || !isAssigned(own, refractor)) continue;
    const double x = shots[own.shotID].shot.x;
    if (x <= first && first - x < nearestA) {
      nearestA = first - x;
      pair.a = static_cast<std::int32_t>(own.shotID);
    }
    if (x >= last && x - last < nearestB) {
      nearestB = x - last;
      pair.b = static_cast<std::int32_t>(own.shotID);
    }
  }
  return pair;
}

}  // namespace talvesk
