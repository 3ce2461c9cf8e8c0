#include "app/presenters/CertaintyPresenter.h"

#include "app/dialogs/CertaintyDialog.h"
#include "io/Survey.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"

#include <QLocale>

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
  const double beyond = found.percentBeyond(mDesk.document().model->grid->velocities());
  mDesk.tell(tr("Certainty: %1 members, %2 left out. The section shown lies beyond two deviations "
                "in %3 % of the cells with rays.")
                 .arg(found.members)
                 .arg(found.leftOut)
                 .arg(QLocale().toString(beyond, 'f', 0)));
}

}  // namespace talvesk
