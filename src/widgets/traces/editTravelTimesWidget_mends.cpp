#include "io/Survey.h"
#include "model/Mending.h"
#include "session/TraceMends.h"
#include "widgets/traces/editTravelTimesWidget_state.h"

#include <QKeyEvent>
#include <algorithm>

namespace talvesk {

void editTravelTimesWidget::State::mend(Message text,
                                        const std::function<void(TraceMend&)>& change) {
  const std::vector<int> shown = range();
  if (session == nullptr || shot < 0 || shown.empty()) return;
  const std::vector<std::size_t> mending(shown.begin(), shown.end());
  std::vector<Message> notes;
  const Status done = session->apply(
      Edit::kMend,
      [&](Survey& survey) { return mendTraces(survey.document, shot, mending, change, &notes); },
      std::move(text));
  if (!done.ok()) {
    emit widget.editRefused(done);
  } else {
    emit widget.mended(notes);
  }
}

void editTravelTimesWidget::State::muteBeforeDrawn(double time) {
  const std::vector<int> muted = range();
  mend(Message::tr("Mute traces"), [this, time, next = muted.begin()](TraceMend& mend) mutable {
    mend.mutedBefore = std::max(traces.trueTime(*next++, time), 0.0);
  });
}

bool editTravelTimesWidget::State::mendKey(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_K:
      widget.killTraces();
      return true;
    case Qt::Key_P:
      widget.reversePolarity();
      return true;
    case Qt::Key_U:
      if (event.modifiers() & Qt::ShiftModifier) {
        widget.muteTraces(0.0);
      } else if (hover) {
        muteBeforeDrawn(mapping().timeAt(hover->y()));
      } else {
        emit widget.muteTimeWanted();
      }
      return true;
    case Qt::Key_BraceLeft:
      widget.attenuateTraces();
      return true;
    case Qt::Key_BraceRight:
      widget.amplifyTraces();
      return true;
    default:
      return false;
  }
}

void editTravelTimesWidget::killTraces() {
  State& s = *mState;
  if (s.document == nullptr) return;
  const ShotMends& mends = mendsOfRecord(*s.document, s.shot);
  const std::vector<int> traces = s.range();
  const bool kill = std::any_of(traces.begin(), traces.end(), [&mends](int trace) {
    return !mendOf(mends, static_cast<std::size_t>(trace)).killed;
  });
  s.mend(kill ? Message::tr("Kill traces") : Message::tr("Revive traces"),
         [kill](TraceMend& mend) { mend.killed = kill; });
}

void editTravelTimesWidget::reversePolarity() {
  mState->mend(Message::tr("Reverse polarity"),
               [](TraceMend& mend) { mend.reversed = !mend.reversed; });
}

void editTravelTimesWidget::muteTraces(double seconds) {
  mState->mend(seconds > 0.0 ? Message::tr("Mute traces") : Message::tr("Mute traces no more"),
               [seconds](TraceMend& mend) { mend.mutedBefore = seconds; });
}

void editTravelTimesWidget::amplifyTraces() {
  mState->mend(Message::tr("Amplify traces"),
               [](TraceMend& mend) { mend.gain = nextGain(mend.gain, true); });
}

void editTravelTimesWidget::attenuateTraces() {
  mState->mend(Message::tr("Attenuate traces"),
               [](TraceMend& mend) { mend.gain = nextGain(mend.gain, false); });
}

}  // namespace talvesk
