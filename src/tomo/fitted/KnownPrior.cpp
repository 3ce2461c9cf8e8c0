#include "tomo/fitted/KnownPrior.h"

#include <cmath>
#include <utility>

namespace talvesk {
namespace {

/// How far a cell is from where it is drawn to, ln of slowness; 0 on the side that is allowed.
double departure(const KnownCells::Pull& pull, double logSlowness) {
  const double off = logSlowness - pull.logSlowness;
  if (pull.side == KnownCells::Side::kNotFaster && off > 0.0) return 0.0;
  if (pull.side == KnownCells::Side::kNotSlower && off < 0.0) return 0.0;
  return off;
}

Eigen::Index index(std::uint32_t cell) {
  return static_cast<Eigen::Index>(cell);
}

}  // namespace

KnownPrior::KnownPrior(std::shared_ptr<const KnownCells> cells)
    : mCells(cells != nullptr ? std::move(cells) : std::make_shared<KnownCells>()) {}

void KnownPrior::fix(Eigen::VectorXd& unknowns) const {
  for (const auto& each : mCells->fixed) unknowns[index(each.cell)] = std::log(each.slowness);
}

void KnownPrior::fix(std::vector<double>& slownesses) const {
  for (const auto& each : mCells->fixed) slownesses[each.cell] = each.slowness;
}

double KnownPrior::cost(const Eigen::VectorXd& unknowns) const {
  double sum = 0.0;
  for (const KnownCells::Pull& pull : mCells->pulls) {
    const double off = departure(pull, unknowns[index(pull.cell)]) / pull.sigma;
    sum += off * off;
  }
  return sum;
}

void KnownPrior::addTo(const Eigen::VectorXd& unknowns, LinearStep& step) const {
  for (const KnownCells::Pull& pull : mCells->pulls) {
    const Eigen::Index cell = index(pull.cell);
    const double off = departure(pull, unknowns[cell]);
    if (off == 0.0 && pull.side != KnownCells::Side::kEither) continue;
    const double weight = 1.0 / (pull.sigma * pull.sigma);
    step.prior.coeffRef(cell, cell) += weight;
    step.gradient[cell] -= weight * off;
  }
  for (const auto& each : mCells->fixed) step.held[each.cell] = true;
}

}  // namespace talvesk
