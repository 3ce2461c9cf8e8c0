#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"

#include <cstddef>
#include <functional>
#include <string>

class QByteArray;

namespace talvesk {

// What all figures do on their way from options to a file.

/// Plots are made of widgets: fails before the QApplication exists. \param what "A section"
Status checkApplication(const std::string& what);

/// Replaces the file at `path` by the bytes, whole or not at all.
Status writeBytes(const std::string& path, const QByteArray& bytes);

/// Renders a figure in the format that the suffix of `path` asks for, and writes it.
Status writeFigure(const std::string& path,
                   const std::function<Status(FigureFormat, QByteArray&)>& render);

/// "07" for 7 of up to 99: of the same length for all numbers up to `count`, two digits at least.
std::string withZeros(std::size_t number, std::size_t count);

}  // namespace talvesk
