#include "app/DialogSetGeometry.h"
#include "app/LossQuestion.h"
#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "model/Recordings.h"
#include "refraction/ShotArrivals.h"
#include "ui_Talvesk_MainWindows.h"

#include <QStatusBar>

// The command that edits where geophones and shots stand.

namespace talvesk {

void Talvesk_MainWindows::on_actionGeometry_triggered() {
  logSlot(__func__);
  askGeometry();
}

bool Talvesk_MainWindows::askGeometry() {
  DialogSetGeometry::Context context;
  context.interpreted = isInterpreted(interpretation());
  DialogSetGeometry dialog(document(), mLoader.state(), mFolders, context, this);
  if (dialog.exec() != QDialog::Accepted) return false;
  takeGeometry(dialog.geometry());
  return true;
}

void Talvesk_MainWindows::takeGeometry(const SurveyGeometry& geometry) {
  if (!geometryDiffers(geometry, document())) return;
  std::vector<std::size_t> fresh;
  for (std::size_t i = 0; i < geometry.shots.size(); ++i) {
    if (geometry.shots[i].pair) fresh.push_back(i);
  }
  const bool done = edit(fresh.empty() ? Edit::kGeometry : Edit::kRecordPairs, [&](Survey& survey) {
    applyGeometry(geometry, survey.document);
    for (const std::size_t shot : fresh) forgetMarks(shot, survey.interpretation.edit());
  });
  if (!done) return;
  if (!fresh.empty()) showFresh(static_cast<int>(fresh.front()));
  statusBar()->showMessage(tr("The geometry of the survey has changed."), kMessageTime);
  askForShotTime(fresh);
}

void Talvesk_MainWindows::refreshGeometryCommands() {
  // An empty survey, too, can get geophones and S-wave pairs.
  mUi->actionGeometry->setEnabled(true);
}

}  // namespace talvesk
