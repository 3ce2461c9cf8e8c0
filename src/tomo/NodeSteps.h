#pragma once

#include "tomo/RayTree.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// Which step of a tree of rays leads to a node. A table with open places, for a list over all
/// nodes of a grid would take more memory than the rays of a shot.
class NodeSteps {
 public:
  void clear() {
    mPlaces.assign(mPlaces.size(), Place{});
    mCount = 0;
  }

  /// RayTree::kNone for a node that has not been added.
  std::uint32_t find(std::uint32_t node) const {
    return mPlaces.empty() ? RayTree::kNone : mPlaces[placeOf(node)].step;
  }

  /// \param step not RayTree::kNone; the node has not been added before
  void add(std::uint32_t node, std::uint32_t step) {
    if (2 * (mCount + 1) > mPlaces.size()) grow();
    mPlaces[placeOf(node)] = {node, step};
    ++mCount;
  }

 private:
  struct Place {
    std::uint32_t node = 0;
    std::uint32_t step = RayTree::kNone;
  };

  /// That of a node, or the free one that it would take.
  std::size_t placeOf(std::uint32_t node) const {
    const std::size_t mask = mPlaces.size() - 1;
    std::size_t place = (node * 0x9E3779B97F4A7C15ULL >> 32) & mask;
    while (mPlaces[place].step != RayTree::kNone && mPlaces[place].node != node) {
      place = (place + 1) & mask;
    }
    return place;
  }

  void grow() {
    std::vector<Place> before(mPlaces.empty() ? 1024 : 2 * mPlaces.size());
    before.swap(mPlaces);
    for (const Place& each : before) {
      if (each.step != RayTree::kNone) mPlaces[placeOf(each.node)] = each;
    }
  }

  std::vector<Place> mPlaces;  ///< as many as a power of two, half of them free
  std::size_t mCount = 0;
};

}  // namespace talvesk
