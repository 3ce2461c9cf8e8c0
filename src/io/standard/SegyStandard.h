#pragma once

#include "base/Status.h"
#include "io/standard/SegyTraces.h"
#include "io/standard/StandardReading.h"

#include <string_view>

namespace talvesk {

// No library reads these files here. libsegyio (1.8, as distributions have it) opens files by their
// path only, not bytes in memory; takes number and place of traces from its caller, checks neither
// against the size of the file, and knows traces of one length in the format codes 1, 2, 3, 5
// and 8. What has to be decided about real files, which of their headers to believe, would remain.

/// Whether bytes are of a SEG-Y file: a textual header, or zeros in its place, and a binary header
/// that makes sense in one byte order.
/// \param head the first 8 KiB or less; \param fileSize of the whole file
Likelihood likelihoodOfSegy(std::string_view head, std::size_t fileSize);

/// Reads SEG-Y of revisions 0, 1 and 2, in either byte order, with all format codes of the standard
/// but 4. Traces are found by findSegyTraces(), placed by segyPositions(), split by splitShots().
///
/// Status 1 with a reason, and `reading` as before: too short for a trace, a format code that is
/// not read, bytes swapped in pairs, no number of samples, or more data promised than the file can
/// hold. A file that is cut short is no failure; zeros stand for what is missing.
Status readSegyByStandard(std::string_view bytes, StandardReading& reading);

/// The traces of a file, none of them read yet. Fails as the other, but for what is promised.
Status findSegyByStandard(std::string_view bytes, SegyTraces& found);

}  // namespace talvesk
