#include "app/presenters/FencePresenter.h"

#include "app/AfterClosing.h"
#include "app/dialogs/FenceDialog.h"
#include "app/presenters/FileExport.h"
#include "app/presenters/ProjectPresenter.h"
#include "base/AtomicFile.h"
#include "io/project/projectReader.h"
#include "ui_Talvesk_MainWindows.h"

#include <QBuffer>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <utility>

namespace talvesk {
namespace {

Status writePng(const std::string& path, const QImage& image) {
  QBuffer buffer;
  if (!image.save(&buffer, "PNG")) {
    return Status::failure(Message::tr("Cannot write %1").arg(path));
  }
  const QByteArray& bytes = buffer.data();
  return writeFileAtomically(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace

void FencePresenter::show() {
  const QString name = proposedName(mDesk);
  FenceDialog dialog({name.isEmpty() ? tr("This survey") : name, mDesk.document(),
                      QFileInfo(mDesk.project.path()).canonicalFilePath()},
                     mDesk.palettes().current(), mDesk.section().verticalExaggeration,
                     &mDesk.window);
  dialog.offerWhereEmpty({afterClosing(dialog, *mDesk.ui.actionSet_geography_coordinates),
                          afterClosing(dialog, *mDesk.ui.actionSurveyed_positions)});
  dialog.addWanted = [&] { addTo(dialog); };
  dialog.saveWanted = [&] { save(dialog); };
  dialog.exec();
}

void FencePresenter::addTo(FenceDialog& dialog) {
  const QStringList files = QFileDialog::getOpenFileNames(
      &dialog, tr("Add projects to the fence"), mDesk.folders.toOpen(),
      tr("Talvesk projects (*.tvsk);;All Files (*)"));
  for (const QString& file : files) {
    mDesk.folders.opened(file);
    LoadedProject project;
    if (!mProjects.read(file, project)) continue;
    dialog.add({QFileInfo(file).completeBaseName(), std::move(project.document),
                QFileInfo(file).canonicalFilePath()});
  }
}

void FencePresenter::save(const FenceDialog& dialog) {
  const QString file =
      askForExport(mDesk, tr("Save picture of the fence"), tr("Pictures (*.png)"), "png");
  if (file.isEmpty()) return;
  exportTo(mDesk, file, [&](const std::string& path) { return writePng(path, dialog.picture()); });
}

}  // namespace talvesk
