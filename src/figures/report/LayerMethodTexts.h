#pragma once

#include "figures/FigureNumbers.h"
#include "figures/report/ReportContent.h"
#include "refraction/methods/MethodResult.h"

#include <QLocale>
#include <QString>
#include <QStringList>
#include <cstdint>

namespace talvesk {

struct MethodComparison;

// Words and tables of layers by several methods, the same in a report and on the screen.

/// "Delay times", as users read it.
QString layerMethodName(LayerMethod method);

/// What a reader must know of the figures: what parentheses, errors and disagreement mean.
QStringList layerMethodNotes(const MethodComparison& comparison);

/// A row per geophone with depth and velocity by each method, and with bands what they disagree in.
/// \param locale of the numbers
ReportTable layerMethodTable(const MethodComparison& comparison, std::uint32_t layer,
                             const QLocale& locale = figureLocale());

}  // namespace talvesk
