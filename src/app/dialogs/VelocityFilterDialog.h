#pragma once

#include "processing/VelocityFilter.h"

#include <QDialog>
#include <cstddef>
#include <memory>

namespace talvesk {

class TomoDocument;

namespace Ui {
class VelocityFilterDialog;
}

/// Asks by what apparent velocities waves are kept or taken out, beside the spectrum of a shot.
/// Nothing changes.
class VelocityFilterDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document outlives the dialog \param shot trace set in view, from 0 \param shots that it
  /// goes to
  VelocityFilterDialog(const TomoDocument& document, int shot, std::size_t shots,
                       QWidget* parent = nullptr);
  ~VelocityFilterDialog() override;

  VelocityFilter filter() const;
  bool ofFiltered() const;  ///< rather than of the samples as recorded

  void accept() override;  ///< unless the velocities go against each other

 private:
  void connectFields();
  void showSpectrum();

  std::unique_ptr<Ui::VelocityFilterDialog> mUi;
  const TomoDocument& mDocument;
  const int mShot;
};

}  // namespace talvesk
