#include "widgets/LayerCurvesPlot.h"

#include "figures/RefractionItems.h"
#include "figures/ShownLength.h"
#include "model/TravelTime.h"
#include "refraction/LinearFit.h"

#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include <qwt_plot.h>
#include <qwt_plot_item.h>
#include <qwt_scale_map.h>

namespace talvesk {
namespace {

constexpr double kSymbol = 3.2;  ///< radius of a pick, pixels
constexpr double kFaintSymbol = 2.2;
constexpr double kRing = 6.0;
constexpr double kTick = 3.0;  ///< half a computed time

}  // namespace

void LayerCurvesPlot::setSurvey(std::vector<ShotArrivals> shots) {
  mShots = std::move(shots);
  mCurrent = kAllShots;
  followSurvey();
}

void LayerCurvesPlot::setMarks(std::vector<refractionDataStructure::layerStruct> marks) {
  mMarks = std::move(marks);
  repaintPlot();
  read(mSelection);
}

void LayerCurvesPlot::followSurvey() {
  mSelection.clear();
  mHovered.reset();
  mComputed.clear();
  mOrder.assign(mShots.size(), {});
  for (std::size_t shot = 0; shot < mShots.size(); ++shot) {
    const ShotArrivals& arrivals = mShots[shot];
    auto& order = mOrder[shot];
    for (std::uint32_t i = 0; i < arrivals.times.size(); ++i) {
      if (hasPick(arrivals.times[i])) order.push_back(i);
    }
    std::stable_sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
      return arrivals.receivers[a].x < arrivals.receivers[b].x;
    });
  }
  showWhole();
}

/// Picks, computed times where they are shown, and shots.
void LayerCurvesPlot::showWhole() {
  QRectF whole;
  bool empty = true;
  double latest = 0.0;
  const auto take = [&](double x) {
    if (!std::isfinite(x)) return;
    if (empty) whole = QRectF(x, 0.0, 0.0, 0.0);
    whole.setLeft(std::min(whole.left(), x));
    whole.setRight(std::max(whole.right(), x));
    empty = false;
  };
  for (std::size_t shot = 0; shot < mShots.size(); ++shot) {
    const ShotArrivals& arrivals = mShots[shot];
    for (const std::uint32_t i : mOrder[shot]) {
      take(arrivals.receivers[i].x);
      latest = std::max(latest, 1e3 * arrivals.times[i]);
      const auto computed = computedTime({static_cast<std::uint32_t>(shot), i});
      if (computed && mComputedShown) latest = std::max(latest, 1e3 * *computed);
    }
    if (!mOrder[shot].empty()) take(arrivals.shot.x);
  }
  whole.setBottom(latest);
  setWhole(whole, empty);
}

void LayerCurvesPlot::setComputed(std::vector<std::vector<std::vector<double>>> waves) {
  mComputed = std::move(waves);
  showWhole();
}

void LayerCurvesPlot::setComputedShown(bool shown) {
  mComputedShown = shown;
  showWhole();
}

std::optional<double> LayerCurvesPlot::computedTime(const TraceRef& pick) const {
  if (pick.shot >= mMarks.size() || pick.shot >= mComputed.size()) return std::nullopt;
  const auto& waves = mComputed[pick.shot];
  const std::uint32_t layer = layerOf(mMarks[pick.shot], pick.trace);
  if (layer < 1 || layer > waves.size() || pick.trace >= waves[layer - 1].size()) {
    return std::nullopt;
  }
  const double time = waves[layer - 1][pick.trace];
  return std::isfinite(time) ? std::make_optional(time) : std::nullopt;
}

void LayerCurvesPlot::setCurrentShot(int shot) {
  const int next = shot < 0 || static_cast<std::size_t>(shot) >= mShots.size() ? kAllShots : shot;
  if (next == mCurrent) return;
  mCurrent = next;
  select({});
  repaintPlot();
}

void LayerCurvesPlot::setLayer(int layer) {
  mLayer = static_cast<std::uint32_t>(
      std::clamp(layer, 0, static_cast<int>(refractionDataStructure::kLastLayer)));
  read(mSelection);
}

