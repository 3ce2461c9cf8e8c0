#pragma once

#include "widgets/AxisTicks.h"
#include "widgets/SectionSheet.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPainter>
#include <QPointF>
#include <QPolygonF>
#include <QTransform>
#include <functional>
#include <utility>
#include <vector>

namespace talvesk {

/// Room around the section, logical pixels.
struct SheetMargins {
  double left = 0.0;
  double top = 0.0;
  double right = 0.0;
  double bottom = 0.0;
  bool colorBar = false;  ///< there is room for one, and it is wanted
  bool legend = false;    ///< there is room for the line of symbols below the axis
};
SheetMargins sheetMargins(const SectionSheet& sheet, const QSizeF& size, const QFont& font);

/// Paints one sheet, part by part.
class SheetPainter {
  Q_DECLARE_TR_FUNCTIONS(talvesk::SectionSheet)

 public:
  SheetPainter(const SectionSheet& sheet, std::pair<Point2D, Point2D> extent, QPainter& painter,
               const QSizeF& size, const QRectF& plot, const SectionCamera& camera);

  void paintOverSection();  ///< grid lines, lines, markers, contour values; within the plot
  void paintMargins();      ///< white paper around the plot
  void paintAxes();
  void paintColorBar();
  void paintTexts();  ///< title, legend, exaggeration

 private:
  /// One axis: marks from `origin` outwards, numbers beyond them, the title at the middle.
  struct Axis {
    AxisTicks ticks;
    std::function<QPointF(double)> at;
    QPointF outward;  ///< unit vector
    QString title;
    QPointF middle;
    double titleDistance = 0.0;
  };

  bool isTurned() const { return mCamera.turn != 0.0 || mCamera.tilt != 0.0; }
  QRectF visible() const;  ///< survey x and elevation in the plot; top() is the lower elevation
  QRectF axisRoom() const;
  AxisTicks distanceTicks() const;
  AxisTicks elevationTicks() const;
  Axis distanceAxis() const;
  Axis elevationAxis() const;
  void paintAxis(const Axis& axis);
  QPolygonF mapped(const std::vector<Point2D>& points) const;
  void paintGridLines();
  void paintLines();
  void paintContourValues();
  void paintMarkers();
  struct LegendEntry {
    QString text;
    std::function<void(const QPointF& middle)> symbol;
  };
  std::vector<LegendEntry> legend() const;
  void paintLegend(double left, double right, double y);

  const SectionSheet& mSheet;
  const SectionScene& mScene;
  std::pair<Point2D, Point2D> mExtent;  ///< of the section
  QPainter& mPainter;
  QSizeF mSize;
  QRectF mPlot;
  SectionCamera mCamera;
  QTransform mMap;  ///< survey positions to the sheet
  SheetMargins mMargins;
  QLocale mLocale;
  double mLine;  ///< height of a line of text
};

}  // namespace talvesk
