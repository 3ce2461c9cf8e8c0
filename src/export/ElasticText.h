#pragma once

#include "base/Status.h"
#include "refraction/elastic/ElasticLine.h"
#include "view/ElasticSection.h"

#include <iosfwd>
#include <string>

namespace talvesk {

/// A line per layer and place after a heading, fields separated by commas: layer from 1, distance,
/// elevation, depths of its top by P and by S (metres), the quantities of kElasticColumns, each
/// with its standard deviation where the line has errors, and what to think of it: nothing,
/// "unknown", "negative_poisson" or "s_not_slower", and "tops_differ". What is not known is empty.
void tellElastic(std::ostream& out, const ElasticLine& line);

/// The same as a file.
Status writeElastic(const std::string& path, const ElasticLine& line);

/// A line per cell of two sections: distance, elevation and depth below the surface of its middle
/// (metres), the quantities, and the remark without "tops_differ".
Status writeElasticSection(const std::string& path, const ElasticSection& section);

}  // namespace talvesk
