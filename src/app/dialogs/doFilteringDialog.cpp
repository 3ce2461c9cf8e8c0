#include "app/dialogs/doFilteringDialog.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/WaitCursor.h"
#include "app/dialogs/ParameterField.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "ui_doFilteringDialog.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <algorithm>

namespace talvesk {
namespace {

/// Share of the screen, either way, that the dialog fills at most.
constexpr double kMostOfScreen = 0.92;

/// The traces that a filter works on. To filter what was filtered before, that stands in for the
/// samples.
TraceSet workingCopyOf(const TraceSet& traces, bool ofFiltered) {
  TraceSet copy = traces;
  if (ofFiltered) {
    for (Trace& trace : copy) trace.samples = trace.filtered;
  }
  return copy;
}

void add(FilterOutcome& sum, const FilterOutcome& part) {
  sum.filtered += part.filtered;
  sum.failed += part.failed;
  if (sum.status.ok()) sum.status = part.status;
}

}  // namespace

doFilteringDialog::doFilteringDialog(TomoDocument& document, std::int32_t shot,
                                     const std::vector<std::int32_t>& alsoShots, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::doFilteringDialog>()),
      mDocument(document),
      mShot(shot) {
  mUi->setupUi(this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  mUi->pictures->setSizes({240, 420});
  setUpField(*mUi->doubleFxLowpass, parameters::kLowPass);
  setUpField(*mUi->doubleFxHighPass, parameters::kHighPass);
  for (QSpinBox* order : {mUi->lowPassOrder, mUi->hiPassOrder}) {
    setUpField(*order, parameters::kFilterOrder);
    order->setMinimum(0);  // who applies it is told that this is no filter
    order->setValue(static_cast<int>(parameters::kProposedOrder.value));
  }
  for (const std::int32_t other : alsoShots) {
    if (other != shot) mOthers.push_back(other);
  }
  describeShot();
  makeWorkingCopy();
  const bool filteredBefore = hasFilteredCopy(workingTraces());
  mUi->applyToBox->setEnabled(filteredBefore);
  mUi->displayFiltered->setEnabled(filteredBefore);
  connectControls();
  showWorkingCopy();
}

doFilteringDialog::~doFilteringDialog() {
  mUi->tracesWidget->setDocument(nullptr);
}

void doFilteringDialog::setTraceOptions(const TraceViewOptions& options) {
  TraceViewOptions view = options;
  view.showFiltered = mUi->displayFiltered->isChecked();
  view.showOnlyTraces = true;
  view.byDistance = false;
  view.manner = {};
  view.magnifier = false;
  mUi->tracesWidget->setOptions(view);
}

void doFilteringDialog::describeShot() {
  const QString shot = tr("Shot %1 of %2")
                           .arg(mShot + 1)
                           .arg(static_cast<int>(mDocument.recordings->traceSets.size()));
  mUi->shotLabel->setText(
      mOthers.empty() ? shot : shot + QLatin1Char('\n') + tr("The filter goes to all shots."));
}

void doFilteringDialog::connectControls() {
  connect(mUi->displayOriginal, &QRadioButton::toggled, this, [this] { showWorkingCopy(); });
  connect(mUi->applyToOriginal, &QRadioButton::toggled, this, [this] {
    makeWorkingCopy();
    showWorkingCopy();
  });
  for (QCheckBox* box : {mUi->lowPassCBox, mUi->hiPassCBox}) {
    connect(box, &QCheckBox::toggled, this, [this] { showCorners(); });
  }
  for (QDoubleSpinBox* box : {mUi->doubleFxLowpass, mUi->doubleFxHighPass}) {
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this] { showCorners(); });
  }
}

void doFilteringDialog::makeWorkingCopy() {
  mUi->tracesWidget->setDocument(nullptr);
  const auto shot = static_cast<std::size_t>(mShot);
  mCopy.recordings.edit().traceSets = {
      workingCopyOf(mDocument.recordings->traceSets[shot], mUi->applyToFiltered->isChecked())};
  TravelTime record;
  if (shot < mDocument.ttArray.size()) record.shotPos2d = mDocument.ttArray[shot].shotPos2d;
  record.indexStesa = -1;  // positions are those of the traces
  record.ttMisurati.edit().assign(mCopy.recordings->traceSets.front().size(), kUnpicked);
  mCopy.ttArray.edit() = {record};
  mUi->tracesWidget->setDocument(&mCopy);
  mUi->tracesWidget->setShot(0);
}

