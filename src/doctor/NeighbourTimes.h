#pragma once

#include "doctor/SurveyView.h"

#include <cstddef>
#include <optional>

namespace talvesk::doctor {

/// What the neighbours of a trace say of its arrival.
struct NeighbourTime {
  double time = 0.0;     ///< seconds
  double scatter = 0.0;  ///< seconds: how much the neighbours differ about it
  double pace = 0.0;     ///< seconds per metre, at the trace
  double step = 0.0;     ///< seconds from one geophone to the next, at most
};

/// By the median of the lines through pairs of clear neighbours, one on either side and up to three
/// stations away. None beside the shot, where times have a corner, and where too few are clear.
/// Geophones without places of their own are taken for one metre apart.
std::optional<NeighbourTime> timeByNeighbours(const ShotView& shot, std::size_t trace);

}  // namespace talvesk::doctor
