#pragma once

#include "model/KeptRun.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace talvesk {

class TomoDocument;

/// The run whose section is that of the document, the latest of several.
std::optional<std::size_t> shownRun(const TomoDocument& document);

/// A number by which a run remembers where shots and geophones were. Never 0.
std::uint64_t fingerprintOfPositions(const TomoDocument& document);

/// What has become another of the survey since a run.
struct RunChanges {
  bool picks = false;
  bool positions = false;  ///< of shots or geophones
  bool ground = false;     ///< surface, or ends of the line: the run cannot be its section any more
};
RunChanges changesSince(const KeptRun& run, const TomoDocument& document);

}  // namespace talvesk
