#include "session/RemoveShots.h"

#include "io/Survey.h"
#include "model/ModelLoss.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"

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
    for (auto* files :
         {&recordings.filenames, &recordings.filenames_DX, &recordings.filenames_SX}) {
      removeFrom(*files, removed);
    }
  }
  std::int32_t set = 0;
  for (TravelTime& record : document.ttArray.edit()) record.traceSetID = set++;
  removeMarks(survey.interpretation.edit(), removed);
  forgetModel(modelLoss(before, document.surveyProfile()), document);
}

}  // namespace talvesk
