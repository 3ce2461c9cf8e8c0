#include "app/DialogSetGeometry.h"
#include "app/LossQuestion.h"
#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "model/Recordings.h"
#include "refraction/ShotArrivals.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/editTravelTimesWidget.h"

#include <QStatusBar>

// The command that edits where geophones and shots stand.

namespace talvesk {

void Talvesk_MainWindows::on_actionGeometry_triggered() {
  logSlot(__func__);
  askGeometry();
}

bool Talvesk_MainWindows::askGeometry() {
  DialogSetGeometry::Context context;
  context.interpreted = isInterpreted(mInterpretation);
  DialogSetGeometry dialog(mDocument, mLoader.state(), mFolders, context, this);
  if (dialog.exec() != QDialog::Accepted) return false;
  takeGeometry(dialog.geometry());
  return true;
}

void Talvesk_MainWindows::takeGeometry(const SurveyGeometry& geometry) {
  if (!applyGeometry(geometry, mDocument)) return;
  // Which pick belongs to which layer does not depend on positions; what was computed does.
  forgetResults(mInterpretation);

  std::vector<std::size_t> fresh;
  mShots.resize(mDocument.recordings->traceSets.size());
  for (std::size_t i = 0; i < geometry.shots.size(); ++i) {
    const auto& pair = geometry.shots[i].pair;
    if (!pair) continue;
    fresh.push_back(i);
    mShots[i] = ShotMemory();
    mShots[i].format = QString::fromStdString(pair->format);
    mShots[i].warnings = pair->warnings;
    if (i < mInterpretation.ttLayer.size()) mInterpretation.ttLayer[i].layer.clear();
  }
  if (!fresh.empty()) {
    for (editTravelTimesWidget* editor : editors()) editor->picksReplaced();
  }
  documentChanged();
  if (!fresh.empty()) showFresh(static_cast<int>(fresh.front()));
  statusBar()->showMessage(tr("The geometry of the survey has changed."), kMessageTime);
  askForShotTime(fresh);
}

void Talvesk_MainWindows::refreshGeometryCommands() {
  // An empty survey, too, can get geophones and S-wave pairs.
  mUi->actionGeometry->setEnabled(true);
}

}  // namespace talvesk
