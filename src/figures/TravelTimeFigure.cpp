#include "figures/TravelTimeFigure.h"

#include "figures/FigureOutput.h"
#include "figures/FigureWords.h"
#include "figures/TravelTimeCurves.h"
#include "figures/TravelTimeItems.h"
#include "model/ChiSquare.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"

#include <QByteArray>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <memory>

#include <qwt_plot.h>

namespace talvesk {
namespace {

constexpr double kPadding = 12.0;  ///< inside the axes, points of 1/96 inch
constexpr double kMinCanvasWidth = 120.0;
constexpr double kMinCanvasHeight = 80.0;

/// The curves laid out as a plot.
class TravelTimeSheet {
 public:
  TravelTimeSheet(const TomoDocument& document, const TravelTimeFigureOptions& options);

  Status layOut();
  void paint(QPainter& painter, const QRectF& sheet) {
    mLayout.place = mPlot.paint(painter, sheet, mOptions.widthMm);
  }

  const std::string& title() const { return mTitle; }
  double widthMm() const { return mOptions.widthMm; }
  double heightMm() const { return mOptions.heightMm; }
  const TravelTimeFigureLayout& layout() const { return mLayout; }

 private:
  void setScales(double width, double height);
  double span() const { return mCurves.high > mCurves.low ? mCurves.high - mCurves.low : 2.0; }
  Status fit();
  CanvasSize wholeCanvas() const;
  std::string caption(const TomoDocument& document) const;

