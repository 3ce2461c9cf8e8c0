#include "figures/TravelTimeFigure.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "figures/GatherScene.h"
#include "figures/TravelTimeItems.h"
#include "model/TomoDocument.h"

#include <QApplication>
#include <QByteArray>
#include <QPainter>
#include <QString>
#include <algorithm>
#include <string_view>

#include <qwt_plot.h>

namespace talvesk {
namespace {

constexpr double kPadding = 12.0;  ///< inside the axes, points of 1/96 inch
constexpr double kMinCanvasWidth = 120.0;
constexpr double kMinCanvasHeight = 80.0;

/// Positions of a record's receivers, as many as are known.
std::vector<double> receiversOf(const TomoDocument& document, const TravelTime& record) {
  std::vector<double> positions;
  const auto& strings = document.goephonesStringSet;
  const auto string = static_cast<std::size_t>(record.indexStesa);
  if (record.indexStesa >= 0 && string < strings.size() && !strings[string].empty()) {
    for (const Point2D& p : strings[string]) positions.push_back(p.x);
    return positions;
  }
  const auto set = static_cast<std::size_t>(record.traceSetID);
  if (record.traceSetID >= 0 && set < document.traceSets.size()) {
    for (const Trace& trace : document.traceSets[set]) {
      positions.push_back(trace.receiverPosition.x);
    }
  }
  return positions;
}

/// Geophones with a known position, by ascending x.
std::vector<std::size_t> alongTheLine(const std::vector<double>& positions) {
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < positions.size(); ++i) {
    if (isPosition(positions[i])) order.push_back(i);
  }
  std::stable_sort(order.begin(), order.end(), [&positions](std::size_t a, std::size_t b) {
    return positions[a] < positions[b];
  });
  return order;
}

/// Lines through the times of geophones that follow each other; one without a time ends a line.
std::vector<std::vector<Point2D>> linesThrough(const std::vector<double>& times,
                                               const std::vector<std::size_t>& order,
                                               const std::vector<double>& positions) {
  std::vector<std::vector<Point2D>> lines(1);
  for (const std::size_t i : order) {
    if (i < times.size() && isDrawableTime(times[i])) {
      lines.back().push_back({positions[i], 1e3 * times[i]});
    } else if (!lines.back().empty()) {
      lines.emplace_back();
    }
  }
  if (lines.back().empty()) lines.pop_back();
  return lines;
}

TravelTimeCurve curveOf(const TomoDocument& document, std::size_t index, bool withComputed) {
  const TravelTime& record = document.ttArray[index];
  const std::vector<double> positions = receiversOf(document, record);
  const std::vector<std::size_t> order = alongTheLine(positions);
  TravelTimeCurve curve;
  curve.record = index;
  for (const std::size_t i : order) {
    if (i >= record.ttMisurati.size() || !isDrawableTime(record.ttMisurati[i])) continue;
    curve.picks.push_back({i, {positions[i], 1e3 * record.ttMisurati[i]}});
  }
  curve.measuredLines = linesThrough(record.ttMisurati, order, positions);
  if (withComputed) curve.computedLines = linesThrough(record.ttCalcolati, order, positions);
  curve.hasShot = isPosition(record.shotPos2d.x);
  if (curve.hasShot) curve.shot = {record.shotPos2d.x, 0.0};
  return curve;
}

/// The curves laid out as a plot.
class TravelTimePlot {
 public:
  TravelTimePlot(const TomoDocument& document, const TravelTimeFigureOptions& options);

  Status layOut();
  void paint(QPainter& painter, const QRectF& sheet) {
    mLayout.place = mPlot.paint(painter, sheet, mOptions.widthMm);
  }

  const std::string& title() const { return mTitle; }
  const TravelTimeFigureLayout& layout() const { return mLayout; }

 private:
  void takeIn(const Point2D& point);
  void takeInShots();
  void setScales(double width, double height);
  std::string caption(double rmsPercent) const;

  const TravelTimeFigureOptions& mOptions;
  std::vector<TravelTimeCurve> mCurves;
  std::string mTitle;
  std::string mCaption;
  bool mEmpty = true;
  double mLow = 0.0;
  double mHigh = 0.0;
  double mLatestMs = 0.0;
  TravelTimeFigureLayout mLayout;
  FigurePlot mPlot;  // goes first at the end: its items look at the curves
};

TravelTimePlot::TravelTimePlot(const TomoDocument& document, const TravelTimeFigureOptions& options)
    : mOptions(options), mTitle(options.title.empty() ? document.title : options.title) {
  if (mTitle.empty()) mTitle = "Travel times";
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    TravelTimeCurve curve = curveOf(document, i, options.computed);
    if (curve.picks.empty() && curve.computedLines.empty()) continue;
    for (const auto& pick : curve.picks) {
      mLayout.picks.push_back({i, pick.geophone, pick.point.x, pick.point.z});
      takeIn(pick.point);
    }
    for (const auto& line : curve.computedLines) {
      mLayout.computedTimes += line.size();
      for (const Point2D& p : line) takeIn(p);
    }
    mCurves.push_back(std::move(curve));
  }
  takeInShots();
  mCaption = caption(document.RMSE_tomography);
  mPlot.addAxis(QwtPlot::xBottom, QStringLiteral("Distance [m]"));
  mPlot.addAxis(QwtPlot::yLeft, QStringLiteral("Time [ms]"));
  using namespace travel_time_items;
  mPlot.add(measured(mCurves, mLayout.computedTimes == 0));
  if (mLayout.computedTimes > 0) mPlot.add(computed(mCurves));
  mPlot.add(shots(mCurves));
}

