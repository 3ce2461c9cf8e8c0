#include "doctor/SurveyView.h"

#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <system_error>
#include <thread>
#include <utility>

namespace talvesk::doctor {
namespace {

bool isDisabled(const TomoDocument& document, std::size_t shot) {
  const auto set = static_cast<std::size_t>(document.ttArray[shot].traceSetID);
  const std::vector<ShotMends>& mends = document.recordings->mends;
  return set < mends.size() && mends[set].disabled;
}

/// The arrivals of all shots, on as many threads as the machine has processors: each shot has its
/// own place for the result.
void findAllOnsets(std::vector<ShotView>& shots, const std::function<bool()>& goOn) {
  std::atomic<std::size_t> next{0};
  std::atomic<bool> stopped{false};
  const auto work = [&](bool asks) {
    while (!stopped) {
      if (asks && goOn && !goOn()) stopped = true;
      const std::size_t i = next++;
      if (stopped || i >= shots.size()) return;
      shots[i].onsets = findOnsets(*shots[i].traces);
      shots[i].station = findSourceStation(shots[i].onsets);
    }
  };
  std::vector<std::thread> pool;
  const unsigned threads = std::max(std::thread::hardware_concurrency(), 1U);
  try {
    for (unsigned t = 1; t < threads && t < shots.size(); ++t) pool.emplace_back(work, false);
  } catch (const std::system_error&) {
    // The system gives no more threads: those that run do all the work.
  }
  work(true);
  for (std::thread& thread : pool) thread.join();
  for (ShotView& shot : shots) shot.onsets.resize(shot.traces->size());
}

}  // namespace

SurveyView viewOf(const TomoDocument& document, const std::function<bool()>& goOn) {
  SurveyView view;
  view.document = &document;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    const TraceSet* traces = document.tracesOf(record);
    if (traces == nullptr || traces->empty() || isDisabled(document, i)) continue;
    ShotView shot;
    shot.shot = i;
    shot.traces = traces;
    shot.source = record.shotPos2d;
    shot.geophones = document.receiversOf(record);
    shot.string = static_cast<std::size_t>(std::max(0, record.indexStesa));
    shot.placed = record.indexStesa >= 0 && shot.geophones.size() == traces->size() &&
                  shot.string < document.line->goephonesStringSet.size() &&
                  std::all_of(shot.geophones.begin(), shot.geophones.end(), isFinite) &&
                  isFinite(shot.source);
    shot.name = std::filesystem::path(shotFile(document, i)).stem().string();
    view.shots.push_back(std::move(shot));
  }
  findAllOnsets(view.shots, goOn);
  return view;
}

double spacingOf(const std::vector<Point2D>& geophones) {
  std::vector<double> x;
  for (const Point2D& geophone : geophones) x.push_back(geophone.x);
  std::sort(x.begin(), x.end());
  return medianGap(x);
}

}  // namespace talvesk::doctor
