#pragma once

#include "base/Status.h"
#include "figures/PlotPart.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

class QPainter;
class QRectF;
class QString;
class QwtPlot;
class QwtPlotItem;

namespace talvesk {

/// Where the canvas of a plot lies on its sheet, and what its sides stand for.
struct PlotPlace {
  double widthMm = 0.0;  ///< whole sheet
  double heightMm = 0.0;
  double leftMm = 0.0;  ///< of the canvas, from the left edge of the sheet
  double topMm = 0.0;   ///< of the canvas, from the upper edge of the sheet
  double rightMm = 0.0;
  double bottomMm = 0.0;
  double left = 0.0;  ///< value of the lower axis at the left side
  double right = 0.0;
  double top = 0.0;  ///< value of the left axis at the upper side
  double bottom = 0.0;

  double xToMm(double x) const;  ///< from the left edge of the sheet
  double yToMm(double y) const;  ///< from the upper edge of the sheet
};

/// A plot in the dress of all figures: title above, axes around a framed canvas, legend and caption
/// below. Lengths on the sheet are in points of 1/96 inch. Lives on the thread of the QApplication.
class FigurePlot {
 public:
  FigurePlot();
  ~FigurePlot();
  FigurePlot(const FigurePlot&) = delete;
  FigurePlot& operator=(const FigurePlot&) = delete;

  QwtPlot& plot() { return *mPlot; }
  double pointsPerMm() const;

  /// Values are metres and m/s whatever unit the title names; see setShownScale().
  /// \param axis one of QwtPlot::Axis
  void addAxis(int axis, const QString& title);
  /// Values at the left and right, or lower and upper, end of an axis; the first may be the larger.
  /// Ticks are `spacing` points apart at least, over a canvas that measures `length` that way, and
  /// only where the value lies from `firstTick` to `lastTick`.
  struct Scale {
    double from = 0.0;
    double to = 1.0;
    double firstTick = 0.0;
    double lastTick = 1.0;
    double length = 0.0;
    double spacing = 80.0;
    bool wholeNumbers = false;
    bool logarithmic = false;  ///< both ends are positive
  };
  void setScale(int axis, const Scale& scale);
  /// Title, cut to the width of the sheet, and caption; UTF-8.
  void setTexts(const std::string& title, const std::string& caption, double widthMm);
  /// The plot owns the item from here on.
  void add(QwtPlotItem* item);

  /// Lays the plot out on a sheet. The place depends on scales and texts, which are set before.
  PlotPlace measure(double widthMm, double heightMm);

  /// Lays the plot out on a sheet of that size, `setScales` setting the scales for a canvas of so
  /// many points. Fails when axes and texts leave less room than the least.
  Status fit(double widthMm, double heightMm, double leastWidth, double leastHeight,
             const std::function<void(double width, double height)>& setScales, PlotPlace& place);

  /// Keeps room beside the lower axis for numbers at its ends, whether there are some or not.
  void keepEndsFree();

  /// Paints onto a device that knows its resolution; `sheet` is the whole sheet.
  /// \param widthMm of the sheet, by which the result is measured; it is the place as painted, for
  /// a sheet of whole pixels is not quite the sheet that was measured
  PlotPlace paint(QPainter& painter, const QRectF& sheet, double widthMm);

 private:
  class Renderer;
  std::unique_ptr<QwtPlot> mPlot;
};

/// How large a canvas is to be; 0: what its sheet leaves it.
struct CanvasSize {
  double widthMm = 0.0;
  double heightMm = 0.0;
};

/// What a part of a plot wants of a sheet, where the whole wants so much.
CanvasSize sizeOfPart(const CanvasSize& whole, const std::optional<PlotPart>& part);

/// Gives a sheet the size at which its canvas has that wanted. One larger than any sheet
/// (FigureSheet::kMaxMm) is only measured, about, and not laid out.
/// \param widthMm, heightMm of the sheet, in and out
/// \param fit lays the plot out on a sheet of the size that these have
/// \param place where `fit` leaves the place of the canvas
Status fitSheet(const CanvasSize& wanted, double& widthMm, double& heightMm, const PlotPlace& place,
                const std::function<Status()>& fit);

/// A number on a picture, see FigureNumbers.h.
QString figureNumber(double value, int digits = 10);

/// The thin frame around a canvas or a colour bar.
void paintFigureFrame(QPainter& painter, const QRectF& rect);

}  // namespace talvesk
