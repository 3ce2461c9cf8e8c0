#include "io/OtteFile.h"

#include <algorithm>
#include <cmath>
#include <locale>
#include <sstream>
#include <utility>

namespace talvesk {
namespace {

constexpr int kFormatConstant = 2;
constexpr double kSmallest = 1e-300;  ///< of a distance or time that is written as more than 0

class OtteReader : private PickReader {
 public:
  explicit OtteReader(std::string_view bytes) : PickReader(bytes) {}

  std::optional<Refusal> read(std::string& version, TravelTimeData& data) {
    const bool whole = readHead(version) && readPositions("geophone", mGeophones) &&
                       readPositions("shot", mShots) && checkStringCount() && readRecords() &&
                       makeStrings();
    return finish(whole, data);
  }

 private:
  bool readHead(std::string& version) {
    std::string_view line;
    if (!mText.nextLine(line) || line != "otte") {
      return refuse(
          Message::tr("the first line is %1 where \"otte\" must stand").arg(quoted(line)));
    }
    std::string_view word;
    if (!mText.nextWord(word)) return refuse(Message::tr("the format version is missing"));
    version = quotable(word);
    if (word != "1.0") {
      warn(Message::tr("the format version %1 was read as \"1.0\"").arg(quoted(word)));
    }
    int constant = 0;
    if (!readCount("format constant 2", constant)) return false;
    if (constant != kFormatConstant) warn(Message::tr("line 3 holds %1, not 2").arg(constant));
    if (!readCount("number of geophone strings", mStringCount)) return false;
    mText.nextLine(line);
    return true;
  }

  bool readCount(std::string_view what, int& value) {
    std::string_view word;
    if (!mText.nextWord(word)) return refuse(Message::tr("the %1 is missing").arg(inWords(what)));
    return readWholeInt(what, word, value);
  }

  bool readRow(const std::string& what, std::vector<double>& row) {
    if (!mText.nextLine(mLastRow)) {
      return refuse(Message::tr("the line of each %1 is missing").arg(inWords(what)));
    }
    FieldCursor fields(mLastRow, ';');
    for (std::string_view field; fields.next(field);) {
      double value = 0.0;
      if (!readNumber(what, field, value)) return false;
      row.push_back(value);
    }
    return true;
  }

  bool readPositions(const std::string& of, std::vector<Point2D>& points) {
    std::vector<double> distances;
    std::vector<double> elevations;
    if (!readRow(of + " distance", distances) || !readRow(of + " elevation", elevations)) {
      return false;
    }
    if (distances.size() != elevations.size()) {
      return refuse(Message::tr("there are %1 but %2")
                        .arg(counted(distances.size(), of + " distance"))
                        .arg(counted(elevations.size(), "elevation")));
    }
    points.reserve(distances.size());
    for (std::size_t i = 0; i < distances.size(); ++i) {
      points.push_back({distances[i], elevations[i]});
    }
    return true;
  }

  /// Before anything is sized by the number of strings: each has a geophone, or at least a shot
  /// that was fired into it, but for the only string of a survey that is still empty.
  bool checkStringCount() {
    const std::size_t most = std::max<std::size_t>(mGeophones.size() + mShots.size(), 1);
    const bool sane = mStringCount >= 0 && static_cast<std::size_t>(mStringCount) <= most &&
                      (mStringCount > 0 || mGeophones.empty());
    return sane || refuse(Message::tr("the file names %1 strings for %2 and %3")
                              .arg(mStringCount)
                              .arg(counted(mGeophones.size(), "geophone"))
                              .arg(counted(mShots.size(), "shot")));
  }

  bool readRecords() {
    while (mText.skipToText()) {
      if (mData.records.size() == mShots.size()) {
        return refuse(Message::tr("there are more records than the %1")
                          .arg(counted(mShots.size(), "shot position")));
      }
      if (!readRecord()) return false;
    }
    if (mData.records.size() == mShots.size()) return true;
    return refuse(Message::tr("the file ends after %1 of %2")
                      .arg(counted(mData.records.size(), "record"))
                      .arg(mShots.size()));
  }

  bool readRecord() {
    TravelTime record;
    record.shotPos2d = mShots[mData.records.size()];
    if (!readCount("string of the record", record.indexStesa)) return false;
    if (record.indexStesa < 0 || record.indexStesa >= mStringCount) {
      return refuse(
          Message::tr("the record names string %1 of %2").arg(record.indexStesa).arg(mStringCount));
    }
    if (!readCount("trace set of the record", record.traceSetID)) return false;
    if (record.traceSetID < 0) takeOwnSet(record);
    std::string_view line;
    mText.nextLine(line);
    if (!readRow("time", record.ttMisurati.edit())) return false;
    warnOfCut();
    if (record.ttMisurati.size() > mGeophones.size()) {
      return refuse(Message::tr("there are %1 for %2")
                        .arg(counted(record.ttMisurati.size(), "time"))
                        .arg(counted(mGeophones.size(), "geophone")));
    }
    for (double& time : record.ttMisurati.edit()) time /= kMillisecondsPerSecond;
    record.ttCalcolati.edit().assign(record.ttMisurati.size(), kNoTime);
    mData.records.push_back(std::move(record));
    return true;
  }

