#pragma once

#include "batch/JsonText.h"
#include "batch/Options.h"

#include <iosfwd>

namespace talvesk {

class TomoDocument;

/// `invert --resolution`: what the survey resolves of the section that its document has got. Ctrl-C
/// ends it with the tests that are completed, and so it is skipped after an inversion that was
/// ended so.
ResolutionReport resolve(const InvertOptions& options, const TomoDocument& document);

/// Lines of the summary: correlations by depth, and the smallest size that is resolved.
void summarizeResolution(const ResolutionReport& report, std::ostream& out);

/// Draws the first of the tests, of which there is one.
Status drawResolution(const ResolutionReport& report, const TomoDocument& document,
                      const std::string& path);

Json resolutionJson(const ResolutionReport& report);

}  // namespace talvesk
