#pragma once

#include "tomo/fitted/KnownCells.h"
#include "tomo/fitted/StepSolver.h"

#include <memory>
#include <vector>

#include <Eigen/Core>

namespace talvesk {

/// What known ground adds to a fit: squares of how far cells are from where they are drawn to, over
/// their errors, and cells that are no unknowns. The weight of the roughness has no part in it.
/// Unknowns are ln slowness of the cells, with whatever follows them.
class KnownPrior {
 public:
  /// \param cells may be null: nothing is known
  explicit KnownPrior(std::shared_ptr<const KnownCells> cells);

  bool any() const { return !mCells->empty(); }
  const KnownCells& cells() const { return *mCells; }
  const std::vector<std::uint8_t>& loose() const { return mCells->loose; }
  void fix(Eigen::VectorXd& unknowns) const;
  void fix(std::vector<double>& slownesses) const;
  double cost(const Eigen::VectorXd& unknowns) const;
  /// \param step of these unknowns; its gradient, prior and held cells are complete but for this
  void addTo(const Eigen::VectorXd& unknowns, LinearStep& step) const;

 private:
  const std::shared_ptr<const KnownCells> mCells;
};

}  // namespace talvesk
