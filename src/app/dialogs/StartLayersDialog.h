#pragma once

#include "figures/SectionFigureOptions.h"
#include "model/RefractionDataStructure.h"
#include "model/TomoDocument.h"

#include <QDialog>
#include <memory>

namespace talvesk {

namespace Ui {
class StartLayersDialog;
}
class FigureSheetWidget;

/// Asks how the layered profile gets into the grid, and shows the section that it makes before
/// anything is changed.
class StartLayersDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document with a grid \param look palette, markers and refractors of the preview
  StartLayersDialog(const TomoDocument& document,
                    const refractionDataStructure::processingData& results,
                    const SectionFigureOptions& look, QWidget* parent = nullptr);
  ~StartLayersDialog() override;

  double thickness() const;  ///< metres over which jumps are graded; 0: sharp
  const TomoDocument& filled() const { return mFilled; }  ///< the document with that model

 private:
  void fill();

  std::unique_ptr<Ui::StartLayersDialog> mUi;
  const TomoDocument mDocument;
  const refractionDataStructure::processingData mResults;
  const SectionFigureOptions mLook;
  TomoDocument mFilled;
  FigureSheetWidget* mSheet;
};

}  // namespace talvesk
