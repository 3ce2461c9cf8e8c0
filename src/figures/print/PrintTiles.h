#pragma once

#include "figures/print/PrintSheet.h"
#include "figures/print/TitleBlock.h"

#include <QSizeF>
#include <cstddef>
#include <functional>

class QPainter;
class QRectF;

namespace talvesk {

/// A figure with its block below, cut into the sheets that it takes; one sheet as a rule. Of
/// several each has crosses where it meets its neighbours, and tells its place among them.
class PrintTiles {
 public:
  static constexpr double kBlockGapMm = 3.0;  ///< between figure and block

  /// \param figureMm what the figure takes
  PrintTiles(const PrintSheet& sheet, const QSizeF& figureMm);

  TitleBlock block;
  std::size_t columns = 1;
  std::size_t rows = 1;

  /// \param page row by row, from 0 \param rect of the whole sheet, in units of the device
  void paint(std::size_t page, QPainter& painter, const QRectF& rect,
             const std::function<void(QPainter&, const QRectF&)>& figure) const;

 private:
  QSizeF room() const;  ///< within the margins, millimetres
  QSizeF step() const;  ///< from a sheet to the next
  QSizeF whole() const;
  void paintCrosses(QPainter& painter) const;
  void clearMargins(QPainter& painter) const;
  void paintPlace(QPainter& painter, std::size_t row, std::size_t column) const;

  PrintSheet mSheet;
  QSizeF mFigure;
};

}  // namespace talvesk
