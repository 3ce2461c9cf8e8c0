#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A pick that nobody has confirmed, and what speaks against it. Reasons are in seconds, and none
/// where they are no reason.
struct DoubtfulPick {
  std::int32_t shot = 0;   ///< record of the document, from 0
  std::int32_t trace = 0;  ///< from 0
  /// The strongest reason, as a multiple of what is tolerated; above 1.
  double severity = 0.0;
  std::optional<double> error;       ///< of the pick; above parameters::kGoodPick
  std::optional<double> residual;    ///< time through the section minus pick: late is positive
  std::optional<double> reciprocal;  ///< time of the same way back minus pick
};

/// What is to be looked at of the picks of a survey.
struct PickReview {
  std::vector<DoubtfulPick> doubtful;  ///< worst first, then by shot and trace
  std::size_t waiting = 0;             ///< picks for confirmation, the doubtful ones among them
  std::size_t settled = 0;             ///< confirmed, made by hand or imported: not looked at
  /// Of those that wait: picks with neither an error nor a computed nor a reciprocal time, so that
  /// nothing can speak against them.
  std::size_t unknown = 0;
};

/// Looks through the picks that wait for confirmation. A computed time speaks against one where it
/// differs by more than 2.5 times what error and misfit of the section together explain; only where
/// computed times are those of the section. So does the pick of the same way in the other direction
/// by what both errors explain. A pick without an error counts as one at parameters::kGoodPick.
PickReview reviewPicks(const TomoDocument& document);

/// Where a walk through doubtful picks goes on: an index of the list, from 0.
struct ReviewStep {
  std::size_t index = 0;
  bool anew = false;  ///< it went beyond the end, and begins at the other one
};

/// The pick after one in the order of the list, or the one before. \param picks as reviewPicks()
/// lists them, not empty \param from need not be listed any more; null: the walk begins
ReviewStep stepThrough(const std::vector<DoubtfulPick>& picks, const DoubtfulPick* from,
                       bool forward);

}  // namespace talvesk
