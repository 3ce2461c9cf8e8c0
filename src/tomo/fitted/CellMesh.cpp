#include "tomo/fitted/CellMesh.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

CellMesh::CellMesh(const GridGeometry& geometry)
    : mRows(geometry.righe()),
      mCols(geometry.col()),
      mLine(mCols * kSteps + 1),
      mSideBase((mRows + 1) * mLine),
      mLongest(0.0) {
  const std::uint32_t perCell = geometry.nV() - 1;
  const auto corner = [&](std::uint32_t line, std::uint32_t v) {
    return Point2D{geometry.lineX(v * perCell), geometry.lineZ(line, v * perCell)};
  };
  const auto between = [](const Point2D& a, const Point2D& b, std::uint32_t k) {
    const double f = static_cast<double>(k) / kSteps;
    return Point2D{a.x + f * (b.x - a.x), a.z + f * (b.z - a.z)};
  };
  mNodes.reserve(mSideBase + std::size_t{mRows} * (mCols + 1) * (kSteps - 1));
  for (std::uint32_t line = 0; line <= mRows; ++line) {
    for (std::uint32_t c = 0; c < mCols; ++c) {
      for (std::uint32_t k = 0; k < kSteps; ++k) {
        mNodes.push_back(between(corner(line, c), corner(line, c + 1), k));
      }
    }
    mNodes.push_back(corner(line, mCols));
  }
  double lowest = geometry.aLato();
  for (std::uint32_t row = 0; row < mRows; ++row) {
    for (std::uint32_t v = 0; v <= mCols; ++v) {
      const Point2D top = corner(row, v);
      const Point2D bottom = corner(row + 1, v);
      for (std::uint32_t k = 1; k < kSteps; ++k) mNodes.push_back(between(top, bottom, k));
      lowest = std::min(lowest, std::fabs(bottom.z - top.z));
    }
  }
  // Sides that the relief squeezes to nothing must not set the pace.
  mShortest = std::max(lowest, 0.1 * geometry.aLato()) / kSteps;
  mRings.reserve(cellCount());
  for (std::uint32_t cell = 0; cell < mRows * mCols; ++cell) {
    mRings.push_back(makeRing(cell));
    for (std::uint32_t a = 0; a < 4; ++a) {
      for (std::uint32_t b = 0; b < a; ++b) {
        const Point2D& p = this->corner(cell, a);
        const Point2D& q = this->corner(cell, b);
        mLongest = std::max(mLongest, std::hypot(p.x - q.x, p.z - q.z));
      }
    }
  }
}

CellMesh::Ring CellMesh::makeRing(std::uint32_t cell) const {
  const std::uint32_t row = cell / mCols;
  const std::uint32_t column = cell % mCols;
  const std::uint32_t top = lineNode(row, column * kSteps);
  const std::uint32_t bottom = top + mLine;
  const std::uint32_t left = sideNode(row, column);
  const std::uint32_t right = left + kSteps - 1;
  Ring ring;
  for (std::uint32_t k = 0; k <= kSteps; ++k) ring[k] = top + k;
  for (std::uint32_t k = 1; k < kSteps; ++k) ring[kSteps + k] = right + k - 1;
  for (std::uint32_t k = 0; k <= kSteps; ++k) ring[3 * kSteps - k] = bottom + k;
  for (std::uint32_t k = 1; k < kSteps; ++k) ring[4 * kSteps - k] = left + k - 1;
  return ring;
}

std::uint32_t CellMesh::beyond(std::uint32_t cell, std::uint32_t side) const {
  const std::uint32_t row = cell / mCols;
  const std::uint32_t column = cell % mCols;
  switch (side) {
    case 0:
      return row > 0 ? cell - mCols : kNone;
    case 1:
      return column + 1 < mCols ? cell + 1 : kNone;
    case 2:
      return row + 1 < mRows ? cell + mCols : kNone;
    default:
      return column > 0 ? cell - 1 : kNone;
  }
}

std::uint32_t CellMesh::sideTowards(std::uint32_t cell, std::uint32_t other) const {
  for (std::uint32_t side = 0; side < 4; ++side) {
    if (beyond(cell, side) == other) return side;
  }
  return kNone;
}

const Point2D& CellMesh::corner(std::uint32_t cell, std::uint32_t k) const {
  const std::uint32_t row = cell / mCols;
  const std::uint32_t column = cell % mCols;
  const bool right = k == 1 || k == 2;
  const bool bottom = k == 2 || k == 3;
  return mNodes[lineNode(row + (bottom ? 1 : 0), (column + (right ? 1 : 0)) * kSteps)];
}

}  // namespace talvesk
