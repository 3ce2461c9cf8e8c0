#include "figures/FigureWords.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "widgets/PlotGestures_tools.h"
#include "widgets/TravelTimePlot_state.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

constexpr double kReach = 7.0;  ///< how far from a pick or curve the mouse may be, pixels
constexpr double kRing = 6.0;   ///< radius, pixels

double distance(const QPointF& a, const QPointF& b) {
  return std::hypot(a.x() - b.x(), a.y() - b.y());
}

double distanceToLine(const QPointF& p, const QPointF& a, const QPointF& b) {
  const QPointF along = b - a;
  const double square = QPointF::dotProduct(along, along);
  if (square <= 0.0) return distance(p, a);
  const double part = std::clamp(QPointF::dotProduct(p - a, along) / square, 0.0, 1.0);
  return distance(p, a + part * along);
}

/// A pick at 0 would be none, and after the last sample of its record there is nothing to pick.
double withinRecord(const TomoDocument& document, int shot, int trace, double seconds) {
  constexpr double kEarliest = 1e-6;
  const auto set =
      static_cast<std::size_t>(document.ttArray[static_cast<std::size_t>(shot)].traceSetID);
  if (set < document.recordings->traceSets.size() &&
      static_cast<std::size_t>(trace) < document.recordings->traceSets[set].size()) {
    const Trace& recorded = document.recordings->traceSets[set][static_cast<std::size_t>(trace)];
    const double end =
        (static_cast<double>(recorded.samples.size()) - 1.0) * recorded.sampleInterval;
    if (end > 0.0) seconds = std::min(seconds, end);
  }
  return std::max(seconds, kEarliest);
}

QString milliseconds(double seconds) {
  return QLocale().toString(1e3 * seconds, 'f', 2);
}

}  // namespace

const TravelTimeCurve* TravelTimePlot::State::curveOf(int shot) const {
  for (const TravelTimeCurve& curve : curves.curves) {
    if (shot >= 0 && curve.record == static_cast<std::size_t>(shot)) return &curve;
  }
  return nullptr;
}

std::optional<Point2D> TravelTimePlot::State::pickPoint(int shot, int trace) const {
  const TravelTimeCurve* curve = curveOf(shot);
  if (curve == nullptr || trace < 0 || !measuredShown) return std::nullopt;
  for (const auto& pick : curve->picks) {
    if (pick.geophone == static_cast<std::size_t>(trace)) return pick.point;
  }
  return std::nullopt;
}

/// The nearest pick in reach; one of the current shot comes before all others.
std::optional<TravelTimePlot::State::PickAt> TravelTimePlot::State::pickAt(
    const QPointF& at) const {
  std::optional<PickAt> found;
  if (!measuredShown) return found;
  double nearest = kReach;
  bool ofCurrent = false;
  for (const TravelTimeCurve& curve : curves.curves) {
    const auto shot = static_cast<int>(curve.record);
    for (const auto& pick : curve.picks) {
      const double away = distance(at, point(pick.point));
      const bool mine = shot == current;
      if (away > kReach || (ofCurrent && !mine)) continue;
      if (away > nearest && mine == ofCurrent) continue;
      nearest = away;
      ofCurrent = mine;
      found = PickAt{shot, static_cast<int>(pick.geophone)};
    }
  }
  return found;
}

int TravelTimePlot::State::curveAt(const QPointF& at) const {
  if (const auto pick = pickAt(at)) return pick->shot;
  double nearest = kReach;
  int found = -1;
  const auto lookAt = [&](const std::vector<std::vector<Point2D>>& lines, int shot) {
    for (const auto& line : lines) {
      for (std::size_t i = 1; i < line.size(); ++i) {
        const double away = distanceToLine(at, point(line[i - 1]), point(line[i]));
        if (away >= nearest) continue;
        nearest = away;
        found = shot;
      }
    }
  };
  for (const TravelTimeCurve& curve : curves.curves) {
    const auto shot = static_cast<int>(curve.record);
    if (measuredShown && look.joined) lookAt(curve.measuredLines, shot);
    if (computedShown) lookAt(curve.computedLines, shot);
    if (layeredShown) lookAt(curve.layeredLines, shot);
    if (!curve.hasShot) continue;
    const double away = distance(at, point(curve.shot));
    if (away < nearest) {
      nearest = away;
      found = shot;
    }
  }
  return found;
}

