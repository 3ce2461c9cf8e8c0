#pragma once

#include "base/Status.h"
#include "figures/report/ReportContent.h"

#include <functional>

class QByteArray;

namespace talvesk {

/// A report as one web page with all that it needs inside: pictures, data, styles and scripts. It
/// loads nothing, and its security policy lets it load nothing. Figures with a live form have it
/// where scripts run, and the still one on paper and elsewhere. See docs/web-report.md.
/// Fails where the program was built without the chart library.
/// \param goOn asked after every figure with the number done; false ends the work
Status reportAsHtml(const ReportContent& content, const std::function<bool(int done)>& goOn,
                    QByteArray& bytes);

}  // namespace talvesk
