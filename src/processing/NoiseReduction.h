#pragma once

#include "processing/ShotFilters.h"

namespace talvesk {

/// The "Hushel" noise reduction in one step and without settings: a band-pass from 14 Hz to 85 Hz
/// of two first-order Butterworth filters, low-pass first, of the raw samples into the filtered
/// copies. Each trace has the highest frequency of its own spectrum, which follows from its length
/// and sample interval; a trace sampled too slowly for 85 Hz, or too short to have a frequency, is
/// left alone and reported. Running it again changes nothing: it starts from the raw samples.
FilterOutcome reduceNoise(TomoDocument& document, const std::vector<std::int32_t>& shots);

}  // namespace talvesk
