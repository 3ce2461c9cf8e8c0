#pragma once

#include "model/RefractionDataStructure.h"
#include "refraction/ShotArrivals.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace talvesk {

/// The picks of one layer on one side of a shot.
struct Branch {
  std::vector<double> x;      ///< receivers, metres, in trace order
  std::vector<double> times;  ///< seconds

  /// Of the straight line through the picks, m/s; none for fewer than two picks. Fits and tells the
  /// console.
  std::optional<double> apparentVelocity() const;
};

/// Traces without a pick are left out.
Branch branchOf(const ShotArrivals& shot, const refractionDataStructure::layerStruct& marks,
                std::uint32_t layer, Side side);

/// Mean apparent velocity of a layer over both sides of all shots that take part, in document
/// order, m/s. Not a number when no branch has two picks.
double layerVelocity(const std::vector<ShotArrivals>& shots,
                     const std::vector<refractionDataStructure::layerStruct>& marks,
                     std::uint32_t layer);

/// The shots between which a refractor is interpreted, -1 where there is none.
struct ShotPair {
  std::int32_t a = -1;  ///< at or before the first receiver of the line
  std::int32_t b = -1;  ///< at or behind the last

  bool complete() const { return a >= 0 && b >= 0; }
};

/// The nearest shots to both ends of the line whose records are enabled and have a trace assigned
/// to the refractor. A shot inside the spread is never chosen; of two in one place the first is.
ShotPair findShotPair(const std::vector<ShotArrivals>& shots,
                      const std::vector<refractionDataStructure::layerStruct>& marks,
                      std::uint32_t refractor);

/// What findShotPair() compares, metres along the line: what to tell when there is no pair.
struct ShotPairReach {
  double firstReceiver = std::numeric_limits<double>::infinity();  ///< above the last: none
  double lastReceiver = -std::numeric_limits<double>::infinity();
  double firstShot = std::numeric_limits<double>::infinity();  ///< of those that may be chosen
  double lastShot = -std::numeric_limits<double>::infinity();

  bool hasShots() const { return firstShot <= lastShot; }
};

ShotPairReach shotPairReach(const std::vector<ShotArrivals>& shots,
                            const std::vector<refractionDataStructure::layerStruct>& marks,
                            std::uint32_t refractor);

/// Whether a record is enabled and has a trace assigned to the layer.
bool isAssigned(const refractionDataStructure::layerStruct& marks, std::uint32_t layer);

/// Whether any record is.
bool isAssigned(const std::vector<refractionDataStructure::layerStruct>& marks,
                std::uint32_t layer);

}  // namespace talvesk
