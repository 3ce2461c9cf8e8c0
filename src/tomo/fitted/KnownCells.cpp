#include "tomo/fitted/KnownCells.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

namespace talvesk {
namespace {

/// Where ground changes: the depth of a boundary along a stretch of the line.
struct Boundary {
  double x = 0.0;      ///< grid abscissa, metres
  double depth = 0.0;  ///< metres
  double error = 0.0;  ///< metres
};

/// A depth tells of its surroundings as far as waves that reach it come together, which is about as
/// wide as it is deep.
bool reaches(const Boundary& boundary, double x) {
  return std::fabs(x - boundary.x) <= boundary.depth;
}

/// The boundary under a place of the line, straight between two known depths that reach it.
/// \param ascending by x, not empty
std::optional<Boundary> boundaryAt(const std::vector<Boundary>& ascending, double x) {
  const auto right = std::find_if(ascending.begin(), ascending.end(),
                                  [x](const Boundary& each) { return each.x >= x; });
  const Boundary* a = right == ascending.begin() ? nullptr : &*(right - 1);
  const Boundary* b = right == ascending.end() ? nullptr : &*right;
  const bool reached = (a != nullptr && reaches(*a, x)) || (b != nullptr && reaches(*b, x));
  if (!reached) return std::nullopt;
  if (a == nullptr || b == nullptr || a->x == b->x) {
    const Boundary& only = b != nullptr ? *b : *a;
    return Boundary{x, only.depth, only.error};
  }
  const double share = (x - a->x) / (b->x - a->x);
  return Boundary{x, a->depth + share * (b->depth - a->depth),
                  a->error + share * (b->error - a->error)};
}

/// Even-odd rule.
bool isInside(const std::vector<KnownCorner>& outline, double x, double depth) {
  bool inside = false;
  for (std::size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
    const KnownCorner& a = outline[i];
    const KnownCorner& b = outline[j];
    if ((a.depth > depth) == (b.depth > depth)) continue;
    const double crossing = a.x + (depth - a.depth) / (b.depth - a.depth) * (b.x - a.x);
    if (x < crossing) inside = !inside;
  }
  return inside;
}

class Translator {
 public:
  Translator(const KnownGround& known, const GridGeometry& geometry, double xOffset)
      : mKnown(known),
        mRows(geometry.righe()),
        mColumns(geometry.col()),
        mSide(geometry.aLato()),
        mOffset(xOffset) {}

  KnownCells run() {
    for (const KnownBody& body : mKnown.bodies) add(body);
    for (const KnownBorehole& borehole : mKnown.boreholes) add(borehole);
    for (const KnownDepth& depth : mKnown.depths) add(depth);
    for (const std::vector<Boundary>& boundary : mLone) loosen(boundary);
    for (auto& [refractor, boundary] : mRefractors) {
      std::stable_sort(boundary.begin(), boundary.end(),
                       [](const Boundary& a, const Boundary& b) { return a.x < b.x; });
      loosen(boundary);
    }
    for (const auto& [cell, slowness] : mFixed) mCells.fixed.push_back({cell, slowness});
    return std::move(mCells);
  }

 private:
  double deepest() const { return mRows * mSide; }
  std::uint32_t cell(std::uint32_t row, std::uint32_t column) const {
    return row * mColumns + column;
  }
  double middle(std::uint32_t column) const { return (column + 0.5) * mSide; }
  std::optional<std::uint32_t> columnAt(double x) const {
    const double column = std::floor((x + mOffset) / mSide);
    if (!(column >= 0.0 && column < mColumns)) return std::nullopt;
    return static_cast<std::uint32_t>(column);
  }
  bool isFixed(std::uint32_t cell) const { return mFixed.count(cell) > 0; }
  void pull(std::uint32_t at, double velocity, double sigma, KnownCells::Side side,
            double reach = 0.0) {
    if (isFixed(at)) return;
    mCells.pulls.push_back(
        {at, -std::log(velocity), sigma, side, mCells.conditions.size() - 1, reach});
  }
  void leaveOut(Message what) { mCells.unused.push_back(std::move(what)); }

