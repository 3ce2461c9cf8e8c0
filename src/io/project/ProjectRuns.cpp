#include "io/project/ProjectRuns.h"

#include "base/PlainText.h"
#include "grid/SurveyProfile.h"
#include "io/project/ProjectResult.h"
#include "model/Parameters.h"
#include "model/SmoothingType.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "model/TravelTime.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kLongestName = 200;  // bytes; a title, no story
constexpr double kSlowest = 0.001;         // m/s, as of grids
constexpr double kFastest = 1e9;

template <typename Values, typename Is>
bool all(const Values& values, Is is) {
  return std::all_of(values.begin(), values.end(), is);
}

bool isOnLine(double metres) {
  return std::fabs(metres) <= kLargestCoordinate;  // false for what is no number, too
}

bool isSize(const GridSize& size) {
  constexpr auto kNodes = parameters::kNodes.limits;
  return size.righe > 0 && size.col > 0 && size.nV >= 2 &&
         size.nV <= static_cast<std::uint32_t>(kNodes.most) && size.aLato > 0.0 &&
         isOnLine(size.aLato);
}

bool isSurface(const StoredRun& stored) {
  const std::vector<double>& x = stored.surfaceX;
  const bool ascends = std::adjacent_find(x.begin(), x.end(),
                                          [](double a, double b) { return !(a < b); }) == x.end();
  return x.size() >= 2 && x.size() == stored.surfaceZ.size() && ascends && all(x, isOnLine) &&
         all(stored.surfaceZ, isOnLine) && isOnLine(stored.run.xOffset);
}

bool areSettings(const StoredRun& stored) {
  const InversionRecord& record = stored.run.record;
  const auto isFit = [&](const FitRecord& fit) {
    return canHaveBeen(fit, stored.run.times.size());
  };
  return canHaveBeen(record) && record.smoothing <= parameters::kSmoothing.limits.most &&
         record.smoothingType <= static_cast<int>(SmoothingType::kRayBased) &&
         stored.fits.size() <= 1 && all(stored.fits, isFit) &&
         std::isfinite(stored.run.rmsPercent) && std::isfinite(stored.run.chi2) &&
         std::isfinite(stored.run.chi2All) && std::isfinite(stored.run.trustedRms);
}

bool areTimes(const SharedVector<double>& times) {
  return all(times,
             [](double time) { return time == kNoTime || (time >= 0.0 && std::isfinite(time)); });
}

/// What is wrong with a run; empty when nothing is.
Message faultOf(const StoredRun& stored) {
  const KeptRun& run = stored.run;
  const std::uint64_t cells = run.size.cellCount();
  if (cells != stored.velocities.size() || cells != run.coorcount.size() ||
      cells != run.hitCounts.size()) {
    return Message::tr("%1 rows of %2 columns do not go with %3 velocities")
        .arg(run.size.righe)
        .arg(run.size.col)
        .arg(stored.velocities.size());
  }
  if (!all(stored.velocities, [](double v) { return v >= kSlowest && v <= kFastest; })) {
    return Message::tr("a velocity is none that ground can have");
  }
  const auto isLength = [](double metres) { return metres >= 0.0 && std::isfinite(metres); };
  if (!isSize(run.size) || !isSurface(stored) || !all(run.coorcount, isLength)) {
    return Message::tr("its grid cannot be");
  }
  if (!areSettings(stored) || !all(run.times, areTimes)) {
    return Message::tr("its settings or figures cannot be");
  }
  return {};
}

KeptRun keptRunOf(StoredRun stored) {
  KeptRun run = std::move(stored.run);
  run.name = beginningOf(withoutControls(std::move(run.name)), kLongestName);
  run.when = beginningOf(withoutControls(std::move(run.when)), kLongestName);
  run.surface.build(stored.surfaceX, stored.surfaceZ);
  std::vector<double>& slowness = run.slowness.edit();
  for (const double velocity : stored.velocities) slowness.push_back(1.0 / velocity);
  if (!stored.fits.empty()) run.record.fit = stored.fits.front();
  return run;
}

}  // namespace

std::optional<RunsMember> runsOf(const TomoDocument& document) {
  if (document.runs.empty()) return std::nullopt;
  RunsMember member;
  for (const KeptRun& run : document.runs) {
    StoredRun& stored = member.runs.emplace_back();
    stored.run = run;
    if (run.record.fit) stored.fits.push_back(*run.record.fit);
    stored.surfaceX = run.surface.X();
    stored.surfaceZ = run.surface.Y();
    for (const double slowness : run.slowness) stored.velocities.push_back(1.0 / slowness);
  }
  return member;
}

void installRuns(RunsMember member, TomoDocument& document, std::vector<Message>& repairs) {
  std::set<std::uint32_t> taken;
  std::vector<KeptRun> runs;
  std::size_t room = kMostRunNumbers;
  for (StoredRun& stored : member.runs) {
    Message fault = faultOf(stored);
    const std::uint32_t number = stored.run.number;
    if (fault.empty() && (number == 0 || taken.count(number) > 0)) {
      fault = Message::tr("its number is 0 or that of another");
    }
    const std::size_t numbers = stored.run.numbers() + stored.velocities.size();
    if (fault.empty() && (runs.size() >= kMostRuns || (numbers > room && !runs.empty()))) {
      fault = Message::tr("there are more than can be kept");
    }
    if (!fault.empty()) {
      repairs.push_back(
          Message::tr("inversion run %1 is left out: %2").arg(number).arg(std::move(fault)));
      continue;
    }
    room -= std::min(room, numbers);
    taken.insert(number);
    runs.push_back(keptRunOf(std::move(stored)));
  }
  if (runs.empty()) return;
  document.runs = std::move(runs);
  const auto shown = shownRun(document);
  const auto& last = document.result->lastInversion;
  if (!shown || !last || last->fit) return;
  const std::optional<FitRecord>& fit = document.runs[*shown].record.fit;
  if (!fit || !canHaveBeen(*fit, document.ttArray.size())) return;
  document.result.edit().lastInversion->fit = fit;
}

}  // namespace talvesk
