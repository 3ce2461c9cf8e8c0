#pragma once

#include "base/Point2D.h"
#include "widgets/traces/TraceCursor.h"
#include "widgets/traces/TraceViewOptions.h"

#include <QWidget>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace talvesk {

class Message;
class Session;
class Status;
class TomoDocument;
struct ViewWindow;

/// What the left mouse button does. Whatever the tool, Ctrl + left drag zooms to a rectangle,
/// Shift + left drag selects traces, as any drag over the numbers above them, where Shift goes on
/// from the trace selected first and Ctrl adds and takes away; Ctrl + Shift + left drag pulls the
/// error bar of a pick, and the right button removes picks.
enum class TraceTool {
  Pick,    ///< click sets, drag moves, drag across traces draws a run
  Zoom,    ///< drag a rectangle; a click zooms in
  Pan,     ///< drag the picture
  Ruler,   ///< drag a line and read its apparent velocity
  Select,  ///< drag over the traces to confirm or clear together
  Guide    ///< drag a line along the first breaks that a picker is to follow
};

/// The errors that the keys 0 to 4 give picks, milliseconds; 0: not known.
inline constexpr std::array<double, 5> kKeyErrors = {0.0, 0.5, 1.0, 2.5, 5.0};

/// The traces of one shot, time downward, with its first breaks to be picked by mouse and keys.
///
/// The widget edits the measured times of a session, each edit by hand a step of its own, and
/// follows what else happens to the survey. It reads the document whenever it paints and keeps
/// nothing but extremes and pictures of it. Give it the whole room of its
/// parent (in a scroll area: widgetResizable), it has scroll bars of its own.
///
/// The view is moved with the gestures of all plots, see PlotGestures. Keys beside those: Left and
/// Right walk along the traces (Shift selects), Home and End go to the first and the last; Up and
/// Down move the pick by a sample (Shift 10 samples, Ctrl 1 ms); Return sets a pick like that of
/// the neighbour; Delete removes, C confirms; 1 to 4 give the errors of kKeyErrors and 0
/// takes them away; V draws reduced time by the velocity of the ruler or the one asked for last
/// (Shift asks), T with a gain in time (Shift asks), X by offset (Shift by absolute offset); K
/// kills the selected traces, P turns their polarity, U mutes them before the cursor and Shift+U no
/// more, { and } change their own gain, all as mends of the recording; [ and ] change the gain of
/// the view, as the wheel does with Alt; M magnifier, R ruler, G guide line, Escape gives up. H
/// shows the opening view. A double click with the tool Pick picks twice, and shows not everything.
class editTravelTimesWidget : public QWidget {
  Q_OBJECT

 public:
  explicit editTravelTimesWidget(QWidget* parent = nullptr);
  ~editTravelTimesWidget() override;

  /// A document to look at only: not owned, outlives the widget or is replaced before it goes; null
  /// for none. Forgets shot and views, also when the document is the one it has: its contents were
  /// replaced.
  void setDocument(const TomoDocument* document);
  /// A survey to work on, which outlives the widget.
  void setSession(Session& session);
  const TomoDocument* document() const;

  /// Record of the document to show, from 0; -1, or one that does not exist: none. The view that
  /// the user has zoomed to stays.
  void setShot(int shot);
  int shot() const;

  void setOptions(const TraceViewOptions& options);
  const TraceViewOptions& options() const;
  void setTool(TraceTool tool);
  TraceTool tool() const;

  /// Samples, positions, or the number of shots of a document that is looked at changed.
  void documentChanged();

  /// Sets the pick of a trace of any shot (both from 0), seconds, kNoTime to remove it, as an edit
  /// by hand that can be undone. Nothing happens where there is no such trace or nothing to change.
  void editPick(int shot, int trace, double seconds);

  int currentTrace() const;  ///< from 0; -1 none
  /// Whether removePicks() would find any, or confirmPicks() and removeUnconfirmedPicks() one that
  /// waits. Follows selectionChanged() and the session.
  bool hasPicksInRange(bool unconfirmedOnly) const;
  void setCurrentTrace(int trace);
  /// Makes a trace the current one, alone, and moves the view so that it and its pick are in sight.
  void goToTrace(int trace);
  int selectedFirst() const;  ///< lowest and highest trace selected, from 0; -1 none
  int selectedLast() const;
  const std::vector<int>& selectedTraces() const;  ///< from 0, ascending
  /// Those from one to the other as they stand side by side. -1, -1 clears
  void selectTraces(int first, int last);

