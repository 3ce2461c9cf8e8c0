#include "io/standard/StandardReader.h"

#include "base/AtomicFile.h"
#include "base/Console.h"
#include "io/FileFormats.h"
#include "io/standard/MiniSeed.h"
#include "io/standard/Seg2Standard.h"
#include "io/standard/SegyStandard.h"
#include "io/standard/SuStandard.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kHeadBytes = 8192;

Status failed(const std::string& path, Message reason) {
  Message message = joined(path, std::move(reason));
  console::error() << message << std::endl;
  return Status::failure(std::move(message));
}

/// Tables of numbers and other texts; ASCII, so that no half letter at the end matters.
bool isText(std::string_view head) {
  return !head.empty() && std::all_of(head.begin(), head.end(), [](char c) {
    return (c >= ' ' && c <= '~') || (c >= '\t' && c <= '\r');
  });
}

std::string formatNames() {
  std::string names;
  for (const StandardFormat& format : standardFormats()) {
    names += std::string(names.empty() ? "" : ", ") + format.name;
  }
  return names;
}

/// The formats that the bytes may be of, the likeliest first. One that is sure stands alone.
std::vector<const StandardFormat*> candidates(std::string_view bytes, const std::string& path) {
  const std::string_view head = bytes.substr(0, kHeadBytes);
  std::vector<const StandardFormat*> perhaps;
  for (const StandardFormat& format : standardFormats()) {
    const Likelihood likelihood = format.likelihood(head, bytes.size());
    if (likelihood == Likelihood::kYes) return {&format};
    if (likelihood == Likelihood::kPerhaps) perhaps.push_back(&format);
  }
  if (isText(head)) return {};
  const ShotFormat* const bySuffix = shotFormatOf(path);
  std::stable_partition(perhaps.begin(), perhaps.end(), [bySuffix](const StandardFormat* format) {
    return bySuffix != nullptr && std::string_view(bySuffix->id) == format->id;
  });
  return perhaps;
}

Message noFormat(std::string_view bytes) {
  if (bytes.empty()) return Message::tr("the file is empty");
  if (isText(bytes.substr(0, kHeadBytes))) {
    return Message::tr(
               "it is a text file, and no record of shots in %1; open a table of picks or "
               "positions as travel times or geometry")
        .arg(formatNames());
  }
  return Message::tr("by its content it is no file of %1").arg(formatNames());
}

void tellWarnings(const std::string& path, const StandardReading& reading) {
  std::ostream& error = console::error();
  for (const Message& warning : reading.warnings) {
    error << "Warning: " << path << ": " << warning << '\n';
  }
  if (!reading.split.empty()) error << "Warning: " << path << ": " << reading.split << '\n';
  for (const StandardReading::Shot& shot : reading.shots) {
    for (const Message& warning : shot.data.warnings) {
      error << "Warning: " << path << ": " << (shot.name.empty() ? "" : shot.name + ": ") << warning
            << '\n';
    }
  }
  error.flush();
}

}  // namespace

const std::vector<StandardFormat>& standardFormats() {
  static const std::vector<StandardFormat> kFormats = {
      {"seg2", "SEG-2", likelihoodOfSeg2, readSeg2ByStandard},
      {"segy", "SEG-Y", likelihoodOfSegy, readSegyByStandard},
      {"su", "SU", likelihoodOfSu, readSuByStandard},
      {"mseed", "miniSEED", likelihoodOfMiniSeed, readMiniSeedByStandard},
  };
  return kFormats;
}

Status parseByStandard(std::string_view bytes, const std::string& path, StandardReading& reading) {
  Message reason;
  for (const StandardFormat* format : candidates(bytes, path)) {
    console::out() << "opening " << format->id << " file " << path << '\n';
    const Status read = format->read(bytes, reading);
    if (read.ok()) {
      if (!reading.split.empty()) {
        reading.split = Message::tr("it holds %1 shots, told apart by %2")
                            .arg(reading.shots.size())
                            .arg(std::move(reading.split));
      }
      tellWarnings(path, reading);
      return {};
    }
    if (reason.empty()) reason = read.text();
  }
  return failed(path, reason.empty() ? noFormat(bytes) : std::move(reason));
}

Status readByStandard(const std::string& path, StandardReading& reading) {
  std::string bytes;
  if (const Status opened = readWholeFile(path, bytes); !opened.ok()) {
    Message message = Message::tr("Error while loading %1").arg(path);
    console::error() << message << std::endl;
    return Status::failure(Message::tr("%1. %2").arg(std::move(message)).arg(opened.text()));
  }
  return parseByStandard(bytes, path, reading);
}

}  // namespace talvesk
