#pragma once

#include "base/Status.h"
#include "batch/Options.h"
#include "figures/report/Report.h"

#include <string>

namespace talvesk {

/// Writes a report in the format that the path's suffix names. Needs prepareDrawing().
/// \param section how the section is drawn
Status writeReportFile(const ReportSource& source, const ReportFields& fields,
                       const SectionFigureOptions& section, const std::string& path);

}  // namespace talvesk
