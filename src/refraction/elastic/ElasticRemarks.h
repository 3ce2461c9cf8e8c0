#pragma once

#include "refraction/elastic/ElasticLine.h"
#include "refraction/elastic/LayeredWave.h"

namespace talvesk {

/// Adds what of a matched line does not fit together, is left out, or may mislead.
void addRemarks(const LayeredWave& p, const LayeredWave& s, ElasticLine& line);

}  // namespace talvesk
