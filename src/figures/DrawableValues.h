#pragma once

namespace talvesk {

/// Positions of measured things that no line of this world has: beyond, they count as unknown.
inline bool isPosition(double metres) {
  return metres >= -1e8 && metres <= 1e8;  // false for what is not a number
}

/// Whether a time can be drawn: a pick of a length that a record may have.
inline bool isDrawableTime(double seconds) {
  return seconds > 0.0 && seconds <= 1e6;
}

}  // namespace talvesk
