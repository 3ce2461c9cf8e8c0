#include "doctor/SurveyView.h"

#include "base/RunForEach.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <numeric>
#include <utility>

namespace talvesk::doctor {
namespace {

std::vector<bool> killedTraces(const ShotMends& mends, std::size_t count) {
  std::vector<bool> killed;
  for (std::size_t t = 0; t < count; ++t) killed.push_back(mendOf(mends, t).killed);
  return killed;
}

void setOrder(ShotView& shot) {
  const std::size_t count = shot.traces->size();
  if (shot.placed && !isHeap(shot.geophones)) {
    shot.order = alongLine(shot.geophones);
  } else {
    shot.order.resize(count);
    std::iota(shot.order.begin(), shot.order.end(), std::size_t{0});
  }
  shot.rank.resize(count);
  for (std::size_t i = 0; i < count; ++i) shot.rank[shot.order[i]] = i;
}

}  // namespace

SurveyView viewOf(const TomoDocument& document, const std::function<bool()>& goOn) {
  SurveyView view;
  view.document = &document;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    const TraceSet* traces = document.tracesOf(record);
    const ShotMends& mends = mendsOfRecord(document, static_cast<std::int32_t>(i));
    if (traces == nullptr || traces->empty() || mends.disabled) continue;
    ShotView shot;
    shot.shot = i;
    shot.traces = traces;
    shot.killed = killedTraces(mends, traces->size());
    shot.source = record.shotPos2d;
    shot.geophones = document.receiversOf(record);
    shot.string = static_cast<std::size_t>(std::max(0, record.indexStesa));
    shot.placed = record.indexStesa >= 0 && shot.geophones.size() == traces->size() &&
                  shot.string < document.line->goephonesStringSet.size() &&
                  std::all_of(shot.geophones.begin(), shot.geophones.end(), isFinite) &&
                  isFinite(shot.source);
    setOrder(shot);
    shot.name = std::filesystem::path(shotFile(document, i)).stem().string();
    view.shots.push_back(std::move(shot));
  }
  for (ShotView& shot : view.shots) shot.onsets.resize(shot.traces->size());
  const auto listen = [&](std::size_t i) {
    view.shots[i].onsets = findOnsets(*view.shots[i].traces);
    view.shots[i].station = findSourceStation(view.shots[i].onsets);
  };
  runForEach(view.shots.size(), listen, goOn);
  return view;
}

}  // namespace talvesk::doctor
