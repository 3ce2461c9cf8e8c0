#include "app/dialogs/LayerMethodsDialog.h"
#include "app/dialogs/RefractionProcessingDialog.h"
#include "model/ChiSquare.h"
#include "model/TomoDocument.h"
#include "refraction/ReciprocalMethod.h"
#include "ui_RefractionProcessingDialog.h"

// How the dialog takes another XY, and other methods.

namespace talvesk {

void RefractionProcessingDialog::on_xyCombo_activated(int index) {
  takeXY(mUi->xyCombo->itemData(index).toDouble());
}

/// Builds the profiles with that XY of the refractor shown; where that fails all stays as it was.
void RefractionProcessingDialog::takeXY(double xy) {
  const int refractor = mUi->refractorCombo->currentIndex();
  if (refractor < 0) return;
  const auto layer = static_cast<std::uint32_t>(refractor) + 2;
  const double before = mWork.refractData.cData[static_cast<std::size_t>(refractor)].chosenXY;
  chooseXY(mWork, layer, xy);
  if (build(mWarnings)) return;
  chooseXY(mWork, layer, before);
  showFunctions();
}

void RefractionProcessingDialog::on_methodsButton_clicked() {
  LayerMethodsDialog dialog(layerPicksOf(mDocument, mWork, errorRuleOf(mDocument)), this);
  dialog.pictureWanted = methodsPictureWanted;
  dialog.tableWanted = methodsTableWanted;
  dialog.exec();
}

}  // namespace talvesk
