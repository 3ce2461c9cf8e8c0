#pragma once

#include "base/Status.h"
#include "view/ColorPalette.h"

#include <string>
#include <string_view>

namespace talvesk {

/// Palette files: an XML archive that holds one palette.
///
/// The functions on files tell the console's error stream what went wrong, as its users know it,
/// and return a status whose message gives the reason.

/// A failure leaves a file that was there before as it was.
Status savePalette(const std::string& path, const ColorPalette& palette);

/// Reads a palette and makes it fit for use, see repairPalette(); one without a name takes that of
/// the file. A failure leaves `palette` as it was.
Status loadPalette(const std::string& path, ColorPalette& palette);

/// The text of a palette file.
std::string formatPalette(const ColorPalette& palette);

/// Reads the text of a palette file. \param name of the file, for the message
Status parsePalette(std::string_view text, const std::string& name, ColorPalette& palette);

}  // namespace talvesk