  /// Picks that came without traces may have no trace set to name.
  void takeOwnSet(TravelTime& record) {
    warn(Message::tr("record %1 names trace set %2; it was taken for that of its own place")
             .arg(mData.records.size())
             .arg(record.traceSetID));
    record.traceSetID = static_cast<std::int32_t>(mData.records.size());
  }

  /// The bytes that a broken copy lost may be the last digits of the last time.
  void warnOfCut() {
    if (mText.atEnd() && !mLastRow.empty() && mLastRow.back() != ';') {
      warn(Message::tr("the last line does not end in \";\": the file may be cut short"));
    }
  }

  /// Divides the row of geophones among the strings.
  bool makeStrings() {
    std::vector<std::size_t> sizes(static_cast<std::size_t>(mStringCount), 0);
    if (!sizeStrings(sizes)) return false;
    std::size_t first = 0;
    for (const std::size_t size : sizes) {
      const auto begin = mGeophones.begin() + static_cast<std::ptrdiff_t>(first);
      mData.strings.emplace_back(begin, begin + static_cast<std::ptrdiff_t>(size));
      first += size;
    }
    warnOfShortRecords();
    return true;
  }

  bool sizeStrings(std::vector<std::size_t>& sizes) {
    if (sizes.size() == 1) {
      sizes[0] = mGeophones.size();
      return true;
    }
    std::vector<bool> named(sizes.size(), false);
    for (const TravelTime& record : mData.records) {
      const auto string = static_cast<std::size_t>(record.indexStesa);
      named[string] = true;
      sizes[string] = std::max(sizes[string], record.ttMisurati.size());
    }
    std::size_t claimed = 0;
    for (const std::size_t size : sizes) claimed += size;
    if (claimed > mGeophones.size()) {
      return refuse(Message::tr("the records need %1 in %2, the file holds %3")
                        .arg(counted(claimed, "geophone"))
                        .arg(counted(sizes.size(), "string"))
                        .arg(mGeophones.size()));
    }
    return shareRest(mGeophones.size() - claimed, named, sizes);
  }

  bool shareRest(std::size_t rest, const std::vector<bool>& named,
                 std::vector<std::size_t>& sizes) {
    if (rest == 0) return true;
    const auto unnamed = static_cast<std::size_t>(std::count(named.begin(), named.end(), false));
    if (unnamed == 0) {
      return refuse(Message::tr("no string claims the last %1: a record of each string must hold "
                                "one time per geophone")
                        .arg(counted(rest, "geophone")));
    }
    std::size_t oneMore = rest % unnamed;
    if (oneMore != 0) {
      warn(Message::tr(
               "the strings without a record do not share %1 equally; the first ones took one more")
               .arg(counted(rest, "geophone")));
    }
    for (std::size_t i = 0; i < sizes.size(); ++i) {
      if (named[i]) continue;
      sizes[i] = rest / unnamed + (oneMore > 0 ? 1 : 0);
      if (oneMore > 0) --oneMore;
    }
    return true;
  }

  void warnOfShortRecords() {
    for (std::size_t i = 0; i < mData.records.size() && takesWarnings(); ++i) {
      const TravelTime& record = mData.records[i];
      const std::size_t size = mData.strings[static_cast<std::size_t>(record.indexStesa)].size();
      if (record.ttMisurati.size() == size) continue;
      warn(Message::tr("record %1 holds %2 for %3")
               .arg(i)
               .arg(counted(record.ttMisurati.size(), "time"))
               .arg(counted(size, "geophone")));
    }
  }

  std::string_view mLastRow;
  int mStringCount = 0;
  std::vector<Point2D> mGeophones;
  std::vector<Point2D> mShots;
};

/// What the reader takes back: it refuses numbers that lose digits at the end of the range.
double readable(double value) {
  return std::abs(value) < kSmallest ? 0.0 : value;
}

void printRow(std::ostream& out, const std::vector<Point2D>& points, double Point2D::*coordinate) {
  for (const Point2D& point : points) out << readable(point.*coordinate) << ';';
  out << '\n';
}

}  // namespace

std::optional<Refusal> readOtte(std::string_view bytes, std::string& version,
                                TravelTimeData& data) {
  return OtteReader(bytes).read(version, data);
}

std::string formatOtte(const TravelTimeData& data) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  std::vector<Point2D> geophones;
  for (const auto& string : data.strings) {
    geophones.insert(geophones.end(), string.begin(), string.end());
  }
  out << "otte\n1.0\n" << kFormatConstant << '\n' << data.strings.size() << '\n';
  printRow(out, geophones, &Point2D::x);
  printRow(out, geophones, &Point2D::z);
  std::vector<Point2D> shots;
  for (const TravelTime& record : data.records) shots.push_back(record.shotPos2d);
  printRow(out, shots, &Point2D::x);
  printRow(out, shots, &Point2D::z);
  for (const TravelTime& record : data.records) {
    out << record.indexStesa << '\n' << record.traceSetID << '\n';
    for (const double seconds : record.ttMisurati) {
      const double time = seconds * kMillisecondsPerSecond;
      out << (std::isfinite(time) ? readable(time) : kNoTime * kMillisecondsPerSecond) << ';';
    }
    out << '\n';
  }
  return out.str();
}

std::string formatOtte(const TomoDocument& document) {
  return formatOtte(travelTimesOf(document));
}

}  // namespace talvesk
