#include "app/dialogs/CompareRunsDialog.h"

#include "app/MessageText.h"
#include "app/RunTexts.h"
#include "app/WaitCursor.h"
#include "app/dialogs/FigureSheetWidget.h"
#include "model/KeptRuns.h"
#include "tomo/KeepRun.h"
#include "ui_CompareRunsDialog.h"

#include <QScreen>
#include <QSignalBlocker>
#include <cmath>
#include <optional>

namespace talvesk {
namespace {

constexpr double kMostOfScreen = 0.92;

/// How far the computed times of two runs are apart, RMS in seconds over receivers that both have;
/// none where the runs are not of the same shots.
std::optional<double> timesApart(const KeptRun& a, const KeptRun& b) {
  if (a.times.size() != b.times.size() || a.positions != b.positions) return std::nullopt;
  double squares = 0.0;
  std::size_t count = 0;
  for (std::size_t shot = 0; shot < a.times.size(); ++shot) {
    if (a.times[shot].size() != b.times[shot].size()) return std::nullopt;
    for (std::size_t i = 0; i < a.times[shot].size(); ++i) {
      if (a.times[shot][i] == kNoTime || b.times[shot][i] == kNoTime) continue;
      squares += std::pow(a.times[shot][i] - b.times[shot][i], 2);
      ++count;
    }
  }
  if (count == 0) return std::nullopt;
  return std::sqrt(squares / static_cast<double>(count));
}

}  // namespace

CompareRunsDialog::CompareRunsDialog(const TomoDocument& document, const SectionFigureOptions& look,
                                     bool lockedRange, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::CompareRunsDialog>()), mDocument(document) {
  mUi->setupUi(this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  mComparison.look = look;
  mComparison.lockedRange = lockedRange;
  mSheet = new FigureSheetWidget();
  mSheet->setObjectName(QStringLiteral("sheet"));
  mSheet->putInto(*mUi->sheetArea);
  for (QComboBox* box : {mUi->leftBox, mUi->rightBox}) {
    for (const KeptRun& run : mDocument.runs) box->addItem(runTitle(run), run.number);
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CompareRunsDialog::show);
  }
  connect(mUi->saveButton, &QPushButton::clicked, this, [this] {
    if (saveWanted) saveWanted(mComparison);
  });
}

CompareRunsDialog::~CompareRunsDialog() = default;

void CompareRunsDialog::choose(unsigned left, unsigned right) {
  {
    const QSignalBlocker quietLeft(mUi->leftBox);
    const QSignalBlocker quietRight(mUi->rightBox);
    mUi->leftBox->setCurrentIndex(mUi->leftBox->findData(left));
    mUi->rightBox->setCurrentIndex(mUi->rightBox->findData(right));
  }
  show();
}

std::size_t CompareRunsDialog::indexIn(const QComboBox& box) const {
  return static_cast<std::size_t>(box.currentIndex());
}

void CompareRunsDialog::show() {
  if (mUi->leftBox->currentIndex() < 0 || mUi->rightBox->currentIndex() < 0) return;
  const Status status = whileWaiting([this] { return makeComparison(); });
  mUi->saveButton->setEnabled(status.ok());
  mUi->figuresLabel->setText(figures());
  if (!status.ok()) {
    mSheet->setNothing(textOf(status.text()));
    return;
  }
  mSheet->setFigure([this](double widthMm, FigureDrawing& drawing) {
    RunComparison comparison = mComparison;
    comparison.widthMm = widthMm;
    return prepareRunComparison(comparison, drawing);
  });
}

Status CompareRunsDialog::makeComparison() {
  const KeptRun& left = mDocument.runs[indexIn(*mUi->leftBox)];
  const KeptRun& right = mDocument.runs[indexIn(*mUi->rightBox)];
  mComparison.left = mComparison.right = mDocument;
  Status status = putRun(left, mComparison.left);
  if (status.ok()) status = putRun(right, mComparison.right);
  mComparison.leftTitle = runTitle(left).toStdString();
  mComparison.rightTitle = runTitle(right).toStdString();
  mComparison.differenceTitle =
      tr("%1 against %2", "right run, left run").arg(runTitle(right), runTitle(left)).toStdString();
  return status;
}

QString CompareRunsDialog::figures() const {
  const KeptRun& left = mDocument.runs[indexIn(*mUi->leftBox)];
  const KeptRun& right = mDocument.runs[indexIn(*mUi->rightBox)];
  const auto pair = [](double a, bool knownA, double b, bool knownB) {
    return runFigure(a, knownA) + QStringLiteral(" \u2192 ") + runFigure(b, knownB);
  };
  QStringList words;
  words +=
      tr("Chi-square %1").arg(pair(left.chi2, left.chi2 >= 0.0, right.chi2, right.chi2 >= 0.0));
  const QString errors = runErrors(left);
  const QString others = runErrors(right);
  words += errors == others ? tr("by errors of %1").arg(errors)
                            : tr("by other errors, so these do not compare: %1")
                                  .arg(errors + QStringLiteral(" \u2192 ") + others);
  words += tr("RMS misfit %1 ms")
               .arg(pair(left.trustedRms * 1000.0, left.trustedRms >= 0.0,
                         right.trustedRms * 1000.0, right.trustedRms >= 0.0));
  const SectionMisfit a = left.misfit();
  const SectionMisfit b = right.misfit();
  words += tr("of all picks as they are %1 ms")
               .arg(pair(a.rmse * 1000.0, a.count > 0, b.rmse * 1000.0, b.count > 0));
  if (const auto apart = timesApart(left, right)) {
    words += tr("their computed times differ by %1 ms RMS").arg(runFigure(*apart * 1000.0, true));
  }
  for (const KeptRun* run : {&left, &right}) {
    const QString remarks = runRemarks(*run, mDocument);
    if (!remarks.isEmpty()) words += tr("%1: %2", "run, remarks").arg(runTitle(*run), remarks);
  }
  return words.join(QStringLiteral("   \u00B7   "));
}

}  // namespace talvesk
