#pragma once

class QTableWidget;

namespace talvesk {

/// Lets the Tab key go from a table through the widgets in its cells, row by row, before it goes on
/// to what comes behind the table. To be called whenever there are others in the cells.
void walkCells(QTableWidget& table);

}  // namespace talvesk
