#include "figures/GatherFigure.h"

#include "base/LengthUnit.h"
#include "base/TextNumber.h"
#include "figures/FigureItem.h"
#include "figures/FigureOutput.h"
#include "figures/FigureWords.h"
#include "figures/GatherItems.h"
#include "figures/GatherScene.h"
#include "figures/SectionItems.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"

#include <QByteArray>
#include <QColor>
#include <QPainter>
#include <QString>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include <qwt_plot.h>

namespace talvesk {
namespace {

// Lengths on the sheet, in points of 1/96 inch.
constexpr double kTopPadding = 16.0;  ///< geophones and shot stand above the first sample
constexpr double kBottomPadding = 4.0;
constexpr double kSidePadding = 12.0;  ///< beyond the largest swing
constexpr double kMinCanvasWidth = 120.0;
constexpr double kMinCanvasHeight = 80.0;

/// One shot laid out as a plot.
class GatherPlot {
 public:
  GatherPlot(GatherScene scene, const GatherFigureOptions& options);

  /// Fails when axes and texts leave no room for the traces.
  Status layOut();
  void paint(QPainter& painter, const QRectF& sheet) {
    mPlace = mPlot.paint(painter, sheet, mOptions.widthMm);
  }

  GatherFigureLayout layout() const;
  FigureSheet sheet() const;

 private:
  void setScales(double width, double height);
  CanvasSize wantedCanvas() const;
  double swing() const;

