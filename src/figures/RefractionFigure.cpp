#include "figures/RefractionFigure.h"

#include "figures/FigureOutput.h"
#include "figures/FigureWords.h"
#include "figures/RefractionItems.h"
#include "figures/SectionItems.h"
#include "figures/SectionPlot.h"
#include "model/TomoDocument.h"
#include "refraction/PicksFingerprint.h"

#include <QByteArray>
#include <QPainter>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <utility>

#include <qwt_plot.h>

namespace talvesk {
namespace {

constexpr double kPadding = 14.0;  ///< inside the axes, points of 1/96 inch
constexpr double kMinCanvasWidth = 120.0;
constexpr double kMinCanvasHeight = 60.0;
constexpr double kGroundBelow = 0.25;  ///< of the height: what is shown of the lowest layer

class RefractionSheet {
 public:
  RefractionSheet(const TomoDocument& document,
                  const refractionDataStructure::Interpretation& profile,
                  const RefractionFigureOptions& options);

  Status layOut();
  void paint(QPainter& painter, const QRectF& sheet) {
    mPlace = mPlot.paint(painter, sheet, mOptions.widthMm);
  }
  const std::string& title() const { return mTitle; }
  const PlotPlace& place() const { return mPlace; }
  double widthMm() const { return mOptions.widthMm; }
  double heightMm() const { return mOptions.heightMm; }
  double exaggeration() const;  ///< as laid out

 private:
  void addLayers();
  void setScales(double width, double height);
  void chooseExaggeration();
  CanvasSize wantedCanvas() const;
  Point2D low() const;  ///< of what is shown inside the padding, metres
  Point2D high() const;
  std::string caption() const;

