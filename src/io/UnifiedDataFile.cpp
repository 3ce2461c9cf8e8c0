#include "io/UnifiedDataFile.h"

#include "io/PickPairs.h"
#include "io/PositionColumns.h"
#include "model/ElevationProfile.h"
#include "model/SurveyGeometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace talvesk {
namespace {

constexpr std::size_t kNone = HeadedTable::kNone;
constexpr std::size_t kMostColumns = 100;

using Words = std::vector<std::string_view>;

Words wordsOf(std::string_view line) {
  Words words;
  TextCursor cursor(line);
  for (std::string_view word; words.size() < kMostColumns && cursor.nextWord(word);) {
    words.push_back(word);
  }
  return words;
}

/// A column "t/ms" is named "t".
std::string nameOf(std::string_view word) {
  std::string name(word.substr(0, word.find('/')));
  std::transform(name.begin(), name.end(), name.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return name;
}

std::size_t columnNamed(const Words& columns, std::string_view name) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (nameOf(columns[i]) == name) return i;
  }
  return kNone;
}

/// Units of a column in a second; 0 for a unit that is none.
double perSecond(std::string_view column) {
  const std::size_t slash = column.find('/');
  return slash == std::string_view::npos ? 1.0 : unitsPerSecond(column.substr(slash + 1));
}

/// Where a measurement has what makes a pick.
struct Layout {
  std::size_t shot = kNone;
  std::size_t geophone = kNone;
  std::size_t time = kNone;
  std::size_t error = kNone;
  std::size_t valid = kNone;
};

Layout layoutOf(const Words& columns) {
  return {columnNamed(columns, "s"), columnNamed(columns, "g"), columnNamed(columns, "t"),
          columnNamed(columns, "err"), columnNamed(columns, "valid")};
}

bool namesPicks(const Words& columns) {
  const Layout layout = layoutOf(columns);
  return layout.shot != kNone && layout.geophone != kNone && layout.time != kNone;
}

class UnifiedDataReader : private PickReader {
 public:
  explicit UnifiedDataReader(std::string_view text) : PickReader(text) {}

  std::optional<Refusal> read(TravelTimeData& data) {
    const bool whole = readPositions() && readMeasurements() && readTopography() && makeSurvey();
    return finish(whole, data);
  }

 private:
  /// The next line that is not empty but for a comment. Of the comments on the way the last one may
  /// name columns.
  bool nextWords(Words& words) {
    for (std::string_view line; mText.nextLine(line);) {
      const std::size_t comment = line.find('#');
      words = wordsOf(line.substr(0, comment));
      if (!words.empty()) return true;
      if (comment != std::string_view::npos) mComment = wordsOf(line.substr(comment + 1));
    }
    words.clear();
    return false;
  }

  bool readCount(std::string_view what, int& count) {
    Words words;
    if (!nextWords(words)) return refuse(Message::tr("the %1 is missing").arg(inWords(what)));
    mComment.clear();
    if (!readWholeInt(what, words.front(), count)) return false;
    return count >= 0 || refuse(Message::tr("the %1 is negative").arg(inWords(what)));
  }

  bool endsAfter(std::size_t count, int wanted) {
    return refuse(Message::tr("the file ends after %1 of %2 lines").arg(count).arg(wanted));
  }

  bool readPositions() {
    int count = 0;
    if (!readCount("number of positions", count)) return false;
    Words words;
    for (int i = 0; i < count; ++i) {
      if (!nextWords(words)) return endsAfter(mPlaces.size(), count);
      Place& place = mPlaces.emplace_back();
      if (words.size() > place.size()) words.resize(place.size());
      mDimensions = std::max(mDimensions, words.size());
      for (std::size_t axis = 0; axis < words.size(); ++axis) {
        if (!readCoordinate(words[axis], place[axis])) return false;
      }
    }
    return true;
  }

  bool readCoordinate(std::string_view word, double& value) {
    return readNumber("position", word, value) &&
           (std::fabs(value) <= kFarthestPosition ||
            refuseNumber("position", word, Fault::kOutOfRange));
  }

