#pragma once

#include "base/Status.h"
#include "refraction/elastic/ElasticLine.h"
#include "refraction/elastic/LayeredWave.h"

namespace talvesk {

/// Matches layers by their number from the top, and places by their distance along the line:
/// wherever one of the two has a receiver and the other is known on both sides. Fails where one of
/// them has no layers, and where they have no place in common.
Status matchWaves(const LayeredWave& p, const LayeredWave& s, const ElasticOptions& options,
                  ElasticLine& out);

}  // namespace talvesk
