#include "io/TravelTimeFile.h"

#include "base/AtomicFile.h"
#include "base/Console.h"
#include "base/TableText.h"
#include "io/FileFormats.h"
#include "io/OtteFile.h"
#include "io/PickContent.h"
#include "io/UnifiedDataFile.h"
#include "model/TomoDocument.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <string_view>
#include <system_error>
#include <utility>

namespace talvesk {
namespace {

/// A survey's picks take kilobytes; what is larger is no travel-time file.
constexpr std::size_t kLargestFile = std::size_t{256} << 20;

/// What the user and what the console is told of a file that is given up.
struct Complaint {
  Message message;
  std::string console;

  Status tell() && {
    console::error() << console << std::endl;
    return Status::failure(std::move(message));
  }
};

Complaint unknownFormat(const std::string& path) {
  return {Message::tr("Invalid input TT file : %1 (its suffix is none of %2)")
              .arg(path)
              .arg(travelTimeSuffixes()),
          "Invalid input TT file : " + path};
}

Complaint refused(const std::string& path, const Refusal& refusal) {
  Message message = Message::tr("%1, line %2: %3").arg(path).arg(refusal.line).arg(refusal.reason);
  std::string text = refusal.consoleText.empty() ? message.english() : refusal.consoleText;
  return {std::move(message), std::move(text)};
}

bool isFileOfDisk(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

/// The bytes of a file that may be a table of text; nothing of others.
std::string textOfFile(const std::string& path) {
  std::string bytes;
  if (!isFileOfDisk(path)) return {};
  std::ifstream stream(path, std::ios::binary);
  std::array<char, 4096> head{};
  stream.read(head.data(), head.size());
  const auto count = static_cast<std::size_t>(stream.gcount());
  const std::string start = tableText({head.data(), count});
  if (start.find('\0') != std::string::npos) return {};
  return readWholeFile(path, bytes, kLargestFile).ok() ? tableText(bytes) : std::string();
}

Status checkPositions(const TravelTimeData& data) {
  for (std::size_t s = 0; s < data.strings.size(); ++s) {
    for (const Point2D& geophone : data.strings[s]) {
      if (!isFinite(geophone)) {
        return Status::failure(
            Message::tr("a geophone of string %1 has no finite position; edit the geometry first")
                .arg(s + 1));
      }
    }
  }
  for (std::size_t i = 0; i < data.records.size(); ++i) {
    if (!isFinite(data.records[i].shotPos2d)) {
      return Status::failure(
          Message::tr("shot %1 has no finite position; edit the geometry first").arg(i + 1));
    }
  }
  return {};
}

/// The exchange format does not say where a string ends, so that some surveys do not come back as
/// they were.
std::vector<Message> lostInOtte(const std::string& text, const TravelTimeData& data) {
  std::string version;
  TravelTimeData restored;
  std::vector<Message> lost;
  if (const auto refusal = readOtte(text, version, restored)) {
    lost.push_back(Message::tr("it cannot be read back: %1").arg(refusal->reason));
    return lost;
  }
  for (std::size_t i = 0; i < restored.strings.size(); ++i) {
    if (restored.strings[i].size() == data.strings[i].size()) continue;
    lost.push_back(
        Message::tr("read back, string %1 will have another number of geophones").arg(i + 1));
    break;
  }
  if (tellsErrors(data)) {
    lost.push_back(Message::tr("the format has no place for the errors of the picks"));
  }
  return lost;
}

Status writeAs(const TravelTimeFormat& format, const std::string& path, const TravelTimeData& data,
               std::vector<Message>& losses) {
  if (const Status positions = checkPositions(data); !positions.ok()) {
    Message message = Message::tr("Cannot write %1: %2").arg(path).arg(positions.text());
    console::error() << message << std::endl;
    return Status::failure(std::move(message));
  }
  const std::string text = format.write(data);
  Status written = writeFileAtomically(path, text);
  if (!written.ok()) {
    console::error() << written.message() << std::endl;
    return written;
  }
  losses = &format == &exchangeFormat() ? lostInOtte(text, data) : lostInUnifiedData(data);
  return {};
}

}  // namespace

Status parseTravelTimes(std::string_view bytes, const std::string& path, TravelTimeData& data,
                        const TravelTimeReading& reading) {
  TravelTimeData read;
  const PickContent* content = nullptr;
  std::optional<Refusal> byContent;
  const auto readByContent = [&] {
    const std::string text = tableText(bytes);
    content = pickContentOf(text);
    if (content == nullptr) return false;
    byContent = content->read(text, reading.timeUnit, read);
    return !byContent;
  };
  const auto accept = [&](const char* format) {
    for (const std::string& warning : read.warnings) {
      console::error() << "Warning: " << path << ": " << warning << std::endl;
    }
    data = std::move(read);
    data.format = format;
    return Status();
  };

  if (reading.byContent && readByContent()) return accept(content->id);
  const TravelTimeFormat* format = travelTimeFormatOf(path);
  std::optional<Refusal> bySuffix;
  if (format != nullptr) bySuffix = format->read(bytes, read);
  if (format != nullptr && !bySuffix) return accept(format->id);
  if (!reading.byContent && readByContent()) {
    if (bySuffix) {
      read.warnings.insert(
          read.warnings.begin(),
          Message::tr("it was read as %1; the reader of its suffix cannot read line %2")
              .arg(content->name)
              .arg(bySuffix->line));
    }
    return accept(content->id);
  }
  Complaint complaint = bySuffix ? refused(path, *bySuffix) : unknownFormat(path);
  if (byContent && !(bySuffix && bySuffix->reason == byContent->reason)) {
    complaint.message = Message::tr("%1; as %2, line %3: %4")
                            .arg(std::move(complaint.message))
                            .arg(content->name)
                            .arg(byContent->line)
                            .arg(byContent->reason);
  }
  return std::move(complaint).tell();
}

Status readTravelTimes(const std::string& path, TravelTimeData& data,
                       const TravelTimeReading& reading) {
  const bool known = travelTimeFormatOf(path) != nullptr;
  if (!known && !isFileOfDisk(path)) return unknownFormat(path).tell();
  std::string bytes;
  if (const Status opened = readWholeFile(path, bytes, kLargestFile); !opened.ok()) {
    if (!known) return unknownFormat(path).tell();
    Message message = Message::tr("File %1 cannot be open.").arg(path);
    std::string text = message.english();
    return Complaint{Message::tr("%1 %2").arg(std::move(message)).arg(opened.text()),
                     std::move(text)}
        .tell();
  }
  return parseTravelTimes(bytes, path, data, reading);
}

bool holdsTravelTimes(const std::string& path) {
  return pickContentOf(textOfFile(path)) != nullptr;
}

bool asksForTimeUnit(const std::string& path) {
  return lacksTimeUnit(textOfFile(path));
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

Status writeTravelTimes(const std::string& path, const TravelTimeData& data,
                        std::vector<Message>& losses) {
  return writeAs(writtenFormatOf(path), path, data, losses);
}

Status writeTravelTimes(const std::string& path, const TomoDocument& document) {
  std::vector<Message> losses;
  Status written = writeAs(exchangeFormat(), path, travelTimesOf(document), losses);
  for (const Message& loss : losses) {
    console::error() << "Warning: " << path << ": " << loss << std::endl;
  }
  return written;
}

}  // namespace talvesk
