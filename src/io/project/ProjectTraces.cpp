#include "base/Console.h"
#include "base/PlainText.h"
#include "io/EntryName.h"
#include "io/ShotFile.h"
#include "io/ShotLoader.h"
#include "io/project/ProjectAssembly.h"
#include "model/PickLimits.h"
#include "model/Recordings.h"
#include "model/SWavePair.h"
#include "model/SurveyLine.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

std::string entryOf(const std::vector<std::string>& list, std::size_t i) {
  return i < list.size() ? list[i] : std::string();
}

Status readOne(const std::string& folder, const std::string& name, SegyState& state,
               TraceSet& traces) {
  if (!isEntryName(name)) {
    return Status::failure(Message::tr("%1 is no name of a file").arg(quoted(name)));
  }
  ShotFileData data;
  const Status status = readShotFile(folder + name, state, data);
  if (status.ok()) traces = traceSetOf(std::move(data));
  return status;
}

/// What the record of a trace knows better than its shot file, or alone.
void place(const StoredTrace& stored, Trace& trace) {
  if (std::isfinite(stored.time) && stored.time >= 0.0) trace.sampleInterval = stored.time;
  trace.droppedSamples = static_cast<std::size_t>(stored.droppedSamples);
  if (!stored.hasPlace) return;
  trace.waveKind = stored.waveKind;
  trace.delay = stored.delay;
  trace.sourcePosition = stored.source;
  trace.receiverPosition = stored.receiver;
}

/// A pair without its two recordings would be picked on nothing.
void checkKind(Trace& trace) {
  if (trace.waveKind == Trace::kSWavePair && trace.samplesDX.empty()) {
    trace.waveKind = Trace::kFromFile;
  }
}

/// The traces of the member alone.
TraceSet storedSet(std::vector<StoredTrace>& stored) {
  TraceSet traces(stored.size());
  for (std::size_t i = 0; i < stored.size(); ++i) {
    Trace& trace = traces[i];
    trace.waveKind = Trace::kFromFile;
    trace.receiverPosition.x = stored[i].pos;
    place(stored[i], trace);
    trace.samples = std::move(stored[i].TAB);
    trace.samplesDX = std::move(stored[i].TAB_DX);
    trace.samplesSX = std::move(stored[i].TAB_SX);
    checkKind(trace);
  }
  return traces;
}

bool hasSamples(const std::vector<StoredTrace>& stored) {
  return std::any_of(stored.begin(), stored.end(),
                     [](const StoredTrace& trace) { return !trace.TAB.empty(); });
}

bool finitePlaces(const std::vector<StoredTrace>& stored) {
  return std::all_of(stored.begin(), stored.end(), [](const StoredTrace& trace) {
    return std::isfinite(trace.pos) && isFinite(trace.source) && isFinite(trace.receiver) &&
           std::isfinite(trace.delay) && trace.delay <= 0.0;
  });
}

/// Samples beyond every number would spoil pictures and filters.
bool finiteSamples(const TraceSet& traces) {
  const auto finite = [](Span<double> samples) {
    return std::all_of(samples.begin(), samples.end(), [](double v) { return std::isfinite(v); });
  };
  return std::all_of(traces.begin(), traces.end(), [&](const Trace& trace) {
    return finite(trace.samples) && finite(trace.samplesDX) && finite(trace.samplesSX) &&
           finite(trace.filtered);
  });
}

Status installFiltered(TracesMember& member, std::size_t set, TraceSet& traces) {
  if (set >= member.filtered.size()) return {};
  std::vector<Samples>& copies = member.filtered[set];
  if (copies.empty()) return {};
  if (copies.size() != traces.size()) {
    return Status::failure(Message::tr("trace set %1 has %2 traces, but %3 filtered copies")
                               .arg(set)
                               .arg(traces.size())
                               .arg(copies.size()));
  }
  for (std::size_t i = 0; i < traces.size(); ++i) traces[i].filtered = std::move(copies[i]);
  return {};
}

/// A name with a folder in it would have the next save collect a file of the user's that has
/// nothing to do with the survey, and hand it on with the project.
void forgetPaths(TracesMember& member, std::size_t set, std::vector<Message>& repairs) {
  std::string path;
  for (auto* names : {&member.filenames, &member.filenames_DX, &member.filenames_SX}) {
    if (set >= names->size()) continue;
    std::string& name = (*names)[set];
    if (!name.empty() && !isEntryName(name)) path = std::exchange(name, {});
  }
  if (path.empty()) return;
  const SetFiles left = filesOfSet(member.filenames, member.filenames_DX, member.filenames_SX, set);
  const bool lost = left.none() && !hasSamples(member.traceSets[set]);
  Message text = lost ? Message::tr(
                            "shot %1: its shot file is called %2, which is no plain file name; the "
                            "name is forgotten and its traces are empty")
                      : Message::tr(
                            "shot %1: its shot file is called %2, which is no plain file name; the "
                            "name is forgotten");
  repairs.push_back(std::move(text).arg(set + 1).arg(quoted(path)));
}

