#include "model/SurveyGeometry.h"

#include "model/GroundModel.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace talvesk {
namespace {

bool same(double a, double b) {
  return a == b || (std::isnan(a) && std::isnan(b));
}

bool same(const Point2D& a, const Point2D& b) {
  return same(a.x, b.x) && same(a.z, b.z);
}

/// Elevations that are all 0 are elevations that nobody measured.
template <typename Places, typename PlaceOf>
void markTyped(Places& places, PlaceOf placeOf) {
  const bool any = std::any_of(places.begin(), places.end(), [&](auto& entry) {
    const double z = placeOf(entry).z;
    return z != 0.0 && !std::isnan(z);
  });
  for (auto& entry : places) placeOf(entry).typed = any && !std::isnan(placeOf(entry).z);
}

std::vector<Point2D> pointsOf(const GeophoneString& string) {
  std::vector<Point2D> points;
  points.reserve(string.size());
  for (const GeometryPlace& place : string) points.push_back(place.point());
  return points;
}

GeophoneString stringOf(const std::vector<Point2D>& points) {
  GeophoneString string;
  string.reserve(points.size());
  for (const Point2D& point : points) string.push_back({point.x, point.z, false});
  markTyped(string, [](GeometryPlace& place) -> GeometryPlace& { return place; });
  return string;
}

std::string entry(const std::vector<std::string>& list, std::size_t index) {
  return index < list.size() ? list[index] : std::string();
}

/// Elevation by distance, between known points and flat beyond them.
class Profile {
 public:
  void take(const GeometryPlace& place) {
    if (isFinite(place.point())) mElevations.emplace(place.x, place.z);
  }
  bool empty() const { return mElevations.empty(); }
  double at(double x) const {
    const auto right = mElevations.lower_bound(x);
    if (right == mElevations.end()) return std::prev(right)->second;
    if (right == mElevations.begin() || right->first == x) return right->second;
    const auto left = std::prev(right);
    const double part = (x - left->first) / (right->first - left->first);
    return left->second + part * (right->second - left->second);
  }

 private:
  std::map<double, double> mElevations;
};

/// \return whether the place took an elevation
bool fillElevation(GeometryPlace& place, const Profile& profile) {
  if (place.typed || !std::isfinite(place.x)) return false;
  constexpr double kMillimetres = 1000.0;  // nobody surveys finer
  place.z = std::round(profile.at(place.x) * kMillimetres) / kMillimetres;
  return true;
}

/// A record for recordings that are new.
void takePair(SWavePair& pair, std::size_t shot, TomoDocument& next) {
  TravelTime& record = next.ttArray.edit()[shot];
  record.traceSetID = static_cast<std::int32_t>(shot);
  record.ttMisurati = std::vector<double>(pair.traces.size(), kUnpicked);
  record.ttCalcolati = std::vector<double>(pair.traces.size(), kNoTime);
  Recordings& recordings = next.recordings.edit();
  recordings.filenames[shot].clear();
  recordings.filenames_DX[shot] = pair.fileDX;
  recordings.filenames_SX[shot] = pair.fileSX;
  recordings.traceSets[shot] = std::move(pair.traces);
  recordings.noteOf(shot) = {pair.format, pair.warnings};
  forgetMends(shot, next);
}

bool stringsDiffer(const SurveyGeometry& geometry, const TomoDocument& document) {
  const auto& strings = document.line->goephonesStringSet;
  if (geometry.strings.size() != strings.size()) return true;
  for (std::size_t s = 0; s < strings.size(); ++s) {
    const GeophoneString& edited = geometry.strings[s];
    const bool equal =
        std::equal(edited.begin(), edited.end(), strings[s].begin(), strings[s].end(),
                   [](const GeometryPlace& a, const Point2D& b) { return same(a.point(), b); });
    if (!equal) return true;
  }
  return false;
}

bool hasNewPair(const SurveyGeometry& geometry) {
  return std::any_of(geometry.shots.begin(), geometry.shots.end(),
                     [](const GeometryShot& shot) { return shot.pair != nullptr; });
}

}  // namespace

SurveyGeometry geometryOf(const TomoDocument& document) {
  SurveyGeometry geometry;
  for (const auto& string : document.line->goephonesStringSet) {
    geometry.strings.push_back(stringOf(string));
  }
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    GeometryShot& shot = geometry.shots.emplace_back();
    shot.place = {record.shotPos2d.x, record.shotPos2d.z, false};
    shot.string = record.indexStesa;
    const TraceSet* traces = document.tracesOf(record);
    shot.traces = traces != nullptr ? traces->size() : record.ttMisurati.size();
    shot.file = entry(document.recordings->filenames, i);
    shot.fileDX = entry(document.recordings->filenames_DX, i);
    shot.fileSX = entry(document.recordings->filenames_SX, i);
  }
  markTyped(geometry.shots, [](GeometryShot& shot) -> GeometryPlace& { return shot.place; });
  return geometry;
}

bool geometryDiffers(const SurveyGeometry& geometry, const TomoDocument& document) {
  if (hasNewPair(geometry) || stringsDiffer(geometry, document)) return true;
  if (geometry.shots.size() != document.ttArray.size()) return true;
  for (std::size_t i = 0; i < geometry.shots.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    const GeometryShot& shot = geometry.shots[i];
    if (shot.string != record.indexStesa || !same(shot.place.point(), record.shotPos2d)) {
      return true;
    }
  }
  return false;
}