  void add(const KnownBody& body);
  void add(const KnownBorehole& borehole);
  void pullColumn(const KnownBorehole& borehole, std::uint32_t column);
  void add(const KnownDepth& point);
  void loosen(const std::vector<Boundary>& boundary);
  void mark(std::uint32_t at, std::uint8_t side) {
    if (mCells.loose.empty()) mCells.loose.assign(std::size_t{mRows} * mColumns, 0);
    mCells.loose[at] = static_cast<std::uint8_t>(mCells.loose[at] | side);
  }

  const KnownGround& mKnown;
  const std::uint32_t mRows;
  const std::uint32_t mColumns;
  const double mSide;
  const double mOffset;
  std::map<std::uint32_t, double> mFixed;            ///< slowness by cell
  std::vector<std::vector<Boundary>> mLone;          ///< of points that belong to no other
  std::map<int, std::vector<Boundary>> mRefractors;  ///< by number
  KnownCells mCells;
};

/// Ground does not have to blend into a body, so its outline is loose all around.
void Translator::add(const KnownBody& body) {
  const auto byX = [](const KnownCorner& a, const KnownCorner& b) { return a.x < b.x; };
  const auto ends = std::minmax_element(body.outline.begin(), body.outline.end(), byX);
  const auto insideColumn = [&](std::uint32_t column) {
    std::vector<bool> inside(mRows);
    const double x = middle(column) - mOffset;
    if (column >= mColumns || x < ends.first->x || x > ends.second->x) return inside;
    for (std::uint32_t row = 0; row < mRows; ++row) {
      inside[row] = isInside(body.outline, x, (row + 0.5) * mSide);
    }
    return inside;
  };
  std::size_t held = 0;
  std::vector<bool> next = insideColumn(0);
  for (std::uint32_t column = 0; column < mColumns; ++column) {
    const std::vector<bool> here = std::move(next);
    next = insideColumn(column + 1);
    for (std::uint32_t row = 0; row < mRows; ++row) {
      if (here[row]) {
        mFixed[cell(row, column)] = 1.0 / body.velocity;
        ++held;
      }
      if (column + 1 < mColumns && here[row] != next[row]) {
        mark(cell(row, column), KnownCells::kRight);
      }
      if (row + 1 < mRows && here[row] != here[row + 1]) {
        mark(cell(row, column), KnownCells::kBelow);
      }
    }
  }
  if (held > 0) return;
  leaveOut(Message::tr("%1 holds no cell of the grid: it is too small, or beyond it.")
               .arg(titleOf(body)));
}

void Translator::add(const KnownBorehole& borehole) {
  const std::optional<std::uint32_t> column = columnAt(borehole.x);
  if (!column) {
    leaveOut(Message::tr("%1 at %2 stands beyond the grid.")
                 .arg(titleOf(borehole))
                 .arg(Message::length(borehole.x)));
    return;
  }
  if (borehole.layers.back().bottom > deepest()) {
    leaveOut(Message::tr("%1 reaches %2 down, below the grid; what is below %3 does not count.")
                 .arg(titleOf(borehole))
                 .arg(Message::length(borehole.layers.back().bottom))
                 .arg(Message::length(deepest())));
  }
  pullColumn(borehole, *column);
  for (std::size_t i = 1; i < borehole.layers.size(); ++i) {
    const double top = borehole.layers[i].top;
    if (top == borehole.layers[i - 1].bottom) mLone.push_back({{borehole.x + mOffset, top, 0.0}});
  }
}

/// A cell that layers share is drawn to the time that a wave needs straight down through them; one
/// that they fill in part, by as much less.
void Translator::pullColumn(const KnownBorehole& borehole, std::uint32_t column) {
  struct Mixture {
    double share = 0.0, slowness = 0.0, error = 0.0, largest = 0.0;
    std::size_t layer = 0;
  };
  std::vector<Mixture> cells(mRows);
  for (std::size_t i = 0; i < borehole.layers.size(); ++i) {
    const KnownLayer& layer = borehole.layers[i];
    for (auto row = static_cast<std::uint32_t>(std::min(layer.top / mSide, double(mRows)));
         row < mRows && row * mSide < layer.bottom; ++row) {
      const double share =
          (std::min(layer.bottom, (row + 1) * mSide) - std::max(layer.top, row * mSide)) / mSide;
      Mixture& mixture = cells[row];
      mixture.share += share;
      mixture.slowness += share / layer.velocity;
      mixture.error += share * layer.relativeError();
      if (share > mixture.largest) {
        mixture.largest = share;
        mixture.layer = i;
      }
    }
  }
  const double reach = std::max(borehole.layers.back().bottom, mSide);
  for (std::size_t i = 0; i < borehole.layers.size(); ++i) {
    const KnownLayer& layer = borehole.layers[i];
    const Message name = Message::tr("%1, %2 to %3")
                             .arg(titleOf(borehole))
                             .arg(Message::length(layer.top))
                             .arg(Message::length(layer.bottom));
    const std::size_t before = mCells.pulls.size();
    mCells.conditions.push_back({name, 0.0, 0.0, 0.0, column});
    for (std::uint32_t row = 0; row < mRows; ++row) {
      const Mixture& mixture = cells[row];
      // A sliver of a cell says next to nothing of it.
      constexpr double kLeastShare = 0.01;
      if (mixture.layer != i || mixture.share < kLeastShare) continue;
      pull(cell(row, column), mixture.share / mixture.slowness,
           mixture.error / mixture.share / std::sqrt(mixture.share), KnownCells::Side::kEither,
           reach);
    }
    if (mCells.pulls.size() > before) continue;
    mCells.conditions.pop_back();
    if (layer.top >= deepest()) continue;  // said of the borehole
    leaveOut(Message::tr("%1: no cell is mostly of this layer; it counts by its share of cells, or "
                         "lies within a fixed body.")
                 .arg(name));
  }
}

void Translator::add(const KnownDepth& point) {
  const std::optional<std::uint32_t> column = columnAt(point.x);
  const double error = std::max(point.depthError(), 0.5 * mSide);
  const double first = std::floor((point.depth - point.depthError()) / mSide) - 1.0;
  const double last = std::ceil((point.depth + point.depthError()) / mSide);
  if (!column || last >= mRows || point.depth < mSide) {
    leaveOut(Message::tr("%1 (%2 along the line, %3 deep) is beyond the grid, or nearer to its "
                         "edge than its error or a cell.")
                 .arg(titleOf(point))
                 .arg(Message::length(point.x))
                 .arg(Message::length(point.depth)));
    return;
  }
  const Boundary boundary{point.x + mOffset, point.depth, point.depthError()};
  if (point.refractor > 0) {
    mRefractors[point.refractor].push_back(boundary);
  } else {
    mLone.push_back({boundary});
  }
  const std::uint32_t upper = cell(static_cast<std::uint32_t>(std::max(first, 0.0)), *column);
  const std::uint32_t lower = cell(static_cast<std::uint32_t>(last), *column);
  constexpr double kSigma = KnownLayer::kUsualError;
  using Side = KnownCells::Side;
  const auto condition = [&](Message name, double isovalue) {
    mCells.conditions.push_back({std::move(name), isovalue, point.depth, error, *column});
  };
  if (const double isovalue = point.velocityAtDepth(); isovalue > 0.0) {
    condition(Message::tr("%1, %2 at %3")
                  .arg(titleOf(point))
                  .arg(Message::velocity(isovalue))
                  .arg(Message::length(point.depth)),
              isovalue);
    pull(upper, isovalue, kSigma, Side::kNotFaster);
    pull(lower, isovalue, kSigma, Side::kNotSlower);
  }
  if (point.above > 0.0) {
    condition(Message::tr("%1, %2 above").arg(titleOf(point)).arg(Message::velocity(point.above)),
              0.0);
    pull(upper, point.above, kSigma, Side::kEither);
  }
  if (point.below > 0.0) {
    condition(Message::tr("%1, %2 below").arg(titleOf(point)).arg(Message::velocity(point.below)),
              0.0);
    pull(lower, point.below, kSigma, Side::kEither);
  }
}

/// Neighbours on different sides of a boundary need not be alike; where its depth is not known to a
/// cell, nor do those that it may pass between.
void Translator::loosen(const std::vector<Boundary>& boundary) {
  std::vector<std::optional<Boundary>> under(mColumns);
  for (std::uint32_t c = 0; c < mColumns; ++c) under[c] = boundaryAt(boundary, middle(c));
  const auto isAbove = [&](std::uint32_t row, std::uint32_t column) {
    return (row + 0.5) * mSide < under[column]->depth;
  };
  for (std::uint32_t column = 0; column < mColumns; ++column) {
    if (!under[column]) continue;
    for (std::uint32_t row = 0; row < mRows; ++row) {
      const double off = std::fabs((row + 1) * mSide - under[column]->depth);
      if (row + 1 < mRows &&
          (isAbove(row, column) != isAbove(row + 1, column) || off <= under[column]->error)) {
        mark(cell(row, column), KnownCells::kBelow);
      }
      if (column + 1 < mColumns && under[column + 1] &&
          isAbove(row, column) != isAbove(row, column + 1)) {
        mark(cell(row, column), KnownCells::kRight);
      }
    }
  }
}

}  // namespace

KnownCells knownCells(const KnownGround& known, const GridGeometry& geometry, double xOffset) {
  return Translator(known, geometry, xOffset).run();
}

double KnownFit::rms() const {
  double sum = 0.0;
  for (const Departure& each : all) sum += each.inErrors * each.inErrors;
  return all.empty() ? 0.0 : std::sqrt(sum / static_cast<double>(all.size()));
}

std::vector<KnownFit::Departure> KnownFit::missed() const {
  std::vector<Departure> missed;
  std::copy_if(all.begin(), all.end(), std::back_inserter(missed),
               [](const Departure& each) { return std::fabs(each.inErrors) > kHonoured; });
  return missed;
}

double depthOfVelocity(double velocity, std::uint32_t column, const GridSize& size,
                       const std::vector<double>& slownesses) {
  const double side = size.aLato;
  double before = 0.0;
  for (std::uint32_t row = 0; row < size.righe; ++row) {
    // ln of the velocity there over the one that is looked for
    const double here = -std::log(slownesses[row * size.col + column] * velocity);
    if (here >= 0.0) {
      if (row == 0) return 0.0;
      return (row + 0.5 - here / (here - before)) * side;
    }
    before = here;
  }
  return size.righe * side;
}

KnownFit fitOf(const KnownCells& known, const GridSize& size,
               const std::vector<double>& slownesses) {
  // Of a layer the mean over its cells: they are one statement and not many.
  std::vector<double> sums(known.conditions.size(), 0.0);
  std::vector<int> counts(known.conditions.size(), 0);
  for (const KnownCells::Pull& pull : known.pulls) {
    sums[pull.condition] += (pull.logSlowness - std::log(slownesses[pull.cell])) / pull.sigma;
    ++counts[pull.condition];
  }
  KnownFit fit;
  fit.fixedCells = known.fixed.size();
  fit.unused = known.unused;
  for (std::size_t i = 0; i < known.conditions.size(); ++i) {
    const KnownCells::Condition& condition = known.conditions[i];
    if (condition.isovalue > 0.0) {
      const double found = depthOfVelocity(condition.isovalue, condition.column, size, slownesses);
      fit.all.push_back({condition.name, (found - condition.depth) / condition.error});
    } else if (counts[i] > 0) {
      fit.all.push_back({condition.name, sums[i] / counts[i]});
    }
  }
  return fit;
}

}  // namespace talvesk
