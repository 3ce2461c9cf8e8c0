#pragma once

#include "base/Point2D.h"
#include "model/Parameters.h"

#include <cstdint>
#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

/// The records of the layered interpretation. They sit beside the survey document, are filled by
/// the refraction room and saved with the project. Positions in metres, times in seconds,
/// velocities in m/s; a vector of one value per receiver follows the receivers of the curve.
namespace refractionDataStructure {

/// Layer number of a trace that is assigned to no layer; 1 is the direct wave, 2 the first
/// refractor, 3 the second.
inline constexpr std::uint32_t kNoLayer = 0;
/// The highest layer number.
inline constexpr std::uint32_t kLastLayer = 3;

/// Which arrivals of one shot belong to which layer.
struct layerStruct {
  std::uint32_t shotID = 0;          ///< record of the document, from 0
  std::vector<std::uint32_t> layer;  ///< per trace: kNoLayer, 1, 2 or 3
  std::vector<double> trasla;        ///< per trace: time shift of phantoming, seconds
  bool enabled = true;               ///< the shot takes part in the interpretation
};

/// The arrivals of one refractor from one end shot, completed by shifted arrivals of other shots.
/// All sequences have one entry per receiver of the curve, ascending x.
struct phantom {
  std::vector<bool> enabled;  ///< the receiver has an arrival
  std::int32_t layer = 0;     ///< refractor, 2 or 3
  std::int32_t shotID = -1;   ///< the end shot; -1 none
  double trasla = 0.0;        ///< shift of the end shot's own picks: none
  std::vector<Point2D> points;
  std::vector<double> times;    ///< seconds; negative where there is no arrival yet
  double slope = 0.0;           ///< of the line through the end shot's own picks, s/m
  double intercept = 0.0;       ///< of that line, seconds
  double reciprocalTime = 0.0;  ///< the line at the other end shot, seconds
};

/// What the reciprocal method gives for one refractor, per receiver of the forward curve that the
/// reverse one reaches, too. What is not known is not a number.
struct computedData {
  std::vector<double> tG;   ///< time-depth function at the chosen XY, seconds
  std::vector<double> tV;   ///< velocity-analysis function at the chosen XY, seconds
  std::vector<double> tGs;  ///< the family over XY, -4 to 4 m by 1 m, one curve behind the other
  std::vector<double> tVs;  ///< the same of tV
  std::vector<double> x;    ///< receivers, metres, ascending
  std::vector<double> elevation;              ///< of the surface at the receivers, metres
  double chosenXY = parameters::kXY.initial;  ///< metres
  std::vector<double> velocity;               ///< of the refractor, m/s
  std::vector<double> depth;                  ///< of the refractor below the surface, metres
};

/// The first layer of a profile that was fitted to all picks of a survey.
struct FirstLayer {
  std::vector<double> x;         ///< metres, ascending; none: the profile is not of this kind
  std::vector<double> velocity;  ///< at the surface, m/s, one per x; straight slownesses between
  double growth = 0.0;           ///< of the velocity with depth over that at the surface, per metre
  double growsTo = 0.0;          ///< depth, metres, below which the velocity grows no more
};

struct processingData {
  std::vector<computedData> cData;  ///< index 0 is refractor 2, index 1 refractor 3
  double v1 = 0.0;                  ///< of the first layer, m/s; 0 before anything was built
  FirstLayer first;                 ///< that v1 is the mean of, down to the refractor
  std::vector<double> v2;           ///< of the first refractor, per receiver
  std::vector<double> v3;           ///< of the second refractor, per receiver
  std::uint64_t picks = 0;          ///< fingerprint of those it was built from; 0 is not known

  /// Whether velocities and depths are those that fit all picks; else the reciprocal method found
  /// them.
  bool isFitted() const { return !first.x.empty(); }
};

/// All that the interpretation of a survey holds.
struct Interpretation {
  std::vector<phantom> phnt_A;  ///< forward curves, from the shot at the start of the line
  std::vector<phantom> phnt_R;  ///< reverse curves, from the shot at its end
  processingData refractData;
  std::vector<layerStruct> ttLayer;  ///< one per shot
};

}  // namespace refractionDataStructure
}  // namespace talvesk
