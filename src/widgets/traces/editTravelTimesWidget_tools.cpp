#include "model/TravelTime.h"
#include "widgets/PlotGestures_tools.h"
#include "widgets/traces/TraceGuides.h"
#include "widgets/traces/editTravelTimesWidget_state.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kGrab = 5.0;       ///< pixels from a pick within which a drag moves it alone
constexpr double kLeave = 8.0;      ///< pixels aside that a hand goes while it moves a pick
constexpr double kSteep = 4.0;      ///< a move up or down goes so many times as far as aside
constexpr double kClickZoom = 2.0;  ///< of a click with the tool Zoom

QPointF clamped(const QPointF& point, const QRectF& plot) {
  return {std::clamp(point.x(), plot.left(), plot.right()),
          std::clamp(point.y(), plot.top(), plot.bottom())};
}

}  // namespace

/// Sets or moves picks, or takes them away, along the way of the mouse.
class editTravelTimesWidget::State::PickTool : public PlotTool {
 public:
  PickTool(State& state, bool removes) : mState(state), mRemoves(removes) {}

  bool press(const ToolEvent& event) override {
    State& s = mState;
    mFrom = event.at;
    mTrace = s.traceAt(mFrom);
    mStrayed = false;
    if (!s.canEdit() || !s.traces.canPick(mTrace)) return false;
    const auto kind = mRemoves     ? PickStroke::Kind::Remove
                      : nearPick() ? PickStroke::Kind::Move
                                   : PickStroke::Kind::Run;
    s.stroke.begin(kind, mTrace, placeOf(mFrom), s.layout, adjuster(event));
    s.setCurrent(mTrace);
    s.redrawMarks();
    return true;
  }

  void move(const ToolEvent& event) override {
    State& s = mState;
    const QPointF at = clamped(event.at, s.plot);
    // A hand that shakes while it clicks between two traces must not pick both.
    mStrayed = mStrayed || isDrag({event.at.x() - mFrom.x(), 0.0});
    const int trace = mStrayed ? s.traceAt(at) : mTrace;
    if (s.stroke.kind() == PickStroke::Kind::Move && trace != mTrace && goesAside(at)) {
      s.stroke.drawOn();
    }
    s.stroke.moveTo(trace, placeOf(at), s.layout, adjuster(event));
    if (s.stroke.kind() != PickStroke::Kind::Move && trace >= 0) s.setCurrent(trace);
    s.redrawMarks();
  }

  void release(const ToolEvent&) override {
    State& s = mState;
    const std::map<int, double> times = s.stroke.times();
    const bool had = hasPick(s.traces.measured(mTrace));
    s.stroke.clear();
    const Message text =
        mRemoves ? (times.size() > 1 ? Message::tr("Remove picks") : Message::tr("Remove pick"))
        : times.size() > 1 ? Message::tr("Draw picks")
        : had              ? Message::tr("Move pick")
                           : Message::tr("Set pick");
    s.edit(text, times);
    s.redrawMarks();
  }

  void giveUp() override {
    mState.stroke.clear();
    mState.redrawMarks();
  }

  bool takesDoubleClick() const override { return mState.canEdit(); }

 private:
  PickStroke::Place placeOf(const QPointF& point) const {
    const QPointF place = mState.placeAt(point);
    return {place.x(), place.y()};
  }
  PickStroke::Adjust adjuster(const ToolEvent& event) const {
    return mState.adjuster(!(event.keys & Qt::AltModifier));
  }
  /// A hand that moves a pick far does not keep to the width of a trace.
  bool goesAside(const QPointF& at) const {
    const double aside = std::fabs(at.x() - mFrom.x());
    return aside > kLeave && kSteep * aside > std::fabs(at.y() - mFrom.y());
  }
  bool nearPick() const {
    const double pick = mState.traces.measured(mTrace);
    if (!hasPick(pick)) return false;
    const double drawn = mState.traces.drawnTime(mTrace, pick);
    return std::fabs(mState.mapping().y(drawn) - mFrom.y()) <= kGrab;
  }

  State& mState;
  const bool mRemoves;
  QPointF mFrom;
  int mTrace = -1;
  bool mStrayed = false;  ///< the drag went beyond the trace that it started on
};

/// Draws the line that the apparent velocity is read along.
class editTravelTimesWidget::State::RulerTool : public PlotTool {
 public:
  explicit RulerTool(State& state) : mState(state) {}

  bool press(const ToolEvent& event) override {
    const QPointF place = placeOf(event.at);
    mState.ruler = {place, place};
    mFrom = event.at;
    return true;
  }
  void move(const ToolEvent& event) override {
    mState.ruler->second = placeOf(clamped(event.at, mState.plot));
  }
  void release(const ToolEvent& event) override {
    if (event.at == mFrom) mState.ruler.reset();
  }
  void giveUp() override { mState.ruler.reset(); }

 private:
  QPointF placeOf(const QPointF& point) const {
    return truePoint(mState.traces, mState.layout, mState.placeAt(point));
  }

  State& mState;
  QPointF mFrom;
};

/// Draws a line along the first breaks and hands it over to whoever picks.
class editTravelTimesWidget::State::GuideTool : public PlotTool {
 public:
  explicit GuideTool(State& state) : mState(state) {}

  bool press(const ToolEvent& event) override {
    const int trace = mState.traceAt(event.at);
    if (!mState.canEdit() || trace < 0) return false;
    mLine.begin(PickStroke::Kind::Run, trace, placeOf(event.at), mState.layout,
                mState.adjuster(false));
    return true;
  }
  void move(const ToolEvent& event) override {
    const QPointF at = clamped(event.at, mState.plot);
    mLine.moveTo(mState.traceAt(at), placeOf(at), mState.layout, mState.adjuster(false));
  }
  void release(const ToolEvent&) override {
    std::vector<Point2D> points;
    for (const auto& [trace, time] : mLine.times()) {
      const double x = mState.traces.receiverX(trace);
      if (std::isfinite(x)) points.push_back({x, time});
    }
    mLine.clear();
    if (points.size() > 1) emit mState.widget.guideDrawn(points);
  }
  void giveUp() override { mLine.clear(); }

  void paint(QPainter& painter) const override {
    QPolygonF line;
    for (const int trace : mState.layout.order()) {
      const auto at = mLine.times().find(trace);
      if (at == mLine.times().end()) continue;
      const double drawn = mState.traces.drawnTime(trace, at->second);
      line.append(mState.mapping().point(mState.layout.position(trace), drawn));
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(mState.colors.halo, 5.0));
    painter.drawPolyline(line);
    painter.setPen(QPen(mState.colors.ruler, 2.5));
    painter.drawPolyline(line);
    painter.restore();
  }

 private:
  PickStroke::Place placeOf(const QPointF& point) const {
    const QPointF place = mState.placeAt(point);
    return {place.x(), place.y()};
  }

  State& mState;
  PickStroke mLine;
};

editTravelTimesWidget::State::State(editTravelTimesWidget& owner)
    : widget(owner),
      gestures(*this, owner, owner),
      pickTool(std::make_unique<PickTool>(*this, false)),
      removeTool(std::make_unique<PickTool>(*this, true)),
      zoomTool(std::make_unique<BandTool>(
          gestures, [this](const QPointF& at) { gestures.zoomAbout(at, kClickZoom, kClickZoom); })),
      rulerTool(std::make_unique<RulerTool>(*this)),
      selectTool(makeSelectTool()),
      errorTool(makeErrorTool()),
      guideTool(std::make_unique<GuideTool>(*this)) {}

}  // namespace talvesk
