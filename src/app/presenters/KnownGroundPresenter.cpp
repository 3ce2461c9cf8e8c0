#include "app/presenters/KnownGroundPresenter.h"

#include "app/dialogs/KnownGroundDialog.h"
#include "app/presenters/FileExport.h"
#include "io/KnownGroundFile.h"
#include "io/Survey.h"
#include "model/TomographyOutcome.h"

#include <QFileDialog>

namespace talvesk {
namespace {

const char* const kSuffix = "csv";

}  // namespace

/// What the section that is shown has to do with what is known.
QString KnownGroundPresenter::remark() const {
  const auto& run = mDesk.document().result->lastInversion;
  const std::uint64_t now = fingerprintOf(*mDesk.document().known);
  if (!run || (now == 0 && !(run->fit && run->fit->known != 0))) return {};
  if (!run->fit || run->fit->known == 0) return tr("The section is not held to known ground.");
  return run->fit->known == now
             ? tr("The section is held to this.")
             : tr("The section is held to known ground that was another: run the fit again.");
}

void KnownGroundPresenter::ask() {
  KnownGroundDialog dialog(*mDesk.document().known, remark(), &mDesk.window);
  connect(&dialog, &KnownGroundDialog::importWanted, this, [&] { importInto(dialog); });
  connect(&dialog, &KnownGroundDialog::exportWanted, this, [&] { exportFrom(dialog); });
  if (dialog.exec() != QDialog::Accepted || dialog.known() == *mDesk.document().known) return;
  mDesk.edit(Edit::kKnownGround,
             [&](Survey& survey) { survey.document.known = KnownGround(dialog.known()); });
}

void KnownGroundPresenter::importInto(KnownGroundDialog& dialog) {
  const QString file =
      QFileDialog::getOpenFileName(&dialog, tr("Import known ground"), mDesk.folders.toOpen(),
                                   tr("Tables of known ground (*.csv *.txt);;All files (*)"));
  if (file.isEmpty()) return;
  mDesk.folders.opened(file);
  KnownGround known;
  const Status status = readKnownGround(file.toStdString(), known);
  if (!status.ok()) return mDesk.tellFailure(tr("Nothing was imported."), status);
  dialog.take(known);
}

void KnownGroundPresenter::exportFrom(KnownGroundDialog& dialog) {
  if (!dialog.checked()) return;
  const QString file =
      askForExport(mDesk, tr("Export known ground"), tr("Tables of known ground (*.csv)"), kSuffix);
  if (file.isEmpty()) return;
  exportTo(mDesk, file,
           [&](const std::string& path) { return writeKnownGround(path, dialog.known()); });
}

}  // namespace talvesk
