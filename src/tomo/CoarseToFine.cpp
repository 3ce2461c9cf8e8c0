#include "tomo/CoarseToFine.h"

#include "model/TomographyOutcome.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

namespace talvesk {
namespace {

/// Fifths of the radius asked for.
constexpr std::array<int, 4> kFifths = {5, 3, 2, 1};

}  // namespace

int coarseToFineRadius(int radius, int iteration, int iterations) {
  const std::int64_t stage = std::int64_t{iteration} * std::int64_t{kFifths.size()} / iterations;
  const double fifths = kFifths[static_cast<std::size_t>(stage)];
  return std::max(1, static_cast<int>(std::lround(radius * fifths / 5.0)));
}

void BestIteration::add(const TomoDocument& document) {
  if (mWaiting) judge(document.result->sectionHistory.back());
  mWaiting = document;
  ++mAdded;
}

void BestIteration::judge(const SectionMisfit& misfit) {
  // Without any pick no iteration is better than another: the last one stays.
  if (mBest == 0 || misfit.count == 0 || misfit.trimmed < mLeast) {
    mBest = mAdded;
    mLeast = misfit.trimmed;
    mDocument = std::move(mWaiting);
  }
  mWaiting.reset();
}

}  // namespace talvesk
