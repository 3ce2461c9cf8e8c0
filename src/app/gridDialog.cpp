#include "app/gridDialog.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "tomo/GridPreview.h"
#include "ui_gridDialog.h"

#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

namespace talvesk {
namespace {

constexpr std::uint32_t kManyNodes = 15;
constexpr double kFine = 0.5;     // of the size that suits the geophones: smaller is worth a word
constexpr int kWarningLines = 4;  // that the place for warnings holds without moving the buttons

/// A count that may be beyond all integers.
QString count(const QLocale& locale, double number) {
  return number < 1e15 ? locale.toString(number, 'f', 0) : locale.toString(number, 'g', 3);
}

}  // namespace

gridDialog::gridDialog(const SurveyProfile& profile, const GridSettings& proposed,
                       unsigned searches, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::gridDialog>()),
      mProfile(profile),
      mSearches(searches) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  mUi->arrayLength->setText(QLocale().toString(profile.arrayLength, 'f', 2));
  mUi->maxDepthEdit->setMaximum(profile.arrayLength);
  mUi->cellSizeEdit->setMaximum(std::max(profile.arrayLength, mUi->cellSizeEdit->minimum()));
  mUi->maxDepthEdit->setValue(proposed.maxDepth);
  mUi->cellSizeEdit->setValue(proposed.cellSize);
  mUi->nodesEdit->setValue(static_cast<int>(proposed.nodes));
  mUi->warningLabel->setStyleSheet(warningStyle(*this));
  mUi->warningLabel->setMinimumHeight(kWarningLines * fontMetrics().lineSpacing());
  for (QDoubleSpinBox* box : {mUi->maxDepthEdit, mUi->cellSizeEdit}) {
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this] { showPreview(); });
  }
  connect(mUi->nodesEdit, QOverload<int>::of(&QSpinBox::valueChanged), this,
          [this] { showPreview(); });
  showPreview();
  mUi->maxDepthEdit->setFocus();
  mUi->maxDepthEdit->selectAll();
}

gridDialog::~gridDialog() = default;

GridSettings gridDialog::settings() const {
  GridSettings settings;
  settings.maxDepth = mUi->maxDepthEdit->value();
  settings.cellSize = mUi->cellSizeEdit->value();
  settings.nodes = static_cast<std::uint32_t>(mUi->nodesEdit->value());
  return settings;
}

void gridDialog::setForgetsResults(bool forgets) {
  mForgetsResults = forgets;
  showPreview();
}

void gridDialog::showPreview() {
  const GridPreview preview = previewGrid(mProfile, settings(), mSearches);
  const QLocale locale;
  mUi->columnsFigure->setText(count(locale, preview.size.col));
  mUi->rowsFigure->setText(count(locale, preview.size.righe));
  mUi->cellsFigure->setText(count(locale, preview.cells));
  mUi->nodesFigure->setText(count(locale, preview.nodes));
  mUi->memoryFigure->setText(tr("%1 MiB").arg(
      locale.toString(preview.bytes / 1048576.0, 'f', preview.bytes < 10.0 * 1048576.0 ? 1 : 0)));
  QString warning;
  if (!preview.status.ok()) {
    warning = textOf(preview.status.text());
  } else if (preview.size.righe == 0) {
    warning = tr("The grid has no rows: choose a greater depth or smaller cells.");
  } else if (preview.outside > 0) {
    warning =
        tr("%n position(s) at the end of the line lie beyond the last column and take no "
           "part in an inversion. Another cell size may reach them.",
           nullptr, preview.outside);
  } else if (settings().cellSize < kFine * mProfile.proposedCellSize) {
    warning = tr("Such small cells make an inversion very slow, and it stops only between "
                 "iterations. A quarter of the geophone spacing is %1 m.")
                  .arg(locale.toString(mProfile.proposedCellSize, 'f', 2));
  } else if (mForgetsResults) {
    warning = tr("The results of the last inversion will be lost.");
  }
  mUi->warningLabel->setText(warning);
}

void gridDialog::accept() {
  if (settings().maxDepth == 0.0) {
    QMessageBox::warning(this, tr("Invalid parameter"),
                         tr("The max depth parameter set to 0.0 is not valid for tomography"));
  }
  if (settings().nodes > kManyNodes) {
    QMessageBox::warning(this, tr("Memory warning"),
                         tr("A large number of nodes may require a lot of memory"));
  }
  QDialog::accept();
}

}  // namespace talvesk
