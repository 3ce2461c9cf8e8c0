#pragma once

#include "model/Parameters.h"
#include "refraction/methods/MethodResult.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

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

  /// "none", "depth", "velocity" or "both", as files have it.
  const char* nameAt(std::size_t receiver) const;
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
/// \param goOn told now and then on the calling thread how many members are done; after false
/// nothing has bands; may be empty
MethodComparison compareMethods(const LayerPicks& picks, const std::vector<LayerMethod>& methods,
                                const BoundsOptions& bounds,
                                const std::function<bool(std::size_t done)>& goOn = {});

/// A refractor by one method in a few figures: medians along the line, not a number where nothing
/// is known.
struct MethodFigures {
  double velocity = 0.0;       ///< m/s
  double velocityError = 0.0;  ///< likewise; not a number without bands
  double depth = 0.0;          ///< metres
  double depthError = 0.0;     ///< likewise; not a number without bands
  std::size_t receivers = 0;   ///< of the line
  std::size_t known = 0;       ///< that have a depth
  std::size_t carried = 0;     ///< of those, by something else than picks there
};

MethodFigures figuresOf(const MethodLayer& layer);

/// Where methods are farthest apart on one refractor, and which two they are.
struct GreatestDifference {
  std::size_t receiver = 0;
  LayerMethod low = LayerMethod::kReciprocal;   ///< with the least value there
  LayerMethod high = LayerMethod::kReciprocal;  ///< with the greatest
  double least = 0.0;
  double greatest = 0.0;
};

/// None where no receiver has values of two methods that differ.
/// \param values &MethodLayer::depth or &MethodLayer::velocity
std::optional<GreatestDifference> greatestDifference(const MethodComparison& comparison,
                                                     std::uint32_t layer,
                                                     std::vector<double> MethodLayer::*values);

/// A block per refractor: a line of heads, then a line per receiver with x, elevation and, for each
/// method, depth, velocity, with bands their errors, and what carries the depth; with bands and
/// several methods, at last, what they disagree in. "-" where something is not known.
std::string comparisonTable(const MethodComparison& comparison);

/// How far methods agree on a refractor: where depths and velocities are farthest apart, and with
/// bands at how many receivers they differ beyond the errors of the picks.
std::vector<Message> comparisonDifferences(const MethodComparison& comparison, std::uint32_t layer);

/// A line per method and refractor with its medians, and after those of a refractor how far methods
/// agree on it.
std::vector<Message> comparisonSummary(const MethodComparison& comparison);

}  // namespace talvesk
