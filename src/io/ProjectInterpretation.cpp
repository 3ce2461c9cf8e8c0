#include "io/ProjectAssembly.h"
#include "refraction/ReciprocalMethod.h"

#include <algorithm>

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

bool hangsTogether(const phantom& curve) {
  const std::size_t n = curve.points.size();
  return curve.times.size() == n && curve.enabled.size() == n;
}

bool hangsTogether(const computedData& data) {
  const std::size_t n = data.x.size();
  const auto perReceiver = [n](const std::vector<double>& values) {
    return values.empty() || values.size() == n;
  };
  const auto family = [n](const std::vector<double>& values) {
    return values.empty() || values.size() == kXYFamily.size() * n;
  };
  return perReceiver(data.tG) && perReceiver(data.tV) && family(data.tGs) && family(data.tVs) &&
         perReceiver(data.elevation) && perReceiver(data.velocity) && perReceiver(data.depth);
}

template <typename Record>
bool allHangTogether(const std::vector<Record>& records) {
  constexpr std::size_t kRefractors = kLastLayer - 1;
  return records.size() <= kRefractors &&
         std::all_of(records.begin(), records.end(),
                     [](const Record& record) { return hangsTogether(record); });
}

}  // namespace

Status checkInterpretation(const TomoDocument& document, Interpretation& interpretation) {
  const Status status = checkLayers(document, interpretation.ttLayer);
  if (!status.ok()) return status;
  if (!allHangTogether(interpretation.phnt_A) || !allHangTogether(interpretation.phnt_R) ||
      !allHangTogether(interpretation.refractData.cData)) {
    interpretation.phnt_A.clear();
    interpretation.phnt_R.clear();
    interpretation.refractData = {};
  }
  return {};
}

}  // namespace talvesk
