#pragma once

#include "view/ColorPalette.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace talvesk {

/// Distance, in units of the value scale, that a handle keeps from the neighbour it is pushed onto.
inline constexpr int kHandleGap = 50;

/// The colour stops of a palette as handles on a scale of whole numbers, its minimum to its maximum
/// truncated. Their rules: the first and the last never move, and none passes a neighbour.
/// Indices are those of the gradient's stops and below their number.
class GradientHandles {
 public:
  /// The stops must ascend, the first at 0 and the last at 1.
  explicit GradientHandles(const ColorPalette& palette);

  int minimum() const { return mMinimum; }
  int maximum() const { return mMaximum; }  ///< above the minimum
  /// \return false, and no change, unless maximum > minimum
  bool setScale(int minimum, int maximum);

  const ColorGradient& gradient() const { return mGradient; }
  std::size_t count() const { return mGradient.points().size(); }
  /// Where a handle stands on the scale.
  int value(std::size_t index) const;
  bool isEnd(std::size_t index) const { return index == 0 || index + 1 == count(); }

  /// Moves an inner handle to a value. One that would not stay above the handle before it goes
  /// kHandleGap above it, one that would not stay below the handle after it kHandleGap below; where
  /// there is no room for that, halfway between the two. An end, and one without any room between
  /// its neighbours, stays. \return the value it stands at then
  int move(std::size_t index, int wanted);

  /// Puts a stop of the gradient's colour halfway between a handle and the next, or the one before
  /// for the last. \return its index; none, and no change, without room or beyond
  /// kMostGradientStops
  std::optional<std::size_t> insertBeside(std::size_t index);

  /// False, and no change, for an end.
  bool remove(std::size_t index);
  void setColor(std::size_t index, const RgbColor& color);

 private:
  double positionOf(int value) const;

  ColorGradient mGradient;
  int mMinimum = 0;
  int mMaximum = 1;
};

}  // namespace talvesk
