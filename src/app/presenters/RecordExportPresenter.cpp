#include "app/presenters/RecordExportPresenter.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "io/PickedCopies.h"
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
bool RecordExportPresenter::mayWrite(const std::vector<std::string>& targets) {
  const Recordings& recordings = *mDesk.document().recordings;
  QStringList sources;
  for (const auto* files :
       {&recordings.filenames, &recordings.filenames_DX, &recordings.filenames_SX}) {
    for (const std::string& file : *files) {
      if (!file.empty()) sources += QFileInfo(QString::fromStdString(file)).canonicalFilePath();
    }
  }
  QStringList existing;
  for (const std::string& path : targets) {
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

bool RecordExportPresenter::written(
    const QString& label, const QString& folder, std::size_t steps,
    const std::function<Status(const std::function<bool(std::size_t)>&)>& write) {
  QProgressDialog progress(label, tr("Stop"), 0, static_cast<int>(steps), &mDesk.window);
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(300);
  const Status status = write([&](std::size_t step) {
    progress.setValue(static_cast<int>(step));  // lets the window live
    return !progress.wasCanceled();
  });
  const bool stopped = progress.wasCanceled();
  progress.reset();
  if (stopped) {
    mDesk.tell(tr("The export to %1 was stopped; some files are missing.").arg(folder));
    return false;
  }
  if (!status.ok()) {
    mDesk.tellFailure(tr("The recordings have not been exported."), status);
    return false;
  }
  mDesk.folders.saved(folder + QLatin1Char('/'));
  mDesk.tell(tr("Recordings saved in %1").arg(folder));
  return true;
}

void RecordExportPresenter::write(const RecordExport& wanted) {
  const TomoDocument document = mDesk.document();  // as it is now, while the window lives
  std::vector<Message> notes;
  const auto writing = [&](const std::function<bool(std::size_t)>& progress) {
    return exportRecords(document, wanted, notes, progress);
  };
  if (!written(tr("Writing recordings ..."), QString::fromStdString(wanted.folder),
               document.ttArray.size(), writing) ||
      notes.empty()) {
    return;
  }
  showNote(&mDesk.window, tr("Export recordings"), tr("The recordings have been saved."),
           shortList(linesOf(notes)));
}

void RecordExportPresenter::exportRecordings() {
  RecordExport wanted;
  if (!askHow(wanted) || !mayWrite(recordFiles(mDesk.document(), wanted))) return;
  write(wanted);
}

void RecordExportPresenter::copyWithPicks() {
  const TomoDocument document = mDesk.document();  // as it is now, while the window lives
  const QString folder = QFileDialog::getExistingDirectory(
      &mDesk.window, tr("Folder for the shot files with picks"), mDesk.folders.toSave());
  if (folder.isEmpty()) return;
  const std::vector<std::string> files = pickedCopies(document, folder.toStdString());
  if (!mayWrite(files)) return;
  std::vector<Message> notes;
  const auto writing = [&](const std::function<bool(std::size_t)>& progress) {
    return writePickedCopies(document, folder.toStdString(), notes, progress);
  };
  if (!written(tr("Writing recordings ..."), folder, 2 * files.size(), writing)) return;
  QStringList lines = {
      tr("In SEG-2 files a pick is FIRST_BREAK in seconds; in SEG-Y and SU files "
         "it is whole microseconds in bytes 233 to 236 of the trace header. Both "
         "count from the shot.")};
  showNote(&mDesk.window, tr("Shot files with picks"), tr("The recordings have been saved."),
           shortList(lines + linesOf(notes)));
}

}  // namespace talvesk
