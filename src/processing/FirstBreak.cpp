#include "processing/FirstBreak.h"

#include "base/Console.h"
#include "base/TextNumber.h"
#include "model/Mending.h"
#include "model/Parameters.h"
#include "model/SWavePair.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <new>
#include <numeric>
#include <ostream>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace talvesk {
namespace {

constexpr double kSlowest = parameters::kSlowestPick.value;
constexpr double kFastest = parameters::kFastestPick.value;

/// As users count, from 1.
Message shotName(std::int32_t shot) {
  return Message::tr("shot %1").arg(shot + std::int64_t{1});
}

double meanOf(Span<double> samples) {
  if (samples.empty()) return 0.0;
  double sum = 0.0;
  for (const double sample : samples) sum += sample;
  return sum / static_cast<double>(samples.size());
}

std::int32_t detect(const Trace& trace, bool useFiltered) {
  const Span<double> signal = useFiltered ? trace.filtered : trace.samples;
  return characteristicPick(signal, meanOf(signal), kPickWindow);
}

TravelTime* recordOf(TomoDocument& document, std::int32_t shot) {
  if (shot < 0 || static_cast<std::size_t>(shot) >= document.ttArray.size()) return nullptr;
  return &document.ttArray.edit()[static_cast<std::size_t>(shot)];
}

/// The traces that belong to a shot's times; null when there are none.
const TraceSet* tracesOf(const TomoDocument& document, std::int32_t shot) {
  if (shot < 0 || static_cast<std::size_t>(shot) >= document.ttArray.size()) return nullptr;
  return document.tracesOf(document.ttArray[static_cast<std::size_t>(shot)]);
}

/// Samples of pairs are made anew from their recordings; those of others are left alone.
void subtractPairs(TomoDocument& document, std::int32_t shot) {
  const TraceSet* traces = tracesOf(document, shot);
  const auto isPair = [](const Trace& trace) { return trace.waveKind == Trace::kSWavePair; };
  if (traces == nullptr || std::none_of(traces->begin(), traces->end(), isPair)) return;
  const TravelTime& record = document.ttArray[static_cast<std::size_t>(shot)];
  for (Trace& trace : *document.editTracesOf(record)) subtractRecordings(trace);
}

void store(TravelTime& record, const TraceSet& traces, std::size_t trace, std::int32_t index) {
  std::vector<double>& times = record.ttMisurati.edit();
  if (times.size() < traces.size()) times.resize(traces.size(), kUnpicked);
  times[trace] = static_cast<std::uint32_t>(index) * traces[trace].sampleInterval;
}

/// Indices of the offsets, nearest to the shot first. An offset that is not known is last.
std::vector<std::size_t> outward(const std::vector<double>& offsets) {
  std::vector<std::size_t> order(offsets.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  const auto distance = [&](std::size_t i) {
    return std::isnan(offsets[i]) ? std::numeric_limits<double>::infinity() : std::fabs(offsets[i]);
  };
  std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return distance(a) != distance(b) ? distance(a) < distance(b) : a > b;
  });
  return order;
}

void removeWhatWasNotFound(TravelTime& record, const std::vector<std::int32_t>& indices) {
  for (std::size_t t = 0; t < indices.size(); ++t) {
    if (indices[t] < 0) record.ttMisurati.edit()[t] = kNoTime;
  }
}

/// Stores what the detector found in a shot and screens it.
Status takePicks(TomoDocument& document, std::int32_t shot,
                 const std::vector<std::int32_t>& indices) {
  const TraceSet* traces = tracesOf(document, shot);
  if (traces == nullptr) {
    return Status::failure(Message::tr("%1 has no traces to pick on").arg(shotName(shot)));
  }
  TravelTime& record = *recordOf(document, shot);
  for (std::size_t t = 0; t < indices.size(); ++t) {
    if (!takesPart(document, shot, t)) continue;
    store(record, *traces, t, indices[t]);
    console::out() << "[FIRST BREAK] TRACE " + std::to_string(t) + " : " +
                          std::to_string(indices[t]) + '\n';
  }
  const Status status = screenShotPicks(document, shot);
  removeWhatWasNotFound(record, indices);
  for (const std::size_t t : tracesWithoutPart(document, record)) {
    record.ttMisurati.edit()[t] = kUnpicked;
  }
  return status;
}

std::size_t picksAtFirstSample(const TomoDocument& document, std::int32_t shot) {
  const TraceSet* traces = tracesOf(document, shot);
  if (traces == nullptr) return 0;
  const std::vector<double>& times = document.ttArray[static_cast<std::size_t>(shot)].ttMisurati;
  std::size_t picks = 0;
  for (std::size_t t = 0; t < std::min(times.size(), traces->size()); ++t) {
    if (hasPick(times[t]) && times[t] == kPickWindow * (*traces)[t].sampleInterval) ++picks;
  }
  return picks;
}

struct Job {
  const Trace* trace;
  std::int32_t* index;
};

/// Runs the detector over the jobs on several threads; each job has its own place for the result.
Status runJobs(const std::vector<Job>& jobs, bool useFiltered, unsigned threads) {
  std::atomic<std::size_t> next{0};
  std::atomic<bool> outOfMemory{false};
  const auto work = [&]() noexcept {
    try {
      for (std::size_t j = next++; j < jobs.size(); j = next++) {
        *jobs[j].index = detect(*jobs[j].trace, useFiltered);
      }
    } catch (const std::bad_alloc&) {
      outOfMemory = true;
    }
  };
  if (threads == 0) threads = std::max(std::thread::hardware_concurrency(), 1U);
  const std::size_t helpers = std::min<std::size_t>(threads, jobs.size());
  std::vector<std::thread> pool;
  try {
    for (std::size_t t = 1; t < helpers; ++t) pool.emplace_back(work);
  } catch (const std::system_error&) {
    // The system gives no more threads: those that run do all the work.
  }
  work();
  for (std::thread& thread : pool) thread.join();
  return outOfMemory
             ? Status::failure(Message::tr("the machine has no memory left to pick first breaks"))
             : Status{};
}

}  // namespace

