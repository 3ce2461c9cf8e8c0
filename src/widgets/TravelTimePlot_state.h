#pragma once

#include "figures/TravelTimeItems.h"
#include "widgets/TravelTimePlot.h"

#include <QPointF>
#include <optional>

class QCheckBox;
class QHelpEvent;
class QLabel;
class QToolButton;
class QwtPlotItem;

namespace talvesk {

/// What the plot of travel times remembers between events. TravelTimePlot.cpp builds it and follows
/// the document, _mouse.cpp answers the mouse.
struct TravelTimePlot::State {
  class PickTool;

  explicit State(TravelTimePlot& owner);

  struct PickAt {
    int shot = -1;
    int trace = -1;
    friend bool operator==(const PickAt& a, const PickAt& b) {
      return a.shot == b.shot && a.trace == b.trace;
    }
  };

  // --- Building and following.
  void build();
  void buildLegend();
  void readDocument();
  void followVisibility();  ///< of measured and computed times
  void describeLayered();
  void describeCurrent();
  void chooseShot(int shot);
  void walk(int curves);

  // --- Mouse.
  QPointF point(const Point2D& metresAndMs) const {
    return widget.toCanvas({metresAndMs.x, metresAndMs.z});
  }
  double timeAt(double y) const { return 1e-3 * widget.placeAt({0.0, y}).y(); }  ///< seconds
  const TravelTimeCurve* curveOf(int shot) const;
  std::optional<Point2D> pickPoint(int shot, int trace) const;
  std::optional<PickAt> pickAt(const QPointF& point) const;
  int curveAt(const QPointF& point) const;  ///< shot; -1 none
  void movePick(PickAt pick, double seconds);
  void paintRing(QPainter& painter, const QPointF& middle, const QColor& color) const;
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
  bool layeredShown = false;
  bool layeredPossible = false;
  std::vector<std::vector<double>> layeredTimes;

  std::unique_ptr<PlotTool> pickTool;
  std::unique_ptr<PlotTool> chooseTool;  ///< the shot, by a click; else a rectangle to zoom to
  std::optional<PickAt> hovered;

  QWidget* bar = nullptr;
  QCheckBox* measuredBox = nullptr;
  QCheckBox* computedBox = nullptr;
  QCheckBox* layeredBox = nullptr;
  QLabel* shotIcon = nullptr;
  QLabel* shotLabel = nullptr;
  QLabel* currentLabel = nullptr;
  QToolButton* fitButton = nullptr;
  QToolButton* exportButton = nullptr;
  QwtPlotItem* measured = nullptr;
  QwtPlotItem* computed = nullptr;
  QwtPlotItem* layered = nullptr;
  QwtPlotItem* shots = nullptr;
};

}  // namespace talvesk
