#include "app/presenters/RefractionPresenter.h"

#include "app/LayeredModel.h"
#include "app/Messages.h"
#include "app/dialogs/RefractionProcessingDialog.h"
#include "app/presenters/FileExport.h"
#include "export/LayerMethodsText.h"
#include "figures/LayerMethodsFigure.h"
#include "io/Survey.h"

#include <utility>

namespace talvesk {

void RefractionPresenter::interpret() {
  if (mDesk.document().ttArray.empty()) return;
  if (!mDesk.document().picksComplete() &&
      !askYesNo(&mDesk.window, tr("Warning"),
                tr("Uncomplete set of picks. \n \n"
                   "Do you want to run refraction processing anyway? "),
                {}, false)) {
    return;
  }
  RefractionProcessingDialog dialog(mDesk.document(), mDesk.interpretation(), &mDesk.window);
  dialog.methodsPictureWanted = [this](const MethodComparison& shown) {
    const QString file =
        askForExport(mDesk, tr("Save picture of layers by method"),
                     tr("PNG picture (*.png);;SVG picture (*.svg);;PDF document (*.pdf)"), "png");
    if (file.isEmpty()) return;
    exportTo(mDesk, file,
             [&](const std::string& path) { return writeLayerMethodsFigure(shown, {}, path); });
  };
  dialog.methodsTableWanted = [this](const MethodComparison& shown) {
    const QString file =
        askForExport(mDesk, tr("Save table of layers by method"), tr("Table (*.csv)"), "csv");
    if (file.isEmpty()) return;
    exportTo(mDesk, file, [&](const std::string& path) { return writeLayerMethods(path, shown); });
  };
  if (dialog.exec() != QDialog::Accepted) return;
  const bool kept = !dialog.hasChanges() || mDesk.edit(Edit::kRefraction, [&](Survey& survey) {
    survey.interpretation = dialog.interpretation();
    // A profile that was just built is worth seeing.
    if (dialog.profileBuilt()) survey.section.refraction = true;
  });
  // The edit has made those of an earlier profile void.
  if (auto errors = dialog.profileErrors(); kept && errors) mLayered.setErrors(std::move(errors));
}

}  // namespace talvesk
