#include "app/dialogs/runTomography_Dialog.h"

#include "app/LengthText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/dialogs/ParameterField.h"
#include "ui_runTomography_Dialog.h"

#include <QLocale>
#include <QPushButton>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr int kHintLines = 2;  // that the place for the hint holds without moving the buttons

constexpr int kFitWidth = 1000;  // a table and a plot beside the fields
constexpr int kFitHeight = 640;

}  // namespace

runTomography_Dialog::runTomography_Dialog(double minVelocity, double maxVelocity, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::runTomography_Dialog>()) {
  mUi->setupUi(this);
  showUnits(*this);
  wrapToolTips(*this);
  setUpField(*mUi->extIter_edit, parameters::kIterations);
  setUpField(*mUi->solvIter_Edit, parameters::kSolverIterations);
  setUpField(*mUi->smooth_Edit, parameters::kSmoothing);
  setUpField(*mUi->minVelEdit, parameters::kMinVelocity);
  setUpField(*mUi->maxVelEdit, parameters::kMaxVelocity);
  mUi->typeOfSmoothingCBox->setCurrentIndex(parameters::kSmoothingType.initial);
  mUi->minVelEdit->setVelocity(minVelocity);
  mUi->maxVelEdit->setVelocity(maxVelocity);
  connect(mUi->minVelEdit, QOverload<int>::of(&QSpinBox::valueChanged), this,
          &runTomography_Dialog::checkMinWRTMax);
  connect(mUi->maxVelEdit, QOverload<int>::of(&QSpinBox::valueChanged), this,
          &runTomography_Dialog::checkMaxWRTMin);
  mUi->hintLabel->setStyleSheet(warningStyle(*this));
  mUi->hintLabel->setMinimumHeight(kHintLines * fontMetrics().lineSpacing());
  for (VelocityBox* box : {mUi->minVelEdit, mUi->maxVelEdit}) {
    connect(box, &VelocityBox::velocityChanged, this, [this] { showHint(); });
  }
  connect(mUi->methodBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          [this] { showMethod(); });
  connect(mUi->fitPanel, &FitPanel::changed, this, [this] { showHint(); });
  showMethod();
  mUi->extIter_edit->setFocus();
  mUi->extIter_edit->selectAll();
}

runTomography_Dialog::~runTomography_Dialog() = default;

void runTomography_Dialog::setSurvey(const TomoDocument& document, std::vector<GivenModel> given) {
  mUi->fitPanel->setDocument(document, std::move(given));
}

bool runTomography_Dialog::fits() const {
  return mUi->methodPages->currentWidget() == mUi->fitPanel;
}

FittedSettings runTomography_Dialog::fitSettings() const {
  return mUi->fitPanel->settings();
}

/// The dialog is as large as the page that is shown needs it.
void runTomography_Dialog::showMethod() {
  mUi->methodPages->setCurrentIndex(mUi->methodBox->currentIndex());
  for (QWidget* page :
       {static_cast<QWidget*>(mUi->smoothedPage), static_cast<QWidget*>(mUi->fitPanel)}) {
    const auto policy =
        page == mUi->methodPages->currentWidget() ? QSizePolicy::Preferred : QSizePolicy::Ignored;
    page->setSizePolicy(policy, policy);
  }
  mUi->startLabel->setVisible(!fits());
  showHint();
  if (fits()) resize(size().expandedTo(QSize(kFitWidth, kFitHeight)));
  if (!fits()) adjustSize();
}

TomographyParameters runTomography_Dialog::parameters() const {
  TomographyParameters parameters;
  parameters.externalIterations = mUi->extIter_edit->value();
  parameters.solverIterations = mUi->solvIter_Edit->value();
  parameters.smoothing = mUi->smooth_Edit->value();
  parameters.smoothingType = smoothingTypeOf(mUi->typeOfSmoothingCBox->currentIndex());
  parameters.symmetric = mUi->symmetricSmoothCBox->isChecked();
  parameters.coarseToFine = mUi->coarseToFineCBox->isChecked();
  parameters.singleThread = mUi->checkBox->isChecked();
  parameters.minVelocity = mUi->minVelEdit->velocity();
  parameters.maxVelocity = mUi->maxVelEdit->velocity();
  return parameters;
}

void runTomography_Dialog::setStartingModel(StartingModel model) {
  QString text;
  switch (model) {
    case StartingModel::kNone:
      break;
    case StartingModel::kDefault:
      text = tr("Starts from the default model.");
      break;
    case StartingModel::kLayered:
      text = tr("Starts from the layered model.");
      break;
    case StartingModel::kResult:
      text = tr("Starts from the result of the last inversion.");
      break;
    case StartingModel::kSmoothed:
      text = tr("Starts from the smoothed result of the last inversion.");
      break;
    case StartingModel::kOther:
      text = tr("Starts from the present velocities of the grid.");
      break;
  }
  mUi->startLabel->setText(text);
}

void runTomography_Dialog::setProposal(const std::optional<RunProposal>& proposal,
                                       double gridDepth) {
  mUi->proposeButton->setEnabled(proposal.has_value());
  if (!proposal) return;
  const RunProposal values = *proposal;
  connect(mUi->proposeButton, &QPushButton::clicked, this, [this, values, gridDepth] {
    mUi->minVelEdit->setVelocity(values.minVelocity);
    mUi->maxVelEdit->setVelocity(values.maxVelocity);
    mUi->smooth_Edit->setValue(values.smoothing);
    mUi->proposalLabel->setText(
        tr("Rays are expected down to %1; the grid reaches %2.")
            .arg(lengthWithUnit(values.depth, 1), lengthWithUnit(gridDepth, 1)));
  });
}

void runTomography_Dialog::checkMinWRTMax(int value) {
  if (value < mUi->minVelEdit->value()) mUi->maxVelEdit->setValue(value);
}

void runTomography_Dialog::checkMaxWRTMin(int value) {
  if (value > mUi->maxVelEdit->value()) mUi->minVelEdit->setValue(value);
}

void runTomography_Dialog::showHint() {
  const bool fitCrossed = fits() && mUi->fitPanel->limitsCross();
  mUi->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(!fitCrossed);
  if (fits()) {
    mUi->hintLabel->setText(fitCrossed ? tr("The minimum velocity must be below the maximum.")
                                       : QString());
    return;
  }
  const bool crossed = mUi->minVelEdit->velocity() > mUi->maxVelEdit->velocity();
  mUi->hintLabel->setText(crossed ? tr("The minimum is above the maximum: every cell that changes "
                                       "will end at the maximum.")
                                  : QString());
}

}  // namespace talvesk
