#pragma once

#include "base/Status.h"
#include "figures/report/ReportContent.h"
#include "figures/report/ReportOptions.h"

#include <functional>
#include <string>

namespace talvesk {

/// Told how far the work is, 0 to 1; false ends it.
using ReportProgress = std::function<bool(double done)>;

/// Puts a report together in the language of the program. Needs the QApplication and its thread.
Status buildReport(const ReportSource& source, const ReportOptions& options,
                   ReportContent& content);

/// ISO code of the language that reports are written in: "en".
QString reportLanguage();

enum class ReportFormat { kPdf, kOdt, kHtml };

/// The format that a file's suffix (".pdf", ".odt", ".html", any case) asks for. Any other suffix
/// fails with a message that names the three.
Status reportFormatOf(const std::string& path, ReportFormat& format);

/// Writes a report as PDF, its figures as shapes, as ODT, its figures as pictures, or as web page,
/// some of its figures live, and replaces
/// the file at `path` by it, whole or not at all. Work that `progress` ended fails with the code
/// kReportCancelled.
Status writeReport(const ReportContent& content, const std::string& path,
                   const ReportProgress& progress = {});

}  // namespace talvesk
