#pragma once

#include "base/Status.h"
#include "batch/Options.h"
#include "figures/SectionFigure.h"

namespace talvesk {

/// Makes drawing possible without a display. Called before long work, so that what is missing shows
/// early; numbers are read and printed by the "C" locale afterwards as before.
void prepareDrawing();

/// How the section is drawn by the options.
SectionFigureOptions sectionFigure(const InvertOptions& options);

/// Draws the traces of all shots, as they were picked, and their picks: one file for a PDF or a
/// single shot, else one per shot. \param filtered the filtered copies
Status drawGathers(const TomoDocument& document, bool filtered, const GatherManner& manner,
                   const std::string& path);

/// Warns of the shots that cannot be drawn in the manner asked for.
void warnOfOffsets(const TomoDocument& document, const GatherManner& manner);

/// The same with so many shots on each sheet: one file for a PDF or a single sheet, else one per
/// sheet.
Status drawGatherSheets(const TomoDocument& document, bool filtered, const GatherManner& manner,
                        std::size_t rows, std::size_t columns, const std::string& path);

}  // namespace talvesk
