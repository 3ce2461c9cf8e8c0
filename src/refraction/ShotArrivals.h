#pragma once

#include "base/Point2D.h"
#include "model/RefractionDataStructure.h"

#include <cstdint>
#include <vector>

namespace talvesk {

class TomoDocument;

/// The side of a shot on which a receiver stands. A receiver at the shot itself is on neither.
enum class Side { kRight, kLeft };

/// One shot as the layered interpretation sees it; entry j of both sequences is trace j.
struct ShotArrivals {
  Point2D shot;
  std::vector<Point2D> receivers;
  std::vector<double> times;  ///< seconds; no pick where not positive

  bool onSide(std::size_t trace, Side side) const {
    const double x = receivers[trace].x;
    return side == Side::kRight ? x > shot.x : x < shot.x;
  }
};

/// The shots of a document, one per record. A record and a string of different lengths are used up
/// to the shorter; receivers are those of the string, else of the headers of the traces. Times that
/// are no finite pick are 0, and so are those at receivers whose position is no finite number.
std::vector<ShotArrivals> shotArrivals(const TomoDocument& document);

/// The marks of a shot, null when it has none. A number that belongs to several counts for the
/// first.
const refractionDataStructure::layerStruct* marksOf(
    const std::vector<refractionDataStructure::layerStruct>& marks, std::size_t shot);

/// Layer of a trace, kNoLayer beyond the end of the marks.
std::uint32_t layerOf(const refractionDataStructure::layerStruct& marks, std::size_t trace);

/// Gives every record of the document its marks: those it had where the number of traces is still
/// the same, else none. Curves and results are forgotten when marks were lost. Returns whether
/// anything changed that a user would miss.
bool fitToSurvey(const TomoDocument& document,
                 refractionDataStructure::Interpretation& interpretation);

/// Takes away the marks of a shot, whose recording is another now. Whether it takes part stays.
void forgetMarks(std::size_t shot, refractionDataStructure::Interpretation& interpretation);

/// Forgets curves, time shifts and results; the marks stay.
void forgetResults(refractionDataStructure::Interpretation& interpretation);

/// Sets all time shifts to 0, those of traces that have been assigned elsewhere since included.
void clearShifts(std::vector<refractionDataStructure::layerStruct>& marks);

/// Whether any trace is assigned to a layer.
bool hasMarks(const std::vector<refractionDataStructure::layerStruct>& marks);

}  // namespace talvesk
