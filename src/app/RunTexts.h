#pragma once

#include <QString>

namespace talvesk {

class TomoDocument;
struct KeptRun;

// What the window says of an inversion run.

QString runTitle(const KeptRun& run);  ///< its name, or its number
QString runMethod(const KeptRun& run);
/// A figure with three digits, by the user's locale; a dash for one that is not known.
QString runFigure(double value, bool known);
/// When it ended, by the user's clock and locale.
QString runTime(const KeptRun& run);
/// How it was run, in one line.
QString runSettings(const KeptRun& run);
/// By what errors of picks its chi-square is: "0.5 ms or 3 %".
QString runErrors(const KeptRun& run);
/// What the survey has got since that the run did not know; empty when nothing.
QString runRemarks(const KeptRun& run, const TomoDocument& document);

}  // namespace talvesk
