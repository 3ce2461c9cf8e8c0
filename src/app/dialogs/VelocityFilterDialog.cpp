#include "app/dialogs/VelocityFilterDialog.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/dialogs/ParameterField.h"
#include "model/FilterParameters.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "model/TomoDocument.h"
#include "processing/FkTransform.h"
#include "processing/Spectrum.h"
#include "ui_VelocityFilterDialog.h"

#include <QPushButton>
#include <QScreen>
#include <initializer_list>

namespace talvesk {
namespace {

constexpr double kMostOfScreen = 0.92;

using Direction = VelocityFilter::Direction;

}  // namespace

VelocityFilterDialog::VelocityFilterDialog(const TomoDocument& document, int shot,
                                           std::size_t shots, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::VelocityFilterDialog>()),
      mDocument(document),
      mShot(shot) {
  mUi->setupUi(this);
  showUnits(*this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  wrapToolTips(*this);
  setUpField(*mUi->slowestEdit, parameters::kSlowest);
  setUpField(*mUi->fastestEdit, parameters::kFastest);
  setUpField(*mUi->taperEdit, parameters::kVelocityTaper);
  for (QDoubleSpinBox* field : {mUi->slowestEdit, mUi->fastestEdit}) field->setSingleStep(50.0);
  mUi->applyToBox->setEnabled(
      hasFilteredCopy(document.recordings->traceSets[static_cast<std::size_t>(shot)]));
  mUi->shotLabel->setText(shots > 1 ? tr("The filter goes to all shots.")
                                    : tr("The filter goes to shot %1.").arg(shot + 1));
  connectFields();
  mUi->fkView->setFilter(filter());
  showSpectrum();
}

VelocityFilterDialog::~VelocityFilterDialog() = default;

void VelocityFilterDialog::connectFields() {
  const auto changed = [this] { mUi->fkView->setFilter(filter()); };
  for (QDoubleSpinBox* field :
       std::initializer_list<QDoubleSpinBox*>{mUi->slowestEdit, mUi->fastestEdit, mUi->taperEdit}) {
    connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, changed);
  }
  connect(mUi->directionCBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this, changed);
  connect(mUi->rejects, &QRadioButton::toggled, this, changed);
  connect(mUi->showAfter, &QRadioButton::toggled, mUi->fkView, &FkView::setFiltered);
  connect(mUi->applyToFiltered, &QRadioButton::toggled, this, &VelocityFilterDialog::showSpectrum);
  connect(mUi->fkView, &FkView::slowestDragged, mUi->slowestEdit, &LengthBox::setValue);
  connect(mUi->fkView, &FkView::fastestDragged, mUi->fastestEdit, &LengthBox::setValue);
}

/// Where the traces of the shot are none that the filter can work on, that is said instead.
void VelocityFilterDialog::showSpectrum() {
  TraceLine line;
  const Status status = findTraceLine(mDocument, mShot, ofFiltered(), line);
  FkSpectrum spectrum;
  if (status.ok()) {
    const TraceSet& traces = mDocument.recordings->traceSets[static_cast<std::size_t>(mShot)];
    spectrum = FkTransform(traces, line, ofFiltered()).spectrum(kPlottedBelow);
  }
  mUi->fkView->setSpectrum(std::move(spectrum));
  mUi->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(status.ok());
  if (!status.ok()) {
    mUi->shotLabel->setText(
        tr("Shot %1 cannot be filtered: %2").arg(mShot + 1).arg(textOf(status.text())));
  }
}

VelocityFilter VelocityFilterDialog::filter() const {
  VelocityFilter filter;
  filter.slowest = mUi->slowestEdit->value();
  filter.fastest = mUi->fastestEdit->value();
  filter.taper = mUi->taperEdit->value();
  filter.rejects = mUi->rejects->isChecked();
  constexpr Direction kDirections[] = {Direction::kBoth, Direction::kForth, Direction::kBack};
  filter.direction = kDirections[mUi->directionCBox->currentIndex()];
  return filter;
}

bool VelocityFilterDialog::ofFiltered() const {
  return mUi->applyToFiltered->isChecked();
}

void VelocityFilterDialog::accept() {
  const Status sound = checkVelocityFilter(filter());
  if (sound.ok()) return QDialog::accept();
  showError(this, windowTitle(), tr("No filter applied."), textOf(sound.text()));
}

}  // namespace talvesk
