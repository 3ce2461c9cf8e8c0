#include "io/TraceHeaders.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <ostream>
#include <set>
#include <utility>

namespace talvesk {
namespace {

using Kind = HeaderColumn::Kind;

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
constexpr double kMilliseconds = 1e3;
constexpr double kLongestInterval = 1e6;  ///< seconds; traces without one have the largest number
constexpr int kDigits = 9;                ///< of numbers in files; single precision needs no more
constexpr std::size_t kMostFieldColumns = 400;

/// The trace that a row is about.
struct Row {
  const TomoDocument& document;
  std::size_t set;
  std::size_t shot;  ///< its record, else the set
  std::size_t index;
  const Trace& trace;
  const TravelTime* record;   ///< null where the set has none
  const RecordingNote* note;  ///< null where nothing is known of the recording

  const TraceMend& mend() const { return mendOf(mendsOf(document.recordings->mends, set), index); }
  Point2D geophone() const {
    if (record == nullptr || record->indexStesa < 0) return {kUnknown, kUnknown};
    const auto& strings = document.line->goephonesStringSet;
    const auto string = static_cast<std::size_t>(record->indexStesa);
    const bool there = string < strings.size() && index < strings[string].size();
    return there ? strings[string][index] : Point2D{kUnknown, kUnknown};
  }
  double pick() const {
    const bool picked = record != nullptr && index < record->ttMisurati.size() &&
                        hasPick(record->ttMisurati[index]);
    return picked ? record->ttMisurati[index] : kUnknown;
  }
  bool sampled() const {
    return trace.sampleInterval > 0.0 && trace.sampleInterval < kLongestInterval;
  }
};

/// Per trace set the first record that is of it; the number of records where none is.
std::vector<std::size_t> recordsOfSets(const TomoDocument& document) {
  const std::vector<TravelTime>& records = document.ttArray;
  std::vector<std::size_t> of(document.recordings->traceSets.size(), records.size());
  for (std::size_t record = records.size(); record-- > 0;) {
    const std::int32_t set = records[record].traceSetID;
    if (set >= 0 && static_cast<std::size_t>(set) < of.size()) {
      of[static_cast<std::size_t>(set)] = record;
    }
  }
  return of;
}

Row rowIn(const TomoDocument& document, std::size_t set, std::size_t record, std::size_t trace) {
  const Recordings& recordings = *document.recordings;
  const std::vector<TravelTime>& records = document.ttArray;
  const bool known = record < records.size();
  return {document,
          set,
          known ? record : set,
          trace,
          recordings.traceSets[set][trace],
          known ? &records[record] : nullptr,
          set < recordings.notes.size() ? &recordings.notes[set] : nullptr};
}

std::vector<Message> one(const std::string& text) {
  return text.empty() ? std::vector<Message>() : std::vector<Message>{text};
}

std::vector<Message> fileOf(const Row& row) {
  const std::string path = shotFile(row.document, row.set);
  return one(path.substr(path.find_last_of("/\\") + 1));
}

std::vector<Message> readerOf(const Row& row) {
  if (row.note == nullptr) return {};
  return {row.note->reader == ShotReader::kRules ? Message::tr("the program's rules")
                                                 : Message::tr("the standard of its format")};
}

std::vector<Message> mendsOfRow(const Row& row) {
  std::vector<Message> words;
  const ShotMends& shot = mendsOf(row.document.recordings->mends, row.set);
  if (shot.disabled) words.push_back(Message::tr("shot disabled"));
  if (shot.timeShift != 0.0) {
    words.push_back(Message::tr("shifted by %1 ms").arg(kMilliseconds * shot.timeShift));
  }
  if (shot.orderReversed) words.push_back(Message::tr("order reversed"));
  if (!shot.stackedWith.empty()) words.push_back(Message::tr("stacked"));
  const TraceMend& mend = row.mend();
  if (mend.killed) words.push_back(Message::tr("killed"));
  if (mend.reversed) words.push_back(Message::tr("polarity reversed"));
  if (mend.mutedBefore > 0.0) {
    words.push_back(Message::tr("muted before %1 ms").arg(kMilliseconds * mend.mutedBefore));
  }
  if (mend.gain != 1.0) words.push_back(Message::tr("gain %1").arg(mend.gain));
  return words;
}

std::vector<Message> filtersOfRow(const Row& row) {
  if (row.trace.filtered.empty()) return {};
  std::vector<Message> words;
  for (const FilterStep& step : filtersOf(*row.document.recordings, row.set)) {
    words.push_back(describe(step));
  }
  if (words.empty()) words.push_back(Message::tr("filtered"));
  return words;
}

/// How a known column is called and where its cells come from.
struct Source {
  const char* name;
  Message title;
  Kind kind;
  double (*number)(const Row&);
  std::vector<Message> (*words)(const Row&);
};

Source text(const char* name, Message title, std::vector<Message> (*words)(const Row&)) {
  return {name, std::move(title), Kind::kText, nullptr, words};
}

Source number(const char* name, Message title, Kind kind, double (*value)(const Row&)) {
  return {name, std::move(title), kind, value, nullptr};
}

std::vector<Source> placeSources() {
  return {
      number(
          "shot", Message::tr("Shot"), Kind::kCount,
          [](const Row& row) { return row.record ? static_cast<double>(row.shot + 1) : kUnknown; }),
      number("trace", Message::tr("Trace"), Kind::kCount,
             [](const Row& row) { return static_cast<double>(row.index + 1); }),
      text("file", Message::tr("File"), fileOf),
      text("record", Message::tr("Record"),
           [](const Row& row) { return row.note ? one(row.note->nameInFile) : one({}); }),
      number("shot_x_m", Message::tr("Shot x"), Kind::kLength,
             [](const Row& row) { return row.record ? row.record->shotPos2d.x : kUnknown; }),
      number("shot_elevation_m", Message::tr("Shot elevation"), Kind::kLength,
             [](const Row& row) { return row.record ? row.record->shotPos2d.z : kUnknown; }),
      number("geophone_x_m", Message::tr("Geophone x"), Kind::kLength,
             [](const Row& row) { return row.geophone().x; }),
      number("geophone_elevation_m", Message::tr("Geophone elevation"), Kind::kLength,
             [](const Row& row) { return row.geophone().z; }),
      number("offset_m", Message::tr("Offset"), Kind::kLength,
             [](const Row& row) {
               return row.record ? row.geophone().x - row.record->shotPos2d.x : kUnknown;
             }),
      number("pick_ms", Message::tr("Pick"), Kind::kMilliseconds,
             [](const Row& row) { return kMilliseconds * row.pick(); }),
      number("pick_error_ms", Message::tr("Pick error"), Kind::kMilliseconds,
             [](const Row& row) {
               const double error = row.record ? row.record->errorOf(row.index) : 0.0;
               return error > 0.0 ? kMilliseconds * error : kUnknown;
             }),
  };
}

std::vector<Source> recordingSources() {
  return {
      number("sample_interval_ms", Message::tr("Sample interval"), Kind::kMilliseconds,
             [](const Row& row) {
               return row.sampled() ? kMilliseconds * row.trace.sampleInterval : kUnknown;
             }),
      number("samples", Message::tr("Samples"), Kind::kCount,
             [](const Row& row) { return static_cast<double>(row.trace.samples.size()); }),
      number("length_ms", Message::tr("Record length"), Kind::kMilliseconds,
             [](const Row& row) {
               const auto samples = static_cast<double>(row.trace.samples.size());
               return row.sampled() ? kMilliseconds * row.trace.sampleInterval * samples : kUnknown;
             }),
      number("delay_ms", Message::tr("Delay"), Kind::kMilliseconds,
             [](const Row& row) { return kMilliseconds * row.trace.delay; }),
      number("dropped_samples", Message::tr("Samples cut off"), Kind::kCount,
             [](const Row& row) { return static_cast<double>(row.trace.droppedSamples); }),
      text("mends", Message::tr("Mends"), mendsOfRow),
      text("filters", Message::tr("Filters"), filtersOfRow),
      number("source_x_in_file_m", Message::tr("Shot x in file"), Kind::kLength,
             [](const Row& row) { return row.trace.sourcePosition.x; }),
      number("source_elevation_in_file_m", Message::tr("Shot elevation in file"), Kind::kLength,
             [](const Row& row) { return row.trace.sourcePosition.z; }),
      number("receiver_x_in_file_m", Message::tr("Geophone x in file"), Kind::kLength,
             [](const Row& row) { return row.trace.receiverPosition.x; }),
      number("receiver_elevation_in_file_m", Message::tr("Geophone elevation in file"),
             Kind::kLength, [](const Row& row) { return row.trace.receiverPosition.z; }),
      text("format", Message::tr("Format"),
           [](const Row& row) { return row.note ? one(row.note->format) : one({}); }),
      text("reader", Message::tr("Reader"), readerOf),
  };
}

const std::vector<Source>& sources() {
  static const std::vector<Source> all = [] {
    std::vector<Source> list = placeSources();
    std::vector<Source> more = recordingSources();
    list.insert(list.end(), more.begin(), more.end());
    return list;
  }();
  return all;
}

/// Reads the fields of the file of a shot; fails where they cannot be told to its traces.
Status fieldsOfSet(const TomoDocument& document, std::size_t set, ShotFileFields& fields) {
  const Recordings& recordings = *document.recordings;
  const std::size_t traces = recordings.traceSets[set].size();
  const std::string path = shotFile(document, set);
  if (path.empty()) return Status::failure(Message::tr("it has no shot file"));
  const bool pair = set < recordings.filenames_SX.size() && !recordings.filenames_SX[set].empty();
  if (pair) return Status::failure(Message::tr("it is made of two shot files"));
  std::string bytes;
  Status status = readWholeFile(path, bytes);
  if (status.ok()) status = readShotFileFields(bytes, path, fields);
  if (!status.ok()) return status;
  if (fields.traces.size() == traces) return {};
  return Status::failure(
      Message::tr("its file has %1 traces, the shot %2").arg(fields.traces.size()).arg(traces));
}

/// A field of CSV: in quotation marks where it holds what separates.
std::string quotedField(const std::string& text) {
  if (text.find_first_of(",\"\n\r") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + '"';
}

/// Names the fields without a column, one of them as an example.
Message describeLeftOut(const std::map<std::string, std::size_t>& known,
                        std::set<std::string> leftOut) {
  for (const auto& [name, column] : known) {
    if (column >= kMostFieldColumns) leftOut.insert(name);
  }
  if (leftOut.empty()) return {};
  if (leftOut.size() >= kMostLeftOut) {
    return Message::tr("%1 fields or more that there is no room for, among them %2")
        .arg(kMostLeftOut)
        .arg(*leftOut.begin());
  }
  return Message::tr("%1 fields that there is no room for, among them %2")
      .arg(leftOut.size())
      .arg(*leftOut.begin());
}

std::string cellOf(const TraceHeaders& headers, std::size_t row, std::size_t column) {
  if (headers.columns()[column].kind != Kind::kText) {
    const double value = headers.number(row, column);
    return std::isfinite(value) ? formatDouble(value, kDigits) : std::string();
  }
  std::string text;
  for (const Message& word : headers.words(row, column)) {
    if (!text.empty()) text += "; ";
    text += word.english();
  }
  return quotedField(text);
}

}  // namespace

TraceHeaders::TraceHeaders(TomoDocument document)
    : mDocument(std::move(document)), mRecords(recordsOfSets(mDocument)) {
  mStarts.push_back(0);
  for (const TraceSet& set : mDocument.recordings->traceSets) {
    mStarts.push_back(mStarts.back() + set.size());
  }
  for (const Source& source : sources()) {
    mColumns.push_back({source.name, source.title, source.kind});
  }
}

std::size_t TraceHeaders::setOf(std::size_t row) const {
  const auto after = std::upper_bound(mStarts.begin(), mStarts.end(), row);
  return static_cast<std::size_t>(after - mStarts.begin()) - 1;
}

std::size_t TraceHeaders::traceOf(std::size_t row) const {
  return row - mStarts[setOf(row)];
}

std::size_t TraceHeaders::rowOf(std::size_t set, std::size_t trace) const {
  if (set + 1 >= mStarts.size() || trace >= mStarts[set + 1] - mStarts[set]) return rows();
  return mStarts[set] + trace;
}

double TraceHeaders::number(std::size_t row, std::size_t column) const {
  if (column >= sources().size() || sources()[column].number == nullptr) return kUnknown;
  const std::size_t set = setOf(row);
  return sources()[column].number(rowIn(mDocument, set, mRecords[set], row - mStarts[set]));
}

std::vector<Message> TraceHeaders::words(std::size_t row, std::size_t column) const {
  const std::size_t set = setOf(row);
  const std::size_t trace = row - mStarts[set];
  if (column >= sources().size()) return one(fieldOf(set, trace, column - sources().size()));
  if (sources()[column].words == nullptr) return {};
  return sources()[column].words(rowIn(mDocument, set, mRecords[set], trace));
}

const std::string& TraceHeaders::fieldOf(std::size_t set, std::size_t trace,
                                         std::size_t column) const {
  static const std::string kNone;
  if (set >= mFields.size() || trace >= mFields[set].size()) return kNone;
  const std::vector<std::string>& fields = mFields[set][trace];
  return column < fields.size() ? fields[column] : kNone;
}

/// Beyond the last column where there is no room for it.
std::size_t TraceHeaders::fieldColumn(const std::string& name,
                                      std::map<std::string, std::size_t>& known) {
  if (known.size() >= kMostFieldColumns + kMostLeftOut && known.count(name) == 0) {
    return kMostFieldColumns;
  }
  const auto [place, isNew] = known.emplace(name, known.size());
  if (isNew && place->second < kMostFieldColumns) mColumns.push_back({name, name, Kind::kText});
  return place->second;
}

void TraceHeaders::addFieldsOfFiles(std::vector<Message>& notes) {
  const std::vector<TraceSet>& sets = mDocument.recordings->traceSets;
  mColumns.resize(sources().size());
  mFields.assign(sets.size(), {});
  mLeftOut = {};
  std::map<std::string, std::size_t> known;
  std::set<std::string> leftOut;
  for (std::size_t set = 0; set < sets.size(); ++set) {
    ShotFileFields fields;
    if (const Status status = fieldsOfSet(mDocument, set, fields); !status.ok()) {
      const bool hasRecord = mRecords[set] < mDocument.ttArray.size();
      notes.push_back(hasRecord
                          ? Message::tr("shot %1: %2").arg(mRecords[set] + 1).arg(status.text())
                          : joined(Message(shotFile(mDocument, set)), status.text()));
      continue;
    }
    if (leftOut.size() < kMostLeftOut) leftOut.merge(fields.leftOut);
    const bool turned = mendsOf(mDocument.recordings->mends, set).orderReversed;
    mFields[set].resize(sets[set].size());
    for (std::size_t trace = 0; trace < sets[set].size(); ++trace) {
      std::vector<std::string>& cells = mFields[set][trace];
      const std::size_t channel = turned ? sets[set].size() - 1 - trace : trace;
      for (const auto* list : {&fields.common, &fields.traces[channel]}) {
        for (const FileField& field : *list) {
          const std::size_t column = fieldColumn(field.name, known);
          if (column >= kMostFieldColumns) continue;
          if (cells.size() <= column) cells.resize(column + 1);
          std::string& cell = cells[column];
          cell += cell.empty() || field.value.empty() ? field.value : "; " + field.value;
        }
      }
    }
  }
  mLeftOut = describeLeftOut(known, std::move(leftOut));
}

void TraceHeaders::takeFieldsOfFiles(TraceHeaders other) {
  mColumns = std::move(other.mColumns);
  mFields = std::move(other.mFields);
  mLeftOut = std::move(other.mLeftOut);
}

Status writeTraceHeaders(const std::string& path, const TraceHeaders& headers) {
  return writeTextAtomically(path, [&headers](std::ostream& out) {
    const std::size_t columns = headers.columns().size();
    for (std::size_t column = 0; column < columns; ++column) {
      out << (column == 0 ? "" : ",") << quotedField(headers.columns()[column].name);
    }
    out << '\n';
    for (std::size_t row = 0; row < headers.rows(); ++row) {
      for (std::size_t column = 0; column < columns; ++column) {
        out << (column == 0 ? "" : ",") << cellOf(headers, row, column);
      }
      out << '\n';
    }
  });
}

}  // namespace talvesk
