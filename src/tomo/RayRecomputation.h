#pragma once

#include "base/Log.h"
#include "base/Status.h"

namespace talvesk {

class TomoDocument;
class TraceCrew;

/// Traces rays and times through the section that the document holds, so that what is told of it is
/// true of it: document.timesOfSection is set. The model is not corrected, coverage and hit counts
/// stay. Says nothing on the console. Fails without a grid that rays can be traced through.
/// \param threads searches at once, at least 1
Status traceSection(TomoDocument& document, unsigned threads, Log& log);
/// The same by threads that outlive it.
Status traceSection(TomoDocument& document, TraceCrew& crew, Log& log);

/// Brings back the rays and computed times of a document that was loaded with its inversion result:
/// the same pass, told on the console. Coverage and hit counts that the project had stay, else they
/// are 0. Fails without a grid that rays can be traced through; rays are missing where tracing
/// fails.
Status recomputeRays(TomoDocument& document, Log& log);

}  // namespace talvesk
