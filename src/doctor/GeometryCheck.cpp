#include "doctor/GeometryCheck.h"

#include "doctor/Placing.h"

#include <cstddef>
#include <map>

namespace talvesk::doctor {

std::vector<Finding> checkGeometry(const SurveyView& view) {
  std::vector<Finding> findings;
  std::vector<const ShotView*> laid;
  std::map<std::size_t, std::vector<const ShotView*>> heaped;  // by number of channels
  for (const ShotView& shot : view.shots) {
    if (!shot.placed || shot.geophones.size() < 3) continue;
    if (isHeap(shot.geophones)) {
      heaped[shot.geophones.size()].push_back(&shot);
    } else {
      laid.push_back(&shot);
    }
  }
  for (const auto& [channels, shots] : heaped) checkHeapedShots(shots, findings);
  checkLaidShots(laid, findings);
  return findings;
}

}  // namespace talvesk::doctor
