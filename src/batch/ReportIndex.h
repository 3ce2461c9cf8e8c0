#pragma once

#include "batch/Options.h"

namespace talvesk {

/// `export --report-index`: a web page of every project, and one on all of them. A project that
/// fails stands there with the reason and does not stop the others.
/// \return the exit code
int writeReportIndex(const ExportOptions& options);

}  // namespace talvesk
