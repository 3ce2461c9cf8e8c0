#include "view/ContourLines.h"

#include "base/RoundStep.h"
#include "base/TextNumber.h"
#include "view/ShownUnit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <unordered_map>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

/// Follows one level through the mesh. A line crosses a side of the mesh at most once, so a
/// crossing is named by its side, and has at most two neighbours: one in either cell that shares
/// the side.
class LevelTracer {
 public:
  LevelTracer(const SectionMesh& mesh, const std::vector<double>& values, double level)
      : mMesh(mesh),
        mValues(values),
        mLevel(level),
        mHorizontalSides(std::size_t{mesh.rows + 1} * mesh.columns) {}

  void trace(std::vector<ContourLine>& out) {
    for (std::uint32_t row = 0; row < mMesh.rows; ++row) {
      for (std::uint32_t column = 0; column < mMesh.columns; ++column) {
        if (mMesh.isDrawn(row, column)) crossCell(row, column);
      }
    }
    // Open lines first, from their ends; what is left then is closed.
    for (std::size_t i = 0; i < mCrossings.size(); ++i) {
      if (!mCrossings[i].used && mCrossings[i].degree == 1) follow(i, out);
    }
    for (std::size_t i = 0; i < mCrossings.size(); ++i) {
      if (!mCrossings[i].used) follow(i, out);
    }
  }

 private:
  struct Crossing {
    Point2D point;
    std::array<std::size_t, 2> next{kNone, kNone};
    int degree = 0;
    bool used = false;
  };

  void crossCell(std::uint32_t row, std::uint32_t column) {
    // Clockwise from the upper left corner; side k runs from corner k to corner k + 1.
    const std::array<std::size_t, 4> corner{
        mMesh.corner(row, column), mMesh.corner(row, column + 1), mMesh.corner(row + 1, column + 1),
        mMesh.corner(row + 1, column)};
    unsigned above = 0;
    double sum = 0.0;
    for (unsigned k = 0; k < 4; ++k) {
      const double value = mValues[corner[k]];
      if (!std::isfinite(value)) return;
      sum += value;
      if (value >= mLevel) above |= 1U << k;
    }
    if (above == 0U || above == 15U) return;

    std::array<std::size_t, 4> crossing{kNone, kNone, kNone, kNone};
    for (unsigned k = 0; k < 4; ++k) {
      const unsigned l = (k + 1) % 4;
      if (((above >> k) & 1U) != ((above >> l) & 1U)) {
        crossing[k] = crossingOn(sideNumber(row, column, k), corner[k], corner[l]);
      }
    }
    if (above != 5U && above != 10U) {
      join(crossing);
      return;
    }
    // All four sides are crossed. The line cuts off the two corners that differ from the middle.
    const bool middleAbove = sum / 4.0 >= mLevel;
    const bool cutOffFirst = middleAbove != ((above & 1U) != 0U);
    const unsigned first = cutOffFirst ? 3 : 0;  // corner 0 lies between the sides 3 and 0
    link(crossing[first], crossing[(first + 1) % 4]);
    link(crossing[(first + 2) % 4], crossing[(first + 3) % 4]);
  }

  /// Top and bottom sides are numbered first, line by line; then the upright ones, row by row.
  std::size_t sideNumber(std::uint32_t row, std::uint32_t column, unsigned k) const {
    switch (k) {
      case 0:
        return std::size_t{row} * mMesh.columns + column;
      case 2:
        return std::size_t{row + 1} * mMesh.columns + column;
      default:
        return mHorizontalSides + mMesh.corner(row, column + (k == 1 ? 1 : 0));
    }
  }

  std::size_t crossingOn(std::size_t side, std::size_t a, std::size_t b) {
    const auto [entry, isNew] = mIndex.emplace(side, mCrossings.size());
    if (!isNew) return entry->second;
    // Always from the lower to the higher corner number, so that both cells compute one point.
    if (a > b) std::swap(a, b);
    const double f = (mLevel - mValues[a]) / (mValues[b] - mValues[a]);
    const Point2D& p = mMesh.corners[a];
    const Point2D& q = mMesh.corners[b];
    Crossing crossing;
    crossing.point = {p.x + f * (q.x - p.x), p.z + f * (q.z - p.z)};
    mCrossings.push_back(crossing);
    return entry->second;
  }

  void join(const std::array<std::size_t, 4>& crossing) {
    std::size_t first = kNone;
    for (const std::size_t c : crossing) {
      if (c == kNone) continue;
      if (first == kNone) {
        first = c;
      } else {
        link(first, c);
      }
    }
  }

