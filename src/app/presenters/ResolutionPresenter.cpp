#include "app/presenters/ResolutionPresenter.h"

#include "app/dialogs/ResolutionDialog.h"
#include "app/presenters/FileExport.h"
#include "export/ResolutionTable.h"

namespace talvesk {

void ResolutionPresenter::test() {
  ResolutionDialog dialog(mDesk.document(), &mDesk.window);
  dialog.savePicture = [this](const ResolutionPanels& panels) {
    const QString file =
        askForExport(mDesk, tr("Save picture of the resolution test"),
                     tr("PNG picture (*.png);;SVG picture (*.svg);;PDF document (*.pdf)"), "png");
    if (file.isEmpty()) return;
    exportTo(mDesk, file,
             [&](const std::string& path) { return writeResolutionFigure(panels, path); });
  };
  dialog.saveTable = [this](const ResolutionReport& report) {
    const QString file = askForExport(mDesk, tr("Save table of the resolution test"),
                                      tr("Table of resolution by depth (*.csv)"), "csv");
    if (file.isEmpty()) return;
    exportTo(mDesk, file,
             [&](const std::string& path) { return writeResolutionTable(path, report); });
  };
  dialog.exec();
}

}  // namespace talvesk
