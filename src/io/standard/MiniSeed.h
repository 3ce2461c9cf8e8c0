#pragma once

#include "base/Status.h"
#include "io/standard/StandardReading.h"

#include <cstddef>
#include <string_view>

namespace talvesk {

/// Yes where the file begins with a record of miniSEED 2 that tells its encoding (blockette 1000),
/// perhaps where it lacks that, no otherwise. Yes, too, for miniSEED 3, which is refused by name.
Likelihood likelihoodOfMiniSeed(std::string_view head, std::size_t fileSize);

/// Reads a miniSEED 2 file (SEED Reference Manual, version 2.4) as one shot: a trace for every
/// channel, in order of first appearance, that begins with the earliest of all. Samples are counts.
/// Gaps are zeros, up to as many as there are samples of the channel; where records overlap, the
/// later one counts. Positions and the time of the shot are not in such files.
///
/// Libmseed is not used: fuzzed in its version 2.19, it reads past the end of a damaged record
/// within seconds, in decoders that believe the number of samples of the header. What a file of
/// this program's users needs of the format is little.
///
/// Status 1: not of the format, no record with samples, or a promise of more data than the file can
/// hold; `reading` is as before.
Status readMiniSeedByStandard(std::string_view bytes, StandardReading& reading);

}  // namespace talvesk
