#include "app/Messages.h"
#include "app/RefractionProcessingDialog.h"
#include "app/Talvesk_MainWindows.h"
#include "ui_Talvesk_MainWindows.h"
#include "view/RefractorLines.h"

// The commands of the layered interpretation.

namespace talvesk {

void Talvesk_MainWindows::on_actionRefraction_triggered() {
  logSlot(__func__);
  if (mDocument.ttArray.empty()) return;
  if (!mDocument.picksComplete() &&
      !askYesNo(this, tr("Warning"),
                tr("Uncomplete set of picks. \n \n"
                   "Do you want to run refraction processing anyway? "),
                {}, false)) {
    return;
  }
  RefractionProcessingDialog dialog(mDocument, mInterpretation, this);
  if (dialog.exec() != QDialog::Accepted || !dialog.hasChanges()) return;
  mInterpretation = dialog.interpretation();
  // A profile that was just built is worth seeing.
  if (dialog.profileBuilt()) mSection.refraction = true;
  documentModified();
  refreshSection();
}

void Talvesk_MainWindows::on_actionShow_refraction_triggered() {
  logSlot(__func__);
  mSection.refraction = mUi->actionShow_refraction->isChecked();
  refreshSection();
}

void Talvesk_MainWindows::refreshRefractionCommands() {
  mUi->actionRefraction->setEnabled(!mDocument.ttArray.empty());
  mUi->actionShow_refraction->setEnabled(!refractorLines(mInterpretation).empty());
  mUi->actionShow_refraction->setCheckable(true);
  mUi->actionShow_refraction->setChecked(mSection.refraction);
}

}  // namespace talvesk
