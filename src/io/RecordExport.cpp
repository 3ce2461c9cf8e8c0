#include "io/RecordExport.h"

#include "base/AtomicFile.h"
#include "io/Seg2Writer.h"
#include "io/SegyWriter.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kMostSamples = 65535;

bool isDisabled(const TomoDocument& document, std::size_t set) {
  const std::vector<ShotMends>& mends = document.recordings->mends;
  return set < mends.size() && mends[set].disabled;
}

bool isDead(const TomoDocument& document, std::size_t set, std::size_t trace) {
  const std::vector<ShotMends>& mends = document.recordings->mends;
  return set < mends.size() && trace < mends[set].traces.size() && mends[set].traces[trace].killed;
}

bool hasSamples(const TraceSet* traces) {
  return traces != nullptr && std::any_of(traces->begin(), traces->end(), [](const Trace& trace) {
           return !trace.samples.empty();
         });
}

/// The shots that have a record to be written, from 0.
std::vector<std::size_t> shotsToWrite(const TomoDocument& document) {
  std::vector<std::size_t> shots;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    if (!hasSamples(document.tracesOf(record))) continue;
    if (!isDisabled(document, static_cast<std::size_t>(record.traceSetID))) shots.push_back(i);
  }
  return shots;
}

/// When the first sample was taken, seconds after the shot.
double startOf(const Trace& trace) {
  const double start =
      trace.delay + static_cast<double>(trace.droppedSamples) * trace.sampleInterval;
  return std::fabs(start) < trace.sampleInterval / 1000.0 ? 0.0 : start;
}

Status uneven(int shot) {
  return Status::failure(
      Message::tr("the traces of shot %1 differ in sample interval or in the time of their first "
                  "sample; they cannot be in one record")
          .arg(shot));
}

/// Where the survey has the geophone of a trace.
Point2D receiverOf(const TomoDocument& document, const TravelTime& record, const Trace& trace,
                   std::size_t index) {
  const auto& strings = document.line->goephonesStringSet;
  const auto string = static_cast<std::size_t>(record.indexStesa);
  const bool placed = record.indexStesa >= 0 && string < strings.size() &&
                      index < strings[string].size() && isFinite(strings[string][index]);
  return placed ? strings[string][index] : trace.receiverPosition;
}

bool takeSamples(Span<double> samples, std::size_t length, std::vector<float>& written,
                 std::size_t& rounded) {
  written.reserve(length);
  for (const double sample : samples) {
    if (!(std::fabs(sample) <= std::numeric_limits<float>::max())) return false;
    written.push_back(static_cast<float>(sample));
    if (static_cast<double>(written.back()) != sample) ++rounded;
  }
  written.resize(length, 0.0F);
  return true;
}

std::string fileName(std::size_t shot, std::size_t digits, RecordFormat format) {
  const std::string number = std::to_string(shot + 1);
  return "shot" + std::string(digits - std::min(digits, number.size()), '0') + number +
         (format == RecordFormat::kSeg2 ? ".sg2" : ".sgy");
}

std::vector<std::string> filesOf(const std::vector<std::size_t>& shots, std::size_t all,
                                 const RecordExport& wanted) {
  const std::string folder =
      wanted.folder.empty() || wanted.folder.back() == '/' ? wanted.folder : wanted.folder + '/';
  if (wanted.together) return {folder + "shots.sgy"};
  const std::size_t digits = std::max<std::size_t>(2, std::to_string(all).size());
  std::vector<std::string> files;
  for (const std::size_t shot : shots)
    files.push_back(folder + fileName(shot, digits, wanted.format));
  return files;
}

Status fits(const WrittenShot& shot, RecordFormat format) {
  constexpr double kLongestInterval =
      1000.0;  // seconds; traces without one have the largest number
  Status status = format == RecordFormat::kSegy ? fitsSegy(shot) : Status();
  if (!(shot.sampleInterval > 0.0 && shot.sampleInterval < kLongestInterval)) {
    status = Status::failure(Message::tr("it has no sample interval"));
  }
  const std::size_t samples = shot.traces.empty() ? 0 : shot.traces.front().size();
  if (status.ok() && samples > kMostSamples) {
    status = Status::failure(
        Message::tr("its traces have %1 samples; a file holds %2").arg(samples).arg(kMostSamples));
  }
  if (status.ok() && format == RecordFormat::kSeg2 && shot.traces.size() > kMostSeg2Traces) {
    status = Status::failure(Message::tr("it has %1 traces; a SEG-2 file holds %2")
                                 .arg(shot.traces.size())
                                 .arg(kMostSeg2Traces));
  }
  if (status.ok()) return status;
  return Status::failure(Message::tr("shot %1: %2").arg(shot.number).arg(status.text()));
}

/// What the program's own rules do not take from a SEG-Y file.
void noteWhatRulesMiss(const TomoDocument& document, const std::vector<std::size_t>& shots,
                       std::vector<Message>& notes) {
  const auto missed = [](const Point2D& point) {
    return point.z != 0.0 || point.x != std::round(point.x);
  };
  const auto any = [&](const std::vector<Point2D>& points) {
    return std::any_of(points.begin(), points.end(), missed);
  };
  for (const std::size_t shot : shots) {
    const TravelTime& record = document.ttArray[shot];
    if (!missed(record.shotPos2d) && !any(document.receiversOf(record))) continue;
    notes.push_back(
        Message::tr("read by the program's rules, the files have no elevations, and no "
                    "positions that are not whole metres; read them by the standard"));
    return;
  }
}

