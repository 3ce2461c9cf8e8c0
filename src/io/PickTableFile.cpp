#include "io/PickTableFile.h"

#include "base/TextNumber.h"

#include <map>
#include <string>
#include <utility>

namespace talvesk {
namespace {

/// Position of a shot or receiver, put together from two sections.
struct Entry {
  double distance = 0.0;
  double elevation = 0.0;
  bool complete = false;  ///< the second section named it
};
using Table = std::map<int, Entry>;

/// The two lines of a section.
struct Section {
  std::vector<int> numbers;
  std::vector<double> values;
  std::string_view numberLine;
};

class PickTableReader : private PickReader {
 public:
  explicit PickTableReader(std::string_view bytes) : PickReader(bytes) {}

  std::optional<Refusal> read(TravelTimeData& data) {
    const bool whole = readTables() && readTimes();
    if (whole) warnOfRest();
    return finish(whole, data);
  }

 private:
  bool readTables() {
    Section section;
    if (!readSection("Shot number, Shot elevation", section)) return false;
    open(section, &Entry::elevation, mShots);
    if (!readSection("Shot number, Shot distance", section) ||
        !complete(section, &Entry::distance, mShots, "Invalid shot ids : ") ||
        !allComplete(mShots, "shot", "distance")) {
      return false;
    }
    if (!readSection("Receiver number, receiver distance", section)) return false;
    open(section, &Entry::distance, mReceivers);
    if (!readSection("Receiver number, receiver elevation", section)) return false;
    if (section.numbers.size() != mReceivers.size()) {
      return refuseWith(Message::tr("Invalid phone list : %1").arg(quotable(section.numberLine)),
                        Message::tr("%1 for %2")
                            .arg(counted(section.numbers.size(), "number"))
                            .arg(counted(mReceivers.size(), "receiver")));
    }
    return complete(section, &Entry::elevation, mReceivers, "Invalid phone ids : ") &&
           allComplete(mReceivers, "receiver", "elevation");
  }

  bool readHeader(std::string_view header) {
    std::string_view line;
    mText.nextLine(line);
    if (line == header) return true;
    return refuseWith(Message::tr("Invalid header : %1").arg(quotable(line)),
                      Message::tr("%1 must stand here").arg(quoted(header)));
  }

  bool readSection(std::string_view header, Section& section) {
    section = {};
    if (!readHeader(header)) return false;
    mText.nextLine(section.numberLine);
    FieldCursor numbers(section.numberLine, ' ');
    for (std::string_view field; numbers.next(field);) {
      int number = 0;
      const NumberError error = parseInt(field, number);
      if (error == NumberError::kOutOfRange) {
        return refuseNumber("number", field, Fault::kOutOfRange);
      }
      if (error == NumberError::kNotANumber) warnOfZero(field);
      section.numbers.push_back(number);
    }
    std::string_view line;
    mText.nextLine(line);
    if (!readValues(line, section.values)) return false;
    if (section.values.size() == section.numbers.size()) return true;
    return refuseWith(Message::tr("Invalid match : %1").arg(quotable(line)),
                      Message::tr("%1 for %2")
                          .arg(counted(section.values.size(), "value"))
                          .arg(counted(section.numbers.size(), "number")));
  }

  bool readValues(std::string_view line, std::vector<double>& values) {
    FieldCursor fields(line, ' ');
    for (std::string_view field; fields.next(field);) {
      double value = 0.0;
      const Fault fault = convert(field, value);
      if (fault == Fault::kNotANumber) {
        warnOfZero(field);
      } else if (fault != Fault::kNone) {
        return refuseNumber("value", field, fault);
      }
      values.push_back(value);
    }
    return true;
  }

  void warnOfZero(std::string_view field) {
    if (!takesWarnings()) return;
    warn(Message::tr("line %1: %2 is not a number and was taken as 0")
             .arg(mText.line())
             .arg(quoted(field)));
  }

  void open(const Section& section, double Entry::*member, Table& table) {
    for (std::size_t i = 0; i < section.numbers.size(); ++i) {
      const auto [entry, isNew] = table.try_emplace(section.numbers[i]);
      entry->second.*member = section.values[i];
      if (!isNew && takesWarnings()) {
        warn(Message::tr("line %1: number %2 is named twice; its last value was taken")
                 .arg(mText.line() - 1)
                 .arg(section.numbers[i]));
      }
    }
  }

  bool complete(const Section& section, double Entry::*member, Table& table,
                const std::string& complaint) {
    for (std::size_t i = 0; i < section.numbers.size(); ++i) {
      const auto entry = table.find(section.numbers[i]);
      if (entry == table.end()) {
        return refuseWith(complaint + quotable(section.numberLine),
                          Message::tr("number %1 is not known").arg(section.numbers[i]));
      }
      entry->second.*member = section.values[i];
      entry->second.complete = true;
    }
    return true;
  }

  bool allComplete(const Table& table, const std::string& owner, const std::string& what) {
    for (const auto& [number, entry] : table) {
      if (!entry.complete) {
        return refuse(
            Message::tr("%1 %2 has no %3").arg(inWords(owner)).arg(number).arg(inWords(what)));
      }
    }
    return true;
  }

  bool readTimes() {
    if (!readHeader("FBP times")) return false;
    mData.strings.emplace_back();
    for (const auto& [number, receiver] : mReceivers) {
      mData.strings.front().push_back({receiver.distance, receiver.elevation});
    }
    for (const auto& [number, shot] : mShots) {
      TravelTime record;
      record.shotPos2d = {shot.distance, shot.elevation};
      record.traceSetID = static_cast<std::int32_t>(mData.records.size());
      std::string_view line;
      mText.nextLine(line);
      if (!readValues(line, record.ttMisurati.edit())) return false;
      if (record.ttMisurati.size() != mReceivers.size()) {
        return refuseWith(Message::tr("Invalid times : %1").arg(quotable(line)),
                          Message::tr("%1 of shot %2 for %3")
                              .arg(counted(record.ttMisurati.size(), "time"))
                              .arg(number)
                              .arg(counted(mReceivers.size(), "receiver")));
      }
      for (double& time : record.ttMisurati.edit()) time /= kMillisecondsPerSecond;
      record.ttCalcolati.edit().assign(record.ttMisurati.size(), kNoTime);
      mData.records.push_back(std::move(record));
    }
    return true;
  }

  Table mShots;
  Table mReceivers;
};

}  // namespace

std::optional<Refusal> readPickTable(std::string_view bytes, TravelTimeData& data) {
  return PickTableReader(bytes).read(data);
}

}  // namespace talvesk
