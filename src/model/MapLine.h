#pragma once

#include "model/MapCourse.h"

#include <vector>

namespace talvesk {

class TomoDocument;

/// The line on the map: straight from the first geophone to the last one, or by the vertices of its
/// course.
class LinePlacement {
 public:
  /// \param course of the line, if it has one
  explicit LinePlacement(const geographicsCoord& ends, std::vector<MapVertex> course = {});

  /// Between both ends along the line, metres.
  double length() const { return mLength; }
  /// \param distance from the first geophone, metres; may lie before it or beyond the last one
  MapPoint at(double distance) const;
  /// The unit vector along the line there; nothing of a line without a length.
  MapPoint direction(double distance) const;

 private:
  /// The end of the piece of the course that a distance lies on.
  std::vector<MapVertex>::const_iterator pieceEnd(double distance) const;

  MapPoint mFirst;
  double mEast = 0.0;  ///< components of the unit vector along the line
  double mNorth = 0.0;
  double mLength = 0.0;
  std::vector<MapVertex> mCourse;  ///< empty for a straight line
};

/// The vertices of a document's line, none where it is told by its map position.
const std::vector<MapVertex>& courseOf(const TomoDocument& document);

/// Whether the vertices are a course: none, or two at least, finite and each farther than the one
/// before.
bool isCourse(const std::vector<MapVertex>& vertices);

}  // namespace talvesk
