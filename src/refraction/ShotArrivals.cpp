#include "refraction/ShotArrivals.h"

#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

std::vector<Point2D> receiversOf(const TomoDocument& document, const TravelTime& record) {
  const auto& strings = document.goephonesStringSet;
  const auto string = static_cast<std::size_t>(record.indexStesa);
  if (record.indexStesa >= 0 && string < strings.size() && !strings[string].empty()) {
    return strings[string];
  }
  std::vector<Point2D> receivers;
  const auto set = static_cast<std::size_t>(record.traceSetID);
  if (record.traceSetID >= 0 && set < document.traceSets.size()) {
    for (const Trace& trace : document.traceSets[set]) receivers.push_back(trace.receiverPosition);
  }
  return receivers;
}

bool isFinite(const Point2D& point) {
  return std::isfinite(point.x) && std::isfinite(point.z);
}

}  // namespace

std::vector<ShotArrivals> shotArrivals(const TomoDocument& document) {
  std::vector<ShotArrivals> shots;
  shots.reserve(document.ttArray.size());
  for (const TravelTime& record : document.ttArray) {
    ShotArrivals shot;
    shot.shot = record.shotPos2d;
    shot.receivers = receiversOf(document, record);
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

void forgetResults(Interpretation& interpretation) {
  interpretation.phnt_A.clear();
  interpretation.phnt_R.clear();
  interpretation.refractData = {};
  for (layerStruct& own : interpretation.ttLayer) own.trasla.assign(own.layer.size(), 0.0);
}

}  // namespace talvesk
