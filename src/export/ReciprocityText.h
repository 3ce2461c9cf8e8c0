#pragma once

#include "base/Status.h"
#include "doctor/ReciprocityTable.h"

#include <string>

namespace talvesk {

/// Writes all pairs of shots as a table with a heading, fields separated by commas: shots and
/// traces from 1, metres, milliseconds; what is not known is empty.
Status writeReciprocity(const std::string& path, const doctor::ReciprocityTable& table);

}  // namespace talvesk