void noteRounding(std::size_t rounded, std::vector<Message>& notes) {
  if (rounded == 0) return;
  notes.push_back(
      Message::tr("%1 samples were rounded to the seven digits of a 32-bit float").arg(rounded));
}

void noteWhatIsLeftOut(const TomoDocument& document, std::size_t written, std::size_t rounded,
                       std::vector<Message>& notes) {
  const std::size_t leftOut = document.ttArray.size() - written;
  if (leftOut > 0) {
    notes.push_back(
        Message::tr("%1 shots are disabled or have no samples and were left out").arg(leftOut));
  }
  std::size_t shortened = 0;
  for (const TraceSet& set : document.recordings->traceSets) {
    shortened += static_cast<std::size_t>(std::count_if(
        set.begin(), set.end(), [](const Trace& trace) { return trace.droppedSamples > 0; }));
  }
  if (shortened > 0) {
    notes.push_back(
        Message::tr("%1 traces begin at the shot; what was recorded before is not in the files")
            .arg(shortened));
  }
  noteRounding(rounded, notes);
}

/// Makes the records of some shots one after the other.
Status forEachRecord(const TomoDocument& document, const std::vector<std::size_t>& shots,
                     const std::function<Status(std::size_t, WrittenShot)>& take,
                     const std::function<bool(std::size_t)>& progress, std::size_t& rounded) {
  for (std::size_t i = 0; i < shots.size(); ++i) {
    if (progress && !progress(i)) return Status::failure(Message::tr("it was stopped"));
    WrittenShot shot;
    Status status =
        writtenShotOf(document, shots[i], static_cast<int>(shots[i] + 1), shot, rounded);
    if (status.ok()) status = take(i, std::move(shot));
    if (!status.ok()) return status;
  }
  return {};
}

}  // namespace

std::vector<std::string> recordFiles(const TomoDocument& document, const RecordExport& wanted) {
  return filesOf(shotsToWrite(document), document.ttArray.size(), wanted);
}

Status writtenShotOf(const TomoDocument& document, std::size_t shot, int number,
                     WrittenShot& written, std::size_t& rounded) {
  const TravelTime& record = document.ttArray[shot];
  const TraceSet* traces = document.tracesOf(record);
  if (!hasSamples(traces)) {
    return Status::failure(Message::tr("shot %1 has no samples").arg(number));
  }
  const auto set = static_cast<std::size_t>(record.traceSetID);
  const Trace& first = traces->front();
  written = {};
  written.number = number;
  written.source = isFinite(record.shotPos2d) ? record.shotPos2d : first.sourcePosition;
  written.sampleInterval = first.sampleInterval;
  written.delay = startOf(first);
  std::size_t length = 0;
  for (const Trace& trace : *traces) {
    const std::size_t samples = trace.samples.size();
    const bool longer = samples > 0 && trace.samples[samples - 1] != 0.0;
    length = std::max(length, samples + (longer ? 1 : 0));
  }
  for (std::size_t i = 0; i < traces->size(); ++i) {
    const Trace& trace = (*traces)[i];
    if (trace.sampleInterval != first.sampleInterval || startOf(trace) != written.delay) {
      return uneven(number);
    }
    written.receivers.push_back(receiverOf(document, record, trace, i));
    written.dead.push_back(isDead(document, set, i));
    if (takeSamples(trace.samples, length, written.traces.emplace_back(), rounded)) continue;
    return Status::failure(
        Message::tr("shot %1, trace %2: a sample is too large for a file").arg(number).arg(i + 1));
  }
  return {};
}

Status writeRecord(const TomoDocument& document, std::size_t shot, int number, RecordFormat format,
                   const std::string& path, std::vector<Message>& notes) {
  WrittenShot written;
  std::size_t rounded = 0;
  Status status = writtenShotOf(document, shot, number, written, rounded);
  if (status.ok()) status = fits(written, format);
  if (!status.ok()) return status;
  const bool seg2 = format == RecordFormat::kSeg2;
  status = writeFileAtomically(path, seg2 ? formatSeg2(written) : formatSegy({written}));
  if (!status.ok()) return status;
  noteRounding(rounded, notes);
  if (!seg2) noteWhatRulesMiss(document, {shot}, notes);
  return status;
}

Status exportRecords(const TomoDocument& document, const RecordExport& wanted,
                     std::vector<Message>& notes,
                     const std::function<bool(std::size_t)>& progress) {
  const std::vector<std::size_t> shots = shotsToWrite(document);
  if (shots.empty()) return Status::failure(Message::tr("the survey has no records to be written"));
  std::size_t rounded = 0;
  std::size_t ignored = 0;
  Status status = forEachRecord(
      document, shots,
      [&](std::size_t, const WrittenShot& shot) { return fits(shot, wanted.format); }, {}, rounded);
  if (!status.ok()) return status;

  const std::vector<std::string> files = filesOf(shots, document.ttArray.size(), wanted);
  std::vector<WrittenShot> all;
  status = forEachRecord(
      document, shots,
      [&](std::size_t i, WrittenShot shot) {
        if (wanted.together) {
          all.push_back(std::move(shot));
          return Status();
        }
        const bool seg2 = wanted.format == RecordFormat::kSeg2;
        return writeFileAtomically(files[i], seg2 ? formatSeg2(shot) : formatSegy({shot}));
      },
      progress, ignored);
  if (status.ok() && wanted.together) status = writeFileAtomically(files.front(), formatSegy(all));
  if (!status.ok()) return status;
  noteWhatIsLeftOut(document, shots.size(), rounded, notes);
  if (wanted.format == RecordFormat::kSegy) noteWhatRulesMiss(document, shots, notes);
  return status;
}

}  // namespace talvesk
