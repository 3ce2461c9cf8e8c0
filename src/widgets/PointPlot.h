#pragma once

#include "widgets/SeriesPlot.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace talvesk {

class BandTool;

/// Curves with points that can be chosen: by a click, or Ctrl and the arrow keys to the next one at
/// the left or right and Return. The mouse is told what it stands on.
class PointPlot : public SeriesPlot {
  Q_OBJECT

 public:
  explicit PointPlot(QWidget* parent = nullptr);
  ~PointPlot() override;

  /// Those of the curves that can be chosen. The current one is forgotten.
  void setPoints(std::vector<Point2D> points);
  void setTexts(std::function<QString(std::size_t point)> textOf) { mTextOf = std::move(textOf); }
  using PlotPage::setTexts;

  void setWholeNumbers() { mWholeNumbers = true; }  ///< along the lower axis

  std::optional<std::size_t> current() const { return mCurrent; }
  void setCurrent(std::optional<std::size_t> point);  ///< tells nobody

 signals:
  void currentChanged();  ///< by the user
  void pointChosen(std::size_t point);

 protected:
  void scaleAxes() override;
  PlotTool* toolFor(Qt::MouseButton button, Qt::KeyboardModifiers keys, const QPointF& at) override;
  bool keyPressed(const QKeyEvent& event) override;
  void hovered(const std::optional<QPointF>& at) override;
  void paintOverlay(QPainter& painter) override;

 private:
  std::optional<std::size_t> pointAt(const QPointF& at) const;
  void moveTo(std::size_t point);
  void step(std::ptrdiff_t by);

  std::vector<Point2D> mPoints;
  std::vector<std::size_t> mOrder;  ///< of the finite ones, from left to right
  std::function<QString(std::size_t)> mTextOf;
  std::optional<std::size_t> mCurrent;
  bool mWholeNumbers = false;
  std::unique_ptr<BandTool> mTool;
};

}  // namespace talvesk
