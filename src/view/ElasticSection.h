#pragma once

#include "base/Message.h"
#include "base/Point2D.h"
#include "base/Status.h"
#include "refraction/elastic/ElasticLine.h"
#include "view/SectionScene.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A cell of the section of P with what that of S has there.
struct ElasticCell {
  std::uint32_t cell = 0;  ///< of the grid of P
  Point2D centre;          ///< distance as P has it, and elevation, metres
  double depth = 0.0;      ///< of its middle below the surface, metres
  ElasticState state;
};

/// Two sections, of P and of S, cell by cell.
struct ElasticSection {
  std::vector<ElasticCell> cells;  ///< drawn in both, in the order of the grid of P
  std::vector<Message> remarks;    ///< what is left out, or may mislead
};

/// Matches the drawn cells of the section of P with those of S in which their middles lie, by
/// distance along the line and depth below the surface. Sections know no layers: of densities per
/// layer the first counts for all. Fails without grids, and where they have no cell in common.
Status matchSections(const TomoDocument& p, const TomoDocument& s, const ElasticOptions& options,
                     ElasticSection& out);

/// A quantity for a picture over the grid of P, in the units of kElasticColumns.
/// \param name, unit as the picture has them \param cells of that grid
CellValues cellValuesOf(const ElasticSection& section, ElasticQuantity quantity, Message name,
                        std::string unit, std::size_t cells);

}  // namespace talvesk
