#pragma once

#include "model/RefractionDataStructure.h"
#include "tomo/fitted/ReferenceModels.h"

#include <optional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A model from outside that a fit may start from and be held to.
struct GivenModel {
  ReferenceKind kind = ReferenceKind::kFile;
  std::vector<double> slownesses;  ///< s/m, one per cell of the document's grid
};

/// The section of another project of the same line, cell by cell at the same distance along the
/// line and the same depth below the surface; beyond its ends and bottom as at them. \param from,
/// onto hold a grid
GivenModel sectionModel(const TomoDocument& from, const TomoDocument& onto);

/// The layers of the reciprocal method, sharp, with depths and velocities of their receivers and
/// those between them; beyond the receivers as at the last one. None where no depth is known.
/// \param onto holds a grid
std::optional<GivenModel> layersModel(const refractionDataStructure::processingData& layers,
                                      const TomoDocument& onto);

}  // namespace talvesk
