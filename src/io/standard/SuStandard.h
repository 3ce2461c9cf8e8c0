#pragma once

#include "base/Status.h"
#include "io/standard/SegyTraces.h"
#include "io/standard/StandardReading.h"

#include <string_view>

namespace talvesk {

/// Whether bytes are of an SU file, SEG-Y's traces without its headers: by kind, number of samples
/// and interval of the first trace, and whether a whole number of such traces fills the file.
/// \param head the first 8 KiB or less; \param fileSize of the whole file
Likelihood likelihoodOfSu(std::string_view head, std::size_t fileSize);

/// Reads an SU file, IEEE floats in either byte order: that of which the traces end where the file
/// does, and look alike. The fields of the trace headers mean what they mean in SEG-Y.
///
/// Status 1 with a reason, and `reading` as before: too short for a trace, no number of samples, or
/// more data promised than the file can hold. A file that is cut short is no failure; zeros stand
/// for what is missing.
Status readSuByStandard(std::string_view bytes, StandardReading& reading);

/// The traces of a file, none of them read yet. Fails as the other, but for what is promised.
Status findSuByStandard(std::string_view bytes, SegyTraces& found);

}  // namespace talvesk