void TravelTimePlot::takeIn(const Point2D& point) {
  mLow = mEmpty ? point.x : std::min(mLow, point.x);
  mHigh = mEmpty ? point.x : std::max(mHigh, point.x);
  mLatestMs = std::max(mLatestMs, point.z);
  mEmpty = false;
}

/// A shot further off than the receivers' whole line is long would take the room of the curves.
void TravelTimePlot::takeInShots() {
  const double reach = std::max(mHigh - mLow, 1.0);
  const double low = mLow - reach;
  const double high = mHigh + reach;
  for (TravelTimeCurve& curve : mCurves) {
    curve.hasShot = curve.hasShot && curve.shot.x >= low && curve.shot.x <= high;
    if (curve.hasShot) takeIn(curve.shot);
  }
}

std::string TravelTimePlot::caption(double rmsPercent) const {
  const auto count = [](std::size_t n, const char* noun) {
    return std::to_string(n) + ' ' + noun + (n == 1 ? "" : "s");
  };
  std::string text =
      count(mCurves.size(), "shot") + "   \xC2\xB7   " + count(mLayout.picks.size(), "pick");
  if (mLayout.computedTimes > 0) {
    text += "   \xC2\xB7   " + count(mLayout.computedTimes, "computed time");
    if (rmsPercent >= 0.0) text += "   \xC2\xB7   RMS misfit " + formatDouble(rmsPercent, 3) + " %";
  }
  return text;
}

void TravelTimePlot::setScales(double width, double height) {
  const double span = mHigh > mLow ? mHigh - mLow : 2.0;
  const double middle = 0.5 * (mLow + mHigh);
  const double side = 0.5 * span * width / (width - 2.0 * kPadding);
  FigurePlot::Scale x;
  x.from = x.firstTick = middle - side;
  x.to = x.lastTick = middle + side;
  x.length = width;
  x.spacing = 60.0;
  mPlot.setScale(QwtPlot::xBottom, x);

  const double perPoint = mLatestMs / (height - 2.0 * kPadding);
  FigurePlot::Scale time;
  time.from = -kPadding * perPoint;
  time.to = time.lastTick = mLatestMs + kPadding * perPoint;
  time.firstTick = 0.0;
  time.length = height;
  time.spacing = 40.0;
  mPlot.setScale(QwtPlot::yLeft, time);
  mPlot.plot().updateAxes();
}

Status TravelTimePlot::layOut() {
  if (mLayout.picks.empty() && mLayout.computedTimes == 0) {
    return Status::failure(
        "There are no travel times to draw: pick first breaks, or load travel times, first.");
  }
  mPlot.setTexts(mTitle, mCaption, mOptions.widthMm);
  const auto scale = [this](double width, double height) { setScales(width, height); };
  return mPlot.fit(mOptions.widthMm, mOptions.heightMm, kMinCanvasWidth, kMinCanvasHeight, scale,
                   mLayout.place);
}

}  // namespace

Status renderTravelTimeFigure(const TomoDocument& document, const TravelTimeFigureOptions& options,
                              FigureFormat format, QByteArray& bytes,
                              TravelTimeFigureLayout* layout) {
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
    return Status::failure("Curves cannot be drawn before the application object exists.");
  }
  FigureSheet sheet;
  sheet.widthMm = options.widthMm;
  sheet.heightMm = options.heightMm;
  sheet.dpi = options.dpi;
  if (Status status = sheet.check(format); !status.ok()) return status;
  TravelTimePlot plot(document, options);
  if (Status status = plot.layOut(); !status.ok()) return status;
  sheet.title = plot.title();
  const auto paint = [&plot](QPainter& painter, const QRectF& rect) { plot.paint(painter, rect); };
  if (Status status = paintFigure(format, sheet, paint, bytes); !status.ok()) return status;
  if (layout != nullptr) *layout = plot.layout();
  return {};
}

Status writeTravelTimeFigure(const TomoDocument& document, const TravelTimeFigureOptions& options,
                             const std::string& path) {
  FigureFormat format{};
  if (Status status = figureFormatOf(path, format); !status.ok()) return status;
  QByteArray bytes;
  if (Status status = renderTravelTimeFigure(document, options, format, bytes); !status.ok()) {
    return status;
  }
  return writeFileAtomically(
      path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

}  // namespace talvesk
