#pragma once

#include "base/Status.h"
#include "view/ResidualTable.h"

#include <iosfwd>
#include <string>

namespace talvesk {

/// A line per pick with a computed time, after a heading, fields separated by commas: shots and
/// geophones from 1, metres, milliseconds; residuals are computed minus measured. What is not known
/// is empty.
void tellResiduals(std::ostream& out, const ResidualTable& table);

/// The same as a file. Fails without a section that has times of its own.
Status writeResiduals(const std::string& path, const ResidualTable& table);

}  // namespace talvesk
