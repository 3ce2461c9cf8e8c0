#pragma once

#include "model/Parameters.h"
#include "refraction/methods/MethodResult.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace talvesk {

namespace parameters {
inline constexpr Parameter<int> kBounds = {
    "bounds", 100, {2, 1000}, "", "Interpretations of moved picks that error bands come from"};
}  // namespace parameters

/// What the errors of the picks make of an interpretation.
struct BoundsOptions {
  int members = 0;  ///< interpretations of moved picks; 0: no bands
  std::uint64_t seed = static_cast<std::uint64_t>(parameters::kSeed.initial);
  unsigned threads = 0;  ///< 0: as many as the machine has processors
};

/// Picks as they might have come out as well: each moved by a normal share of its error, none to
/// less than a tenth of its time. Marks stay. A function of its arguments alone.
LayerPicks perturbedPicks(LayerPicks picks, std::uint64_t seed, std::uint64_t member);

/// Where methods say different things of one refractor, per receiver: two of them differ by more
/// than three times what their difference scatters by as picks are moved by their errors.
struct Disagreement {
  std::uint32_t layer = 2;
  std::vector<bool> depth;
  std::vector<bool> velocity;
};

/// Results of one or more methods from the same picks and marks, side by side.
struct MethodComparison {
  BoundsOptions bounds;
  std::vector<MethodResult> results;        ///< in the order asked for, over the same receivers
  std::vector<Disagreement> disagreements;  ///< per refractor; empty without bands or others

  /// Null where there is none.
  const Disagreement* disagreement(std::uint32_t layer) const;
};

/// Interprets by all the methods, and with members by all of them again and again. The same to the
/// last bit whatever the number of threads.
/// \param goOn asked now and then on the calling thread with how many of the members are done;
/// after false nothing has bands; may be empty
MethodComparison compareMethods(const LayerPicks& picks, const std::vector<LayerMethod>& methods,
                                const BoundsOptions& bounds,
                                const std::function<bool(std::size_t done)>& goOn = {});

/// A block per refractor: a line of heads, then a line per receiver with x, elevation and, for each
/// method, depth, velocity, with bands their errors, and what carries the depth; with bands and
/// several methods, at last, what they disagree in. "-" where something is not known.
std::string comparisonTable(const MethodComparison& comparison);

/// A line per method and refractor with its medians, and with bands how far methods agree.
std::vector<Message> comparisonSummary(const MethodComparison& comparison);

}  // namespace talvesk
