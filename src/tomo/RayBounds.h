#pragma once

#include "tomo/LatestTimes.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// What is known of the rays of all shots before they are searched for, in one model. Rays through
/// an earlier model are ways through this one, if slower ones. To be read by any number of threads.
class RayBounds {
 public:
  /// \param earlier rays as node lists, those of all shots one after the other; what is no way
  /// through the grid from a source to its receiver is passed over. It and the grid must outlive
  /// the object.
  RayBounds(const Grid& grid, const std::vector<std::vector<std::uint32_t>>& earlier);

  /// Seconds that some way takes between two nodes of the top line. \param ray the number of the
  /// ray among the earlier ones
  double atMost(std::uint32_t source, std::uint32_t receiver, std::size_t ray) const;

  const LatestTimes& latest() const { return mLatest; }

 private:
  const Grid& mGrid;
  const std::vector<std::vector<std::uint32_t>>& mEarlier;
  LevelWays mLevel;
  LatestTimes mLatest;
};

}  // namespace talvesk
