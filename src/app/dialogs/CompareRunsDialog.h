#pragma once

#include "base/Status.h"
#include "figures/RunComparison.h"
#include "model/TomoDocument.h"

#include <QDialog>
#include <cstddef>
#include <functional>
#include <memory>

class QComboBox;

namespace talvesk {

namespace Ui {
class CompareRunsDialog;
}

class FigureSheetWidget;

/// Two inversion runs side by side, and how much faster the right one is than the left one.
class CompareRunsDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param look palette, markers and the like of the sections \param lockedRange the palette's
  /// scale is to stay
  CompareRunsDialog(const TomoDocument& document, const SectionFigureOptions& look,
                    bool lockedRange, QWidget* parent = nullptr);
  ~CompareRunsDialog() override;

  void choose(unsigned left, unsigned right);  ///< by their numbers

  /// Asked to write what is shown as a picture.
  std::function<void(const RunComparison&)> saveWanted;

 private:
  std::size_t indexIn(const QComboBox& box) const;
  void show();
  Status makeComparison();
  QString figures() const;

  std::unique_ptr<Ui::CompareRunsDialog> mUi;
  const TomoDocument mDocument;
  RunComparison mComparison;
  FigureSheetWidget* mSheet;
};

}  // namespace talvesk