Message describePicksAtFirstSample(const TomoDocument& document,
                                   const std::vector<std::int32_t>& shots) {
  constexpr std::size_t kMostNamed = 10;
  std::size_t picks = 0;
  std::size_t concerned = 0;
  Message named;
  for (const std::int32_t shot : shots) {
    const std::size_t here = picksAtFirstSample(document, shot);
    if (here == 0) continue;
    picks += here;
    if (++concerned > kMostNamed) continue;
    const std::string separator = named.empty() ? "" : ", ";
    named = named.english() + separator + std::to_string(shot + std::int64_t{1});
  }
  if (picks == 0) return {};
  if (concerned > kMostNamed) {
    named = Message::tr("%1 and %2 more").arg(named).arg(concerned - kMostNamed);
  }
  Message where = concerned == 1 ? Message::tr("shot %1").arg(std::move(named))
                                 : Message::tr("shots %1").arg(std::move(named));
  return Message::tr(
             "Picks at sample %1, before which AutoPick cannot look: %2, on %3. Where the wave "
             "came earlier, pick by hand or use AutoPick along the line.")
      .arg(kPickWindow)
      .arg(picks)
      .arg(std::move(where));
}

std::int32_t pickTrace(TomoDocument& document, std::int32_t shot, std::int32_t trace,
                       bool useFiltered) {
  TravelTime* record = recordOf(document, shot);
  const Trace* found = nullptr;
  if (document.findTrace(record == nullptr ? shot : record->traceSetID, trace, found) < 0)
    return -1;
  if (record == nullptr) {
    console::error() << "[ERROR] Shot " + std::to_string(shot) + " has no record of times.\n";
    return -1;
  }
  subtractPairs(document, shot);
  const TraceSet& traces = *tracesOf(document, shot);
  const auto t = static_cast<std::size_t>(trace);
  if (!takesPart(document, shot, t)) {
    console::error() << "[ERROR] Trace " + std::to_string(trace) + " of shot " +
                            std::to_string(shot) + " is disabled or killed.\n";
    return -1;
  }
  const std::int32_t index = detect(traces[t], useFiltered);
  store(*record, traces, t, index);
  return index;
}

Status screenShotPicks(TomoDocument& document, std::int32_t shot) {
  TravelTime* record = recordOf(document, shot);
  if (record == nullptr) {
    return Status::failure(Message::tr("%1 has no record of times to screen").arg(shotName(shot)));
  }
  const auto string = static_cast<std::size_t>(record->indexStesa);
  if (record->indexStesa < 0 || string >= document.line->goephonesStringSet.size()) {
    return Status::failure(
        Message::tr("the picks of %1 are not screened: it has no geophone string")
            .arg(shotName(shot)));
  }
  const std::vector<Point2D>& geophones = document.line->goephonesStringSet[string];
  std::vector<double>& times = record->ttMisurati.edit();
  std::vector<double> offsets;
  for (std::size_t i = 0; i < std::min(geophones.size(), times.size()); ++i) {
    offsets.push_back(geophones[i].x - record->shotPos2d.x);
  }

  double slowestLeft = kSlowest;
  double slowestRight = kSlowest;
  for (const std::size_t i : outward(offsets)) {
    const double velocity = offsets[i] / times[i];
    const double speed = std::fabs(velocity);
    const std::string line =
        formatDouble(offsets[i]) + ' ' + formatDouble(times[i]) + ' ' + formatDouble(velocity);
    console::out() << line + '\n';
    double& slowest = offsets[i] > 0.0 ? slowestRight : slowestLeft;
    // Written so that a NaN is rejected.
    if (!(speed >= slowest && speed <= kFastest)) {
      console::out() << line + " - Rejected\n";
      times[i] = kNoTime;
    } else {
      slowest = std::max(slowest, 0.5 * speed);
    }
  }
  return {};
}

Status pickShot(TomoDocument& document, std::int32_t shot, bool useFiltered) {
  return pickShots(document, {shot}, useFiltered, 1);
}

Status pickShots(TomoDocument& document, const std::vector<std::int32_t>& shots, bool useFiltered,
                 unsigned threads) {
  std::vector<std::vector<std::int32_t>> indices(shots.size());
  std::vector<Job> jobs;
  for (std::size_t s = 0; s < shots.size(); ++s) {
    subtractPairs(document, shots[s]);
  }
  for (std::size_t s = 0; s < shots.size(); ++s) {
    const TraceSet* traces = tracesOf(document, shots[s]);
    if (traces == nullptr) continue;
    indices[s].assign(traces->size(), -1);
    for (std::size_t t = 0; t < traces->size(); ++t) {
      if (takesPart(document, shots[s], t)) jobs.push_back({&(*traces)[t], &indices[s][t]});
    }
  }
  Status first = runJobs(jobs, useFiltered, threads);
  if (!first.ok()) return first;

  for (std::size_t s = 0; s < shots.size(); ++s) {
    if (isDisabled(document, shots[s])) continue;
    const Status status = takePicks(document, shots[s], indices[s]);
    if (first.ok() && !status.ok()) first = status;
  }
  return first;
}

}  // namespace talvesk
