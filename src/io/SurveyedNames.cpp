#include "io/SurveyedNames.h"

#include "io/LatinLetters.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace talvesk {
namespace {

using Names = std::vector<std::string_view>;

const Names kStations = {
    "name",     "nr",      "no",       "num",         "number",   "id",          "station",
    "stat",     "stn",     "point",    "pointname",   "pointid",  "pointnumber", "pt",
    "ptid",     "ptname",  "punkt",    "punktnummer", "punktnr",  "punktname",   "nummer",
    "numero",   "punto",   "nome",     "nom",         "nombre",   "stazione",    "estacion",
    "geophone", "geophon", "geofono",  "receiver",    "peg",      "label",       "channel",
    "chan",     "kanal",   "canal",    "canale",      "voie",     "picchetto",   "estaca",
    "piquet",   "pflock",  "distance", "distanz",     "distanza", "distancia",   "chainage"};
const Names kKinds = {"kind", "code", "type", "typ", "tipo", "art", "genre", "class", "what"};
const Names kEastings = {"easting", "eastings",   "east",       "e",     "x",      "est",
                         "este",    "ost",        "ostwert",    "osten", "utme",   "utmx",
                         "utmeast", "utmeasting", "rechtswert", "rw",    "xcoord", "coordx",
                         "xutm",    "eutm",       "eastingutm"};
const Names kNorthings = {"northing", "northings", "north",       "n",        "y",
                          "nord",     "norte",     "norden",      "nordwert", "utmn",
                          "utmy",     "utmnorth",  "utmnorthing", "hochwert", "hw",
                          "ycoord",   "coordy",    "yutm",        "nutm",     "northingutm"};
const Names kElevations = {
    "z",          "elevation", "elev",  "ele",     "height",  "hgt",     "altitude",    "alt",
    "h",          "hohe",      "hoehe", "quota",   "cota",    "altitud", "altitudine",  "elevacion",
    "elevazione", "altura",    "cote",  "hauteur", "altezza", "zcoord",  "orthoheight", "level"};
const Names kLongitudes = {"lon",        "long",        "lng",    "longitude",
                           "longitud",   "longitudine", "lange",  "laenge",
                           "langengrad", "laengengrad", "gpslon", "lonwgs84"};
const Names kLatitudes = {"lat",    "latitude",    "latitud", "latitudine",
                          "breite", "breitengrad", "gpslat",  "latwgs84"};

const Names kShots = {"s",      "sp",      "shot",   "shots",       "shotpoint",     "shotpt",
                      "src",    "source",  "sou",    "vp",          "schuss",        "schusspunkt",
                      "quelle", "tir",     "tiro",   "pointdetir",  "scoppio",       "sorgente",
                      "sparo",  "disparo", "fuente", "puntodetiro", "puntodiscoppio"};
const Names kGeophones = {"g",          "gp",       "geo",       "geophone", "geophones",
                          "geophon",    "geofono",  "geofoni",   "r",        "rec",
                          "rcv",        "receiver", "receivers", "phone",    "empfanger",
                          "ricevitore", "receptor", "recepteur", "ch"};

bool has(const Names& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// The last run of digits, with decimals.
std::string_view lastNumber(std::string_view name) {
  std::size_t end = name.size();
  while (end > 0 && !isDigit(name[end - 1])) --end;
  std::size_t begin = end;
  const auto inside = [&](std::size_t i) {
    return isDigit(name[i]) || (name[i] == '.' && i > 0 && isDigit(name[i - 1]));
  };
  while (begin > 0 && inside(begin - 1)) --begin;
  return name.substr(begin, end - begin);
}

}  // namespace

SurveyedColumns namedColumns(const HeadedTable::Columns& columns) {
  SurveyedColumns found;
  found.station = columnNamed(columns, kStations);
  found.kind = columnNamed(columns, kKinds);
  found.elevation = columnNamed(columns, kElevations);
  found.east = columnNamed(columns, kEastings);
  found.north = columnNamed(columns, kNorthings);
  // Receivers that write both mean easting and northing, which need no projecting.
  if (found.complete()) return found;
  SurveyedColumns onGlobe = found;
  onGlobe.east = columnNamed(columns, kLongitudes);
  onGlobe.north = columnNamed(columns, kLatitudes);
  onGlobe.degrees = true;
  return onGlobe.complete() ? onGlobe : found;
}

SurveyedKind kindOf(std::string_view word) {
  const std::string letters = lowerLetters(word);
  if (has(kShots, letters)) return SurveyedKind::kShot;
  if (has(kGeophones, letters)) return SurveyedKind::kGeophone;
  return SurveyedKind::kStation;
}

void nameStation(std::string_view name, const HeadedTable& table, SurveyedRow& row) {
  double number = 0.0;
  if (table.number(name, number) == NumberError::kNone && std::isfinite(number)) {
    row.number = number;
    return;
  }
  row.kind = kindOf(name);
  const std::string_view digits = lastNumber(name);
  if (!digits.empty() && parseWholeDouble(digits, number) == NumberError::kNone)
    row.number = number;
}

}  // namespace talvesk
