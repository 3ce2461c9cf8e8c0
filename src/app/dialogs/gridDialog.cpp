#include "app/dialogs/gridDialog.h"

#include "app/LeftOutText.h"
#include "app/LengthText.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/dialogs/ParameterField.h"
#include "figures/ShownLength.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "ui_gridDialog.h"

#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

namespace talvesk {
namespace {

constexpr double kFine = 0.5;     // of the size that suits the geophones: smaller is worth a word
constexpr int kWarningLines = 6;  // that the place for warnings holds without moving the buttons

constexpr const char* kCellSize = "cellSize";  // property of a button that offers one, metres

/// A count that may be beyond all integers.
QString count(const QLocale& locale, double number) {
  return number < 1e15 ? locale.toString(number, 'f', 0) : locale.toString(number, 'g', 3);
}

}  // namespace

gridDialog::gridDialog(const TomoDocument& survey, const SurveyProfile& profile,
                       const GridSettings& proposed, unsigned searches, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::gridDialog>()),
      mSurvey(survey),
      mProfile(profile),
      mProposedCell(proposed.cellSize),
      mSearches(searches) {
  mUi->setupUi(this);
  showUnits(*this);
  mUi->proposeCBox->setToolTip(mUi->proposeCBox->toolTip().arg(
      withLengthUnit(lengthText(parameters::kCellSize.limits.least))));
  wrapToolTips(*this);
  setUpField(*mUi->maxDepthEdit, parameters::kDepth);
  setUpField(*mUi->cellSizeEdit, parameters::kCellSize);
  setUpField(*mUi->nodesEdit, parameters::kNodes);
  mUi->arrayLength->setText(lengthNumber(profile.arrayLength, 2));
  mUi->maxDepthEdit->setMaximum(profile.arrayLength);
  mUi->cellSizeEdit->setMaximum(std::max(profile.arrayLength, mUi->cellSizeEdit->minimum()));
  mDepth = fill(proposed.maxDepth, profile.arrayLength, *mUi->maxDepthEdit);
  propose(true);
  mUi->nodesEdit->setValue(static_cast<int>(proposed.nodes));
  mUi->warningLabel->setStyleSheet(warningStyle(*this));
  mUi->warningLabel->setMinimumHeight(kWarningLines * fontMetrics().lineSpacing());
  QSizePolicy keepsRow = mUi->smallerButton->sizePolicy();
  keepsRow.setRetainSizeWhenHidden(true);  // OK stays where it is when sizes are offered
  mUi->smallerButton->setSizePolicy(keepsRow);
  connectFields();
  showPreview();
  mUi->maxDepthEdit->setFocus();
  mUi->maxDepthEdit->selectAll();
}

gridDialog::~gridDialog() = default;

void gridDialog::connectFields() {
  for (QDoubleSpinBox* box : {mUi->maxDepthEdit, mUi->cellSizeEdit}) {
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this] { showPreview(); });
  }
  connect(mUi->nodesEdit, QOverload<int>::of(&QSpinBox::valueChanged), this,
          [this] { showPreview(); });
  connect(mUi->proposeCBox, &QCheckBox::clicked, this, [this](bool on) {
    propose(on);
    showPreview();
  });
  for (QPushButton* button : {mUi->smallerButton, mUi->largerButton}) {
    connect(button, &QPushButton::clicked, this, [this, button] {
      mUi->cellSizeEdit->setValue(button->property(kCellSize).toDouble());
      mUi->cellSizeEdit->setFocus();
    });
  }
}

gridDialog::Value gridDialog::fill(double exact, double most, LengthBox& box) {
  box.setValue(exact);
  return {box.value(), std::clamp(exact, box.minimum(), std::max(box.minimum(), most))};
}

