#pragma once

#include "figures/SectionFigureOptions.h"
#include "model/RefractionDataStructure.h"
#include "model/TomoDocument.h"
#include "tomo/LayeredProfile.h"
#include "tomo/RefractorReading.h"

#include <QDialog>
#include <functional>
#include <memory>

namespace talvesk {

namespace Ui {
class CompareLayersDialog;
}
class FigureSheetWidget;

/// A refractor of the layered profile and the same as the section has it, as two lines over the
/// section and as a table, geophone by geophone.
class CompareLayersDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document with a grid \param look palette, markers and the like of the section
  CompareLayersDialog(const TomoDocument& document,
                      const refractionDataStructure::processingData& results,
                      const SectionFigureOptions& look, QWidget* parent = nullptr);
  ~CompareLayersDialog() override;

  /// Asked to write what is shown.
  std::function<void(const SectionFigureOptions&)> pictureWanted;
  std::function<void(const LayerComparison&)> tableWanted;

 private:
  void chooseRefractor();
  void show();
  void showTable();
  QString figures() const;
  SectionFigureOptions picture() const;

  std::unique_ptr<Ui::CompareLayersDialog> mUi;
  const TomoDocument mDocument;
  const refractionDataStructure::processingData mResults;
  const SectionFigureOptions mLook;
  LayeredProfile mProfile;
  LayerComparison mComparison;
  FigureSheetWidget* mSheet;
};

}  // namespace talvesk
