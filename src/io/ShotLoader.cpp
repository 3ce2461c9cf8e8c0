#include "io/ShotLoader.h"

#include "base/Console.h"
#include "io/ShotFile.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

/// Where the geophones of these traces are in the list of strings, at its end if they are new.
std::int32_t stringOf(const TraceSet& traces, std::vector<std::vector<Point2D>>& strings) {
  std::vector<Point2D> receivers;
  receivers.reserve(traces.size());
  for (const Trace& trace : traces) receivers.push_back(trace.receiverPosition);
  const auto known = std::find(strings.begin(), strings.end(), receivers);
  const auto index = static_cast<std::int32_t>(known - strings.begin());
  if (known == strings.end()) strings.push_back(std::move(receivers));
  return index;
}

Status checkTakesShots(const TomoDocument& document) {
  if (document.waveType == WaveType::S && !document.traceSets.empty()) {
    return Status::failure(Message::tr(
        "the survey holds S-wave pairs; add more of them in the survey geometry, or start a new "
        "survey to load shot files"));
  }
  if (document.ttArray.size() == document.traceSets.size()) return {};
  return Status::failure(
      Message::tr("the survey holds picks without traces; start a new survey to load shot files"));
}

}  // namespace

TraceSet traceSetOf(ShotFileData data) {
  TraceSet set;
  set.reserve(data.traces.size());
  for (ShotRecord& record : data.traces) {
    Trace& trace = set.emplace_back();
    trace.waveKind = Trace::kFromFile;
    trace.samples = std::move(record.samples);
    trace.sourcePosition = record.source;
    trace.receiverPosition = record.receiver;
    trace.delay = record.delay;
    trace.sampleInterval = record.sampleInterval;
  }
  return set;
}

void appendShot(const std::string& path, ShotFileData data, TomoDocument& document) {
  TraceSet traces = traceSetOf(std::move(data));
  TravelTime record;
  if (!traces.empty()) record.shotPos2d = traces.front().sourcePosition;
  record.indexStesa = stringOf(traces, document.goephonesStringSet);
  record.ttMisurati.assign(traces.size(), kUnpicked);
  record.ttCalcolati.assign(traces.size(), kNoTime);
  record.traceSetID = static_cast<std::int32_t>(document.traceSets.size());
  document.filenames.push_back(path);
  document.shotPositions.push_back(record.shotPos2d.x);
  document.traceSets.push_back(std::move(traces));
  document.ttArray.push_back(std::move(record));
  document.clearModelAndResults();
  document.modified = true;
}

void ShotLoader::remember(const SegyState& others) {
  if (others.formatCode == 0 && others.nativeOrder) return;  // none was SEG-Y or SU
  const bool native = mState.nativeOrder && others.nativeOrder;
  mState = others;
  mState.nativeOrder = native;
}

std::vector<ShotFileOutcome> ShotLoader::load(const std::vector<std::string>& paths,
                                              TomoDocument& document) {
  const Status takesShots = checkTakesShots(document);
  if (!takesShots.ok()) console::error() << takesShots.message() << std::endl;
  std::vector<ShotFileOutcome> outcomes;
  outcomes.reserve(paths.size());
  for (const std::string& path : paths) {
    ShotFileOutcome& outcome = outcomes.emplace_back();
    outcome.path = path;
    outcome.status = takesShots;
    if (!takesShots.ok()) continue;
    ShotFileData data;
    outcome.status = readShotFile(path, mState, data);
    if (!outcome.status.ok()) continue;
    outcome.format = data.format;
    outcome.warnings = data.warnings;
    appendShot(path, std::move(data), document);
  }
  return outcomes;
}

}  // namespace talvesk
