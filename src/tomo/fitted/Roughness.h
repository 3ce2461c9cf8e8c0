#pragma once

#include <cstdint>
#include <vector>

#include <Eigen/SparseCore>

namespace talvesk {

/// How rough a section is: the weighted squares of the differences between neighbouring cells. The
/// grid drapes the ground, so all of its cells are ground and its edges are free.
class Roughness {
 public:
  Roughness(std::uint32_t rows, std::uint32_t columns);

  /// Lets neighbours differ at next to no cost.
  /// \param loose per cell which of its neighbours, as of KnownCells; empty: none
  void loosen(std::vector<std::uint8_t> loose);

  /// Makes sharp steps count less than many small ones, as the sum of sizes instead of squares
  /// would (iteratively reweighted least squares). The weights are scaled so that these very values
  /// are as rough as they were.
  /// \param values one per cell, row by row
  void sharpen(const Eigen::VectorXd& values);

  /// The symmetric matrix Q of the roughness v'Qv. It has an entry for every two neighbours,
  /// whatever the weights.
  const Eigen::SparseMatrix<double>& matrix() const { return mMatrix; }
  double of(const Eigen::VectorXd& values) const { return values.dot(mMatrix * values); }

 private:
  template <typename Visit>
  void forEachPair(Visit visit) const;
  template <typename Weight>
  void assemble(Weight weight);

  std::uint32_t mRows;
  std::uint32_t mColumns;
  std::vector<std::uint8_t> mLoose;  ///< per cell, or empty
  Eigen::SparseMatrix<double> mMatrix;
};

}  // namespace talvesk
