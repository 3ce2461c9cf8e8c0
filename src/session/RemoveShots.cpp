#include "session/RemoveShots.h"

#include "io/Survey.h"
#include "model/Mending.h"
#include "model/ModelLoss.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <utility>

namespace talvesk {
namespace {

template <typename List>
void removeFrom(List& list, const std::set<std::size_t>& removed) {
  List kept;
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (removed.count(i) == 0) kept.push_back(std::move(list[i]));
  }
  list = std::move(kept);
}

void removeMarks(refractionDataStructure::Interpretation& interpretation,
                 const std::set<std::size_t>& removed) {
  std::vector<refractionDataStructure::layerStruct> kept;
  for (auto& marks : interpretation.ttLayer) {
    if (removed.count(marks.shotID) != 0) continue;
    const auto before = static_cast<std::uint32_t>(
        std::distance(removed.begin(), removed.lower_bound(marks.shotID)));
    kept.push_back(std::move(marks));
    kept.back().shotID -= before;
  }
  interpretation.ttLayer = std::move(kept);
}

/// Stacks lose the shots that go; which traces are to be made anew is for the caller to see.
void removeMends(Recordings& recordings, const std::set<std::size_t>& removed) {
  removeFrom(recordings.mends, removed);
  removeFrom(recordings.originals, removed);
  for (ShotMends& mends : recordings.mends) {
    std::vector<std::int32_t> kept;
    for (const std::int32_t other : mends.stackedWith) {
      const auto set = static_cast<std::size_t>(other);
      if (removed.count(set) != 0) continue;
      kept.push_back(other - static_cast<std::int32_t>(
                                 std::distance(removed.begin(), removed.lower_bound(set))));
    }
    mends.stackedWith = std::move(kept);
  }
}

/// Of those shots whose stack has lost one.
void remakeStacks(const Recordings& before, const std::set<std::size_t>& removed,
                  TomoDocument& document) {
  std::size_t now = 0;
  for (std::size_t set = 0; set < before.mends.size(); ++set) {
    if (removed.count(set) != 0) continue;
    const std::vector<std::int32_t>& stack = before.mends[set].stackedWith;
    const bool lost = std::any_of(stack.begin(), stack.end(), [&](std::int32_t other) {
      return removed.count(static_cast<std::size_t>(other)) != 0;
    });
    if (lost) remakeMended(now, document);
    ++now;
  }
}

}  // namespace

void removeShots(const std::vector<std::size_t>& shots, Survey& survey) {
  TomoDocument& document = survey.document;
  std::set<std::size_t> removed;
  for (const std::size_t shot : shots) {
    if (shot < document.ttArray.size()) removed.insert(shot);
  }
  if (removed.empty()) return;
  const TomoDocument before = document;
  removeFrom(document.ttArray.edit(), removed);
  removeFrom(document.line.edit().shotPositions, removed);
  if (!document.recordings->traceSets.empty()) {
    Recordings& recordings = document.recordings.edit();
    removeFrom(recordings.traceSets, removed);
    removeFrom(recordings.notes, removed);
    removeMends(recordings, removed);
    for (auto* files :
         {&recordings.filenames, &recordings.filenames_DX, &recordings.filenames_SX}) {
      removeFrom(*files, removed);
    }
  }
  std::int32_t set = 0;
  for (TravelTime& record : document.ttArray.edit()) record.traceSetID = set++;
  remakeStacks(*before.recordings, removed, document);
  removeMarks(survey.interpretation.edit(), removed);
  forgetModel(modelLoss(before, document.surveyProfile()), document);
}

}  // namespace talvesk
