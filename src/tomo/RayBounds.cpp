#include "tomo/RayBounds.h"

#include <algorithm>

namespace talvesk {

RayBounds::RayBounds(const Grid& grid, const std::vector<std::vector<std::uint32_t>>& earlier)
    : mGrid(grid), mEarlier(earlier), mLevel(grid), mLatest(grid) {}

double RayBounds::atMost(std::uint32_t source, std::uint32_t receiver, std::size_t ray) const {
  if (source == receiver) return 0.0;
  const double level = mLevel.least(source, receiver);
  if (ray >= mEarlier.size()) return level;
  const std::vector<std::uint32_t>& nodes = mEarlier[ray];
  if (nodes.empty() || nodes.front() != source || nodes.back() != receiver) return level;
  return std::min(level, timeAlong(mGrid, nodes));
}

}  // namespace talvesk