void LayerCurvesPlot::setShownLayer(int layer) {
  mShownLayer = layer;
  repaintPlot();
}

void LayerCurvesPlot::setEditable(bool editable) {
  gestures().giveUpDrag();
  mEditable = editable;
  repaintLive();
}

bool LayerCurvesPlot::isShown(std::uint32_t shot) const {
  return mCurrent == kAllShots || static_cast<int>(shot) == mCurrent;
}

bool LayerCurvesPlot::hasPickAt(const TraceRef& at) const {
  return at.shot < mShots.size() && at.trace < mShots[at.shot].times.size() &&
         hasPick(mShots[at.shot].times[at.trace]);
}

std::optional<QPointF> LayerCurvesPlot::pointOf(const TraceRef& pick) const {
  if (!hasPickAt(pick)) return std::nullopt;
  const ShotArrivals& shot = mShots[pick.shot];
  return toCanvas({shot.receivers[pick.trace].x, 1e3 * shot.times[pick.trace]});
}

void LayerCurvesPlot::select(std::vector<TraceRef> picks) {
  mSelection = std::move(picks);
  repaintLive();
  read(mSelection);
}

void LayerCurvesPlot::mark(std::vector<TraceRef> picks) {
  if (picks.empty()) return;
  select(picks);
  emit marked(picks, static_cast<int>(mLayer));
}

void LayerCurvesPlot::read(const std::vector<TraceRef>& picks) {
  const auto reading = readBranch(mShots, picks, mLayer, mMarks);
  emit branchRead(reading ? &*reading : nullptr);
}

QColor LayerCurvesPlot::shown(std::uint32_t layer) const {
  return layerColor(layer, palette().color(QPalette::Base));
}

QColor LayerCurvesPlot::colorOf(std::uint32_t shot, std::uint32_t trace, bool strong) const {
  const std::uint32_t layer = shot < mMarks.size() ? layerOf(mMarks[shot], trace) : 0;
  const bool grey = mShownLayer != kAllLayers && static_cast<int>(layer) != mShownLayer;
  QColor color = shown(grey ? refractionDataStructure::kNoLayer : layer);
  const bool enabled = shot >= mMarks.size() || mMarks[shot].enabled;
  color.setAlphaF(!strong ? 0.3 : grey || !enabled ? 0.4 : 1.0);
  return color;
}

void LayerCurvesPlot::paintCurves(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing);
  for (std::uint32_t shot = 0; shot < mShots.size(); ++shot) {
    if (!isShown(shot)) paintShot(painter, shot, false);
  }
  for (std::uint32_t shot = 0; shot < mShots.size(); ++shot) {
    if (!isShown(shot)) continue;
    paintShot(painter, shot, true);
    if (mCurrent != kAllShots) paintBranches(painter, shot);
    if (mComputedShown) paintComputed(painter, shot);
  }
}

void LayerCurvesPlot::paintShot(QPainter& painter, std::uint32_t shot, bool strong) const {
  const ShotArrivals& arrivals = mShots[shot];
  QPolygonF line;
  for (const std::uint32_t i : mOrder[shot]) {
    line.append(toCanvas({arrivals.receivers[i].x, 1e3 * arrivals.times[i]}));
  }
  QColor grey = shown(refractionDataStructure::kNoLayer);
  grey.setAlphaF(strong ? 0.8 : 0.25);
  painter.setPen(QPen(grey, 1.0));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(line);
  painter.setPen(Qt::NoPen);
  const double radius = strong ? kSymbol : kFaintSymbol;
  for (std::size_t i = 0; i < mOrder[shot].size(); ++i) {
    painter.setBrush(colorOf(shot, mOrder[shot][i], strong));
    painter.drawEllipse(line[static_cast<int>(i)], radius, radius);
  }
  if (!strong || line.isEmpty()) return;
  // The shot stands at time 0.
  const QPointF foot = toCanvas({arrivals.shot.x, 0.0});
  painter.setBrush(QColor(208, 32, 32));
  painter.drawPolygon(QPolygonF({foot, foot + QPointF(-4.5, 8.0), foot + QPointF(4.5, 8.0)}));
}

