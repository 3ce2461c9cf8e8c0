#include "io/TravelTimeFile.h"

#include "base/AtomicFile.h"
#include "base/Console.h"
#include "io/FileFormats.h"
#include "io/OtteFile.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <ostream>
#include <string_view>
#include <utility>

namespace talvesk {
namespace {

/// A survey's picks take kilobytes; what is larger is no travel-time file.
constexpr std::size_t kLargestFile = std::size_t{256} << 20;

Status unknownFormat(const std::string& path) {
  console::error() << "Invalid input TT file : " << path << std::endl;
  return Status::failure(Message::tr("Invalid input TT file : %1 (its suffix is none of %2)")
                             .arg(path)
                             .arg(travelTimeSuffixes()));
}

Status checkPositions(const TomoDocument& document) {
  for (std::size_t s = 0; s < document.line->goephonesStringSet.size(); ++s) {
    for (const Point2D& geophone : document.line->goephonesStringSet[s]) {
      if (!isFinite(geophone)) {
        return Status::failure(
            Message::tr("a geophone of string %1 has no finite position; edit the geometry first")
                .arg(s + 1));
      }
    }
  }
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    if (!isFinite(document.ttArray[i].shotPos2d)) {
      return Status::failure(
          Message::tr("shot %1 has no finite position; edit the geometry first").arg(i + 1));
    }
  }
  return {};
}

/// The format does not say where a string ends, so that some surveys do not come back as they were.
void warnOfWhatIsLost(const std::string& path, const std::string& text,
                      const TomoDocument& document) {
  std::string version;
  TravelTimeData restored;
  const auto refusal = readOtte(text, version, restored);
  std::string loss;
  if (refusal) loss = "it cannot be read back: " + refusal->reason.english();
  for (std::size_t i = 0; loss.empty() && i < restored.strings.size(); ++i) {
    if (restored.strings[i].size() != document.line->goephonesStringSet[i].size()) {
      loss =
          "read back, string " + std::to_string(i + 1) + " will have another number of geophones";
    }
  }
  if (!loss.empty()) console::error() << "Warning: " << path << ": " << loss << std::endl;
}

}  // namespace

Status parseTravelTimes(std::string_view bytes, const std::string& path, TravelTimeData& data) {
  const TravelTimeFormat* format = travelTimeFormatOf(path);
  if (format == nullptr) return unknownFormat(path);
  TravelTimeData read;
  if (const auto refusal = format->read(bytes, read)) {
    Message message =
        Message::tr("%1, line %2: %3").arg(path).arg(refusal->line).arg(refusal->reason);
    const bool ownText = !refusal->consoleText.empty();
    console::error() << (ownText ? refusal->consoleText : message.english()) << std::endl;
    return Status::failure(std::move(message));
  }
  for (const std::string& warning : read.warnings) {
    console::error() << "Warning: " << path << ": " << warning << std::endl;
  }
  data = std::move(read);
  data.format = format->id;
  return {};
}

Status readTravelTimes(const std::string& path, TravelTimeData& data) {
  if (travelTimeFormatOf(path) == nullptr) return unknownFormat(path);
  std::string bytes;
  if (const Status opened = readWholeFile(path, bytes, kLargestFile); !opened.ok()) {
    Message message = Message::tr("File %1 cannot be open.").arg(path);
    console::error() << message << std::endl;
    return Status::failure(Message::tr("%1 %2").arg(std::move(message)).arg(opened.text()));
  }
  return parseTravelTimes(bytes, path, data);
}

Status loadTravelTimes(const std::string& path, TomoDocument& document) {
  TravelTimeData data;
  if (Status read = readTravelTimes(path, data); !read.ok()) return read;
  fitToRecords(data, document);
  Status imported = importTravelTimes(std::move(data), document);
  if (imported.ok()) return imported;
  Message message = joined(path, imported.text());
  console::error() << message << std::endl;
  return Status::failure(std::move(message));
}

Status writeTravelTimes(const std::string& path, const TomoDocument& document) {
  if (const Status positions = checkPositions(document); !positions.ok()) {
    Message message = Message::tr("Cannot write %1: %2").arg(path).arg(positions.text());
    console::error() << message << std::endl;
    return Status::failure(std::move(message));
  }
  const std::string text = exchangeFormat().write(document);
  warnOfWhatIsLost(path, text, document);
  Status written = writeFileAtomically(path, text);
  if (!written.ok()) console::error() << written.message() << std::endl;
  return written;
}

}  // namespace talvesk
