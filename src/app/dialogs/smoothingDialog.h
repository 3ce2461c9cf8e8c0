#pragma once

#include "tomo/Smoothing.h"

#include <QDialog>
#include <memory>

namespace talvesk {

namespace Ui {
class smoothingDialog;
}

/// Asks how to smooth the velocities of the grid.
class smoothingDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param proposed the kind that is shown first
  explicit smoothingDialog(SmoothingType proposed, QWidget* parent = nullptr);
  ~smoothingDialog() override;

  SmoothingType type() const;
  int radius() const;  ///< smoothing parameter, cells
  bool symmetric() const;

 private:
  std::unique_ptr<Ui::smoothingDialog> mUi;
};

}  // namespace talvesk
