#pragma once

#include "widgets/PlotGestures.h"

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QWidget>
#include <memory>

class QAction;
class QPainter;
class QStackedLayout;
class QVBoxLayout;
class QwtPlot;
class QwtPlotGrid;
class QwtPlotItem;

namespace talvesk {

class EmptyPage;

/// A plot with distance to the right in the dress of the desktop, which is moved about in by the
/// gestures of all plots. Without anything to show a text stands in its place.
class PlotPage : public QWidget, protected PlotSurface {
  Q_OBJECT

 public:
  explicit PlotPage(QWidget* parent = nullptr);
  ~PlotPage() override;

  /// The axes count in the unit that their titles name; see setShownScale().
  void setTexts(const QString& title, const QString& xTitle, const QString& yTitle);
  void setEmptyText(const QString& text);
  void setEmptyCommands(const QList<QAction*>& commands);  ///< offered below that text

  QWidget* canvas() const;  ///< the framed part that takes the mouse
  /// Where a place is on the canvas; y in the units of the left axis.
  QPointF toCanvas(const QPointF& place) const;
  const ViewWindow& window() const { return mGestures->viewport().window(); }
  bool canZoomBack() const { return mGestures->viewport().canGoBack(); }
  bool canZoomForward() const { return mGestures->viewport().canGoForward(); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 public slots:
  void fit() { mGestures->fit(); }
  void zoomBack() { mGestures->goBack(); }
  void zoomForward() { mGestures->goForward(); }

 protected:
  QwtPlot& plot() const { return *mPlot; }
  PlotGestures& gestures() const { return *mGestures; }
  /// The plot owns the item from here on.
  void add(QwtPlotItem* item);
  void addBelow(QWidget* bar);
  void setPadding(double pixels) { mPadding = pixels; }  ///< around what there is to show
  /// Plots above each other that have the numbers at the left as wide have their distances above
  /// each other.
  void alignNumbers();
  /// What there is to show, and whether there is anything: it is seen whole, with some room around,
  /// until the user has zoomed. Then repaints.
  void setWhole(const QRectF& content, bool empty);
  void repaintPlot();

  virtual void scaleAxes();  ///< to the window
  virtual void paintOverlay(QPainter&) {}
  virtual void dress();  ///< colours and fonts of the desktop
  virtual void retranslate() {}

  bool hasNothing() const override;
  QRectF area() const override;
  QPointF placeAt(const QPointF& point) const override;
  void viewMoved() override;
  void repaintLive() override;

  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void takeKeysIfAny();
  void followContent();

  QStackedLayout* mPages = nullptr;
  QVBoxLayout* mColumn = nullptr;
  QwtPlot* mPlot = nullptr;
  QwtPlotGrid* mGrid = nullptr;
  EmptyPage* mEmpty = nullptr;
  QWidget* mOverlay = nullptr;
  std::unique_ptr<PlotGestures> mGestures;
  QRectF mContent{0.0, 0.0, 1.0, 1.0};
  double mPadding = 12.0;
  bool mResizing = false;
};

}  // namespace talvesk
