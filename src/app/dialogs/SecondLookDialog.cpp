#include "app/dialogs/SecondLookDialog.h"

#include "app/LengthText.h"
#include "app/ToolTips.h"
#include "model/ChiSquare.h"
#include "ui_SecondLookDialog.h"

#include <QHeaderView>
#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMilliseconds = 1000.0;

enum SuspectColumn { kShot, kReceiver, kPick, kOff, kErrors };
enum ShiftColumn { kShiftShot, kLate, kWhy };

QString number(double value, int decimals) {
  return QLocale().toString(value, 'f', decimals);
}

void put(QTableWidget& table, int row, int column, const QString& text) {
  auto* item = new QTableWidgetItem(text);
  item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  table.setItem(row, column, item);
}

}  // namespace

SecondLookDialog::SecondLookDialog(QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::SecondLookDialog>()) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  setModal(false);
  for (QTableWidget* table : {mUi->suspectsTable, mUi->shiftsTable}) {
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setStretchLastSection(true);
  }
  // By click and by key alike.
  connect(mUi->suspectsTable, &QTableWidget::currentCellChanged, this,
          [this](int row) { showSuspect(row); });
  connect(mUi->suspectsTable, &QTableWidget::cellClicked, this,
          [this](int row) { showSuspect(row); });
  connect(mUi->shiftsTable, &QTableWidget::currentCellChanged, this,
          [this](int row) { showShift(row); });
  connect(mUi->shiftsTable, &QTableWidget::cellClicked, this, [this](int row) { showShift(row); });
  connect(mUi->cellsList, &QListWidget::currentRowChanged, this, &SecondLookDialog::showGround);
  connect(mUi->cellsList, &QListWidget::itemClicked, this,
          [this] { showGround(mUi->cellsList->currentRow()); });
  connect(mUi->takeOverButton, &QPushButton::clicked, this, &SecondLookDialog::takeOverWanted);
  connect(mUi->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
  setLook({});
}

SecondLookDialog::~SecondLookDialog() = default;

void SecondLookDialog::setLook(SecondLook look) {
  const SecondLook before = std::move(mLook);
  std::vector<bool> chosen;
  for (std::size_t i = 0; i < before.shifts.size(); ++i) {
    const QTableWidgetItem* item = mUi->shiftsTable->item(static_cast<int>(i), kShiftShot);
    chosen.push_back(item->checkState() == Qt::Checked);
  }
  mLook = std::move(look);
  fillSuspects();
  fillShifts();
  keepChoice(before.shifts, chosen);
  fillCells();
  showTexts();
}

/// What was chosen stays chosen where the same is found again.
void SecondLookDialog::keepChoice(const std::vector<ShotShift>& before,
                                  const std::vector<bool>& chosen) {
  const QSignalBlocker quiet(mUi->shiftsTable);
  for (std::size_t i = 0; i < mLook.shifts.size(); ++i) {
    const ShotShift& now = mLook.shifts[i];
    const auto same = std::find_if(before.begin(), before.end(), [&now](const ShotShift& each) {
      return each.record == now.record && each.late == now.late && each.seeming == now.seeming;
    });
    if (same == before.end()) continue;
    const bool checked = chosen[static_cast<std::size_t>(same - before.begin())];
    mUi->shiftsTable->item(static_cast<int>(i), kShiftShot)
        ->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
  }
}

std::vector<ShotShift> SecondLookDialog::taken() const {
  std::vector<ShotShift> taken;
  for (std::size_t i = 0; i < mLook.shifts.size(); ++i) {
    const QTableWidgetItem* item = mUi->shiftsTable->item(static_cast<int>(i), kShiftShot);
    if (item->checkState() == Qt::Checked) taken.push_back(mLook.shifts[i]);
  }
  return taken;
}

void SecondLookDialog::fillSuspects() {
  QTableWidget& table = *mUi->suspectsTable;
  const QSignalBlocker quiet(&table);
  table.clearContents();
  table.setRowCount(static_cast<int>(mLook.suspects.size()));
  for (int row = 0; row < table.rowCount(); ++row) {
    const SuspectPick& pick = mLook.suspects[static_cast<std::size_t>(row)];
    put(table, row, kShot, QString::number(pick.record + 1));
    put(table, row, kReceiver, QString::number(pick.receiver + 1));
    put(table, row, kPick, number(kMilliseconds * pick.measured, 1));
    put(table, row, kOff, number(kMilliseconds * pick.residual, 1));
    put(table, row, kErrors, number(std::fabs(pick.residual / pick.sigma), 1));
  }
  table.setCurrentCell(-1, -1);
}

