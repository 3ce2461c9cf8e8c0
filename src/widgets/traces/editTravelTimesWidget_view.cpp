#include "model/TravelTime.h"
#include "widgets/traces/TraceAxes.h"
#include "widgets/traces/editTravelTimesWidget_state.h"

#include <QFontMetricsF>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kLegible = 7.0;       ///< least pixels per trace of the opening view
constexpr double kLeastSamples = 6.0;  ///< that a window is high
constexpr double kLeastTraces = 1.5;   ///< spacings that a window is wide
constexpr double kNarrowest = 1e-9;    ///< part of the whole that a window is wide and high
constexpr double kSlowest = 320.0;     ///< m/s: first breaks come before the sound in the air
constexpr int kScrollSteps = 100000;   ///< of a scroll bar, for the whole

std::vector<double> distances(const ShotTraces& traces) {
  std::vector<double> x;
  for (int i = 0; i < traces.count(); ++i) x.push_back(traces.receiverX(i));
  return x;
}

constexpr double kRoom = 1.25;  ///< about first breaks, as a part of their time

/// The velocity of first breaks that are not picked: that to the farthest pick, m/s. A shot that is
/// picked in part must not hide where the others are.
double expectedVelocity(const ShotTraces& traces) {
  double farthest = 0.0;
  double velocity = kSlowest;
  for (int i = 0; i < traces.count(); ++i) {
    const double away = std::fabs(traces.offset(i));
    if (!hasPick(traces.measured(i)) || !(away > farthest)) continue;
    farthest = away;
    velocity = std::max(away / (kRoom * traces.measured(i)), kSlowest);
  }
  return velocity;
}

/// Time as drawn until which first breaks are to be expected, seconds.
double firstBreakEnd(const ShotTraces& traces) {
  const double velocity = expectedVelocity(traces);
  const double begin = traces.drawnBegin();
  double end = begin;
  for (int i = 0; i < traces.count(); ++i) {
    const double pick = traces.measured(i);
    const double arrival = hasPick(pick) ? kRoom * pick : std::fabs(traces.offset(i)) / velocity;
    if (!std::isfinite(arrival)) continue;
    end = std::max(end, traces.drawnTime(i, std::min(arrival, traces.timeEnd())));
  }
  return end > begin ? end : begin + 0.25 * (traces.drawnEnd() - begin);
}

/// Time as drawn from which they are.
double firstBreakBegin(const ShotTraces& traces) {
  const double begin = traces.drawnBegin();
  if (!traces.mapping().isReduced()) return begin;
  double earliest = 0.0;
  bool any = false;
  for (int i = 0; i < traces.count(); ++i) {
    const double pick = traces.measured(i);
    if (!hasPick(pick)) continue;
    earliest = std::min(earliest, traces.drawnTime(i, pick / kRoom));
    any = true;
  }
  return any ? std::max(earliest, begin) : begin;
}

void setBar(QScrollBar& bar, double from, double to, double low, double high) {
  const QSignalBlocker quiet(bar);
  const double scale = kScrollSteps / (high - low);
  const int page = std::clamp(static_cast<int>(std::lround((to - from) * scale)), 1, kScrollSteps);
  bar.setRange(0, kScrollSteps - page);
  bar.setPageStep(page);
  bar.setSingleStep(std::max(page / 12, 1));
  bar.setValue(static_cast<int>(std::lround((from - low) * scale)));
}

}  // namespace

void editTravelTimesWidget::State::rebuildShot(bool newShot) {
  const int countBefore = layout.count();
  traces = ShotTraces(document, shot, options.showFiltered, options.manner);
  layout = traces.mapping().isByOffset() ? TraceLayout::byOffset(traces.mapping())
           : options.byDistance          ? TraceLayout::byDistance(distances(traces))
                                         : TraceLayout::byChannel(traces.count());
  hoverTrace = -1;
  if (newShot) ruler.reset();
  if (current >= layout.count()) current = -1;
  if (selection.last() >= layout.count()) selection = {};
  if (current < 0 && layout.count() > 0) current = layout.order().front();
  Viewport& viewport = gestures.viewport();
  const ViewWindow before = window();
  const ViewWindow whole = wholeWindow();
  const bool overlaps = before.left < whole.right && before.right > whole.left;
  const bool lost = !viewport.followsHome() &&
                    (!overlaps || (layout.isByChannel() && countBefore != layout.count()));
  viewport.setExtent(extent());
  // The times that were looked at stay, whatever becomes of the traces.
  if (lost) viewport.show({whole.left, whole.right, before.top, before.bottom}, Step::Silent);
  placePlot();
  tellAgain();
  emit widget.selectionChanged();
}

