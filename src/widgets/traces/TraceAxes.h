#pragma once

#include "widgets/traces/ShotTraces.h"
#include "widgets/traces/TraceColors.h"
#include "widgets/traces/TraceLayout.h"
#include "widgets/traces/TraceMapping.h"

#include <QMarginsF>

class QFontMetricsF;
class QPainter;

namespace talvesk {

/// Room that the axes take around the traces: two rows above, times at the left.
QMarginsF axisMargins(const QFontMetricsF& metrics);

/// Faint lines at the times that carry numbers, under the wiggles. The painter's origin is the
/// upper left corner of the plot.
void paintTimeLines(QPainter& painter, const TraceMapping& mapping, const TraceColors& colors);

/// Channels and distances above the plot, milliseconds at its left, its frame, and the place of the
/// shot. They stand at the sides of the plot whatever part of the shot is seen.
void paintAxes(QPainter& painter, const TraceMapping& mapping, const ShotTraces& traces,
               const TraceLayout& layout, const QColor& text);

}  // namespace talvesk
