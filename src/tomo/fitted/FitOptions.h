#pragma once

#include "tomo/fitted/KnownCells.h"

#include <memory>
#include <vector>

namespace talvesk {

/// What the fit starts from and what it may do.
struct FittedOptions {
  std::vector<double> start;      ///< s/m, one per cell
  std::vector<double> reference;  ///< s/m, what a section departs from no more than picks ask for;
                                  ///< empty: the start
  double minVelocity = 50.0;      ///< m/s
  double maxVelocity = 8000.0;    ///< m/s, above the least
  int mostIterations = 25;        ///< at least 1
  bool robust = true;             ///< picks that are far off count less than by their square
  bool blocky = false;            ///< few sharp steps rather than gentle slopes
  bool statics = false;           ///< find a time shift of every shot, too
  double triggerError = 0.002;    ///< seconds, how far shots are thought to be off; positive
  std::shared_ptr<const KnownCells> known;  ///< of the same grid; null: nothing is known
};

}  // namespace talvesk
