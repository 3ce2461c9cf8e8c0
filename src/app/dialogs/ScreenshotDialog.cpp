#include "app/dialogs/ScreenshotDialog.h"

#include "ui_ScreenshotDialog.h"

namespace talvesk {

ScreenshotDialog::ScreenshotDialog(const QSize& size, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::ScreenshotDialog>()) {
  mUi->setupUi(this);
  for (int scale = 1; scale <= 4; ++scale) {
    const QString times = scale == 1 ? tr("As the view") : tr("%1 times the view").arg(scale);
    mUi->scaleCBox->addItem(
        tr("%1: %2 x %3 pixels").arg(times).arg(scale * size.width()).arg(scale * size.height()));
  }
  connect(mUi->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
}

ScreenshotDialog::~ScreenshotDialog() = default;

int ScreenshotDialog::scale() const {
  return mUi->scaleCBox->currentIndex() + 1;
}

int ScreenshotDialog::quality() const {
  return mUi->qualityEdit->value();
}

}  // namespace talvesk
