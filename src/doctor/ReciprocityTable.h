#pragma once

#include "doctor/Finding.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace talvesk {
class TomoDocument;
}

namespace talvesk::doctor {

/// The picks of two shots along the same way in opposite directions.
struct ReciprocalTimes {
  std::size_t first = 0;   ///< shot, from 0
  std::size_t second = 0;  ///< shot, behind the first
  double there = 0.0;      ///< seconds from the first shot to the place of the second
  double back = 0.0;       ///< seconds from the second shot to the place of the first
  double error = 0.0;      ///< of the difference, as the picks tell theirs, seconds; 0: not known
  std::size_t thereTrace = 0;  ///< of the first shot: the pick nearest to the second, from 0
  std::size_t backTrace = 0;   ///< of the second shot: the pick nearest to the first, from 0

  /// Seconds: positive when the record of the first shot is late beside that of the second.
  double difference() const { return there - back; }
};

/// What the pairs of a shot say of it.
struct ShotReciprocity {
  double x = 0.0;         ///< of the shot, metres along the line
  std::size_t pairs = 0;  ///< that the shot is one of
  double rms = 0.0;       ///< of their differences, seconds
  /// By how much the record is later than the median of those that pairs connect it with, seconds;
  /// early is negative.
  double shift = 0.0;
  double shiftError = 0.0;       ///< one standard deviation, seconds; 0: no shift is known
  std::size_t agreeing = 0;      ///< pairs that fit the shifts
  std::optional<double> mend{};  ///< seconds; where the shift stands out, in samples of the record

  bool standsOut() const { return mend.has_value(); }
};

/// How the picks of a survey go with each other where shot and geophone change places.
struct ReciprocityTable {
  std::vector<ReciprocalTimes> pairs;  ///< by first, then second shot
  std::vector<ShotReciprocity> shots;  ///< one per record of the survey
  double rms = 0.0;                    ///< of all differences, seconds; 0 without any

  std::vector<std::size_t> worstPairs(std::size_t most) const;  ///< the largest differences first
};

/// Fewer pairs than this never name a shot: two records cannot say which of them is late.
inline constexpr std::size_t kFewestPairs = 3;

/// Compares the picks of all shots that reach each other: within half a spacing of a pick,
/// interpolated between two of them, and not across a shot, where a curve turns round. A shift
/// stands out where at least kFewestPairs agree with it, and it is above four times its error,
/// twice what the shots are late or early by as a rule, and a sample interval. Shots are compared
/// with at most 255 others, those next to them.
ReciprocityTable reciprocityOf(const TomoDocument& document);

/// What puts a shot right that stands out, to be carried out as other findings are. None without
/// a recording that could be shifted. \param shot from 0
std::optional<Finding> lateShot(const TomoDocument& document, const ReciprocityTable& table,
                                std::size_t shot);

/// That the record of a shot that stands out is late or early, and what says so.
Message describe(const ShotReciprocity& shot);

/// Why a survey has no pairs, for users.
Message whyNoPairs(const TomoDocument& document);

}  // namespace talvesk::doctor