/// One set, from its record or its files.
TraceSet setOf(const std::string& folder, const SetFiles& names, std::vector<StoredTrace>& stored,
               SegyState& state, std::vector<Message>& warnings) {
  if (hasSamples(stored) || names.none()) return storedSet(stored);
  TraceSet traces;
  Message why;
  bool read = readSetFiles(folder, names, state, traces, why);
  if (read && traces.size() != stored.size()) {
    why = Message::tr("%1 has %2 traces instead of %3")
              .arg(names.isPair() ? names.dx : names.main)
              .arg(traces.size())
              .arg(stored.size());
    read = false;
  }
  if (!read) {
    console::logError("Error while loading traces: Invalid file format.");
    // By their bare names: nobody put anything into the temporary folder by hand.
    warnings.push_back(why.without(folder));
    return storedSet(stored);
  }
  for (std::size_t i = 0; i < traces.size(); ++i) {
    place(stored[i], traces[i]);
    checkKind(traces[i]);
    dropFirstSamples(traces[i], traces[i].droppedSamples);
  }
  return traces;
}

/// One record per set, in their order, each with a time for every trace.
Status matchRecords(TomoDocument& document) {
  if (document.recordings->traceSets.empty()) return {};
  std::vector<TravelTime>& records = document.ttArray.edit();
  if (records.size() != document.recordings->traceSets.size()) {
    return Status::failure(Message::tr("there are %1 trace sets, but %2 travel-time records")
                               .arg(document.recordings->traceSets.size())
                               .arg(records.size()));
  }
  std::stable_sort(records.begin(), records.end(), [](const TravelTime& a, const TravelTime& b) {
    return a.traceSetID < b.traceSetID;
  });
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (records[i].traceSetID != static_cast<std::int32_t>(i)) {
      return Status::failure(Message::tr("no travel-time record belongs to trace set %1").arg(i));
    }
    const std::size_t traces = document.recordings->traceSets[i].size();
    if (records[i].ttMisurati.size() < traces)
      records[i].ttMisurati.edit().resize(traces, kUnpicked);
    records[i].ttCalcolati.edit().resize(records[i].ttMisurati.size(), kNoTime);
  }
  return {};
}

std::vector<std::string> inFolder(const std::string& folder, std::vector<std::string> names) {
  for (std::string& name : names) {
    if (!name.empty()) name.insert(0, folder);
  }
  return names;
}

}  // namespace

SetFiles filesOfSet(const std::vector<std::string>& main, const std::vector<std::string>& dx,
                    const std::vector<std::string>& sx, std::size_t set) {
  return {entryOf(main, set), entryOf(dx, set), entryOf(sx, set)};
}

bool readSetFiles(const std::string& folder, const SetFiles& names, SegyState& state,
                  TraceSet& traces, Message& why) {
  SegyState after = state;
  TraceSet first;
  TraceSet second;
  Status status = readOne(folder, names.isPair() ? names.dx : names.main, after, first);
  if (status.ok() && names.isPair()) {
    status = readOne(folder, names.sx, after, second);
    if (status.ok() && first.size() != second.size()) {
      status = Status::failure(
          Message::tr("%1 and %2 have different numbers of traces").arg(names.dx).arg(names.sx));
    }
  }
  why = status.text();
  if (!status.ok()) return false;
  if (names.isPair()) joinRecordings(first, second);
  state = after;
  traces = std::move(first);
  return true;
}

Status installTraces(TracesMember member, const std::string& folder, TomoDocument& document,
                     SegyState& state, std::vector<Message>& warnings,
                     std::vector<Message>& repairs) {
  const std::size_t sets = member.traceSets.size();
  if (member.waveType != WaveType::P && member.waveType != WaveType::S) {
    return Status::failure(
        Message::tr("wave type %1 does not exist").arg(static_cast<int>(member.waveType)));
  }
  if (std::max({member.filenames.size(), member.filenames_DX.size(), member.filenames_SX.size(),
                member.filtered.size()}) > sets) {
    return Status::failure(Message::tr("there are more files or filtered copies than trace sets"));
  }
  state = {};
  std::vector<TraceSet> traceSets;
  for (std::size_t set = 0; set < sets; ++set) {
    if (!finitePlaces(member.traceSets[set])) {
      return Status::failure(
          Message::tr("trace set %1 has a position or delay that cannot be").arg(set));
    }
    forgetPaths(member, set, repairs);
    const SetFiles names =
        filesOfSet(member.filenames, member.filenames_DX, member.filenames_SX, set);
    TraceSet traces = setOf(folder, names, member.traceSets[set], state, warnings);
    member.traceSets[set] = {};
    if (Status status = installFiltered(member, set, traces); !status.ok()) return status;
    if (!finiteSamples(traces)) {
      return Status::failure(
          Message::tr("trace set %1 has a sample that is no finite number").arg(set));
    }
    traceSets.push_back(std::move(traces));
  }
  document.recordings.edit().waveType = member.waveType;
  document.recordings.edit().filenames = inFolder(folder, std::move(member.filenames));
  document.recordings.edit().filenames_DX = inFolder(folder, std::move(member.filenames_DX));
  document.recordings.edit().filenames_SX = inFolder(folder, std::move(member.filenames_SX));
  document.line.edit().shotPositions = std::move(member.shotPositions);
  document.recordings.edit().traceSets = std::move(traceSets);
  Status matched = matchRecords(document);
  if (!matched.ok()) return matched;
  const Message dropped =
      dropImpossiblePicks(document.ttArray.edit(), document.recordings->traceSets);
  if (!dropped.empty()) repairs.push_back(dropped);
  return {};
}

}  // namespace talvesk
