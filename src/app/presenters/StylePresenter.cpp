#include "app/presenters/StylePresenter.h"

#include "app/presenters/FileExport.h"
#include "io/StyleFile.h"
#include "io/Survey.h"

#include <QFileDialog>
#include <QFileInfo>

namespace talvesk {

void StylePresenter::save() {
  const QString file =
      askForExport(mDesk, tr("Save style"), tr("Talvesk styles (*.tvstyle)"), "tvstyle");
  if (file.isEmpty()) return;
  exportTo(mDesk, file, [&](const std::string& path) {
    return writeStyle(path, styleOf(mDesk.document(), mDesk.palettes().current(), mDesk.section()));
  });
}

void StylePresenter::apply() {
  const QString file =
      QFileDialog::getOpenFileName(&mDesk.window, tr("Apply style"), mDesk.folders.toOpen(),
                                   tr("Talvesk styles (*.tvstyle);;All files (*)"));
  if (file.isEmpty()) return;
  mDesk.folders.opened(file);
  SectionStyle style;
  const Status status = readStyle(file.toStdString(), style);
  if (!status.ok()) return mDesk.tellFailure(tr("The section looks as before."), status);
  mDesk.showSection();
  const bool done = mDesk.edit(Edit::kStyle, [&](Survey& survey) {
    applyStyle(style, survey.document, survey.palettes.edit(), survey.section);
  });
  if (done) mDesk.tell(tr("Style of %1").arg(QFileInfo(file).fileName()));
}

}  // namespace talvesk
