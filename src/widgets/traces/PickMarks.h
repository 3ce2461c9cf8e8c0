#pragma once

#include "widgets/traces/WigglePainter.h"

#include <QPointF>
#include <map>

class QPainter;

namespace talvesk {

/// The measured time that is shown for a trace: the one that a drag is about to give it, else the
/// document's.
double shownPick(const ShotTraces& traces, const std::map<int, double>& draft, int trace);

/// An error that a drag is about to give.
struct DraftError {
  int trace = -1;
  double sigma = 0.0;  ///< seconds
};

/// Bars along the time axis over one standard deviation to either side of every pick whose error is
/// known. Those of good picks are drawn through with straight ends, those of doubtful ones are
/// dashed with arrows at their ends.
/// \param draft times that a drag is about to give, with the error of picks set by hand
void paintErrorBars(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                    const std::map<int, double>& draft, const DraftError& pulled);

/// Bars at the picks. \param draft times that a drag is about to give
void paintPicks(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                const std::map<int, double>& draft);

/// Lines through the cursor, the time at the left side and the channel above. \param time as drawn
void paintCrosshair(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                    int trace, double time);

/// A magnified window around a point (position, seconds as drawn) with its picks, beside the
/// cursor.
void paintMagnifier(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                    const std::map<int, double>& draft, const DraftError& pulled,
                    const QPointF& at);

}  // namespace talvesk
