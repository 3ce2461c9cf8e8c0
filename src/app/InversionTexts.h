#pragma once

#include "tomo/TomographyRun.h"

#include <QString>
#include <string>
#include <vector>

namespace talvesk {

struct FittedRunResult;

// What the window says of an inversion that has ended.

/// The misfit of the section that is shown, in one line; empty without a pick.
QString sectionMisfitText(const TomoDocument& document);

/// The box of results: the section that is shown first, then what the solver saw last.
/// \param document with that section
QString inversionResultsText(const TomographyResult& result, const TomoDocument& document);

/// The box of results of a section that was fitted to the errors of its picks.
QString fitResultsText(const FittedRunResult& result, const TomoDocument& document);

/// The time shifts that were found, in milliseconds: "shot 1: 0.2, shot 2: -3.1"; empty without
/// any.
QString shiftsText(const std::vector<double>& shifts);

/// How a model is called to start from and be held to. \param key of References.h
QString referenceText(const std::string& key);

}  // namespace talvesk
