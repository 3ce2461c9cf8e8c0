#pragma once

#include "base/Status.h"
#include "figures/PlotPart.h"
#include "figures/SectionFigureOptions.h"

#include <memory>
#include <optional>
#include <string>

class QPainter;
class QRectF;

namespace talvesk {

class TomoDocument;

/// A section laid out as a plot with axes, colour bar, legend and caption, ready to be painted on
/// any device. Lives on the thread of the QApplication.
class SectionPlot {
 public:
  SectionPlot(SectionScene scene, const SectionFigureOptions& options);
  ~SectionPlot();
  SectionPlot(const SectionPlot&) = delete;
  SectionPlot& operator=(const SectionPlot&) = delete;

  /// Chooses scales and, for a heightMm of 0, the height. Fails when axes and texts leave no room
  /// for the section.
  Status layOut(double widthMm, double heightMm);
  /// Lays out so that `scale` metres along the line are a metre of the sheet, whose size follows.
  /// Of a section larger than any sheet (FigureSheet::kMaxMm) only the size is told, without axes.
  /// \param part of the plot of this size, for a section that goes over several sheets
  /// \param meetMm from a side that a neighbour shows too to where both are joined
  Status layOutToScale(double scale, const std::optional<PlotPart>& part = std::nullopt,
                       double meetMm = 0.0);
  /// As laid out; after paint() as painted.
  const SectionFigureLayout& layout() const { return mLayout; }
  const std::string& title() const { return mTitle; }

  /// Paints onto a device that knows its resolution; `sheet` is the rectangle that the layout
  /// fills.
  void paint(QPainter& painter, const QRectF& sheet);

 private:
  struct Parts;
  std::unique_ptr<Parts> mParts;
  SectionFigureLayout mLayout;
  std::string mTitle;
};

/// Makes the plot of a document's section, not yet laid out. Fails without a grid, and for options
/// that make no picture.
Status makeSectionPlot(const TomoDocument& document, const SectionFigureOptions& options,
                       std::unique_ptr<SectionPlot>& plot);

/// The exaggeration at which a section of this height over width is legible: the least of a row of
/// round numbers, 1 first, that makes it at least a quarter as high as wide.
double legibleExaggeration(double heightOverWidth);

}  // namespace talvesk
