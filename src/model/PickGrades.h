#pragma once

#include "model/Parameters.h"
#include "model/TravelTime.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// Whether an error is one of a good pick: known, and not beyond parameters::kGoodPick.
/// \param sigma one standard deviation, seconds; 0: not known
inline bool isGoodPick(double sigma) {
  // 2.5 ms that came as a text of seconds may be a hair more.
  return sigma > 0.0 && 1e3 * sigma <= parameters::kGoodPick.value * (1.0 + 1e-9);
}

/// Whether an error is known, and beyond that of good picks.
inline bool isDoubtfulPick(double sigma) {
  return sigma > 0.0 && !isGoodPick(sigma);
}

/// How many picks are how sure.
struct PickGrades {
  std::size_t good = 0;
  std::size_t doubtful = 0;
  std::size_t unknown = 0;  ///< picks whose error nobody has told

  bool any() const { return good + doubtful > 0; }  ///< whether any error is known

  /// Counts the picks of a record as well.
  void add(const TravelTime& record) {
    for (std::size_t trace = 0; trace < record.ttMisurati.size(); ++trace) {
      if (!hasPick(record.ttMisurati[trace])) continue;
      const double sigma = record.errorOf(trace);
      ++(isGoodPick(sigma) ? good : isDoubtfulPick(sigma) ? doubtful : unknown);
    }
  }
};

inline PickGrades gradesOf(const TravelTime& record) {
  PickGrades grades;
  grades.add(record);
  return grades;
}

inline PickGrades gradesOf(const std::vector<TravelTime>& records) {
  PickGrades grades;
  for (const TravelTime& record : records) grades.add(record);
  return grades;
}

}  // namespace talvesk
