#pragma once

#include "base/Point2D.h"

#include <QPointF>
#include <QWidget>
#include <optional>
#include <vector>

class QwtPlot;

namespace talvesk {

/// What a plan of the line shows. Points that are not finite are left out.
struct LinePlanScene {
  std::vector<std::vector<Point2D>> strings;  ///< geophones in channel order, metres
  int currentString = -1;                     ///< drawn stronger; -1 none
  std::vector<Point2D> shots;                 ///< metres
  std::vector<Point2D> mistakes;              ///< ringed
  std::optional<Point2D> current;             ///< the geophone or shot that is edited
};

/// Geophones and shots of a survey, elevation against distance. A click chooses the geophone of the
/// current string, else of another one, or the shot that is nearest.
class LinePlan : public QWidget {
  Q_OBJECT

 public:
  explicit LinePlan(QWidget* parent = nullptr);
  ~LinePlan() override;

  void setScene(LinePlanScene scene);
  const LinePlanScene& scene() const { return mScene; }

  QWidget* canvas() const;
  QPointF pointOf(const Point2D& place) const;  ///< in coordinates of canvas()

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void geophoneClicked(int string, int geophone);  ///< from 0
  void shotClicked(int shot);                      ///< from 0

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void draw();
  void fitAxes();
  void retranslate();
  void click(const QPointF& at);
  bool showTip(const QPoint& at, const QPoint& global);

  /// What a point of the plan belongs to.
  struct Target {
    int string = -1;
    int index = -1;  ///< geophone of the string, or shot where the string is -1
  };
  std::optional<Target> targetAt(const QPointF& at) const;

  QwtPlot* mPlot;
  LinePlanScene mScene;
};

}  // namespace talvesk
