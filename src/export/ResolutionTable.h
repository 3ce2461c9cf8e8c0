#pragma once

#include "base/Status.h"

#include <string>

namespace talvesk {

struct ResolutionReport;

/// Writes resolution tests as a table with a heading, fields separated by commas: a line per depth
/// and size, ascending depth first, with the cells that were judged, the correlation of what was
/// put in and what came back, the share of the strength that did, and the smallest size that is
/// resolved at that depth. What is not known is empty. Metres.
Status writeResolutionTable(const std::string& path, const ResolutionReport& report);

}  // namespace talvesk
