#pragma once

#include "figures/ContourLabels.h"
#include "figures/SectionCamera.h"
#include "figures/SectionPaper_layout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTransform>
#include <functional>
#include <vector>

namespace talvesk {

struct Annotation;
struct MarkedIsoline;

/// Paints one sheet, part by part.
class SectionPaperPainter {
 public:
  SectionPaperPainter(const SectionScene& scene, const SectionExtent& extent,
                      const ColorTable& colors, const SectionDress& dress, QPainter& painter,
                      const QSizeF& size, const SectionCamera& camera);

  void showPartOf(const SectionWhole& whole);  ///< first of all, if at all
  void paintMarks();                           ///< what lies on the section; within the plot
  void paintMargins();
  void paintAxes();
  void paintColorBar();
  void paintTitle();
  void paintWords();

  std::vector<PlacedText> texts;  ///< painted so far

 private:
  /// One axis: marks from its line outwards, numbers beyond them, the title along its middle.
  struct Axis {
    AxisTicks ticks;
    std::function<QPointF(double)> at;  ///< on the line
    QPointF outward;                    ///< unit vector
    QRectF room;                        ///< that its words keep to
    QString title;
    QPointF titleMiddle;
    double titleAngle = 0.0;  ///< degrees
  };

  QRectF visible() const;  ///< survey x and elevation in the plot; top() is the lower elevation
  QRectF axisRoom() const;
  AxisTicks distanceTicks() const;
  AxisTicks elevationTicks() const;
  Axis distanceAxis() const;
  Axis elevationAxis() const;
  QPointF distancePoint(double x) const;
  double elevationLine() const;  ///< x of the elevation axis on the sheet
  void paintAxis(const Axis& axis);
  void paintFrame();
  QPolygonF outlineOf(const QString& text, const QPointF& middle, double angle) const;
  /// Unless a text is there already, or there is no room for it.
  void putWithin(const QRectF& room, const QString& text, const QPointF& middle,
                 double angle = 0.0);
  void put(const QString& text, const QPointF& middle, double angle = 0.0);
  void putOnPlate(const QString& text, const QPointF& middle, double beside, const QColor& color);
  void dropTextsBeyond();
  QRectF ownPart() const;

  void paintFading();
  void paintDepthBands();
  void paintVelocity(double velocity, const Point2D& middle);
  void paintGridLines();
  void paintLines();
  void paintContourValues(std::vector<QRectF>& taken);
  void paintMarkers();
  void paintKnown();
  void paintAreas();        ///< polygons of annotations
  void paintAnnotations();  ///< their lines and texts
  void paintMarkedIsolines();
  QPolygonF onSheet(const Annotation& item) const;
  void putNote(const Annotation& item, const QPointF& middle);
  void putOnSection(const QString& text, const QPointF& middle);
  QString velocityWords(double velocity) const;  ///< without its unit

  const SectionScene& mScene;
  const SectionExtent& mExtent;
  const ColorTable& mColors;
  const SectionDress& mDress;
  QPainter& mPainter;
  QSizeF mSize;
  SectionCamera mCamera;
  SectionPaperLayout mLayout;
  QRectF mPlot;
  QRectF mWhole;       ///< the plot, or that of which it is a part
  double mMeet = 0.0;  ///< see SectionWhole
  QTransform mMap;     ///< survey positions to the sheet
  QFontMetricsF mMetrics;
  double mLine;                                       ///< height of a line of text
  std::vector<section_items::LineLabel> mLineLabels;  ///< of lines painted so far
};

/// A known depth with the bar of its error. \param up, down lengths of the bar on the sheet
void paintKnownDepth(QPainter& painter, const QPointF& at, double up, double down);

}  // namespace talvesk
