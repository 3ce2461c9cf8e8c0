#include "io/HeadedPicks.h"

#include "io/HeadedTable.h"
#include "io/PickPairs.h"
#include "io/PositionColumns.h"
#include "model/ElevationProfile.h"
#include "model/SurveyGeometry.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <tuple>
#include <utility>

namespace talvesk {
namespace {

using Columns = HeadedTable::Columns;
using columnNames::Names;
constexpr std::size_t kNone = HeadedTable::kNone;

const Names kTime = {
    "t",  "time", "tt",   "traveltime", "firstbreak", "firstbreaktime", "firstarrival",
    "fb", "fbp",  "pick", "picktime",   "picks",      "arrival",        "arrivaltime"};
const Names kError = {"err", "error", "uncertainty", "sigma", "std", "pickerror", "timeerror"};

/// Where a table has what makes a pick.
struct Layout {
  std::size_t shot = kNone;  ///< its position; so are the others
  std::size_t geophone = kNone;
  std::size_t shotNumber = kNone;  ///< or name, beside a position
  std::size_t shotHeight = kNone;
  std::size_t geophoneHeight = kNone;
  std::size_t time = kNone;
  std::size_t error = kNone;
  std::size_t valid = kNone;
  bool bare = false;  ///< "shot" or "geophone" alone was taken for a position

  bool complete() const { return shot != kNone && geophone != kNone && time != kNone; }
};

Layout layoutOf(const Columns& all) {
  Layout layout;
  layout.shot = columnNamed(all, columnNames::kShot, columnNames::kAlong);
  layout.geophone = columnNamed(all, columnNames::kGeophone, columnNames::kAlong);
  const std::size_t shotAlone = columnNamed(all, columnNames::words(columnNames::kShot));
  if (layout.shot != kNone) {
    layout.shotNumber = shotAlone;
  } else {
    layout.shot = shotAlone;
    layout.bare = true;
  }
  if (layout.geophone == kNone) {
    layout.geophone = columnNamed(all, columnNames::words(columnNames::kGeophone));
    layout.bare = true;
  }
  layout.shotHeight = columnNamed(all, columnNames::kShot, columnNames::kUp);
  layout.geophoneHeight = columnNamed(all, columnNames::kGeophone, columnNames::kUp);
  if (layout.geophoneHeight == kNone)
    layout.geophoneHeight = columnNamed(all, columnNames::words(columnNames::kUp));
  layout.time = columnNamed(all, kTime);
  layout.error = columnNamed(all, kError);
  layout.valid = columnNamed(all, {"valid"});
  return layout;
}

bool isPickHeading(const Columns& all) {
  return layoutOf(all).complete();
}

bool isNoNumber(std::string_view field) {
  static const Names kEmpty = {"", "-", "--", "nan", "NaN", "NAN", "na", "NA", "n/a", "null"};
  return std::find(kEmpty.begin(), kEmpty.end(), field) != kEmpty.end();
}

class HeadedPickReader : private PickReader {
 public:
  HeadedPickReader(std::string_view text, std::optional<TimeUnit> unit)
      : PickReader(text), mTable(mText), mUnit(unit) {}

  std::optional<Refusal> read(TravelTimeData& data) {
    const bool whole = readHeading() && readRows() && makeSurvey();
    return finish(whole, data);
  }

 private:
  bool readHeading() {
    if (!mTable.findHeading(isPickHeading)) {
      return refuse(Message::tr("no heading names shot, geophone and time"));
    }
    mLayout = layoutOf(mTable.columns());
    if (mTable.linesAbove() > 0) {
      warn(Message::tr("%1 lines above the heading were ignored").arg(mTable.linesAbove()));
    }
    if (mLayout.bare) {
      warn(Message::tr("the columns %1 and %2 were taken for positions in metres")
               .arg(quoted(toldAt(mLayout.shot)))
               .arg(quoted(toldAt(mLayout.geophone))));
    }
    return takeUnits();
  }

  std::string_view toldAt(std::size_t column) const { return mTable.columns()[column].told; }
  const std::string& unitAt(std::size_t column) const { return mTable.columns()[column].unit; }

  bool takeUnits() {
    mPerSecond = unitsPerSecond(unitAt(mLayout.time));
    if (mPerSecond == 0.0 && mUnit)
      mPerSecond = *mUnit == TimeUnit::kSeconds ? 1.0 : kMillisecondsPerSecond;
    if (mPerSecond == 0.0) {
      return refuse(Message::tr("the heading does not say whether its times are in ms or in s"));
    }
    mErrorPerSecond = mLayout.error == kNone ? 0.0 : unitsPerSecond(unitAt(mLayout.error));
    if (mErrorPerSecond == 0.0) mErrorPerSecond = mPerSecond;
    return true;
  }

  bool readRows() {
    std::vector<std::string_view> fields;
    while (mTable.nextRow(fields)) {
      if (!readRow(fields)) return false;
    }
    if (!mList.pairs.empty()) return true;
    return refuse(Message::tr("no row follows the heading"));
  }

  static std::string_view at(const std::vector<std::string_view>& fields, std::size_t column) {
    return column < fields.size() ? fields[column] : std::string_view{};
  }

