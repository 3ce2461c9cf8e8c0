#pragma once

#include <QJsonObject>

namespace talvesk {

struct ReportOptions;
struct ReportSource;

/// What the live figures of a web page show, and their words in the language of the program. Every
/// number is one that the page may show: metres, milliseconds, m/s. Parts that the options leave
/// out are not in it. Its size is bounded whatever the survey: see docs/web-report.md.
QJsonObject webData(const ReportSource& source, const ReportOptions& options);

}  // namespace talvesk
