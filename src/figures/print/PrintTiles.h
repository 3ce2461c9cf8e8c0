#pragma once

#include "figures/print/PrintFigure.h"
#include "figures/print/PrintSheet.h"
#include "figures/print/TitleBlock.h"

#include <QPointF>
#include <QSizeF>
#include <cstddef>
#include <functional>
#include <vector>

class QPainter;
class QRectF;

namespace talvesk {

/// What a sheet has above its block, millimetres.
QSizeF roomOn(const PrintSheet& sheet);

/// Whether it has room there.
bool fits(const FigureSheet& figure, const QSizeF& room);

/// Into how many parts of one size a plot is cut, so that each has room on a sheet beside its own
/// axes. Neighbours have kPrintOverlapMm in common.
struct PrintCut {
  std::size_t columns = 0;  ///< 0: too many
  std::size_t rows = 0;
  double partWidthMm = 0.0;  ///< of the plot
  double partHeightMm = 0.0;

  std::size_t count() const { return columns * rows; }
  /// \param page row by row, from 0
  PlotPart part(std::size_t page) const;
};

/// Cuts a figure along the line that is laid out on `whole`, and larger than the room.
/// \param layOut a part of it \param parts as laid out, row by row
PrintCut cutToSheets(const LaidFigure& whole, const QSizeF& room,
                     const std::function<Status(const PlotPart&, LaidFigure&)>& layOut,
                     std::vector<LaidFigure>& parts);

/// The sheets of a figure, each with its block; one as a rule. Of several each has axes of its own,
/// tells its place among them, and has a line where it meets a neighbour.
class PrintTiles {
 public:
  static constexpr double kBlockGapMm = 3.0;  ///< between figure and block

  /// \param parts row by row, as many as there are sheets
  PrintTiles(const PrintSheet& sheet, std::vector<LaidFigure> parts, std::size_t columns);

  TitleBlock block;

  /// \param rect of the whole sheet, in units of the device
  void paint(std::size_t page, QPainter& painter, const QRectF& rect) const;

  /// Where the plot lies on its sheet.
  PlotPlace place(std::size_t page) const;

 private:
  std::size_t rows() const { return mParts.size() / mColumns; }
  QPointF corner(std::size_t page) const;
  void paintMeetings(QPainter& painter, std::size_t page) const;

  PrintSheet mSheet;
  std::vector<LaidFigure> mParts;
  std::size_t mColumns;
};

}  // namespace talvesk
