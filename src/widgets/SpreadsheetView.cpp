#include "widgets/SpreadsheetView.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <algorithm>

namespace talvesk {

SpreadsheetView::SpreadsheetView(QWidget* parent) : QTableView(parent) {
  setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                  QAbstractItemView::EditKeyPressed);
  setSelectionMode(QAbstractItemView::ContiguousSelection);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

QString SpreadsheetView::selectedText() const {
  if (selectionModel() == nullptr || !selectionModel()->hasSelection()) return {};
  const QItemSelectionRange block = selectionModel()->selection().first();
  QString text;
  for (int row = block.top(); row <= block.bottom(); ++row) {
    QStringList fields;
    for (int column = block.left(); column <= block.right(); ++column) {
      if (isColumnHidden(column)) continue;
      fields << model()->index(row, column).data(Qt::EditRole).toString();
    }
    text += fields.join(QLatin1Char('\t')) + QLatin1Char('\n');
  }
  return text;
}

QList<int> SpreadsheetView::selectedRows() const {
  QList<int> rows;
  if (selectionModel() == nullptr) return rows;
  for (const QItemSelectionRange& block : selectionModel()->selection()) {
    for (int row = block.top(); row <= block.bottom(); ++row) rows << row;
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

void SpreadsheetView::copy() {
  const QString text = selectedText();
  if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

void SpreadsheetView::paste() {
  QModelIndex corner = currentIndex();
  if (selectionModel() != nullptr && selectionModel()->hasSelection()) {
    corner = selectionModel()->selection().first().topLeft();
  }
  // An empty table takes what is pasted from its first cell on.
  emit pasteRequested(std::max(0, corner.row()), std::max(0, corner.column()),
                      QApplication::clipboard()->text());
}

void SpreadsheetView::fillDown() {
  if (selectionModel() == nullptr || !selectionModel()->hasSelection()) return;
  const QItemSelectionRange block = selectionModel()->selection().first();
  const QString text = selectedText();
  const QString first = text.left(text.indexOf(QLatin1Char('\n')) + 1);
  emit pasteRequested(block.top(), block.left(), first.repeated(block.height()));
}

void SpreadsheetView::goDown() {
  const QModelIndex below = currentIndex().siblingAtRow(currentIndex().row() + 1);
  if (below.isValid()) setCurrentIndex(below);
}

void SpreadsheetView::keyPressEvent(QKeyEvent* event) {
  if (event == QKeySequence::Copy) {
    copy();
  } else if (event == QKeySequence::Paste) {
    paste();
  } else if (event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_D) {
    fillDown();
  } else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
    if (selectionModel() != nullptr) emit clearRequested(selectionModel()->selectedIndexes());
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    // It does not press the default button of a dialog. An editor lets it through and goes down by
    // itself.
    if (state() != QAbstractItemView::EditingState) goDown();
  } else if (mRowsEditable && event->key() == Qt::Key_Insert) {
    emit insertRequested(std::max(0, currentIndex().row()));
  } else {
    QTableView::keyPressEvent(event);
    return;
  }
  event->accept();
}

void SpreadsheetView::contextMenuEvent(QContextMenuEvent* event) {
  const QList<int> rows = selectedRows();
  QMenu menu(this);
  QAction* copyCells = menu.addAction(tr("&Copy"), this, &SpreadsheetView::copy);
  QAction* pasteCells = menu.addAction(tr("&Paste"), this, &SpreadsheetView::paste);
  QAction* clearCells = menu.addAction(tr("&Empty cells"), this, [this] {
    emit clearRequested(selectionModel()->selectedIndexes());
  });
  QAction* fill = menu.addAction(tr("Fill &down"), this, &SpreadsheetView::fillDown);
  fill->setShortcut(Qt::CTRL | Qt::Key_D);
  fill->setEnabled(rows.size() > 1);
  copyCells->setShortcut(QKeySequence::Copy);
  pasteCells->setShortcut(QKeySequence::Paste);
  clearCells->setShortcut(QKeySequence::Delete);
  if (mRowsEditable) {
    menu.addSeparator();
    QAction* insert = menu.addAction(tr("&Insert a row above"), this, [this, rows] {
      emit insertRequested(rows.isEmpty() ? 0 : rows.front());
    });
    insert->setShortcut(Qt::Key_Insert);
    QAction* remove =
        menu.addAction(tr("&Remove rows"), this, [this, rows] { emit removeRequested(rows); });
    remove->setEnabled(!rows.isEmpty());
  }
  copyCells->setEnabled(!rows.isEmpty());
  clearCells->setEnabled(!rows.isEmpty());
  menu.exec(event->globalPos());
}

void SpreadsheetView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  QTableView::closeEditor(editor, hint);
  if (hint == QAbstractItemDelegate::SubmitModelCache) goDown();
}

}  // namespace talvesk