  RefractionFigureOptions mOptions;
  RefractionScene mScene;
  std::string mTitle;
  bool mPicksChanged;  ///< since the profile was built
  PlotPlace mPlace;
  FigurePlot mPlot;  // goes first at the end: its items look at the scene
};

RefractionSheet::RefractionSheet(const TomoDocument& document,
                                 const refractionDataStructure::Interpretation& profile,
                                 const RefractionFigureOptions& options)
    : mOptions(options),
      mScene(refractionScene(document, profile, options.errors)),
      mTitle(options.title.empty() ? document.title : options.title),
      mPicksChanged(picksChangedSince(document, profile.refractData)) {
  if (mTitle.empty()) mTitle = FigureWords::tr("Refraction Profile").toStdString();
  mPlot.addAxis(QwtPlot::xBottom, FigureWords::tr("X (%1)").arg(lengthUnitText()));
  mPlot.addAxis(QwtPlot::yLeft, FigureWords::tr("Z (%1)").arg(lengthUnitText()));
  addLayers();
}

void RefractionSheet::addLayers() {
  for (QwtPlotItem* item : refraction_items::layers(mScene, figureLocale())) mPlot.add(item);
  mPlot.add(refraction_items::surface(mScene));
  using namespace section_items;
  mPlot.add(markers(mScene.geophones, FigureWords::tr("Geophones"), Marker::kGeophone));
  mPlot.add(markers(mScene.shots, FigureWords::tr("Shots"), Marker::kShot));
}

Point2D RefractionSheet::low() const {
  const Point2D low = mScene.lowerLeft();
  return {low.x, low.z - kGroundBelow * std::max(mScene.upperRight().z - low.z, 1e-3)};
}

Point2D RefractionSheet::high() const {
  const Point2D high = mScene.upperRight();
  return {std::max(high.x, mScene.lowerLeft().x + 1e-3), high.z};
}

void RefractionSheet::chooseExaggeration() {
  if (mOptions.verticalExaggeration > 0.0 || !(mOptions.scale > 0.0)) return;
  mOptions.verticalExaggeration = legibleExaggeration((high().z - low().z) / (high().x - low().x));
}

CanvasSize RefractionSheet::wantedCanvas() const {
  if (!(mOptions.scale > 0.0)) return {};
  const double perMm = mPlot.pointsPerMm();
  const auto sized = [&](double metres, double factor, double least) {
    return std::max(1e3 * factor * metres / mOptions.scale + 2.0 * kPadding / perMm,
                    least / perMm + 1.0);
  };
  return {sized(high().x - low().x, 1.0, kMinCanvasWidth),
          sized(high().z - low().z, mOptions.verticalExaggeration, kMinCanvasHeight)};
}

void RefractionSheet::setScales(double width, double height) {
  const double metresPerPoint = 1e-3 * mOptions.scale / mPlot.pointsPerMm();  // 0: to fit
  // By how much the middle of a part lies from that of the whole, points rightward and upward.
  double right = 0.0;
  double up = 0.0;
  if (const auto& part = mOptions.part) {
    const CanvasSize whole = wantedCanvas();
    right = (part->middleMm() - 0.5 * whole.widthMm) * mPlot.pointsPerMm();
    up = (0.5 * (whole.heightMm - part->heightMm) - part->topMm) * mPlot.pointsPerMm();
  }
  const auto set = [this](int axis, double from, double to, double length, double spacing,
                          double perPoint, double moved) {
    double padding = (to - from) * kPadding / std::max(length - 2.0 * kPadding, 1.0);
    if (perPoint > 0.0) padding = 0.5 * (length * perPoint - (to - from));
    from += moved * perPoint;
    to += moved * perPoint;
    FigurePlot::Scale scale;
    scale.from = scale.firstTick = from - padding;
    scale.to = scale.lastTick = to + padding;
    scale.length = length;
    scale.spacing = spacing;
    mPlot.setScale(axis, scale);
  };
  set(QwtPlot::xBottom, low().x, high().x, width, 60.0, metresPerPoint, right);
  set(QwtPlot::yLeft, low().z, high().z, height, 35.0,
      metresPerPoint > 0.0 ? metresPerPoint / mOptions.verticalExaggeration : 0.0, up);
  mPlot.plot().updateAxes();
}

double RefractionSheet::exaggeration() const {
  if (mOptions.scale > 0.0) return mOptions.verticalExaggeration;
  const double perMetreX = (mPlace.rightMm - mPlace.leftMm) / (mPlace.right - mPlace.left);
  const double perMetreZ = (mPlace.bottomMm - mPlace.topMm) / (mPlace.top - mPlace.bottom);
  return perMetreZ / perMetreX;
}

std::string RefractionSheet::caption() const {
  const QString factor = figureNumber(exaggeration(), mOptions.scale > 0.0 ? 4 : 2);
  QStringList parts = {FigureWords::tr("Velocities of refractors: median"),
                       FigureWords::tr("Vertical exaggeration %1").arg(factor)};
  if (mPicksChanged) parts.prepend(FigureWords::tr("Picks have changed since this was built"));
  return FigureWords::joined(parts).toStdString();
}

Status RefractionSheet::layOut() {
  if (mScene.isEmpty()) {
    return Status::failure(Message::tr("There is no refractor with a depth to draw."));
  }
  const auto scale = [this](double width, double height) { setScales(width, height); };
  const auto fitWith = [&](const std::string& caption) {
    mPlot.setTexts(mOptions.showTitle ? mTitle : std::string(), caption, mOptions.widthMm);
    return mPlot.fit(mOptions.widthMm, mOptions.heightMm, kMinCanvasWidth, kMinCanvasHeight, scale,
                     mPlace);
  };
  chooseExaggeration();
  return fitSheet(sizeOfPart(wantedCanvas(), mOptions.part), mOptions.widthMm, mOptions.heightMm,
                  mPlace, [&] {
                    // The caption tells the exaggeration, which comes of the layout; any other
                    // caption takes the same room.
                    if (Status status = fitWith("x"); !status.ok()) return status;
                    return fitWith(caption());
                  });
}

Status layOut(const TomoDocument& document, const refractionDataStructure::Interpretation& profile,
              const RefractionFigureOptions& options, FigureFormat format, FigureSheet& sheet,
              std::unique_ptr<RefractionSheet>& plot) {
  if (Status status = checkApplication("A profile"); !status.ok()) return status;
  sheet = {options.widthMm, options.heightMm, options.dpi, {}};
  if (Status status = sheet.check(format); !status.ok()) return status;
  plot = std::make_unique<RefractionSheet>(document, profile, options);
  if (Status status = plot->layOut(); !status.ok()) return status;
  sheet.title = plot->title();
  sheet.widthMm = plot->widthMm();
  sheet.heightMm = plot->heightMm();
  return {};
}

}  // namespace

Status prepareRefractionFigure(const TomoDocument& document,
                               const refractionDataStructure::Interpretation& profile,
                               const RefractionFigureOptions& options, FigureDrawing& drawing,
                               double* exaggeration, PlotPlace* place) {
  std::unique_ptr<RefractionSheet> plot;
  Status status = layOut(document, profile, options, FigureFormat::kPdf, drawing.sheet, plot);
  if (!status.ok()) return status;
  if (exaggeration != nullptr) *exaggeration = plot->exaggeration();
  if (place != nullptr) *place = plot->place();
  drawing.paint = [shared = std::shared_ptr<RefractionSheet>(std::move(plot))](
                      QPainter& painter, const QRectF& rect) { shared->paint(painter, rect); };
  return {};
}

Status renderRefractionFigure(const TomoDocument& document,
                              const refractionDataStructure::Interpretation& profile,
                              const RefractionFigureOptions& options, FigureFormat format,
                              QByteArray& bytes, PlotPlace* place) {
  FigureSheet sheet;
  std::unique_ptr<RefractionSheet> plot;
  Status status = layOut(document, profile, options, format, sheet, plot);
  if (!status.ok()) return status;
  const auto paint = [&plot](QPainter& painter, const QRectF& rect) { plot->paint(painter, rect); };
  status = paintFigure(format, sheet, paint, bytes);
  if (status.ok() && place != nullptr) *place = plot->place();
  return status;
}

Status writeRefractionFigure(const TomoDocument& document,
                             const refractionDataStructure::Interpretation& profile,
                             const RefractionFigureOptions& options, const std::string& path) {
  return writeFigure(path, [&](FigureFormat format, QByteArray& bytes) {
    return renderRefractionFigure(document, profile, options, format, bytes);
  });
}

}  // namespace talvesk
