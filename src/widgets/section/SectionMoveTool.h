#pragma once

#include "widgets/section/SectionTools.h"

#include <cstddef>

namespace talvesk {

/// Drags what is drawn on a section: a corner where the mouse is near one, else the whole of what
/// lies under it, texts and lines before areas, upper ones before lower ones.
class SectionMoveTool : public SectionTool {
 public:
  /// The annotations in view; null: none.
  using Items = std::function<const std::vector<Annotation>*()>;
  using Done = std::function<void(std::size_t item, const Annotation& before,
                                  const std::vector<Point2D>& points)>;

  /// \param toSheet to the pixels that count as near \param done told when something was dragged
  SectionMoveTool(Items items, ToSheet toSheet, Done done)
      : mItems(std::move(items)), mToSheet(std::move(toSheet)), mDone(std::move(done)) {}

  void press(const Point2D& at) override;
  void move(const Point2D& at, bool pressed) override;
  void release(const Point2D& at) override;
  void takeBack() override;  ///< what is being dragged goes back to its place
  void paint(QPainter& painter, const ToSheet& toSheet) const override;

 private:
  /// What the mouse has, or would get.
  struct Grip {
    std::size_t item = 0;
    std::optional<std::size_t> corner;  ///< none: all of it
    Annotation what;
    Point2D from;
  };

  std::optional<Grip> gripAt(const Point2D& at) const;
  bool isUnder(const Annotation& item, const QPointF& mouse) const;
  std::optional<std::size_t> cornerUnder(const Annotation& item, const QPointF& mouse) const;
  bool isThere() const;
  std::vector<Point2D> dragged() const;

  Items mItems;
  ToSheet mToSheet;
  Done mDone;
  std::optional<Grip> mGrip;
  bool mPressed = false;
  Point2D mMouse;
};

}  // namespace talvesk
