#include "figures/FigureWords.h"
#include "io/Survey.h"
#include "widgets/traces/PickSnap.h"
#include "widgets/traces/editTravelTimesWidget_state.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

namespace talvesk {
namespace {

/// A pick at 0 would be none: the earliest time that is one, seconds.
constexpr double kEarliest = 1e-6;

/// Each editor counts its own nudges.
std::string idOf(const editTravelTimesWidget& editor) {
  return std::to_string(reinterpret_cast<std::uintptr_t>(&editor));
}

}  // namespace

double editTravelTimesWidget::State::adjusted(int trace, double time, bool snapping) const {
  const double end = traces.recordEnd(trace);
  const double latest = std::max(end > 0.0 ? end : traces.timeEnd(), kEarliest);
  time = std::clamp(time, kEarliest, latest);
  if (snapping && options.snap != PickSnap::None) {
    time = snapPick(traces.samples(trace), traces.interval(trace), traces.mean(trace), time,
                    options.snap, options.snapRadius);
  }
  return std::clamp(time, kEarliest, latest);
}

PickStroke::Adjust editTravelTimesWidget::State::adjuster(bool snapping) const {
  return [this, snapping](int trace, double drawn) {
    return adjusted(trace, traces.trueTime(trace, drawn), snapping);
  };
}

bool editTravelTimesWidget::State::waits(int trace) const {
  const TravelTime* record = traces.times();
  return record != nullptr && trace >= 0 && record->waits(static_cast<std::size_t>(trace));
}

void editTravelTimesWidget::State::edit(Message text, const std::map<int, double>& times,
                                        const std::string& mergeKey) {
  std::vector<PickChange> changes;
  for (const auto& [trace, time] : times) {
    if (!traces.canPick(trace)) continue;
    const double before = traces.measured(trace);
    const bool nothing = hasPick(time) ? time == before : !hasPick(before);
    if (!nothing) changes.push_back({trace, time, false, options.pickError});
  }
  push(Edit::kPick, std::move(text), shot, changes, mergeKey);
}

void editTravelTimesWidget::State::push(Edit edit, Message text, int record,
                                        const std::vector<PickChange>& changes,
                                        const std::string& mergeKey) {
  if (changes.empty() || session == nullptr) return;
  const Status may = mayPick(*document, record, changes);
  if (!may.ok()) emit widget.pickLeftOut(may);
  const auto change = [&](Survey& survey) {
    changePicks(survey.document, record, changes);
    return Status();
  };
  const Status done = session->applyMerging(edit, change, mergeKey, std::move(text));
  if (!done.ok()) emit widget.editRefused(done);
}

void editTravelTimesWidget::State::surveyChanged(const SurveyChange& change) {
  if (change.kind == SurveyChange::Kind::kOpened) return show(&session->document());
  const bool other = change.parts.has(Part::kRecordings) || change.parts.has(Part::kGeometry);
  if (other) widget.documentChanged();
  if (change.parts.has(Part::kPicks)) picksChanged(change);
}

void editTravelTimesWidget::State::picksChanged(const SurveyChange& change) {
  if (change.edit != Edit::kPick && change.edit != Edit::kConfirmPicks) cancelDrag();
  redrawMarks();
  describe();
  tellAgain();
  const TomoDocument& before = change.before.document;
  if (hasNewPick(before, *document)) emit widget.pick_added();
  emit widget.pick_edited();
  if (before.ttArray.size() != document->ttArray.size()) return;  // shots came or went
  const std::vector<std::int32_t> shots = shotsWithOtherPicks(before, *document);
  if (shots.empty() || std::find(shots.begin(), shots.end(), shot) != shots.end()) return;
  emit widget.shotEdited(shots.front());
}

void editTravelTimesWidget::State::removeRange(bool unconfirmedOnly) {
  if (!canEdit()) return;
  std::map<int, double> times;
  for (const int trace : range()) {
    if (!unconfirmedOnly || waits(trace)) times[trace] = kNoTime;
  }
  edit(times.size() > 1 ? Message::tr("Remove picks") : Message::tr("Remove pick"), times);
}

void editTravelTimesWidget::State::confirmRange() {
  if (!canEdit()) return;
  std::vector<PickChange> changes;
  for (const int trace : range()) {
    if (!traces.canPick(trace) || !waits(trace)) continue;
    changes.push_back({trace, traces.measured(trace), false});
  }
  push(Edit::kConfirmPicks, {}, shot, changes);
}

bool editTravelTimesWidget::hasPicksInRange(bool unconfirmedOnly) const {
  const State& state = *mState;
  if (!state.canEdit()) return false;
  for (const int trace : state.range()) {
    if (!state.traces.canPick(trace) || !hasPick(state.traces.measured(trace))) continue;
    if (!unconfirmedOnly || state.waits(trace)) return true;
  }
  return false;
}

void editTravelTimesWidget::State::nudge(double seconds, bool keyHeld) {
  if (!canEdit() || current < 0 || !hasPick(traces.measured(current))) return;
  const double time = adjusted(current, traces.measured(current) + seconds, false);
  // The first step of a key begins an edit, those of the key held go on with it.
  if (!keyHeld) ++nudges;
  if (time != traces.measured(current)) {
    // It is the same break still, only placed more exactly.
    push(Edit::kPick, Message::tr("Nudge pick"), shot,
         {{current, time, false, traces.error(current)}},
         "nudge " + std::to_string(nudges) + ' ' + std::to_string(shot) + ' ' +
             std::to_string(current) + ' ' + idOf(widget));
  }
  reveal(current);
}

/// Of the trace so many steps from the current one, when on its side of the shot.
std::optional<double> editTravelTimesWidget::State::drawnPickBeside(int steps) const {
  const int trace = layout.stepped(current, steps);
  const double pick = traces.measured(trace);
  if (!hasPick(pick) || !layout.sameSide(trace, current)) return std::nullopt;
  return traces.drawnTime(trace, pick);
}

void editTravelTimesWidget::State::pickLikeNeighbour() {
  if (!canEdit() || current < 0 || !traces.canPick(current)) return;
  if (hasPick(traces.measured(current))) {
    confirmRange();
    return;
  }
  double drawn = 0.5 * (window().top + window().bottom);
  for (int away = 1; away < layout.count(); ++away) {
    const std::optional<double> left = drawnPickBeside(-away);
    const std::optional<double> right = drawnPickBeside(away);
    if (!left && !right) continue;
    drawn = left && right ? 0.5 * (*left + *right) : left ? *left : *right;
    break;
  }
  edit(Message::tr("Set pick"), {{current, adjuster(true)(current, drawn)}});
}

void editTravelTimesWidget::State::setCurrent(int trace) {
  if (trace < -1 || trace >= layout.count() || trace == current) return;
  current = trace;
  redrawMarks();
  describe();
  emit widget.selectionChanged();
}

void editTravelTimesWidget::State::goTo(int trace) {
  select(-1, -1);
  setCurrent(trace);
  reveal(trace);
  tellCurrent();
}

void editTravelTimesWidget::State::describe() {
  QString text;
  if (current >= 0 && current < layout.count()) {
    const double pick = traces.measured(current);
    const QString ms = QLocale().toString(1e3 * pick, 'f', 2);
    const double sigma = traces.error(current);
    text = !hasPick(pick) ? editTravelTimesWidget::tr("Trace %1, not picked").arg(current + 1)
           : sigma > 0.0
               ? editTravelTimesWidget::tr("Trace %1, picked at %2 ms, error %3 ms")
                     .arg(current + 1)
                     .arg(ms, FigureWords::pickError(sigma, QLocale()))
               : editTravelTimesWidget::tr("Trace %1, picked at %2 ms").arg(current + 1).arg(ms);
  }
  if (widget.accessibleDescription() != text) widget.setAccessibleDescription(text);
}

void editTravelTimesWidget::editPick(int shot, int trace, double seconds) {
  State& state = *mState;
  if (state.session == nullptr || shot < 0 || trace < 0) return;
  const std::vector<TravelTime>& records = state.document->ttArray;
  if (static_cast<std::size_t>(shot) >= records.size()) return;
  const std::vector<double>& times = records[static_cast<std::size_t>(shot)].ttMisurati;
  if (static_cast<std::size_t>(trace) >= times.size()) return;
  const double before = times[static_cast<std::size_t>(trace)];
  if (!hasPick(seconds) || !std::isfinite(seconds)) seconds = kNoTime;
  if (hasPick(seconds) ? seconds == before : !hasPick(before)) return;
  state.push(Edit::kPick, hasPick(seconds) ? Message::tr("Move pick") : Message::tr("Remove pick"),
             shot, {{trace, seconds, false, state.options.pickError}});
}

}  // namespace talvesk
