#pragma once

namespace talvesk {

class Grid;
class TomoDocument;

/// Draw flags of a new grid by the hit counts of the document, and in the document the lower limit
/// of what rays covered.
void setCoverage(TomoDocument& document, Grid& grid);

}  // namespace talvesk
