#pragma once

#include "base/Status.h"
#include "io/standard/StandardReading.h"

#include <cstddef>
#include <string_view>

namespace talvesk {

/// Yes where the file begins as a file of SEG-2 does in either byte order, no otherwise.
Likelihood likelihoodOfSeg2(std::string_view head, std::size_t fileSize);

/// Reads a SEG-2 file of revision 1 by its standard (S. E. Pullan, "Recommended standard for
/// seismic
/// (/radar) data files in the personal computer environment", Geophysics 55(9), 1990): both byte
/// orders, data format codes 1 to 5, all samples.
///
/// Samples are what the standard calls true amplitudes, for one shot: the stored number, times
/// DESCALING_FACTOR (which makes it millivolts), divided by STACK. Where a trace has no such factor
/// its numbers stay as stored. DELAY counts from the shot, SKEW in whole samples. Positions are in
/// metres whatever UNITS are. Where SHOT_SEQUENCE_NUMBER or SOURCE_LOCATION differ between traces,
/// the file splits into shots.
///
/// Status 1: not of the format, another data format code, no trace, no sample interval, or a
/// promise of more data than the file can hold; `reading` is as before.
Status readSeg2ByStandard(std::string_view bytes, StandardReading& reading);

}  // namespace talvesk
