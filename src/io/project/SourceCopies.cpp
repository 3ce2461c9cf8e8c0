#include "io/project/SourceCopies.h"

#include "base/Console.h"
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

bool sameSamples(const TraceSet& kept, TraceSet& read) {
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
  std::vector<bool> without(document.recordings->traceSets.size(), true);
  SegyState state;
  for (std::size_t set = 0; set < without.size(); ++set) {
    SetFiles names = filesOfSet(document.recordings->filenames, document.recordings->filenames_DX,
                                document.recordings->filenames_SX, set);
    for (std::string* name : {&names.main, &names.dx, &names.sx}) *name = bareName(*name);
    if (names.none()) continue;
    SegyState after = state;
    TraceSet read;
    Message why;
    if (!readSetFiles(folder, names, after, read, why)) continue;
    if (!sameSamples(document.recordings->traceSets[set], read)) continue;
    without[set] = false;
    state = after;
  }
  return without;
}

}  // namespace talvesk
