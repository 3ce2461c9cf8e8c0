#pragma once

#include "app/FenceLines.h"
#include "view/ColorPalette.h"

#include <QDialog>
#include <functional>
#include <memory>
#include <vector>

class QAction;
class QImage;

namespace talvesk {

namespace Ui {
class FenceDialog;
}
class EmptyPage;
class FenceView;

/// Shows the sections of several lines where they stand on the map. The lines are copies: nothing
/// here changes a survey.
class FenceDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param own the open survey, which stays in the fence
  /// \param palette of all, with the range that all share
  FenceDialog(FenceLine own, const ColorPalette& palette, double exaggeration,
              QWidget* parent = nullptr);
  ~FenceDialog() override;

  /// Commands that give the survey what it lacks to stand in the fence.
  void offerWhereEmpty(const QList<QAction*>& commands);
  void add(FenceLine line);
  QImage picture() const;

  std::function<void()> addWanted;   ///< asked for more projects
  std::function<void()> saveWanted;  ///< asked for a file of the picture

 private:
  bool isTaken(const QString& name) const;
  QStringList beyondColors(const FenceScene& scene) const;
  void remove();
  void refresh();

  std::unique_ptr<Ui::FenceDialog> mUi;
  FenceView* mView = nullptr;
  EmptyPage* mEmpty = nullptr;  ///< in place of the view while no line stands in it
  std::vector<FenceLine> mLines;
  ColorPalette mPalette;
};

}  // namespace talvesk
