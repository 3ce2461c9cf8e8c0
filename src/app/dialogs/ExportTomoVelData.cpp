#include "app/dialogs/ExportTomoVelData.h"

#include "app/NumberText.h"
#include "ui_ExportTomoVelData.h"

#include <QPushButton>

namespace talvesk {

ExportTomoVelData::ExportTomoVelData(QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::ExportTomoVelData>()) {
  mUi->setupUi(this);
  for (QLineEdit* edit : {mUi->y_coord_edit, mUi->z_offset_edit}) {
    connect(edit, &QLineEdit::textChanged, this, [this] { check(); });
  }
  mUi->y_coord_edit->selectAll();
  check();
}

ExportTomoVelData::~ExportTomoVelData() = default;

GriddedTextOptions ExportTomoVelData::options() const {
  GriddedTextOptions options;
  options.lineY = numberFrom(mUi->y_coord_edit->text()).value_or(0.0);
  options.zOffset = numberFrom(mUi->z_offset_edit->text()).value_or(0.0);
  options.surveyX = mUi->surveyXBox->isChecked();
  return options;
}

void ExportTomoVelData::check() {
  const bool y = numberFrom(mUi->y_coord_edit->text()).has_value();
  const bool z = numberFrom(mUi->z_offset_edit->text()).has_value();
  QString problem;
  if (!y) problem = tr("The Y coordinate is not a number.");
  if (!z) problem = tr("The Z offset is not a number.");
  mUi->problemLabel->setText(problem);
  mUi->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(y && z);
}

}  // namespace talvesk
