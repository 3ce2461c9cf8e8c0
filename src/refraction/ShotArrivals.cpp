#include "refraction/ShotArrivals.h"

#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

using namespace refractionDataStructure;

std::vector<ShotArrivals> shotArrivals(const TomoDocument& document) {
  std::vector<ShotArrivals> shots;
  shots.reserve(document.ttArray.size());
  for (const TravelTime& record : document.ttArray) {
    ShotArrivals shot;
    shot.shot = record.shotPos2d;
    shot.receivers = document.receiversOf(record);
    shot.times = record.ttMisurati;
    const std::size_t used = std::min(shot.receivers.size(), shot.times.size());
    shot.receivers.resize(used);
    shot.times.resize(used);
    for (std::size_t i = 0; i < used; ++i) {
      const bool known = hasPick(shot.times[i]) && std::isfinite(shot.times[i]) &&
                         isFinite(shot.receivers[i]) && std::isfinite(shot.shot.x);
      if (!known) shot.times[i] = kUnpicked;
    }
    shots.push_back(std::move(shot));
  }
  return shots;
}

const layerStruct* marksOf(const std::vector<layerStruct>& marks, std::size_t shot) {
  // Usually record by record; a file may have them in another order.
  if (shot < marks.size() && marks[shot].shotID == shot) return &marks[shot];
  const auto found = std::find_if(marks.begin(), marks.end(),
                                  [shot](const layerStruct& m) { return m.shotID == shot; });
  return found == marks.end() ? nullptr : &*found;
}

std::uint32_t layerOf(const layerStruct& marks, std::size_t trace) {
  return trace < marks.layer.size() ? marks.layer[trace] : kNoLayer;
}

bool hasMarks(const std::vector<layerStruct>& marks) {
  return std::any_of(marks.begin(), marks.end(), [](const layerStruct& m) {
    return std::any_of(m.layer.begin(), m.layer.end(),
                       [](std::uint32_t layer) { return layer != kNoLayer; });
  });
}

bool fitToSurvey(const TomoDocument& document, Interpretation& interpretation) {
  const std::vector<layerStruct> before = std::move(interpretation.ttLayer);
  interpretation.ttLayer.clear();
  std::vector<layerStruct> lost = before;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const std::size_t traces = document.ttArray[i].ttMisurati.size();
    layerStruct fresh;
    fresh.shotID = static_cast<std::uint32_t>(i);
    fresh.layer.assign(traces, kNoLayer);
    fresh.trasla.assign(traces, 0.0);
    const layerStruct* kept = marksOf(before, i);
    if (kept != nullptr && kept->layer.size() == traces) {
      fresh.layer = kept->layer;
      for (std::uint32_t& layer : fresh.layer) layer = layer > kLastLayer ? kNoLayer : layer;
      if (kept->trasla.size() == traces) fresh.trasla = kept->trasla;
      fresh.enabled = kept->enabled;
      lost[static_cast<std::size_t>(kept - before.data())].layer.clear();
    }
    interpretation.ttLayer.push_back(std::move(fresh));
  }
  if (!hasMarks(lost)) return false;
  forgetResults(interpretation);
  return true;
}

void forgetMarks(std::size_t shot, Interpretation& interpretation) {
  if (shot < interpretation.ttLayer.size()) interpretation.ttLayer[shot].layer.clear();
}

void forgetResults(Interpretation& interpretation) {
  interpretation.phnt_A.clear();
  interpretation.phnt_R.clear();
  interpretation.refractData = {};
  clearShifts(interpretation.ttLayer);
}

void clearShifts(std::vector<layerStruct>& marks) {
  for (layerStruct& own : marks) own.trasla.assign(own.layer.size(), 0.0);
}

}  // namespace talvesk
