#include "app/dialogs/smoothingDialog.h"

#include "app/ToolTips.h"
#include "app/dialogs/ParameterField.h"
#include "ui_smoothingDialog.h"

namespace talvesk {

smoothingDialog::smoothingDialog(SmoothingType proposed, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::smoothingDialog>()) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  setUpField(*mUi->smooth_Edit, parameters::kSmoothing);
  mUi->typeOfSmoothingCBox->setCurrentIndex(static_cast<int>(proposed));
  mUi->typeOfSmoothingCBox->setFocus();
}

smoothingDialog::~smoothingDialog() = default;

SmoothingType smoothingDialog::type() const {
  return smoothingTypeOf(mUi->typeOfSmoothingCBox->currentIndex());
}

int smoothingDialog::radius() const {
  return mUi->smooth_Edit->value();
}

bool smoothingDialog::symmetric() const {
  return mUi->symmetricSmoothCBox->isChecked();
}

}  // namespace talvesk
