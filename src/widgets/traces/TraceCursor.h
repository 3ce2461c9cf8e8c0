#pragma once

#include <QMetaType>
#include <optional>

namespace talvesk {

/// What lies under the cursor of the trace view. What is not known is not there.
struct TraceCursor {
  int trace = -1;                   ///< from 0; -1: the cursor is on no trace
  std::optional<double> time;       ///< seconds
  std::optional<double> reduced;    ///< the same as drawn, where time is reduced
  std::optional<double> offset;     ///< geophone minus shot, metres
  std::optional<double> distance;   ///< geophone along the line, metres
  std::optional<double> amplitude;  ///< nearest sample, as stored
  std::optional<double> pick;       ///< measured time of the trace, seconds
  std::optional<double> pickError;  ///< one standard deviation of it, seconds
  bool takesPart = true;            ///< false: its shot is disabled, or it is killed
  bool pickIsAutomatic = false;     ///< set by the autopicker and not confirmed yet
};

}  // namespace talvesk

Q_DECLARE_METATYPE(talvesk::TraceCursor)
