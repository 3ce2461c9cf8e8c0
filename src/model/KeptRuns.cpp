#include "model/KeptRuns.h"

#include "base/Fingerprint.h"
#include "model/GroundModel.h"
#include "model/PickFingerprint.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

std::size_t numbersOf(const std::vector<KeptRun>& runs) {
  std::size_t numbers = 0;
  for (const KeptRun& run : runs) numbers += run.numbers();
  return numbers;
}

void take(const Point2D& point, Fingerprint& positions) {
  positions.take(point.x);
  positions.take(point.z);
}

}  // namespace

Message KeptRun::title() const {
  return name.empty() ? Message::tr("Run %1").arg(number) : Message(name);
}

SectionMisfit KeptRun::misfit() const {
  return record.sectionHistory.empty() ? SectionMisfit() : record.sectionHistory.back();
}

std::size_t KeptRun::numbers() const {
  std::size_t count = slowness.size() + coorcount.size() + hitCounts.size();
  for (const SharedVector<double>& shot : times) count += shot.size();
  return count;
}

std::vector<Message> addRun(KeptRun run, std::vector<KeptRun>& runs) {
  std::uint32_t last = 0;
  for (const KeptRun& each : runs) last = std::max(last, each.number);
  run.number = last + 1;
  const std::size_t room = kMostRunNumbers - std::min(kMostRunNumbers, run.numbers());
  std::vector<Message> gone;
  while (!runs.empty() && (runs.size() >= kMostRuns || numbersOf(runs) > room)) {
    auto oldest = std::find_if(runs.begin(), runs.end(),
                               [](const KeptRun& each) { return each.name.empty(); });
    if (oldest == runs.end()) oldest = runs.begin();
    gone.push_back(oldest->title());
    runs.erase(oldest);
  }
  runs.push_back(std::move(run));
  return gone;
}

std::optional<std::size_t> findRun(const std::vector<KeptRun>& runs, const std::string& called) {
  const auto last = [&](auto isIt) -> std::optional<std::size_t> {
    for (std::size_t i = runs.size(); i-- > 0;) {
      if (isIt(runs[i])) return i;
    }
    return std::nullopt;
  };
  const auto byNumber =
      last([&](const KeptRun& run) { return std::to_string(run.number) == called; });
  if (byNumber) return byNumber;
  return last([&](const KeptRun& run) { return !called.empty() && run.title() == called; });
}

std::optional<std::size_t> shownRun(const TomoDocument& document) {
  const Grid* grid = document.model->grid.get();
  if (grid == nullptr || !document.result->has_tomographic_info) return std::nullopt;
  for (std::size_t i = document.runs.size(); i-- > 0;) {
    const KeptRun& run = document.runs[i];
    if (sameCells(run.size, grid->geometry().size()) && run.xOffset == document.model->xOffset &&
        *run.slowness == grid->slownesses()) {
      return i;
    }
  }
  return std::nullopt;
}

bool sameCells(const GridSize& a, const GridSize& b) {
  return a.righe == b.righe && a.col == b.col && a.nV == b.nV && a.aLato == b.aLato;
}

std::uint64_t fingerprintOfPositions(const TomoDocument& document) {
  Fingerprint positions;
  for (const auto& string : document.line->goephonesStringSet) {
    positions.take(std::uint64_t{string.size()});
    for (const Point2D& geophone : string) take(geophone, positions);
  }
  for (const TravelTime& record : document.ttArray) {
    positions.take(static_cast<std::uint64_t>(record.indexStesa));
    take(record.shotPos2d, positions);
  }
  return positions.value();
}

RunChanges changesSince(const KeptRun& run, const TomoDocument& document) {
  RunChanges changes;
  changes.picks = run.record.picks != fingerprintOfPicks(document.ttArray);
  changes.positions = run.positions != fingerprintOfPositions(document);
  const SurveyProfile profile = document.surveyProfile();
  const Splines::LinearSpline surface = profile.surface();
  changes.ground = !profile.hasGeometry() || run.xOffset != profile.xOffset ||
                   run.surface.X() != surface.X() || run.surface.Y() != surface.Y();
  return changes;
}

}  // namespace talvesk
