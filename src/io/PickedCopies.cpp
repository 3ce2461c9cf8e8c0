#include "io/PickedCopies.h"

#include "base/AtomicFile.h"
#include "io/PickHeaders.h"
#include "io/standard/StandardReader.h"
#include "model/MendedTraces.h"
#include "model/Mending.h"
#include "model/TomoDocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <map>
#include <set>

namespace talvesk {
namespace {

/// A shot file and the records of the document that came from it, by their place in it.
struct Source {
  std::string path;
  std::map<std::size_t, std::size_t> records;
};

const RecordingNote& noteOf(const Recordings& recordings, std::size_t set) {
  static const RecordingNote kNone;
  return set < recordings.notes.size() ? recordings.notes[set] : kNone;
}

/// The files in the order of the survey, each once; shots without a file of their own are left out.
std::vector<Source> sourcesOf(const TomoDocument& document) {
  const Recordings& recordings = *document.recordings;
  std::vector<Source> sources;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const auto set = static_cast<std::size_t>(document.ttArray[i].traceSetID);
    if (document.tracesOf(document.ttArray[i]) == nullptr || set >= recordings.filenames.size() ||
        recordings.filenames[set].empty()) {
      continue;
    }
    const std::string& path = recordings.filenames[set];
    auto known = std::find_if(sources.begin(), sources.end(),
                              [&](const Source& source) { return source.path == path; });
    if (known == sources.end()) known = sources.insert(sources.end(), {path, {}});
    known->records.emplace(noteOf(recordings, set).recordInFile, i);
  }
  return sources;
}

std::string targetOf(const Source& source, const std::string& folder) {
  return QDir(QString::fromStdString(folder))
      .filePath(QFileInfo(QString::fromStdString(source.path)).fileName())
      .toStdString();
}

Status isShotFile(const std::string& target) {
  return Status::failure(
      Message::tr("%1 is one of the shot files of this survey; choose another folder").arg(target));
}

/// Whether all copies have a place of their own beside the files of the survey.
Status checkTargets(const TomoDocument& document, const std::vector<Source>& sources,
                    const std::string& folder) {
  std::set<QString> own;
  const Recordings& recordings = *document.recordings;
  for (const auto* files :
       {&recordings.filenames, &recordings.filenames_DX, &recordings.filenames_SX}) {
    for (const std::string& file : *files) {
      if (!file.empty()) own.insert(QFileInfo(QString::fromStdString(file)).canonicalFilePath());
    }
  }
  std::set<std::string> names;
  for (const Source& source : sources) {
    const std::string target = targetOf(source, folder);
    if (!names.insert(target).second) {
      return Status::failure(
          Message::tr("two shot files of the survey would both become %1").arg(target));
    }
    const QFileInfo file(QString::fromStdString(target));
    if (file.exists() && own.count(file.canonicalFilePath()) > 0) {
      return isShotFile(target);
    }
  }
  return {};
}

/// The picks of a record by channel, as they were recorded.
void takePicks(const TomoDocument& document, const TravelTime& record, std::size_t first,
               HeaderPicks& picks) {
  const auto set = static_cast<std::size_t>(record.traceSetID);
  const TraceSet& recorded = recordedTraces(*document.recordings, set);
  const ShotMends& mends = mendsOf(*document.recordings, set);
  for (std::size_t i = 0; i < record.ttMisurati.size() && i < recorded.size(); ++i) {
    if (!hasPick(record.ttMisurati[i])) continue;
    const std::size_t channel = channelAt(mends, i, recorded.size());
    const Trace& trace = recorded[channel];
    const double start =
        trace.delay + static_cast<double>(trace.droppedSamples) * trace.sampleInterval;
    picks[first + channel] = record.ttMisurati[i] + wholeSamples(mends.timeShift, trace) + start;
  }
}

/// How many traces each shot of a file has, in its order. By the program's rules a file is one
/// shot.
Status shotSizes(const TomoDocument& document, const Source& source, const std::string& bytes,
                 std::vector<std::size_t>& sizes) {
  const TravelTime& record = document.ttArray[source.records.begin()->second];
  const auto set = static_cast<std::size_t>(record.traceSetID);
  if (noteOf(*document.recordings, set).reader == ShotReader::kRules) {
    sizes = {document.recordings->traceSets[set].size()};
    return {};
  }
  StandardReading reading;
  if (Status status = parseByStandard(bytes, source.path, reading); !status.ok()) return status;
  for (const auto& shot : reading.shots) sizes.push_back(shot.data.traces.size());
  return {};
}

Status picksOf(const TomoDocument& document, const Source& source, const std::string& bytes,
               bool severalShots, HeaderPicks& picks) {
  std::vector<std::size_t> sizes;
  if (Status status = shotSizes(document, source, bytes, sizes); !status.ok()) return status;
  if (sizes.size() > 1 && !severalShots) {
    return Status::failure(Message::tr("it holds several shots, whose traces may be mixed"));
  }
  for (std::size_t shot = 0; shot < sizes.size(); ++shot) {
    const std::size_t first = picks.size();
    picks.resize(first + sizes[shot]);
    const auto found = source.records.find(shot);
    if (found == source.records.end()) continue;
    const TravelTime& record = document.ttArray[found->second];
    if (document.tracesOf(record)->size() != sizes[shot]) {
      return Status::failure(Message::tr("its traces are not those of the survey any more"));
    }
    takePicks(document, record, first, picks);
  }
  return {};
}

/// Puts the picks into the bytes of a file.
Status putPicks(const TomoDocument& document, const Source& source, std::string& bytes,
                std::size_t& written, std::size_t& replaced) {
  const std::string_view head = std::string_view(bytes).substr(0, 8192);
  const bool seg2 = head.substr(0, 2) == "\x55\x3A" || head.substr(0, 2) == "\x3A\x55";
  const std::string& format =
      noteOf(*document.recordings,
             static_cast<std::size_t>(document.ttArray[source.records.begin()->second].traceSetID))
          .format;
  if (format == "mseed") return Status::failure(Message::tr("miniSEED has no headers for picks"));
  // By its content, where that has decided what it is; not all SU files are named so.
  const bool su = format.empty()
                      ? QString::fromStdString(source.path).endsWith(".su", Qt::CaseInsensitive)
                      : format == "su";
  HeaderPicks picks;
  Status status = picksOf(document, source, bytes, !seg2, picks);
  if (!status.ok()) return status;
  written = static_cast<std::size_t>(
      std::count_if(picks.begin(), picks.end(), [](const auto& pick) { return pick.has_value(); }));
  if (seg2) return putPicksIntoSeg2(bytes, picks);
  return putPicksIntoSegy(bytes, su ? SegyKind::kSu : SegyKind::kSegy, picks, replaced);
}

/// What there is where a copy goes.
enum class Found { kNothing, kRecording, kOther };

/// Reads no further than to the first difference.
bool holdTheSame(const std::string& path, const std::string& other) {
  constexpr qint64 kBlock = 1 << 20;
  QFile one(QString::fromStdString(path));
  QFile two(QString::fromStdString(other));
  if (!one.open(QIODevice::ReadOnly) || !two.open(QIODevice::ReadOnly)) return false;
  if (one.size() != two.size()) return false;
  while (!one.atEnd()) {
    const QByteArray block = one.read(kBlock);
    if (block.isEmpty() || block != two.read(kBlock)) return false;
  }
  return true;
}

/// A project knows no more of the file that it was made from than its bytes.
Found foundAt(const Source& source, const std::string& target) {
  if (!QFileInfo::exists(QString::fromStdString(target))) return Found::kNothing;
  return holdTheSame(source.path, target) ? Found::kRecording : Found::kOther;
}

/// Whether a copy with picks would change its recording.
bool wouldChange(const TomoDocument& document, const Source& source) {
  std::string before;
  if (!readWholeFile(source.path, before).ok()) return false;
  std::string bytes = before;
  std::size_t written = 0;
  std::size_t replaced = 0;
  return putPicks(document, source, bytes, written, replaced).ok() && written > 0 &&
         bytes != before;
}

Status stopped() {
  return Status::failure(Message::tr("it was stopped"));
}

/// What is at the places of all copies. Fails where a recording of the survey would be replaced:
/// no copy is like its recording to the byte, because those without picks are not written.
Status checkRecordings(const TomoDocument& document, const std::vector<Source>& sources,
                       const std::string& folder, const std::function<bool(std::size_t)>& progress,
                       std::vector<Found>& found) {
  for (std::size_t i = 0; i < sources.size(); ++i) {
    if (progress && !progress(i)) return stopped();
    const std::string target = targetOf(sources[i], folder);
    found.push_back(foundAt(sources[i], target));
    if (found.back() == Found::kRecording && wouldChange(document, sources[i])) {
      return isShotFile(target);
    }
  }
  return {};
}

}  // namespace

