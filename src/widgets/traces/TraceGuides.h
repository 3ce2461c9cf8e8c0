#pragma once

#include "widgets/traces/ShotTraces.h"
#include "widgets/traces/TraceLayout.h"

#include <QPointF>
#include <optional>
#include <vector>

namespace talvesk {

/// What helps to judge picks, as positions (x of the points) and seconds (y).

/// The place of the shot among the traces; beyond the ends in steps of the spacing. None where the
/// positions of shot or geophones are not known.
std::optional<double> shotPlace(const ShotTraces& traces, const TraceLayout& layout);

/// Metres along the line at a position between or beyond traces; none where not known. Folded about
/// the shot, as if all traces stood beyond it.
std::optional<double> distanceAt(const ShotTraces& traces, const TraceLayout& layout,
                                 double position);

/// Points of true times as they are drawn: at reduced times where the traces are.
std::vector<QPointF> drawnPoints(const ShotTraces& traces, const TraceLayout& layout,
                                 std::vector<QPointF> points);

/// The true time of a point between or beyond traces as it is drawn.
QPointF truePoint(const ShotTraces& traces, const TraceLayout& layout, const QPointF& drawn);

/// The arrivals of the air wave, from left to right, with the shot's own place among them.
std::vector<QPointF> airWaveLine(const ShotTraces& traces, const TraceLayout& layout,
                                 double velocity);

/// Computed times from left to right, in pieces where they are missing.
std::vector<std::vector<QPointF>> computedLines(const ShotTraces& traces,
                                                const TraceLayout& layout);

/// The picks of another shot, as lines from left to right, in pieces where they are missing.
struct NeighbourCurve {
  int record = -1;  ///< from 0; -1: none
  double x = 0.0;   ///< where that shot stands, metres along the line
  std::vector<std::vector<QPointF>> lines;
};

/// Of the picked shot nearest to this one on the same string; of equally near ones the first.
NeighbourCurve nearestCurve(const TomoDocument& document, const ShotTraces& traces,
                            const TraceLayout& layout);

/// Where other shots stand among the traces, and after what time they saw this one: the curve of
/// this shot should pass there.
std::vector<QPointF> reciprocalTimes(const TomoDocument& document, const ShotTraces& traces,
                                     const TraceLayout& layout);

/// The picks of the other records at the geophones of this one: of the same string by channel, of
/// other strings where they stand at the same place.
std::vector<QPointF> otherPicks(const TomoDocument& document, const ShotTraces& traces,
                                const TraceLayout& layout);

/// Magnitude of the slope between two points (positions, seconds), m/s; none along one trace or
/// where positions are not known. Infinite for equal times.
std::optional<double> apparentVelocity(const ShotTraces& traces, const TraceLayout& layout,
                                       const QPointF& from, const QPointF& to);

}  // namespace talvesk
