#pragma once

#include "base/Point2D.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// The first arrivals of one shot along the line.
struct ArrivalCurve {
  double source = 0.0;          ///< metres along the line
  std::vector<Point2D> points;  ///< x: receiver, metres; z: time after the shot, seconds
};

/// Two curves that reach each other's source.
struct ReciprocalPair {
  std::size_t first = 0;   ///< curve, from 0
  std::size_t second = 0;  ///< curve, behind the first
  double there = 0.0;      ///< seconds from the first source to the second, interpolated
  double back = 0.0;       ///< seconds
};

/// What shots say of the same ways in opposite directions: a wave takes as long on the way back.
/// Curves count within half a spacing beyond their receivers, and not in their gaps.
class Reciprocity {
 public:
  explicit Reciprocity(const std::vector<ArrivalCurve>& curves);
  ~Reciprocity();

  /// The time from `receiver` to `source` as the nearest of the shots within half a spacing of
  /// `receiver` recorded it, seconds; not a number where no curve reaches.
  double timeBack(double source, double receiver) const;

  std::vector<ReciprocalPair> pairs() const;

 private:
  class Line;

  std::vector<Line> mLines;
};

}  // namespace talvesk
