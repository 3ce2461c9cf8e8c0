#include "app/Messages.h"
#include "app/RefractionProcessingDialog.h"
#include "app/Talvesk_MainWindows.h"
#include "ui_Talvesk_MainWindows.h"
#include "view/RefractorLines.h"

// The commands of the layered interpretation.

namespace talvesk {

void Talvesk_MainWindows::on_actionRefraction_triggered() {
  logSlot(__func__);
  if (document().ttArray.empty()) return;
  if (!document().picksComplete() &&
      !askYesNo(this, tr("Warning"),
                tr("Uncomplete set of picks. \n \n"
                   "Do you want to run refraction processing anyway? "),
                {}, false)) {
    return;
  }
  RefractionProcessingDialog dialog(document(), interpretation(), this);
  if (dialog.exec() != QDialog::Accepted || !dialog.hasChanges()) return;
  edit(Edit::kRefraction, [&](Survey& survey) {
    survey.interpretation = dialog.interpretation();
    // A profile that was just built is worth seeing.
    if (dialog.profileBuilt()) survey.section.refraction = true;
  });
}

void Talvesk_MainWindows::on_actionShow_refraction_triggered() {
  logSlot(__func__);
  const bool shown = mUi->actionShow_refraction->isChecked();
  mSession.setView([shown](SectionViewSettings& section) { section.refraction = shown; });
}

void Talvesk_MainWindows::refreshRefractionCommands() {
  mUi->actionRefraction->setEnabled(!document().ttArray.empty());
  mUi->actionShow_refraction->setEnabled(!refractorLines(interpretation()).empty());
  mUi->actionShow_refraction->setCheckable(true);
  mUi->actionShow_refraction->setChecked(section().refraction);
}

}  // namespace talvesk
