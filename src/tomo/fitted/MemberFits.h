#pragma once

#include "base/Status.h"
#include "tomo/fitted/EnsembleVariation.h"
#include "tomo/fitted/FitData.h"
#include "tomo/fitted/FittedInversion.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace talvesk {

/// What the members of an ensemble have in common.
struct EnsembleOptions {
  FittedOptions fit;              ///< the start is the present section; the reference is not used
  std::uint64_t seed = 1;         ///< of the errors that picks are given
  std::vector<double> isovalues;  ///< m/s, whose depths are asked for
  EnsembleVariation vary;         ///< settings in which members differ; usually none
};

/// Where members begin: a model, and where the fit to the picks as measured has ended with it.
struct MemberStart {
  std::size_t model = 0;  ///< in Ensemble::models()
  bool layered = false;
  FitManner manner;
  std::vector<double> reference;  ///< s/m per cell
  std::vector<double> section;    ///< s/m per cell; empty: not fitted yet
  double lambda = 0.0;            ///< weight of the roughness that the fit has found
};

/// One of the many sections that explain the picks.
struct EnsembleMember {
  std::size_t number = 0;
  bool counts = false;             ///< it explains the picks as measured
  std::vector<double> slownesses;  ///< s/m per cell
  std::vector<bool> touched;       ///< whether a ray crosses the cell, per cell
};

/// Fits the members of an ensemble, each a function of what the object is made of and its number
/// alone, wherever and in whatever order that is done. Does not change: any number of threads may
/// use it, with a tracer each.
class MemberFits {
 public:
  /// Chi-square up to which a model or a member explains the picks.
  static constexpr double kPlausible = 1.6;

  /// \param data, geometry of the survey \param starts fitted; one at least
  MemberFits(std::shared_ptr<const GridGeometry> geometry, FitData data, EnsembleOptions options,
             std::vector<MemberStart> starts);

  const MemberStart& startOf(std::size_t member) const;

  /// \param tracer of newTracer() \param member out: none where the fit was stopped
  Status fit(std::size_t number, RayTracer& tracer, const std::function<bool()>& goOn,
             std::optional<EnsembleMember>& member) const;
  std::unique_ptr<RayTracer> newTracer() const;  ///< that works in the thread which asks it

  const std::shared_ptr<const GridGeometry>& geometry() const { return mGeometry; }
  const FitData& data() const { return mData; }
  const EnsembleOptions& options() const { return mOptions; }
  const std::vector<MemberStart>& starts() const { return mStarts; }

 private:
  double factorOf(std::size_t member) const;
  double chi2AsMeasured(const FittedResult& fit) const;

  std::shared_ptr<const GridGeometry> mGeometry;
  FitData mData;
  EnsembleOptions mOptions;
  std::vector<MemberStart> mStarts;
  /// Indices of the starts by manner, and of each the smooth ones and the layered ones.
  std::vector<std::vector<std::size_t>> mKinds;
};

}  // namespace talvesk
