#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/SectionFigureOptions.h"

#include <string>
#include <vector>

class QByteArray;

namespace talvesk {

class TomoDocument;

/// What makes the figure show what the section view shows with these settings.
/// \param refractors the layered profile, shown when the settings ask for it
SectionFigureOptions sectionFigureOptions(const SectionViewSettings& settings,
                                          const ColorPalette& palette,
                                          const std::vector<SectionLine>& refractors = {});

/// Draws the section of a document and replaces the file at `path` by it, whole or not at all; the
/// suffix decides between PNG, SVG and PDF. Needs the QApplication (offscreen will do) and must run
/// on its thread. Fails without a grid, for a value or size that makes no picture, and when the
/// file cannot be written; then a file that was there before is untouched.
Status writeSectionFigure(const TomoDocument& document, const SectionFigureOptions& options,
                          const std::string& path);

/// The same for who paints it himself.
Status prepareSectionFigure(const TomoDocument& document, const SectionFigureOptions& options,
                            FigureDrawing& drawing);

/// The same into memory. \param layout where the section lies; null when nobody asks
Status renderSectionFigure(const TomoDocument& document, const SectionFigureOptions& options,
                           FigureFormat format, QByteArray& bytes,
                           SectionFigureLayout* layout = nullptr);

}  // namespace talvesk
