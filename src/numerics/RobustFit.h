#pragma once

#include <cstddef>
#include <vector>

namespace talvesk {

/// Linear equations among few unknowns, each with an error: what is measured, weighted down where
/// it does not fit (Cauchy), and what is merely expected, which always counts.
class RobustFit {
 public:
  explicit RobustFit(std::size_t unknowns) : mUnknowns(unknowns) {}

  struct Term {
    std::size_t unknown;
    double factor;
  };
  /// \param residual of a first guess, in the unit of value
  void measure(const std::vector<Term>& terms, double value, double sigma, double residual);
  void expect(const std::vector<Term>& terms, double value, double sigma);

  struct Solution {
    std::vector<double> unknowns;  ///< empty where the equations do not settle them
    /// How many unknowns' worth what is measured has decided, rather than what is expected: the
    /// trace of the matrix that makes fitted values of measured ones.
    double decided = 0.0;
  };
  Solution solve() const;

 private:
  struct Entry {
    std::size_t row;
    std::size_t unknown;
    double factor;
  };
  struct Rows {
    std::vector<Entry> entries;  ///< divided by the errors
    std::vector<double> values;  ///< likewise
    void add(const std::vector<Term>& terms, double value, double sigma);
  };

  std::size_t mUnknowns;
  Rows mMeasured;
  Rows mExpected;
  std::vector<double> mResiduals;  ///< in errors
};

/// What a residual in errors counts, 0 to 1, among residuals that are `scale` errors wide.
double cauchyWeight(double residual, double scale);

/// The width of residuals in errors, of which some may be gross: from their median, at least 1.
double robustScale(const std::vector<double>& residuals);

}  // namespace talvesk
