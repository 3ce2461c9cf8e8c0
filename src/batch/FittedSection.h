#pragma once

#include "batch/Diagnostics.h"
#include "batch/Options.h"

#include <iosfwd>

namespace talvesk {

class Log;
struct Survey;

/// `invert --method fitted`: the fit of a survey's section, with its progress shown. The survey has
/// a grid; it is as before where nothing came of it.
ReferencedRun fitSection(const InvertOptions& options, const Channels& channels, Survey& survey,
                         Log& log);

/// Says on standard error what the section does not explain.
void warnAboutFit(const FittedRunResult& fit);

/// Lines of the summary.
void summarizeFit(const ReferencedRun& run, std::ostream& out);

}  // namespace talvesk
