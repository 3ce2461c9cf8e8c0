#include "tomo/RayTree.h"

#include <algorithm>

namespace talvesk {

void RayTree::clear() {
  branches.clear();
  order.clear();
  cells.clear();
  lengths.clear();
  nodes.clear();
}

std::uint32_t RayTree::rayOf(std::uint32_t step, std::size_t traced) const {
  // Where rays without steps of their own begin, too, the last one has them.
  const auto after = std::upper_bound(
      order.begin(), order.begin() + static_cast<std::ptrdiff_t>(traced), step,
      [&](std::uint32_t number, std::uint32_t ray) { return number < branches[ray].first; });
  return *(after - 1);
}

void RayTree::runsOf(std::size_t ray, std::vector<Run>& runs) const {
  runs.clear();
  const Branch* branch = &branches[ray];
  for (std::uint32_t end = branch->end;;) {
    if (branch->first < end) runs.push_back({branch->first, end});
    if (branch->onto == kNone) break;
    end = branch->joins + 1;
    branch = &branches[branch->onto];
  }
  std::reverse(runs.begin(), runs.end());
}

std::vector<std::uint32_t> RayTree::nodesOf(std::size_t ray, std::vector<Run>& runs) const {
  std::vector<std::uint32_t> all;
  if (branches[ray].root == kNoNode) return all;
  runsOf(ray, runs);
  std::size_t count = 1;
  for (const Run& run : runs) count += run.end - run.first;
  all.reserve(count);
  all.push_back(branches[ray].root);
  for (const Run& run : runs) {
    all.insert(all.end(), nodes.begin() + run.first, nodes.begin() + run.end);
  }
  return all;
}

double RayTree::sumOf(std::size_t ray, const std::vector<double>& sums) const {
  const Branch& branch = branches[ray];
  if (branch.first < branch.end) return sums[branch.end - 1];
  return branch.onto == kNone ? 0.0 : sums[branch.joins];
}

}  // namespace talvesk
