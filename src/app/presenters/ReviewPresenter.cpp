#include "app/presenters/ReviewPresenter.h"

#include "ui_Talvesk_MainWindows.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

QString inMilliseconds(double seconds) {
  return QLocale().toString(1e3 * std::fabs(seconds), 'f', 1);
}

}  // namespace

ReviewPresenter::ReviewPresenter(Desk& desk)
    : mDesk(desk), mSubscription(desk.session.subscribe([this](const SurveyChange& change) {
        // By hand one goes on from where one is; after all else the ranks are others.
        const bool byHand = change.edit == Edit::kPick || change.edit == Edit::kConfirmPicks;
        const bool ranks = change.parts.has(Part::kPicks) || change.parts.has(Part::kResult);
        if (change.kind == SurveyChange::Kind::kOpened || (ranks && !byHand)) mStanding.reset();
      })) {}

void ReviewPresenter::showNextDoubtful() {
  walk(true);
}

void ReviewPresenter::showPreviousDoubtful() {
  walk(false);
}

void ReviewPresenter::walk(bool forward) {
  const PickReview review = reviewPicks(mDesk.document());
  const std::vector<DoubtfulPick>& picks = review.doubtful;
  if (picks.empty()) {
    mStanding.reset();
    return mDesk.tell(nothingDoubtful(review));
  }
  const auto stays =
      !mStanding ? picks.end()
                 : std::find_if(picks.begin(), picks.end(), [this](const DoubtfulPick& each) {
                     return each.shot == mStanding->shot && each.trace == mStanding->trace;
                   });
  if (stays != picks.end()) mStanding = *stays;  // it may have another rank by now
  const ReviewStep step = stepThrough(picks, mStanding ? &*mStanding : nullptr, forward);
  mStanding = picks[step.index];
  show(*mStanding);
  QString text = tr("Doubtful pick %1 of %2, shot %3, trace %4: %5")
                     .arg(step.index + 1)
                     .arg(picks.size())
                     .arg(mStanding->shot + 1)
                     .arg(mStanding->trace + 1)
                     .arg(reasonsOf(*mStanding));
  if (step.anew) {
    text += QLatin1String("; ") + (forward ? tr("after the last one, the worst again")
                                           : tr("before the worst, the last"));
  }
  mDesk.tell(text);
}

void ReviewPresenter::show(const DoubtfulPick& pick) {
  mDesk.ui.tabWidget->setCurrentWidget(mDesk.ui.tab_3);
  if (mDesk.shot.index() != pick.shot) mDesk.shot.show(pick.shot);
  for (editTravelTimesWidget* editor : mDesk.editors()) editor->goToTrace(pick.trace);
  mDesk.ui.showTracesWidget->setFocus();
}

QString ReviewPresenter::reasonsOf(const DoubtfulPick& pick) const {
  QStringList reasons;
  if (pick.error) reasons << tr("error %1 ms").arg(inMilliseconds(*pick.error));
  if (pick.residual) {
    const QString by = inMilliseconds(*pick.residual);
    reasons << (*pick.residual > 0.0 ? tr("computed %1 ms later") : tr("computed %1 ms earlier"))
                   .arg(by);
  }
  if (pick.reciprocal) {
    const QString by = inMilliseconds(*pick.reciprocal);
    reasons << (*pick.reciprocal > 0.0 ? tr("reciprocal time %1 ms later")
                                       : tr("reciprocal time %1 ms earlier"))
                   .arg(by);
  }
  return reasons.join(QLatin1String(", "));
}

QString ReviewPresenter::nothingDoubtful(const PickReview& review) const {
  if (review.waiting == 0) {
    return review.settled == 0 ? tr("There are no picks yet.")
                               : tr("No pick waits for confirmation.");
  }
  QString text =
      tr("None of the %1 picks that wait for confirmation is doubtful.").arg(review.waiting);
  if (review.unknown > 0) {
    text += QLatin1Char(' ') +
            tr("Nothing is known of %1 of them: no error, no computed time, no reciprocal one.")
                .arg(review.unknown);
  }
  return text;
}

}  // namespace talvesk
