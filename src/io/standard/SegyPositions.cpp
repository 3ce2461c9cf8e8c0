#include "io/standard/SegyPositions.h"

#include "io/standard/TraceTally.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace talvesk {
namespace {

constexpr double kHighest = 12000.0;    ///< above and below the sea, metres
constexpr double kLongestLine = 100e3;  ///< metres
constexpr double kMillimetres = 1000.0;
constexpr double kBesideLine = 0.001;  ///< metres; less is rounding

/// A place on the map, metres.
struct Place {
  double x = 0.0;
  double y = 0.0;
};

bool operator==(const Place& a, const Place& b) {
  return a.x == b.x && a.y == b.y;
}
bool operator!=(const Place& a, const Place& b) {
  return !(a == b);
}

double distance(const Place& a, const Place& b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

/// The straight line that a survey was shot along.
class Line {
 public:
  Line(const Place& start, const Place& end)
      : mStart(start),
        mAlong(
            {(end.x - start.x) / distance(start, end), (end.y - start.y) / distance(start, end)}) {}

  double along(const Place& place) const {
    const double metres = (place.x - mStart.x) * mAlong.x + (place.y - mStart.y) * mAlong.y;
    return std::round(metres * kMillimetres) / kMillimetres + 0.0;
  }
  double beside(const Place& place) const {
    return std::abs((place.x - mStart.x) * mAlong.y - (place.y - mStart.y) * mAlong.x);
  }

 private:
  Place mStart;
  Place mAlong;
};

class Placing {
 public:
  explicit Placing(SegyTraces& found) : mFound(found), mPlaced(found.traces.size()) {
    mSources.reserve(mPlaced.size());
    mReceivers.reserve(mPlaced.size());
    const double unit = found.metresPerUnit;
    for (const SegyTrace& trace : found.traces) {
      const SegyTraceHeader& header = trace.header;
      mSources.push_back({header.sourceX * unit, header.sourceY * unit});
      mReceivers.push_back({header.receiverX * unit, header.receiverY * unit});
    }
  }

  std::vector<SegyPosition> place() {
    warnOfHeaders();
    if (offsetsTellMore()) {
      takeOffsets();
    } else if (sameY(mReceivers) || inDegrees()) {
      takeX();
    } else {
      takeDistances();
    }
    warnOfLength();
    takeElevations();
    if (tellsGeophonesAlone()) takeElevationsOfGeophones();
    return std::move(mPlaced);
  }

 private:
  const SegyTraceHeader& header(std::size_t trace) const { return mFound.traces[trace].header; }
  void warn(Message text) { mFound.warnings.push_back(std::move(text)); }

  static bool sameY(const std::vector<Place>& places) {
    return std::all_of(places.begin(), places.end(),
                       [&](const Place& place) { return place.y == places.front().y; });
  }

  bool inDegrees() const { return mInDegrees.any(); }

  void warnOfHeaders() {
    warnOfScalars(&SegyTraceHeader::coordinateScalar,
                  Message::tr("a scalar of %1 for the coordinates of %2 is none that the standard "
                              "knows; they were taken as they stand"));
    warnOfScalars(&SegyTraceHeader::elevationScalar,
                  Message::tr("a scalar of %1 for the elevations of %2 is none that the standard "
                              "knows; they were taken as they stand"));
    for (std::size_t i = 0; i < mPlaced.size(); ++i) {
      if (header(i).coordinateUnits >= 2 && header(i).coordinateUnits <= 4) mInDegrees.count(i);
    }
    if (mInDegrees.any()) {
      warn(
          Message::tr("the coordinates of %1 are degrees or seconds of arc, no metres; x was taken "
                      "as it stands, so load a geometry file")
              .arg(mInDegrees.which(mPlaced.size())));
    }
  }

  void warnOfScalars(std::int16_t SegyTraceHeader::*scalar, Message text) {
    TraceTally odd;
    std::int16_t first = 0;
    for (std::size_t i = 0; i < mPlaced.size(); ++i) {
      if (isSegyScalar(header(i).*scalar)) continue;
      if (!odd.any()) first = header(i).*scalar;
      odd.count(i);
    }
    if (odd.any()) warn(std::move(text).arg(first).arg(odd.which(mPlaced.size())));
  }

  /// Whether receivers of one source all share a place while their offsets differ.
  bool offsetsTellMore() const {
    bool differ = false;
    bool away = false;
    bool atSource = true;
    for (std::size_t i = 0; i < mPlaced.size(); ++i) {
      if (mReceivers[i] != mSources[i]) atSource = false;
      if (header(i).offset != 0.0) away = true;
      if (i == 0 || mSources[i] != mSources[i - 1]) continue;
      if (mReceivers[i] != mReceivers[i - 1]) return false;
      if (header(i).offset != header(i - 1).offset) differ = true;
    }
    return differ || (atSource && away);
  }

  void takeOffsets() {
    for (std::size_t i = 0; i < mPlaced.size(); ++i) {
      mPlaced[i].source.x = mSources[i].x;
      mPlaced[i].receiver.x = mSources[i].x + header(i).offset * mFound.metresPerUnit;
    }
    warn(
        Message::tr("its coordinates do not tell the geophones apart; they were placed by their "
                    "offsets (bytes 37 to 40) from the shot"));
  }

  void takeX() {
    for (std::size_t i = 0; i < mPlaced.size(); ++i) {
      mPlaced[i].source.x = mSources[i].x;
      mPlaced[i].receiver.x = mReceivers[i].x;
    }
    warnOfOnePlace();
    warnOfShotsBeside();
  }

  static bool areAt(const Place& there, const std::vector<Place>& places) {
    return std::all_of(places.begin(), places.end(),
                       [&](const Place& place) { return place == there; });
  }

  /// Of geophones that all stand at one place.
  void warnOfOnePlace() {
    if (!areAt(mReceivers.front(), mReceivers)) return;
    if (areAt(mReceivers.front(), mSources)) {
      warn(Message::tr("its headers tell no positions; shots and geophones all stand at %1, so "
                       "load a geometry file")
               .arg(Message::length(mReceivers.front().x)));
    } else if (mReceivers.size() > 1) {
      warn(Message::tr("its headers put the geophones of all traces at %1; load a geometry file "
                       "if there was more than one")
               .arg(Message::length(mReceivers.front().x)));
    }
  }

  void warnOfShotsBeside() {
    if (inDegrees() || areAt(Place(), mReceivers)) return;  // no distance is told
    double beside = 0.0;
    for (const Place& source : mSources) {
      beside = std::max(beside, std::abs(source.y - mReceivers.front().y));
    }
    if (beside < kBesideLine) return;
    warn(Message::tr("shots stand up to %1 beside the line of geophones; x is taken as it stands")
             .arg(Message::length(beside)));
  }

  /// Of the receivers the one that is farthest from the first.
  Place farthest() const {
    const auto from = [this](const Place& a, const Place& b) {
      return distance(a, mReceivers.front()) < distance(b, mReceivers.front());
    };
    return *std::max_element(mReceivers.begin(), mReceivers.end(), from);
  }

  void takeDistances() {
    const Line line(mReceivers.front(), farthest());
    double geophones = 0.0;
    double shots = 0.0;
    for (std::size_t i = 0; i < mPlaced.size(); ++i) {
      mPlaced[i].source.x = line.along(mSources[i]);
      mPlaced[i].receiver.x = line.along(mReceivers[i]);
      geophones = std::max(geophones, line.beside(mReceivers[i]));
      shots = std::max(shots, line.beside(mSources[i]));
    }
    warn(
        Message::tr("its coordinates do not lie along x; distances are those along the straight "
                    "line through the geophones from the first geophone of this file, which stands "
                    "at x %1, y %2; geophones stand up to %3 beside it, shots up to %4")
            .arg(Message::number(mReceivers.front().x, 10))
            .arg(Message::number(mReceivers.front().y, 10))
            .arg(Message::length(geophones, 3))
            .arg(Message::length(shots, 3)));
  }

  void warnOfLength() {
    const auto [first, last] = std::minmax_element(
        mPlaced.begin(), mPlaced.end(),
        [](const SegyPosition& a, const SegyPosition& b) { return a.receiver.x < b.receiver.x; });
    const double length = last->receiver.x - first->receiver.x;
    if (inDegrees() || length <= kLongestLine) return;
    warn(Message::tr("by its headers the geophones stand along %1; their scalar or unit is "
                     "likely wrong, so check them or load a geometry file")
             .arg(Message::length(length)));
  }

  void takeElevations() {
    double deepest = 0.0;
    TraceTally beyond;
    TraceTally above;
    for (std::size_t i = 0; i < mPlaced.size(); ++i) {
      const double unit = mFound.metresPerUnit;
      if (header(i).sourceDepth < 0.0) above.count(i);
      const double depth = std::max(header(i).sourceDepth, 0.0) * unit;
      deepest = std::max(deepest, depth);
      mPlaced[i].source.z = header(i).sourceElevation * unit - depth;
      mPlaced[i].receiver.z = header(i).receiverElevation * unit;
      const double highest =
          std::max(std::abs(mPlaced[i].source.z), std::abs(mPlaced[i].receiver.z));
      if (highest > kHighest) beyond.count(i);
    }
    if (beyond.any()) {
      for (SegyPosition& position : mPlaced) position.source.z = position.receiver.z = 0.0;
      warn(Message::tr(
               "the elevations or shot depths of %1 lie beyond all ground; elevations of the "
               "file were taken as 0")
               .arg(beyond.which(mPlaced.size())));
      return;
    }
    if (deepest > 0.0) {
      warn(Message::tr("shots lie up to %1 below the ground; their elevations are those of the "
                       "shots, not of the ground above them")
               .arg(Message::length(deepest)));
    }
    if (above.any()) {
      warn(Message::tr("the shot depth of %1 is negative and was taken as 0")
               .arg(above.which(mPlaced.size())));
    }
  }

  /// Whether shots stand at 0 and no geophone does.
  bool tellsGeophonesAlone() const {
    return std::all_of(mPlaced.begin(), mPlaced.end(), [](const SegyPosition& position) {
      return position.source.z == 0.0 && position.receiver.z != 0.0;
    });
  }

  void takeElevationsOfGeophones() {
    std::vector<Point2D> geophones;
    geophones.reserve(mPlaced.size());
    for (const SegyPosition& position : mPlaced) geophones.push_back(position.receiver);
    keepFirstOfEachX(geophones);
    for (SegyPosition& position : mPlaced)
      position.source.z = nearest(geophones, position.source.x).z;
    warn(
        Message::tr("its headers tell the elevations of geophones alone; shots were put at that of "
                    "the geophone nearest to them"));
  }

  /// \param points by ascending x
  static Point2D nearest(const std::vector<Point2D>& points, double x) {
    const auto right =
        std::lower_bound(points.begin(), points.end(), x,
                         [](const Point2D& point, double at) { return point.x < at; });
    if (right == points.begin()) return *right;
    if (right == points.end()) return points.back();
    return right->x - x < x - std::prev(right)->x ? *right : *std::prev(right);
  }

  SegyTraces& mFound;
  std::vector<SegyPosition> mPlaced;
  std::vector<Place> mSources;
  std::vector<Place> mReceivers;
  TraceTally mInDegrees;
};

}  // namespace

std::vector<SegyPosition> segyPositions(SegyTraces& found) {
  if (found.traces.empty()) return {};
  return Placing(found).place();
}

}  // namespace talvesk
