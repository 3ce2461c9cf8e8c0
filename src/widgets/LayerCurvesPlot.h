#pragma once

#include "refraction/MarkEdits.h"
#include "widgets/PlotPage.h"

#include <QPointF>
#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

/// The travel-time curves of all shots with the layers that their picks are assigned to, as
/// colours. Where editing is on, the left button marks: a click the pick under it, a drag the picks
/// in the rectangle; a click on the curve of another shot chooses that shot. Picks that were marked
/// last stay selected.
///
/// Keys: 1, 2, 3 and 0 (none) choose the layer to mark with and mark what is selected; left and
/// right go from pick to pick along the shot's curve, with Shift they select; Page Up and Page Down
/// change the shot; Escape gives up a drag, then the selection. Beside that those of PlotGestures.
class LayerCurvesPlot : public PlotPage {
  Q_OBJECT

 public:
  explicit LayerCurvesPlot(QWidget* parent = nullptr);
  ~LayerCurvesPlot() override;

  static constexpr int kAllShots = -1;
  static constexpr int kAllLayers = -1;

  void setSurvey(std::vector<ShotArrivals> shots);
  void setMarks(std::vector<refractionDataStructure::layerStruct> marks);

  /// Computed times to draw over the picks, for every pick that of its layer. Per shot, layer from
  /// the first on, and trace, seconds; not a number where there is none.
  void setComputed(std::vector<std::vector<std::vector<double>>> waves);
  /// Of a pick as it is marked, seconds; none where there is none.
  std::optional<double> computedTime(const TraceRef& pick) const;

  int currentShot() const { return mCurrent; }
  std::uint32_t layer() const { return mLayer; }  ///< to mark with
  const std::vector<TraceRef>& selection() const { return mSelection; }

  /// Where a pick is on the canvas; none without one.
  std::optional<QPointF> pointOf(const TraceRef& pick) const;

 public slots:
  void setCurrentShot(int shot);  ///< from 0; kAllShots none above the others
  void setLayer(int layer);       ///< 0 to 3
  void setShownLayer(int layer);  ///< the others are grey; kAllLayers shows each in colour
  void setEditable(bool editable);
  void setComputedShown(bool shown);

 signals:
  /// The user wants these picks assigned to the layer; the marks are not changed yet.
  void marked(const std::vector<talvesk::TraceRef>& picks, int layer);
  void layerChosen(int layer);  ///< by a key
  void shotChosen(int shot);    ///< by mouse or keys
  /// The branch at work on, while it is marked and afterwards; null for none.
  void branchRead(const talvesk::BranchReading* reading);

 protected:
  void paintOverlay(QPainter& painter) override;
  PlotTool* toolFor(Qt::MouseButton button, Qt::KeyboardModifiers keys, const QPointF& at) override;
  bool keyPressed(const QKeyEvent& event) override;
  void hovered(const std::optional<QPointF>& at) override;
  bool event(QEvent* event) override;

 private:
  class MarkTool;

  bool isShown(std::uint32_t shot) const;  ///< may be marked: of the current shot, or any
  bool hasPickAt(const TraceRef& at) const;
  std::optional<TraceRef> pickAt(const QPointF& point) const;
  std::vector<TraceRef> picksIn(const QRectF& rect) const;
  void paintCurves(QPainter& painter) const;
  void paintShot(QPainter& painter, std::uint32_t shot, bool strong) const;
  void paintBranches(QPainter& painter, std::uint32_t shot) const;
  void paintComputed(QPainter& painter, std::uint32_t shot) const;
  QColor shown(std::uint32_t layer) const;  ///< the colour of a layer on this paper
  QColor colorOf(std::uint32_t shot, std::uint32_t trace, bool strong) const;
  void click(const QPointF& at);
  void select(std::vector<TraceRef> picks);
  void mark(std::vector<TraceRef> picks);
  void read(const std::vector<TraceRef>& picks);
  void walk(int steps, bool extend);
  void walkShots(int steps);
  void chooseLayer(int layer);
  void followSurvey();
  void showWhole();

  std::vector<ShotArrivals> mShots;
  std::vector<refractionDataStructure::layerStruct> mMarks;
  std::vector<std::vector<std::uint32_t>> mOrder;  ///< picked traces of each shot by ascending x
  std::vector<std::vector<std::vector<double>>> mComputed;  ///< per shot, layer and trace
  bool mComputedShown = true;
  int mCurrent = kAllShots;
  int mShownLayer = kAllLayers;
  std::uint32_t mLayer = 1;
  bool mEditable = true;
  std::vector<TraceRef> mSelection;
  std::optional<TraceRef> mHovered;
  std::unique_ptr<PlotTool> mMark;
  std::unique_ptr<PlotTool> mChoose;  ///< the shot, where nothing can be marked
};

}  // namespace talvesk
