#pragma once

#include "base/Status.h"

#include <string>

namespace talvesk {

class TomoDocument;

/// Traces rays and times through the section of a loaded project, which has none of its own, so
/// that what is told of it is true. Nothing to do where there is no section. What is left out, and
/// picks that have changed since, are told on standard error.
/// \param project what lines on standard error begin with; empty: nothing
Status traceFreshTimes(TomoDocument& document, const std::string& project = {});

}  // namespace talvesk
