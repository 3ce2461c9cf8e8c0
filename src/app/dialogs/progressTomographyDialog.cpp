#include "app/dialogs/progressTomographyDialog.h"

#include "app/MessageText.h"
#include "app/ToolTips.h"
#include "ui_progressTomographyDialog.h"

#include <QLocale>
#include <QTimer>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr int kTick = 500;  // milliseconds between two looks at the clock

/// Minutes and seconds, hours when there are any.
QString duration(double seconds) {
  const auto whole = static_cast<qint64>(std::max(seconds, 0.0));
  const QString rest = QStringLiteral("%1:%2")
                           .arg(whole / 60 % 60, 2, 10, QLatin1Char('0'))
                           .arg(whole % 60, 2, 10, QLatin1Char('0'));
  return whole < 3600 ? rest : QStringLiteral("%1:%2").arg(whole / 3600).arg(rest);
}

}  // namespace

progressTomographyDialog::progressTomographyDialog(QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::progressTomographyDialog>()) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  connect(mUi->stopButton, &QPushButton::clicked, this, [this] { stop(); });
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, [this] { showTimes(); });
  timer->start(kTick);
  mClock.start();
  showTimes();
}

progressTomographyDialog::~progressTomographyDialog() = default;

void progressTomographyDialog::setTotal(double iterations) {
  mTotal = iterations;
  mUi->progressBar->setRange(0, 100);
  mUi->misfitPlot->setTotal(static_cast<int>(iterations));
  mClock.restart();
  showTimes();
}

void progressTomographyDialog::addCompleted() {
  mCompleted += 1.0;
  addLine(tr("Completed iteration %1").arg(mCompleted));
  mUi->progressBar->setValue(static_cast<int>(mCompleted / mTotal * 100.0));
  mSecondsAtLast = static_cast<double>(mClock.elapsed()) / 1000.0;
  showTimes();
}

void progressTomographyDialog::addMisfit(const TomographyProgress& progress) {
  if (progress.misfit.count == 0) return;
  mUi->misfitPlot->addMisfit(progress.sectionBefore.rmse, progress.misfit.rmse);
}

void progressTomographyDialog::beginFit(int mostIterations) {
  setTotal(mostIterations);
  mFits = true;
  mUi->misfitPlot->showSectionOnly();
  // The start is not told of; iterations count from 1.
  const double unknown = std::nan("");
  mUi->misfitPlot->addMisfit(unknown, unknown);
  mUi->progressBar->setRange(0, 0);
  mUi->remainingLabel->hide();
  mUi->stateLabel->setText(tr("The models to start from are being traced."));
}

void progressTomographyDialog::addFit(const FittedRunProgress& progress) {
  mUi->stateLabel->setText(
      tr("Ends by itself, after %1 iterations at the latest.").arg(progress.most));
  if (progress.completed == 1 && !progress.from.empty())
    addLine(tr("Another fit, from: %1").arg(textOf(progress.from)));
  const QLocale locale;
  addLine(tr("Iteration %1: chi-square %2, RMS %3 ms (%4 %)")
              .arg(progress.completed)
              .arg(locale.toString(progress.fit.chi2, 'g', 3),
                   locale.toString(1000.0 * progress.section.rmse, 'g', 3),
                   locale.toString(100.0 * progress.section.relativeRms, 'g', 3)));
  mUi->misfitPlot->addMisfit(progress.section.rmse, std::nan(""));
}

void progressTomographyDialog::addLine(const QString& line) {
  mText += line + QLatin1Char('\n');
  mUi->textBrowser->setPlainText(mText);
  mUi->textBrowser->moveCursor(QTextCursor::End);
}

void progressTomographyDialog::showTimes() {
  const double elapsed = static_cast<double>(mClock.elapsed()) / 1000.0;
  mUi->elapsedLabel->setText(tr("Elapsed: %1").arg(duration(elapsed)));
  // Iterations take about equally long; before the first is through nobody knows how long.
  const double whole = mCompleted > 0.0 ? mSecondsAtLast / mCompleted * mTotal : 0.0;
  const QString rest = mCompleted > 0.0 ? duration(whole - elapsed) : tr("not known yet");
  mUi->remainingLabel->setText(tr("Remaining: %1").arg(rest));
}

void progressTomographyDialog::showStopping() {
  mUi->stopButton->setEnabled(false);
  mUi->stateLabel->setText(mFits ? tr("Stops, with the best section so far.")
                                 : tr("Stops when the iteration under way is completed."));
}

void progressTomographyDialog::stop() {
  if (!mUi->stopButton->isEnabled()) return;
  showStopping();
  emit stopped();
}

void progressTomographyDialog::reject() {
  stop();
}

}  // namespace talvesk
