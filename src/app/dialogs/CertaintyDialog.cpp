#include "app/dialogs/CertaintyDialog.h"

#include "app/BackgroundCertainty.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "app/dialogs/ParameterField.h"
#include "model/TomographyOutcome.h"
#include "ui_CertaintyDialog.h"

namespace talvesk {

CertaintyDialog::CertaintyDialog(const TomoDocument& document, BackgroundCertainty& run,
                                 QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::CertaintyDialog>()),
      mDocument(document),
      mRun(run) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  setUpField(*mUi->membersField, parameters::kMembers);
  setUpField(*mUi->seedField, parameters::kSeed);
  if (const auto& known = document.result->certainty; known && known->state) {
    mUi->seedField->setValue(static_cast<int>(known->seed));
  }
  tellWhatIsDone();
  connect(mUi->seedField, qOverload<int>(&QSpinBox::valueChanged), this,
          &CertaintyDialog::tellWhatIsDone);
  connect(mUi->startButton, &QPushButton::clicked, this, &CertaintyDialog::start);
  connect(mUi->stopButton, &QPushButton::clicked, &mRun, &BackgroundCertainty::requestStop);
  connect(&mRun, &BackgroundCertainty::advanced, this, &CertaintyDialog::showProgress,
          Qt::QueuedConnection);
  connect(&mRun, &BackgroundCertainty::finished, this, &CertaintyDialog::end);
  enable(false);
}

CertaintyDialog::~CertaintyDialog() = default;

/// With the velocities whose depths the certainty of the section tells, so that it can go on.
CertaintySettings CertaintyDialog::settings() const {
  CertaintySettings settings = certaintySettings(mDocument);
  settings.members = mUi->membersField->value();
  settings.ensemble.seed = static_cast<std::uint64_t>(mUi->seedField->value());
  if (const auto& known = mDocument.result->certainty) {
    for (const IsovalueBand& band : known->bands) {
      settings.ensemble.isovalues.push_back(band.velocity);
    }
  }
  return settings;
}

void CertaintyDialog::tellWhatIsDone() {
  const auto& known = mDocument.result->certainty;
  const bool goesOn =
      known && known->state && known->state->key == ensembleKey(mDocument, settings());
  mUi->startButton->setText(goesOn ? tr("&Continue") : tr("&Start"));
  mUi->progressLabel->setText(
      goesOn ? tr("%n member(s) of this seed are done; Continue goes on with more.", nullptr,
                  known->members + known->leftOut)
             : QString());
}

void CertaintyDialog::start() {
  enable(true);
  mUi->progressBar->setRange(0, 0);
  mUi->progressLabel->setText(tr("Models are being tried."));
  mRun.start(mDocument, settings());
}

void CertaintyDialog::showProgress() {
  const EnsembleProgress state = mRun.progress();
  if (state.members == 0 || state.models < state.ofModels) {
    mUi->progressLabel->setText(
        tr("Models are being tried: %1 of %2.").arg(state.models).arg(state.ofModels));
    return;
  }
  mUi->progressBar->setRange(0, state.ofMembers);
  mUi->progressBar->setValue(state.members);
  mUi->progressLabel->setText(tr("%1 of %2 members are done; %3 left out.")
                                  .arg(state.members)
                                  .arg(state.ofMembers)
                                  .arg(state.leftOut));
}

void CertaintyDialog::end() {
  enable(false);
  if (mRun.certainty()) mCertainty = mRun.certainty();
  if (mClosing) {
    QDialog::reject();
    return;
  }
  if (!mRun.status().ok()) {
    mUi->progressBar->setRange(0, 1);
    mUi->progressLabel->clear();
    showErrors(this, windowTitle(), tr("How sure the section is stays unknown."),
               {textOf(mRun.status().text())});
    return;
  }
  if (!mRun.wasStopped()) {
    accept();
    return;
  }
  mUi->progressBar->setRange(0, 1);
  mUi->startButton->setText(tr("&Continue"));
  mUi->progressLabel->setText(
      mCertainty ? tr("Stopped with %n member(s); Continue goes on from there.", nullptr,
                      mCertainty->members + mCertainty->leftOut)
                 : tr("Stopped before the first member was done; Continue goes on."));
}

void CertaintyDialog::enable(bool running) {
  for (QWidget* field :
       {static_cast<QWidget*>(mUi->membersField), static_cast<QWidget*>(mUi->seedField),
        static_cast<QWidget*>(mUi->startButton)}) {
    field->setEnabled(!running);
  }
  mUi->stopButton->setEnabled(running);
}

void CertaintyDialog::reject() {
  if (!mRun.runs()) {
    QDialog::reject();
    return;
  }
  mClosing = true;
  mRun.requestStop();
}

}  // namespace talvesk
