#pragma once

#include "tomo/TomographyRun.h"

#include <QString>

namespace talvesk {

// What the window says of an inversion that has ended.

/// The misfit of the section that is shown, in one line; empty without a pick.
QString sectionMisfitText(const SectionMisfit& misfit);

/// The box of results: the section that is shown first, then what the solver saw last.
QString inversionResultsText(const TomographyResult& result);

}  // namespace talvesk
