#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/FigureNumbers.h"
#include "figures/GatherFigureOptions.h"
#include "figures/GatherPanels.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// Several shots on a sheet, and as many sheets as it takes.
struct GatherSheetOptions {
  static constexpr std::size_t kMostRows = 10;
  static constexpr std::size_t kMostColumns = 10;

  double widthMm = 297.0;
  double heightMm = 210.0;
  double dpi = 150.0;  ///< pixels per inch of a PNG
  std::size_t rows = 2;
  std::size_t columns = 2;
  std::vector<std::size_t> shots;  ///< trace sets, from 0, in this order; empty: all
  /// How each is drawn. Size, shot and title of it do not count, and its swings are not larger than
  /// the room of the panels. Without a window every sheet has one that all its shots fit in.
  GatherFigureOptions gather;
  QLocale locale = figureLocale();  ///< of numbers
};

/// Sheets that the shots fill.
std::size_t gatherSheets(const TomoDocument& document, const GatherSheetOptions& options);

/// Lays one sheet out, from 0. What is left out of a shot, and what is mended of it, stands below
/// all of them. Looks at the document, which must outlive the drawing. Fails as buildGatherScene()
/// and layOutPanels() do.
Status prepareGatherSheet(const TomoDocument& document, const GatherSheetOptions& options,
                          std::size_t sheet, FigureDrawing& drawing,
                          std::vector<GatherPanelPlace>* places = nullptr);

/// Writes all sheets. The suffix of `path` decides: .pdf is one file of several pages; .png and
/// .svg are a file for each sheet, with its number before the suffix where there are several. Every
/// file is replaced whole or not at all; those already complete remain after a failure.
/// \param written out, the files in their order
/// \param progress asked before every sheet, from 0: false stops, and the status says so
Status writeGatherSheets(const TomoDocument& document, const GatherSheetOptions& options,
                         const std::string& path, std::vector<std::string>& written,
                         const std::function<bool(std::size_t sheet)>& progress = {});

/// The files that this writes.
std::vector<std::string> gatherSheetFiles(const TomoDocument& document,
                                          const GatherSheetOptions& options,
                                          const std::string& path);

}  // namespace talvesk
