#pragma once

#include "batch/JsonText.h"

namespace talvesk {

class TomoDocument;

/// How sure the section of a survey is, which must be known: cells in the order of the velocities,
/// columns along the line; low and high are 16 and 84 %.
Json certaintyJson(const TomoDocument& document);

}  // namespace talvesk
