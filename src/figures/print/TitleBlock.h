#pragma once

#include <QString>
#include <cstddef>
#include <vector>

class QFont;
class QPainter;
class QRectF;

namespace talvesk {

/// Painters of sheets measure in hundredths of a millimetre, for sizes of fonts are whole numbers.
constexpr double kUnitsPerMm = 100.0;

/// Of words on a sheet. \param heightMm of its line
QFont sheetFont(double heightMm, bool bold = false);

/// The numbers of a row 1, 2, 2.5, 5, 10, ... that lie in a range, the least first.
std::vector<double> roundNumbers(double least, double most);

/// What stands below a figure on paper: its title, its scales and a scale bar, and which sheet
/// of several it is.
struct TitleBlock {
  static constexpr double kHeightMm = 16.0;

  QString title;
  double scale = 0.0;         ///< metres along the line to one of paper; 0: there is none
  double exaggeration = 0.0;  ///< 0: the upright axis is no length
  double msPerCm = 0.0;       ///< 0: it has no round scale of times
  std::size_t columns = 1;    ///< of the sheets that the figure goes over
  std::size_t rows = 1;
  std::size_t page = 0;  ///< which of them this is, row by row

  /// "Scale 1:500", and what else is to be said; empty without any scale.
  QString scales() const;
  /// \param room of a painter in units of kUnitsPerMm
  void paint(QPainter& painter, const QRectF& room) const;

 private:
  double paintBar(QPainter& painter, const QRectF& room) const;
  double paintPlace(QPainter& painter, const QRectF& room) const;
};

}  // namespace talvesk