/// Drags a pick to another time; a click chooses its shot.
class TravelTimePlot::State::PickTool : public PlotTool {
 public:
  explicit PickTool(State& state) : mState(state) {}

  bool press(const ToolEvent& event) override {
    const auto pick = mState.pickAt(event.at);
    if (!pick) return false;
    mPick = *pick;
    mFrom = mTo = event.at;
    mDragging = false;
    return true;
  }
  void move(const ToolEvent& event) override {
    mTo = event.at;
    mDragging = mDragging || isDrag(mTo - mFrom);
  }
  void release(const ToolEvent& event) override {
    const double seconds = mState.timeAt(event.at.y());
    mState.chooseShot(mPick.shot);
    if (!mDragging || !mState.pickPoint(mPick.shot, mPick.trace)) return;
    mState.movePick(mPick, withinRecord(*mState.document, mPick.shot, mPick.trace, seconds));
  }
  std::optional<Qt::CursorShape> cursor() const override { return Qt::SizeVerCursor; }
  void paint(QPainter& painter) const override {
    const auto from = mState.pickPoint(mPick.shot, mPick.trace);
    if (!from) return;
    const QColor color =
        travel_time_items::colorOf(static_cast<std::size_t>(mPick.shot), mState.look);
    const QPointF start = mState.point(*from);
    if (!mDragging) return mState.paintRing(painter, start, color);
    const QPointF at(start.x(), mTo.y());
    painter.setPen(QPen(color, 1.0, Qt::DashLine));
    painter.drawLine(start, at);
    mState.paintRing(painter, at, color);
    painter.setPen(mState.look.icons);
    painter.drawText(
        at + QPointF(1.6 * kRing, -kRing),
        TravelTimePlot::tr("%1 ms").arg(milliseconds(std::max(mState.timeAt(at.y()), 0.0))));
  }

 private:
  State& mState;
  PickAt mPick;
  QPointF mFrom;
  QPointF mTo;
  bool mDragging = false;
};

TravelTimePlot::State::State(TravelTimePlot& owner)
    : widget(owner),
      pickTool(std::make_unique<PickTool>(*this)),
      chooseTool(std::make_unique<BandTool>(owner.gestures(), [this](const QPointF& at) {
        if (const int shot = curveAt(at); shot >= 0) chooseShot(shot);
      })) {}

PlotTool* TravelTimePlot::toolFor(Qt::MouseButton button, Qt::KeyboardModifiers keys,
                                  const QPointF& at) {
  const State& s = *mState;
  if (button != Qt::LeftButton || (keys & Qt::ShiftModifier)) return nullptr;
  return s.edit && s.pickAt(at) ? s.pickTool.get() : s.chooseTool.get();
}

void TravelTimePlot::State::movePick(PickAt pick, double seconds) {
  if (!edit) return;
  edit(pick.shot, pick.trace, seconds);
  readDocument();
  emit widget.pickEdited(pick.shot, pick.trace);
}

void TravelTimePlot::hovered(const std::optional<QPointF>& at) {
  State& s = *mState;
  const bool free = gestures().toolAtWork() == nullptr;
  const auto now = at && free ? s.pickAt(*at) : std::nullopt;
  const Qt::CursorShape shape = !now     ? Qt::ArrowCursor
                                : s.edit ? Qt::SizeVerCursor
                                         : Qt::PointingHandCursor;
  if (free && canvas()->cursor().shape() != shape) canvas()->setCursor(shape);
  if (now == s.hovered) return;
  s.hovered = now;
  repaintLive();
}

bool TravelTimePlot::keyPressed(const QKeyEvent& event) {
  if (event.key() != Qt::Key_PageUp && event.key() != Qt::Key_PageDown) return false;
  mState->walk(event.key() == Qt::Key_PageUp ? -1 : 1);
  return true;
}

