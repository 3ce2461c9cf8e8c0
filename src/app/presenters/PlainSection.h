#pragma once

#include "view/SectionScene.h"

#include <optional>

namespace talvesk {

/// The section of one quantity without its lines: what values it shows. None where there is nothing
/// to show.
std::optional<SectionScene> plainSection(const TomoDocument& document, SectionQuantity quantity);

}  // namespace talvesk