/// The straight lines of the branches, from end to end.
void LayerCurvesPlot::paintBranches(QPainter& painter, std::uint32_t shot) const {
  if (shot >= mMarks.size()) return;
  for (std::uint32_t layer = 1; layer <= refractionDataStructure::kLastLayer; ++layer) {
    for (const Side side : {Side::kRight, Side::kLeft}) {
      const Branch branch = branchOf(mShots[shot], mMarks[shot], layer, side);
      if (branch.x.size() < 2) continue;
      const LinearFit fit = leastSquares(branch.x, branch.times);
      if (!std::isfinite(fit.slope)) continue;
      const auto ends = std::minmax_element(branch.x.begin(), branch.x.end());
      painter.setPen(QPen(shown(layer), 1.6, Qt::DashLine));
      painter.drawLine(toCanvas({*ends.first, 1e3 * fit.at(*ends.first)}),
                       toCanvas({*ends.second, 1e3 * fit.at(*ends.second)}));
    }
  }
}

/// Lines through the computed times of neighbouring picks of one branch.
void LayerCurvesPlot::paintComputed(QPainter& painter, std::uint32_t shot) const {
  painter.setPen(QPen(palette().color(QPalette::Text), 1.3));
  painter.setBrush(Qt::NoBrush);
  QPolygonF line;
  std::pair<std::uint32_t, bool> branch;  // its layer, and whether it is to the right of the shot
  for (const std::uint32_t trace : mOrder[shot]) {
    const auto time = computedTime({shot, trace});
    const std::pair own(time ? layerOf(mMarks[shot], trace) : refractionDataStructure::kNoLayer,
                        mShots[shot].onSide(trace, Side::kRight));
    if (own != branch) {
      painter.drawPolyline(line);
      line.clear();
      branch = own;
    }
    if (!time) continue;
    const QPointF at = toCanvas({mShots[shot].receivers[trace].x, 1e3 * *time});
    line.append(at);
    painter.drawLine(at - QPointF(kTick, 0.0), at + QPointF(kTick, 0.0));
  }
  painter.drawPolyline(line);
}

void LayerCurvesPlot::paintOverlay(QPainter& painter) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 1.6));
  for (const TraceRef& pick : mSelection) {
    if (const auto point = pointOf(pick)) painter.drawEllipse(*point, kRing, kRing);
  }
  if (mHovered && mEditable) {
    painter.setPen(QPen(shown(mLayer), 1.6));
    if (const auto point = pointOf(*mHovered)) painter.drawEllipse(*point, kRing, kRing);
  }
}

bool LayerCurvesPlot::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return PlotPage::event(event);
  auto& help = static_cast<QHelpEvent&>(*event);
  const auto at = pickAt(canvas()->mapFrom(this, help.pos()));
  if (!at) {
    QToolTip::hideText();
    return true;
  }
  const ShotArrivals& shot = mShots[at->shot];
  const QLocale locale;
  const std::uint32_t layer = at->shot < mMarks.size() ? layerOf(mMarks[at->shot], at->trace) : 0;
  QString text =
      tr("Shot %1, trace %2: %3, %4 ms, %5")
          .arg(at->shot + 1)
          .arg(at->trace + 1)
          .arg(withLengthUnit(locale.toString(shownLength(shot.receivers[at->trace].x), 'f', 1)))
          .arg(locale.toString(1e3 * shot.times[at->trace], 'f', 2))
          .arg(layer == 0 ? tr("no layer") : tr("layer %1").arg(layer));
  if (const auto computed = computedTime(*at)) {
    text += QLatin1Char('\n') + tr("computed: %1 ms").arg(locale.toString(1e3 * *computed, 'f', 2));
  }
  QToolTip::showText(help.globalPos(), text, this);
  return true;
}

}  // namespace talvesk
