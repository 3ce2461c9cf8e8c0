#pragma once

#include "figures/TravelTimeItems.h"
#include "widgets/TraceMapping.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/ViewHistory.h"

#include <QElapsedTimer>
#include <QPointF>
#include <optional>

class QCheckBox;
class QHelpEvent;
class QLabel;
class QMouseEvent;
class QPainter;
class QStackedLayout;
class QToolButton;
class QWheelEvent;
class QwtPlot;
class QwtPlotGrid;
class QwtPlotItem;

namespace talvesk {

/// What the plot of travel times remembers between events. Its functions stand in the file of their
/// purpose: TravelTimePlot.cpp builds and follows the document, _view.cpp zooms and paints,
/// _mouse.cpp answers the mouse.
struct TravelTimePlot::State {
  explicit State(TravelTimePlot& owner) : widget(owner) {}

  /// How a new window enters the history of views.
  enum class Step { New, Continuing, Silent };
  enum class Drag { None, Press, Pick, Band, Pan };
  struct PickAt {
    int shot = -1;
    int trace = -1;
  };

  // --- Building and following.
  void build();
  void buildLegend();
  void dress();        ///< colours and fonts of the desktop
  void retranslate();  ///< texts of the program's language
  void readDocument();
  void followVisibility();  ///< of measured and computed times
  void describeCurrent();
  void chooseShot(int shot);
  void walk(int curves);

  // --- View.
  ViewWindow wholeWindow() const;
  void show(const ViewWindow& wanted, Step step);
  void applyWindow();
  void zoomAbout(const QPointF& point, double byPosition, double byTime, Step step);
  void zoomAboutMiddle(double by);
  void pan(double partOfWidth, double partOfHeight);
  void goInHistory(bool back);
  QPointF point(const Point2D& metresAndMs) const;
  double metresAt(double x) const;
  double timeAt(double y) const;  ///< seconds
  void canvasResized();
  void paintOverlay(QPainter& painter) const;
  void paintRing(QPainter& painter, const QPointF& middle, const QColor& color) const;

  // --- Mouse.
  const TravelTimeCurve* curveOf(int shot) const;
  std::optional<Point2D> pickPoint(int shot, int trace) const;
  std::optional<PickAt> pickAt(const QPointF& point) const;
  int curveAt(const QPointF& point) const;  ///< shot; -1 none
  bool press(const QMouseEvent& event);
  void move(const QMouseEvent& event);
  void release(const QMouseEvent& event);
  void startDragging(const QPointF& point);
  void finishBand(const QPointF& point);
  void movePick(PickAt pick, double seconds);
  void cancelDrag();
  void hoverAt(const QPointF& point);
  void wheel(const QWheelEvent& event);
  void tell(const QHelpEvent& event);
  void openMenu(const QPoint& global, const QPointF& point);

  TravelTimePlot& widget;
  Role role = Role::AllShots;
  const TomoDocument* document = nullptr;
  EditPick edit;
  int current = -1;
  int highlighted = -1;

  TravelTimeCurves curves;
  TravelTimeLook look;
  bool measuredShown = true;
  bool computedShown = true;

  ViewWindow window;
  bool movedByUser = false;  ///< else the window follows size and document
  bool layingOut = false;
  ViewHistory history;
  QElapsedTimer sinceStep;

  Drag drag = Drag::None;
  Qt::MouseButton dragButton = Qt::NoButton;
  Qt::KeyboardModifiers dragModifiers;
  QPointF pressed;
  QPointF dragged;
  ViewWindow pressedWindow;
  std::optional<PickAt> grabbed;
  std::optional<PickAt> hovered;

  QStackedLayout* pages = nullptr;
  QWidget* plotPage = nullptr;
  QLabel* emptyPage = nullptr;
  QWidget* bar = nullptr;
  QCheckBox* measuredBox = nullptr;
  QCheckBox* computedBox = nullptr;
  QLabel* shotIcon = nullptr;
  QLabel* shotLabel = nullptr;
  QLabel* currentLabel = nullptr;
  QToolButton* fitButton = nullptr;
  QToolButton* exportButton = nullptr;
  QWidget* overlay = nullptr;
  QwtPlot* plot = nullptr;
  QwtPlotGrid* grid = nullptr;
  QwtPlotItem* measured = nullptr;
  QwtPlotItem* computed = nullptr;
  QwtPlotItem* shots = nullptr;
};

}  // namespace talvesk
