#pragma once

#include "base/Status.h"
#include "tomo/RefractorReading.h"

#include <iosfwd>
#include <string>

namespace talvesk {

/// A line per geophone after a heading, fields separated by commas: distance, elevation, depth of
/// the refractor by the layers and by the section below the surface, their difference (section less
/// layers), all in metres. What is not known is empty.
void tellComparison(std::ostream& out, const LayerComparison& comparison);

/// The same as a file.
Status writeComparison(const std::string& path, const LayerComparison& comparison);

}  // namespace talvesk