bool applyGeometry(const SurveyGeometry& geometry, TomoDocument& document) {
  if (!geometryDiffers(geometry, document)) return false;
  const std::size_t count = geometry.shots.size();
  TomoDocument next = document;  // which takes its place when all of it is there
  next.clearModelAndResults();
  // The first cell size that was proposed for a survey stays its proposal.
  next.proposedCellSizes = document.proposedCellSizes;
  next.ttArray.edit().resize(count);
  if (hasNewPair(geometry)) {
    Recordings& recordings = next.recordings.edit();
    recordings.traceSets.resize(count);
    for (auto* files :
         {&recordings.filenames, &recordings.filenames_DX, &recordings.filenames_SX}) {
      files->resize(count);
    }
    recordings.waveType = WaveType::S;
  }
  SurveyLine line;
  line.course = document.line->course;  // it goes with the map position, which stays
  for (const GeophoneString& string : geometry.strings) {
    line.goephonesStringSet.push_back(pointsOf(string));
  }
  for (std::size_t i = 0; i < count; ++i) {
    const GeometryShot& shot = geometry.shots[i];
    TravelTime& record = next.ttArray.edit()[i];
    record.shotPos2d = shot.place.point();
    record.indexStesa = shot.string;
    if (shot.pair) takePair(*shot.pair, i, next);
    line.shotPositions.push_back(shot.place.x);
  }
  // Picks without traces may have shot positions of their own, too.
  if (next.recordings->traceSets.empty() && document.line->shotPositions.empty()) {
    line.shotPositions.clear();
  }
  next.line = std::move(line);
  document = std::move(next);
  return true;
}

void autofill(GeophoneString& string, double first, double spacing, std::size_t count) {
  string.resize(std::min(count, kMostGeophones));
  for (std::size_t i = 0; i < string.size(); ++i) {
    string[i].x = first + static_cast<double>(i) * spacing;
  }
}

std::size_t interpolateElevations(GeophoneString& string) {
  Profile profile;
  for (const GeometryPlace& place : string) {
    if (place.typed) profile.take(place);
  }
  if (profile.empty()) return 0;
  std::size_t filled = 0;
  for (GeometryPlace& place : string) filled += fillElevation(place, profile) ? 1 : 0;
  return filled;
}

std::size_t interpolateShotElevations(SurveyGeometry& geometry) {
  Profile profile;
  for (const GeophoneString& string : geometry.strings) {
    for (const GeometryPlace& place : string) profile.take(place);
  }
  for (const GeometryShot& shot : geometry.shots) {
    if (shot.place.typed) profile.take(shot.place);
  }
  if (profile.empty()) return 0;
  std::size_t filled = 0;
  for (GeometryShot& shot : geometry.shots) filled += fillElevation(shot.place, profile) ? 1 : 0;
  return filled;
}

std::vector<std::size_t> shotsNotLevelled(const SurveyGeometry& geometry) {
  constexpr double kSameElevation = 0.01;
  SurveyGeometry levelled = geometry;
  interpolateShotElevations(levelled);
  std::vector<std::size_t> shots;
  for (std::size_t i = 0; i < geometry.shots.size(); ++i) {
    const double moved = levelled.shots[i].place.z - geometry.shots[i].place.z;
    if (std::fabs(moved) > kSameElevation) shots.push_back(i);
  }
  return shots;
}

void removeString(SurveyGeometry& geometry, std::size_t string, int heir) {
  if (string >= geometry.strings.size()) return;
  geometry.strings.erase(geometry.strings.begin() + static_cast<std::ptrdiff_t>(string));
  const int removed = static_cast<int>(string);
  for (GeometryShot& shot : geometry.shots) {
    if (shot.string == removed) {
      shot.string = heir;
    } else if (shot.string > removed) {
      --shot.string;
    }
  }
}

std::string shotFile(const TomoDocument& document, std::size_t shot) {
  std::string file = entry(document.recordings->filenames, shot);
  return file.empty() ? entry(document.recordings->filenames_DX, shot) : file;
}

std::string shotRecord(const TomoDocument& document, std::size_t shot) {
  const std::vector<RecordingNote>& notes = document.recordings->notes;
  return shot < notes.size() ? notes[shot].nameInFile : std::string();
}

std::vector<std::size_t> shotsOfString(const SurveyGeometry& geometry, std::size_t string) {
  std::vector<std::size_t> shots;
  for (std::size_t i = 0; i < geometry.shots.size(); ++i) {
    if (geometry.shots[i].string == static_cast<int>(string)) shots.push_back(i);
  }
  return shots;
}

void addPair(SurveyGeometry& geometry, std::shared_ptr<SWavePair> pair) {
  std::vector<Point2D> receivers;
  for (const Trace& trace : pair->traces) receivers.push_back(trace.receiverPosition);
  const auto known = std::find_if(
      geometry.strings.begin(), geometry.strings.end(), [&](const GeophoneString& string) {
        return std::equal(
            string.begin(), string.end(), receivers.begin(), receivers.end(),
            [](const GeometryPlace& a, const Point2D& b) { return same(a.point(), b); });
      });
  GeometryShot shot;
  shot.string = static_cast<int>(known - geometry.strings.begin());
  if (known == geometry.strings.end()) geometry.strings.push_back(stringOf(receivers));
  const Point2D source = pair->traces.empty() ? Point2D{} : pair->traces.front().sourcePosition;
  shot.place = {source.x, source.z, source.z != 0.0};
  shot.traces = pair->traces.size();
  shot.fileDX = pair->fileDX;
  shot.fileSX = pair->fileSX;
  shot.pair = std::move(pair);
  geometry.shots.push_back(std::move(shot));
}

}  // namespace talvesk
