#include "view/DepthProfile.h"

#include "model/Certainty.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "view/SectionCertainty.h"
#include "view/SectionValues.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace talvesk {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

/// Of the finite values of drawn cells; 0 to 0 where there is none.
ValueRange rangeOf(const SectionMesh& mesh, const std::vector<double>& values) {
  ValueRange range{std::numeric_limits<double>::infinity(),
                   -std::numeric_limits<double>::infinity()};
  for (std::size_t cell = 0; cell < values.size(); ++cell) {
    if (mesh.drawn[cell] == 0 || !std::isfinite(values[cell])) continue;
    range.min = std::min(range.min, values[cell]);
    range.max = std::max(range.max, values[cell]);
  }
  return range.min > range.max ? ValueRange() : range;
}

double valueOr(const std::vector<double>& values, std::size_t cell) {
  return cell < values.size() ? values[cell] : kNone;
}

}  // namespace

DepthProfiles::DepthProfiles(const TomoDocument& document) {
  if (!document.model->grid || document.model->grid->cellCount() == 0) return;
  const Grid& grid = *document.model->grid;
  mMesh = sectionMesh(grid, document.model->xOffset);
  mLeft = mMesh.corners[mMesh.corner(0, 0)].x;
  mRight = mMesh.corners[mMesh.corner(0, mMesh.columns)].x;
  mVelocities = grid.velocities();
  mGradients = verticalGradientValues(grid);
  const auto& certainty = document.result->certainty;
  if (certainty && certainty->touched.size() == mVelocities.size()) {
    mLow = certainty->velocities.low;
    mHigh = certainty->velocities.high;
    mSpreads = certaintySpreads(*certainty);
  }
  mVelocityRange = rangeOf(mMesh, mVelocities);
  mVelocityRange.max = std::max(mVelocityRange.max, rangeOf(mMesh, mHigh).max);
  mGradientRange = rangeOf(mMesh, mGradients);
  mSpreadRange = rangeOf(mMesh, mSpreads);
  for (std::uint32_t row = mMesh.rows; row-- > 0 && mDepth == 0.0;) {
    for (std::uint32_t column = 0; column < mMesh.columns; ++column) {
      if (!mMesh.isDrawn(row, column)) continue;
      const double top = mMesh.corners[mMesh.corner(0, column)].z;
      mDepth = std::max(mDepth, top - mMesh.corners[mMesh.corner(row + 1, column)].z);
    }
  }
}

DepthProfile::Layer DepthProfiles::layerAt(std::size_t cell) const {
  DepthProfile::Layer layer;
  layer.velocity = mVelocities[cell];
  layer.gradient = mGradients[cell];
  layer.low = valueOr(mLow, cell);
  layer.high = valueOr(mHigh, cell);
  layer.spread = valueOr(mSpreads, cell);
  return layer;
}

DepthProfile DepthProfiles::at(double x) const {
  DepthProfile profile;
  profile.x = x;
  if (empty() || !(x >= mLeft && x <= mRight)) return profile;
  const double along = (x - mLeft) / (mRight - mLeft) * mMesh.columns;
  const auto column = std::min(static_cast<std::uint32_t>(along), mMesh.columns - 1);
  const double f = along - column;
  const auto elevation = [&](std::uint32_t line) {
    const double a = mMesh.corners[mMesh.corner(line, column)].z;
    return a + f * (mMesh.corners[mMesh.corner(line, column + 1)].z - a);
  };
  profile.surface = elevation(0);
  for (std::uint32_t row = 0; row < mMesh.rows; ++row) {
    if (!mMesh.isDrawn(row, column)) continue;
    DepthProfile::Layer layer = layerAt(mMesh.cell(row, column));
    layer.top = profile.surface - elevation(row);
    layer.bottom = profile.surface - elevation(row + 1);
    profile.layers.push_back(layer);
  }
  return profile;
}

}  // namespace talvesk
