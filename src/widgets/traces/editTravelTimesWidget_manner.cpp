#include "model/GatherParameters.h"
#include "widgets/traces/editTravelTimesWidget_state.h"

#include <QKeyEvent>
#include <cmath>

namespace talvesk {

void editTravelTimesWidget::State::changeManner(const std::function<void(GatherManner&)>& change) {
  TraceViewOptions changed = options;
  change(changed.manner);
  const GatherManner before = options.manner;
  widget.setOptions(changed);
  if (options.manner.reduction > 0.0) lastReduction = options.manner.reduction;
  if (options.manner.timeGain > 0.0) lastTimeGain = options.manner.timeGain;
  if (options.manner != before) emit widget.optionsChanged();
}

std::optional<double> editTravelTimesWidget::State::rulerReduction() const {
  const std::optional<double> velocity = widget.rulerVelocity();
  const auto& limits = parameters::kReduction.limits;
  if (!velocity || !(*velocity >= limits.least && *velocity <= limits.most)) return std::nullopt;
  return velocity;
}

double editTravelTimesWidget::proposedReduction() const {
  const double last =
      mState->lastReduction > 0.0 ? mState->lastReduction : parameters::kReduction.initial;
  return mState->rulerReduction().value_or(last);
}

void editTravelTimesWidget::setReduction(double velocity) {
  mState->changeManner([velocity](GatherManner& manner) { manner.reduction = velocity; });
}

void editTravelTimesWidget::setReduced(bool on) {
  State& s = *mState;
  if (!on) return setReduction(0.0);
  const double velocity = s.rulerReduction().value_or(s.lastReduction);
  if (velocity > 0.0) {
    setReduction(velocity);
  } else {
    emit reductionWanted();
  }
}

void editTravelTimesWidget::setTimeGain(double exponent) {
  mState->changeManner([exponent](GatherManner& manner) { manner.timeGain = exponent; });
}

void editTravelTimesWidget::setAmplified(bool on) {
  const double last = mState->lastTimeGain;
  setTimeGain(!on ? 0.0 : last > 0.0 ? last : parameters::kTimeGain.initial);
}

void editTravelTimesWidget::setByOffset(bool on) {
  mState->changeManner([on](GatherManner& manner) {
    manner.byOffset = on ? OffsetOrder::kSigned : OffsetOrder::kNone;
  });
}

void editTravelTimesWidget::setByAbsoluteOffset(bool on) {
  mState->changeManner([on](GatherManner& manner) {
    manner.byOffset = on ? OffsetOrder::kAbsolute : OffsetOrder::kNone;
  });
}

bool editTravelTimesWidget::State::mannerKey(const QKeyEvent& event) {
  const GatherManner& manner = options.manner;
  const bool shift = (event.modifiers() & Qt::ShiftModifier) != 0;
  switch (event.key()) {
    case Qt::Key_V:
      if (shift) {
        emit widget.reductionWanted();
      } else {
        // A ruler that reads another velocity is there to be followed.
        const std::optional<double> read = rulerReduction();
        widget.setReduced(manner.reduction == 0.0 || (read && *read != manner.reduction));
      }
      return true;
    case Qt::Key_T:
      if (shift) {
        emit widget.timeGainWanted();
      } else {
        widget.setAmplified(manner.timeGain == 0.0);
      }
      return true;
    case Qt::Key_X:
      if (shift) {
        widget.setByAbsoluteOffset(manner.byOffset != OffsetOrder::kAbsolute);
      } else {
        widget.setByOffset(manner.byOffset != OffsetOrder::kSigned);
      }
      return true;
    default:
      return false;
  }
}

QString editTravelTimesWidget::State::mannerWarning() const {
  if (!traces.mapping().lacksOffsets()) return {};
  return options.manner.reduction > 0.0 && !traces.mapping().isReduced()
             ? editTravelTimesWidget::tr("Times are not reduced: offsets are not known")
             : editTravelTimesWidget::tr("Not by offset: offsets are not known, or all the same");
}

}  // namespace talvesk