  /// The part of the shot that is seen: channels from 0 or metres, and seconds as drawn, from which
  /// reduced time takes its part.
  const ViewWindow& window() const;
  void setWindow(const ViewWindow& window);  ///< enters the history
  bool canZoomBack() const;
  bool canZoomForward() const;

  /// Where a trace and its true time are on the widget, and back; none beside the traces.
  QPointF pointOf(int trace, double time) const;
  int traceAt(const QPointF& point) const;    ///< -1: none
  double timeAt(const QPointF& point) const;  ///< on the nearest trace

  /// Apparent velocity along the ruler, m/s; none without one, along one trace, or where positions
  /// are not known.
  std::optional<double> rulerVelocity() const;
  /// The velocity to begin with where somebody asks for one to reduce times by: that of the ruler,
  /// else the one there is or was, m/s.
  double proposedReduction() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 public slots:
  void setMagnifier(bool show);
  void setGain(double gain);

  // The manner of drawing of the options; 0 switches off. What was switched on last comes again
  // with the keys V and T.
  void setReduction(double velocity);  ///< of reduced time, m/s
  void setReduced(bool on);            ///< by the ruler, else as last, else asks for a velocity
  void setTimeGain(double exponent);
  void setAmplified(bool on);  ///< by the gain with time of last, at first by t
  void setByOffset(bool on);   ///< before and beyond the shot
  void setByAbsoluteOffset(bool on);

  void zoomIn();
  void zoomOut();
  void fit();   ///< everything
  void home();  ///< the opening view, see zoomIn and showAllTraces of the options
  void zoomBack();
  void zoomForward();

  /// Over the selected traces, or the current one without a selection.
  void confirmPicks();  ///< automatic picks become the user's own
  /// Seconds, 0: not known. Picks that are set or dragged afterwards get it as well, and where no
  /// trace of these has a pick it is only for those.
  void setPickErrors(double sigma);
  void removePicks();             ///< of whatever origin
  void removeUnconfirmedPicks();  ///< automatic ones that nobody confirmed

  // Mends of the same traces, each a step of its own; what becomes of picks is told by mended().
  void killTraces();  ///< or, where all are killed, no more
  void reversePolarity();
  void muteTraces(double seconds);  ///< before a time; 0: no more
  void amplifyTraces();             ///< to the next gain, see nextGain()
  void attenuateTraces();

 signals:
  void editRefused(const talvesk::Status& reason);  ///< the picks are as they were
  /// A trace has no place for the pick that it was given; those of others are set.
  void pickLeftOut(const talvesk::Status& why);
  /// Mends were made. \param notes what the user should know, for example of picks set aside
  void mended(const std::vector<talvesk::Message>& notes);
  /// U was pressed where the cursor tells no time to mute before.
  void muteTimeWanted();
  void reductionWanted();  ///< reduced time is asked for, and no velocity is known
  void timeGainWanted();   ///< another exponent of the gain with time is
  /// A menu of what can be done with the selected traces. \param at on the screen
  void menuWanted(const QPoint& at);
  void pick_added();            ///< a trace without a pick got one; pick_edited() follows
  void pick_edited();           ///< picks changed, undo and redo included
  void mouse_moved(int trace);  ///< trace under the cursor, from 0; -1 none
  void cursorMoved(const talvesk::TraceCursor& cursor);
  void viewChanged();     ///< window or history of views
  void optionsChanged();  ///< by keys or wheel, not by setOptions()
  void toolChanged();
  void selectionChanged();  ///< current trace or selected ones
  /// A line was drawn over traces of the shot, for a picker to follow. \param points x: receiver,
  /// metres along the line; z: seconds
  void guideDrawn(const std::vector<talvesk::Point2D>& points);
  /// Picks of a shot that is not shown changed.
  void shotEdited(int shot);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct State;
  std::unique_ptr<State> mState;
};

}  // namespace talvesk
