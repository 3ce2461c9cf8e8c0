#include "export/SectionKml.h"

#include "base/Console.h"
#include "base/TextNumber.h"
#include "export/ExportFailure.h"
#include "export/KmlDocument.h"
#include "export/LinePlacement.h"
#include "model/Annotations.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "view/SectionAnnotations.h"
#include "view/SectionValues.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>
#include <ostream>

namespace talvesk {
namespace {

/// No viewer shows more, and Qt counts the bytes of a text in 31 bits.
constexpr std::uint32_t kMaxCells = 1'000'000;

/// A cell as an upright rectangle; survey abscissas and elevations, metres.
struct Rectangle {
  double left = 0.0;
  double right = 0.0;
  double lower = 0.0;
  double upper = 0.0;
};

/// Corners that differ in height are levelled to their mean, so that the cells of a column stand on
/// each other without gaps.
Rectangle rectangleOf(const SectionMesh& mesh, std::uint32_t row, std::uint32_t column) {
  const auto corner = [&](std::uint32_t line, std::uint32_t at) {
    return mesh.corners[mesh.corner(line, at)];
  };
  const auto level = [&](std::uint32_t line) {
    return 0.5 * (corner(line, column).z + corner(line, column + 1).z);
  };
  return {corner(row, column).x, corner(row, column + 1).x, level(row + 1), level(row)};
}

struct Wall {
  SectionMesh mesh;
  double foot = std::numeric_limits<double>::infinity();  ///< elevation of the deepest drawn cell

  explicit Wall(const TomoDocument& document)
      : mesh(sectionMesh(*document.model->grid, document.model->xOffset)) {
    forEachDrawn([this](std::size_t, const Rectangle& cell) { foot = std::min(foot, cell.lower); });
  }

  template <typename Visit>
  void forEachDrawn(Visit visit) const {
    for (std::uint32_t row = 0; row < mesh.rows; ++row) {
      for (std::uint32_t column = 0; column < mesh.columns; ++column) {
        if (mesh.isDrawn(row, column)) {
          visit(mesh.cell(row, column), rectangleOf(mesh, row, column));
        }
      }
    }
  }
};

int byteOf(double component) {
  return static_cast<int>(std::lround(std::clamp(component, 0.0, 1.0) * 255.0));
}

/// The corners against the clock, from the lower left; none where the cell cannot be placed.
std::vector<KmlDocument::Vertex> ringOf(const Rectangle& cell, const LineOnGlobe& line,
                                        double firstX, double foot) {
  LonLat left;
  LonLat right;
  const double lower = cell.lower - foot;
  const double upper = cell.upper - foot;
  if (!std::isfinite(lower) || !std::isfinite(upper) || !line.locate(cell.left - firstX, left) ||
      !line.locate(cell.right - firstX, right)) {
    return {};
  }
  return {{left, lower}, {right, lower}, {right, upper}, {left, upper}};
}

/// The marked isolines of a survey, each piece under its name.
void addIsolines(const TomoDocument& document, const Wall& wall, const LineOnGlobe& line,
                 double firstX, KmlDocument& kml) {
  for (const DrawnIsoline& isoline : drawnIsolines(document.annotations->isolines, wall.mesh,
                                                   document.model->grid->velocities())) {
    const std::uint32_t rgb = isoline.mark.color;
    char color[9];
    std::snprintf(color, sizeof color, "ff%02x%02x%02x", rgb & 0xffU, rgb >> 8 & 0xffU,
                  rgb >> 16 & 0xffU);
    const std::string name =
        isoline.mark.name.empty() ? exactDouble(isoline.mark.velocity) + " m/s" : isoline.mark.name;
    for (const ContourLine& contour : isoline.lines) {
      std::vector<KmlDocument::Vertex> points;
      for (const Point2D& p : contour.points) {
        LonLat place;
        if (line.locate(p.x - firstX, place)) points.push_back({place, p.z - wall.foot});
      }
      if (contour.closed && !points.empty()) points.push_back(points.front());
      if (points.size() > 1) {
        kml.addLine(name, points, QString::fromLatin1(color), isoline.mark.width);
      }
    }
  }
}

/// What stands in the way of an export, or an empty text.
Message whyNot(const TomoDocument& document, const ColorPalette& palette, const ValueRange& range) {
  if (!document.model->grid) return noGrid();
  if (document.model->grid->cellCount() > kMaxCells) {
    return Message::tr("the section has too many cells for this format, %1")
        .arg(document.model->grid->cellCount());
  }
  if (palette.color_gradient.empty()) return Message::tr("the palette has no colours");
  if (!std::isfinite(range.span()) || !(range.span() > 0.0)) {
    return Message::tr(
        "the value range of the section is empty; its maximum must be greater than its minimum");
  }
  return {};
}

}  // namespace

std::string kmlColor(const ColorGradient& gradient, double fraction) {
  const RgbColor color = gradient.colorAt(fraction);
  char text[9];
  std::snprintf(text, sizeof text, "ff%02x%02x%02x", static_cast<unsigned>(byteOf(color.b)),
                static_cast<unsigned>(byteOf(color.g)), static_cast<unsigned>(byteOf(color.r)));
  return text;
}

Status writeSectionKml(const std::string& path, const TomoDocument& document,
                       const ColorPalette& palette, ValueRange range) {
  if (!document.map->geoCoord_isSet) return cannotWrite(path, noGeographicCoordinates());
  const std::optional<LineEnds> ends = lineEnds(document);
  if (!ends) return cannotWrite(path, Message::tr("the survey has no geophones"));
  if (const Message why = whyNot(document, palette, range); !why.empty()) {
    return cannotWrite(path, why);
  }
  const LineOnGlobe line(document.map->geoCoord, courseOf(document));
  if (!line.status().ok()) return cannotWrite(path, line.status().text());
  tellUntransformed(path, line);

  console::out() << "Exporting tomographic data on KML file: " << path << std::endl;
  KmlDocument kml(document.title + " Profile", document.title);
  const Wall wall(document);
  std::size_t shapes = 0;
  wall.forEachDrawn([&](std::size_t cell, const Rectangle& rectangle) {
    const double velocity = document.model->grid->velocity(static_cast<std::uint32_t>(cell));
    const auto ring = ringOf(rectangle, line, ends->first, wall.foot);
    if (std::isnan(velocity) || ring.empty()) return;
    const std::string color =
        kmlColor(palette.color_gradient, (velocity - range.min) / range.span());
    kml.addShape(ring, QString::fromStdString(color));
    ++shapes;
  });
  if (shapes == 0) return cannotWrite(path, noCellDrawn());
  addIsolines(document, wall, line, ends->first, kml);
  return told(kml.write(path));
}

}  // namespace talvesk