  TravelTimeFigureOptions mOptions;
  TravelTimeCurves mCurves;
  TravelTimeLook mLook;
  std::string mTitle;
  std::string mCaption;
  TravelTimeFigureLayout mLayout;
  FigurePlot mPlot;  // goes first at the end: its items look at the curves
};

TravelTimeSheet::TravelTimeSheet(const TomoDocument& document,
                                 const TravelTimeFigureOptions& options)
    : mOptions(options),
      mCurves(travelTimeCurves(document, options.computed, options.layered)),
      mTitle(options.title.empty() ? document.title : options.title) {
  if (mTitle.empty()) mTitle = FigureWords::tr("Travel times").toStdString();
  for (const TravelTimeCurve& curve : mCurves.curves) {
    for (const auto& pick : curve.picks) {
      mLayout.picks.push_back({curve.record, pick.geophone, pick.point.x, pick.point.z});
    }
  }
  mLayout.computedTimes = mCurves.computedTimes;
  mLayout.layeredTimes = mCurves.layeredTimes;
  mLook.joined = mCurves.computedTimes + mCurves.layeredTimes == 0;
  mLook.errorBars = options.errorBars;
  mCaption = caption(document);
  mPlot.addAxis(QwtPlot::xBottom, FigureWords::distanceAxis());
  mPlot.addAxis(QwtPlot::yLeft, FigureWords::timeAxis());
  using namespace travel_time_items;
  mPlot.add(measured(mCurves.curves, mLook));
  if (mLayout.computedTimes > 0) mPlot.add(computed(mCurves.curves, mLook));
  if (mLayout.layeredTimes > 0) mPlot.add(layered(mCurves.curves, mLook));
  mPlot.add(shots(mCurves.curves, mLook));
}

std::string TravelTimeSheet::caption(const TomoDocument& document) const {
  QStringList parts{FigureWords::shots(mCurves.curves.size()),
                    FigureWords::picks(mLayout.picks.size())};
  if (mLook.errorBars && mCurves.errors > 0) parts += FigureWords::errorBars();
  if (mLayout.computedTimes > 0) {
    parts += FigureWords::computedTimes(mLayout.computedTimes);
    const SectionMisfit misfit = misfitOfTimes(document);
    if (misfit.count > 0) parts += FigureWords::misfit(misfit);
    const ChiSquare fit = sectionChiSquareOf(document);
    if (fit.count > 0) parts += FigureWords::chiSquare(fit);
    if (picksChangedSince(document)) parts += FigureWords::picksChanged();
  }
  if (mLayout.layeredTimes > 0) parts += FigureWords::tr("dashed: times through the layers");
  return FigureWords::joined(parts).toStdString();
}

void TravelTimeSheet::setScales(double width, double height) {
  const CanvasSize whole = wholeCanvas();
  const bool isPart = mOptions.part.has_value();
  double middle = 0.5 * (mCurves.low + mCurves.high);
  const double metresPerPoint = mOptions.scale > 0.0 ? 1e-3 * mOptions.scale / mPlot.pointsPerMm()
                                                     : span() / (width - 2.0 * kPadding);
  if (isPart) {
    middle += 1e-3 * mOptions.scale * (mOptions.part->middleMm() - 0.5 * whole.widthMm);
  }
  const double side = 0.5 * width * metresPerPoint;
  FigurePlot::Scale x;
  x.from = x.firstTick = middle - side;
  x.to = x.lastTick = middle + side;
  x.length = width;
  x.spacing = 60.0;
  mPlot.setScale(QwtPlot::xBottom, x);

  const double perPoint = mOptions.msPerCm > 0.0 ? 0.1 * mOptions.msPerCm / mPlot.pointsPerMm()
                                                 : mCurves.latestMs / (height - 2.0 * kPadding);
  const double mm = mPlot.pointsPerMm();
  double above = height - kPadding;  // of time 0
  if (isPart && whole.heightMm > 0.0) {
    above = (whole.heightMm - mOptions.part->topMm) * mm - kPadding;
  }
  FigurePlot::Scale time;
  time.from = (above - height) * perPoint;
  time.to = time.lastTick = above * perPoint;
  time.firstTick = std::max(time.from, 0.0);
  time.length = height;
  time.spacing = 40.0;
  mPlot.setScale(QwtPlot::yLeft, time);
  mPlot.plot().updateAxes();
}

CanvasSize TravelTimeSheet::wholeCanvas() const {
  const double padding = 2.0 * kPadding / mPlot.pointsPerMm();
  CanvasSize whole;
  if (mOptions.scale > 0.0) {
    whole.widthMm = std::max(1e3 * span() / mOptions.scale + padding,
                             kMinCanvasWidth / mPlot.pointsPerMm() + 1.0);
  }
  if (mOptions.msPerCm > 0.0) {
    whole.heightMm = std::max(10.0 * mCurves.latestMs / mOptions.msPerCm + padding,
                              kMinCanvasHeight / mPlot.pointsPerMm() + 1.0);
  }
  return whole;
}

Status TravelTimeSheet::layOut() {
  if (mLayout.picks.empty() && mLayout.computedTimes + mLayout.layeredTimes == 0) {
    return Status::failure(Message::tr(
        "There are no travel times to draw: pick first breaks, or load travel times, first."));
  }
  return fitSheet(sizeOfPart(wholeCanvas(), mOptions.part), mOptions.widthMm, mOptions.heightMm,
                  mLayout.place, [this] { return fit(); });
}

Status TravelTimeSheet::fit() {
  mPlot.setTexts(mOptions.showTitle ? mTitle : std::string(), mCaption, mOptions.widthMm);
  const auto scale = [this](double width, double height) { setScales(width, height); };
  return mPlot.fit(mOptions.widthMm, mOptions.heightMm, kMinCanvasWidth, kMinCanvasHeight, scale,
                   mLayout.place);
}

/// Lays the curves out for a file of that format.
Status layOut(const TomoDocument& document, const TravelTimeFigureOptions& options,
              FigureFormat format, FigureSheet& sheet, std::unique_ptr<TravelTimeSheet>& plot) {
  if (Status status = checkApplication("A plot of curves"); !status.ok()) return status;
  sheet = {options.widthMm, options.heightMm, options.dpi, {}};
  if (Status status = sheet.check(format); !status.ok()) return status;
  plot = std::make_unique<TravelTimeSheet>(document, options);
  if (Status status = plot->layOut(); !status.ok()) return status;
  sheet.title = plot->title();
  sheet.widthMm = plot->widthMm();
  sheet.heightMm = plot->heightMm();
  return {};
}

}  // namespace

Status prepareTravelTimeFigure(const TomoDocument& document, const TravelTimeFigureOptions& options,
                               FigureDrawing& drawing, PlotPlace* place) {
  std::unique_ptr<TravelTimeSheet> plot;
  Status status = layOut(document, options, FigureFormat::kPdf, drawing.sheet, plot);
  if (!status.ok()) return status;
  if (place != nullptr) *place = plot->layout().place;
  drawing.paint = [shared = std::shared_ptr<TravelTimeSheet>(std::move(plot))](
                      QPainter& painter, const QRectF& rect) { shared->paint(painter, rect); };
  return {};
}

Status renderTravelTimeFigure(const TomoDocument& document, const TravelTimeFigureOptions& options,
                              FigureFormat format, QByteArray& bytes,
                              TravelTimeFigureLayout* layout) {
  FigureSheet sheet;
  std::unique_ptr<TravelTimeSheet> plot;
  if (Status status = layOut(document, options, format, sheet, plot); !status.ok()) return status;
  const auto paint = [&plot](QPainter& painter, const QRectF& rect) { plot->paint(painter, rect); };
  if (Status status = paintFigure(format, sheet, paint, bytes); !status.ok()) return status;
  if (layout != nullptr) *layout = plot->layout();
  return {};
}

Status writeTravelTimeFigure(const TomoDocument& document, const TravelTimeFigureOptions& options,
                             const std::string& path) {
  return writeFigure(path, [&](FigureFormat format, QByteArray& bytes) {
    return renderTravelTimeFigure(document, options, format, bytes);
  });
}

}  // namespace talvesk
