#pragma once

#include "base/Status.h"
#include "figures/report/ReportContent.h"

#include <functional>

class QByteArray;

namespace talvesk {

/// A report as an OpenDocument text: named styles that its reader can change, headings that an
/// outline finds, page numbers, tables that repeat their headings, figures as pictures of 300 dots
/// per inch. Written here and not by Qt's document writer, which knows of none of these and writes
/// widths of columns that other programs do not understand.
/// \param goOn asked after every figure with the number done; false ends the work
Status reportAsOdt(const ReportContent& content, const std::function<bool(int done)>& goOn,
                   QByteArray& bytes);

}  // namespace talvesk
