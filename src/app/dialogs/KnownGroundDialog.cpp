#include "app/dialogs/KnownGroundDialog.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/dialogs/KnownTables.h"
#include "ui_KnownGroundDialog.h"

#include <QHeaderView>
#include <QKeySequence>
#include <QMessageBox>
#include <algorithm>

namespace talvesk {
namespace {

constexpr int kBesideColumns = 90;  ///< pixels: numbers of rows, a scroll bar, frames

}  // namespace

KnownGroundDialog::KnownGroundDialog(const KnownGround& known, const QString& remark,
                                     QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::KnownGroundDialog>()),
      mSession(std::make_unique<KnownSession>(known)),
      mKnown(known) {
  mUi->setupUi(this);
  showUnits(*this);
  wrapToolTips(*this);
  mUi->remarkLabel->setText(remark);
  mUi->remarkLabel->setVisible(!remark.isEmpty());
  mViews = {mUi->boreholesTable, mUi->depthsTable, mUi->bodiesTable};
  for (std::size_t i = 0; i < mViews.size(); ++i) setUpTable(*mViews[i], static_cast<int>(i));
  mUi->undoButton->setShortcut(QKeySequence::Undo);
  mUi->redoButton->setShortcut(QKeySequence::Redo);
  connect(mUi->undoButton, &QPushButton::clicked, mSession.get(), &KnownSession::undo);
  connect(mUi->redoButton, &QPushButton::clicked, mSession.get(), &KnownSession::redo);
  connect(mUi->addButton, &QPushButton::clicked, this, &KnownGroundDialog::addRow);
  connect(mUi->removeButton, &QPushButton::clicked, this, &KnownGroundDialog::removeRows);
  connect(mUi->importButton, &QPushButton::clicked, this, &KnownGroundDialog::importWanted);
  connect(mUi->exportButton, &QPushButton::clicked, this, &KnownGroundDialog::exportWanted);
  connect(mSession.get(), &KnownSession::changed, this, &KnownGroundDialog::refresh);
  refresh();
  mViews.front()->setFocus();
}

KnownGroundDialog::~KnownGroundDialog() = default;

void KnownGroundDialog::setUpTable(SpreadsheetView& view, int kind) {
  auto* table = new KnownTable(*mSession, static_cast<KnownKind>(kind), this);
  mTables.push_back(table);
  view.setModel(table);
  view.setRowsEditable(true);
  QHeaderView& heads = *view.horizontalHeader();
  heads.setSectionResizeMode(QHeaderView::Stretch);
  int widest = 0;
  for (int column = 0; column < table->columnCount(); ++column) {
    widest = std::max(widest, heads.sectionSizeHint(column));
  }
  heads.setMinimumSectionSize(widest);
  resize(std::max(width(), widest * table->columnCount() + kBesideColumns), height());
  view.setCurrentIndex(table->index(0, 0));
  connect(&view, &SpreadsheetView::pasteRequested, table, &KnownTable::paste);
  connect(&view, &SpreadsheetView::clearRequested, table, &KnownTable::clear);
  connect(&view, &SpreadsheetView::insertRequested, table, &KnownTable::insertRow);
  connect(&view, &SpreadsheetView::removeRequested, table, &KnownTable::removeRows);
  connect(table, &KnownTable::refused, this, [this](const QString& why) { say(why, true); });
}

void KnownGroundDialog::addRow() {
  const auto tab = static_cast<std::size_t>(mUi->tabs->currentIndex());
  mTables[tab]->insertRow(mViews[tab]->currentIndex().row());
}

void KnownGroundDialog::removeRows() {
  const auto tab = static_cast<std::size_t>(mUi->tabs->currentIndex());
  mTables[tab]->removeRows(mViews[tab]->selectedRows());
}

void KnownGroundDialog::say(const QString& text, bool refused) {
  mUi->messageLabel->setStyleSheet(refused ? warningStyle(*this) : QString());
  mUi->messageLabel->setText(text);
}

void KnownGroundDialog::refresh() {
  mUi->undoButton->setEnabled(mSession->canUndo());
  mUi->redoButton->setEnabled(mSession->canRedo());
  const auto& mistake = mSession->mistake();
  if (!mistake) {
    const std::optional<KnownGround> known = mSession->ground();
    return say(tr("Boreholes: %1, known depths: %2, bodies: %3.")
                   .arg(known->boreholes.size())
                   .arg(known->depths.size())
                   .arg(known->bodies.size()),
               false);
  }
  const int tab = static_cast<int>(mistake->kind);
  say(tr("%1, row %2: %3.")
          .arg(mUi->tabs->tabText(tab).remove(QLatin1Char('&')))
          .arg(mistake->row + 1)
          .arg(textOf(mistake->text)),
      true);
}

void KnownGroundDialog::take(const KnownGround& known) {
  mSession->take(known);
}

bool KnownGroundDialog::checked() {
  const std::optional<KnownGround> known = mSession->ground();
  if (known) {
    mKnown = *known;
    return true;
  }
  const KnownSession::Mistake& mistake = *mSession->mistake();
  const auto tab = static_cast<std::size_t>(mistake.kind);
  mUi->tabs->setCurrentIndex(static_cast<int>(tab));
  mViews[tab]->setCurrentIndex(mTables[tab]->index(mistake.row, 0));
  mViews[tab]->setFocus();
  return false;
}

void KnownGroundDialog::accept() {
  if (checked()) QDialog::accept();
}

void KnownGroundDialog::reject() {
  if (mSession->canUndo()) {
    const auto answer =
        QMessageBox::question(this, windowTitle(), tr("Discard what was changed in these tables?"),
                              QMessageBox::Discard | QMessageBox::Cancel);
    if (answer != QMessageBox::Discard) return;
  }
  QDialog::reject();
}

}  // namespace talvesk
