#include "app/presenters/RecordExportPresenter.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "io/RecordExport.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QProgressDialog>

namespace talvesk {

bool RecordExportPresenter::askHow(RecordExport& wanted) {
  const QStringList ways = {tr("SEG-Y, a file for each shot"), tr("SEG-Y, all shots in one file"),
                            tr("SEG-2, a file for each shot")};
  bool answered = false;
  const QString way = QInputDialog::getItem(&mDesk.window, tr("Export recordings"), tr("&Format:"),
                                            ways, 0, false, &answered);
  if (!answered) return false;
  wanted.format = way == ways[2] ? RecordFormat::kSeg2 : RecordFormat::kSegy;
  wanted.together = way == ways[1];
  const QString folder = QFileDialog::getExistingDirectory(
      &mDesk.window, tr("Folder for the recordings"), mDesk.folders.toSave());
  wanted.folder = folder.toStdString();
  return !folder.isEmpty();
}

/// Not over the files that the survey came from, and over others when the user says so.
bool RecordExportPresenter::mayWrite(const RecordExport& wanted) {
  const Recordings& recordings = *mDesk.document().recordings;
  QStringList sources;
  for (const auto* files :
       {&recordings.filenames, &recordings.filenames_DX, &recordings.filenames_SX}) {
    for (const std::string& file : *files) {
      if (!file.empty()) sources += QFileInfo(QString::fromStdString(file)).canonicalFilePath();
    }
  }
  QStringList existing;
  for (const std::string& path : recordFiles(mDesk.document(), wanted)) {
    const QFileInfo file(QString::fromStdString(path));
    if (!file.exists()) continue;
    existing += file.fileName();
    if (!sources.contains(file.canonicalFilePath())) continue;
    showWarning(&mDesk.window, tr("Warning"),
                tr("%1 is one of the shot files of this survey.").arg(file.fileName()),
                tr("Choose another folder."));
    return false;
  }
  return existing.isEmpty() ||
         askYesNo(&mDesk.window, tr("Warning"),
                  tr("%n file(s) exist already.", nullptr, existing.size()),
                  tr("Do you want to replace them?") + QStringLiteral("\n\n") + shortList(existing),
                  false);
}

void RecordExportPresenter::write(const RecordExport& wanted) {
  const TomoDocument document = mDesk.document();  // as it is now, while the window lives
  const QString folder = QString::fromStdString(wanted.folder);
  std::vector<Message> notes;
  QProgressDialog progress(tr("Writing recordings ..."), tr("Stop"), 0,
                           static_cast<int>(document.ttArray.size()), &mDesk.window);
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(300);
  const Status status = exportRecords(document, wanted, notes, [&](std::size_t shot) {
    progress.setValue(static_cast<int>(shot));  // lets the window live
    return !progress.wasCanceled();
  });
  const bool stopped = progress.wasCanceled();
  progress.reset();
  if (stopped) {
    mDesk.tell(tr("The export to %1 was stopped; some files are missing.").arg(folder));
    return;
  }
  if (!status.ok()) {
    mDesk.tellFailure(tr("The recordings have not been exported."), status);
    return;
  }
  mDesk.folders.saved(folder + QLatin1Char('/'));
  mDesk.tell(tr("Recordings saved in %1").arg(folder));
  if (notes.empty()) return;
  showNote(&mDesk.window, tr("Export recordings"), tr("The recordings have been saved."),
           shortList(linesOf(notes)));
}

void RecordExportPresenter::exportRecordings() {
  RecordExport wanted;
  if (!askHow(wanted) || !mayWrite(wanted)) return;
  write(wanted);
}

}  // namespace talvesk