void doFilteringDialog::showWorkingCopy() {
  const bool raw = mUi->displayOriginal->isChecked();
  setTraceOptions(mUi->tracesWidget->options());
  mUi->tracesWidget->documentChanged();
  const Spectrum spectrum = computeSpectrum(workingTraces(), raw);
  mHighest.see(spectrum);
  const Spectrum plotted = plottedCurve(spectrum);
  mUi->spectrumWidget->setCurve(plotted.frequencies, plotted.amplitudes);
  showCorners();
}

void doFilteringDialog::showCorners() {
  const BandFilter wanted = filter();
  const auto hertz = [](const std::optional<FilterCorner>& corner) {
    return corner ? std::optional<double>(corner->hertz) : std::nullopt;
  };
  mUi->spectrumWidget->setCorners(hertz(wanted.low), hertz(wanted.high));
}

BandFilter doFilteringDialog::filter() const {
  BandFilter wanted;
  if (mUi->lowPassCBox->isChecked()) {
    wanted.low = FilterCorner{mUi->doubleFxLowpass->value(), mUi->lowPassOrder->value()};
  }
  if (mUi->hiPassCBox->isChecked()) {
    wanted.high = FilterCorner{mUi->doubleFxHighPass->value(), mUi->hiPassOrder->value()};
  }
  return wanted;
}

bool doFilteringDialog::mayFilter(const BandFilter& wanted) {
  for (const auto& corner : {wanted.low, wanted.high}) {
    if (!corner || corner->order >= 1) continue;
    QMessageBox::warning(this, tr("Caution"),
                         tr("No filter applied. Filter order must be greater then 0."));
    return false;
  }
  const Status check = checkBandFilter(wanted, mHighest.value());
  if (check.ok()) return true;
  showError(this, tr("Caution"), tr("No filter applied."), textOf(check.text()));
  return false;
}

void doFilteringDialog::copyBack(const TraceSet& traces, std::int32_t shot) {
  TraceSet& target = mDocument.recordings.edit().traceSets[static_cast<std::size_t>(shot)];
  for (std::size_t t = 0; t < std::min(traces.size(), target.size()); ++t) {
    target[t].filtered = traces[t].filtered;
  }
}

/// Without a corner the handler copies what there was before.
void doFilteringDialog::noteStep(const BandFilter& wanted) {
  if (!wanted.low && !wanted.high) return;
  std::vector<std::int32_t> shots = mOthers;
  shots.push_back(mShot);
  noteFilter(mDocument, shots, stepOf(wanted), mUi->applyToFiltered->isChecked());
}

FilterOutcome doFilteringDialog::filterOthers(const BandFilter& wanted) {
  FilterOutcome sum;
  for (const std::int32_t shot : mOthers) {
    TraceSet copy = workingCopyOf(mDocument.recordings->traceSets[static_cast<std::size_t>(shot)],
                                  mUi->applyToFiltered->isChecked());
    HighestFrequency highest;
    highest.see(computeSpectrum(copy, true));
    add(sum, bandFilterTraces(copy, wanted, highest.value()));
    copyBack(copy, shot);
  }
  return sum;
}

void doFilteringDialog::on_button_apply_filter_clicked() {
  const BandFilter wanted = filter();
  if (!mayFilter(wanted)) return;
  const FilterOutcome outcome = whileWaiting([&] {
    FilterOutcome sum = bandFilterTraces(workingTraces(), wanted, mHighest.value());
    copyBack(workingTraces(), mShot);
    if (wanted.low || wanted.high) add(sum, filterOthers(wanted));
    return sum;
  });
  if (outcome.filtered > 0) {
    mChangedDocument = true;
    noteStep(wanted);
  }
  showFiltered();
  if (outcome.failed > 0) {
    showError(this, tr("Caution"),
              tr("%n trace(s) stay as they were.", nullptr, static_cast<int>(outcome.failed)),
              textOf(outcome.status.text()));
  }
}

void doFilteringDialog::showFiltered() {
  mUi->displayFiltered->setEnabled(true);
  mUi->applyToBox->setEnabled(true);
  if (mUi->displayFiltered->isChecked()) {
    showWorkingCopy();
  } else {
    mUi->displayFiltered->setChecked(true);  // shows it, too
  }
}

}  // namespace talvesk
