#pragma once

#include "refraction/Branches.h"
#include "refraction/RefractionWarning.h"

#include <QString>

namespace talvesk {

/// What a warning of the interpretation says, in the language of the program.
QString refractionText(const RefractionWarning& warning);

/// Why the first refractor has no pair of shots.
QString noShotPairText(const ShotPairReach& reach);

/// How fast the first layer of a fitted profile is, a sentence.
QString firstLayerText(const refractionDataStructure::processingData& results);

}  // namespace talvesk
