#pragma once

#include "model/Trace.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace talvesk::doctor {

/// Samples that a spike on all channels may last.
inline constexpr std::size_t kSpikeWidth = 4;

/// The first sample of a spike that most channels of a record have at once, which no wave does: the
/// switch of the hammer, fed across between the channels. Around it nothing of the kind happens.
std::optional<std::size_t> commonSpike(const TraceSet& traces);

/// The samples of a trace with a straight line in place of the spike.
std::vector<double> withoutSpike(std::vector<double> samples, std::size_t spike);

}  // namespace talvesk::doctor