  bool readMeasurements() {
    int count = 0;
    if (!readCount("number of measurements", count)) return false;
    Words words;
    for (int i = 0; i < count; ++i) {
      if (!nextWords(words)) return endsAfter(mList.pairs.size(), count);
      if (i == 0 && !readColumns()) return false;
      if (!readMeasurement(words)) return false;
    }
    return count > 0 || refuse(Message::tr("the file holds no measurement"));
  }

  bool readColumns() {
    if (!namesPicks(mComment)) {
      return refuse(Message::tr("no columns \"s\", \"g\" and \"t\" are named above the numbers"));
    }
    mLayout = layoutOf(mComment);
    mPerSecond = perSecond(mComment[mLayout.time]);
    if (mLayout.error != kNone) mErrorPerSecond = perSecond(mComment[mLayout.error]);
    for (const std::size_t column : {mLayout.time, mLayout.error}) {
      if (column == kNone || perSecond(mComment[column]) > 0.0) continue;
      return refuse(
          Message::tr("the unit of the column %1 is none of time").arg(quoted(mComment[column])));
    }
    return true;
  }

  bool readMeasurement(const Words& words) {
    if (words.size() <= std::max({mLayout.shot, mLayout.geophone, mLayout.time})) {
      return refuse(Message::tr("the line holds %1").arg(counted(words.size(), "value")));
    }
    PickPair pair;
    if (!readIndex("shot", words[mLayout.shot], pair.shot) ||
        !readIndex("receiver", words[mLayout.geophone], pair.geophone) ||
        !readNumber("time", words[mLayout.time], pair.time)) {
      return false;
    }
    pair.time /= mPerSecond;
    if (mLayout.error < words.size()) {
      if (!readNumber("value", words[mLayout.error], pair.error)) return false;
      pair.error = std::max(pair.error / mErrorPerSecond, 0.0);
    }
    double valid = 1.0;
    if (mLayout.valid < words.size() && !readNumber("value", words[mLayout.valid], valid)) {
      return false;
    }
    if (valid == 0.0) {
      ++mNotValid;
    } else if (!hasPick(pair.time)) {
      ++mNotAboveZero;
    }
    if (valid == 0.0 || !hasPick(pair.time)) pair.time = kNoTime;
    mList.pairs.push_back(pair);
    return true;
  }

  bool readIndex(std::string_view what, std::string_view word, std::uint32_t& index) {
    double number = 0.0;  // some programs write "12.0"
    if (!readNumber(what, word, number)) return false;
    if (number < 1.0 || number > static_cast<double>(mPlaces.size()) ||
        number != std::floor(number)) {
      return refuse(Message::tr("the %1 %2 is none of the %3 positions")
                        .arg(inWords(what))
                        .arg(quoted(word))
                        .arg(mPlaces.size()));
    }
    index = static_cast<std::uint32_t>(number) - 1;
    return true;
  }

  /// Distance and elevation, last of what a line holds.
  bool readTopography() {
    Words words;
    if (!nextWords(words)) return true;
    int count = 0;
    if (words.size() != 1 || !readWholeInt("number of points of topography", words[0], count)) {
      return refuse(
          Message::tr("after the measurements neither the end nor a number of points of "
                      "topography follows"));
    }
    for (int i = 0; i < count; ++i) {
      if (!nextWords(words)) return endsAfter(mTopography.size(), count);
      Point2D point;
      if (words.size() < 2) {
        return refuse(Message::tr("the line holds %1").arg(counted(words.size(), "value")));
      }
      if (words.size() > 3) words.resize(3);
      if (!readCoordinate(words.front(), point.x) || !readCoordinate(words.back(), point.z)) {
        return false;
      }
      mTopography.push_back(point);
    }
    warnOfRest();
    return true;
  }

  bool anyAt(std::size_t axis) const {
    return std::any_of(mPlaces.begin(), mPlaces.end(),
                       [&](const Place& place) { return place[axis] != 0.0; });
  }

