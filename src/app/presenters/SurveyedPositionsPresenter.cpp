#include "app/presenters/SurveyedPositionsPresenter.h"

#include "app/LossQuestion.h"
#include "app/Messages.h"
#include "app/WaitCursor.h"
#include "app/dialogs/SurveyedPositionsDialog.h"
#include "io/Survey.h"

#include <QFileDialog>
#include <QFileInfo>
#include <utility>

namespace talvesk {

void SurveyedPositionsPresenter::ask() {
  SurveyedPositionsDialog dialog(mDesk.document(), isInterpreted(mDesk.interpretation()),
                                 &mDesk.window);
  if (!openTable(dialog, &mDesk.window)) return;
  connect(&dialog, &SurveyedPositionsDialog::otherTableWanted, this,
          [&] { openTable(dialog, &dialog); });
  if (dialog.exec() != QDialog::Accepted) return;
  const bool done = mDesk.edit(Edit::kSurveyedPositions, [&](Survey& survey) {
    applySurveyed(dialog.outcome(), survey.document);
  });
  if (done) mDesk.tell(tr("Geophones and shots stand where they were surveyed."));
}

/// False when nobody wants one or it cannot be read.
bool SurveyedPositionsPresenter::openTable(SurveyedPositionsDialog& dialog, QWidget* parent) {
  const QString file = QFileDialog::getOpenFileName(
      parent, tr("Open surveyed positions"), mDesk.folders.toOpen(),
      tr("Tables of coordinates (*.csv *.tsv *.txt *.dat *.xyz *.asc);;All files (*)"));
  if (file.isEmpty()) return false;
  mDesk.folders.opened(file);
  SurveyedTable table;
  const Status status =
      whileWaiting([&] { return SurveyedTable::open(file.toStdString(), table); });
  if (!status.ok()) {
    mDesk.tellFailure(tr("The positions cannot be read."), status);
    return false;
  }
  dialog.setTable(std::move(table), QFileInfo(file).fileName());
  return true;
}

}  // namespace talvesk
