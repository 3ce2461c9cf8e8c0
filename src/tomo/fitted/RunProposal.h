#pragma once

#include "tomo/fitted/LinePicks.h"

#include <optional>

namespace talvesk {

class TomoDocument;

/// Parameters of an inversion as its picks suggest them. Nothing takes them unasked.
struct RunProposal {
  double minVelocity = 0.0;  ///< m/s, well below the slowest of the picks
  double maxVelocity = 0.0;  ///< m/s, well above the fastest
  double depth = 0.0;        ///< metres below the surface that rays are expected to reach
  int smoothing = 1;         ///< radius, cells: the distance between shots and receivers
};

/// The least velocity is seven tenths of that of the slowest straight ways (5th percentile of
/// distance over time), the greatest 1.4 times the velocity at which the farthest waves come along,
/// both on whole tens and within what users may choose. The depth is that at which the
/// Wiechert-Herglotz integral lets the deepest ray turn, and a quarter more, at most half of the
/// longest offset; a third of the longest offset where the times do not tell. None without picks.
/// \param cellSize metres, positive
std::optional<RunProposal> proposeRun(const LinePicks& line, double cellSize);

/// The same of the picks that the grid of a document reaches; none without a grid or such picks.
std::optional<RunProposal> proposeRun(const TomoDocument& document);

}  // namespace talvesk
