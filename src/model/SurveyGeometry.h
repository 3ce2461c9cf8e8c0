#pragma once

#include "base/Point2D.h"
#include "model/SWavePair.h"

#include <cstddef>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// Where geophones and shots stand, as it is while somebody edits it: positions may still be
/// missing, and nothing of the survey changes before applyGeometry(). A plain value; a copy of it
/// is a state to come back to.

/// A position that may be unknown in part.
struct GeometryPlace {
  double x = std::numeric_limits<double>::quiet_NaN();  ///< metres along the line; NaN: empty
  double z = std::numeric_limits<double>::quiet_NaN();  ///< elevation, metres; NaN: empty
  bool typed = false;  ///< somebody gave the elevation; others may be interpolated

  Point2D point() const { return {x, z}; }
};

using GeophoneString = std::vector<GeometryPlace>;  ///< in channel order

struct GeometryShot {
  GeometryPlace place;
  int string = 0;          ///< geophone string, from 0; -1 none
  std::size_t traces = 0;  ///< of its trace set, or times of its record without one
  std::string file;        ///< path, empty without one
  std::string fileDX;      ///< the same of an S-wave pair
  std::string fileSX;
  std::shared_ptr<SWavePair> pair;  ///< recordings that are to be this shot's; null: as they are

  bool isPair() const { return !fileDX.empty() || !fileSX.empty(); }
};

struct SurveyGeometry {
  std::vector<GeophoneString> strings;
  /// The first ones are the records of the document, in order; pairs that were added follow.
  std::vector<GeometryShot> shots;
};

/// More geophones than any shot file has traces.
inline constexpr std::size_t kMostGeophones = 65535;

/// The geometry of a document. Elevations count as typed, except where a string or the shots have
/// none but 0: that is what files without elevations give.
SurveyGeometry geometryOf(const TomoDocument& document);

/// Whether strings, shot positions, the strings that shots use, or recordings are not those of the
/// document any more. Empty and NaN positions are like each other.
bool geometryDiffers(const SurveyGeometry& geometry, const TomoDocument& document);

/// Takes the geometry into the document it was made of. When it differs, grid and results are
/// forgotten and computed times become kNoTime; picks stay, except those of shots that get new
/// recordings. Records without trace sets take no pairs: the document must have as many trace sets
/// as records, or no shot a new pair. Moves the traces out of the pairs.
/// \return whether anything changed
bool applyGeometry(const SurveyGeometry& geometry, TomoDocument& document);

/// Geophones evenly spaced along the line; elevations of those that existed stay.
void autofill(GeophoneString& string, double first, double spacing, std::size_t count);

/// Gives every geophone whose elevation nobody typed the one that lies between its typed neighbours
/// along the line, and that of the outermost typed one beyond, to the millimetre. \return how many
/// got one; 0 also when no elevation was typed
std::size_t interpolateElevations(GeophoneString& string);

/// The same for the shots, from the geophones of all strings and the typed shots. Elevations of
/// geophones count whether typed or interpolated.
std::size_t interpolateShotElevations(SurveyGeometry& geometry);

/// Shots that interpolateShotElevations() would move by more than a centimetre: files gave
/// elevations to geophones only, or those were typed afterwards.
std::vector<std::size_t> shotsNotLevelled(const SurveyGeometry& geometry);

/// Removes a string; shots that used it use `heir` of the remaining ones, counted without it; -1
/// leaves them without a string.
void removeString(SurveyGeometry& geometry, std::size_t string, int heir);

/// Path to name a shot of the document by: its file, or the DX file of its pair; empty without one.
std::string shotFile(const TomoDocument& document, std::size_t shot);

/// The name of a shot among those of its file; empty where the file holds one.
std::string shotRecord(const TomoDocument& document, std::size_t shot);

/// Shots that use a string, from 0.
std::vector<std::size_t> shotsOfString(const SurveyGeometry& geometry, std::size_t string);

/// Adds a shot at the source of a pair. Its receivers become a string unless an equal one exists.
void addPair(SurveyGeometry& geometry, std::shared_ptr<SWavePair> pair);

}  // namespace talvesk
