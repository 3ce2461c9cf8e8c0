#pragma once

#include "refraction/AlongLine.h"
#include "refraction/Course.h"
#include "refraction/WeighedPicks.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace talvesk {

// First arrivals of a whole survey as the earliest of a few waves that all shots share: the direct
// wave, and head waves that take a delay below the shot, a delay below the receiver and the way
// between along the refractor. For plane refractors, level or dipping, that is exact; where delays
// and velocities change along the line, it holds as far as both change slowly. In the first layer
// the velocity may grow steadily with depth, so that a slow surface is no layer of its own: the
// direct wave is a diving one then.
//   Gardner, L. W. (1939): An areal plan of mapping subsurface structure by refraction shooting.
//   Geophysics 4, 247-259.
//   Scheidegger, A. E., Willmore, P. L. (1957): The use of a least squares method for the
//   interpretation of data from seismic surveys. Geophysics 22, 9-22.

/// What one wave takes for its way.
struct Wave {
  double unknowns = 0.0;         ///< that the picks settle
  std::vector<double> slowness;  ///< along the line, s/m, one per knot
  std::vector<double> delay;     ///< below shot and receiver, seconds, one per knot; none: direct
  double relief = 0.0;           ///< by which a delay grows with the elevation above it, s/m
};

/// The waves of a survey, top down: the direct one first.
struct WaveModel {
  AlongLine top{0.0, 0.0, 1};         ///< where slownesses of the direct wave are known
  AlongLine slownesses{0.0, 0.0, 1};  ///< those of the head waves
  AlongLine delays{0.0, 0.0, 1};
  Course relief;  ///< of the surface, metres above its mean
  std::vector<Wave> waves;
  double growth = 0.0;  ///< of the velocity in the first layer over that at the surface, per metre
  /// Depth to which picks tell of growth, metres: the deepest point of the direct waves. Below it
  /// the velocity stays as it is there.
  double growsTo = 0.0;

  double time(std::size_t wave, double from, double to) const;  ///< seconds
  std::size_t earliest(double from, double to) const;           ///< index of the wave
  double slownessAt(std::size_t wave, double x) const;          ///< s/m
  double delayAt(std::size_t wave, double x) const;             ///< seconds; 0 of the direct wave
  /// Of the first layer from the surface down, along a way whose horizontal slowness is that given,
  /// the time less what the horizontal way takes, seconds. \param slowness at the surface, s/m
  double delayThroughFirst(double depth, double slowness, double horizontal) const;
  /// Depth of the top of a head wave's refractor at x, metres. None of the direct wave, and where
  /// the waves tell of none. Dips of a few degrees count as level.
  std::optional<double> depthAt(std::size_t wave, double x) const;
  /// Over all of the line, m/s; of the first layer at the surface.
  double velocity(std::size_t wave) const;
};

/// A model fitted to picks.
struct FittedWaves {
  WaveModel model;
  std::vector<std::size_t> wave;  ///< per pick: the earliest
  std::vector<double> times;      ///< per pick, seconds
  double cost = 0.0;              ///< robust: gross picks count little
  /// Fitted numbers. One that picks tell half of, and the usual evenness of grounds the rest,
  /// counts half.
  double unknowns = 0.0;
};

/// How finely a model may change along the line, and how the first layer does with depth.
struct WaveDetail {
  std::size_t delayKnots = 2;
  std::size_t slownessKnots = 1;  ///< of the head waves
  std::size_t topKnots = 1;       ///< of the slowness of the direct wave
  double growth = 0.0;            ///< as WaveModel::growth
};

/// Offset that a wave along the surface would have for the time of a diving one, metres: shorter
/// the more the velocity grows with depth. \param growth of WaveModel, per metre; 0: the offset
double divingOffset(double offset, double growth);
/// Depth of the deepest point of such a wave, metres; 0 where nothing grows.
double divingDepth(double offset, double growth);

/// Fits waves to picks of one survey: all shots at once, each pick to the wave that is the earliest
/// there. The picks must outlive it.
class WaveFitter {
 public:
  /// \param relief of the surface, metres above its mean
  WaveFitter(const std::vector<WeighedPick>& picks, WaveDetail detail, const Course& relief);
  ~WaveFitter();

  /// From a first idea of which wave each pick belongs to. Nothing when the waves do not become
  /// faster downward, or one is nowhere the earliest.
  std::optional<FittedWaves> fit(std::vector<std::size_t> start, std::size_t waves) const;

  /// Each pick to the wave that it is said to be of, whatever is the earliest there. Velocities of
  /// head waves change along the line as those of `about` lead to expect: by some of a refractor's
  /// own slowness. Nothing when a wave has too few picks.
  std::optional<WaveModel> fitAssigned(const std::vector<std::size_t>& wave,
                                       const WaveModel& about) const;

 private:
  struct Rows;
  const std::vector<WeighedPick>& mPicks;
  std::unique_ptr<Rows> mRows;
};

/// The best fit of so many waves at the coarsest detail, from cross-over distances that are tried
/// all over the offsets; nothing when no fit has so many.
std::optional<FittedWaves> searchWaves(const std::vector<WeighedPick>& picks, std::size_t waves,
                                       const Course& relief);

/// Each layer is so much faster than the one above at least.
inline constexpr double kLeastVelocityRise = 1.15;
/// Picks that carry a layer on one side of a shot, at least.
inline constexpr std::size_t kLeastPicksOfPiece = 4;

/// Weight of a residual in an iterated least-squares fit that gross errors hardly move; of a normal
/// one about 1. \param scaled residual over its standard deviation
double robustWeight(double scaled);
double robustCost(double scaled);  ///< what the fit minimizes

}  // namespace talvesk
