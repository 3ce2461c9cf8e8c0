#pragma once

#include "batch/Diagnostics.h"
#include "batch/Options.h"

#include <iosfwd>

namespace talvesk {

class Log;
class TomoDocument;
struct Survey;

/// `invert --constraints`: what is known of the ground becomes part of the survey. Says on standard
/// error when a survey knows of some that its fit will not be held to.
Status takeKnownGround(const InvertOptions& options, Survey& survey);

/// `invert --method fitted`: the fit of a survey's section, with its progress shown. The survey has
/// a grid; it is as before where nothing came of it.
ReferencedRun fitSection(const InvertOptions& options, const Channels& channels, Survey& survey,
                         Log& log);

/// Says on standard error where the certainty of a document is not that of its section.
void warnAboutCertainty(const TomoDocument& document);

/// `invert --certainty`: how sure the fitted section of a survey is, with its progress shown. What
/// an interrupt leaves is kept, and said on standard error.
Status findCertainty(const InvertOptions& options, const Channels& channels, Survey& survey);

/// Says on standard error where a fit has not come to its target.
void warnAboutFit(const FittedRunResult& fit);
/// The same of picks that the section of a survey does not explain, and of errors that are raised.
void warnAboutPicks(const TomoDocument& document);

/// Lines of the summary.
void summarizeFit(const ReferencedRun& run, std::ostream& out);
void summarizeCertainty(const Certainty& certainty, std::ostream& out);

}  // namespace talvesk
