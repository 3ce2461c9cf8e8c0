#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/SectionFigure.h"
#include "model/RefractionDataStructure.h"
#include "view/GatherMapping.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;
struct ProfileErrors;

/// Which pictures of a survey to make. Those that the survey has nothing for are left out.
struct ImageSetOptions {
  bool gathers = false;
  std::optional<std::size_t> shot;  ///< the one gather to draw, from 0; none: all of them
  bool filtered = false;            ///< the filtered copies of the traces
  GatherManner gatherManner;        ///< order, time and gain of the traces
  bool travelTimes = false;
  bool errorBars = true;                    ///< over picks whose error is known
  bool section = false;                     ///< of each of the quantities, as the view shows it
  std::vector<SectionQuantity> quantities;  ///< in this order, each once
  bool cells = true;                        ///< as cells, or in bands where contours are filled
  bool smooth = false;                      ///< blended, in pictures of their own
  bool refraction = false;
  const ProfileErrors* profileErrors =
      nullptr;             ///< of the profile, outlives the pictures; null: none
  bool residuals = false;  ///< of the section: shot by geophone, and along the rays

  FigureFormat format = FigureFormat::kPng;
  double widthMm = 280.0;
  double heightMm = 0.0;  ///< 0: as high as each picture asks for
  double dpi = 150.0;     ///< pixels per inch of PNG pictures

  SectionViewSettings view;  ///< how sections are shown, but for quantity and smoothness
  ColorPalette palette;
  std::vector<SectionLine> refractors;  ///< over the section, where the view shows them
  bool horizontalColorBar = false;      ///< above sections instead of beside them
  std::string folder;
  std::string baseName;  ///< that the names of the files begin with
};

/// A picture to be: its file, and how it gets there, whole or not at all.
struct PlannedImage {
  std::string path;
  std::function<Status()> write;
};

/// The pictures in the order in which they are made. Document and interpretation must outlive them.
/// \param interpretation null when there is none
std::vector<PlannedImage> planImages(const TomoDocument& document,
                                     const refractionDataStructure::Interpretation* interpretation,
                                     const ImageSetOptions& options);

/// ".png", ".svg" or ".pdf".
const char* suffixOf(FigureFormat format);

}  // namespace talvesk
