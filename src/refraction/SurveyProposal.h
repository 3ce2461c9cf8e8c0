#pragma once

#include "base/Message.h"
#include "model/RefractionDataStructure.h"
#include "refraction/Branches.h"
#include "refraction/MarkEdits.h"
#include "refraction/WaveFit.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

// A proposal of layers from all picks of a survey together: the velocities of the layers are those
// of the line and change slowly along it, and what lies below a shot does so for both of its sides,
// so that shots to both sides of a place agree about their cross-over distances. Ground of one, two
// and three layers and ground without layers, in which the velocity grows steadily, are compared.

/// How one kind of ground fits the picks.
struct GroundFit {
  std::uint32_t layers = 0;  ///< 1 to 3; 0: a steady gradient
  bool fitted = false;       ///< nothing else is valid otherwise
  double misfit = 0.0;       ///< RMS of the residuals, picks that stand out left out, seconds
  double chi2 = 0.0;         ///< mean square of residuals over their errors, the same left out
  double unknowns = 0.0;     ///< fitted numbers, see FittedWaves
  double criterion = 0.0;    ///< the Bayesian information criterion, the less the better
  /// Of the layers, top down, m/s; where the velocity grows with depth that at the surface.
  std::vector<double> velocities;
  double gradient = 0.0;  ///< of the ground without layers, or in the first layer, m/s per metre
};

/// A part of a curve that carries a layer with few picks.
struct ShortPiece {
  std::uint32_t shot = 0;  ///< from 0
  Side side = Side::kRight;
  std::uint32_t layer = 0;
  std::size_t picks = 0;  ///< below kLeastPicksOfPiece
};

struct SurveyProposal {
  /// One per shot, as proposeLayers() gives them. None of a gradient: it has no layer.
  std::vector<refractionDataStructure::layerStruct> marks;
  std::vector<GroundFit> grounds;     ///< one, two and three layers, then the gradient
  std::optional<std::size_t> chosen;  ///< index of grounds; none: too few picks for any
  std::optional<WaveModel> waves;     ///< of the layers chosen
  std::vector<TraceRef> standOut;     ///< picks that fit none of it and were given to no layer
  std::vector<ShortPiece> shortPieces;
  /// Three layers fit better than the two that are proposed, but no shot at each end of the line
  /// has picks of the one between, and nothing could be built of them.
  bool thirdNotBuildable = false;

  bool hasLayers() const { return chosen && grounds[*chosen].layers > 0; }
  /// "2 layers, misfit 0.9 ms; a third layer gains 0.1 ms", and how a gradient does.
  Message statement() const;
  /// Pieces of few picks and picks left out, a line each, for users; may be empty.
  std::vector<Message> remarks() const;
  /// Depth of the top of a layer (2 or 3) at x as the fitted waves have it, metres. None of other
  /// layers, and where the waves tell of none. Dips of a few degrees count as level.
  std::optional<double> depthAt(std::uint32_t layer, double x) const;
};

/// \param errors pickErrors(); \param before whether a shot is enabled: only those are fitted, all
/// are marked. \param layers so many layers, 1 to 3, whatever the criterion says; 0: as it says
SurveyProposal proposeFromSurvey(const std::vector<ShotArrivals>& shots,
                                 const std::vector<std::vector<double>>& errors,
                                 const std::vector<refractionDataStructure::layerStruct>& before,
                                 std::uint32_t layers = 0);

}  // namespace talvesk
