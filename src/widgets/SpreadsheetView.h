#pragma once

#include <QTableView>

namespace talvesk {

/// A table that is typed into as a spreadsheet: any key edits, Enter goes one row down, Delete
/// empties the selected cells, copy and paste work on blocks,
/// Ctrl+D repeats the first selected row in the others. What a key or a paste changes is left
/// to whoever listens. Tab leaves the table, except while a cell is edited: then it goes to the
/// next one.
class SpreadsheetView : public QTableView {
  Q_OBJECT

 public:
  explicit SpreadsheetView(QWidget* parent = nullptr);

  /// Offers to insert and remove rows; without, only the contents of the rows can change.
  void setRowsEditable(bool editable) { mRowsEditable = editable; }

  /// The selected cells, rows by line breaks and columns by tabs; empty without a selection.
  QString selectedText() const;
  QList<int> selectedRows() const;  ///< rows with a selected cell, ascending

 signals:
  void pasteRequested(int row, int column, const QString& text);  ///< at the upper left cell
  void clearRequested(const QModelIndexList& cells);
  void insertRequested(int row);                 ///< one row above
  void removeRequested(const QList<int>& rows);  ///< ascending

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 protected slots:
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

 private:
  void copy();
  void paste();
  void fillDown();
  void goDown();

  bool mRowsEditable = false;
};

}  // namespace talvesk
