#pragma once

#include "figures/report/ReportContent.h"

class QTextBlock;
class QTextDocument;

namespace talvesk {

/// Pixels per inch that pages of reports are laid out in: fine enough for hairlines in print.
inline constexpr double kReportDpi = 1200.0;

/// Puts a report into an empty document that has its page size and a device of kReportDpi. The
/// content must outlive the document, which paints its figures.
void fillReport(const ReportContent& content, QTextDocument& document);

/// Page that a block begins on, from 0.
int pageOf(const QTextDocument& document, const QTextBlock& block);

/// Begins a new page before every heading and caption that would stand at the foot of one while
/// what it belongs to follows on the next.
void keepTogether(QTextDocument& document);

}  // namespace talvesk
