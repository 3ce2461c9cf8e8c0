#pragma once

#include "base/Point2D.h"
#include "widgets/PlotPage.h"

#include <QPointF>
#include <memory>
#include <optional>
#include <vector>

namespace talvesk {

/// What the places of a plan are.
enum class LinePlanAxes {
  kElevation,  ///< elevation against distance
  kOffset,     ///< offset across the line against distance
  kMap         ///< north against east of the first geophone, to one scale
};

/// What a plan of the line shows. Points that are not finite are left out.
struct LinePlanScene {
  std::vector<std::vector<Point2D>> strings;  ///< geophones in channel order, metres
  int currentString = -1;                     ///< drawn stronger; -1 none
  std::vector<Point2D> shots;                 ///< metres
  std::vector<Point2D> mistakes;              ///< ringed
  std::vector<Point2D> axis;                  ///< corners of the line that was laid through
  std::optional<Point2D> current;             ///< the geophone or shot that is edited
};

/// Geophones and shots of a survey, elevation against distance or from above. A click chooses the
/// geophone of the current string, else of another one, or the shot that is nearest; a drag zooms
/// to a rectangle.
class LinePlan : public PlotPage {
  Q_OBJECT

 public:
  explicit LinePlan(QWidget* parent = nullptr);
  void setAxes(LinePlanAxes axes);
  ~LinePlan() override;

  void setScene(LinePlanScene scene);
  const LinePlanScene& scene() const { return mScene; }

  QPointF pointOf(const Point2D& place) const;  ///< in coordinates of canvas()

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void geophoneClicked(int string, int geophone);  ///< from 0
  void shotClicked(int shot);                      ///< from 0

 protected:
  PlotTool* toolFor(Qt::MouseButton button, Qt::KeyboardModifiers keys, const QPointF& at) override;
  void dress() override;
  void retranslate() override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void draw();
  QRectF content() const;
  QString placeText(const Point2D& place) const;
  void click(const QPointF& at);

  /// What a point of the plan belongs to.
  struct Target {
    int string = -1;
    int index = -1;  ///< geophone of the string, or shot where the string is -1
  };
  std::optional<Target> targetAt(const QPointF& at) const;

  LinePlanAxes mAxes = LinePlanAxes::kElevation;
  bool mFitting = false;
  LinePlanScene mScene;
  std::unique_ptr<PlotTool> mChoose;
};

}  // namespace talvesk
