#pragma once

#include "base/Status.h"

namespace talvesk {

struct Survey;

/// Puts the layered profile of a survey into its grid, for an inversion to start from; without a
/// grid it gets the one that is proposed. What had to be filled, and what is forgotten, is told.
/// \param thickness metres over which jumps between layers are graded; 0: sharp
Status putStartModel(double thickness, Survey& survey);

}  // namespace talvesk
