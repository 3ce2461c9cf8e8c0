#pragma once

#include "app/BackgroundResolution.h"
#include "figures/ResolutionFigure.h"
#include "model/TomoDocument.h"

#include <QDialog>
#include <functional>
#include <memory>

namespace talvesk {

namespace Ui {
class ResolutionDialog;
}
class FigureSheetWidget;

/// Asks for the pattern of a resolution test, carries it out beside the window, and shows what was
/// put in, what came back and how they correlate with depth.
class ResolutionDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document without a grid or picks: the dialog says what to do first
  explicit ResolutionDialog(const TomoDocument& document, QWidget* parent = nullptr);
  ~ResolutionDialog() override;

  /// Asked to write the picture that is shown, and the table of all tests.
  std::function<void(const ResolutionPanels&)> savePicture;
  std::function<void(const ResolutionReport&)> saveTable;

 public slots:
  void reject() override;  ///< stops what is under way first, and waits for it

 private:
  void proposeSize();
  ResolutionRequest request() const;
  void start();
  void showProgress();
  void end();
  void showTest();
  void enable(bool running);
  QString smallestSizes() const;

  std::unique_ptr<Ui::ResolutionDialog> mUi;
  const TomoDocument mDocument;
  BackgroundResolution mRun;
  FigureSheetWidget* mSheet;
  Status mReady;  ///< why no test can be made
  bool mClosing = false;
};

}  // namespace talvesk
