#pragma once

#include "base/Status.h"
#include "io/standard/SegyTraces.h"
#include "io/standard/StandardReading.h"

#include <string_view>

namespace talvesk {

/// Makes shots of the traces that were found: samples, positions along the line, delays; without
/// auxiliary traces, and split where the file holds many records.
/// Dead traces and dummies stay, as zeros.
///
/// Status 1: they promise more than the budget allows. `reading` is as before then.
Status readSegyShots(std::string_view bytes, SegyTraces found, StandardReading& reading);

}  // namespace talvesk
