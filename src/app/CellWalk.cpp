#include "app/CellWalk.h"

#include <QTableWidget>

namespace talvesk {

void walkCells(QTableWidget& table) {
  QWidget* last = &table;
  for (int row = 0; row < table.rowCount(); ++row) {
    for (int column = 0; column < table.columnCount(); ++column) {
      QWidget* cell = table.cellWidget(row, column);
      if (cell == nullptr) continue;
      QWidget::setTabOrder(last, cell);
      last = cell;
    }
  }
}

}  // namespace talvesk
