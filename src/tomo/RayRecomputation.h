#pragma once

#include "base/Log.h"
#include "base/Status.h"
#include "model/TomoDocument.h"

namespace talvesk {

/// Brings back the rays and computed times of a document that was loaded with its inversion result:
/// one forward pass without any correction of the model. Coverage and hit counts restart at 0.
/// Fails without a grid that rays can be traced through; rays are missing where tracing fails.
Status recomputeRays(TomoDocument& document, Log& log);

}  // namespace talvesk
