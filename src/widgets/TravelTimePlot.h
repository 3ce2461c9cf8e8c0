#pragma once

#include "widgets/PlotPage.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// The travel-time curves of a survey, metres to the right and milliseconds upward: a preview of
/// the current shot, or the page of all shots with legend and buttons.
///
/// A click chooses the curve under it, and the left button drags a pick to another time; the right
/// button opens a menu. Page Up and Page Down choose the curve before and after. Beside that the
/// gestures of all plots.
class TravelTimePlot : public PlotPage {
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

  /// Times computed through layers, per record and trace, seconds; not a number where there is
  /// none, empty for none at all. Forgotten with the document.
  void setLayered(std::vector<std::vector<double>> times);
  /// Whether there are such times, or could be once they are shown; else the box says why not.
  void setLayeredPossible(bool possible);

  /// A ring around the pick of a trace of the current shot; -1 none.
  void setHighlightedTrace(int trace);

  bool showsComputed() const;
  bool showsLayered() const;
  const std::vector<std::vector<double>>& layered() const;  ///< as they were set
  bool showsErrorBars() const;
  bool isEmpty() const;  ///< there is no time to draw; a text says what to do

  /// Where a pick is, in coordinates of canvas(); none without one.
  std::optional<QPointF> pointOf(int shot, int trace) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 public slots:
  void setCurrentShot(int shot);
  void refresh();  ///< times, positions or shots of the document changed
  void setShowMeasured(bool show);
  void setShowComputed(bool show);
  void setShowLayered(bool show);
  void setErrorBars(bool show);  ///< of picks whose error is known

 signals:
  void shotChosen(int shot);             ///< by mouse or keys, from 0
  void pickEdited(int shot, int trace);  ///< by mouse; the document has the new time
  void layeredToggled(bool shown);       ///< times through layers are to be shown, or no longer
  void exportRequested();                ///< the user wants the curves as a picture

 protected:
  PlotTool* toolFor(Qt::MouseButton button, Qt::KeyboardModifiers keys, const QPointF& at) override;
  bool keyPressed(const QKeyEvent& event) override;
  void hovered(const std::optional<QPointF>& at) override;
  void paintOverlay(QPainter& painter) override;
  void dress() override;
  void retranslate() override;
  bool event(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  struct State;
  std::unique_ptr<State> mState;
};

}  // namespace talvesk
