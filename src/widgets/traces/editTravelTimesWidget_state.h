#pragma once

#include "session/PickEdits.h"
#include "session/Session.h"
#include "widgets/PlotGestures.h"
#include "widgets/traces/PickMarks.h"
#include "widgets/traces/PickStroke.h"
#include "widgets/traces/ShotTraces.h"
#include "widgets/traces/TraceColors.h"
#include "widgets/traces/TraceLayout.h"
#include "widgets/traces/TraceMapping.h"
#include "widgets/traces/TraceSelection.h"
#include "widgets/traces/WigglePainter.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QImage>
#include <QUndoStack>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class QScrollBar;

namespace talvesk {

struct TraceMend;

/// What the trace view remembers between events. Its functions stand in the file of their purpose:
/// _view.cpp, _edit.cpp, _selection.cpp, _mends.cpp, _errors.cpp, _mouse.cpp, _keys.cpp,
/// _manner.cpp, _paint.cpp, and the tools of the mouse in _tools.cpp.
struct editTravelTimesWidget::State : PlotSurface {
  using Step = Viewport::Step;
  class PickTool;
  class RulerTool;
  class SelectTool;
  class ErrorTool;
  class GuideTool;

  explicit State(editTravelTimesWidget& owner);

  // --- View.
  void rebuildShot(bool newShot);
  void placePlot();
  const ViewWindow& window() const { return gestures.viewport().window(); }
  TraceMapping mapping() const { return {plot, window()}; }
  ViewWindow wholeWindow() const;
  ViewWindow openingWindow() const;
  Viewport::Extent extent() const;
  void reveal(int trace);  ///< moves the window so far that the trace and its pick are in sight
  void syncScrollBars();
  void scrolled(bool horizontal, int value);

  // --- Picks.
  bool canEdit() const { return session != nullptr && shot >= 0 && !options.showOnlyTraces; }
  /// A time that may become a pick: within the record, drawn to a feature when snapping.
  double adjusted(int trace, double time, bool snapping) const;
  PickStroke::Adjust adjuster(bool snapping) const;
  bool waits(int trace) const;  ///< for confirmation
  /// \param mergeKey steps of one key that is held are one edit
  void edit(Message text, const std::map<int, double>& times, const std::string& mergeKey = {});
  void push(Edit edit, Message text, int record, const std::vector<PickChange>& changes,
            const std::string& mergeKey = {});
  void surveyChanged(const SurveyChange& change);
  void picksChanged(const SurveyChange& change);
  void show(const TomoDocument* shown);
  std::vector<int> range() const;  ///< selected traces or the current one, ascending
  void removeRange(bool unconfirmedOnly);
  void confirmRange();
  void nudge(double seconds, bool keyHeld);
  void pickLikeNeighbour();
  std::optional<double> drawnPickBeside(int steps) const;
  void setCurrent(int trace);
  void goTo(int trace);              ///< without a selection, in sight, and told
  void select(int first, int last);  ///< all that stand between the two
  void select(TraceSelection chosen);
  std::unique_ptr<PlotTool> makeSelectTool();
  std::vector<int> between(int first, int last) const;
  void paintSelection(QPainter& painter) const;
  void describe();  ///< tells assistive technology what is current

  // --- Mends of traces.
  void mend(Message text, const std::function<void(TraceMend&)>& change);
  void muteBeforeDrawn(double time);  ///< before what is drawn at one height, seconds
  bool mendKey(const QKeyEvent& event);

  // --- Errors of picks.
  void setErrors(double sigma);  ///< of the range; seconds, 0: not known
  void pushErrors(const std::vector<std::pair<int, double>>& errors);
  bool errorKey(const QKeyEvent& event);
  std::unique_ptr<PlotTool> makeErrorTool();

  // --- Mouse.
  bool hasNothing() const override { return layout.count() == 0; }
  QRectF area() const override { return plot; }
  QPointF placeAt(const QPointF& point) const override;  ///< time as drawn
  double trueTimeAt(const QPointF& point) const;         ///< on the nearest trace
  void viewMoved() override;
  void repaintLive() override { widget.update(); }
  PlotTool* toolFor(Qt::MouseButton button, Qt::KeyboardModifiers keys,
                    const QPointF& point) override;
  PlotTool* toolBeside(const QPointF& point) override;
  bool isAbove(const QPointF& point) const;  ///< over the numbers of the traces
  bool keyPressed(const QKeyEvent& event) override;
  bool wheelTurned(double notches, Qt::KeyboardModifiers keys) override;
  void hovered(const std::optional<QPointF>& point) override;
  int traceAt(const QPointF& point) const;
  void cancelDrag() { gestures.giveUpDrag(); }
  TraceCursor cursorFor(int trace, std::optional<double> time) const;
  void tellAgain();    ///< cursorMoved() once more, of what it told last
  void tellCurrent();  ///< cursorMoved() of the current trace
  void changeGain(double factor);

  // --- Manner of drawing.
  void changeManner(const std::function<void(GatherManner&)>& change);  ///< and tells of it
  std::optional<double> rulerReduction() const;  ///< none where it reads no velocity to reduce by
  bool mannerKey(const QKeyEvent& event);
  QString mannerWarning() const;  ///< why it is not drawn as asked, empty as a rule

  // --- Keys; true: the key was one of these.
  void walk(int steps, bool selecting);
  bool walkKey(const QKeyEvent& event);
  bool pickKey(const QKeyEvent& event);
  bool lookKey(const QKeyEvent& event);
  bool escape();

  // --- Pictures.
  void redrawAll();    ///< wiggles too
  void redrawMarks();  ///< axes, guides, picks
  void refreshPictures();
  void paintStill(QPainter& painter);
  void paintLive(QPainter& painter);
  void paintEmpty(QPainter& painter);
  WiggleScene scene() const { return {traces, layout, options, colors}; }

  editTravelTimesWidget& widget;
  const TomoDocument* document = nullptr;
  Session* session = nullptr;  ///< null: the document is only looked at
  Session::Subscription subscription;
  int shot = -1;
  TraceViewOptions options;
  TraceTool tool = TraceTool::Pick;
  double lastReduction = 0.0;  ///< m/s, to be switched on again; 0: none yet
  double lastTimeGain = 0.0;   ///< the same of the gain with time

  ShotTraces traces;
  TraceLayout layout;
  QRectF plot{0.0, 0.0, 1.0, 1.0};
  PlotGestures gestures;
  QScrollBar* across = nullptr;
  QScrollBar* down = nullptr;

  int current = -1;
  int nudges = 0;  ///< keys that moved a pick so far
  TraceSelection selection;

  std::unique_ptr<PlotTool> pickTool;
  std::unique_ptr<PlotTool> removeTool;
  std::unique_ptr<PlotTool> zoomTool;
  std::unique_ptr<PlotTool> rulerTool;
  std::unique_ptr<PlotTool> selectTool;
  std::unique_ptr<PlotTool> errorTool;
  DraftError pulled;  ///< of the drag that pulls an error bar
  std::unique_ptr<PlotTool> guideTool;
  PickStroke stroke;                                 ///< of the drag that picks or removes
  std::optional<std::pair<QPointF, QPointF>> ruler;  ///< positions, true seconds
  std::optional<QPointF> hover;                      ///< cursor, when over the plot
  int hoverTrace = -1;
  bool tellsCurrent = false;  ///< cursorMoved() spoke of the current trace last, not of the mouse

  TraceColors colors;
  QImage wiggles;
  QImage still;
  bool wigglesStale = true;
  bool stillStale = true;
};

}  // namespace talvesk
