#pragma once

#include "model/InversionRecord.h"
#include "model/TomoDocument.h"

namespace talvesk {

/// Over every receiver with a pick and a computed time.
Misfit computeMisfit(const TomoDocument& document);

}  // namespace talvesk
