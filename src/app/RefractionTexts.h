#pragma once

#include "refraction/RefractionWarning.h"

#include <QString>

namespace talvesk {

/// What a warning of the interpretation says, in the language of the program.
QString refractionText(const RefractionWarning& warning);

}  // namespace talvesk
