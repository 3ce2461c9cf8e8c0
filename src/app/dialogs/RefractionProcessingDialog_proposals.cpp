#include "app/BusyWork.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/dialogs/RefractionProcessingDialog.h"
#include "refraction/Branches.h"
#include "refraction/LayerProposal.h"
#include "refraction/WeighedPicks.h"
#include "ui_RefractionProcessingDialog.h"

#include <QStringList>
#include <algorithm>
#include <utility>

// How the dialog proposes layers.

namespace talvesk {
namespace {

using refractionDataStructure::layerStruct;

constexpr int kShownRemarks = 4;  ///< the others are in the tool tip

bool sameMarks(const std::vector<layerStruct>& some, const std::vector<layerStruct>& others) {
  return std::equal(some.begin(), some.end(), others.begin(), others.end(),
                    [](const layerStruct& a, const layerStruct& b) { return a.layer == b.layer; });
}

/// How many layers to mark where none are proposed: those that fit best; 0 where none can be told
/// apart.
std::uint32_t layersAllTheSame(const SurveyProposal& proposal) {
  const GroundFit* best = nullptr;
  for (const GroundFit& fit : proposal.grounds) {
    if (!fit.fitted || fit.layers < 2) continue;
    if (best == nullptr || fit.criterion < best->criterion) best = &fit;
  }
  return best == nullptr ? 0 : best->layers;
}

}  // namespace

void RefractionProcessingDialog::on_proposeButton_clicked() {
  if (hasMarks(mWork.ttLayer) &&
      !askYesNo(this, tr("Propose layers"), tr("Replace the marks by a proposal?"),
                tr("All picks are assigned anew from the break points of the branches. Undo brings "
                   "the marks back."),
                false)) {
    return;
  }
  const Marks proposed = proposeLayers(mShots, mWork.ttLayer);
  if (!hasMarks(proposed)) {
    showNote(this, tr("Propose layers"),
             tr("No branch of the curves has picks enough to tell layers apart."));
    return;
  }
  mProposal.reset();
  chooseFitted(false);
  changeMarks(tr("propose layers"), proposed);
  showProposal();
}

void RefractionProcessingDialog::on_proposeSurveyButton_clicked() {
  const auto propose = [this](std::uint32_t layers) {
    // A survey of many shots takes seconds.
    return whileBusy(*this, [&] {
      return proposeFromSurvey(mShots, pickErrors(mDocument, mShots), mWork.ttLayer, layers);
    });
  };
  SurveyProposal proposal = propose(0);
  const QString title = tr("Propose layers");
  const QString statement = textOf(proposal.statement());
  if (proposal.hasLayers()) {
    if (hasMarks(mWork.ttLayer) &&
        !askYesNo(this, title, tr("Replace the marks by a proposal?"), statement, false)) {
      return;
    }
  } else {
    const std::uint32_t layers = layersAllTheSame(proposal);
    if (layers == 0) {
      showNote(this, title, tr("No layers are proposed."), statement);
      return;
    }
    if (!askYesNo(this, title,
                  tr("No layers are proposed. Mark %n layers all the same?", nullptr,
                     static_cast<int>(layers)),
                  statement, false)) {
      return;
    }
    proposal = propose(layers);
  }
  const Marks marks = proposal.marks;
  mProposal = std::move(proposal);
  chooseFitted(true);
  changeMarks(tr("propose layers over the whole survey"), marks);
  showProposal();
}

bool RefractionProcessingDialog::marksAreProposed() const {
  return mProposal && sameMarks(mProposal->marks, mWork.ttLayer);
}

/// What the last proposal over the survey says, and whether the marks are still its own.
void RefractionProcessingDialog::showProposal() {
  QLabel& label = *mUi->proposalLabel;
  label.setVisible(mProposal.has_value());
  if (!mProposal) return;
  QStringList lines{tr("Proposal over the whole survey: %1").arg(textOf(mProposal->statement()))};
  if (!marksAreProposed()) {
    lines << tr("The marks are no longer those of this proposal.");
  }
  if (wantsFitted()) {
    lines << tr(
        "\"Build profiles\" fits the profile to all picks; beside it the reciprocal method "
        "can be chosen.");
  }
  const QStringList remarks = linesOf(mProposal->remarks());
  label.setToolTip(remarks.size() > kShownRemarks ? remarks.join(QLatin1Char('\n')) : QString());
  if (!remarks.isEmpty()) lines << shortList(remarks, kShownRemarks);
  label.setText(lines.join(QLatin1Char('\n')));
}

}  // namespace talvesk