/// The cell size that suits the geophones, or that of the grid there is: without one the least.
void gridDialog::propose(bool on) {
  const double present = mSurvey.model->grid ? mSurvey.model->grid->aLato() : 0.0;
  mCell = fill(on ? mProposedCell : present, mUi->cellSizeEdit->maximum(), *mUi->cellSizeEdit);
  mUi->proposeCBox->setChecked(on);
}

GridSettings gridDialog::settings() const {
  const auto valueOf = [](const QDoubleSpinBox& box, const Value& value) {
    return box.value() == value.shown ? value.exact : box.value();
  };
  GridSettings settings;
  settings.maxDepth = valueOf(*mUi->maxDepthEdit, mDepth);
  settings.cellSize = valueOf(*mUi->cellSizeEdit, mCell);
  settings.nodes = static_cast<std::uint32_t>(mUi->nodesEdit->value());
  return settings;
}

void gridDialog::showPreview() {
  if (mUi->cellSizeEdit->value() != mCell.shown) mUi->proposeCBox->setChecked(false);
  const GridPreview preview = previewGrid(mSurvey, mProfile, settings(), mSearches);
  const QLocale locale;
  mUi->columnsFigure->setText(count(locale, preview.size.col));
  mUi->rowsFigure->setText(count(locale, preview.size.righe));
  mUi->cellsFigure->setText(count(locale, preview.cells));
  mUi->nodesFigure->setText(count(locale, preview.nodes));
  mUi->memoryFigure->setText(tr("%1 MiB").arg(
      locale.toString(preview.bytes / 1048576.0, 'f', preview.bytes < 10.0 * 1048576.0 ? 1 : 0)));
  mUi->warningLabel->setText(warningsOf(preview).join(QLatin1Char('\n')));
  const bool fallsShort = preview.status.ok() && preview.outside > 0;
  const NearestSizes nearest =
      fallsShort ? reachingCellSizes(mProfile, settings()) : NearestSizes();
  offer(*mUi->smallerButton, nearest.smaller);
  offer(*mUi->largerButton, nearest.larger);
  mUi->offerLabel->setVisible(nearest.smaller || nearest.larger);
}

QStringList gridDialog::warningsOf(const GridPreview& preview) const {
  if (!preview.status.ok()) return {textOf(preview.status.text())};
  QStringList warnings;
  if (preview.size.righe == 0) {
    warnings << tr("The grid has no rows: choose a greater depth or smaller cells.");
  }
  if (preview.left.any()) {
    warnings << tr("Lost to an inversion: %1.")
                    .arg(leftOutCounts(preview.left).join(QStringLiteral(", ")));
  } else if (preview.outside > 0) {
    warnings << tr(
        "%n position(s) at the end of the line lie beyond the last column and take no "
        "part in an inversion. Another cell size may reach them.",
        nullptr, preview.outside);
  }
  if (settings().cellSize < kFine * mProfile.proposedCellSize) {
    warnings << tr("Such small cells make an inversion very slow, and it stops only between "
                   "iterations. A quarter of the geophone spacing is %1.")
                    .arg(lengthWithUnit(mProfile.proposedCellSize, 2));
  }
  if (mSurvey.result->has_tomographic_info) {
    warnings << tr("The results of the last inversion will be removed (Undo brings them back).");
  }
  return warnings;
}

void gridDialog::offer(QPushButton& button, const std::optional<double>& cellSize) {
  button.setVisible(cellSize.has_value());
  if (!cellSize) return;
  button.setText(withLengthUnit(lengthText(*cellSize)));
  button.setProperty(kCellSize, *cellSize);
}

void gridDialog::accept() {
  if (settings().maxDepth == 0.0) {
    QMessageBox::warning(this, tr("Invalid parameter"),
                         tr("The max depth parameter set to 0.0 is not valid for tomography"));
  }
  if (settings().nodes > parameters::kManyNodes.value) {
    QMessageBox::warning(this, tr("Memory warning"),
                         tr("A large number of nodes may require a lot of memory"));
  }
  QDialog::accept();
}

}  // namespace talvesk
