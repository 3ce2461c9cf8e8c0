#include "io/project/ProjectReaders.h"

#include "base/PlainText.h"
#include "io/EntryName.h"
#include "io/standard/StandardReader.h"
#include "model/Recordings.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

/// Longer ones no reader gives a record.
constexpr std::size_t kLongestName = 200;

bool byStandard(const RecordingNote& note) {
  return note.reader == ShotReader::kStandard;
}

std::string fileOf(const Recordings& recordings, std::size_t set) {
  return set < recordings.filenames.size() ? withoutControls(bareName(recordings.filenames[set]))
                                           : std::string();
}

/// Read by the standard, or a shot with a name that no file gives: one that was made of two.
bool isToKeep(const Recordings& recordings, std::size_t set) {
  if (set >= recordings.notes.size()) return false;
  const RecordingNote& note = recordings.notes[set];
  return byStandard(note) || (!note.nameInFile.empty() && fileOf(recordings, set).empty());
}

bool isFormat(const std::string& id) {
  const std::vector<StandardFormat>& formats = standardFormats();
  return std::any_of(formats.begin(), formats.end(),
                     [&](const StandardFormat& format) { return format.id == id; });
}

bool fits(const ReadersMember& member, const Recordings& recordings) {
  if (member.sets.size() != recordings.traceSets.size()) return false;
  for (std::size_t i = 0; i < member.sets.size(); ++i) {
    const StoredReader& stored = member.sets[i];
    const bool rules = stored.reader == ShotReader::kRules;
    if (rules && stored.name.empty()) continue;
    if (!rules && (stored.reader != ShotReader::kStandard || !isFormat(stored.format))) {
      return false;
    }
    if (stored.name.size() > kLongestName || stored.file != fileOf(recordings, i)) return false;
  }
  return true;
}

}  // namespace

std::optional<ReadersMember> readersOf(const TomoDocument& document) {
  const Recordings& recordings = *document.recordings;
  ReadersMember member;
  member.sets.resize(recordings.traceSets.size());
  bool any = false;
  for (std::size_t i = 0; i < member.sets.size(); ++i) {
    if (!isToKeep(recordings, i)) continue;
    any = true;
    const RecordingNote& note = recordings.notes[i];
    StoredReader& stored = member.sets[i];
    stored.name = beginningOf(withoutControls(note.nameInFile), kLongestName);
    if (!byStandard(note)) continue;
    stored.file = fileOf(recordings, i);
    stored.reader = note.reader;
    stored.format = note.format;
    stored.record = note.recordInFile;
  }
  if (!any) return std::nullopt;
  return member;
}

Status installReaders(ReadersMember member, TomoDocument& document) {
  if (!fits(member, *document.recordings)) {
    return Status::failure(Message::tr("it is about other shot files than those of the project"));
  }
  Recordings& recordings = document.recordings.edit();
  for (std::size_t i = 0; i < member.sets.size(); ++i) {
    StoredReader& stored = member.sets[i];
    const bool standard = stored.reader == ShotReader::kStandard;
    if (!standard && stored.name.empty()) continue;
    RecordingNote& note = recordings.noteOf(i);
    note.nameInFile = withoutControls(std::move(stored.name));
    if (!standard) continue;
    note.reader = stored.reader;
    note.format = std::move(stored.format);
    note.recordInFile = static_cast<std::size_t>(stored.record);
  }
  return {};
}

}  // namespace talvesk