  bool readRow(const std::vector<std::string_view>& fields) {
    Point2D shot;
    Point2D geophone;
    if (!readLength("shot distance", fields, mLayout.shot, shot.x) ||
        !readLength("shot elevation", fields, mLayout.shotHeight, shot.z) ||
        !readLength("receiver distance", fields, mLayout.geophone, geophone.x) ||
        !readLength("receiver elevation", fields, mLayout.geophoneHeight, geophone.z)) {
      return false;
    }
    PickPair pair;
    if (!readTime(at(fields, mLayout.time), mPerSecond, pair.time) ||
        !readTime(at(fields, mLayout.error), mErrorPerSecond, pair.error)) {
      return false;
    }
    if (!hasPick(pair.time)) pair.time = kNoTime;
    if (!(pair.error > 0.0)) pair.error = 0.0;
    if (at(fields, mLayout.valid) == "0") pair.time = kNoTime;
    pair.shot = shotAt(std::string(at(fields, mLayout.shotNumber)), shot);
    return geophoneAt(geophone, pair.geophone) && takePair(pair);
  }

  bool takePair(const PickPair& pair) {
    if (!hasPick(pair.time)) ++mWithoutTime;
    mList.pairs.push_back(pair);
    return true;
  }

  static Fault faultOf(NumberError error) {
    return error == NumberError::kNotANumber ? Fault::kNotANumber : Fault::kOutOfRange;
  }

  /// 0 where the table has no such column.
  bool readLength(std::string_view what, const std::vector<std::string_view>& fields,
                  std::size_t column, double& metres) {
    if (column == kNone) return true;
    const NumberError error = readMetres(mTable, column, fields, metres);
    return error == NumberError::kNone || refuseNumber(what, at(fields, column), faultOf(error));
  }

  bool readTime(std::string_view field, double perSecond, double& seconds) {
    if (isNoNumber(field)) return true;
    double number = 0.0;
    NumberError error = mTable.number(field, number);
    if (error == NumberError::kNone && !std::isfinite(number)) error = NumberError::kOutOfRange;
    seconds = number / perSecond;
    return error == NumberError::kNone || refuseNumber("time", field, faultOf(error));
  }

  std::uint32_t shotAt(std::string number, const Point2D& place) {
    const auto next = static_cast<std::uint32_t>(mList.shots.size());
    const auto [known, isNew] = mShots.try_emplace({std::move(number), place.x, place.z}, next);
    if (isNew) mList.shots.push_back(place);
    return known->second;
  }

  bool geophoneAt(const Point2D& place, std::uint32_t& index) {
    const auto next = static_cast<std::uint32_t>(mList.geophones.size());
    const auto [known, isNew] = mGeophones.try_emplace({place.x, place.z}, next);
    if (isNew) mList.geophones.push_back(place);
    index = known->second;
    return next <= kMostGeophones ||
           refuse(Message::tr("there are more than %1 geophones").arg(kMostGeophones));
  }

  bool makeSurvey() {
    orderGeophones();
    levelShots();
    if (mWithoutTime > 0) {
      warn(Message::tr("%1 of %2 rows have no time above 0, or are not valid, and are no picks")
               .arg(mWithoutTime)
               .arg(mList.pairs.size()));
    }
    return takePickList(mList, mData) ||
           refuse(Message::tr("%1 shots and %2 geophones are far too many for %3 rows")
                      .arg(mList.shots.size())
                      .arg(mList.geophones.size())
                      .arg(mList.pairs.size()));
  }

  /// The map has them in that order.
  void orderGeophones() {
    std::vector<std::uint32_t> places(mList.geophones.size());
    std::uint32_t place = 0;
    for (const auto& [position, index] : mGeophones) {
      mList.geophones[place] = {position.first, position.second};
      places[index] = place++;
    }
    for (PickPair& pair : mList.pairs) pair.geophone = places[pair.geophone];
  }

  void levelShots() {
    if (mLayout.shotHeight != kNone || mLayout.geophoneHeight == kNone) return;
    const ElevationProfile profile(mList.geophones);
    for (Point2D& shot : mList.shots) shot.z = profile.at(shot.x);
    warn(
        Message::tr("no column tells the elevations of the shots; they were put on the line of the "
                    "geophones"));
  }

  HeadedTable mTable;
  std::optional<TimeUnit> mUnit;
  Layout mLayout;
  double mPerSecond = 0.0;
  double mErrorPerSecond = 0.0;
  std::map<std::tuple<std::string, double, double>, std::uint32_t> mShots;
  std::map<std::pair<double, double>, std::uint32_t> mGeophones;
  std::size_t mWithoutTime = 0;
  PickList mList;
};

}  // namespace

bool looksLikeHeadedPicks(std::string_view text) {
  TextCursor cursor(text);
  return HeadedTable(cursor).findHeading(isPickHeading);
}

bool lacksTimeUnit(std::string_view text) {
  TextCursor cursor(text);
  HeadedTable table(cursor);
  if (!table.findHeading(isPickHeading)) return false;
  const Columns& all = table.columns();
  return unitsPerSecond(all[layoutOf(all).time].unit) == 0.0;
}

std::optional<Refusal> readHeadedPicks(std::string_view text, std::optional<TimeUnit> unit,
                                       TravelTimeData& data) {
  return HeadedPickReader(text, unit).read(data);
}

}  // namespace talvesk
