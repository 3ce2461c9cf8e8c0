#pragma once

#include <QColor>
#include <QFont>
#include <QLocale>
#include <QRectF>
#include <QString>
#include <cstddef>
#include <vector>

class QPainter;
class QPalette;

namespace talvesk {

/// What a picture of cells is painted with.
struct MatrixInk {
  QColor base;
  QColor text;
  QColor faint;  ///< frame, and the hatching of empty cells
  bool onDark;   ///< zero is dark, too

  static MatrixInk of(const QPalette& palette);
  static MatrixInk paper();
};

/// Values of rows and columns as a picture: cells blue below zero and red above, as full as the
/// value is far from it, empty ones hatched, the labels of rows left of them and of columns above,
/// and a legend at the right.
struct MatrixPicture {
  struct Label {
    QString text;
    bool bold = false;  ///< it stands out
  };
  std::vector<Label> rows;
  std::vector<Label> columns;
  std::vector<double> values;       ///< row by row; not a number: none
  std::vector<std::size_t> marked;  ///< of the cells: these carry a dot
  double limit = 1.0;               ///< from here on the colours are full; positive
  bool square = false;              ///< the cells, for rows and columns that are the same
  QString heading;                  ///< above, what columns are
  QString rowTitle;                 ///< left, along the rows; may be empty
  QString legendTitle;              ///< right of the legend; may be empty
  QLocale numbers;                  ///< of the legend

  bool isEmpty() const { return rows.empty() || columns.empty(); }
  double at(std::size_t row, std::size_t column) const {
    return values[row * columns.size() + column];
  }

  /// Of the cells on a sheet, in its units. \param font as it is for paint()
  QRectF area(const QRectF& sheet, const QFont& font) const;
  QRectF cell(std::size_t row, std::size_t column, const QRectF& area) const;
  void paint(QPainter& painter, const QRectF& sheet, const QFont& font, const MatrixInk& ink) const;
};

}  // namespace talvesk
