#include "app/presenters/RefractionPresenter.h"

#include "app/Messages.h"
#include "app/dialogs/RefractionProcessingDialog.h"
#include "io/Survey.h"

namespace talvesk {

void RefractionPresenter::interpret() {
  if (mDesk.document().ttArray.empty()) return;
  if (!mDesk.document().picksComplete() &&
      !askYesNo(&mDesk.window, tr("Warning"),
                tr("Uncomplete set of picks. \n \n"
                   "Do you want to run refraction processing anyway? "),
                {}, false)) {
    return;
  }
  RefractionProcessingDialog dialog(mDesk.document(), mDesk.interpretation(), &mDesk.window);
  if (dialog.exec() != QDialog::Accepted || !dialog.hasChanges()) return;
  mDesk.edit(Edit::kRefraction, [&](Survey& survey) {
    survey.interpretation = dialog.interpretation();
    // A profile that was just built is worth seeing.
    if (dialog.profileBuilt()) survey.section.refraction = true;
  });
}

}  // namespace talvesk
