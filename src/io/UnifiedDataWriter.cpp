#include "base/TextNumber.h"
#include "io/UnifiedDataFile.h"

#include <algorithm>
#include <map>
#include <utility>

namespace talvesk {
namespace {

using Place = std::pair<double, double>;  ///< x, then z, so that places lie in order along the line

Place placeOf(const Point2D& point) {
  return {point.x, point.z};
}

/// Calls `take` with record, time index and geophone of every pick.
template <typename Take>
void forEachPick(const TravelTimeData& data, Take take) {
  for (std::size_t i = 0; i < data.records.size(); ++i) {
    const TravelTime& record = data.records[i];
    const auto& string = data.strings[static_cast<std::size_t>(record.indexStesa)];
    const std::vector<double>& times = record.ttMisurati;
    for (std::size_t j = 0; j < std::min(times.size(), string.size()); ++j) {
      if (std::isfinite(times[j]) && hasPick(times[j])) take(i, j, string[j]);
    }
  }
}

/// The places of shots and geophones, numbered from 1 along the line.
std::map<Place, std::size_t> placesOf(const TravelTimeData& data) {
  std::map<Place, std::size_t> places;
  for (const TravelTime& record : data.records) places.emplace(placeOf(record.shotPos2d), 0);
  for (const auto& string : data.strings) {
    for (const Point2D& geophone : string) places.emplace(placeOf(geophone), 0);
  }
  std::size_t number = 0;
  for (auto& place : places) place.second = ++number;
  return places;
}

}  // namespace

std::string formatUnifiedData(const TravelTimeData& data) {
  const std::map<Place, std::size_t> places = placesOf(data);
  std::string text = std::to_string(places.size()) + " # shot/geophone points\n#x z\n";
  for (const auto& place : places) {
    text += exactDouble(place.first.first) + ' ' + exactDouble(place.first.second) + '\n';
  }
  const bool errors = tellsErrors(data);
  std::size_t count = 0;
  std::string lines;
  forEachPick(data, [&](std::size_t record, std::size_t time, const Point2D& geophone) {
    const TravelTime& shot = data.records[record];
    lines += std::to_string(places.at(placeOf(shot.shotPos2d))) + ' ' +
             std::to_string(places.at(placeOf(geophone))) + ' ' +
             exactDouble(shot.ttMisurati[time]);
    if (errors) lines += ' ' + exactDouble(shot.errorOf(time));
    lines += " 1\n";
    ++count;
  });
  text += std::to_string(count) + " # measurements\n#s g t ";
  return text + (errors ? "err valid\n" : "valid\n") + lines;
}

std::vector<Message> lostInUnifiedData(const TravelTimeData& data) {
  std::vector<bool> picked(data.records.size(), false);
  std::map<Place, bool> geophones;
  for (const auto& string : data.strings) {
    for (const Point2D& geophone : string) geophones.emplace(placeOf(geophone), false);
  }
  std::size_t unknown = 0;
  forEachPick(data, [&](std::size_t record, std::size_t time, const Point2D& geophone) {
    picked[record] = true;
    if (!(data.records[record].errorOf(time) > 0.0)) ++unknown;
    geophones[placeOf(geophone)] = true;
  });
  std::map<Place, std::size_t> shots;
  for (std::size_t i = 0; i < picked.size(); ++i) {
    if (picked[i]) ++shots[placeOf(data.records[i].shotPos2d)];
  }
  const auto without = std::count(picked.begin(), picked.end(), false);
  const auto deaf = std::count_if(geophones.begin(), geophones.end(),
                                  [](const auto& geophone) { return !geophone.second; });
  std::size_t mixed = 0;
  for (const auto& shot : shots) mixed += shot.second - 1;
  std::vector<Message> lost;
  if (without > 0) {
    lost.push_back(Message::tr("%1 shots have no pick and are not in the file").arg(without));
  }
  if (deaf > 0) {
    lost.push_back(
        Message::tr("%1 geophones have no pick; the file has their positions only").arg(deaf));
  }
  if (mixed > 0) {
    lost.push_back(Message::tr("%1 shots lie at the place of another one; the file does not tell "
                               "their picks apart")
                       .arg(mixed));
  }
  if (tellsErrors(data) && unknown > 0) {
    lost.push_back(
        Message::tr("the error of %1 picks is not known; the file has 0 for it").arg(unknown));
  }
  return lost;
}

}  // namespace talvesk
