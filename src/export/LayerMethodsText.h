#pragma once

#include "base/Status.h"

#include <iosfwd>
#include <string>

namespace talvesk {

struct MethodComparison;

/// A line per refractor and geophone after a heading: layer, distance, elevation of the surface,
/// then by each method depth below the surface with its error, velocity with its error, and what
/// carries the depth; at last what methods disagree in. Metres and m/s. What is not known is empty,
/// and so are errors and disagreement without bands.
void tellLayerMethods(std::ostream& out, const MethodComparison& comparison, char separator = ',');

/// The same as a file.
Status writeLayerMethods(const std::string& path, const MethodComparison& comparison);

}  // namespace talvesk
