#include "refraction/GradientFit.h"

#include "numerics/Medians.h"
#include "refraction/WaveFit.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include <Eigen/Cholesky>
#include <Eigen/Core>

namespace talvesk {
namespace {

constexpr double kLeastGrowth = 0.02;  // over the longest offset: hardly bent
constexpr double kMostGrowth = 200.0;  // over the longest offset
constexpr int kSteps = 40;             // of the search for the growth
constexpr int kRefinements = 25;
constexpr int kRounds = 6;
constexpr double kLeastScale = 0.02;  // of the errors of picks

/// Fits what is linear once the growth is known.
class SlownessFit {
 public:
  SlownessFit(const std::vector<WeighedPick>& picks, std::size_t knots) : mPicks(picks) {
    double first = std::numeric_limits<double>::infinity();
    double last = -first;
    for (const WeighedPick& pick : picks) {
      first = std::min({first, pick.from, pick.to});
      last = std::max({last, pick.from, pick.to});
      mLongest = std::max(mLongest, pick.offset());
    }
    mAlong = AlongLine(first, last, knots);
    mShares.resize(static_cast<Eigen::Index>(picks.size()),
                   static_cast<Eigen::Index>(mAlong.knots()));
    for (std::size_t i = 0; i < picks.size(); ++i) {
      const auto over = mAlong.sharesOver(picks[i].from, picks[i].to);
      for (std::size_t k = 0; k < over.size(); ++k) {
        mShares(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(k)) =
            over[k] / picks[i].offset();
      }
    }
  }

  double longest() const { return mLongest; }

  FittedGradient at(double growth) const {
    const auto n = static_cast<Eigen::Index>(mPicks.size());
    Eigen::MatrixXd rows = mShares;
    Eigen::VectorXd time(n);
    for (Eigen::Index i = 0; i < n; ++i) {
      const WeighedPick& pick = mPicks[static_cast<std::size_t>(i)];
      rows.row(i) *= divingOffset(pick.offset(), growth) / pick.sigma;
      time[i] = pick.time / pick.sigma;
    }
    FittedGradient fit;
    fit.along = mAlong;
    fit.growth = growth;
    fit.unknowns = mAlong.knots() + 1;
    Eigen::VectorXd trust = Eigen::VectorXd::Ones(n);
    Eigen::VectorXd found;
    for (int round = 0; round < kRounds; ++round) {
      Eigen::MatrixXd normal = rows.transpose() * trust.asDiagonal() * rows;
      normal.diagonal().array() += 1e-9 * normal.trace();
      found = normal.ldlt().solve(rows.transpose() * trust.cwiseProduct(time));
      const Eigen::VectorXd off = time - rows * found;
      const double scale = std::max(
          kLeastScale, robustDeviation(std::vector<double>(off.data(), off.data() + off.size())));
      for (Eigen::Index i = 0; i < n; ++i) trust[i] = robustWeight(off[i] / scale);
    }
    const Eigen::VectorXd predicted = rows * found;
    fit.slowness.assign(found.data(), found.data() + found.size());
    for (Eigen::Index i = 0; i < n; ++i) {
      fit.times.push_back(predicted[i] * mPicks[static_cast<std::size_t>(i)].sigma);
      fit.cost += robustCost(time[i] - predicted[i]);
    }
    if (!(found.minCoeff() > 0.0)) fit.cost = std::numeric_limits<double>::infinity();
    return fit;
  }

 private:
  const std::vector<WeighedPick>& mPicks;
  AlongLine mAlong{0.0, 0.0, 1};
  Eigen::MatrixXd mShares;  ///< mean over the way of each pick
  double mLongest = 0.0;
};

}  // namespace

double FittedGradient::surfaceVelocity() const {
  return static_cast<double>(slowness.size()) /
         std::accumulate(slowness.begin(), slowness.end(), 0.0);
}

std::optional<FittedGradient> fitGradient(const std::vector<WeighedPick>& picks,
                                          std::size_t knots) {
  if (picks.size() < kLeastPicksOfPiece) return std::nullopt;
  const SlownessFit fitter(picks, knots);
  const double least = std::log(kLeastGrowth / fitter.longest());
  const double step = (std::log(kMostGrowth / fitter.longest()) - least) / kSteps;
  FittedGradient best = fitter.at(std::exp(least));
  double at = least;
  for (int i = 1; i <= kSteps; ++i) {
    FittedGradient fit = fitter.at(std::exp(least + i * step));
    if (fit.cost < best.cost) {
      best = std::move(fit);
      at = least + i * step;
    }
  }
  double width = step;
  for (int i = 0; i < kRefinements; ++i) {
    width *= 0.7;
    for (const double side : {-width, width}) {
      FittedGradient fit = fitter.at(std::exp(at + side));
      if (!(fit.cost < best.cost)) continue;
      best = std::move(fit);
      at += side;
      break;
    }
  }
  if (!std::isfinite(best.cost)) return std::nullopt;
  return best;
}

}  // namespace talvesk