void SecondLookDialog::fillShifts() {
  QTableWidget& table = *mUi->shiftsTable;
  const QSignalBlocker quiet(&table);
  table.clearContents();
  table.setRowCount(static_cast<int>(mLook.shifts.size()));
  for (int row = 0; row < table.rowCount(); ++row) {
    const ShotShift& shift = mLook.shifts[static_cast<std::size_t>(row)];
    put(table, row, kShiftShot, QString::number(shift.record + 1));
    table.item(row, kShiftShot)
        ->setCheckState(shift.clear && !shift.seeming ? Qt::Checked : Qt::Unchecked);
    put(table, row, kLate, number(kMilliseconds * shift.late, 2));
    QString reason;
    if (!shift.recording) reason = tr("no recording: its picks are shifted");
    if (shift.seeming) reason = tr("seems so: run again with shifts of shots");
    auto* why = new QTableWidgetItem(reason);
    why->setToolTip(reason);
    table.setItem(row, kWhy, why);
  }
  table.setCurrentCell(-1, -1);
  mUi->takeOverButton->setEnabled(!mLook.shifts.empty());
}

void SecondLookDialog::showTexts() {
  QStringList head;
  if (!mLook.known) head << tr("There is no section yet whose times could be looked at.");
  if (mLook.picksChanged) {
    head << tr("Picks have changed since the section was found: it was fitted to others.");
  }
  if (mLook.raised > 0) {
    head << tr("Errors of picks below %1 ms count as %1 ms: %2")
                .arg(number(kMilliseconds * kLeastPickError, 2))
                .arg(mLook.raised);
  }
  mUi->headLabel->setText(head.join(QLatin1Char('\n')));
  mUi->headLabel->setVisible(!head.isEmpty());
  mUi->suspectsPage->setVisible(mLook.known);
  mUi->suspectsTable->setVisible(!mLook.suspects.empty());
  mUi->suspectsLabel->setText(suspectsText());
  mUi->shiftsPage->setVisible(!mLook.shifts.empty());
  mUi->shiftsLabel->setText(
      mLook.seeming().empty()
          ? tr("Time shifts of shots that the fit has found; a click shows the shot:")
          : tr("Shots that seem to be shifted in time; a click shows the shot:"));
  mUi->cellsLabel->setText(mPatches.empty()
                               ? tr("No velocity is at a limit, and rays cross all cells shown.")
                               : tr("Ground to look at; a click shows it in the section:"));
  mUi->cellsLabel->setVisible(mLook.known);
  mUi->cellsList->setVisible(!mPatches.empty());
}

/// Where the section does not fit the picks yet only those count that stand out from the rest.
QString SecondLookDialog::suspectsText() const {
  const bool usual = mLook.limit <= kSuspectErrors;
  const QString limit = number(mLook.limit, 1);
  if (mLook.suspects.empty()) {
    return usual
               ? tr("No pick is off by more than five of its errors.")
               : tr("No pick stands out: %1 are off by more than five of their errors, but none by "
                    "more than %2, as the section does not fit the picks to their errors.")
                     .arg(mLook.beyond)
                     .arg(limit);
  }
  return usual
             ? tr("Picks off by more than five of their errors; a click shows the trace:")
             : tr("Picks off by more than %2 of their errors, which stand out where %1 are off by "
                  "more than five; a click shows the trace:")
                   .arg(mLook.beyond)
                   .arg(limit);
}

void SecondLookDialog::fillCells() {
  const QSignalBlocker quiet(mUi->cellsList);
  mUi->cellsList->clear();
  mPatches.clear();
  if (!mLook.known) return;
  const auto atLimit = [](const CellPatch& patch, double limit) {
    return tr("Cells at the limit of %1: %2").arg(velocityWithUnit(limit, 0)).arg(patch.cells);
  };
  addCells(mLook.atLeast, atLimit(mLook.atLeast, mLook.least));
  addCells(mLook.atGreatest, atLimit(mLook.atGreatest, mLook.greatest));
  addCells(mLook.withoutRays, tr("Cells shown that no ray crosses: %1 of %2")
                                  .arg(mLook.withoutRays.cells)
                                  .arg(mLook.drawn));
  // No higher than its lines; the room is the tables'.
  mUi->cellsList->setMaximumHeight((mUi->cellsList->count() + 1) *
                                   std::max(mUi->cellsList->sizeHintForRow(0), 1));
}

void SecondLookDialog::addCells(const CellPatch& patch, const QString& text) {
  if (patch.cells == 0) return;
  mPatches.push_back(patch);
  mUi->cellsList->addItem(tr("%1 (%2 to %3, depth %4 to %5)")
                              .arg(text, lengthNumber(patch.left, 1),
                                   lengthWithUnit(patch.right, 1), lengthNumber(patch.top, 1),
                                   lengthWithUnit(patch.bottom, 1)));
}

void SecondLookDialog::showSuspect(int row) {
  if (row < 0 || row >= static_cast<int>(mLook.suspects.size())) return;
  const SuspectPick& pick = mLook.suspects[static_cast<std::size_t>(row)];
  emit pickWanted(static_cast<int>(pick.record), static_cast<int>(pick.receiver));
}

void SecondLookDialog::showShift(int row) {
  if (row < 0 || row >= static_cast<int>(mLook.shifts.size())) return;
  emit shotWanted(static_cast<int>(mLook.shifts[static_cast<std::size_t>(row)].record));
}

void SecondLookDialog::showGround(int row) {
  if (row < 0 || row >= static_cast<int>(mPatches.size())) return;
  emit groundWanted(mPatches[static_cast<std::size_t>(row)]);
}

}  // namespace talvesk
