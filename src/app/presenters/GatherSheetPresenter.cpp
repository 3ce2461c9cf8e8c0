#include "app/presenters/GatherSheetPresenter.h"

#include "app/Messages.h"
#include "app/dialogs/GatherSheetDialog.h"
#include "app/presenters/FileExport.h"
#include "ui_Talvesk_MainWindows.h"

#include <QFileInfo>
#include <QProgressDialog>
#include <QSettings>

namespace talvesk {

void GatherSheetPresenter::ask() {
  GatherSheetDialog dialog(mDesk.document(), &mDesk.window);
  QSettings remembered(mDesk.windowStateFile(), QSettings::IniFormat);
  dialog.recall(remembered);
  dialog.setManner(mDesk.ui.showTracesWidget->options().manner);
  dialog.showShot(mDesk.shot.index());
  if (dialog.exec() != QDialog::Accepted) return;
  dialog.remember(remembered);
  const QString file = askForExport(
      mDesk, tr("Save Sheets of Shots"),
      tr("PDF, all sheets in one file (*.pdf);;SVG picture (*.svg);;PNG picture (*.png)"), "pdf");
  if (file.isEmpty()) return;
  const GatherSheetOptions options = dialog.options();
  if (mayReplace(file, options)) write(file, options);
}

/// The dialog of files has asked for the one name that it knows.
bool GatherSheetPresenter::mayReplace(const QString& file, const GatherSheetOptions& options) {
  QStringList existing;
  for (const std::string& path : gatherSheetFiles(mDesk.document(), options, file.toStdString())) {
    const QFileInfo info(QString::fromStdString(path));
    if (info.exists() && info.filePath() != file) existing += info.fileName();
  }
  return existing.isEmpty() ||
         askYesNo(&mDesk.window, tr("Warning"),
                  tr("%n file(s) exist already.", nullptr, existing.size()),
                  tr("Do you want to replace them?") + QStringLiteral("\n\n") + shortList(existing),
                  false);
}

void GatherSheetPresenter::write(const QString& file, const GatherSheetOptions& options) {
  const auto sheets = static_cast<int>(gatherSheets(mDesk.document(), options));
  QProgressDialog progress(tr("Writing pictures ..."), tr("Stop"), 0, sheets, &mDesk.window);
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(0);
  std::vector<std::string> written;
  const Status status = writeGatherSheets(
      mDesk.document(), options, file.toStdString(), written, [&progress](std::size_t sheet) {
        progress.setValue(static_cast<int>(sheet));  // lets the window live
        return !progress.wasCanceled();
      });
  const bool stopped = progress.wasCanceled();
  progress.close();
  if (status.ok()) {
    return mDesk.tell(written.size() == 1
                          ? tr("Saved in %1").arg(QString::fromStdString(written.front()))
                          : tr("%n picture(s) saved.", nullptr, static_cast<int>(written.size())));
  }
  const QString told = tr("The sheets have not all been saved; %n file(s) are complete.", nullptr,
                          static_cast<int>(written.size()));
  mDesk.tell(told);
  if (!stopped) mDesk.tellFailure(told, status);
}

}  // namespace talvesk
