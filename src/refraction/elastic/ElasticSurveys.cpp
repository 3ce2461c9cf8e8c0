#include "refraction/elastic/ElasticSurveys.h"

#include "model/MapLine.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

bool isOfS(const TomoDocument& document) {
  return document.recordings->waveType == WaveType::S;
}

/// First and last geophone, metres along the line.
struct Ends {
  double first = std::numeric_limits<double>::infinity();
  double last = -std::numeric_limits<double>::infinity();
};

Ends endsOf(const TomoDocument& document) {
  Ends ends;
  for (const auto& string : document.line->goephonesStringSet) {
    for (const Point2D& geophone : string) {
      if (!std::isfinite(geophone.x)) continue;
      ends.first = std::min(ends.first, geophone.x);
      ends.last = std::max(ends.last, geophone.x);
    }
  }
  return ends;
}

/// By the way of the line, if it is known, else by the share of the distance between its ends.
MapPoint placeAt(const TomoDocument& document, const Ends& ends, double x) {
  const geographicsCoord& line = document.map->geoCoord;
  const std::vector<MapVertex>& course = courseOf(document);
  if (!course.empty()) return LinePlacement(line, course).at(x - ends.first);
  const double share = (x - ends.first) / (ends.last - ends.first);
  return {line.mEastFstGeoph + share * (line.mEastLstGeoph - line.mEastFstGeoph),
          line.mNorthFstGeoph + share * (line.mNorthLstGeoph - line.mNorthFstGeoph)};
}

/// How far the same distances lie apart on the map at the ends of what both have, metres; not a
/// number where that cannot be told.
double mapGap(const TomoDocument& p, const TomoDocument& s, double shift) {
  const Ends ofP = endsOf(p);
  const Ends ofS = endsOf(s);
  const double first = std::max(ofP.first, ofS.first + shift);
  const double last = std::min(ofP.last, ofS.last + shift);
  double most = std::numeric_limits<double>::quiet_NaN();
  if (!(first < last)) return most;
  for (const double x : {first, last}) {
    const MapPoint a = placeAt(p, ofP, x);
    const MapPoint b = placeAt(s, ofS, x - shift);
    most = std::fmax(most, std::hypot(a.easting - b.easting, a.northing - b.northing));
  }
  return most;
}

/// Of the velocities of layers that both have, the median of how many times the first is faster.
double usualRatio(const LayeredWave& p, const LayeredWave& s) {
  std::vector<double> ratios;
  const auto usual = [](const WaveLayer& layer) {
    std::vector<double> known;
    for (const Estimate& v : layer.velocity) {
      if (std::isfinite(v.value)) known.push_back(v.value);
    }
    return medianOf(std::move(known), Estimate().value);
  };
  for (std::size_t i = 0; i < std::min(p.layers.size(), s.layers.size()); ++i) {
    const double ratio = usual(p.layers[i]) / usual(s.layers[i]);
    if (std::isfinite(ratio)) ratios.push_back(ratio);
  }
  return medianOf(std::move(ratios), 1.0);
}

}  // namespace

std::vector<Message> compareSurveys(const TomoDocument& p, const TomoDocument& s,
                                    const ElasticOptions& options) {
  std::vector<Message> remarks;
  if (isOfS(p) && !isOfS(s)) {
    remarks.push_back(
        Message::tr("By their recordings the project of P is one of S waves, and "
                    "that of S is not: they may be exchanged."));
  } else if (isOfS(p)) {
    remarks.push_back(Message::tr("The recordings of both projects are of S waves."));
  }
  if (!p.map->geoCoord_isSet || !s.map->geoCoord_isSet) return remarks;
  if (p.map->geoCoord.CRS != s.map->geoCoord.CRS) {
    remarks.push_back(Message::tr("The places of P and S on the map are given in different systems "
                                  "(EPSG:%1 and EPSG:%2) and were not compared.")
                          .arg(p.map->geoCoord.CRS)
                          .arg(s.map->geoCoord.CRS));
    return remarks;
  }
  if (const double gap = mapGap(p, s, options.shift); gap > ElasticOptions::kPlaceTolerance) {
    remarks.push_back(Message::tr("The same distances of P and S lie up to %1 apart on the map: "
                                  "they may not be the same line, or not begin at the same place.")
                          .arg(Message::length(gap, 3)));
  }
  return remarks;
}

bool seemExchanged(const TomoDocument& p, const LayeredWave& waveP, const TomoDocument& s,
                   const LayeredWave& waveS) {
  if (isOfS(p) != isOfS(s)) return isOfS(p);
  return usualRatio(waveP, waveS) < 1.0;
}

}  // namespace talvesk
