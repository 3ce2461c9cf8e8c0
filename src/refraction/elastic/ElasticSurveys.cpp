#include "refraction/elastic/ElasticSurveys.h"

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

/// A place of a line on the map, metres.
struct MapPlace {
  double east;
  double north;
};

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

MapPlace placeAt(const geographicsCoord& map, const Ends& ends, double x) {
  const double share = (x - ends.first) / (ends.last - ends.first);
  return {map.mEastFstGeoph + share * (map.mEastLstGeoph - map.mEastFstGeoph),
          map.mNorthFstGeoph + share * (map.mNorthLstGeoph - map.mNorthFstGeoph)};
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
    const MapPlace a = placeAt(p.map->geoCoord, ofP, x);
    const MapPlace b = placeAt(s.map->geoCoord, ofS, x - shift);
    most = std::fmax(most, std::hypot(a.east - b.east, a.north - b.north));
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
    remarks.push_back(Message::tr("The same distances of P and S lie up to %1 m apart on the map: "
                                  "they may not be the same line, or not begin at the same place.")
                          .arg(Message::number(gap, 3)));
  }
  return remarks;
}

bool seemExchanged(const TomoDocument& p, const LayeredWave& waveP, const TomoDocument& s,
                   const LayeredWave& waveS) {
  if (isOfS(p) != isOfS(s)) return isOfS(p);
  return usualRatio(waveP, waveS) < 1.0;
}

}  // namespace talvesk
