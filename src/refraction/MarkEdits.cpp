#include "refraction/MarkEdits.h"

#include "model/TravelTime.h"
#include "refraction/LinearFit.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <tuple>
#include <utility>

namespace talvesk {

using namespace refractionDataStructure;

MarksChange::MarksChange(const std::vector<layerStruct>& before,
                         const std::vector<layerStruct>& after) {
  for (std::size_t shot = 0; shot < std::min(before.size(), after.size()); ++shot) {
    const auto number = static_cast<std::uint32_t>(shot);
    if (before[shot].enabled != after[shot].enabled) mEnabled.push_back(number);
    const std::size_t traces = std::min(before[shot].layer.size(), after[shot].layer.size());
    for (std::size_t i = 0; i < traces; ++i) {
      const std::uint32_t from = before[shot].layer[i];
      const std::uint32_t to = after[shot].layer[i];
      if (from != to) mLayers.push_back({{number, static_cast<std::uint32_t>(i)}, from, to});
    }
  }
}

void MarksChange::redo(std::vector<layerStruct>& marks) const {
  for (const Layer& change : mLayers) marks[change.at.shot].layer[change.at.trace] = change.after;
  for (const std::uint32_t shot : mEnabled) marks[shot].enabled = !marks[shot].enabled;
}

void MarksChange::undo(std::vector<layerStruct>& marks) const {
  for (const Layer& change : mLayers) marks[change.at.shot].layer[change.at.trace] = change.before;
  for (const std::uint32_t shot : mEnabled) marks[shot].enabled = !marks[shot].enabled;
}

void assignLayer(const std::vector<ShotArrivals>& shots, const std::vector<TraceRef>& traces,
                 std::uint32_t layer, std::vector<layerStruct>& marks) {
  for (const TraceRef& at : traces) {
    if (at.shot >= shots.size() || at.shot >= marks.size()) continue;
    const auto& times = shots[at.shot].times;
    if (at.trace >= times.size() || !hasPick(times[at.trace])) continue;
    if (at.trace < marks[at.shot].layer.size()) marks[at.shot].layer[at.trace] = layer;
  }
}

std::optional<BranchReading> readBranch(const std::vector<ShotArrivals>& shots,
                                        const std::vector<TraceRef>& traces, std::uint32_t layer,
                                        const std::vector<layerStruct>& marks) {
  if (layer == kNoLayer) return std::nullopt;
  std::map<std::pair<std::uint32_t, Side>, std::size_t> votes;
  for (const TraceRef& at : traces) {
    if (at.shot >= shots.size() || at.shot >= marks.size()) continue;
    if (at.trace >= shots[at.shot].times.size()) continue;
    for (const Side side : {Side::kRight, Side::kLeft}) {
      if (shots[at.shot].onSide(at.trace, side)) ++votes[{at.shot, side}];
    }
  }
  if (votes.empty()) return std::nullopt;
  const auto most = std::max_element(
      votes.begin(), votes.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
  BranchReading reading;
  std::tie(reading.shot, reading.side) = most->first;
  reading.layer = layer;
  std::vector<TraceRef> own;
  std::copy_if(traces.begin(), traces.end(), std::back_inserter(own),
               [&](const TraceRef& at) { return at.shot == reading.shot; });
  std::vector<layerStruct> one(marks.begin() + reading.shot, marks.begin() + reading.shot + 1);
  for (TraceRef& at : own) at.shot = 0;
  const std::vector<ShotArrivals> shot = {shots[reading.shot]};
  assignLayer(shot, own, layer, one);
  const Branch branch = branchOf(shot[0], one[0], layer, reading.side);
  reading.picks = branch.x.size();
  if (reading.picks < 2) return reading;
  const double velocity = std::fabs(1.0 / leastSquares(branch.x, branch.times).slope);
  if (std::isfinite(velocity)) reading.velocity = velocity;
  return reading;
}

}  // namespace talvesk