void editTravelTimesWidget::State::placePlot() {
  const QFontMetricsF metrics(widget.font());
  const QMarginsF margins = axisMargins(metrics);
  const int thick = down->sizeHint().width();
  const QRectF rest = QRectF(widget.rect()).adjusted(0.0, 0.0, -thick, -thick);
  plot = rest.marginsRemoved(margins);
  // Whole pixels keep the picture of the wiggles sharp.
  plot = QRectF(std::ceil(plot.left()), std::ceil(plot.top()),
                std::max(std::floor(plot.width()), 1.0), std::max(std::floor(plot.height()), 1.0));
  down->setGeometry(widget.width() - thick, static_cast<int>(plot.top()), thick,
                    static_cast<int>(plot.height()));
  across->setGeometry(static_cast<int>(plot.left()), widget.height() - thick,
                      static_cast<int>(plot.width()), thick);
  const bool any = layout.count() > 0;
  down->setVisible(any);
  across->setVisible(any);
  gestures.viewport().setExtent(extent());
  viewMoved();
}

void editTravelTimesWidget::State::viewMoved() {
  syncScrollBars();
  redrawAll();
  emit widget.viewChanged();
}

ViewWindow editTravelTimesWidget::State::wholeWindow() const {
  const double margin = layout.spacing();
  return {layout.first() - margin, layout.last() + margin, traces.drawnBegin(), traces.drawnEnd()};
}

ViewWindow editTravelTimesWidget::State::openingWindow() const {
  ViewWindow opening = wholeWindow();
  if (options.zoomIn) {
    opening.top = firstBreakBegin(traces);
    opening.bottom = firstBreakEnd(traces);
  }
  if (!options.showAllTraces) {
    const double legible = plot.width() / kLegible * layout.spacing();
    opening.right = std::min(opening.right, opening.left + legible);
  }
  return opening;
}

Viewport::Extent editTravelTimesWidget::State::extent() const {
  double interval = traces.timeEnd();
  for (int i = 0; i < traces.count(); ++i) interval = std::min(interval, traces.interval(i));
  // Far from zero, a window may not become narrower than numbers can tell apart.
  const ViewWindow whole = wholeWindow();
  return {whole, openingWindow(),
          std::max(kLeastTraces * layout.spacing(), kNarrowest * whole.width()),
          std::max(kLeastSamples * interval, kNarrowest * whole.height())};
}

void editTravelTimesWidget::State::reveal(int trace) {
  if (trace < 0 || trace >= layout.count()) return;
  const ViewWindow& window = gestures.viewport().window();
  ViewWindow wanted = window;
  const double margin = std::min(layout.spacing(), 0.25 * window.width());
  const double x = layout.position(trace);
  if (x - margin < window.left) wanted = moved(wanted, x - margin - window.left, 0.0);
  if (x + margin > window.right) wanted = moved(wanted, x + margin - window.right, 0.0);
  const double pick = traces.measured(trace);
  const double drawn = traces.drawnTime(trace, pick);
  if (hasPick(pick) && pick < traces.timeEnd() && (drawn < window.top || drawn > window.bottom)) {
    wanted = moved(wanted, 0.0, drawn - 0.5 * (window.top + window.bottom));
  }
  gestures.show(wanted, Step::Continuing);
}

void editTravelTimesWidget::State::syncScrollBars() {
  const ViewWindow& window = gestures.viewport().window();
  const ViewWindow& whole = gestures.viewport().whole();
  setBar(*across, window.left, window.right, whole.left, whole.right);
  setBar(*down, window.top, window.bottom, whole.top, whole.bottom);
}

void editTravelTimesWidget::State::scrolled(bool horizontal, int value) {
  const ViewWindow& whole = gestures.viewport().whole();
  const double part = static_cast<double>(value) / kScrollSteps;
  ViewWindow wanted = window();
  if (horizontal) {
    wanted = moved(wanted, whole.left + part * whole.width() - wanted.left, 0.0);
  } else {
    wanted = moved(wanted, 0.0, whole.top + part * whole.height() - wanted.top);
  }
  gestures.show(wanted, Step::Silent);
}

}  // namespace talvesk
