#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>

class QLabel;
class QMouseEvent;
class QPainter;
class QStackedLayout;
class QwtPlot;
class QwtPlotGrid;
class QwtPlotItem;

namespace talvesk {

/// A plot with distance to the right in the dress of the desktop, that can be zoomed and panned:
/// what the plots of the layered interpretation have in common. Without anything to show a text
/// stands in its place.
///
/// Wheel: zoom at the cursor, with Ctrl the height only, with Shift the distance only. The middle
/// button pans, a double click, F or Home shows everything, + and - zoom.
class PlotPage : public QWidget {
  Q_OBJECT

 public:
  explicit PlotPage(QWidget* parent = nullptr);
  ~PlotPage() override;

  void setTexts(const QString& title, const QString& xTitle, const QString& yTitle);
  void setEmptyText(const QString& text);

  QWidget* canvas() const;  ///< the framed part that takes the mouse
  /// Where a place is on the canvas, and back; y in the units of the left axis.
  QPointF toCanvas(const QPointF& place) const;
  QPointF fromCanvas(const QPointF& point) const;
  QRectF window() const { return mWindow; }  ///< what is seen: x, and y from least to largest

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 public slots:
  void fit();
  void zoomIn();
  void zoomOut();

 protected:
  QwtPlot& plot() { return *mPlot; }
  /// The plot owns the item from here on.
  void add(QwtPlotItem* item);
  /// What there is to show, and whether there is anything: it is seen whole until the user has
  /// zoomed. Then repaints.
  void setWhole(const QRectF& whole, bool empty);
  void repaintPlot();
  void repaintOverlay();

  virtual void paintOverlay(QPainter&) {}
  /// Mouse events that the page does not take itself; return whether they are done with.
  virtual bool pressed(const QMouseEvent&) { return false; }
  virtual bool moved(const QMouseEvent&) { return false; }
  virtual bool released(const QMouseEvent&) { return false; }
  virtual void dress();  ///< colours and fonts of the desktop

  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool mouse(QEvent& event);
  void zoomAbout(const QPointF& point, double byX, double byY);
  void show(const QRectF& window);

  QStackedLayout* mPages = nullptr;
  QwtPlot* mPlot = nullptr;
  QwtPlotGrid* mGrid = nullptr;
  QLabel* mEmpty = nullptr;
  QWidget* mOverlay = nullptr;
  QRectF mWhole{0.0, 0.0, 1.0, 1.0};
  QRectF mWindow{0.0, 0.0, 1.0, 1.0};
  bool mZoomed = false;
  bool mPanning = false;
  bool mResizing = false;
  QPointF mPanFrom;
};

}  // namespace talvesk
