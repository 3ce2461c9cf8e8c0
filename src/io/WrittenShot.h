#pragma once

#include "base/Point2D.h"

#include <vector>

namespace talvesk {

/// One shot as it goes into a file of records. All traces have as many samples.
struct WrittenShot {
  Point2D source;
  std::vector<Point2D> receivers;          ///< one per trace
  std::vector<std::vector<float>> traces;  ///< at most 65535 samples each
  std::vector<bool> dead;       ///< traces that count for nothing; shorter where the rest is sound
  double sampleInterval = 0.0;  ///< seconds
  double delay = 0.0;           ///< start of the record relative to the shot, seconds
  int number = 1;               ///< of the shot, from 1
};

}  // namespace talvesk