  /// Which of the coordinates is the elevation.
  std::size_t elevationAxis() {
    if (mDimensions < 3) return 1;
    if (anyAt(2) || !anyAt(1)) {
      if (anyAt(1)) warn(Message::tr("the second of three coordinates was not read"));
      return 2;
    }
    warn(
        Message::tr("the third coordinate is 0 everywhere; the second one was taken for the "
                    "elevation"));
    return 1;
  }

  std::vector<Point2D> pointsOfPlaces() {
    const std::size_t up = elevationAxis();
    std::vector<Point2D> points;
    for (const Place& place : mPlaces) points.push_back({place[0], place[up]});
    if (mTopography.empty()) return points;
    if (std::any_of(points.begin(), points.end(), [](const Point2D& p) { return p.z != 0.0; })) {
      warn(Message::tr("the positions have elevations; the topography was not used"));
      return points;
    }
    const ElevationProfile profile(mTopography);
    for (Point2D& point : points) point.z = profile.at(point.x);
    return points;
  }

  /// Numbers what is used of the positions, in their order, and renumbers the pairs.
  static std::vector<Point2D> compact(std::vector<PickPair>& pairs, std::uint32_t PickPair::*member,
                                      const std::vector<Point2D>& points, std::vector<bool>& used) {
    std::vector<std::uint32_t> places(points.size(), 0);
    for (const PickPair& pair : pairs) places[pair.*member] = 1;
    std::vector<Point2D> kept;
    for (std::size_t i = 0; i < points.size(); ++i) {
      if (places[i] == 0) continue;
      places[i] = static_cast<std::uint32_t>(kept.size());
      kept.push_back(points[i]);
      used[i] = true;
    }
    for (PickPair& pair : pairs) pair.*member = places[pair.*member];
    return kept;
  }

  bool makeSurvey() {
    const std::vector<Point2D> points = pointsOfPlaces();
    std::vector<bool> used(points.size(), false);
    mList.shots = compact(mList.pairs, &PickPair::shot, points, used);
    mList.geophones = compact(mList.pairs, &PickPair::geophone, points, used);
    const auto unused = std::count(used.begin(), used.end(), false);
    if (unused > 0) {
      warn(Message::tr("%1 positions are no shot and no geophone of any time; they were left out")
               .arg(unused));
    }
    if (mNotValid > 0) {
      warn(Message::tr("%1 times are marked as not valid and are no picks").arg(mNotValid));
    }
    if (mNotAboveZero > 0) {
      warn(Message::tr("%1 times are not above 0 and are no picks").arg(mNotAboveZero));
    }
    if (mList.geophones.size() > kMostGeophones) {
      return refuse(Message::tr("there are more than %1 geophones").arg(kMostGeophones));
    }
    return takePickList(mList, mData) ||
           refuse(Message::tr("%1 shots and %2 geophones are far too many for %3 rows")
                      .arg(mList.shots.size())
                      .arg(mList.geophones.size())
                      .arg(mList.pairs.size()));
  }

  using Place = std::array<double, 3>;

  Words mComment;  ///< the last one, but for that behind a count
  std::size_t mDimensions = 0;
  std::vector<Place> mPlaces;
  std::vector<Point2D> mTopography;
  Layout mLayout;
  double mPerSecond = 1.0;
  double mErrorPerSecond = 1.0;
  std::size_t mNotValid = 0;
  std::size_t mNotAboveZero = 0;
  PickList mList;
};

}  // namespace

bool looksLikeUnifiedData(std::string_view text) {
  TextCursor cursor(text);
  bool counted = false;
  for (std::string_view line; cursor.nextLine(line);) {
    const std::size_t comment = line.find('#');
    const Words words = wordsOf(line.substr(0, comment));
    if (!counted && !words.empty()) {
      const bool number = std::all_of(words.front().begin(), words.front().end(),
                                      [](char c) { return c >= '0' && c <= '9'; });
      if (words.size() > 1 || !number) return false;
      counted = true;
    }
    const bool names = counted && comment != std::string_view::npos && words.empty();
    if (names && namesPicks(wordsOf(line.substr(comment + 1)))) return true;
  }
  return false;
}

std::optional<Refusal> readUnifiedData(std::string_view text, TravelTimeData& data) {
  return UnifiedDataReader(text).read(data);
}

}  // namespace talvesk
