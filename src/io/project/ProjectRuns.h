#pragma once

#include "base/Message.h"
#include "model/KeptRuns.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A run as a project stores it.
struct StoredRun {
  KeptRun run;                     ///< without surface and cells
  std::vector<FitRecord> fits;     ///< one, or none
  std::vector<double> surfaceX;    ///< grid x, metres
  std::vector<double> surfaceZ;    ///< elevation, metres
  std::vector<double> velocities;  ///< m/s per cell, as those of the grid are stored
};

struct RunsMember {
  std::vector<StoredRun> runs;  ///< oldest first
};

/// None without a run.
std::optional<RunsMember> runsOf(const TomoDocument& document);

/// Gives a document the runs that its project kept. One that cannot have been is left out, and so
/// are those beyond the limits of the list, with a line in `repairs` for each. Where the section of
/// the document is that of a run that was fitted, its inversion is known to have been a fit again.
void installRuns(RunsMember member, TomoDocument& document, std::vector<Message>& repairs);

}  // namespace talvesk
