#include "app/BusyWork.h"
#include "app/Messages.h"
#include "app/dialogs/RefractionProcessingDialog.h"
#include "refraction/FittedProfile.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/WeighedPicks.h"
#include "ui_RefractionProcessingDialog.h"

#include <QStringList>
#include <utility>

// How the dialog builds a profile that is fitted to all picks, and tells it from the other one.

namespace talvesk {
namespace {

constexpr int kReciprocal = 0;
constexpr int kFitted = 1;

}  // namespace

bool RefractionProcessingDialog::wantsFitted() const {
  return mUi->profileCombo->currentIndex() == kFitted;
}

void RefractionProcessingDialog::chooseFitted(bool fitted) {
  mUi->profileCombo->setCurrentIndex(fitted ? kFitted : kReciprocal);
  showStale();
}

void RefractionProcessingDialog::on_profileCombo_activated(int) {
  showStale();
  showProposal();
}

/// Goes out from the marks as they are, which may be changed since a proposal.
bool RefractionProcessingDialog::buildFitted() {
  struct Fitted {
    SurveyProposal proposal;
    refractionDataStructure::Interpretation interpretation;
    LayeredFit fit;
  };
  const std::vector<std::vector<double>> errors = pickErrors(mDocument, mShots);
  Fitted built = whileBusy(*this, [&] {
    Fitted next{proposalOfMarks(mShots, errors, mWork.ttLayer), {}, {}};
    next.fit = fitProfile(mShots, errors, next.proposal, next.interpretation);
    return next;
  });
  if (built.fit.total.picks == 0) {
    showWarning(this, tr("Warning"), tr("No profile can be fitted to all picks."),
                isAssigned(mWork.ttLayer, 2)
                    ? tr("Direct waves and waves along refractors do not explain picks that are "
                         "marked so. Look at the marks, or choose \"Reciprocal method\".")
                    : tr("No shot that takes part has picks of layer 2."));
    return false;
  }
  mWork = std::move(built.interpretation);
  mJudge = std::move(built.proposal);
  mWarnings.clear();
  mStale = false;
  mBuilt = true;
  findFit();
  marksChanged();
  showResults();
  return true;
}

/// Whether what is shown is what "Build profiles" would build now.
void RefractionProcessingDialog::showStale() {
  QStringList changed;
  if (picksChangedSince(mShots, mWork.refractData)) {
    changed << tr("The picks have changed since the profiles were built.");
  }
  const bool any = !mWork.refractData.cData.empty();
  if (mStale && any) {
    changed << tr("The marks have changed since the profiles were built.");
  }
  if (any && wantsFitted() != mWork.refractData.isFitted()) {
    changed << (wantsFitted() ? tr("The profile that is shown is by the reciprocal method.")
                              : tr("The profile that is shown is fitted to all picks."));
  }
  mUi->staleLabel->setText(changed.join(QLatin1Char(' ')));
}

/// What stands where there are no curves: of a fitted profile there are none.
void RefractionProcessingDialog::showEmptyTexts() {
  const bool fitted = mWork.refractData.isFitted();
  const QString none =
      tr("Nothing is built yet: assign picks to layers and press \"Build profiles\".");
  const QString noFunctions =
      tr("A profile that is fitted to all picks has no tV and tG.\n\nChoose \"Reciprocal method\" "
         "and press \"Build profiles\" to have them.");
  const QString noPhantoms =
      tr("A profile that is fitted to all picks has no phantom arrivals.\n\nChoose \"Reciprocal "
         "method\" and press \"Build profiles\" to have them.");
  mUi->tvPlot->setEmptyText(fitted ? noFunctions : none);
  mUi->tgPlot->setEmptyText(fitted ? noFunctions : none);
  mUi->velocityPlot->setEmptyText(none);
  mUi->xyCriteria->setVisible(!fitted);
  mUi->phantomPlot->setEmptyText(
      fitted ? noPhantoms
             : tr("No curves yet.\n\nAssign picks to layer 2 for a shot at either end of the line, "
                  "then press \"Auto phantoming\" or \"Build profiles\"."));
  if (fitted) mUi->phantomLabel->clear();
}

}  // namespace talvesk
