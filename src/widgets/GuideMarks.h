#pragma once

#include "widgets/traces/WigglePainter.h"

#include <QPointF>
#include <QRectF>

class QPainter;

namespace talvesk {

/// The guides that the options switch on, under the picks.
void paintGuides(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                 const TomoDocument& document);

/// Names the guides that are switched on, or says that there is nothing to show of them, in the
/// lower right corner of the plot.
void paintLegend(QPainter& painter, const WiggleScene& scene, const QRectF& plot,
                 const TomoDocument& document);

/// A line between two points (positions, true seconds) with what it reads.
void paintRuler(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                const QPointF& from, const QPointF& to);

}  // namespace talvesk
