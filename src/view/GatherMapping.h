#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

namespace talvesk {

/// Whether the traces of a shot stand by how far their geophones are from it.
enum class OffsetOrder {
  kNone,     ///< but by channel, or along the line
  kSigned,   ///< by geophone minus shot: those before the shot at its left
  kAbsolute  ///< by the distance from the shot: either side over the other
};

/// How a gather is drawn beside the plain way: in what order, by what time, how amplified. Nothing
/// that is stored or worked on knows of it.
struct GatherManner {
  OffsetOrder byOffset = OffsetOrder::kNone;
  double reduction = 0.0;  ///< velocity of reduced time t - |x|/V, m/s; 0: time as it is
  double timeGain = 0.0;   ///< exponent n of a gain t^n, up to 3; 0: none

  bool plain() const {
    return byOffset == OffsetOrder::kNone && reduction == 0.0 && timeGain == 0.0;
  }
};

inline bool operator==(const GatherManner& a, const GatherManner& b) {
  return a.byOffset == b.byOffset && a.reduction == b.reduction && a.timeGain == b.timeGain;
}
inline bool operator!=(const GatherManner& a, const GatherManner& b) {
  return !(a == b);
}

/// t^n of a true time, seconds; 0 before the shot, 1 without an exponent.
inline double timeGainAt(double time, double exponent) {
  if (exponent == 0.0) return 1.0;
  return time > 0.0 ? std::pow(time, exponent) : 0.0;
}

/// The same with numbers that are in range; what is none is off.
GatherManner confined(GatherManner manner);

/// Where a gather drawn in a manner has its samples, and what is drawn where: trace to place, true
/// time to drawn time and back, time to gain. Traces count from 0, times are seconds.
class GatherMapping {
 public:
  GatherMapping() = default;  ///< plain
  /// \param manner is confined \param offsets geophone minus shot per trace, metres; not a number
  /// where unknown. Without all of them nothing is reduced and nothing stands by offset; neither
  /// does it where all traces would stand at one place.
  GatherMapping(const GatherManner& manner, std::vector<double> offsets);

  /// What is done of what was asked for.
  const GatherManner& manner() const { return mManner; }
  /// Reduced time or an order by offset was asked for and cannot be.
  bool lacksOffsets() const { return mLacksOffsets; }

  bool isReduced() const { return mManner.reduction > 0.0; }
  bool isByOffset() const { return mManner.byOffset != OffsetOrder::kNone; }
  bool amplifies() const { return mManner.timeGain > 0.0; }

  /// What reduced time takes from the time of a trace, or of a place so far from the shot; 0 or
  /// more.
  double shift(std::size_t trace) const { return isReduced() ? shiftAt(mOffsets[trace]) : 0.0; }
  double shiftAt(double offset) const {
    return isReduced() ? std::fabs(offset) / mManner.reduction : 0.0;
  }
  double drawnTime(std::size_t trace, double time) const { return time - shift(trace); }
  double trueTime(std::size_t trace, double drawn) const { return drawn + shift(trace); }
  double longestShift() const;  ///< of all traces

  /// Metres along the axis. Requires isByOffset(), as do the next two.
  double place(std::size_t trace) const { return placeOf(mOffsets[trace]); }
  /// The same of a place of the line. \param offset from the shot, metres
  double placeOf(double offset) const {
    return mManner.byOffset == OffsetOrder::kAbsolute ? std::fabs(offset) : offset;
  }
  /// Geophone minus shot per trace, metres.
  const std::vector<double>& offsets() const { return mOffsets; }

  /// What a swing at a true time is multiplied by.
  double gain(double time) const { return timeGainAt(time, mManner.timeGain); }

 private:
  GatherManner mManner;
  std::vector<double> mOffsets;  ///< empty where nothing asks for them
  bool mLacksOffsets = false;
};

}  // namespace talvesk