  void link(std::size_t a, std::size_t b) {
    mCrossings[a].next[static_cast<std::size_t>(mCrossings[a].degree++)] = b;
    mCrossings[b].next[static_cast<std::size_t>(mCrossings[b].degree++)] = a;
  }

  void follow(std::size_t start, std::vector<ContourLine>& out) {
    ContourLine line;
    line.value = mLevel;
    std::size_t visited = 0;
    std::size_t at = start;
    while (at != kNone) {
      Crossing& crossing = mCrossings[at];
      crossing.used = true;
      ++visited;
      // In a corner that lies on the level, the crossings of all its sides are one point.
      if (line.points.empty() || line.points.back() != crossing.point) {
        line.points.push_back(crossing.point);
      }
      at = kNone;
      for (const std::size_t next : crossing.next) {
        if (next == kNone) continue;
        if (!mCrossings[next].used) {
          at = next;
          break;
        }
        line.closed |= next == start && visited > 2;
      }
    }
    if (line.closed && line.points.front() == line.points.back()) line.points.pop_back();
    if (line.points.size() >= (line.closed ? 3 : 2)) out.push_back(std::move(line));
  }

  const SectionMesh& mMesh;
  const std::vector<double>& mValues;
  double mLevel;
  std::size_t mHorizontalSides;
  std::unordered_map<std::size_t, std::size_t> mIndex;  ///< side to crossing; few sides have one
  std::vector<Crossing> mCrossings;
};

}  // namespace

std::vector<double> cornerMeans(const SectionMesh& mesh, const std::vector<double>& cellValues) {
  std::vector<double> sum(mesh.corners.size(), 0.0);
  std::vector<unsigned char> count(mesh.corners.size(), 0);
  for (std::uint32_t row = 0; row < mesh.rows; ++row) {
    for (std::uint32_t column = 0; column < mesh.columns; ++column) {
      const double value = cellValues[mesh.cell(row, column)];
      if (!mesh.isDrawn(row, column) || !std::isfinite(value)) continue;
      for (const std::size_t corner :
           {mesh.corner(row, column), mesh.corner(row, column + 1), mesh.corner(row + 1, column),
            mesh.corner(row + 1, column + 1)}) {
        sum[corner] += value;
        ++count[corner];
      }
    }
  }
  for (std::size_t i = 0; i < sum.size(); ++i) {
    sum[i] = count[i] > 0 ? sum[i] / count[i] : std::numeric_limits<double>::quiet_NaN();
  }
  return sum;
}

std::vector<ContourLine> contourLines(const SectionMesh& mesh,
                                      const std::vector<double>& cornerValues,
                                      const std::vector<double>& levels) {
  std::vector<ContourLine> lines;
  for (const double level : levels) {
    if (std::isfinite(level)) LevelTracer(mesh, cornerValues, level).trace(lines);
  }
  return lines;
}

std::vector<double> roundValues(const ValueRange& range, int most) {
  std::vector<double> values;
  const double span = range.span();
  const double size = std::max(std::fabs(range.min), std::fabs(range.max));
  // Far from zero a narrow range has no numbers to tell its values apart.
  if (!(span > 1e-9 * size) || !std::isfinite(size) || most < 1) return values;
  const double step = roundStep(span / most);
  // Of a step below 1 only the reciprocal is a number without rounding.
  const double perUnit = std::round(1.0 / step);
  for (double i = std::ceil(range.min / step - 1e-9); i <= range.max / step + 1e-9; i += 1.0) {
    const double value = step < 1.0 ? i / perUnit : i * step;
    if (range.contains(value)) values.push_back(value);
  }
  if (static_cast<int>(values.size()) > most) values.pop_back();  // both ends are multiples
  return values;
}

std::vector<double> shownRoundValues(const ValueRange& range, int most, const std::string& unit) {
  const double factor = shownUnit(unit).factor;
  if (factor == 1.0) return roundValues(range, most);
  std::vector<double> values = roundValues({range.min * factor, range.max * factor}, most);
  for (double& value : values) {
    // The number that stands for it when it is typed: 1500 ft/s are 457.2 m/s, to 15 digits.
    parseDouble(formatDouble(value / factor, 15), value);
    value = std::clamp(value, range.min, range.max);
  }
  return values;
}

std::vector<double> equallySpacedValues(const ValueRange& range, int n) {
  std::vector<double> values;
  if (!(range.span() > 0.0)) return values;
  for (int i = 1; i <= n; ++i) values.push_back(range.min + range.span() * i / (n + 1));
  return values;
}

}  // namespace talvesk