  GatherFigureOptions mOptions;
  GatherScene mScene;
  PlotPlace mPlace;
  FigurePlot mPlot;  // goes first at the end: its items look at the scene
};

GatherPlot::GatherPlot(GatherScene scene, const GatherFigureOptions& options)
    : mOptions(options), mScene(std::move(scene)) {
  mPlot.addAxis(QwtPlot::xBottom, placeAxis(mScene));
  mPlot.addAxis(QwtPlot::yLeft, timeAxis(mScene));
  mPlot.add(gather_items::wiggles(mScene, {mOptions.gain, mOptions.clip, mOptions.fillPositive}));
  const double top = mScene.window.beginMs;
  if (!mScene.byChannel) {
    std::vector<Point2D> receivers;
    for (const double x : mScene.receivers) receivers.push_back({x, top});
    mPlot.add(section_items::markers(receivers, FigureWords::tr("Geophones"),
                                     section_items::Marker::kGeophone));
  }
  if (mScene.shotX) {
    mPlot.add(section_items::markers({{*mScene.shotX, top}}, FigureWords::tr("Shot"),
                                     section_items::Marker::kShot));
  }
  if (mScene.hasPicks) mPlot.add(gather_items::picks(mScene, toColor(mOptions.pickColor)));
}

/// The outer traces need room for theirs, which are counted in distances between traces.
double GatherPlot::swing() const {
  return mOptions.clip * mScene.spacing * static_cast<double>(mScene.traceStep);
}

/// A channel is no length.
CanvasSize GatherPlot::wantedCanvas() const {
  const double perMm = mPlot.pointsPerMm();
  CanvasSize wanted;
  if (mOptions.scale > 0.0 && !mScene.byChannel) {
    const double width = mScene.high - mScene.low + 2.0 * swing();
    wanted.widthMm = std::max(1e3 * width / mOptions.scale + 2.0 * kSidePadding / perMm,
                              kMinCanvasWidth / perMm + 1.0);
  }
  if (mOptions.msPerCm > 0.0) {
    const double lasts = mScene.window.endMs - mScene.window.beginMs;
    wanted.heightMm =
        std::max(10.0 * lasts / mOptions.msPerCm + (kTopPadding + kBottomPadding) / perMm,
                 kMinCanvasHeight / perMm + 1.0);
  }
  return wanted;
}

void GatherPlot::setScales(double width, double height) {
  const CanvasSize wanted = wantedCanvas();
  const double perPoint = wanted.widthMm > 0.0 ? 1e-3 * mOptions.scale / mPlot.pointsPerMm()
                                               : (mScene.high - mScene.low + 2.0 * swing()) /
                                                     (width - 2.0 * kSidePadding);
  const bool isPart = wanted.widthMm > 0.0 && mOptions.part;
  double middle = 0.5 * (mScene.low + mScene.high);
  if (isPart) {
    middle += 1e-3 * mOptions.scale * (mOptions.part->middleMm() - 0.5 * wanted.widthMm);
  }
  FigurePlot::Scale x;
  x.from = middle - 0.5 * width * perPoint;
  x.to = middle + 0.5 * width * perPoint;
  x.firstTick = mScene.byChannel ? mScene.low : x.from;
  x.lastTick = mScene.byChannel ? mScene.high : x.to;
  x.length = width;
  x.spacing = mScene.byChannel ? 30.0 : 60.0;
  x.wholeNumbers = mScene.byChannel;
  mPlot.setScale(QwtPlot::xBottom, x);

  const TimeWindow& window = mScene.window;
  const double msPerPoint = wanted.heightMm > 0.0 ? 0.1 * mOptions.msPerCm / mPlot.pointsPerMm()
                                                  : (window.endMs - window.beginMs) /
                                                        (height - kTopPadding - kBottomPadding);
  FigurePlot::Scale time;
  time.to = window.beginMs - kTopPadding * msPerPoint;
  if (isPart && wanted.heightMm > 0.0) time.to += 0.1 * mOptions.msPerCm * mOptions.part->topMm;
  time.from = time.to + height * msPerPoint;
  time.firstTick = std::max(window.beginMs, time.to);
  time.lastTick = std::min(window.endMs, time.from);
  time.length = height;
  time.spacing = 40.0;
  mPlot.setScale(QwtPlot::yLeft, time);
  mPlot.plot().updateAxes();
}

Status GatherPlot::layOut() {
  const auto scale = [this](double width, double height) { setScales(width, height); };
  return fitSheet(sizeOfPart(wantedCanvas(), mOptions.part), mOptions.widthMm, mOptions.heightMm,
                  mPlace, [&] {
                    mPlot.setTexts(mOptions.showTitle ? mScene.title : std::string(),
                                   mScene.caption, mOptions.widthMm);
                    return mPlot.fit(mOptions.widthMm, mOptions.heightMm, kMinCanvasWidth,
                                     kMinCanvasHeight, scale, mPlace);
                  });
}

FigureSheet GatherPlot::sheet() const {
  return {mOptions.widthMm, mOptions.heightMm, mOptions.dpi, mScene.title};
}

GatherFigureLayout GatherPlot::layout() const {
  GatherFigureLayout layout;
  layout.place = mPlace;
  layout.byChannel = mScene.byChannel;
  layout.window = mScene.window;
  for (const GatherTrace& trace : mScene.traces) {
    if (trace.pickMs) layout.picks.push_back({trace.channel, trace.x, *trace.pickMs});
    if (trace.end > trace.first) ++layout.tracesDrawn;
  }
  return layout;
}

FigureSheet sheetOf(const GatherFigureOptions& options, std::string title) {
  return {options.widthMm, options.heightMm, options.dpi, std::move(title)};
}

Status checkDrawing(const GatherFigureOptions& options, FigureFormat format) {
  if (Status status = checkApplication("A gather"); !status.ok()) return status;
  return sheetOf(options, {}).check(format);
}

Status writeGather(const std::string& path, const QByteArray& bytes,
                   std::vector<std::string>& written) {
  if (Status status = writeBytes(path, bytes); !status.ok()) return status;
  written.push_back(path);
  return {};
}

/// "line.png" is "line_07.png" for the seventh of up to 99 shots.
std::string numbered(const std::string& path, std::size_t shot, std::size_t count) {
  constexpr std::size_t kSuffix = 4;  // of all three formats
  return path.substr(0, path.size() - kSuffix) + '_' + withZeros(shot + 1, count) +
         path.substr(path.size() - kSuffix);
}

Status writePages(const TomoDocument& document, const GatherFigureOptions& options,
                  const std::vector<std::size_t>& shots, const std::string& path,
                  std::vector<std::string>& written) {
  if (Status status = checkDrawing(options, FigureFormat::kPdf); !status.ok()) return status;
  const auto paint = [&](std::size_t page, QPainter& painter, const QRectF& rect) {
    GatherScene scene;
    Status status = buildGatherScene(document, shots[page], options, scene);
    if (!status.ok()) return status;
    GatherPlot plot(std::move(scene), options);
    status = plot.layOut();
    if (status.ok()) plot.paint(painter, rect);
    return status;
  };
  const std::string& line = options.title.empty() ? document.title : options.title;
  const FigureSheet sheet =
      sheetOf(options, line.empty() ? FigureWords::tr("Shots").toStdString() : line);
  QByteArray bytes;
  Status status = paintFigurePages(sheet, shots.size(), paint, bytes);
  return status.ok() ? writeGather(path, bytes, written) : status;
}

}  // namespace

Status prepareGatherFigure(const TomoDocument& document, std::size_t shot,
                           const GatherFigureOptions& options, FigureDrawing& drawing,
                           PlotPlace* place) {
  GatherScene scene;
  if (Status status = buildGatherScene(document, shot, options, scene); !status.ok()) {
    return status;
  }
  if (Status status = checkDrawing(options, FigureFormat::kPdf); !status.ok()) return status;
  const auto plot = std::make_shared<GatherPlot>(std::move(scene), options);
  if (Status status = plot->layOut(); !status.ok()) return status;
  drawing.sheet = plot->sheet();
  if (place != nullptr) *place = plot->layout().place;
  drawing.paint = [plot](QPainter& painter, const QRectF& rect) { plot->paint(painter, rect); };
  return {};
}

Status renderGatherFigure(const TomoDocument& document, std::size_t shot,
                          const GatherFigureOptions& options, FigureFormat format,
                          QByteArray& bytes, GatherFigureLayout* layout) {
  GatherScene scene;
  if (Status status = buildGatherScene(document, shot, options, scene); !status.ok()) {
    return status;
  }
  if (Status status = checkDrawing(options, format); !status.ok()) return status;
  GatherPlot plot(std::move(scene), options);
  if (Status status = plot.layOut(); !status.ok()) return status;
  const auto paint = [&plot](QPainter& painter, const QRectF& rect) { plot.paint(painter, rect); };
  if (Status status = paintFigure(format, plot.sheet(), paint, bytes); !status.ok()) return status;
  if (layout != nullptr) *layout = plot.layout();
  return {};
}

Status writeGatherFigures(const TomoDocument& document, const GatherFigureOptions& options,
                          const std::string& path, std::vector<std::string>& written) {
  written.clear();
  FigureFormat format{};
  if (Status status = figureFormatOf(path, format); !status.ok()) return status;
  const std::size_t count = document.recordings->traceSets.size();
  if (count == 0) return Status::failure(Message::tr("The document has no traces to draw."));
  std::vector<std::size_t> shots;
  if (options.shot) {
    shots.push_back(*options.shot);
  } else {
    for (std::size_t shot = 0; shot < count; ++shot) shots.push_back(shot);
  }
  if (format == FigureFormat::kPdf) return writePages(document, options, shots, path, written);
  for (const std::size_t shot : shots) {
    QByteArray bytes;
    Status status = renderGatherFigure(document, shot, options, format, bytes);
    const std::string name = shots.size() == 1 ? path : numbered(path, shot, count);
    if (status.ok()) status = writeGather(name, bytes, written);
    if (!status.ok()) return status;
  }
  return {};
}

}  // namespace talvesk
