#pragma once

#include "base/Status.h"
#include "view/BlowPair.h"

namespace talvesk {

struct Survey;

/// Adds the difference or the sum of two blows to a survey as its last shot: at the place of the
/// first, with its geophones, without picks and without a shot file. Of grid and results what
/// belongs to the line as it was is forgotten, as by any shot that comes.
/// \return failure where there is no such thing, or the survey takes no shots
Status addBlowPair(const BlowPair& pair, BlowPair::Set which, Survey& survey);

}  // namespace talvesk
