#pragma once

#include "grid/GridGraph.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// The rays of one shot. They run together towards the shot, so what a ray shares with one traced
/// before it stands once: the steps of all are a tree, in flat lists, each ray's own ones together.
struct RayTree {
  static constexpr std::uint32_t kNone = 0xFFFFFFFFU;

  /// A ray: it goes along another one as far as a step of that one, then its own steps.
  struct Branch {
    std::uint32_t onto = kNone;    ///< the other ray, traced before; kNone: all steps are its own
    std::uint32_t joins = 0;       ///< the last step that it shares with the other one
    std::uint32_t first = 0;       ///< its own steps ..
    std::uint32_t end = 0;         ///< .. up to here
    std::uint32_t root = kNoNode;  ///< its first node, the shot; kNoNode: no ray at all
  };
  /// Steps that follow each other, first to end - 1.
  struct Run {
    std::uint32_t first;
    std::uint32_t end;
  };

  std::vector<Branch> branches;      ///< per ray
  std::vector<std::uint32_t> order;  ///< rays as they were traced, each after what it goes along
  std::vector<std::uint32_t> cells;  ///< per step: the cell that it crosses
  std::vector<double> lengths;       ///< per step, metres
  std::vector<std::uint32_t> nodes;  ///< per step: the node that it leads to

  void clear();

  /// The ray whose own a step is. \param traced so many of `order` have their steps
  std::uint32_t rayOf(std::uint32_t step, std::size_t traced) const;

  /// Sets `runs` to the steps of a ray from the shot to its receiver.
  void runsOf(std::size_t ray, std::vector<Run>& runs) const;

  /// The nodes of a ray, shot and receiver included; none where there is no ray.
  std::vector<std::uint32_t> nodesOf(std::size_t ray, std::vector<Run>& runs) const;

  /// Sums of a number per step along the rays, from the shot up to every step: `sums` gets them by
  /// step. They are added as they would be along each ray by itself.
  template <typename OfStep>
  void sumAlong(OfStep ofStep, std::vector<double>& sums) const {
    sums.resize(cells.size());
    for (const std::uint32_t ray : order) {
      const Branch& branch = branches[ray];
      double sum = branch.onto == kNone ? 0.0 : sums[branch.joins];
      for (std::uint32_t step = branch.first; step < branch.end; ++step) {
        sum += ofStep(step);
        sums[step] = sum;
      }
    }
  }
  /// The sum at the end of a ray.
  double sumOf(std::size_t ray, const std::vector<double>& sums) const;
};

}  // namespace talvesk
