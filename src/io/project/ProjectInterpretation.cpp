#include "io/project/ProjectAssembly.h"
#include "io/project/ProjectRepair.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

using namespace refractionDataStructure;

Status checkLayers(const TomoDocument& document, std::vector<layerStruct>& layers) {
  for (layerStruct& shot : layers) {
    if (shot.shotID >= document.ttArray.size()) {
      return Status::failure(Message::tr("layers belong to shot %1, but %2 shots exist")
                                 .arg(shot.shotID)
                                 .arg(document.ttArray.size()));
    }
    const auto exists = [](std::uint32_t layer) { return layer <= kLastLayer; };
    if (!std::all_of(shot.layer.begin(), shot.layer.end(), exists)) {
      return Status::failure(Message::tr("an arrival belongs to a layer that does not exist"));
    }
    const std::size_t traces = document.ttArray[shot.shotID].ttMisurati.size();
    shot.layer.resize(traces, kNoLayer);
    shot.trasla.resize(traces, 0.0);
  }
  return {};
}

/// All that may be unknown of a profile.
template <typename Change>
void forEachResult(processingData& results, Change change) {
  change(results.v1);
  const auto changeAll = [&change](std::vector<double>& values) {
    std::for_each(values.begin(), values.end(), change);
  };
  changeAll(results.v2);
  changeAll(results.v3);
  for (computedData& refractor : results.cData) {
    for (auto* values : {&refractor.tG, &refractor.tV, &refractor.tGs, &refractor.tVs,
                         &refractor.velocity, &refractor.depth}) {
      changeAll(*values);
    }
  }
}

}  // namespace

void putSigns(Interpretation& interpretation) {
  forEachResult(interpretation.refractData, [](double& value) {
    if (!std::isfinite(value)) value = kNotKnown;
  });
}

void takeSigns(Interpretation& interpretation) {
  forEachResult(interpretation.refractData, [](double& value) {
    if (value == kNotKnown) value = std::numeric_limits<double>::quiet_NaN();
  });
}

Status checkInterpretation(const TomoDocument& document, Interpretation& interpretation,
                           std::vector<Message>& repairs) {
  const Status status = checkLayers(document, interpretation.ttLayer);
  if (status.ok()) repairResults(interpretation, repairs);
  return status;
}

}  // namespace talvesk
