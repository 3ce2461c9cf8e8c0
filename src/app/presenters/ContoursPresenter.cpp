#include "app/presenters/ContoursPresenter.h"

#include "app/dialogs/contourlines_dialog.h"
#include "app/presenters/PlainSection.h"
#include "io/Survey.h"

#include <utility>

namespace talvesk {

void ContoursPresenter::editContours() {
  const ValueRange range = rangeOf(contouredQuantity(mDesk.section().quantity));
  // Who wants contours where there are none yet wants to see them.
  const ContourSettings proposed =
      proposedContours(mDesk.section().contours, mDesk.section().quantity, range);
  contourlines_dialog dialog(proposed, mDesk.section().quantity, range, mDesk.folders,
                             &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return;
  mDesk.showSection();
  if (dialog.hasChanges() || proposed != mDesk.section().contours) {
    mDesk.edit(Edit::kContours,
               [&](Survey& survey) { survey.section.contours = completed(dialog.settings()); });
  }
  logContours();
}

/// The palette says what range of velocities is shown; other quantities have their own.
ValueRange ContoursPresenter::rangeOf(SectionQuantity quantity) const {
  if (quantity != SectionQuantity::kVelocity) {
    if (const auto scene = plainSection(mDesk.document(), quantity)) return scene->range;
  }
  return {mDesk.palettes().current().min_db, mDesk.palettes().current().max_db};
}

/// Contours of a quantity that is not in view may have been switched on before it had a list.
ContourSettings ContoursPresenter::completed(ContourSettings contours) const {
  for (const SectionQuantity quantity :
       {SectionQuantity::kVelocity, SectionQuantity::kVerticalGradient,
        SectionQuantity::kLaplacian}) {
    const bool edited = quantity == contouredQuantity(mDesk.section().quantity);
    if (edited || !showsContours(contours, quantity)) continue;
    if (!(contours.*contourList(quantity)).empty()) continue;
    contours = proposedContours(contours, quantity, rangeOf(quantity));
  }
  return contours;
}

void ContoursPresenter::logContours() {
  const ContourSettings& contours = mDesk.section().contours;
  const std::pair<const char*, bool> choices[] = {
      {"Equally Spaced Contours: ", !contours.customized},
      {"Customized Contours: ", contours.customized},
      {"Contours on Vertical Gradient: ", contours.onVerticalGradient},
      {"Contours on Laplacian Gradient: ", contours.onLaplacian},
      {"Filled Contours: ", contours.filled}};
  for (const auto& [text, chosen] : choices) {
    mDesk.log.write(std::string(text) + (chosen ? "true" : "false"), 0);
  }
}

}  // namespace talvesk
