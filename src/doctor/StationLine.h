#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace talvesk::doctor {

/// y = at0 + slope * x through most of some points.
struct StationLine {
  double at0 = 0.0;
  double slope = 0.0;
  double scatter = 0.0;  ///< median magnitude of what the points that fit are off
  /// By that scatter, or a third of the tolerance at the ends of the line, whichever is more.
  double slopeError = 0.0;
  std::vector<bool> fits;  ///< per point
  std::size_t fitCount = 0;

  double at(double x) const { return at0 + slope * x; }
};

/// The line through most points: the median of the slopes of all pairs (P. K. Sen, 1968, Estimates
/// of the regression coefficient based on Kendall's tau), which a third of wrong points leaves
/// alone.
/// \param tolerance by how much, in x, a point that fits may be off
/// \return none when fewer than three points at different x and y fit, or less than two thirds do
std::optional<StationLine> lineThrough(const std::vector<double>& x, const std::vector<double>& y,
                                       double tolerance);

/// The number with the fewest digits within an uncertainty: 1.98 +- 0.05 is 2.
double roundest(double value, double uncertainty);

/// A number in the name of a file.
struct NameNumber {
  double value = 0.0;
  bool metres = false;  ///< "m" follows it
};

/// The numbers in a name, in order: "-5", "10", "2.5" and "2,5"; a minus is one only where no
/// letter or digit stands before it.
std::vector<NameNumber> numbersIn(const std::string& name);

/// What the names of files may say of the positions of their shots: for every place among the
/// numbers of the names, where all have one, the values there. Numbers that only count up by one
/// are no positions, unless they are called metres.
std::vector<std::vector<double>> positionsByName(const std::vector<std::string>& names);

}  // namespace talvesk::doctor
