#include "app/presenters/CertaintyPresenter.h"

#include "app/dialogs/CertaintyDialog.h"
#include "io/Survey.h"
#include "model/TomographyOutcome.h"

namespace talvesk {

void CertaintyPresenter::ask() {
  CertaintyDialog dialog(mDesk.document(), mRun, &mDesk.window);
  dialog.exec();
  if (!dialog.certainty()) return;
  const Certainty& found = *dialog.certainty();
  mDesk.tellUnlessDone(mDesk.session.apply(Edit::kCertainty, [&](Survey& survey) {
    survey.document.result.edit().certainty = found;
    return Status();
  }));
  mDesk.showSection();
  mDesk.session.setView([](SectionViewSettings& section) {
    section.quantity = SectionQuantity::kCertainty;
    section.profile = true;
  });
  mDesk.tell(tr("Certainty: %1 members, %2 left out.").arg(found.members).arg(found.leftOut));
}

}  // namespace talvesk