void TravelTimePlot::State::paintRing(QPainter& painter, const QPointF& middle,
                                      const QColor& color) const {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(look.ground, 4.0));
  painter.drawEllipse(middle, kRing, kRing);
  painter.setPen(QPen(color, 1.8));
  painter.drawEllipse(middle, kRing, kRing);
}

void TravelTimePlot::paintOverlay(QPainter& painter) {
  const State& s = *mState;
  if (gestures().toolAtWork() == s.pickTool.get()) return;  // paints its own
  const State::PickAt marked = s.hovered ? *s.hovered : State::PickAt{s.current, s.highlighted};
  if (const auto pick = s.pickPoint(marked.shot, marked.trace)) {
    s.paintRing(painter, s.point(*pick),
                travel_time_items::colorOf(static_cast<std::size_t>(marked.shot), s.look));
  }
}

void TravelTimePlot::State::tell(const QHelpEvent& event) {
  const auto pick = pickAt(widget.canvas()->mapFrom(&widget, event.pos()));
  if (!pick || document == nullptr) {
    QToolTip::hideText();
    return;
  }
  const TravelTime& record = document->ttArray[static_cast<std::size_t>(pick->shot)];
  const auto trace = static_cast<std::size_t>(pick->trace);
  if (trace >= record.ttMisurati.size()) return;
  QString text = TravelTimePlot::tr("Shot %1, trace %2: %3 ms")
                     .arg(pick->shot + 1)
                     .arg(pick->trace + 1)
                     .arg(milliseconds(record.ttMisurati[trace]));
  text += QLatin1Char('\n') + TravelTimePlot::tr("Error: %1 ms")
                                  .arg(FigureWords::pickError(record.errorOf(trace), QLocale()));
  if (trace < record.ttCalcolati.size() && record.ttCalcolati[trace] >= 0.0 &&
      curves.computedTimes > 0) {
    text += QLatin1Char('\n') +
            TravelTimePlot::tr("Computed: %1 ms").arg(milliseconds(record.ttCalcolati[trace]));
  }
  const auto shot = static_cast<std::size_t>(pick->shot);
  if (layeredShown && shot < layeredTimes.size() && trace < layeredTimes[shot].size() &&
      std::isfinite(layeredTimes[shot][trace])) {
    text += QLatin1Char('\n') +
            TravelTimePlot::tr("Layers: %1 ms").arg(milliseconds(layeredTimes[shot][trace]));
  }
  QToolTip::showText(event.globalPos(), text, widget.canvas());
}

void TravelTimePlot::State::openMenu(const QPoint& global, const QPointF& at) {
  auto* menu = new QMenu(&widget);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (const auto pick = pickAt(at); pick && edit) {
    menu->addAction(TravelTimePlot::tr("&Remove pick"), &widget,
                    [this, pick] { movePick(*pick, kNoTime); });
    menu->addSeparator();
  }
  menu->addAction(TravelTimePlot::tr("&Fit"), &widget, &TravelTimePlot::fit);
  menu->addAction(TravelTimePlot::tr("Zoom &back"), &widget, &TravelTimePlot::zoomBack)
      ->setEnabled(widget.canZoomBack());
  menu->addAction(TravelTimePlot::tr("Zoom for&ward"), &widget, &TravelTimePlot::zoomForward)
      ->setEnabled(widget.canZoomForward());
  menu->addSeparator();
  menu->addAction(TravelTimePlot::tr("Export &picture..."), &widget,
                  &TravelTimePlot::exportRequested);
  menu->popup(global);
}

bool TravelTimePlot::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return PlotPage::event(event);
  mState->tell(static_cast<const QHelpEvent&>(*event));
  return true;
}

void TravelTimePlot::contextMenuEvent(QContextMenuEvent* event) {
  if (hasNothing()) return event->ignore();
  mState->openMenu(event->globalPos(), canvas()->mapFrom(this, event->pos()));
}

std::optional<QPointF> TravelTimePlot::pointOf(int shot, int trace) const {
  const auto pick = mState->pickPoint(shot, trace);
  if (!pick) return std::nullopt;
  return mState->point(*pick);
}

}  // namespace talvesk
