#include "io/project/SourceCopies.h"

#include "base/Console.h"
#include "base/SampleStore.h"
#include "io/EntryName.h"
#include "io/project/OwnMembers.h"
#include "io/project/ProjectAssembly.h"
#include "io/project/ProjectMembers.h"
#include "model/Recordings.h"

#include <filesystem>
#include <map>
#include <system_error>

namespace talvesk {
namespace {

namespace fs = std::filesystem;

bool isMember(const std::string& name) {
  return isCommonMember(name) || isOwnMemberName(name);
}

bool copyOver(const std::string& source, const std::string& target) {
  std::error_code error;
  // Reading a pipe or a device may never end.
  if (!fs::is_regular_file(source, error)) return false;
  return fs::copy_file(source, target, fs::copy_options::overwrite_existing, error) && !error;
}

bool sameSamples(const TraceSet& kept, TraceSet read) {
  if (kept.size() != read.size()) return false;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    dropFirstSamples(read[i], kept[i].droppedSamples);
    if (kept[i].samples != read[i].samples || kept[i].samplesDX != read[i].samplesDX ||
        kept[i].samplesSX != read[i].samplesSX) {
      return false;
    }
  }
  return true;
}

/// The traces that the files of a set give. Sets that are shots of one file have it read once.
class SetReader {
 public:
  explicit SetReader(const std::string& folder) : mFolder(folder) {}

  /// None when the files cannot be read. \param state in: as before these files
  const TraceSet* read(const SetFiles& names, const SegyState& state) {
    if (mKnown && same(names, mNames)) return mReadable ? &mTraces : nullptr;
    Message why;
    mAfter = state;
    mTraces.clear();
    mNames = names;
    mReadable = readSetFiles(mFolder, names, mAfter, mTraces, why);
    mKnown = true;
    return mReadable ? &mTraces : nullptr;
  }

  /// What the readers remember when they go on from the files that were read last.
  SegyState goOn() {
    mKnown = false;  // what comes of the same files again may be something else
    return mAfter;
  }

 private:
  static bool same(const SetFiles& a, const SetFiles& b) {
    return a.main == b.main && a.dx == b.dx && a.sx == b.sx;
  }

  std::string mFolder;
  SetFiles mNames;
  SegyState mAfter;
  TraceSet mTraces;
  bool mKnown = false;
  bool mReadable = false;
};

}  // namespace

SourceCopies copySources(const std::vector<const std::vector<std::string>*>& lists,
                         const std::string& folder) {
  SourceCopies copies;
  std::map<std::string, std::string> sourceOf;  // by bare name
  for (const auto* list : lists) {
    for (const std::string& source : *list) {
      const std::string name = bareName(source);
      if (name.empty()) continue;
      const auto known = sourceOf.find(name);
      if (known != sourceOf.end() && known->second == source) continue;
      const std::string target = folder + name;
      if (isMember(name) || !isEntryName(name) || !copyOver(source, target)) {
        console::logError("Error while saving " + source);
        copies.warnings.push_back(
            Message::tr("The shot file %1 could not be copied; its traces are saved without it.")
                .arg(source));
        continue;
      }
      if (known != sourceOf.end()) {
        copies.warnings.push_back(Message::tr("Of the shot files %1 and %2 only the second is in "
                                              "the project; the traces of both are.")
                                      .arg(known->second)
                                      .arg(source));
      } else {
        copies.files.push_back(target);
      }
      sourceOf[name] = source;
    }
  }
  return copies;
}

std::vector<bool> setsWithoutFile(const TomoDocument& document, const std::string& folder) {
  // What is read only to be compared is gone before the next.
  const SampleStore::Choice inMemory(SamplesOnDisk::kNever);
  std::vector<bool> without(document.recordings->traceSets.size(), true);
  SegyState state;
  SetReader reader(folder);
  for (std::size_t set = 0; set < without.size(); ++set) {
    SetFiles names = filesOfSet(document.recordings->filenames, document.recordings->filenames_DX,
                                document.recordings->filenames_SX, set);
    for (std::string* name : {&names.main, &names.dx, &names.sx}) *name = bareName(*name);
    if (names.none()) continue;
    const TraceSet* read = reader.read(names, state);
    if (read == nullptr || !sameSamples(document.recordings->traceSets[set], *read)) continue;
    without[set] = false;
    state = reader.goOn();
  }
  return without;
}

}  // namespace talvesk
