#pragma once

#include "base/Point2D.h"

#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// Where known ground lies on a section: x along the line and elevation, metres. It is draped with
/// the cells that it holds.
struct KnownMarks {
  struct Layer {
    double top = 0.0;       ///< elevation
    double bottom = 0.0;    ///< elevation
    double velocity = 0.0;  ///< m/s
  };
  struct Borehole {
    std::string name;  ///< UTF-8
    double x = 0.0;
    double offset = 0.0;  ///< metres beside the line
    std::vector<Layer> layers;
  };
  struct Depth {
    std::string name;
    Point2D at;
    double error = 0.0;     ///< metres, up and down
    double velocity = 0.0;  ///< m/s that is reached there; 0: not said
  };
  struct Body {
    std::string name;
    double velocity = 0.0;         ///< m/s
    std::vector<Point2D> outline;  ///< closed by itself
  };
  std::vector<Borehole> boreholes;
  std::vector<Depth> depths;
  std::vector<Body> bodies;

  bool empty() const { return boreholes.empty() && depths.empty() && bodies.empty(); }
};

/// Of a document with a grid. What stands beyond the ends of the grid is left out.
KnownMarks knownMarks(const TomoDocument& document);

}  // namespace talvesk
