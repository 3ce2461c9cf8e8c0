#include "io/ReadShotFile.h"

#include "base/Console.h"
#include "io/FileFormats.h"
#include "io/ShotFile.h"
#include "io/standard/StandardReader.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

/// A warning that several shots of a file share is told once.
std::vector<Message> warningsOfShots(const std::vector<StandardReading::Shot>& shots) {
  struct Group {
    Message warning;
    std::string firstName;
    std::size_t shots = 0;
  };
  std::vector<Group> groups;
  for (const StandardReading::Shot& shot : shots) {
    for (const Message& warning : shot.data.warnings) {
      const auto known = std::find_if(groups.begin(), groups.end(),
                                      [&](const Group& group) { return group.warning == warning; });
      if (known != groups.end()) {
        ++known->shots;
      } else {
        groups.push_back({warning, shot.name, 1});
      }
    }
  }
  std::vector<Message> lines;
  for (Group& group : groups) {
    Message who = group.firstName;
    if (group.shots > 1) who = Message::tr("%1 and %2 more").arg(who).arg(group.shots - 1);
    lines.push_back(who.empty() ? std::move(group.warning)
                                : joined(std::move(who), std::move(group.warning)));
  }
  return lines;
}

void readByRules(ReadShotFile& file, SegyState& state) {
  StandardReading::Shot shot;
  file.outcome.status = readShotFile(file.outcome.path, state, shot.data);
  if (!file.outcome.status.ok()) return;
  file.outcome.format = shot.data.format;
  file.outcome.warnings = shot.data.warnings;
  file.shots.push_back(std::move(shot));
}

void readByItsStandard(ReadShotFile& file) {
  ShotFileOutcome& outcome = file.outcome;
  StandardReading reading;
  outcome.status = readByStandard(outcome.path, reading);
  if (!outcome.status.ok()) return;
  outcome.format = reading.format;
  if (!reading.split.empty()) file.common.push_back(std::move(reading.split));
  for (Message& warning : reading.warnings) file.common.push_back(std::move(warning));
  file.shots = std::move(reading.shots);
  outcome.warnings = file.common;
  for (Message& warning : warningsOfShots(file.shots)) {
    outcome.warnings.push_back(std::move(warning));
  }
}

}  // namespace

std::size_t ReadShotFile::traceCount() const {
  std::size_t count = 0;
  for (const StandardReading::Shot& shot : shots) count += shot.data.traces.size();
  return count;
}

std::string shotFormatName(const std::string& id) {
  if (const ShotFormat* format = shotFormatNamed(id)) return format->name;
  for (const StandardFormat& format : standardFormats()) {
    if (format.id == id) return format.name;
  }
  return {};
}

ReadShotFile readShotFileBy(ShotReader reader, const std::string& path, SegyState& state) {
  ReadShotFile file;
  file.outcome.path = path;
  file.reader = reader;
  if (reader == ShotReader::kStandard) {
    readByItsStandard(file);
  } else {
    readByRules(file, state);
  }
  return file;
}

}  // namespace talvesk
