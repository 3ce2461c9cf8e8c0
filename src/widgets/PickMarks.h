#pragma once

#include "widgets/PickEdit.h"
#include "widgets/WigglePainter.h"

#include <QPointF>
#include <QRectF>
#include <map>
#include <optional>

class QPainter;
class QString;

namespace talvesk {

/// The measured time that is shown for a trace: the one that a drag is about to give it, else the
/// document's.
double shownPick(const ShotTraces& traces, const std::map<int, double>& draft, int trace);

/// Bars at the picks. \param draft times that a drag is about to give
void paintPicks(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                const std::map<int, double>& draft);

/// The guides that the options switch on, under the picks.
void paintGuides(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                 const TomoDocument& document);

/// A line between two points (positions, seconds) with what it reads.
void paintRuler(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                const QPointF& from, const QPointF& to);

/// Lines through the cursor, the time at the left side and the channel above.
void paintCrosshair(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                    int trace, double time);

/// A magnified window around a point (position, seconds) with its picks, beside the cursor.
void paintMagnifier(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                    const std::map<int, double>& draft, const QPointF& at);

/// Words on a plate, kept within bounds. \param corner upper left where it fits
void paintTag(QPainter& painter, const TraceColors& colors, const QPointF& corner,
              const QString& text, const QRectF& bounds);

}  // namespace talvesk
