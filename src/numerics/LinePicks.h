#pragma once

#include <cstddef>
#include <vector>

namespace talvesk {

/// A pick seen from the line: between which of its positions the wave went, and how far.
struct LinePick {
  std::size_t pick = 0;      ///< where it was taken from
  std::size_t source = 0;    ///< in LinePicks::positions
  std::size_t receiver = 0;  ///< in LinePicks::positions
  double offset = 0.0;       ///< along the line, metres, positive
  double distance = 0.0;     ///< straight from source to receiver, metres
  double time = 0.0;         ///< seconds, positive
  double sigma = 0.0;        ///< seconds, positive
};

/// The picks of a line as refraction methods want them: by offset, between positions that shots and
/// receivers share.
struct LinePicks {
  std::vector<double> positions;  ///< abscissas, metres, ascending
  std::vector<LinePick> picks;    ///< by ascending offset
  double gap = 1.0;               ///< the usual distance of neighbouring positions, metres
  double sigma = 0.0;             ///< median of the picks', seconds
};

/// The value at x of what is known at ascending abscissas; that of the nearest beyond their ends.
double interpolated(const std::vector<double>& abscissas, const std::vector<double>& values,
                    double x);

}  // namespace talvesk
