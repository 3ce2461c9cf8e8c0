#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "grid/GridGeometry.h"
#include "model/ChiSquare.h"
#include "tomo/fitted/FitData.h"
#include "tomo/fitted/FitOptions.h"
#include "tomo/fitted/RayTracer.h"

#include <functional>
#include <memory>
#include <vector>

namespace talvesk {

/// Why a fit has ended.
enum class FitEnd {
  kTarget,      ///< chi-square is 1 within 5 %, a tenth of the picks being suspect at most
  kNoGain,      ///< it is above and does not come down any further
  kFitsBetter,  ///< it is below and stays there however smooth the section is
  kIterations,  ///< none of these within the iterations allowed
  kStopped      ///< by the caller
};

/// How far a section is from fitting its picks as closely as their errors are: from a chi-square of
/// 1, and the more the more picks that leaves out.
double distanceOf(const ChiSquare& fit);
/// Whether no more picks are suspect than any line has.
bool fewSuspects(const ChiSquare& fit);

struct FitProgress {
  int iteration = 0;                 ///< completed, from 1
  int most = 0;                      ///< that are allowed; few fits need them
  ChiSquare fit;                     ///< through the section of this iteration, fresh rays
  double lambda = 0.0;               ///< weight of the roughness
  const std::vector<double>& times;  ///< through the section, seconds per pick
};

struct FittedResult {
  /// Failed: nothing else holds. Not so after a stop.
  Status status;
  FitEnd end = FitEnd::kStopped;
  int iterations = 0;  ///< completed; 0: the start is on target, or the fit was stopped early
  std::vector<double> slownesses;   ///< s/m, of the section that is nearest, see distanceOf()
  std::vector<double> reference;    ///< s/m, that the section was held to
  bool loosened = false;            ///< the reference is a smooth version of the one asked for
  TracedRays traced;                ///< through that section
  std::vector<double> scaled;       ///< computed minus measured over the error, with statics
  std::vector<double> statics;      ///< seconds per shot of the data, late is positive; or empty
  ChiSquare fit;                    ///< of the times with the statics; suspects are pick indices
  double lambda = 0.0;              ///< with which the section was found; 0 for the start
  int kept = 0;                     ///< the iteration that found it; 0 is the start
  std::vector<double> chi2History;  ///< through the start, then after every iteration
};

/// Whether a section explains its picks, in words; says what is missing where it does not.
Message describe(const FittedResult& result);

/// Fits a section to picks as closely as their errors demand, and no closer: Gauss-Newton steps on
/// the logarithm of slowness, each with fresh rays and a weight of the roughness that comes nearer
/// to a chi-square of 1. See docs/fitted-inversion.md.
///
/// Knows nothing of a document. Objects of their own may run in threads of their own. Results are
/// the same to the last bit whatever the number of threads that the tracer uses.
class FittedInversion {
 public:
  /// \param data, tracer must outlive the object; the tracer traces the rays of the data
  FittedInversion(const GridSize& size, const FitData& data, RayTracer& tracer,
                  FittedOptions options);
  ~FittedInversion();

  /// \param progress told of the start and after every iteration, from the calling thread; may
  /// be empty
  /// \param goOn asked between the rays of shots; false ends the fit with the best section so far;
  /// may be empty
  FittedResult run(const std::function<void(const FitProgress&)>& progress = {},
                   const std::function<bool()>& goOn = {});

  /// Instead of run(), for picks that are those of an earlier fit but for other errors: the section
  /// that a given weight of the roughness leads to, whatever its chi-square. `end` is kStopped or
  /// kIterations. \param lambda as of the earlier result; 0: the weight that run() begins with
  /// \param factor of that weight, positive
  FittedResult settle(double lambda, const std::function<bool()>& goOn = {}, double factor = 1.0);

 private:
  FittedResult attempt(const std::function<FittedResult()>& fit);

  class Fit;
  std::unique_ptr<Fit> mFit;
};

}  // namespace talvesk
