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

bool isFormat(const std::string& id) {
  const std::vector<StandardFormat>& formats = standardFormats();
  return std::any_of(formats.begin(), formats.end(),
                     [&](const StandardFormat& format) { return format.id == id; });
}

bool fits(const ReadersMember& member, const Recordings& recordings) {
  if (member.sets.size() != recordings.traceSets.size()) return false;
  for (std::size_t i = 0; i < member.sets.size(); ++i) {
    const StoredReader& stored = member.sets[i];
    if (stored.reader == ShotReader::kRules) continue;
    if (stored.reader != ShotReader::kStandard || !isFormat(stored.format) ||
        stored.name.size() > kLongestName || stored.file != fileOf(recordings, i)) {
      return false;
    }
  }
  return true;
}

}  // namespace

std::optional<ReadersMember> readersOf(const TomoDocument& document) {
  const Recordings& recordings = *document.recordings;
  if (std::none_of(recordings.notes.begin(), recordings.notes.end(), byStandard)) {
    return std::nullopt;
  }
  ReadersMember member;
  member.sets.resize(recordings.traceSets.size());
  const std::size_t known = std::min(recordings.notes.size(), member.sets.size());
  for (std::size_t i = 0; i < known; ++i) {
    const RecordingNote& note = recordings.notes[i];
    if (!byStandard(note)) continue;
    member.sets[i] = {fileOf(recordings, i), note.reader, note.format, note.recordInFile,
                      beginningOf(withoutControls(note.nameInFile), kLongestName)};
  }
  return member;
}

Status installReaders(ReadersMember member, TomoDocument& document) {
  if (!fits(member, *document.recordings)) {
    return Status::failure(Message::tr("it is about other shot files than those of the project"));
  }
  Recordings& recordings = document.recordings.edit();
  for (std::size_t i = 0; i < member.sets.size(); ++i) {
    StoredReader& stored = member.sets[i];
    if (stored.reader == ShotReader::kRules) continue;
    RecordingNote& note = recordings.noteOf(i);
    note.reader = stored.reader;
    note.format = std::move(stored.format);
    note.recordInFile = static_cast<std::size_t>(stored.record);
    note.nameInFile = withoutControls(std::move(stored.name));
  }
  return {};
}

}  // namespace talvesk
