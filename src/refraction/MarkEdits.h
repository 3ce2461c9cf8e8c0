#pragma once

#include "model/RefractionDataStructure.h"
#include "refraction/Branches.h"
#include "refraction/ShotArrivals.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

/// A trace of the survey.
struct TraceRef {
  std::uint32_t shot = 0;   ///< from 0
  std::uint32_t trace = 0;  ///< of the shot, from 0
};
inline bool operator==(const TraceRef& a, const TraceRef& b) {
  return a.shot == b.shot && a.trace == b.trace;
}
inline bool operator!=(const TraceRef& a, const TraceRef& b) {
  return !(a == b);
}

/// What turns one state of the marks into another, and back: what differs and nothing else. The
/// states are of the same shots and traces.
class MarksChange {
 public:
  MarksChange(const std::vector<refractionDataStructure::layerStruct>& before,
              const std::vector<refractionDataStructure::layerStruct>& after);

  bool isEmpty() const { return mLayers.empty() && mEnabled.empty(); }
  void redo(std::vector<refractionDataStructure::layerStruct>& marks) const;
  void undo(std::vector<refractionDataStructure::layerStruct>& marks) const;

 private:
  struct Layer {
    TraceRef at;
    std::uint32_t before;
    std::uint32_t after;
  };
  std::vector<Layer> mLayers;
  std::vector<std::uint32_t> mEnabled;  ///< shots that are switched
};

/// Assigns the traces that have a pick to a layer.
void assignLayer(const std::vector<ShotArrivals>& shots, const std::vector<TraceRef>& traces,
                 std::uint32_t layer, std::vector<refractionDataStructure::layerStruct>& marks);

/// The branch that a user is at work on.
struct BranchReading {
  std::uint32_t shot = 0;
  Side side = Side::kRight;
  std::uint32_t layer = 0;
  std::size_t picks = 0;
  std::optional<double> velocity;  ///< apparent, m/s; none for fewer than two picks at different x
};

/// The branch to which most of the traces belong once they are assigned to the layer; none without
/// traces, or for no layer.
std::optional<BranchReading> readBranch(
    const std::vector<ShotArrivals>& shots, const std::vector<TraceRef>& traces,
    std::uint32_t layer, const std::vector<refractionDataStructure::layerStruct>& marks);

}  // namespace talvesk
