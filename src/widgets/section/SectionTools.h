#pragma once

#include "base/Point2D.h"
#include "model/Annotations.h"

#include <QPointF>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QPainter;
class QPolygonF;

namespace talvesk {

/// What the left mouse button does on a section in place of moving it. Places are survey positions,
/// metres.
class SectionTool {
 public:
  using ToSheet = std::function<QPointF(const Point2D&)>;

  virtual ~SectionTool() = default;
  virtual void press(const Point2D& at) = 0;
  virtual void move(const Point2D& at, bool pressed) = 0;
  virtual void release(const Point2D& at) = 0;
  virtual void finish() {}    ///< by double click or Enter
  virtual void takeBack() {}  ///< the last point
  virtual void paint(QPainter& painter, const ToSheet& toSheet) const = 0;
};

/// How tools draw, over whatever lies below.
void strokeAsTool(QPainter& painter, const QPolygonF& line);
void paintToolPoint(QPainter& painter, const QPointF& at);

/// The line between the point where the button went down and where the mouse is, with its length
/// along the ground, level and upright, and its slope.
class SectionMeasureTool : public SectionTool {
 public:
  void press(const Point2D& at) override;
  void move(const Point2D& at, bool pressed) override;
  void release(const Point2D& at) override { move(at, true); }
  void takeBack() override { mFrom.reset(); }
  void paint(QPainter& painter, const ToSheet& toSheet) const override;

 private:
  std::optional<Point2D> mFrom;
  Point2D mTo;
};

/// Takes the points of an annotation, click by click.
class SectionDrawTool : public SectionTool {
 public:
  using Done = std::function<void(AnnotationKind, const std::vector<Point2D>&)>;

  SectionDrawTool(AnnotationKind kind, Done done) : mKind(kind), mDone(std::move(done)) {}

  void press(const Point2D& at) override;
  void move(const Point2D& at, bool pressed) override;
  void release(const Point2D&) override {}
  void finish() override;  ///< nothing as long as there are too few points
  void takeBack() override;
  void paint(QPainter& painter, const ToSheet& toSheet) const override;

 private:
  AnnotationKind mKind;
  Done mDone;
  std::vector<Point2D> mPoints;
  Point2D mMouse;
};

}  // namespace talvesk
