#pragma once

#include "processing/NotchFilter.h"

#include <QDialog>
#include <cstddef>
#include <memory>

namespace talvesk {

class TomoDocument;

namespace Ui {
class NotchDialog;
}

/// Asks by what notches hum is taken out. Nothing changes.
class NotchDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document outlives the dialog \param shot trace set in view, from 0 \param shots that it
  /// goes to
  NotchDialog(const TomoDocument& document, int shot, std::size_t shots, QWidget* parent = nullptr);
  ~NotchDialog() override;

  NotchFilter filter() const;
  bool ofFiltered() const;  ///< rather than of the samples as recorded

 private:
  std::unique_ptr<Ui::NotchDialog> mUi;
};

}  // namespace talvesk
