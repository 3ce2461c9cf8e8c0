#pragma once

#include <QPointF>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace talvesk {

class TomoDocument;
struct TraceWindow;

/// The travel-time curves of a survey, distance to the right and time upward: a preview of the
/// current shot, or the page of all shots with legend and buttons.
///
/// The left button chooses the curve under it, drags a pick to another time, or, where nothing is,
/// drags a rectangle to zoom to; with Ctrl it always zooms. The middle button, or Shift + left,
/// pans; the right button opens a menu; a double click shows everything. Wheel: zoom at the cursor,
/// with Ctrl time only, with Shift distance only.
/// Keys: + and - zoom, F or Home shows everything, Backspace and Shift+Backspace go back and forth
/// in the history of views, arrows pan, Page Up and Page Down choose the curve before and after,
/// Escape gives up a drag.
class TravelTimePlot : public QWidget {
  Q_OBJECT

 public:
  enum class Role {
    AllShots,    ///< every curve in full, legend and buttons below
    CurrentShot  ///< the others faint, nothing but the plot
  };

  explicit TravelTimePlot(QWidget* parent = nullptr);
  ~TravelTimePlot() override;

  void setRole(Role role);
  Role role() const;

  /// \param document not owned, outlives the widget or is replaced before it goes; null for none.
  /// Forgets shot and views.
  void setDocument(const TomoDocument* document);
  int currentShot() const;  ///< record of the document, from 0; -1 none

  /// Sets the pick of a trace of a shot (from 0) to a time in seconds, kNoTime to remove it, as an
  /// edit that can be undone.
  using EditPick = std::function<void(int shot, int trace, double seconds)>;
  /// Without one the picks cannot be dragged.
  void setEditor(EditPick edit);

  /// A ring around the pick of a trace of the current shot; -1 none.
  void setHighlightedTrace(int trace);

  bool showsComputed() const;
  bool isEmpty() const;  ///< there is no time to draw; a text says what to do

  /// The part that is seen: metres, and seconds with `top` the earliest.
  const TraceWindow& window() const;
  bool canZoomBack() const;
  bool canZoomForward() const;
  /// Where a pick is, in coordinates of canvas(); none without one.
  std::optional<QPointF> pointOf(int shot, int trace) const;
  QWidget* canvas() const;  ///< the framed part that takes the mouse

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 public slots:
  void setCurrentShot(int shot);
  void refresh();  ///< times, positions or shots of the document changed
  void setShowMeasured(bool show);
  void setShowComputed(bool show);
  void zoomIn();
  void zoomOut();
  void fit();  ///< everything
  void zoomBack();
  void zoomForward();

 signals:
  void shotChosen(int shot);             ///< by mouse or keys, from 0
  void pickEdited(int shot, int trace);  ///< by mouse; the document has the new time
  void exportRequested();                ///< the user wants the curves as a picture
  void viewChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct State;
  std::unique_ptr<State> mState;
};

}  // namespace talvesk
