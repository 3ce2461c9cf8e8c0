#pragma once

#include "model/InversionRecord.h"

namespace talvesk {

class TomoDocument;

/// Of the computed times as the last solver pass has left them, over every receiver with a pick and
/// one.
Misfit computeMisfit(const TomoDocument& document);

}  // namespace talvesk
