#include "io/ShotLoader.h"

#include "base/Console.h"
#include "io/ShotFile.h"
#include "io/WrittenPosition.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

/// Where these receivers are in the list of strings, at its end if they are new.
std::int32_t stringOf(std::vector<Point2D> receivers, std::vector<std::vector<Point2D>>& strings) {
  const auto known =
      std::find_if(strings.begin(), strings.end(), [&](const std::vector<Point2D>& string) {
        return std::equal(string.begin(), string.end(), receivers.begin(), receivers.end(),
                          isWritten);
      });
  const auto index = static_cast<std::int32_t>(known - strings.begin());
  if (known == strings.end()) strings.push_back(std::move(receivers));
  return index;
}

template <typename Traces, typename PositionOf>
std::vector<Point2D> positionsOf(const Traces& traces, PositionOf positionOf) {
  std::vector<Point2D> positions;
  positions.reserve(traces.size());
  for (const auto& trace : traces) positions.push_back(positionOf(trace));
  return positions;
}

Status checkTakesShots(const TomoDocument& document) {
  if (document.recordings->waveType == WaveType::S && !document.recordings->traceSets.empty()) {
    return Status::failure(Message::tr(
        "the survey holds S-wave pairs; add more of them in the survey geometry, or start a new "
        "survey to load shot files"));
  }
  if (document.ttArray.size() == document.recordings->traceSets.size()) return {};
  return Status::failure(
      Message::tr("the survey holds picks without traces; start a new survey to load shot files"));
}

void add(const std::string& path, ShotFileData data, TomoDocument& document) {
  RecordingNote note = {data.format, data.warnings};
  TraceSet traces = traceSetOf(std::move(data));
  TravelTime record;
  if (!traces.empty()) record.shotPos2d = traces.front().sourcePosition;
  record.indexStesa =
      stringOf(positionsOf(traces, [](const Trace& trace) { return trace.receiverPosition; }),
               document.line.edit().goephonesStringSet);
  record.ttMisurati = std::vector<double>(traces.size(), kUnpicked);
  record.ttCalcolati = std::vector<double>(traces.size(), kNoTime);
  record.traceSetID = static_cast<std::int32_t>(document.recordings->traceSets.size());
  document.line.edit().shotPositions.push_back(record.shotPos2d.x);
  Recordings& recordings = document.recordings.edit();
  recordings.filenames.push_back(path);
  recordings.noteOf(recordings.traceSets.size()) = std::move(note);
  recordings.traceSets.push_back(std::move(traces));
  document.ttArray.edit().push_back(std::move(record));
}

}  // namespace

TraceSet traceSetOf(ShotFileData data) {
  TraceSet set;
  set.reserve(data.traces.size());
  for (ShotRecord& record : data.traces) {
    Trace& trace = set.emplace_back();
    trace.waveKind = Trace::kFromFile;
    trace.samples.edit() = std::move(record.samples);
    trace.sourcePosition = record.source;
    trace.receiverPosition = record.receiver;
    trace.delay = record.delay;
    trace.sampleInterval = record.sampleInterval;
  }
  return set;
}

ModelLoss lossByShots(const std::vector<ReadShot>& shots, const TomoDocument& document) {
  std::vector<std::vector<Point2D>> strings = document.line->goephonesStringSet;
  std::vector<Point2D> sources = document.shotPoints();
  bool any = false;
  for (const ReadShot& shot : shots) {
    if (!shot.outcome.status.ok()) continue;
    any = true;
    const std::vector<ShotRecord>& traces = shot.data.traces;
    stringOf(positionsOf(traces, [](const ShotRecord& trace) { return trace.receiver; }), strings);
    sources.push_back(traces.empty() ? Point2D() : traces.front().source);
  }
  return any ? modelLoss(document, measureSurvey(strings, sources)) : ModelLoss::kNothing;
}

std::vector<ShotFileOutcome> appendShots(std::vector<ReadShot> shots, TomoDocument& document) {
  // Without a grid there are still the cell sizes that were proposed for the line as it was.
  const ModelLoss loss =
      document.model->grid == nullptr ? ModelLoss::kGrid : lossByShots(shots, document);
  std::vector<ShotFileOutcome> outcomes;
  outcomes.reserve(shots.size());
  bool any = false;
  for (ReadShot& shot : shots) {
    if (shot.outcome.status.ok()) {
      add(shot.outcome.path, std::move(shot.data), document);
      any = true;
    }
    outcomes.push_back(std::move(shot.outcome));
  }
  if (any) {
    forgetModel(loss, document);
  }
  return outcomes;
}

void appendShot(const std::string& path, ShotFileData data, TomoDocument& document) {
  std::vector<ReadShot> one(1);
  one.front().outcome.path = path;
  one.front().data = std::move(data);
  appendShots(std::move(one), document);
}

void ShotLoader::remember(const SegyState& others) {
  if (others.formatCode == 0 && others.nativeOrder) return;  // none was SEG-Y or SU
  const bool native = mState.nativeOrder && others.nativeOrder;
  mState = others;
  mState.nativeOrder = native;
}

ReadShot ShotLoader::read(const std::string& path, const TomoDocument& document) {
  ReadShot shot;
  shot.outcome.path = path;
  shot.outcome.status = checkTakesShots(document);
  if (!shot.outcome.status.ok()) return shot;
  shot.outcome.status = readShotFile(path, mState, shot.data);
  shot.outcome.format = shot.data.format;
  shot.outcome.warnings = shot.data.warnings;
  return shot;
}

std::vector<ShotFileOutcome> ShotLoader::load(const std::vector<std::string>& paths,
                                              TomoDocument& document) {
  const Status takesShots = checkTakesShots(document);
  if (!takesShots.ok()) console::error() << takesShots.message() << std::endl;
  std::vector<ReadShot> shots;
  shots.reserve(paths.size());
  for (const std::string& path : paths) shots.push_back(read(path, document));
  return appendShots(std::move(shots), document);
}

}  // namespace talvesk