std::vector<std::string> pickedCopies(const TomoDocument& document, const std::string& folder) {
  std::vector<std::string> files;
  for (const Source& source : sourcesOf(document)) files.push_back(targetOf(source, folder));
  return files;
}

Status writePickedCopies(const TomoDocument& document, const std::string& folder,
                         std::vector<Message>& notes,
                         const std::function<bool(std::size_t)>& progress) {
  const std::vector<Source> sources = sourcesOf(document);
  if (sources.empty()) return Status::failure(Message::tr("the survey has no shot files"));
  if (Status status = checkTargets(document, sources, folder); !status.ok()) return status;
  std::vector<Found> found;
  if (Status status = checkRecordings(document, sources, folder, progress, found); !status.ok()) {
    return status;
  }
  std::size_t shots = 0;
  std::size_t replaced = 0;
  std::size_t copies = 0;
  Status last;
  for (std::size_t i = 0; i < sources.size(); ++i) {
    if (progress && !progress(sources.size() + i)) return stopped();
    shots += sources[i].records.size();
    std::string bytes;
    std::size_t written = 0;
    Status status = readWholeFile(sources[i].path, bytes);
    if (status.ok()) status = putPicks(document, sources[i], bytes, written, replaced);
    // One that had picks before does not keep them.
    if (status.ok() && written == 0 && found[i] != Found::kOther) {
      status = Status::failure(Message::tr("no picks yet"));
    }
    if (!status.ok()) {
      last = status;
      notes.push_back(Message::tr("%1 was left out: %2").arg(sources[i].path).arg(status.text()));
      continue;
    }
    if (written == 0) notes.push_back(Message::tr("%1 has no picks").arg(sources[i].path));
    status = writeFileAtomically(targetOf(sources[i], folder), bytes);
    if (!status.ok()) return status;
    ++copies;
  }
  if (shots < document.ttArray.size()) {
    notes.push_back(Message::tr("%1 shots have no shot file of their own and were left out")
                        .arg(document.ttArray.size() - shots));
  }
  if (replaced > 0) {
    notes.push_back(Message::tr("bytes 233 to 236 of %1 trace headers held something else before")
                        .arg(replaced));
  }
  return copies > 0 ? Status() : last;
}

}  // namespace talvesk
