#pragma once

#include "model/Annotations.h"
#include "view/ContourLines.h"

#include <cstddef>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A marked isoline as it runs through a section.
struct DrawnIsoline {
  MarkedIsoline mark;
  std::vector<ContourLine> lines;  ///< empty where the section does not reach its velocity
};

/// What the user has drawn, as it lies on a section: x along the line and elevation, metres.
struct SectionAnnotations {
  std::vector<DrawnIsoline> isolines;  ///< in the order of the document
  std::vector<Annotation> items;
  std::size_t outside = 0;  ///< items of which nothing lies within the section's extent

  bool empty() const { return isolines.empty() && items.empty(); }
};

/// Marked isolines are those of velocity, whatever else the section shows.
/// \param mesh the drawn cells \param velocities of the cells, m/s
std::vector<DrawnIsoline> drawnIsolines(const std::vector<MarkedIsoline>& marks,
                                        const SectionMesh& mesh,
                                        const std::vector<double>& velocities);

/// How many annotations lie wholly beyond a rectangle. \param low, high its corners, metres
std::size_t countOutside(const std::vector<Annotation>& items, const Point2D& low,
                         const Point2D& high);

}  // namespace talvesk
