#include "app/presenters/GeometryPresenter.h"

#include "app/LossQuestion.h"
#include "app/dialogs/DialogSetGeometry.h"
#include "app/presenters/ShotTimeQuestion.h"
#include "io/Survey.h"
#include "model/Recordings.h"
#include "refraction/ShotArrivals.h"

namespace talvesk {

bool GeometryPresenter::ask() {
  DialogSetGeometry::Context context;
  context.interpreted = isInterpreted(mDesk.interpretation());
  DialogSetGeometry dialog(mDesk.document(), mDesk.loader.state(), mDesk.folders, context,
                           &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return false;
  take(dialog.geometry());
  return true;
}

void GeometryPresenter::take(const SurveyGeometry& geometry) {
  if (!geometryDiffers(geometry, mDesk.document())) return;
  std::vector<std::size_t> fresh;
  for (std::size_t i = 0; i < geometry.shots.size(); ++i) {
    if (geometry.shots[i].pair) fresh.push_back(i);
  }
  const bool done =
      mDesk.edit(fresh.empty() ? Edit::kGeometry : Edit::kRecordPairs, [&](Survey& survey) {
        applyGeometry(geometry, survey.document);
        for (const std::size_t shot : fresh) forgetMarks(shot, survey.interpretation.edit());
      });
  if (!done) return;
  if (!fresh.empty()) mDesk.showFresh(static_cast<int>(fresh.front()));
  mDesk.tell(tr("The geometry of the survey has changed."));
  askForShotTime(mDesk, fresh);
}

}  // namespace talvesk
