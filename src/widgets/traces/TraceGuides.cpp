#include "widgets/traces/TraceGuides.h"

#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "processing/PickCurve.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

/// Geophones of two strings that stand this near, in spacings, are at one place.
constexpr double kSamePlace = 0.02;

/// A trace's distance with its position, ascending in distance.
using Placed = std::vector<std::pair<double, double>>;

/// Empty where a distance is not known or all are the same.
Placed placedByDistance(const ShotTraces& traces, const TraceLayout& layout) {
  Placed placed;
  for (int i = 0; i < layout.count(); ++i) {
    const double x = traces.receiverX(i);
    if (!std::isfinite(x)) return {};
    placed.emplace_back(x, layout.position(i));
  }
  std::sort(placed.begin(), placed.end());
  if (placed.size() < 2 || !(placed.back().first > placed.front().first)) return {};
  return placed;
}

using Place = std::pair<double, double>;

double onLine(const Place& a, const Place& b, double x) {
  if (b.first == a.first) return a.second;
  return a.second + (b.second - a.second) * ((x - a.first) / (b.first - a.first));
}

/// Linear between points; beyond them on with the mean slope of all.
double interpolate(const Placed& points, double x) {
  const Place& front = points.front();
  const Place& back = points.back();
  if (x <= front.first)
    return front.second + onLine(front, back, x) - onLine(front, back, front.first);
  if (x >= back.first)
    return back.second + onLine(front, back, x) - onLine(front, back, back.first);
  const auto right = std::lower_bound(points.begin(), points.end(), Place(x, -HUGE_VAL));
  return onLine(*(right - 1), *right, x);
}

/// Where a distance along the line lies in the layout.
std::optional<double> positionOf(double x, const ShotTraces& traces, const TraceLayout& layout) {
  if (!std::isfinite(x)) return std::nullopt;
  if (layout.isByDistance()) return x;
  if (layout.isByOffset()) return traces.mapping().placeOf(x - traces.shotX());
  const Placed placed = placedByDistance(traces, layout);
  if (placed.empty()) return std::nullopt;
  return interpolate(placed, x);
}

/// Metres along the line at positions of a layout.
class DistanceScale {
 public:
  DistanceScale(const ShotTraces& traces, const TraceLayout& layout) : mLayout(layout) {
    if (layout.isByOffset()) mShot = traces.shotX();
    if (!layout.isByChannel()) return;
    mPlaced = placedByDistance(traces, layout);
    for (auto& [x, where] : mPlaced) std::swap(x, where);
    std::sort(mPlaced.begin(), mPlaced.end());
  }

  std::optional<double> at(double position) const {
    if (!mLayout.isByChannel()) return mShot + position;
    if (mPlaced.empty()) return std::nullopt;
    return interpolate(mPlaced, position);
  }

 private:
  const TraceLayout& mLayout;
  double mShot = 0.0;  ///< where positions count from
  Placed mPlaced;
};

/// What reduced time takes from times at positions.
class ShiftScale {
 public:
  ShiftScale(const ShotTraces& traces, const TraceLayout& layout)
      : mTraces(traces), mLayout(layout), mDistances(traces, layout) {}

  double at(double position) const {
    const std::optional<double> x = mDistances.at(position);
    if (x) return mTraces.mapping().shiftAt(*x - mTraces.shotX());
    const int trace = mLayout.nearest(position);
    return trace < 0 ? 0.0 : mTraces.mapping().shift(static_cast<std::size_t>(trace));
  }

 private:
  const ShotTraces& mTraces;
  const TraceLayout& mLayout;
  DistanceScale mDistances;
};

/// The times of traces from left to right, in pieces between those that have none. \param like
/// a trace of their side of the shot
template <typename TimeOf, typename IsTime>
void addLines(const TraceLayout& layout, int like, TimeOf timeOf, IsTime isTime,
              std::vector<std::vector<QPointF>>& lines) {
  bool open = false;
  for (const int trace : layout.order()) {
    if (!layout.sameSide(trace, like)) continue;
    const double time = timeOf(trace);
    if (!isTime(time) || !std::isfinite(time)) {
      open = false;
      continue;
    }
    if (!open) lines.emplace_back();
    open = true;
    lines.back().emplace_back(layout.position(trace), time);
  }
}

/// The same of all traces; of either side by itself, where one is folded over the other.
template <typename TimeOf, typename IsTime>
std::vector<std::vector<QPointF>> linesThrough(const TraceLayout& layout, TimeOf timeOf,
                                               IsTime isTime) {
  std::vector<std::vector<QPointF>> lines;
  if (layout.count() == 0) return lines;
  const int first = layout.order().front();
  addLines(layout, first, timeOf, isTime, lines);
  const auto other = std::find_if(layout.order().begin(), layout.order().end(),
                                  [&](int trace) { return !layout.sameSide(trace, first); });
  if (other != layout.order().end()) addLines(layout, *other, timeOf, isTime, lines);
  return lines;
}

/// The trace at a place of the line, or -1.
int traceNear(const std::vector<std::pair<double, int>>& places, double x, double tolerance) {
  const auto right =
      std::lower_bound(places.begin(), places.end(), std::make_pair(x - tolerance, -1));
  return right != places.end() && right->first <= x + tolerance ? right->second : -1;
}

}  // namespace

std::optional<double> shotPlace(const ShotTraces& traces, const TraceLayout& layout) {
  return positionOf(traces.shotX(), traces, layout);
}

std::optional<double> distanceAt(const ShotTraces& traces, const TraceLayout& layout,
                                 double position) {
  return DistanceScale(traces, layout).at(position);
}

