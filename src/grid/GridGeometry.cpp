#include "grid/GridGeometry.h"

#include "grid/GridGraph.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace talvesk {

std::uint64_t GridSize::nodeCount() const {
  const std::uint64_t n = nV;
  return (std::uint64_t{righe} + 1) * (col * (n - 1) + 1) +
         std::uint64_t{righe} * (n - 2) * (std::uint64_t{col} + 1);
}

double GridSize::nodesAsNumber() const {
  return (righe + 1.0) * (col * (nV - 1.0) + 1.0) + righe * (nV - 2.0) * (col + 1.0);
}

void smoothProfile(const std::vector<double>& in, std::vector<double>& out) {
  out = in;
  const std::size_t n = in.size();
  if (n <= 8) return;
  for (std::size_t c = 4; c + 4 < n; ++c) {
    out[c] = 0.125 * in[c - 4] + 0.125 * in[c - 3] + 0.125 * in[c - 2] + 0.125 * in[c - 1] +
             0.125 * in[c + 1] + 0.125 * in[c + 2] + 0.125 * in[c + 3] + 0.125 * in[c + 4];
  }
}

GridGeometry::GridGeometry(const GridSize& size, const Splines::Spline& surface) : mSize(size) {
  if (size.nV < 2) throw std::invalid_argument("a cell side needs two nodes at least");
  if (!(size.aLato > 0.0) || !std::isfinite(size.aLato)) {
    throw std::invalid_argument("the cell size must be positive");
  }
  if (size.nodesAsNumber() > GridSize::kMaxNodes) throw std::invalid_argument("too many nodes");

  const std::uint32_t steps = size.nV - 1;
  const double h = size.aLato;
  const double d = h / steps;
  mLineNodes = size.col * steps + 1;
  mBlock = mLineNodes + (size.col + 1) * (size.nV - 2);

  // A corner belongs to two cells, and the right-hand one has the last word about its place.
  mLineX.resize(mLineNodes);
  for (std::uint32_t i = 0; i < mLineNodes; ++i) {
    const std::uint32_t ix = size.col == 0 ? 0 : std::min(i / steps, size.col - 1);
    mLineX[i] = ix * h + (i - ix * steps) * d;
  }
  mStep.resize(size.nV - 2);
  for (std::uint32_t j = 0; j < mStep.size(); ++j) mStep[j] = (j + 1) * d;

  mSurface.resize(mLineNodes);
  for (std::uint32_t i = 0; i < mLineNodes; ++i) mSurface[i] = surface(i * h / steps);

  mLineZ.resize(std::size_t{size.righe + 1} * mLineNodes);
  std::vector<double> profile = mSurface;
  std::vector<double> below;
  double* line = mLineZ.data();
  for (std::uint32_t iz = 0; iz < size.righe; ++iz, line += mLineNodes) {
    for (std::uint32_t i = 0; i < mLineNodes; ++i) line[i] = iz * h - profile[i];
    smoothProfile(profile, below);
    profile.swap(below);
  }
  // The deepest line is only ever the bottom of a row, and is placed by that row's sum.
  for (std::uint32_t i = 0; i < mLineNodes; ++i) {
    line[i] = size.righe == 0 ? -profile[i] : (size.righe - 1) * h - profile[i] + h;
  }
}

std::uint32_t GridGeometry::topNodeIndex(double x) const {
  if (!(x >= 0.0)) return kNoNode;
  const double k = x / (mSize.aLato / (mSize.nV - 1));
  return k < mLineNodes ? static_cast<std::uint32_t>(k) : kNoNode;
}

GridGeometry::Place GridGeometry::place(std::uint32_t node) const {
  const std::uint32_t row = node / mBlock;
  const std::uint32_t in = node % mBlock;
  if (in < mLineNodes) return {true, row, in, 0};
  const std::uint32_t side = in - mLineNodes;
  return {false, row, side % (mSize.col + 1), side / (mSize.col + 1)};
}

double GridGeometry::nodeX(std::uint32_t node) const {
  const Place p = place(node);
  return p.onLine ? lineX(p.along) : sideX(p.along);
}

double GridGeometry::nodeZ(std::uint32_t node) const {
  const Place p = place(node);
  return p.onLine ? lineZ(p.row, p.along) : sideZ(p.row, p.along, p.level);
}

Point2D GridGeometry::cellCentre(std::uint32_t cell) const {
  const std::uint32_t row = cell / mSize.col;
  const std::uint32_t first = cell % mSize.col * (mSize.nV - 1);
  const std::uint32_t last = first + mSize.nV - 1;
  return {(mLineX[first] + mLineX[last]) / 2.0, (lineZ(row, first) + lineZ(row + 1, last)) / 2.0};
}

std::size_t GridGeometry::bytes() const {
  return sizeof(double) *
         (mLineX.capacity() + mLineZ.capacity() + mStep.capacity() + mSurface.capacity());
}

}  // namespace talvesk
