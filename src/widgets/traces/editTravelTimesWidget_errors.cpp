#include "figures/FigureWords.h"
#include "model/TravelTime.h"
#include "widgets/PlotTool.h"
#include "widgets/traces/TraceTags.h"
#include "widgets/traces/editTravelTimesWidget_state.h"

#include <QKeyEvent>
#include <QLocale>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

/// A hand pulls no finer, seconds.
constexpr double kPullStep = 1e-4;

}  // namespace

void editTravelTimesWidget::State::setErrors(double sigma) {
  if (!canEdit()) return;
  TraceViewOptions changed = options;
  changed.pickError = sigma;
  widget.setOptions(changed);
  std::vector<std::pair<int, double>> errors;
  for (const int trace : range()) errors.emplace_back(trace, options.pickError);
  pushErrors(errors);
  emit widget.optionsChanged();
}

void editTravelTimesWidget::State::pushErrors(const std::vector<std::pair<int, double>>& errors) {
  std::vector<PickChange> changes;
  for (const auto& [trace, sigma] : errors) {
    const double time = traces.measured(trace);
    if (!traces.canPick(trace) || !hasPick(time) || traces.error(trace) == sigma) continue;
    changes.push_back({trace, time, waits(trace), sigma});
  }
  push(Edit::kPick,
       changes.size() > 1 ? Message::tr("Set errors of picks") : Message::tr("Set error of pick"),
       shot, changes);
}

bool editTravelTimesWidget::State::errorKey(const QKeyEvent& event) {
  const int digit = event.key() - Qt::Key_0;
  if (digit < 0 || digit >= static_cast<int>(kKeyErrors.size())) return false;
  setErrors(1e-3 * kKeyErrors[static_cast<std::size_t>(digit)]);
  return true;
}

/// Pulls the error bar of a pick: it reaches as far as the mouse is from the pick, along the trace.
class editTravelTimesWidget::State::ErrorTool : public PlotTool {
 public:
  explicit ErrorTool(State& state) : mState(state) {}

  bool press(const ToolEvent& event) override {
    State& s = mState;
    const int trace = s.traceAt(event.at);
    if (!s.canEdit() || !s.traces.canPick(trace) || !hasPick(s.traces.measured(trace)))
      return false;
    s.setCurrent(trace);
    s.pulled.trace = trace;
    follow(event);
    return true;
  }
  void move(const ToolEvent& event) override { follow(event); }
  void release(const ToolEvent&) override {
    const DraftError done = std::exchange(mState.pulled, {});
    mState.pushErrors({{done.trace, done.sigma}});
    mState.redrawMarks();
  }
  void giveUp() override {
    mState.pulled = {};
    mState.redrawMarks();
  }
  std::optional<Qt::CursorShape> cursor() const override { return Qt::SizeVerCursor; }
  void paint(QPainter& painter) const override {
    const State& s = mState;
    paintTag(painter, s.colors, mAt + QPointF(14.0, 6.0),
             editTravelTimesWidget::tr("Error %1 ms")
                 .arg(FigureWords::pickError(s.pulled.sigma, QLocale())),
             s.plot);
  }

 private:
  void follow(const ToolEvent& event) {
    State& s = mState;
    mAt = event.at;
    const double pick = s.traces.drawnTime(s.pulled.trace, s.traces.measured(s.pulled.trace));
    const double away = std::fabs(s.placeAt(event.at).y() - pick);
    s.pulled.sigma =
        std::clamp(kPullStep * std::round(away / kPullStep), kPullStep, kLargestPickError);
    s.redrawMarks();
  }

  State& mState;
  QPointF mAt;
};

std::unique_ptr<PlotTool> editTravelTimesWidget::State::makeErrorTool() {
  return std::make_unique<ErrorTool>(*this);
}

}  // namespace talvesk
