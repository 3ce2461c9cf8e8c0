#include "io/ShotLoader.h"

#include "base/Console.h"
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

RecordingNote noteOf(const ReadShotFile& file, std::size_t shot) {
  const StandardReading::Shot& read = file.shots[shot];
  RecordingNote note = {file.outcome.format, file.common};
  note.warnings.insert(note.warnings.end(), read.data.warnings.begin(), read.data.warnings.end());
  note.reader = file.reader;
  note.recordInFile = shot;
  note.nameInFile = read.name;
  return note;
}

void add(const std::string& path, ShotFileData data, RecordingNote note, TomoDocument& document) {
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

ModelLoss lossByShots(const std::vector<ReadShotFile>& files, const TomoDocument& document) {
  std::vector<std::vector<Point2D>> strings = document.line->goephonesStringSet;
  std::vector<Point2D> sources = document.shotPoints();
  bool any = false;
  for (const ReadShotFile& file : files) {
    for (const StandardReading::Shot& shot : file.shots) {
      any = true;
      const std::vector<ShotRecord>& traces = shot.data.traces;
      stringOf(positionsOf(traces, [](const ShotRecord& trace) { return trace.receiver; }),
               strings);
      sources.push_back(traces.empty() ? Point2D() : traces.front().source);
    }
  }
  return any ? modelLoss(document, measureSurvey(strings, sources)) : ModelLoss::kNothing;
}

std::vector<ShotFileOutcome> appendShots(std::vector<ReadShotFile> files, TomoDocument& document) {
  // Without a grid there are still the cell sizes that were proposed for the line as it was.
  const ModelLoss loss =
      document.model->grid == nullptr ? ModelLoss::kGrid : lossByShots(files, document);
  std::vector<ShotFileOutcome> outcomes;
  outcomes.reserve(files.size());
  bool any = false;
  for (ReadShotFile& file : files) {
    for (std::size_t shot = 0; shot < file.shots.size(); ++shot) {
      RecordingNote note = noteOf(file, shot);
      add(file.outcome.path, std::move(file.shots[shot].data), std::move(note), document);
      any = true;
    }
    outcomes.push_back(std::move(file.outcome));
  }
  if (any) {
    forgetModel(loss, document);
  }
  return outcomes;
}

void appendShot(const std::string& path, ShotFileData data, TomoDocument& document) {
  std::vector<ReadShotFile> one(1);
  one.front().outcome.path = path;
  one.front().outcome.format = data.format;
  one.front().shots.push_back({std::move(data), {}});
  appendShots(std::move(one), document);
}

void ShotLoader::remember(const SegyState& others) {
  if (others.formatCode == 0 && others.nativeOrder) return;  // none was SEG-Y or SU
  const bool native = mState.nativeOrder && others.nativeOrder;
  mState = others;
  mState.nativeOrder = native;
}

ReadShotFile ShotLoader::read(const std::string& path, const TomoDocument& document,
                              ShotReader reader) {
  if (Status takes = checkTakesShots(document); !takes.ok()) {
    ReadShotFile refused;
    refused.outcome.path = path;
    refused.outcome.status = std::move(takes);
    return refused;
  }
  return readShotFileBy(reader, path, mState);
}

std::vector<ShotFileOutcome> ShotLoader::load(const std::vector<std::string>& paths,
                                              TomoDocument& document, ShotReader reader) {
  const Status takesShots = checkTakesShots(document);
  if (!takesShots.ok()) console::error() << takesShots.message() << std::endl;
  std::vector<ReadShotFile> files;
  files.reserve(paths.size());
  for (const std::string& path : paths) files.push_back(read(path, document, reader));
  return appendShots(std::move(files), document);
}

}  // namespace talvesk
