#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/FigurePlot.h"
#include "model/RefractionDataStructure.h"

#include <optional>
#include <string>

class QByteArray;

namespace talvesk {

class TomoDocument;
struct ProfileErrors;

struct RefractionFigureOptions {
  double widthMm = 280.0;
  double heightMm = 140.0;
  double dpi = 150.0;  ///< pixels per inch of a PNG
  double scale = 0.0;  ///< metres along the line to a metre of the sheet, whose size follows; 0: as
                       ///< large as the sheet has room for
  double verticalExaggeration = 0.0;  ///< height of a metre over its width, at a scale; 0: what
                                      ///< makes the profile legible
  std::optional<PlotPart> part;       ///< at a scale
  std::string title;  ///< UTF-8; empty: the document's title, and without one "Refraction Profile"
  bool showTitle = true;  ///< false: the title is for the properties of the file only
  const ProfileErrors* errors = nullptr;  ///< of the profile, for bands; null for none
};

/// Draws the section of layers with the surface and replaces the file at `path` by it, whole or not
/// at all; the suffix decides between PNG, SVG and PDF. The caption states the vertical
/// exaggeration. Tops of refractors are dashed where picks do not carry them.
///
/// Needs the QApplication and must run on its thread. Fails without a depth to draw, for a size
/// that makes no picture, and when the file cannot be written; then a file that was there before is
/// untouched.
Status writeRefractionFigure(const TomoDocument& document,
                             const refractionDataStructure::Interpretation& profile,
                             const RefractionFigureOptions& options, const std::string& path);

/// The same for who paints it himself. \param exaggeration as drawn; null when nobody asks
/// \param place of the plot; null when nobody asks
Status prepareRefractionFigure(const TomoDocument& document,
                               const refractionDataStructure::Interpretation& profile,
                               const RefractionFigureOptions& options, FigureDrawing& drawing,
                               double* exaggeration = nullptr, PlotPlace* place = nullptr);

/// The same into memory. \param place where the section lies; null when nobody asks
Status renderRefractionFigure(const TomoDocument& document,
                              const refractionDataStructure::Interpretation& profile,
                              const RefractionFigureOptions& options, FigureFormat format,
                              QByteArray& bytes, PlotPlace* place = nullptr);

}  // namespace talvesk
