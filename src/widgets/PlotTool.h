#pragma once

#include <QPointF>
#include <Qt>
#include <optional>

class QPainter;

namespace talvesk {

/// The mouse as a tool sees it.
struct ToolEvent {
  QPointF at;  ///< on the canvas, pixels
  Qt::KeyboardModifiers keys;
};

/// What a mouse button does on a plot from press to release. PlotGestures chooses the tool when the
/// button goes down and tells it all that follows, until the button goes up or the drag is given
/// up.
class PlotTool {
 public:
  virtual ~PlotTool() = default;

  /// \return whether a drag begins; else nothing follows
  virtual bool press(const ToolEvent& event) = 0;
  virtual void move(const ToolEvent& event) = 0;
  /// Where the last move() was.
  virtual void release(const ToolEvent& event) = 0;
  /// All becomes as it was before the press.
  virtual void giveUp() {}

  virtual void paint(QPainter&) const {}  ///< above the plot, while the button is down
  /// While the button is down; none: that of the canvas.
  virtual std::optional<Qt::CursorShape> cursor() const { return std::nullopt; }
  /// Whether the second click of a double click is one more of its own, with which a user corrects
  /// the first; else it shows everything.
  virtual bool takesDoubleClick() const { return false; }
};

}  // namespace talvesk
