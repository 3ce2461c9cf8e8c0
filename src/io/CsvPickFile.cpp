#include "io/CsvPickFile.h"

#include "base/TextNumber.h"

#include <string>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kLineLimit = 256;
constexpr std::size_t kLeadingFields = 2;  ///< unused above the distance and elevation of the shots

class CsvPickReader : private PickReader {
 public:
  CsvPickReader(std::string_view bytes, std::size_t lineLimit)
      : PickReader(bytes), mLineLimit(lineLimit) {}

  std::optional<Refusal> read(TravelTimeData& data) {
    const bool whole = readReceivers() && readShots();
    return finish(whole, data);
  }

 private:
  /// An empty line when the file has ended.
  bool readLine(std::string_view& line) {
    line = {};
    mText.nextLine(line);
    return line.size() <= mLineLimit ||
           refuse(Message::tr("the line holds %1 characters, more than the limit of %2; split the "
                              "table into one file per spread")
                      .arg(line.size())
                      .arg(kLineLimit));
  }

  bool readReceivers() {
    std::vector<double> distances;
    std::vector<double> elevations;
    if (!readReceiverRow("distance", distances)) return false;
    if (distances.empty()) return refuse(Message::tr("the first line names no receiver"));
    if (!readReceiverRow("elevation", elevations)) return false;
    if (elevations.size() > distances.size()) {
      return refuse(Message::tr("there are %1 for %2")
                        .arg(counted(elevations.size(), "elevation"))
                        .arg(counted(distances.size(), "receiver")));
    }
    if (elevations.size() < distances.size()) {
      warn(Message::tr("%1 without an elevation were taken to lie at 0")
               .arg(counted(distances.size() - elevations.size(), "receiver")));
      elevations.resize(distances.size(), 0.0);
    }
    auto& geophones = mData.strings.emplace_back();
    for (std::size_t i = 0; i < distances.size(); ++i) {
      geophones.push_back({distances[i], elevations[i]});
    }
    return true;
  }

  bool readReceiverRow(const std::string& what, std::vector<double>& row) {
    std::string_view line;
    if (!readLine(line)) return false;
    FieldCursor fields(line, ';');
    for (std::string_view field; fields.next(field);) {
      if (fields.count() <= kLeadingFields) continue;
      if (!readField("receiver " + what, field, row.emplace_back())) return false;
    }
    return true;
  }

  bool readShots() {
    for (;;) {
      std::string_view line;
      if (!readLine(line)) return false;
      if (!TextCursor(line).skipToText()) break;
      if (!readShot(line)) return false;
    }
    warnOfRest();
    return true;
  }

  bool readShot(std::string_view line) {
    TravelTime record;
    record.traceSetID = static_cast<std::int32_t>(mData.records.size());
    const std::size_t receivers = mData.strings.front().size();
    FieldCursor fields(line, ';');
    for (std::string_view field; fields.next(field);) {
      double value = 0.0;
      if (!readField(nameOf(fields.count()), field, value)) return false;
      if (fields.count() == 1) {
        record.shotPos2d.x = value;
      } else if (fields.count() == kLeadingFields) {
        record.shotPos2d.z = value;
      } else {
        record.ttMisurati.edit().push_back(value / kMillisecondsPerSecond);
      }
    }
    if (fields.count() < kLeadingFields) return refuse(Message::tr("the shot has no elevation"));
    if (record.ttMisurati.size() > receivers) {
      return refuse(Message::tr("there are %1 for %2")
                        .arg(counted(record.ttMisurati.size(), "time"))
                        .arg(counted(receivers, "receiver")));
    }
    if (record.ttMisurati.size() < receivers && takesWarnings()) {
      warn(Message::tr("line %1: only %2 for %3")
               .arg(mText.line())
               .arg(counted(record.ttMisurati.size(), "time"))
               .arg(counted(receivers, "receiver")));
    }
    record.ttCalcolati.edit().assign(record.ttMisurati.size(), kNoTime);
    mData.records.push_back(std::move(record));
    return true;
  }

  static const char* nameOf(std::size_t field) {
    if (field == 1) return "shot distance";
    return field == kLeadingFields ? "shot elevation" : "first-break time";
  }

  /// The conversion's faults go by the names that the users of this format know.
  bool readField(const std::string& what, std::string_view field, double& value) {
    const Message details = Message::tr("the %1 %2").arg(inWords(what)).arg(quoted(field));
    switch (convert(field, value)) {
      case Fault::kNone:
        return true;
      case Fault::kNotANumber:
        return refuseWith(Message::tr("invalid stod argument"), details);
      case Fault::kOutOfRange:
        return refuseWith(Message::tr("stod argument out of range"), details);
      case Fault::kNotFinite:
        break;
    }
    return refuseNumber(what, field, Fault::kNotFinite);
  }

  std::size_t mLineLimit;
};

}  // namespace

std::optional<Refusal> readCsvPicks(std::string_view bytes, TravelTimeData& data) {
  return CsvPickReader(bytes, kLineLimit).read(data);
}

std::optional<Refusal> readLongCsvPicks(std::string_view bytes, TravelTimeData& data) {
  return CsvPickReader(bytes, bytes.size()).read(data);
}

bool looksLikeLongCsvPicks(std::string_view bytes) {
  TextCursor text(bytes);
  std::string_view line;
  if (!text.nextLine(line)) return false;
  FieldCursor fields(line, ';');
  std::string_view field;
  for (std::size_t i = 0; i <= kLeadingFields; ++i) {
    if (!fields.next(field)) return false;
  }
  double distance = 0.0;
  if (parseDouble(field, distance) != NumberError::kNone) return false;
  while (line.size() <= kLineLimit && text.nextLine(line)) {
  }
  return line.size() > kLineLimit;
}

}  // namespace talvesk
