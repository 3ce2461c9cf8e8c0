#pragma once

#include "refraction/methods/MethodComparison.h"

#include <QDialog>
#include <functional>
#include <memory>

namespace talvesk {

namespace Ui {
class LayerMethodsDialog;
}
class BackgroundMethods;
class FigureSheetWidget;

/// The layers of one set of marks by every method, side by side: their refractors in one picture, a
/// table per refractor, medians, where methods are farthest apart, and why one says nothing. What
/// the picks tell is there at once; error bands follow, and can be stopped.
class LayerMethodsDialog : public QDialog {
  Q_OBJECT

 public:
  explicit LayerMethodsDialog(LayerPicks picks, QWidget* parent = nullptr);
  ~LayerMethodsDialog() override;

  const MethodComparison& comparison() const { return mComparison; }  ///< that is shown

  /// Asked to write what is shown.
  std::function<void(const MethodComparison&)> pictureWanted;
  std::function<void(const MethodComparison&)> tableWanted;

 private:
  void start(int members);
  void showProgress();
  void end();
  void enable();
  void showAll();
  void showFigure();
  void showSummary();
  void showLayers();
  void copyTable();

  std::unique_ptr<Ui::LayerMethodsDialog> mUi;
  const LayerPicks mPicks;
  MethodComparison mComparison;
  BackgroundMethods* mRun;
  FigureSheetWidget* mSheet;
  int mMembers = 0;  ///< of the run under way, or the last one
};

}  // namespace talvesk