std::vector<QPointF> drawnPoints(const ShotTraces& traces, const TraceLayout& layout,
                                 std::vector<QPointF> points) {
  if (!traces.mapping().isReduced()) return points;
  const ShiftScale shifts(traces, layout);
  for (QPointF& point : points) point.ry() -= shifts.at(point.x());
  return points;
}

QPointF truePoint(const ShotTraces& traces, const TraceLayout& layout, const QPointF& drawn) {
  if (!traces.mapping().isReduced()) return drawn;
  return {drawn.x(), drawn.y() + ShiftScale(traces, layout).at(drawn.x())};
}

std::vector<QPointF> airWaveLine(const ShotTraces& traces, const TraceLayout& layout,
                                 double velocity) {
  std::vector<QPointF> line;
  const std::optional<double> shot = shotPlace(traces, layout);
  if (!shot || !(velocity > 0.0)) return line;
  for (const int trace : layout.order()) {
    line.emplace_back(layout.position(trace), std::fabs(traces.offset(trace)) / velocity);
  }
  const bool folded = layout.offsetOrder() == OffsetOrder::kAbsolute;  // the shot stands at its end
  if ((folded || *shot > layout.first()) && *shot < layout.last()) {
    const auto right = std::lower_bound(line.begin(), line.end(), *shot,
                                        [](const QPointF& p, double x) { return p.x() < x; });
    line.insert(right, QPointF(*shot, 0.0));
  }
  return line;
}

std::vector<std::vector<QPointF>> computedLines(const ShotTraces& traces,
                                                const TraceLayout& layout) {
  return linesThrough(
      layout, [&](int trace) { return traces.computed(trace); },
      [](double time) { return time >= 0.0; });
}

NeighbourCurve nearestCurve(const TomoDocument& document, const ShotTraces& traces,
                            const TraceLayout& layout) {
  NeighbourCurve curve;
  const TravelTime* own = traces.times();
  if (own == nullptr) return curve;
  double nearest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    const double away = std::fabs(record.shotPos2d.x - own->shotPos2d.x);
    const bool picked = std::any_of(record.ttMisurati.begin(), record.ttMisurati.end(), hasPick);
    if (&record == own || record.indexStesa != own->indexStesa || !picked || !(away < nearest)) {
      continue;
    }
    nearest = away;
    curve.record = static_cast<int>(i);
    curve.x = record.shotPos2d.x;
  }
  if (curve.record < 0) return curve;
  const std::vector<double>& times =
      document.ttArray[static_cast<std::size_t>(curve.record)].ttMisurati;
  curve.lines = linesThrough(
      layout,
      [&](int trace) {
        const auto i = static_cast<std::size_t>(trace);
        return i < times.size() ? times[i] : kNoTime;
      },
      hasPick);
  return curve;
}

std::vector<QPointF> reciprocalTimes(const TomoDocument& document, const ShotTraces& traces,
                                     const TraceLayout& layout) {
  std::vector<QPointF> times;
  const TravelTime* own = traces.times();
  if (own == nullptr) return times;
  const double beyond = 0.5 * layout.spacing();
  for (const TravelTime& record : document.ttArray) {
    if (&record == own) continue;
    const std::optional<double> position = positionOf(record.shotPos2d.x, traces, layout);
    if (!position || *position < layout.first() - beyond || *position > layout.last() + beyond) {
      continue;
    }
    const Reciprocity back({pickCurveOf(document, record).arrivals});
    const double time = back.timeBack(own->shotPos2d.x, record.shotPos2d.x);
    if (std::isfinite(time)) times.emplace_back(*position, time);
  }
  return times;
}

std::vector<QPointF> otherPicks(const TomoDocument& document, const ShotTraces& traces,
                                const TraceLayout& layout) {
  std::vector<QPointF> picks;
  const TravelTime* own = traces.times();
  if (own == nullptr) return picks;
  std::vector<std::pair<double, int>> places;
  for (int i = 0; i < layout.count(); ++i) {
    if (std::isfinite(traces.receiverX(i))) places.emplace_back(traces.receiverX(i), i);
  }
  std::sort(places.begin(), places.end());
  const double range = places.empty() ? 0.0 : places.back().first - places.front().first;
  const double tolerance = kSamePlace * range / std::max<double>(1.0, double(places.size()) - 1.0);
  for (const TravelTime& record : document.ttArray) {
    if (&record == own) continue;
    const bool sameString = record.indexStesa == own->indexStesa;
    const auto& strings = document.line->goephonesStringSet;
    const auto string = static_cast<std::size_t>(record.indexStesa);
    const bool known = record.indexStesa >= 0 && string < strings.size();
    for (std::size_t i = 0; i < record.ttMisurati.size(); ++i) {
      const double time = record.ttMisurati[i];
      if (!hasPick(time) || !std::isfinite(time)) continue;
      int trace = -1;
      if (sameString) {
        trace = i < static_cast<std::size_t>(layout.count()) ? static_cast<int>(i) : -1;
      } else if (known && i < strings[string].size()) {
        trace = traceNear(places, strings[string][i].x, tolerance);
      }
      if (trace >= 0) picks.emplace_back(layout.position(trace), time);
    }
  }
  return picks;
}

std::optional<double> apparentVelocity(const ShotTraces& traces, const TraceLayout& layout,
                                       const QPointF& from, const QPointF& to) {
  const std::optional<double> a = distanceAt(traces, layout, from.x());
  const std::optional<double> b = distanceAt(traces, layout, to.x());
  if (!a || !b || *a == *b) return std::nullopt;
  return std::fabs((*b - *a) / (to.y() - from.y()));
}

}  // namespace talvesk
