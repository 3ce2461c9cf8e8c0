#include "figures/TravelTimeCurves.h"

#include "figures/DrawableValues.h"
#include "model/TomoDocument.h"

#include <algorithm>

namespace talvesk {
namespace {

constexpr double kBarRoom = 0.1;  ///< of the time of a pick, for its error bar

/// Geophones with a known position, by ascending x.
std::vector<std::size_t> alongTheLine(const std::vector<Point2D>& positions) {
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < positions.size(); ++i) {
    if (isPosition(positions[i].x)) order.push_back(i);
  }
  std::stable_sort(order.begin(), order.end(), [&positions](std::size_t a, std::size_t b) {
    return positions[a].x < positions[b].x;
  });
  return order;
}

/// Lines through the times of geophones that follow each other; one without a time ends a line.
std::vector<std::vector<Point2D>> linesThrough(const std::vector<double>& times,
                                               const std::vector<std::size_t>& order,
                                               const std::vector<Point2D>& positions) {
  std::vector<std::vector<Point2D>> lines(1);
  for (const std::size_t i : order) {
    if (i < times.size() && isDrawableTime(times[i])) {
      lines.back().push_back({positions[i].x, 1e3 * times[i]});
    } else if (!lines.back().empty()) {
      lines.emplace_back();
    }
  }
  if (lines.back().empty()) lines.pop_back();
  return lines;
}

TravelTimeCurve curveOf(const TomoDocument& document, std::size_t index, bool withComputed,
                        const std::vector<std::vector<double>>& layered) {
  const TravelTime& record = document.ttArray[index];
  const std::vector<Point2D> positions = document.receiversOf(record);
  const std::vector<std::size_t> order = alongTheLine(positions);
  TravelTimeCurve curve;
  if (!order.empty()) {
    curve.firstReceiver = positions[order.front()].x;
    curve.lastReceiver = positions[order.back()].x;
  }
  curve.record = index;
  for (const std::size_t i : order) {
    if (i >= record.ttMisurati.size() || !isDrawableTime(record.ttMisurati[i])) continue;
    curve.picks.push_back(
        {i, {positions[i].x, 1e3 * record.ttMisurati[i]}, 1e3 * record.errorOf(i)});
  }
  curve.measuredLines = linesThrough(record.ttMisurati, order, positions);
  if (withComputed) curve.computedLines = linesThrough(record.ttCalcolati, order, positions);
  if (index < layered.size()) curve.layeredLines = linesThrough(layered[index], order, positions);
  curve.hasShot = isPosition(record.shotPos2d.x);
  if (curve.hasShot) curve.shot = {record.shotPos2d.x, 0.0};
  return curve;
}

void takeIn(TravelTimeCurves& result, const Point2D& point, bool first) {
  result.low = first ? point.x : std::min(result.low, point.x);
  result.high = first ? point.x : std::max(result.high, point.x);
  result.latestMs = std::max(result.latestMs, point.z);
}

void takeInTimes(TravelTimeCurves& result, const TravelTimeCurve& curve) {
  for (const auto& pick : curve.picks) {
    takeIn(result, pick.point, result.picks + result.computedTimes == 0);
    // Of a very doubtful pick the bar is cut, lest the curves become flat.
    const double bar = std::min(pick.errorMs, kBarRoom * pick.point.z);
    result.latestMs = std::max(result.latestMs, pick.point.z + bar);
    ++result.picks;
    if (pick.errorMs > 0.0) ++result.errors;
  }
  const auto takeInLines = [&](const std::vector<std::vector<Point2D>>& lines, std::size_t& count) {
    for (const auto& line : lines) {
      for (const Point2D& p : line) {
        takeIn(result, p, result.picks + result.computedTimes + result.layeredTimes == 0);
        ++count;
      }
    }
  };
  takeInLines(curve.computedLines, result.computedTimes);
  takeInLines(curve.layeredLines, result.layeredTimes);
  // While the first picks are set the figure keeps the width of the line.
  takeIn(result, {curve.firstReceiver, 0.0}, false);
  takeIn(result, {curve.lastReceiver, 0.0}, false);
}

/// A shot further off than the receivers' whole line is long would take the room of the curves.
void takeInShots(TravelTimeCurves& result) {
  const double reach = std::max(result.high - result.low, 1.0);
  const double low = result.low - reach;
  const double high = result.high + reach;
  for (TravelTimeCurve& curve : result.curves) {
    curve.hasShot = curve.hasShot && curve.shot.x >= low && curve.shot.x <= high;
    if (curve.hasShot) takeIn(result, curve.shot, false);
  }
}

}  // namespace

TravelTimeCurves travelTimeCurves(const TomoDocument& document, bool computed,
                                  const std::vector<std::vector<double>>& layered) {
  TravelTimeCurves result;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    TravelTimeCurve curve = curveOf(document, i, computed, layered);
    if (curve.picks.empty() && curve.computedLines.empty() && curve.layeredLines.empty()) continue;
    takeInTimes(result, curve);
    result.curves.push_back(std::move(curve));
  }
  takeInShots(result);
  return result;
}

}  // namespace talvesk
