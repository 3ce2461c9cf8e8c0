#include "app/dialogs/NotchDialog.h"

#include "app/ToolTips.h"
#include "app/dialogs/ParameterField.h"
#include "model/FilterParameters.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "model/TomoDocument.h"
#include "ui_NotchDialog.h"

namespace talvesk {

NotchDialog::NotchDialog(const TomoDocument& document, int shot, std::size_t shots, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::NotchDialog>()) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  setUpField(*mUi->hertzEdit, parameters::kNotch);
  setUpField(*mUi->harmonicsEdit, parameters::kNotchHarmonics);
  setUpField(*mUi->qualityEdit, parameters::kNotchQuality);
  mUi->hertzEdit->setSingleStep(10.0);
  mUi->applyToBox->setEnabled(
      hasFilteredCopy(document.recordings->traceSets[static_cast<std::size_t>(shot)]));
  mUi->shotLabel->setText(shots > 1 ? tr("The filter goes to all shots.")
                                    : tr("The filter goes to shot %1.").arg(shot + 1));
}

NotchDialog::~NotchDialog() = default;

NotchFilter NotchDialog::filter() const {
  NotchFilter filter;
  filter.hertz = mUi->hertzEdit->value();
  filter.harmonics = mUi->harmonicsEdit->value();
  filter.quality = mUi->qualityEdit->value();
  return filter;
}

bool NotchDialog::ofFiltered() const {
  return mUi->applyToFiltered->isChecked();
}

}  // namespace talvesk
