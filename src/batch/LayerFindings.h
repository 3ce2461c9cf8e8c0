#pragma once

#include "base/Status.h"
#include "batch/JsonText.h"
#include "batch/Options.h"
#include "refraction/BuildProfiles.h"
#include "refraction/Support.h"
#include "refraction/XYChoice.h"
#include "refraction/methods/MethodComparison.h"

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What `refract` tells beside the prescribed profile.
struct LayerFindings {
  std::vector<XYChoice> xy;                    ///< per refractor of the reciprocal method
  std::vector<RefractorSupport> support;       ///< per refractor that is built
  std::optional<MethodComparison> comparison;  ///< none: not asked for

  const MethodComparison* methods() const { return comparison ? &*comparison : nullptr; }
  /// Whether some method has found a layer.
  bool foundLayers() const;
  /// Whether picks were moved by their errors.
  bool hasBands() const { return comparison && comparison->bounds.members > 0; }
};

/// Builds the profile with the XY asked for, which may first have to be found.
/// \param refused why an XY cannot be taken; the profile is not built then
ProfileOutcome buildWithXY(const RefractOptions& options, const std::vector<ShotArrivals>& shots,
                           refractionDataStructure::Interpretation& interpretation,
                           Status& refused);

/// Of an interpretation as buildWithXY() left it.
LayerFindings findLayers(const LayerMethodOptions& options, const TomoDocument& document,
                         const refractionDataStructure::Interpretation& interpretation);

/// Adds to the JSON of a refractor: `depth_support` and `velocity_support`, and of one by the
/// reciprocal method `xy_choice`.
void addFindings(const LayerFindings& findings, std::size_t refractor, Json& json);

/// All that a comparison holds.
Json comparisonJson(const MethodComparison& comparison);

/// What the methods beside the prescribed one leave out, and why, by name.
std::vector<std::string> remarksOf(const LayerFindings& findings);

/// Lines for the terminal.
void summarizeFindings(const LayerFindings& findings, std::ostream& out);

}  // namespace talvesk
