#pragma once

#include "batch/JsonText.h"

#include <optional>

namespace talvesk {

class TomoDocument;
struct KnownFit;

/// How a section goes with what it was held to; null where it was held to nothing.
Json constraintsJson(const std::optional<KnownFit>& known);

/// What a project knows of its ground, and whether that is what its section was held to.
void putKnownGround(Json& json, const TomoDocument& document);

}  // namespace talvesk
