#pragma once

#include "base/Status.h"
#include "model/Annotations.h"
#include "view/ColorPalette.h"
#include "view/SectionViewSettings.h"

#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// How a section looks, without a word on what it shows: saved in a file of its own (*.tvstyle) and
/// laid on other surveys, so that the sections of a campaign can be compared.
struct SectionStyle {
  ColorPalette palette;         ///< with the range that it is stretched over
  SectionViewSettings section;  ///< contours, exaggeration, switches; the quantity stays out of it
  std::vector<MarkedIsoline> isolines;
};

/// The style of what a survey shows.
SectionStyle styleOf(const TomoDocument& document, const ColorPalette& palette,
                     const SectionViewSettings& section);

/// Lays a style on a survey: its palette becomes the current one, added where the survey has none
/// like it, its range is held, its marked isolines take the place of those there are. What quantity
/// is shown stays.
void applyStyle(const SectionStyle& style, TomoDocument& document, ColorPaletteList& palettes,
                SectionViewSettings& section);

/// A failure leaves a file that was there before as it was.
Status writeStyle(const std::string& path, const SectionStyle& style);

/// Fails, with `style` unchanged, where the file is none, of a newer version, or cannot be drawn.
Status readStyle(const std::string& path, SectionStyle& style);

}  // namespace talvesk
