#pragma once

#include "model/RefractionDataStructure.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// How well one XY suits a refractor. Both figures are those of the receivers that all XY tried can
/// be read at within the picks, so that they can be compared; not a number for an XY that cannot.
struct XYTried {
  double xy = 0.0;          ///< metres, a whole number of spacings
  double roughness = 0.0;   ///< rms of tV about short straight lines, seconds
  double unevenness = 0.0;  ///< rms of the slowness along the refractor about its mean, of the mean
};

/// The XY that a criterion is least at.
struct XYProposal {
  double xy = 0.0;    ///< metres; 0 where it is not told
  bool told = false;  ///< it is better than 0 m by more than chance; false: the picks do not tell
};

/// What picks tell of the XY of a refractor: as the two points at which arrivals are taken belong
/// to waves that left the refractor at one place, its undulations cancel in tV.
///   Palmer, D. (1980): The Generalized Reciprocal Method of Seismic Refraction Interpretation.
///   Society of Exploration Geophysicists.
struct XYChoice {
  std::vector<XYTried> tried;  ///< from -6 to 6 spacings
  std::size_t receivers = 0;   ///< that the figures are of; 0: too few for any
  XYProposal smoothest;        ///< by roughness
  XYProposal mostEven;         ///< by unevenness
};

/// XY are whole numbers of spacings: the arrivals between receivers are splines through those at
/// them, which are smoother than picks and would win for that alone.
/// \param refractor 2 or 3; one that is not built has nothing tried
XYChoice findXY(const refractionDataStructure::Interpretation& interpretation,
                std::uint32_t refractor);

}  // namespace talvesk
