#include "io/PickPairs.h"

#include <algorithm>

namespace talvesk {
namespace {

/// Cells of the table that a list is spread out to: as many always, and more for a long list.
constexpr std::size_t kCellsAlways = std::size_t{1} << 20;
constexpr std::size_t kCellsPerPair = 64;

bool affordable(const PickList& list) {
  const std::size_t most = std::max(kCellsAlways, kCellsPerPair * list.pairs.size());
  return list.shots.empty() || list.geophones.size() <= most / list.shots.size();
}

}  // namespace

bool takePickList(const PickList& list, TravelTimeData& data) {
  if (!affordable(list)) return false;
  std::vector<std::vector<double>> times(list.shots.size(),
                                         std::vector<double>(list.geophones.size(), kNoTime));
  std::vector<std::vector<double>> errors(list.shots.size(),
                                          std::vector<double>(list.geophones.size(), 0.0));
  std::size_t repeated = 0;
  for (const PickPair& pair : list.pairs) {
    if (!hasPick(pair.time)) continue;
    double& time = times[pair.shot][pair.geophone];
    if (hasPick(time)) {
      ++repeated;
      continue;
    }
    time = pair.time;
    errors[pair.shot][pair.geophone] = pair.error;
  }
  if (repeated > 0) {
    data.warnings.push_back(
        Message::tr("%1 times are of a shot and geophone that had one already; the first of them "
                    "counts")
            .arg(repeated));
  }
  data.strings = {list.geophones};
  for (std::size_t i = 0; i < list.shots.size(); ++i) {
    TravelTime& record = data.records.emplace_back();
    record.shotPos2d = list.shots[i];
    record.traceSetID = static_cast<std::int32_t>(i);
    record.ttCalcolati = std::vector<double>(times[i].size(), kNoTime);
    record.ttMisurati = std::move(times[i]);
    for (std::size_t j = 0; j < errors[i].size(); ++j) record.setError(j, errors[i][j]);
  }
  return true;
}

}  // namespace talvesk
